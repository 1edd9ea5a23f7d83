#include <QFile>
#include <QProcess>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Phase = PrintTask::Phase;

namespace {

struct SavedCase
{
    const char *name;
    QString options;
    QString pages;
    QStringList sides;
    QString line; // of the summary
};
const QList<SavedCase> kSaved{
    {"as it is",
     {},
     {},
     {u"a 1"_s, u"a 2"_s, u"a 3"_s, u"a 4"_s, u"a 5"_s},
     u"Sheets: 5 pages = 5 sheets"_s},
    {"some of its pages, two on a side",
     u"number-up=2"_s,
     u"2-4"_s,
     {u"a 2 a 3"_s, u"a 4"_s},
     u"Sheets: 3 pages = 2 sheets"_s},
    {"last page first",
     u"outputorder=reverse"_s,
     {},
     {u"a 5"_s, u"a 4"_s, u"a 3"_s, u"a 2"_s, u"a 1"_s},
     u"Sheets: 5 pages = 5 sheets"_s},
    {"a booklet",
     u"booklet=left"_s,
     {},
     {u"a 1"_s, u"a 2"_s, u"a 3"_s, u"a 4 a 5"_s},
     u"Sheets: 5 pages = 4 sheets"_s},
    {"each page twice", u"repeat=2"_s, u"5"_s, {u"a 5 a 5"_s}, u"Pages per Sheet: 2"_s},
    {"on another paper", u"media=A5"_s, u"1"_s, {u"a 1"_s}, u"Paper Size: A5"_s},
};

struct RefusedCase
{
    const char *name;
    QString option;
    QString problem; // part of it
};
const QList<RefusedCase> kRefusedByPdf{
    {"what only a queue does", u"job-hold-until=evening"_s, u"job-hold-until=evening"_s},
    {"cover sheets", u"job-sheets=standard"_s, u"job-sheets=standard"_s},
    {"both sides", u"sides=two-sided-long-edge"_s, u"one-sided"_s},
    {"copies", u"copies=2"_s, u"no copies"_s},
    {"other colors", u"print-color-mode=monochrome"_s, u"print-color-mode"_s},
};

QList<QStringList> inAnyOrder(const QStringList &sides)
{
    QList<QStringList> words;
    for (const QString &side : sides) {
        words += side.split(u' ');
        words.last().sort();
    }
    return words;
}

} // namespace

/// What is saved as PDF: the pages as a printer would get them, looked at in the file.
class TaskPdfTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's

    PrintRequest request(const QString &options)
    {
        PrintRequest request = m_scene->request(QList<Printer>());
        request.wantedPrinter = kPdfPrinterName;
        request.server = {u"127.0.0.1"_s, 9, HTTP_ENCRYPTION_IF_REQUESTED}; // nobody is there
        request.documents = {
            Document{writeFile(m_scene->filter.path(u"a.pdf"_s), numberedPdf("a", 5)),
                     u"application/pdf"_s, u"a"_s}};
        request.summary = true;
        if (!options.isEmpty())
            request.options = parseOptions({options});
        return request;
    }
    PrintTask &open(const PrintRequest &request)
    {
        PrintTask &task = m_scene->make(request);
        task.startUnattended();
        [&] { QTRY_COMPARE(task.phase(), Phase::Opened); }();
        task.bringUp();
        return task;
    }
    QByteArray saved() const
    {
        QFile file(m_scene->task->output());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

    void theFileHoldsThePagesAsTheyAreLaidOut_data() { addRows(kSaved); }
    void theFileHoldsThePagesAsTheyAreLaidOut()
    {
        const SavedCase &row = currentRow(kSaved);
        PrintTask &task = open(request(row.options));
        QVERIFY(task.savesAsPdf());
        task.settings().setPageRanges(row.pages);
        task.print();
        QVERIFY2(m_scene->reaches(Phase::Ended), qPrintable(m_scene->face.problems().join(u'\n')));
        const QByteArray data = saved();
        QVERIFY(data.startsWith("%PDF-"));
        // What lies beside each other on a sheet that is turned is read in either order.
        QCOMPARE(inAnyOrder(printedSides(data)), inAnyOrder(row.sides));
        QStringList lines;
        for (const SummaryLine &line : m_scene->face.summaries.value(0))
            lines += line.title + u": "_s + line.value;
        QVERIFY2(lines.contains(row.line), qPrintable(lines.join(u'\n')));
    }

    void nobodyIsAskedForManySheetsOfAFile()
    {
        PrintRequest many = request({});
        many.policy = policyFrom("[all]\nconfirm-sheets=1\n");
        open(many).print();
        QVERIFY2(m_scene->reaches(Phase::Ended), qPrintable(m_scene->face.problems().join(u'\n')));
        QCOMPARE(m_scene->face.confirmations.size(), 0);
        QVERIFY(saved().startsWith("%PDF-"));
    }

    void whatIsPickedIsWhatACommandLineAsksFor()
    {
        PrintTask &task = open(request({}));
        QCOMPARE(task.setAttribute(u"booklet"_s, u"left"_s), QString());
        task.setAttribute(u"number-up"_s, u"4"_s);
        task.print();
        QVERIFY(m_scene->face.problems().join(u' ').contains(u"Pages per Sheet"_s));
        task.setAttribute(u"number-up"_s, QString());
        task.print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QCOMPARE(inAnyOrder(printedSides(saved())),
                 inAnyOrder({u"a 1"_s, u"a 2"_s, u"a 3"_s, u"a 4 a 5"_s}));
    }

    // Beside each other as they are read: the sheet is turned, with its left half below.
    void theFirstPageOfABookletIsOnTheRight()
    {
        PrintTask &task = open(request(u"booklet=left"_s));
        task.settings().setPageRanges(u"1-4"_s);
        task.print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QProcess reader;
        reader.start(u"pdftotext"_s, {u"-raw"_s, u"-l"_s, u"1"_s, task.output(), u"-"_s});
        QVERIFY(reader.waitForFinished());
        QCOMPARE(reader.readAllStandardOutput().simplified(), QByteArray("a 4 a 1"));
    }

    void whatAFileDoesNotDoIsRefusedByName_data() { addRows(kRefusedByPdf); }
    void whatAFileDoesNotDoIsRefusedByName()
    {
        const RefusedCase &row = currentRow(kRefusedByPdf);
        PrintTask &task = m_scene->make(request(row.option));
        task.startUnattended();
        QTRY_COMPARE(task.phase(), Phase::Opened);
        task.print();
        const QString problems = m_scene->face.problems().join(u'\n');
        QVERIFY2(problems.contains(row.problem), qPrintable(problems));
        QVERIFY(!QFile::exists(task.output()));
    }

    void whatAsksForNothingIsTaken()
    {
        PrintTask &task = open(request(u"job-sheets=none,none job-priority=50 copies=1"_s));
        QCOMPARE(m_scene->face.message(), QString());
        QCOMPARE(task.settings().attributes(), QList<JobOption>());
    }

    void onlyWhatHasAnEffectIsOffered()
    {
        PrintTask &task = open(request({}));
        QStringList names;
        for (const OfferedAttribute &offered : task.attributes())
            names += offered.name;
        for (const auto &name : {u"number-up"_s, u"print-scaling"_s, u"orientation-requested"_s})
            QVERIFY2(names.contains(name), qPrintable(name));
        for (const auto &name : {u"job-priority"_s, u"job-sheets"_s, u"print-color-mode"_s,
                                 u"collate"_s, u"job-hold-until"_s})
            QVERIFY2(!names.contains(name), qPrintable(name));
        QCOMPARE(task.settings().attributes(), QList<JobOption>());
    }

    void theNameThatIsProposedIsThatOfAPdf()
    {
        PrintRequest asked = request({});
        asked.outputWasNamed = false;
        asked.output = m_scene->filter.path(u"letter.ps"_s);
        QCOMPARE(open(asked).output(), m_scene->filter.path(u"letter.pdf"_s));
    }

    // Somebody else's file may have come between the proposal and the job.
    void aFileIsReplacedOnlyBySomebodyWhoHasNamedIt_data()
    {
        QTest::addColumn<bool>("isNamed");
        QTest::newRow("a name that was proposed to a script") << false;
        QTest::newRow("a name of its user") << true;
    }
    void aFileIsReplacedOnlyBySomebodyWhoHasNamedIt()
    {
        QFETCH(bool, isNamed);
        const QString name = m_scene->filter.path(u"letter.pdf"_s);
        PrintRequest asked = request({});
        asked.outputWasNamed = isNamed;
        asked.output = name;
        PrintTask &task = open(asked);
        writeFile(name, "theirs");
        task.print();
        QVERIFY2(m_scene->reaches(Phase::Ended), qPrintable(m_scene->face.problems().join(u'\n')));
        QCOMPARE(m_scene->filter.content(u"letter.pdf"_s) == "theirs", !isNamed);
        QCOMPARE(m_scene->filter.content(u"letter-2.pdf"_s).startsWith("%PDF-"), !isNamed);
    }
};

QTEST_MAIN(TaskPdfTest)
#include "task_pdf_test.moc"
