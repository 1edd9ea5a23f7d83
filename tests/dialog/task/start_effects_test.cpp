#include <QTest>

#include "dialog/task/PassedOn.h"
#include "tests/dialog/task/StartValuesScene.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Shape
{
    const char *name;
    const char *format;
    const char *option;
    bool isTaken;
};
constexpr Shape kShapes[] = {
    {"size of a picture", "image/png", "scaling=50", true},
    {"size of a picture, of a PDF", "application/pdf", "scaling=50", false},
    {"in other letters", "application/pdf", "Scaling=50", false},
    {"natural size", "application/pdf", "natural-scaling=50", false},
    {"pixels per inch of a text", "text/plain", "ppi=300", false},
    {"pixels per inch", "image/jpeg", "ppi=300", true},
    {"position", "application/postscript", "position=top", false},
    {"characters of a picture", "image/png", "cpi=12", false},
    {"characters of a text", "text/plain", "cpi=12", true},
    {"lines of a PDF", "application/pdf", "lpi=8", false},
    {"columns of a PDF", "application/pdf", "columns=2", false},
    {"long lines of a picture", "image/png", "wrap=false", false},
    {"headers of a PDF", "application/pdf", "prettyprint=true", false},
    {"a margin of a page that is perhaps scaled", "application/pdf", "page-left=36", true},
    {"what any page follows", "application/pdf", "number-up=2", true},
};

} // namespace

/// What is asked for where a job starts, and is done to none of its documents.
class StartEffectsTest : public StartValuesScene
{
    Q_OBJECT

private Q_SLOTS:
    void whatNoDocumentFollowsIsRefusedOrLeftOut_data() { addRows(kShapes); }
    void whatNoDocumentFollowsIsRefusedOrLeftOut()
    {
        const Shape &row = currentRow(kShapes);
        m_request.documents = {{u"/a"_s, QString::fromUtf8(row.format), u"a\n.doc"_s}};
        for (const By by : {By::Queue, By::UserQueues, By::Options}) {
            m_settings = {};
            m_fetched.defaults.clear();
            setUserOptions({});
            m_request.options.clear();
            say(by, QString::fromUtf8(row.option));
            const StartOutcome outcome = start();
            const QStringList said = by == By::Options ? outcome.unset : outcome.ignored;
            QCOMPARE(said.isEmpty(), row.isTaken);
            QCOMPARE(m_settings.attributes().isEmpty(), !row.isTaken);
            if (!row.isTaken)
                QVERIFY2(said.constFirst().contains(QString::fromUtf8(row.option)) &&
                             said.constFirst().contains(u"“a<U+000A>.doc”"_s),
                         qPrintable(said.constFirst()));
            QVERIFY(by == By::Options || outcome.unset.isEmpty());
        }
    }

    void oneDocumentThatFollowsIsEnough()
    {
        m_request.documents = {{u"/a"_s, u"application/pdf"_s, u"a.pdf"_s},
                               {u"/b"_s, u"text/plain"_s, u"b.txt"_s}};
        say(By::Options, u"cpi=12"_s);
        QVERIFY(start().unset.isEmpty());
        QCOMPARE(attribute(u"cpi"_s), u"12"_s);
    }

    // It is the printer's, whatever CUPS has under the same name.
    void anOptionOfThePrinterIsNoAttribute()
    {
        m_fetched.ppd = ppdOfFile(
            writeFile(m_home->filePath(u"f.ppd"_s),
                      PpdBuilder()
                          .option("position", "Staple", "top", {{"top", "Top"}, {"left", "Left"}})
                          .text()));
        m_request.documents = {{u"/a"_s, u"application/pdf"_s, u"a.pdf"_s}};
        say(By::Options, u"position=left"_s);
        QVERIFY(start().unset.isEmpty());
        QCOMPARE(m_printer->session->markedChoice(u"position"_s), u"left"_s);
    }

    // What is passed on as it is

    void aRawQueueTakesOnlyWhatIsDoneToTheJob_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("isTaken");
        for (const char *option : {"copies=3", "job-priority=70", "job-hold-until=indefinite",
                                   "raw", "number-up=1", "job-sheets=none"})
            QTest::newRow(option) << QString::fromLatin1(option) << true;
        for (const char *option :
             {"page-ranges=1-2", "number-up=2", "sides=two-sided-long-edge", "landscape",
              "print-scaling=fit", "media=A4", "job-sheets=standard", "PageSize=A4"})
            QTest::newRow(option) << QString::fromLatin1(option) << false;
    }
    void aRawQueueTakesOnlyWhatIsDoneToTheJob()
    {
        QFETCH(QString, option);
        QFETCH(bool, isTaken);
        PrinterCapabilities raw;
        raw.passesFilesOn = true;
        m_fetched.capabilities = std::make_shared<const PrinterCapabilities>(raw);
        say(By::Options, option);
        StartOutcome outcome = start();
        QCOMPARE(outcome.unset.isEmpty(), isTaken);
        if (!isTaken) {
            QVERIFY2(outcome.unset.constFirst().startsWith(
                         u"The queue “office” passes files on as they are: "_s),
                     qPrintable(outcome.unset.constFirst()));
            QVERIFY(outcome.unset.constFirst().contains(option.section(u'=', 0, 0)));
        }
        // What was set long ago stops nothing, and is said.
        say(By::Options, {});
        say(By::UserQueues, option);
        outcome = start();
        QVERIFY(outcome.unset.isEmpty());
        QCOMPARE(outcome.ignored.isEmpty(), isTaken);
    }

    void rawIsTakenOnAnyQueueAndThenNothingElse()
    {
        say(By::Options, u"raw copies=2"_s);
        QVERIFY(start().unset.isEmpty());
        QVERIFY(passesFilesOn(*m_printer, m_settings.attributes()));
        QVERIFY(!passesFilesOn(*m_printer));
        const JobTicket ticket = ticketOfPassedOn(m_settings.attributes(), u"Job"_s, 2);
        QVERIFY(ticket.options.isEmpty());
        m_settings = {};
        say(By::Options, u"raw Media=Card"_s);
        const StartOutcome outcome = start();
        QCOMPARE(outcome.unset.size(), 1);
        QVERIFY2(outcome.unset.constFirst().contains(u"Media=Card"_s),
                 qPrintable(outcome.unset.constFirst()));
    }

    void onlyAQueueHasFiltersToGoPast()
    {
        m_fetched.printer.origin = PrinterOrigin::File;
        say(By::Options, u"raw"_s);
        QCOMPARE(start().unset.size(), 1);
        QVERIFY(!passesFilesOn(*m_printer, m_settings.attributes()));
    }
};

QTEST_MAIN(StartEffectsTest)
#include "start_effects_test.moc"
