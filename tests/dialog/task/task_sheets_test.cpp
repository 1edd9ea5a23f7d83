#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include "dialog/job/PpdFilters.h"
#include "dialog/task/OpenedPrinter.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Phase = PrintTask::Phase;

namespace {

constexpr int kSheetsPatience = 60000; // milliseconds that a chain may take on a busy machine

struct ExpectedSheets
{
    const char *name;
    QList<QList<QSizeF>> documents;
    QList<JobOption> options;
    int copies;
    QString refusal;    // empty: it is printed
    QStringList lines;  // of the summary
    QStringList absent; // titles that the summary does not have
};
const ExpectedSheets kSheetJobs[] = {
    {"as it is",
     {{kA4, kA4, kA4, kA4, kA4}},
     {},
     1,
     {},
     {u"Sheets: 5 pages = 5 sheets"_s, u"Two-Sided Printing: Off (1-Sided)"_s},
     {u"Printed Size"_s, u"Pages Not There"_s}},
    {"two-up, two-sided, copies",
     {{kA4, kA4, kA4, kA4, kA4}},
     {{u"number-up"_s, u"2"_s}, {u"Duplex"_s, u"DuplexNoTumble"_s}},
     2,
     {},
     {u"Sheets: 5 pages × 2 copies = 4 sheets"_s, u"Two-Sided Printing: Long-Edge Binding"_s},
     {u"Pages Not There"_s}},
    {"pages that the document lacks",
     {{kA4, kA4, kA4, kA4, kA4}},
     {{u"page-ranges"_s, u"9-12"_s}},
     1,
     u"The document has 5 pages; 9 to 12 are not in it."_s,
     {},
     {}},
    {"pages of which the document has some",
     {{kA4, kA4, kA4, kA4, kA4}},
     {{u"page-ranges"_s, u"4-9"_s}},
     1,
     {},
     {u"Sheets: 2 pages = 2 sheets"_s,
      u"Pages Not There: The document has 5 pages; 6 to 9 are not in it."_s},
     {}},
    {"even pages of one",
     {{kA4}},
     {{u"page-set"_s, u"even"_s}},
     1,
     u"Nothing would be printed: the document has 1 page, and only even pages were chosen."_s,
     {},
     {}},
    {"mixed sizes",
     {{kA4, kLetter, kA5}},
     {},
     1,
     {},
     {u"Printed Size: A4 at 96 %, Letter at 93 %, A5 at 136 %"_s},
     {}},
    {"one page, two-sided",
     {{kA4}},
     {{u"Duplex"_s, u"DuplexTumble"_s}},
     1,
     {},
     {u"Two-Sided Printing: Short-Edge Binding (the back stays empty, because only one side is printed)"_s},
     {}},
    {"a document among others of which nothing is left",
     {{kA4, kA4}, {kA4}},
     {{u"page-ranges"_s, u"2"_s}},
     1,
     u"“document1.pdf” has 1 page; 2 is not in it."_s,
     {},
     {}},
};

} // namespace

class TaskSheetsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's

    PrintRequest request(const QList<QList<QSizeF>> &documents)
    {
        PrintRequest request = m_scene->request({m_scene->printer(u"laser"_s, samplePpd(5))});
        request.documents.clear();
        request.summary = true;
        for (const QList<QSizeF> &sizes : documents) {
            const QString name = u"document%1.pdf"_s.arg(request.documents.size());
            request.documents +=
                Document{writeFile(m_scene->filter.path(name), numberedPdf("page", sizes)),
                         u"application/pdf"_s, name};
        }
        return request;
    }
    QStringList summary() const
    {
        QStringList lines;
        for (const SummaryLine &line : m_scene->task->summary())
            lines += line.title + u": "_s + line.value;
        return lines;
    }
    void useFilter(const QByteArray &script)
    {
        const QString path = writeFile(m_scene->filter.path(u"own"_s), "#!/bin/sh\n" + script);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
        m_filter.reset();
        m_filter = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", path.toUtf8());
    }

private Q_SLOTS:
    void init()
    {
        m_scene = std::make_unique<TaskScene>();
        m_filter = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", "");
    }
    void cleanup()
    {
        m_filter.reset();
        m_scene.reset();
    }

    void whatComesOutIsSaidOrRefused_data() { addRows(kSheetJobs); }
    void whatComesOutIsSaidOrRefused()
    {
        const ExpectedSheets &row = currentRow(kSheetJobs);
        PrintRequest asked = request(row.documents);
        asked.options = row.options;
        asked.copies = row.copies;
        PrintTask &task = m_scene->open(asked);
        ScriptedFace &face = m_scene->face;
        task.print();
        QTRY_VERIFY_WITH_TIMEOUT(!face.refusals.isEmpty() || !face.outcomes.isEmpty(),
                                 kSheetsPatience);
        QCOMPARE(face.problems().join(u'\n'), row.refusal);
        QCOMPARE(task.phase(), row.refusal.isEmpty() ? Phase::Ended : Phase::Ready);
        QCOMPARE(QFile::exists(asked.output), row.refusal.isEmpty());
        QCOMPARE(face.summaries.size(), 1);
        QStringList lines;
        for (const SummaryLine &line : face.summaries.constFirst()) {
            lines += line.title + u": "_s + line.value;
            QVERIFY2(!row.absent.contains(line.title), qPrintable(line.title));
        }
        for (const QString &line : row.lines)
            QVERIFY2(lines.contains(line),
                     qPrintable(line + u" is not in\n"_s + lines.join(u'\n')));
    }

    // Somebody who looks at the summary sees the count come, and go with what it belongs to.
    void theSummaryIsCountedForWhoeverLooksAtIt()
    {
        PrintTask &task = m_scene->open(request({{kA4, kA4, kA4}}));
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        QCOMPARE(summary().at(1), u"Sheets: …"_s);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        QCOMPARE(summary().at(1), u"Sheets: 3 pages = 3 sheets"_s);
        task.settings().setPageRanges(u"2-3"_s);
        QCOMPARE(summary().at(1), u"Sheets: …"_s);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        QCOMPARE(summary().at(1), u"Sheets: 2 pages = 2 sheets"_s);
        // The number of copies is no reason to count anew.
        task.settings().askForCopies(3, JobSettings::By::User);
        QCOMPARE(summary().at(1), u"Sheets: 2 pages × 3 copies = 6 sheets"_s);
        QCOMPARE(task.phase(), Phase::Ready);
    }

    // Whoever changes a setting asks for them again and again, and a large PPD takes long to be
    // read.
    void theSheetsOfSeveralDocumentsAreKnownWithoutReadingThePpdAgain()
    {
        PrintRequest documents = request({{kA4, kA4}, {kA4}});
        documents.printers = {m_scene->printer(
            u"pdf"_s,
            samplePpd(5) + "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n")};
        PrintTask &task = m_scene->open(documents);
        QVERIFY(!streamOfPpd(task.opened()->session->ppd()).continues);
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        const QStringList known = summary();
        QVERIFY2(known.at(1).contains(u"3 pages"_s), qPrintable(known.at(1)));
        QVERIFY(QFile::remove(task.opened()->fetched.ppd->path));
        QCOMPARE(summary(), known);
    }

    // A preview knows the sheets, dims the older ones while newer ones are made, and says why there
    // is none.
    void theSheetsArePreviewed()
    {
        using State = SheetPreview::State;
        PrintTask &task = m_scene->open(request({{kA4, kA4, kA4}}));
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        QCOMPARE(task.sheetPreview().state, State::Counting);
        QVERIFY(task.sheetPreview().plan.sheets.isEmpty());
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        SheetPreview preview = task.sheetPreview();
        QCOMPARE(preview.state, State::Known);
        QCOMPARE(preview.reason, QString());
        QCOMPARE(preview.counts, u"3 pages = 3 sheets"_s);
        QCOMPARE(preview.files.size(), 1);
        QCOMPARE(preview.plan.sheets.size(), 3);
        QCOMPARE(preview.plan.sheets.at(2).front.pages, QList<int>{3});
        QCOMPARE(task.setAttribute(u"number-up"_s, u"2"_s), QString());
        const SheetPreview older = task.sheetPreview();
        QCOMPARE(older.state, State::Counting);
        QCOMPARE(older.counts, QString());
        QCOMPARE(older.plan, preview.plan);
        QCOMPARE(older.files, preview.files);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        QVERIFY(QFile::exists(preview.files.constFirst()->path()));
        preview = task.sheetPreview();
        QCOMPARE(preview.state, State::Known);
        QCOMPARE(preview.plan.sheets.size(), 2);
        const PlannedSide &side = preview.plan.sheets.constFirst().front;
        QCOMPARE(side.pages, (QList<int>{1, 2}));
        QVERIFY(side.paper.width() > side.paper.height());
    }

    // Before anybody presses Print, and whether that would help.
    void pagesThatAreNotThereAreSaidBeforePrinting()
    {
        using State = SheetPreview::State;
        PrintTask &task = m_scene->open(request({{kA4, kA4, kA4}}));
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        task.settings().setPageRanges(u"2-9"_s);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        QCOMPARE(task.sheetPreview().state, State::Known);
        QCOMPARE(task.sheetPreview().reason, u"The document has 3 pages; 4 to 9 are not in it."_s);
        QVERIFY(task.sheetPreview().canBePrinted);
        task.settings().setPageRanges(u"7-8"_s);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        QCOMPARE(task.sheetPreview().state, State::None);
        QCOMPARE(task.sheetPreview().reason, u"The document has 3 pages; 7 to 8 are not in it."_s);
        QVERIFY(!task.sheetPreview().canBePrinted);
        task.settings().setPageRanges(u"x"_s);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        QCOMPARE(task.sheetPreview().state, State::None);
        QVERIFY(task.sheetPreview().reason.startsWith(u"“x” are no pages."_s));
        QCOMPARE(task.sheetPreview().counts, QString());
        QVERIFY(!task.sheetPreview().canBePrinted);
    }

    // Of a long document the first sheets are there before anybody knows how many there are.
    void aLongDocumentBeginsToBeShown()
    {
        using State = SheetPreview::State;
        PrintTask &task = m_scene->open(request({QList<QSizeF>(120, kA4)}));
        QList<SheetPreview> previews;
        connect(&task, &PrintTask::sheetsCounted, this, [&] { previews += task.sheetPreview(); });
        task.countSheets();
        QTRY_COMPARE_WITH_TIMEOUT(previews.size(), 2, kSheetsPatience);
        QCOMPARE(previews.at(0).state, State::Begun);
        QCOMPARE(previews.at(0).counts, QString());
        QCOMPARE(previews.at(0).plan.sheets.size(), 8);
        QCOMPARE(previews.at(1).state, State::Known);
        QCOMPARE(previews.at(1).counts, u"120 pages = 120 sheets"_s);
        QCOMPARE(previews.at(1).plan.sheets.first(8), previews.at(0).plan.sheets);
        // Other settings are no begin of anything that stood before.
        QCOMPARE(task.setAttribute(u"page-set"_s, u"even"_s), QString());
        QCOMPARE(task.sheetPreview().state, State::Counting);
    }

    // The summary counts what is known as a whole.
    void whatHasBegunIsNotCounted()
    {
        PrintTask &task = m_scene->open(request({QList<QSizeF>(120, kA4)}));
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        QCOMPARE(task.sheetPreview().state, SheetPreview::State::Begun);
        QCOMPARE(summary().at(1), u"Sheets: …"_s);
    }

    void aDocumentThatCannotBeLaidOutHasNoPreview()
    {
        PrintRequest asked = request({{kA4}, {kA4}});
        writeFile(asked.documents.constFirst().path, "%PDF-1.4 and nothing more");
        asked.documents.removeLast();
        PrintTask &task = m_scene->open(asked);
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        const SheetPreview preview = task.sheetPreview();
        QCOMPARE(preview.state, SheetPreview::State::None);
        QCOMPARE(preview.reason,
                 u"“document0.pdf” is damaged. None of its pages can be printed."_s);
        QVERIFY(preview.plan.sheets.isEmpty());
    }

    // The reason says whether printing may work; nothing is to be said of that beside it.
    void whereNothingCouldBeLaidOutTheReasonTellsOfPrinting()
    {
        useFilter("exit 1\n");
        PrintTask &task = m_scene->open(request({{kA4}}));
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        task.countSheets();
        QVERIFY(counted.wait(kSheetsPatience));
        const SheetPreview preview = task.sheetPreview();
        QCOMPARE(preview.state, SheetPreview::State::None);
        QVERIFY(preview.reason.endsWith(u"Printing it may work all the same."_s));
        QVERIFY(preview.reasonTellsSo);
        QCOMPARE(preview.counts, u"Sheets: could not be counted"_s);
    }

    void countingCanBeCanceled()
    {
        useFilter("sleep 300\n");
        PrintTask &task = m_scene->open(request({{kA4}}));
        task.print();
        QCOMPARE(task.phase(), Phase::Printing);
        QTest::qWait(100);
        task.cancel();
        QCOMPARE(task.phase(), Phase::Ready);
        QCOMPARE(task.outcome().kind, JobOutcome::Kind::Canceled);
        QCOMPARE(m_scene->face.outcomes.size(), 1);
        QVERIFY(!QFile::exists(task.output()));
        QVERIFY(task.canPrint());
    }

    void anInterruptionEndsTheCounting()
    {
        useFilter("sleep 300\n");
        PrintTask &task = m_scene->open(request({{kA4}}));
        task.print();
        QTest::qWait(100);
        task.interrupt(PrintTask::OnInterrupt::LeaveJob);
        QCOMPARE(task.phase(), Phase::Ended);
        QVERIFY(!QFile::exists(task.output()));
    }

    // What is set while the sheets are counted belongs to the next job.
    void theJobIsThatOfTheMomentOfPrint()
    {
        PrintTask &task = m_scene->open(request({{kA4, kA4, kA4}}));
        task.print();
        task.settings().setPageRanges(u"9"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!m_scene->face.outcomes.isEmpty(), kSheetsPatience);
        QCOMPARE(m_scene->face.problems(), QStringList());
        QCOMPARE(m_scene->face.summaries.constFirst().at(1).value, u"3 pages = 3 sheets"_s);
        QCOMPARE(task.phase(), Phase::Ended);
    }

    // A program that only the counting needs is no reason not to print.
    void whatCannotBeCountedIsPrinted()
    {
        useFilter(
            "case \" $* \" in *' -m application/vnd.cups-pdf '*) exit 1 ;; esac; echo data\n");
        PrintTask &task = m_scene->open(request({{kA4}}));
        task.print();
        QTRY_VERIFY_WITH_TIMEOUT(!m_scene->face.outcomes.isEmpty(), kSheetsPatience);
        QCOMPARE(m_scene->face.problems(), QStringList());
        QCOMPARE(m_scene->face.summaries.constFirst().at(1).value, u"could not be counted"_s);
        QCOMPARE(task.outcome().kind, JobOutcome::Kind::Printed);
    }
};

QTEST_MAIN(TaskSheetsTest)

#include "task_sheets_test.moc"
