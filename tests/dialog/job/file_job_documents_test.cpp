#include <csignal>
#include <cstdio>

#include <sys/resource.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/FileJob.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

namespace {

// One script for the filter chain and for the program that works on PDFs. Each call is a stage,
// named by what it reads ("one.txt", "0.pdf" for what that has become, "whole.pdf") or does
// ("count", "pick", "unite"). The test makes a file hold-STAGE, fail-STAGE or crash-STAGE to say
// what shall become of it. Every document has as many pages as the file "pages" says.
constexpr char kStages[] = R"sh(
program=${0##*/}
for last in "$@"; do :; done
stage=${last##*/}
[ "$program" = qpdf ] && stage=pick
for argument in "$@"; do
    [ "$argument" = --show-npages ] && stage=count
    [ "$argument" = --empty ] && stage=unite
done
printf '%s\n' "$@" >"$DIR/arguments-$stage"
echo "$stage" >>"$DIR/stages"
echo $$ >"$DIR/pid"
output=/dev/stdout
[ "$stage" = unite ] || [ "$stage" = pick ] && output=$last
if [ -e "$DIR/hold-$stage" ]; then
    echo half >"$output"
    touch "$DIR/held"
    sleep 300
fi
if [ -e "$DIR/fail-$stage" ]; then
    echo half >"$output"
    echo "ERROR: $stage is upside down" >&2
    exit 1
fi
[ -e "$DIR/crash-$stage" ] && kill -SEGV $$
[ -e "$DIR/nothing-$stage" ] && exit 0
[ -e "$DIR/half-$stage" ] && { echo half >"$output"; exit 0; }
case $stage in
unite)
    for part in "$@"; do [ -f "$part" ] && [ "$part" != "$last" ] && grep -v EOF "$part"; done >"$output"
    echo '%%EOF' >>"$output"
    ;;
count) cat "$DIR/pages" ;;
pick) { grep -v EOF "$3" | sed "s/\$/, pages $6/"; echo '%%EOF'; } >"$output" ;;
[0-9]*.pdf) cat "$last" ;;
whole.pdf) grep -v EOF "$last" ;;
*) printf '%s as PDF\n%%%%EOF\n' "$(cat "$last")" ;;
esac
)sh";

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

// The size that a file may have at most, for this process and those that it starts. As on a full
// disk, a write fails; other than there, without a file system of the test's own.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_former = {};
    void (*m_handler)(int) = nullptr;
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

/// Several documents as one job: what each step is told, and what is left when one goes wrong.
class FileJobDocumentsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<QTemporaryDir> m_temporary;
    QStringList m_leftAtTheEnd; // beside the output and for the time being, when it was told
    std::unique_ptr<Variable> m_path;
    std::unique_ptr<Variable> m_temporaryPath;

    QString path(const QString &name) const { return m_filter->path(name); }
    Document document(const QString &name) const
    {
        return {path(name), u"application/postscript"_s, name};
    }
    QList<Document> documents() const { return {document(u"one.txt"_s), document(u"two.txt"_s)}; }
    QStringList lines(const QString &name) const
    {
        return QString::fromUtf8(m_filter->content(name)).split(u'\n', Qt::SkipEmptyParts);
    }
    QStringList temporaryFiles() const
    {
        return QDir(m_temporary->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
    void make(const QString &name) { writeFile(path(name), ""); }
    FileJobRequest request(const QList<Document> &list, const JobTicket &ticket = {}) const
    {
        return {list, ticket, m_filter->ppdPath(), m_filter->output()};
    }
    static void verifyCanceled(const QSignalSpy &finished)
    {
        const auto outcome = finished.at(0).at(0).value<JobOutcome>();
        QCOMPARE(outcome.kind, Kind::Canceled);
        QCOMPARE(outcome.text, u"Printing was canceled."_s);
    }
    // What became of a job: empty when it was printed.
    QString printed(const QList<Document> &list, const JobTicket &ticket = {})
    {
        FileJob job(request(list, ticket));
        connect(&job, &Job::finished, this,
                [&] { m_leftAtTheEnd = m_filter->leftOvers() + temporaryFiles(); });
        job.start();
        const JobOutcome outcome = job.wait();
        return outcome.kind == Kind::Printed ? QString() : outcome.text;
    }
    // After a failure: the former file, nothing beside it, and another job that works.
    void verifyNothingIsLeft()
    {
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("yesterday's"));
        QCOMPARE(m_filter->leftOvers(), QStringList());
        QCOMPARE(temporaryFiles(), QStringList());
        const QStringList orders =
            QDir(path(QString()))
                .entryList({u"hold-*"_s, u"fail-*"_s, u"crash-*"_s, u"half-*"_s, u"nothing-*"_s});
        for (const QString &order : orders)
            QVERIFY(QFile::remove(path(order)));
        QFile::remove(path(u"held"_s));
        QCOMPARE(printed(documents()), QString());
        QCOMPARE(m_leftAtTheEnd, QStringList());
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n2 as PDF\n"));
    }
private Q_SLOTS:
    void init()
    {
        m_filter = std::make_unique<FakeFilter>(kStages);
        QVERIFY(QFile::copy(path(u"filter"_s), path(u"qpdf"_s)));
        m_path = std::make_unique<Variable>("PATH", QFile::encodeName(path(QString())) + ':' +
                                                        qgetenv("PATH"));
        m_temporary = std::make_unique<QTemporaryDir>();
        m_temporaryPath =
            std::make_unique<Variable>("TMPDIR", QFile::encodeName(m_temporary->path()));
        // What becomes of two documents cannot stand in a row.
        writeFile(m_filter->ppdPath(),
                  PpdBuilder().text() +
                      "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n");
        writeFile(path(u"pages"_s), "5\n");
        writeFile(path(u"one.txt"_s), "1");
        writeFile(path(u"two.txt"_s), "2");
        writeFile(m_filter->output(), "yesterday's");
    }
    void cleanup()
    {
        m_temporaryPath.reset();
        m_path.reset();
        m_temporary.reset();
        m_filter.reset();
    }

    void theDocumentsArePrintedInTheirOrderAsOneJob()
    {
        QCOMPARE(printed({document(u"two.txt"_s), document(u"one.txt"_s)}), QString());
        QCOMPARE(lines(u"stages"_s), (QStringList{u"two.txt"_s, u"0.pdf"_s, u"one.txt"_s,
                                                  u"2.pdf"_s, u"unite"_s, u"whole.pdf"_s}));
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("2 as PDF\n1 as PDF\n"));
        QCOMPARE(m_filter->leftOvers(), QStringList());
        QCOMPARE(temporaryFiles(), QStringList());
    }

    void oneDocumentTwiceIsPrintedTwice()
    {
        QCOMPARE(printed({document(u"one.txt"_s), document(u"one.txt"_s)}), QString());
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n1 as PDF\n"));
    }

    void eachDocumentIsLaidOutAndFilledUpByItself()
    {
        const JobTicket ticket{
            u"Title"_s,
            3,
            {{u"PageSize"_s, u"A5"_s}, {u"number-up"_s, u"2"_s}, {u"Tray"_s, u"Lower"_s}}};
        QCOMPARE(printed(documents(), ticket), QString());
        const QStringList first = lines(u"arguments-0.pdf"_s);
        QCOMPARE(first.mid(2, first.size() - 3),
                 (QStringList{u"-i"_s, u"application/pdf"_s, u"-m"_s, u"application/vnd.cups-pdf"_s,
                              u"-o"_s, u"PageSize=A5"_s, u"-o"_s, u"number-up=2"_s, u"-o"_s,
                              u"Tray=Lower"_s, u"-o"_s, u"emit-jcl=false"_s}));
        QVERIFY(first.value(1).endsWith(u"/filling.ppd"_s));
        const QStringList last = lines(u"arguments-2.pdf"_s);
        QCOMPARE(last.mid(2, last.size() - 3), first.mid(2, first.size() - 3));
        QVERIFY(last.value(1).endsWith(u"/printer.ppd"_s)); // no blank side at the end
    }

    void theWholeIsNotLaidOutOnceMore()
    {
        const JobTicket ticket{
            u"Title"_s,
            3,
            {{u"PageSize"_s, u"A5"_s}, {u"number-up"_s, u"2"_s}, {u"Tray"_s, u"Lower"_s}}};
        QCOMPARE(printed(documents(), ticket), QString());
        const QStringList whole = lines(u"arguments-whole.pdf"_s);
        QCOMPARE(whole.mid(2, whole.size() - 3),
                 (QStringList{u"-i"_s, u"application/pdf"_s, u"-m"_s, u"printer/foo"_s, u"-e"_s,
                              u"-t"_s, u"Title"_s, u"-n"_s, u"3"_s, u"-o"_s, u"PageSize=A5"_s,
                              u"-o"_s, u"number-up=1"_s, u"-o"_s, u"Tray=Lower"_s, u"-o"_s,
                              u"print-scaling=none"_s, u"-o"_s, u"outputorder=normal"_s}));
    }

    void choicesOfPagesCountInEachDocument()
    {
        QCOMPARE(printed(documents(), {u"Title"_s, 1, {{u"page-ranges"_s, u"2-3,7"_s}}}),
                 QString());
        QCOMPARE(m_filter->content(u"out.ps"_s),
                 QByteArray("1 as PDF, pages 2-3\n2 as PDF, pages 2-3\n"));
        for (const QString &stage : {u"arguments-2.pdf"_s, u"arguments-whole.pdf"_s})
            QVERIFY(!lines(stage).join(u' ').contains(u"page-ranges"_s));
    }

    void pagesThatNoDocumentHasAreSaid()
    {
        const QString problem = printed(documents(), {u"t"_s, 1, {{u"page-ranges"_s, u"6-9"_s}}});
        QVERIFY2(problem.contains(u"none of the documents"_s), qPrintable(problem));
        verifyNothingIsLeft();
    }

    void aDocumentWhosePagesNobodyCanCountIsNotGuessed_data()
    {
        QTest::addColumn<QByteArray>("count");
        QTest::newRow("no number") << QByteArray("many\n");
        QTest::newRow("none") << QByteArray("0\n");
        QTest::newRow("more than there can be") << QByteArray("2000000000\n");
        QTest::newRow("two answers") << QByteArray("5\n5\n");
        QTest::newRow("an endless one") << QByteArray(100, '1');
    }
    void aDocumentWhosePagesNobodyCanCountIsNotGuessed()
    {
        QFETCH(QByteArray, count);
        writeFile(path(u"pages"_s), count);
        const QString problem = printed(documents(), {u"t"_s, 1, {{u"page-ranges"_s, u"1"_s}}});
        QVERIFY2(problem.contains(u"could not be found out"_s), qPrintable(problem));
        verifyNothingIsLeft();
    }

    void withSeveralPagesOnASheetThePagesOfTheDocumentArePickedFirst()
    {
        const JobTicket ticket{u"t"_s, 1, {{u"number-up"_s, u"2"_s}, {u"page-ranges"_s, u"3-4"_s}}};
        QCOMPARE(printed({document(u"one.txt"_s)}, ticket), QString());
        QCOMPARE(lines(u"stages"_s),
                 (QStringList{u"one.txt"_s, u"count"_s, u"pick"_s, u"1.pdf"_s}));
        const QString told = lines(u"arguments-1.pdf"_s).join(u' ');
        QVERIFY2(told.contains(u"number-up=2"_s) && !told.contains(u"page-ranges"_s),
                 qPrintable(told));
        QVERIFY(m_filter->content(u"out.ps"_s).startsWith("1 as PDF, pages 3-4\n"));
    }

    void whatCanStandInARowDoes()
    {
        writeFile(m_filter->ppdPath(), PpdBuilder().text());
        QCOMPARE(printed(documents()), QString());
        QCOMPARE(lines(u"stages"_s), (QStringList{u"one.txt"_s, u"two.txt"_s}));
        QVERIFY(lines(u"arguments-one.txt"_s).contains(u"printer/foo"_s));
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n%%EOF\n2 as PDF\n%%EOF\n"));
    }

    void copiesOfWhatStandsInARowComeInSets_data()
    {
        QTest::addColumn<QList<JobOption>>("options");
        QTest::addColumn<QString>("copies");
        QTest::addColumn<QByteArray>("order");
        QTest::newRow("as usual") << QList<JobOption>() << u"1"_s << QByteArray("1 2 1 2 ");
        QTest::newRow("not collated")
            << QList<JobOption>{{u"collate"_s, u"false"_s}} << u"2"_s << QByteArray("1 2 ");
    }
    void copiesOfWhatStandsInARowComeInSets()
    {
        QFETCH(QList<JobOption>, options);
        QFETCH(QString, copies);
        QFETCH(QByteArray, order);
        writeFile(m_filter->ppdPath(), PpdBuilder().text());
        QCOMPARE(printed(documents(), {u"t"_s, 2, options}), QString());
        QCOMPARE(m_filter->content(u"out.ps"_s).replace("as PDF\n%%EOF\n", ""), order);
        const QStringList told = lines(u"arguments-one.txt"_s);
        QCOMPARE(told.value(told.indexOf(u"-n"_s) + 1), copies);
    }

    void eachDocumentKeepsItsFormat()
    {
        Document picture = document(u"two.txt"_s);
        picture.format = u"image/png"_s;
        QCOMPARE(printed({document(u"one.txt"_s), picture}), QString());
        QVERIFY(lines(u"arguments-one.txt"_s).contains(u"application/postscript"_s));
        QVERIFY(lines(u"arguments-two.txt"_s).contains(u"image/png"_s));
    }

    void standardInputIsADocumentLikeOthers()
    {
        writeFile(path(u"piped"_s), "%!PS from a pipe\n");
        QVERIFY(std::freopen(QFile::encodeName(path(u"piped"_s)).constData(), "r", stdin));
        QString error;
        Document piped = readStandardInput(&error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(piped.format, u"application/postscript"_s);
        QCOMPARE(piped.title, u"standard input"_s);
        QCOMPARE(printed({document(u"one.txt"_s), piped}), QString());
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("1 as PDF\n%!PS from a pipe as PDF\n"));
        QVERIFY(QFile::exists(piped.path)); // for another try
        piped.copy.reset();
        QVERIFY(!QFile::exists(piped.path));
    }

    void anEmptyStandardInputIsRefusedByItsName()
    {
        QVERIFY(std::freopen("/dev/null", "r", stdin));
        QString error;
        QVERIFY(readStandardInput(&error).path.isEmpty());
        QCOMPARE(error, u"standard input is empty."_s);
    }

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

QTEST_GUILESS_MAIN(FileJobDocumentsTest)

#include "file_job_documents_test.moc"
