#include "dialog/task/JobColors.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/session/AttributeChoices.h"
#include "dialog/session/Summary.h"
#include "dialog/task/OpenedPrinter.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using Ink = PageColors::Ink;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(JobColors)
};

} // namespace

bool isBlackAndWhite(const OpenedPrinter &printer, const QList<JobOption> &attributes)
{
    static const JobOption kMonochrome{u"print-color-mode"_s, u"monochrome"_s};
    ppd_file_t *ppd = printer.session->ppd();
    return !ppd->color_device || attributes.contains(kMonochrome) ||
           AttributeReader(ppd, printer.jobValues).isMonochromeMarked();
}

PageColors shownColors(const OpenedPrinter &printer, bool isBlack)
{
    PageColors colors;
    if (printer.pageColors) {
        PrintSettings shown;
        shown.setEntries(printer.panels->shownEntries());
        colors = printer.pageColors->pageColors(shown, printer.session->ppd());
    }
    if (isBlack && colors.ink != Ink::Black) {
        colors.transform = colors.transform.then(ColorTransform::grey());
        colors.ink = Ink::Black;
    }
    return colors;
}

QString colorsText(const PageColors &colors, const OpenedPrinter &printer)
{
    const bool isBlack = colors.ink == Ink::Black;
    const bool isAdjusted =
        colors.transform != (isBlack ? ColorTransform::grey() : ColorTransform());
    QString text;
    if (isBlack)
        text = isAdjusted ? Texts::tr("Shown in black and white, with your adjustments.")
                          : Texts::tr("Shown in black and white.");
    else
        text = isAdjusted ? Texts::tr("Shows your adjustments; colors on paper differ.")
                          : Texts::tr("Colors on paper differ from those on the screen.");
    for (const QString &keyword : colors.unknown) {
        const SummaryLine line = optionLine(*printer.session, keyword);
        if (!line.title.isEmpty())
            text = Texts::tr("%1 %2", "two sentences")
                       .arg(text, Texts::tr("“%1: %2” is not shown.").arg(line.title, line.value));
    }
    return text;
}

} // namespace corvana
