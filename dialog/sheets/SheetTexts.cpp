#include "dialog/sheets/SheetTexts.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QCoreApplication>
#include <QLocale>
#include <QPageSize>

#include "dialog/session/PaperSize.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SheetTexts)
};

constexpr int kMostNamed = 6; // sizes of pages, ranges, documents in one line

QString joined(QStringList parts)
{
    if (parts.size() > kMostNamed)
        parts = parts.first(kMostNamed) << u"…"_s;
    return parts.join(Texts::tr(", "));
}

QString pagesText(int pages)
{
    return pages == 1 ? Texts::tr("1 page") : Texts::tr("%1 pages").arg(QLocale().toString(pages));
}

QString sheetsText(qint64 sheets)
{
    return sheets == 1 ? Texts::tr("1 sheet")
                       : Texts::tr("%1 sheets").arg(QLocale().toString(sheets));
}

enum class At { Begin, Middle };

// "The document" where there is only one, else which; at the begin of a sentence or in its middle.
QString hasPages(const DocumentSheets &document, bool isOnly, At at)
{
    const QString pages = pagesText(*document.pages);
    if (!isOnly)
        return Texts::tr("“%1” has %2").arg(terminalLine(document.title), pages);
    return at == At::Begin ? Texts::tr("The document has %1").arg(pages)
                           : Texts::tr("the document has %1").arg(pages);
}

QString rangeText(const PageRange &range)
{
    if (range.first == range.last)
        return QString::number(range.first);
    // An open end: everything behind.
    if (range.last == std::numeric_limits<int>::max())
        return Texts::tr("%1 and later").arg(range.first);
    return Texts::tr("%1 to %2").arg(QString::number(range.first), QString::number(range.last));
}

// A sentence on pages that are not there; empty when none are missing.
QString beyondText(const DocumentSheets &document, const PageChoice &choice, bool isOnly)
{
    const QList<PageRange> beyond = rangesBeyond(rangesOf(choice.ranges), *document.pages);
    if (beyond.isEmpty())
        return {};
    QStringList texts;
    for (const PageRange &range : beyond)
        texts += rangeText(range);
    const bool single = beyond.size() == 1 && beyond.constFirst().first == beyond.constFirst().last;
    const QString form =
        single ? Texts::tr("%1; %2 is not in it.") : Texts::tr("%1; %2 are not in it.");
    return form.arg(hasPages(document, isOnly, At::Begin), joined(texts));
}

QString emptyText(const DocumentSheets &document, const PageChoice &choice, bool isOnly)
{
    const bool isInRanges = choice.ranges.isEmpty() ||
                            !rangesWithin(rangesOf(choice.ranges), *document.pages).isEmpty();
    if (!isInRanges)
        return beyondText(document, choice, isOnly);
    const QString has = hasPages(document, isOnly, At::Middle);
    switch (choice.set) {
    case PageChoice::Set::Even:
        return Texts::tr("Nothing would be printed: %1, and only even pages were chosen.").arg(has);
    case PageChoice::Set::Odd:
        return Texts::tr("Nothing would be printed: %1, and only odd pages were chosen.").arg(has);
    case PageChoice::Set::All:
        break;
    }
    return Texts::tr("Nothing would be printed: %1, and none of them is left.").arg(has);
}

// The name of a size of paper, or its lengths.
QString sizeName(QSizeF points)
{
    const QPageSize::PageSizeId id =
        QPageSize::id(points, QPageSize::Point, QPageSize::FuzzyOrientationMatch);
    // "Letter / ANSI A" is known by its first name.
    if (id != QPageSize::Custom)
        return QPageSize::name(id).section(u" / "_s, 0, 0);
    const bool inches = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    const auto length = [inches](double value) {
        return inches ? QString::number(value / kPointsPerInch, 'f', 2)
                      : QString::number(qRound(value / kPointsPerMillimetre));
    };
    const QString form = inches ? QCoreApplication::translate("Summary", "%1 × %2 inches")
                                : QCoreApplication::translate("Summary", "%1 × %2 mm");
    return form.arg(length(points.width()), length(points.height()));
}

} // namespace

QStringList emptyDocuments(const JobSheets &sheets, const PageChoice &choice)
{
    QStringList texts;
    for (const DocumentSheets &document : sheets.documents) {
        if (document.pages && document.sides == 0)
            texts += emptyText(document, choice, sheets.documents.size() == 1);
    }
    return texts;
}

QStringList previewProblems(const JobSheets &sheets)
{
    using Trouble = DocumentSheets::Trouble;
    QStringList texts;
    for (const DocumentSheets &document : sheets.documents) {
        QString form;
        switch (document.trouble) {
        case Trouble::None:
            continue;
        case Trouble::TookTooLong:
            form =
                Texts::tr("“%1” takes too long to be shown. It can be printed without a preview.");
            break;
        case Trouble::TooLarge:
            form = Texts::tr("“%1” is too large to be shown. It can be printed without a preview.");
            break;
        case Trouble::Failed:
            form = Texts::tr("“%1” could not be laid out, so there is no preview. Printing it may "
                             "work all the same.");
            break;
        }
        texts += form.arg(terminalLine(document.title));
    }
    return texts;
}

QStringList missingPages(const JobSheets &sheets, const PageChoice &choice)
{
    QStringList texts;
    for (const DocumentSheets &document : sheets.documents) {
        if (!document.pages || document.sides == 0)
            continue;
        const QString text = beyondText(document, choice, sheets.documents.size() == 1);
        if (!text.isEmpty())
            texts += text;
    }
    return texts;
}

QString oneSidedReason(const JobSheets &sheets)
{
    if (!sheets.isTwoSided)
        return {};
    QStringList titles;
    for (const DocumentSheets &document : sheets.documents) {
        if (hasEmptyBacks(document))
            titles += Texts::tr("“%1”").arg(terminalLine(document.title));
    }
    if (titles.isEmpty())
        return {};
    if (titles.size() == sheets.documents.size())
        return titles.size() == 1
                   ? Texts::tr("the back stays empty, because only one side is printed")
                   : Texts::tr("the backs stay empty, because each document has only one side");
    return Texts::tr("the back stays empty where a document has only one side: %1")
        .arg(joined(titles));
}

QString countText(const JobSheets &sheets, const PageChoice &choice, int copies, int covers)
{
    const std::optional<int> once = sheetsOfOneCopy(sheets);
    if (!once)
        return Texts::tr("could not be counted");
    int pages = 0;
    for (const DocumentSheets &document : sheets.documents)
        pages += document.pages ? chosenPages(*document.pages, choice) : *document.sides;
    QString all = sheetsText(qint64(*once) * copies);
    if (sheets.isByHand)
        all = Texts::tr("%1, two-sided by hand").arg(all);
    if (covers == 1)
        all = Texts::tr("%1, and 1 cover sheet").arg(all);
    else if (covers > 1)
        all = Texts::tr("%1, and %2 cover sheets").arg(all, QLocale().toString(covers));
    if (copies == 1)
        return Texts::tr("%1 = %2").arg(pagesText(pages), all);
    return Texts::tr("%1 × %2 copies = %3").arg(pagesText(pages), QLocale().toString(copies), all);
}

QString countLine(const JobSheets &sheets, const PageChoice &choice, int copies, int covers)
{
    const QString text = countText(sheets, choice, copies, covers);
    return sheetsOfOneCopy(sheets)
               ? text
               : QCoreApplication::translate("Summary", "%1: %2").arg(Texts::tr("Sheets"), text);
}

QString scaleText(const JobSheets &sheets)
{
    QStringList texts;
    for (const DocumentSheets &document : sheets.documents) {
        for (const PageScale &page : document.scales) {
            const int percent = static_cast<int>(std::lround(page.scale * 100));
            const QString text =
                Texts::tr("%1 at %2 %").arg(sizeName(page.size), QString::number(percent));
            if (percent != 100 && !texts.contains(text))
                texts += text;
        }
    }
    return joined(texts);
}

QList<SummaryLine> sheetLines(const JobSheets *sheets, const PageChoice &choice, int copies,
                              int covers)
{
    if (!sheets)
        return {{Texts::tr("Sheets"), u"…"_s}};
    QList<SummaryLine> lines{{Texts::tr("Sheets"), countText(*sheets, choice, copies, covers)}};
    const QStringList missing = missingPages(*sheets, choice) + emptyDocuments(*sheets, choice);
    for (const QString &text : missing)
        lines += SummaryLine{Texts::tr("Pages Not There"), text};
    if (const QString scales = scaleText(*sheets); !scales.isEmpty())
        lines += SummaryLine{Texts::tr("Printed Size"), scales};
    return lines;
}

} // namespace corvana
