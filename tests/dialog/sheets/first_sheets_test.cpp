#include <QDir>
#include <QImage>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/session/OptionNames.h"
#include "dialog/sheets/FirstSheets.h"
#include "dialog/sheets/LaidOutDocument.h"
#include "dialog/sheets/SheetCounter.h"
#include "dialog/sheets/SheetPlan.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// The first sheets of a long document, which are laid out before the whole of it is.

namespace {

constexpr int kFirstPatience = 60000; // milliseconds that a chain may take on a busy machine
constexpr int kManyPages = 150;

struct FirstRow
{
    const char *name;
    QList<JobOption> options;
    NumberedPage page{};
    LayoutTraits traits{kA4};
};

LayoutTraits twoSided(bool fillsSheets = false)
{
    LayoutTraits traits{kA4};
    traits.isTwoSided = true;
    traits.fillsSheets = fillsSheets;
    return traits;
}

LayoutTraits withMargins()
{
    return {kA4, {30, 40, 50, 60}};
}

LayoutTraits reversed()
{
    LayoutTraits traits{kA4};
    traits.isReversed = true;
    return traits;
}

const JobOption kTwoUp{u"number-up"_s, u"2"_s};
constexpr QSizeF kLyingA4{842, 595};

const FirstRow kEqualRows[] = {
    {"as it is", {}},
    {"two-sided", {}, {}, twoSided()},
    {"two-sided, with a last back that is filled up", {}, {}, twoSided(true)},
    {"two on a side", {kTwoUp}},
    {"two on a side, two-sided", {kTwoUp}, {}, twoSided()},
    {"nine on a side, from the right",
     {{u"number-up"_s, u"9"_s}, {u"number-up-layout"_s, u"rltb"_s}}},
    {"sixteen on a side with a border",
     {{u"number-up"_s, u"16"_s}, {u"page-border"_s, u"single"_s}}},
    {"pages that lie on their side", {}, {kLyingA4}},
    {"pages that lie on their side, two-sided", {}, {kLyingA4}, twoSided()},
    {"pages that lie on their side, two on a side", {kTwoUp}, {kLyingA4}},
    {"pages that a reader turns", {}, {kA4, 90}},
    {"pages that a reader turns, two on a side", {kTwoUp}, {kA4, 270}},
    {"pages that are cropped", {}, {kA4, 0, {100, 100, 300, 500}}},
    {"pages that are larger", {}, {kA3}, withMargins()},
    {"pages that are larger, fitted", {{u"fit-to-page"_s, u"true"_s}}, {kA3}, withMargins()},
    {"pages that are smaller, filling", {{u"print-scaling"_s, u"fill"_s}}, {kA5}, withMargins()},
    {"pages of another paper", {{u"print-scaling"_s, u"none"_s}}, {kLetter}},
    {"enlarged", {{u"scaling"_s, u"150"_s}}},
    {"turned", {{u"orientation-requested"_s, u"4"_s}}},
    {"mirrored", {{u"mirror"_s, u"true"_s}}, {kLyingA4}},
    {"at a corner", {{u"position"_s, u"top-right"_s}}, {kA5}},
};

const FirstRow kWholeRows[] = {
    {"from the last page on", {}, {}, reversed()},
    {"a booklet", {{u"booklet"_s, u"left"_s}}},
    {"even pages", {{u"page-set"_s, u"even"_s}}},
    {"odd pages", {{u"page-set"_s, u"odd"_s}}},
    {"pages from the middle", {{u"page-ranges"_s, u"70-"_s}}},
    {"each page twice", {{u"repeat"_s, u"2"_s}, kTwoUp}},
};

} // namespace

class FirstSheetsTest : public QObject
{
    Q_OBJECT

private:
    struct Counted
    {
        std::optional<JobSheets> first;
        std::optional<JobSheets> all;
    };

    QTemporaryDir m_folder;

    Counted count(const QByteArray &pdf, const QList<JobOption> &options,
                  const LayoutTraits &traits)
    {
        const QString path = writeFile(m_folder.filePath(u"long.pdf"_s), pdf);
        const SheetRequest request{{{path, u"application/pdf"_s, u"long.pdf"_s}}, options, traits};
        SheetCounter counter;
        Counted counted;
        connect(&counter, &SheetCounter::firstKnown, this, [&] {
            if (const JobSheets *first = counter.begun(request))
                counted.first = *first;
        });
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, SheetCounter::When::Now);
        if (finished.wait(kFirstPatience) && counter.counted(request))
            counted.all = *counter.counted(request);
        // Those who ask now get all of them.
        if (counter.begun(request))
            counted.all.reset();
        return counted;
    }

    // The first pages of a PDF, drawn.
    QList<QImage> drawn(const QString &path, int count)
    {
        QDir folder(m_folder.path());
        folder.mkdir(u"drawn"_s);
        folder.cd(u"drawn"_s);
        QProcess::execute(u"pdftoppm"_s, {u"-r"_s, u"40"_s, u"-l"_s, QString::number(count), path,
                                          folder.filePath(u"side"_s)});
        QList<QImage> pictures;
        for (const QString &name : folder.entryList(QDir::Files, QDir::Name))
            pictures += QImage(folder.filePath(name));
        folder.removeRecursively();
        return pictures;
    }

private Q_SLOTS:
    void theFirstSheetsAreThoseOfTheWhole_data() { addRows(kEqualRows); }
    void theFirstSheetsAreThoseOfTheWhole()
    {
        const FirstRow &row = currentRow(kEqualRows);
        const Counted counted =
            count(numberedPdf("page", QList<NumberedPage>(kManyPages, row.page)), row.options,
                  row.traits);
        QVERIFY(counted.first);
        QVERIFY(counted.all);
        const DocumentSheets &first = counted.first->documents.constFirst();
        const DocumentSheets &all = counted.all->documents.constFirst();
        QCOMPARE(all.pages, std::optional(kManyPages));
        const int sides = first.sides.value_or(0);
        QCOMPARE(sides, 8);
        QVERIFY(first.laidOut && all.laidOut);
        QCOMPARE(all.laidOut->begin(), first.laidOut->path());
        const QList<QImage> begin = drawn(first.laidOut->path(), sides);
        QCOMPARE(begin.size(), sides);
        QVERIFY(begin.constFirst() != begin.constLast());
        QCOMPARE(begin, drawn(all.laidOut->path(), sides));
        const SheetArrangement arrangement = sheetArrangement(row.options, row.traits, false);
        const QList<PlannedSheet> plan = planSheets(*counted.first, arrangement).sheets;
        QCOMPARE(plan, planSheets(*counted.all, arrangement).sheets.first(plan.size()));
        QCOMPARE(plan.size(), row.traits.isTwoSided ? sides / 2 : sides);
    }

    void nothingIsShownBeforeTheWholeWhereThatMayBeAnother_data() { addRows(kWholeRows); }
    void nothingIsShownBeforeTheWholeWhereThatMayBeAnother()
    {
        const FirstRow &row = currentRow(kWholeRows);
        const Counted counted = count(numberedPdf("page", kManyPages), row.options, row.traits);
        QVERIFY(!counted.first);
        QVERIFY(counted.all);
        QVERIFY(counted.all->documents.constFirst().laidOut);
    }

    // One page at the end decides the scale of all.
    void pagesOfSeveralKindsAreLaidOutTogether()
    {
        QList<NumberedPage> pages(kManyPages, NumberedPage{kA4});
        pages.last().size = kA3;
        const Counted counted = count(numberedPdf("page", pages), {}, {kA4});
        QVERIFY(!counted.first);
        QVERIFY(counted.all);
    }

    void aShortDocumentIsLaidOutAtOnce()
    {
        QVERIFY(!count(numberedPdf("page", 50), {}, {kA4}).first);
        QVERIFY(count(numberedPdf("page", 51), {}, {kA4}).first);
    }

    // So many pages on a side that the first sides hold all of them.
    void sidesThatHoldEverythingAreTheWhole()
    {
        const QList<PdfPage> pages(60, PdfPage{{0, 0, 595, 842}, {}, {}, 0});
        QCOMPARE(pagesOfFirstSheets(pages, 60, {{u"number-up"_s, u"9"_s}}, {kA4}), 0);
        QCOMPARE(pagesOfFirstSheets(pages, 60, {{u"number-up"_s, u"6"_s}}, {kA4}), 48);
    }

    // Of pages that nobody has looked at nobody knows the kind.
    void pagesThatWereNotDescribedMayBeAnything()
    {
        const QList<PdfPage> pages(60, PdfPage{{0, 0, 595, 842}, {}, {}, 0});
        QCOMPARE(pagesOfFirstSheets(pages, 60, {}, {kA4}), 8);
        QCOMPARE(pagesOfFirstSheets(pages, 61, {}, {kA4}), 0);
    }
};

QTEST_MAIN(FirstSheetsTest)

#include "first_sheets_test.moc"
