#include <QDeadlineTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include "tests/dialog/job/DocumentsScene.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

namespace {

struct Stage
{
    const char *name;
    const char *stage;
};
constexpr Stage kStageRows[] = {
    {"the first document", "one.txt"}, {"its layout", "0.pdf"},   {"another document", "two.txt"},
    {"the layout of that", "2.pdf"},   {"uniting them", "unite"}, {"the result", "whole.pdf"},
};

struct Failure
{
    const char *name;
    const char *order;
    const char *told;
};
constexpr Failure kFailures[] = {
    {"the first document fails", "fail-one.txt", "one.txt is upside down"},
    {"the first document crashes", "crash-one.txt", "crashed"},
    {"the first document yields nothing", "nothing-one.txt", "nothing came out"},
    {"another document fails", "fail-two.txt", "two.txt is upside down"},
    {"another document crashes", "crash-two.txt", "crashed"},
    {"another document yields nothing", "nothing-two.txt", "nothing came out"},
    {"a layout fails", "fail-2.pdf", "2.pdf is upside down"},
    {"a layout crashes", "crash-2.pdf", "crashed"},
    {"a layout yields nothing", "nothing-2.pdf", "nothing came out"},
    {"uniting fails", "fail-unite", "unite is upside down"},
    {"uniting crashes", "crash-unite", "crashed"},
    {"uniting yields nothing", "nothing-unite", "nothing came out"},
    {"uniting yields a part only", "half-unite", "whole.pdf is incomplete"},
    {"the result fails", "fail-whole.pdf", "whole.pdf is upside down"},
    {"the result crashes", "crash-whole.pdf", "crashed"},
    {"the result yields nothing", "nothing-whole.pdf", "nothing came out"},
};

struct FullDisk
{
    const char *name;
    bool several; ///< documents: the first of them finds no place
    bool endless; ///< what is written
};
constexpr FullDisk kFullDisks[] = {
    {"the result", false, false},
    {"a document of several", true, false},
    {"a result without end", false, true},
};

// Whether a process of ours, by its number, has ended and nobody has asked yet how.
bool hasEnded(const QByteArray &pid)
{
    QFile status(u"/proc/"_s + QString::fromLatin1(pid) + u"/stat"_s);
    if (pid.isEmpty() || !status.open(QIODevice::ReadOnly))
        return false;
    const QByteArray state = status.readAll();
    return state.mid(state.lastIndexOf(')') + 2, 1) == "Z";
}

} // namespace

/// Several documents as one job, of which a step goes wrong, is canceled or finds no place: what is
/// said, and what is left.
class FileJobTroubleTest : public QObject, private DocumentsScene
{
    Q_OBJECT

private:
    static void verifyCanceled(const QSignalSpy &finished)
    {
        const auto outcome = finished.at(0).at(0).value<JobOutcome>();
        QCOMPARE(outcome.kind, Kind::Canceled);
        QCOMPARE(outcome.text, u"Printing was canceled."_s);
    }

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void aFailureOfAnyStepLeavesNothing_data() { addRows(kFailures); }
    void aFailureOfAnyStepLeavesNothing()
    {
        const Failure &failure = currentRow(kFailures);
        const QString order = QString::fromLatin1(failure.order);
        const QString told = QString::fromLatin1(failure.told);
        make(order);
        const QString problem = printed(documents());
        QVERIFY2(problem.contains(told), qPrintable(problem));
        QCOMPARE(m_leftAtTheEnd, QStringList());
        QVERIFY(lines(u"stages"_s).constLast() == order.section(u'-', 1)); // and no step after it
        verifyNothingIsLeft();
    }

    void aMissingProgramToUniteIsNamed()
    {
        QVERIFY(QFile::remove(path(u"qpdf"_s)));
        {
            // The shell of the filter has to be found, qpdf of the system not.
            const Variable nothing("PATH", QFile::encodeName(path(QString())));
            make(u"nothing-whole.pdf"_s);
            const FakeFilter plain("exec /bin/echo '%%EOF'\n");
            const QString problem = printed(documents());
            QVERIFY2(problem.startsWith(u"qpdf cannot be started"_s), qPrintable(problem));
        }
        QVERIFY(QFile::copy(path(u"filter"_s), path(u"qpdf"_s)));
        verifyNothingIsLeft();
    }

    void aJobThatIsCanceledInAnyStepLeavesNothing_data() { addRows(kStageRows); }
    void aJobThatIsCanceledInAnyStepLeavesNothing()
    {
        const QString stage = QString::fromLatin1(currentRow(kStageRows).stage);
        make(u"hold-"_s + stage);
        {
            FileJob job(request(documents()));
            QSignalSpy finished(&job, &Job::finished);
            job.start();
            QVERIFY(m_filter->waitForFile(u"held"_s));
            job.cancel();
            job.cancel(); // impatience changes nothing
            QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
            verifyCanceled(finished);
            job.cancel();
            QCOMPARE(finished.size(), 1);
        }
        QVERIFY(m_filter->waitForEndOf(u"pid"_s));
        QCOMPARE(lines(u"stages"_s).constLast(), stage);
        verifyNothingIsLeft();
    }

    void aJobThatDiesInAnyStepLeavesNothing_data() { addRows(kStageRows); }
    void aJobThatDiesInAnyStepLeavesNothing()
    {
        const QString stage = QString::fromLatin1(currentRow(kStageRows).stage);
        make(u"hold-"_s + stage);
        {
            FileJob job(request(documents()));
            job.start();
            QVERIFY(m_filter->waitForFile(u"held"_s));
        }
        QVERIFY(m_filter->waitForEndOf(u"pid"_s));
        verifyNothingIsLeft();
    }

    // The step has ended, and the job does not know it yet.
    void aJobThatIsCanceledBeforeItsLastStepWasSeenToEndIsCanceled()
    {
        {
            FileJob job(request({document(u"one.txt"_s)}));
            QSignalSpy finished(&job, &Job::finished);
            job.start();
            // Without the event loop, so that nothing is delivered.
            const QDeadlineTimer patience(10000);
            while (!hasEnded(m_filter->content(u"pid"_s).trimmed()) && !patience.hasExpired()) {
            }
            QVERIFY(!patience.hasExpired());
            job.cancel();
            QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
            verifyCanceled(finished);
        }
        verifyNothingIsLeft();
    }

    void aResultThatHasItsNameStaysPrinted()
    {
        FileJob job(request({document(u"one.txt"_s)}));
        QSignalSpy finished(&job, &Job::finished);
        job.start();
        // The result takes its name one turn of the event loop before that is told.
        while (m_filter->content(u"out.ps"_s) == "yesterday's") {
            QCOMPARE(finished.size(), 0);
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QCOMPARE(finished.size(), 0);
        job.cancel();
        job.cancel();
        QVERIFY(!job.isCanceled());
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(job.wait().kind, Kind::Printed);
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n%%EOF\n"));
        QCOMPARE(m_filter->leftOvers(), QStringList());
    }

    void aFilterThatOutlivesItsCanceledChainIsEnded()
    {
        m_filter.reset();
        m_filter = std::make_unique<FakeFilter>(
            "(trap '' TERM; while :; do sleep 0.1; done) >/dev/null 2>&1 & echo $! > $DIR/child\n"
            "touch $DIR/held; wait\n");
        FileJob job(request({m_filter->document()}));
        QSignalSpy finished(&job, &Job::finished);
        job.start();
        QVERIFY(m_filter->waitForFile(u"held"_s));
        job.cancel();
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 10000);
        QVERIFY(m_filter->waitForEndOf(u"child"_s));
    }

    // Filters do not notice that what they write finds no place, and end well.
    void whatFindsNoPlaceOnTheDiskIsNamed_data() { addRows(kFullDisks); }
    void whatFindsNoPlaceOnTheDiskIsNamed()
    {
        const auto &[name, several, endless] = currentRow(kFullDisks);
        {
            const FakeFilter heedless(endless ? "while :; do head -c 65536 /dev/zero; done\n"
                                              : "head -c 100001 /dev/zero; exit 0\n");
            const FileSizeLimit limit(70000);
            const QString problem =
                printed(several ? documents() : QList<Document>{document(u"one.txt"_s)});
            const QString place = several ? m_temporary->path() : m_filter->output();
            QVERIFY2(problem.startsWith(place), qPrintable(problem));
            QVERIFY2(problem.endsWith(u"cannot be written: File too large"_s), qPrintable(problem));
        }
        verifyNothingIsLeft();
    }

    void aResultOfManyMegabytesIsComplete()
    {
        m_filter.reset();
        m_filter = std::make_unique<FakeFilter>("head -c 30000000 /dev/zero; echo end\n");
        QCOMPARE(printed({m_filter->document()}), QString());
        const QByteArray result = m_filter->content(u"out.ps"_s);
        QCOMPARE(result.size(), 30000004);
        QVERIFY(result.endsWith("end\n"));
    }
};

QTEST_GUILESS_MAIN(FileJobTroubleTest)

#include "file_job_trouble_test.moc"
