#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTest>

#include "dialog/job/CupsFilter.h"
#include "dialog/job/FileJob.h"
#include "platform/printcore/Ppd.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

namespace {

int masksSet = 0;

} // namespace

// In the place of the system's: whoever sets the mask in this program is counted.
extern "C" mode_t umask(mode_t mask) noexcept
{
    ++masksSet;
    return static_cast<mode_t>(::syscall(SYS_umask, mask));
}

namespace {

constexpr char kGood[] = "echo printed\n";

// What became of one job: empty when it was printed.
QString printed(const FakeFilter &filter, const JobTicket &ticket, const QString &output,
                const QString &ppd = {})
{
    FileJob job({{filter.document()}, ticket, ppd.isNull() ? filter.ppdPath() : ppd, output});
    JobOutcome told;
    QObject::connect(&job, &Job::finished, [&](const JobOutcome &outcome) { told = outcome; });
    job.start();
    const JobOutcome outcome = job.wait();
    if (outcome != told)
        return u"wait() and finished() disagree: "_s + told.text;
    return outcome.kind == Kind::Printed ? QString() : outcome.text;
}

QString printed(const FakeFilter &filter)
{
    return printed(filter, {u"Title"_s, 1, {}}, filter.output());
}

struct MaskRow
{
    const char *name;
    mode_t mask;
    mode_t result;
};
constexpr MaskRow kMasks[] = {
    {"usual", 0022, 0644},
    {"shared with a group", 0002, 0664},
    {"private", 0077, 0600},
};

// Restores the process's mask for new files.
class Mask
{
public:
    explicit Mask(mode_t mask) : m_former(::umask(mask)) {}
    ~Mask() { ::umask(m_former); }

private:
    mode_t m_former;
};

mode_t permissions(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace

/// Where the result goes, and what the filter chain is told.
class FileJobTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theResultStandsUnderItsName()
    {
        const FakeFilter filter(kGood);
        QCOMPARE(printed(filter), QString());
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("printed\n"));
        QVERIFY(filter.leftOvers().isEmpty());
    }

    void aFileThatStandsThereAtTheBeginningIsReplaced()
    {
        const FakeFilter filter("echo printed\n");
        QFile existing(filter.output());
        QVERIFY(existing.open(QIODevice::WriteOnly));
        existing.write("former\n");
        existing.close();
        QCOMPARE(printed(filter), QString());
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("printed\n"));
    }

    void aFileThatHasAppearedMeanwhileIsNot()
    {
        const FakeFilter filter("echo theirs > $DIR/out.ps; echo printed\n");
        const QString problem = printed(filter);
        QVERIFY2(problem.contains(u"out.ps was written by another program"_s), qPrintable(problem));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("theirs\n"));
        QVERIFY(filter.leftOvers().isEmpty());
    }

    void theLogHoldsNoSecrets()
    {
        const FakeFilter filter("echo \"DEBUG: told $*\" >&2; echo printed\n");
        QLoggingCategory::setFilterRules(u"corvana.dialog.job=true"_s);
        static QStringList said;
        said.clear();
        const auto former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { said += text; });
        const QString problem =
            printed(filter, {u"Title"_s, 1, {{u"Pin"_s, u"Custom.geheim 99"_s}}, {u"geheim 99"_s}},
                    filter.output());
        qInstallMessageHandler(former);
        QLoggingCategory::setFilterRules({});
        QCOMPARE(problem, QString());
        const QString all = said.join(u'\n');
        QVERIFY2(all.contains(u"Pin="_s) && all.contains(u"DEBUG: told"_s), qPrintable(all));
        QVERIFY2(!all.contains(u"geheim"_s), qPrintable(all));
    }

    // It would wait for one that is silent, and take its options for the job's.
    void theChainAsksNoPrintServer()
    {
        const Variable server("CUPS_SERVER", "127.0.0.1:1");
        const FakeFilter filter("echo \"$CUPS_SERVER\" > $DIR/server; echo ok\n");
        QCOMPARE(printed(filter), QString());
        QCOMPARE(filter.content(u"server"_s), QByteArray("/dev/null\n"));
    }

    void theChainReadsNothingOfTheUsersHome()
    {
        const FakeFilter filter("echo \"$HOME\" > $DIR/home; echo ok\n");
        QCOMPARE(printed(filter), QString());
        QCOMPARE(filter.content(u"home"_s), QByteArray("/dev/null\n"));
    }

    void theChainIsToldTheWholeJob()
    {
        const FakeFilter filter("printf '%s\\n' \"$@\" > $DIR/arguments; echo ok\n");
        const JobTicket ticket{
            u"Bericht 日報"_s, 3, {{u"Tray"_s, u"Lower"_s}, {u"PageSize"_s, u"Custom.300x400"_s}}};
        QCOMPARE(printed(filter, ticket, filter.output()), QString());
        const QStringList told =
            QString::fromUtf8(filter.content(u"arguments"_s)).split(u'\n', Qt::SkipEmptyParts);
        const QStringList expected{u"-p"_s,
                                   told.value(1),
                                   u"-i"_s,
                                   u"application/postscript"_s,
                                   u"-m"_s,
                                   u"printer/foo"_s,
                                   u"-e"_s,
                                   u"-t"_s,
                                   u"Bericht 日報"_s,
                                   u"-n"_s,
                                   u"3"_s,
                                   u"-o"_s,
                                   u"Tray=Lower"_s,
                                   u"-o"_s,
                                   u"PageSize=Custom.300x400"_s,
                                   filter.document().path};
        QCOMPARE(told, expected);
        QVERIFY(told.value(1).endsWith(u"/printer.ppd"_s));
    }

    void theChainReadsThePpdThatWasLookedAt()
    {
        const FakeFilter filter("[ \"$2\" = \"$DIR/printer.ppd\" ] && exit 1; cat \"$2\"\n");
        QCOMPARE(printed(filter), QString());
        QCOMPARE(filter.content(u"out.ps"_s), filter.content(u"printer.ppd"_s));
    }

    void aValueStaysOneValueWhateverItHolds_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("plain") << u"Thick"_s;
        QTest::newRow("two words") << u"two words"_s;
        QTest::newRow("what looks like another option") << u"x Duplex=DuplexTumble"_s;
        QTest::newRow("a tab") << u"a\tb"_s;
        QTest::newRow("double quotes") << u"say \"hello\" now"_s;
        QTest::newRow("single quotes") << u"it's"_s;
        QTest::newRow("a quote in front") << u"'quoted"_s;
        QTest::newRow("a backslash") << u"a\\b"_s;
        QTest::newRow("a backslash at the end") << u"two words\\"_s;
        QTest::newRow("a brace in front") << u"{a=b c=d}"_s;
        QTest::newRow("nothing") << QString(u""_s);
        QTest::newRow("another script") << u"日報 二"_s;
    }
    void aValueStaysOneValueWhateverItHolds()
    {
        QFETCH(QString, value);
        const FakeFilter filter("while [ $# -gt 0 ]; do [ \"$1\" = -o ] && printf %s \"$2\" > "
                                "$DIR/option; shift; done; echo ok\n");
        QCOMPARE(printed(filter, {u"Title"_s, 1, {{u"Mark"_s, value}}}, filter.output()),
                 QString());
        cups_option_t *options = nullptr;
        const int count = cupsParseOptions(filter.content(u"option"_s).constData(), 0, &options);
        const QString read = QString::fromUtf8(cupsGetOption("Mark", count, options));
        cupsFreeOptions(count, options);
        QCOMPARE(count, 1);
        QCOMPARE(read, value);
    }

    void finishedNeverComesBeforeStartReturns_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::newRow("a job that prints") << QString();
        QTest::newRow("a job that fails at once") << u"/nowhere/printer.ppd"_s;
    }
    void finishedNeverComesBeforeStartReturns()
    {
        QFETCH(QString, ppd);
        const FakeFilter filter(kGood);
        FileJobRequest request = filter.request();
        if (!ppd.isNull())
            request.ppdPath = ppd;
        FileJob job(request);
        QSignalSpy finished(&job, &Job::finished);
        job.start();
        QCOMPARE(finished.size(), 0);
        QTRY_COMPARE(finished.size(), 1);
        QTest::qWait(20);
        QCOMPARE(finished.size(), 1); // and once
    }

    void anEarlierResultIsReplaced()
    {
        const FakeFilter filter(kGood);
        writeFile(filter.output(), "yesterday's");
        QCOMPARE(printed(filter), QString());
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("printed\n"));
    }

    void theEarlierResultStandsUntilTheNewOneIsComplete()
    {
        const FakeFilter filter("echo half; touch $DIR/started; "
                                "while [ ! -e $DIR/go ]; do sleep 0.02; done; echo whole\n");
        writeFile(filter.output(), "yesterday's");
        FileJob job(filter.request());
        QSignalSpy finished(&job, &Job::finished);
        job.start();
        QVERIFY(filter.waitForFile(u"started"_s));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
        QCOMPARE(finished.size(), 0);
        writeFile(filter.path(u"go"_s), "");
        QCOMPARE(job.wait().kind, Kind::Printed);
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("half\nwhole\n"));
    }

    void theResultHasThePermissionsOfTheUsersOtherFiles_data() { addRows(kMasks); }
    void theResultHasThePermissionsOfTheUsersOtherFiles()
    {
        const auto &[name, mask, result] = currentRow(kMasks);
        const FakeFilter filter(kGood);
        const Mask userMask(mask);
        masksSet = 0;
        QCOMPARE(printed(filter), QString());
        QCOMPARE(masksSet, 0); // another thread may make a file at any moment
        QCOMPARE(permissions(filter.output()), result);
        const Mask unchanged(mask);
        QCOMPARE(::umask(mask), mask);
    }

    void aRelativeNameIsThatOfTheCurrentFolder()
    {
        const FakeFilter filter(kGood);
        const QString former = QDir::currentPath();
        QVERIFY(QDir::setCurrent(QFileInfo(filter.output()).path()));
        const QString problem = printed(filter, {}, u"here.ps"_s);
        QDir::setCurrent(former);
        QCOMPARE(problem, QString());
        QCOMPARE(filter.content(u"here.ps"_s), QByteArray("printed\n"));
    }

    void anOutputThatCannotBeWrittenIsNamed_data()
    {
        QTest::addColumn<QString>("output");
        QTest::newRow("missing folder") << u"missing/out.ps"_s;
        QTest::newRow("a file in place of the folder") << u"printer.ppd/out.ps"_s;
        QTest::newRow("a folder") << u"."_s;
        QTest::newRow("a folder that nobody can write into") << u"/proc/out.ps"_s;
        QTest::newRow("a name that is too long") << QString(300, u'x');
        QTest::newRow("a pipe") << u"pipe"_s;
        QTest::newRow("a link to a device") << u"device"_s;
        QTest::newRow("the document itself") << u"document.txt"_s;
        QTest::newRow("a link to the document") << u"link"_s;
    }
    void anOutputThatCannotBeWrittenIsNamed()
    {
        QFETCH(QString, output);
        const FakeFilter filter("touch $DIR/ran; echo printed\n");
        QCOMPARE(::mkfifo(QFile::encodeName(filter.path(u"pipe"_s)).constData(), 0600), 0);
        QVERIFY(QFile::link(u"/dev/null"_s, filter.path(u"device"_s)));
        QVERIFY(QFile::link(filter.document().path, filter.path(u"link"_s)));
        const QString path = output.startsWith(u'/') ? output : filter.path(output);
        const QString problem = printed(filter, {}, path);
        QVERIFY2(problem.contains(path), qPrintable(problem));
        QVERIFY(!QFileInfo::exists(filter.path(u"ran"_s)));
        QCOMPARE(filter.content(u"document.txt"_s), QByteArray("a document\n"));
        QVERIFY(!QFileInfo(filter.path(u"pipe"_s)).isFile());
        QVERIFY(QFileInfo(filter.path(u"device"_s)).isSymLink());
        QVERIFY(filter.leftOvers().isEmpty());
    }

    void aPpdThatHasVanishedIsNamed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("removed") << u"removed.ppd"_s;
        QTest::newRow("a broken link") << u"broken.ppd"_s;
    }
    void aPpdThatHasVanishedIsNamed()
    {
        QFETCH(QString, name);
        const FakeFilter filter("touch $DIR/ran; echo printed\n");
        QVERIFY(QFile::link(u"/nowhere/at/all"_s, filter.path(u"broken.ppd"_s)));
        writeFile(filter.output(), "yesterday's");
        const QString problem = printed(filter, {}, filter.output(), filter.path(name));
        QVERIFY2(problem.contains(filter.path(name)), qPrintable(problem));
        QVERIFY(!QFileInfo::exists(filter.path(u"ran"_s)));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
    }

    void aFilterProgramThatCannotRunIsNamed_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::newRow("missing") << QByteArray("/nowhere/cupsfilter");
        QTest::newRow("no program") << QByteArray("/etc/passwd");
    }
    void aFilterProgramThatCannotRunIsNamed()
    {
        QFETCH(QByteArray, program);
        const FakeFilter filter(kGood); // gives the variable its former value back
        qputenv("CORVANA_PRINT_CUPSFILTER", program);
        const QString problem = printed(filter);
        QVERIFY2(problem.contains(QString::fromUtf8(program)), qPrintable(problem));
        QVERIFY2(problem.contains(u"CORVANA_PRINT_CUPSFILTER"_s), qPrintable(problem));
    }

    void aProgramThatTheSystemCannotStartIsNamed()
    {
        const FakeFilter filter(kGood);
        writeFile(filter.path(u"filter"_s), "#!/nowhere/interpreter\n");
        writeFile(filter.output(), "yesterday's");
        const QString problem = printed(filter);
        QVERIFY2(problem.contains(filter.path(u"filter"_s)), qPrintable(problem));
        QCOMPARE(filter.content(u"out.ps"_s), QByteArray("yesterday's"));
        QVERIFY(filter.leftOvers().isEmpty());
    }

    void theProgramIsFoundWhereUsersPathsDoNotLead()
    {
        const QByteArray path = qgetenv("PATH");
        const QByteArray named = qgetenv("CORVANA_PRINT_CUPSFILTER");
        qunsetenv("CORVANA_PRINT_CUPSFILTER");
        qputenv("PATH", "/nowhere");
        QString error;
        const QString found = findCupsFilter(&error);
        qputenv("PATH", path);
        if (!named.isNull())
            qputenv("CORVANA_PRINT_CUPSFILTER", named);
        QVERIFY2(found.endsWith(u"sbin/cupsfilter"_s), qPrintable(found + error));
    }
};

QTEST_GUILESS_MAIN(FileJobTest)

#include "file_job_test.moc"
