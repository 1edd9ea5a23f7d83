#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <cups/cups.h>

#include "tests/e2e/LpTools.h"
#include "tests/e2e/QueueRuns.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kQueue = u"office"_s;
const QString kInstance = u"office/reports"_s;

/// Settings that are kept as an instance, where queue and user have set something themselves.
struct Kept
{
    const char *name;
    QStringList options; ///< each with -o
    /// Defaults of the queue, as lpadmin takes them.
    QStringList queueDefaults{};
    /// The user's ~/.cups/lpoptions.
    QByteArray userOptions{};
    /// What the run has to say.
    const char *saying = "office/reports";
};

const QList<Kept> kKept{
    {"nothing but the usual", {}},
    {"choices of the printer", {u"QXMediaType=Thick"_s, u"Duplex=DuplexNoTumble"_s}},
    {"values of the panels' own",
     {u"QXSleepTime=Custom.12"_s, u"QXDensityAdjustment=-3"_s, u"QXBrightness=4"_s,
      u"QXColorMatching=Normal"_s}},
    {"black and white", {u"QXMonoColor=mono"_s}},
    {"black and white, by the name of all printers", {u"print-color-mode=monochrome"_s}},
    {"a paper of its own", {u"media=Custom.100x200mm"_s}},
    {"a layout", {u"number-up=2"_s, u"page-border=single"_s, u"outputorder=reverse"_s}},
    {"one page on a side, where the queue puts two",
     {u"number-up=1"_s},
     {u"number-up-default=2"_s}},
    {"one-sided, where the queue prints two-sided",
     {u"sides=one-sided"_s},
     {u"sides-default=two-sided-long-edge"_s}},
    {"the user's own options for the queue do not count",
     {u"number-up=1"_s, u"media=A4"_s, u"sides=one-sided"_s, u"QXMediaType=Plain"_s},
     {},
     "Dest office number-up=4 media=A5 sides=two-sided-long-edge QXMediaType=Thick copies=2 "
     "page-ranges=1 mirror=true\n"},
    {"no pages and no copies are kept", {u"page-ranges=1"_s, u"copies=3"_s}},
    {"a booklet is left out and said", {u"booklet=left"_s}, {}, {}, "Booklet"},
};

QStringList asArguments(const QStringList &options)
{
    QStringList arguments;
    for (const QString &option : options)
        arguments += {u"-o"_s, option};
    return arguments;
}

} // namespace

/// An instance that was written here, in the hands of everybody else: listed by CUPS' own tools,
/// read by libcups, and printed by lp as this program prints with the same settings.
class QueueInstancesTest : public QueueRuns
{
    Q_OBJECT

private:
    LpTools tools() const { return {*m_cups, *m_runner}; }
    QByteArray tool(const QString &name, const QStringList &arguments) const
    {
        return tools().run(name, arguments);
    }
    QByteArray lastStream() const { return tools().lastStream(kQueue); }
    QByteArray printedByLp(const QStringList &arguments) const
    {
        return tools().printedByLp(kQueue, arguments);
    }
    QByteArray printedHere(const QStringList &arguments) const
    {
        return tools().printedHere(kQueue, arguments);
    }
    RunEnd save(const QStringList &options = {}, const QString &name = u"Reports"_s) const
    {
        return m_runner->run(
            QStringList{u"--no-dialog"_s, u"-d"_s, kQueue, u"--save-instance"_s, name} +
            asArguments(options));
    }
    QByteArray optionsOf(const QByteArray &instance) const { return tools().optionsOf(instance); }
    QByteArray userOptions() const { return tools().userOptions(); }

private Q_SLOTS:
    void lpPrintsAnInstanceAsTheSettingsArePrintedHere_data() { addRows(kKept); }
    void lpPrintsAnInstanceAsTheSettingsArePrintedHere()
    {
        const Kept &row = currentRow(kKept);
        QueueSettings settings;
        settings.options = row.queueDefaults;
        m_cups->addQueue(kQueue, kPpd, settings);
        if (!row.userOptions.isEmpty())
            m_runner->setUserOptions(row.userOptions);
        const RunEnd saved = save(row.options);
        QVERIFY2(saved.status == 0, saved.text().constData());
        QVERIFY2(saved.err.contains(QString::fromUtf8(row.saying)), saved.text().constData());
        QVERIFY(m_cups->jobs().isEmpty());
        QVERIFY(userOptions().startsWith(row.userOptions + "Dest office/reports "));
        // What sets up the device is there where it was asked for.
        QCOMPARE(userOptions().contains("QXSleepTime="),
                 row.options.contains(u"QXSleepTime=Custom.12"_s));

        const QByteArray theirs = printedByLp({u"-d"_s, kInstance});
        QVERIFY(!theirs.isEmpty());
        QCOMPARE(printedSides(printedHere({u"-d"_s, kInstance})), printedSides(theirs));
        QCOMPARE(lastStream() == theirs, true);
        // Pages, copies and a booklet are of one job.
        QStringList options = row.options;
        options.removeIf([](const QString &option) {
            return option.startsWith(u"page-ranges"_s) || option.startsWith(u"copies"_s) ||
                   option.startsWith(u"booklet"_s);
        });
        if (row.userOptions.isEmpty() && options.size() == row.options.size()) {
            const QByteArray ours =
                printedHere(QStringList{u"-d"_s, kQueue} + asArguments(options));
            QCOMPARE(printedFeatures(ours), printedFeatures(theirs));
            QCOMPARE(ours == theirs, true);
        }
    }

    void toolsAndLibrariesOfCupsKnowTheInstance()
    {
        m_cups->addQueue(kQueue, kPpd);
        m_runner->setUserOptions("# by hand\nDest office number-up=4 copies=2 page-ranges=1 "
                                 "sides=two-sided-long-edge media=A5\nDest gone x=1\n");
        const RunEnd saved =
            save({u"QXMediaType=Thick"_s, u"number-up=1"_s, u"sides=one-sided"_s, u"media=A4"_s});
        QVERIFY2(saved.status == 0, saved.text().constData());
        QVERIFY(tool(u"lpstat"_s, {u"-a"_s}).contains("office/reports accepting"));
        const QByteArray listed = tool(u"lpoptions"_s, {u"-p"_s, kInstance});
        for (const char *option : {" QXMediaType=Thick ", "number-up=1 ", "copies=1 "})
            QVERIFY2(listed.contains(option), listed.constData());
        QVERIFY(tool(u"lpoptions"_s, {u"-p"_s, kInstance, u"-l"_s}).contains("QXMediaType/"));
        QVERIFY(tool(u"lpoptions"_s, {u"-p"_s, kQueue}).contains("number-up=4"));
        // As programs with a dialog of their own ask.
        QProcess reader;
        reader.setProcessEnvironment(tools().environment());
        reader.start(QStringLiteral(CORVANA_DESTS_READER), {kQueue, u"reports"_s});
        QVERIFY(reader.waitForFinished());
        const QByteArray read = reader.readAllStandardOutput();
        for (const char *line : {"named office/reports QXMediaType=Thick number-up=1 copies=1 "
                                 "page-ranges=1- sides=one-sided "
                                 "media=A4",
                                 "listed office/reports QXMediaType=Thick number-up=1 copies=1 "
                                 "page-ranges=1- sides=one-sided "
                                 "media=A4",
                                 "listed office/- QXMediaType= number-up=4 copies=2 page-ranges=1 "
                                 "sides=two-sided-long-edge "
                                 "media=A5"})
            QVERIFY2(read.contains(line), read.constData());
    }

    void anInstanceOfOthersIsNotReplaced()
    {
        m_cups->addQueue(kQueue, kPpd);
        const QByteArray before = "Dest office/Reports x=1";
        m_runner->setUserOptions(before);
        const RunEnd saved = save();
        QCOMPARE(saved.status, 1);
        QVERIFY2(saved.err.contains(u"is there already"_s), saved.text().constData());
        QCOMPARE(userOptions(), before);
    }

    void oneOfOursIsReplaced()
    {
        m_cups->addQueue(kQueue, kPpd);
        QCOMPARE(save().status, 0);
        const RunEnd saved = save({u"QXMediaType=Thick"_s});
        QVERIFY2(saved.status == 0, saved.text().constData());
        QCOMPARE(userOptions().count("office/reports"), 1);
        QVERIFY(userOptions().contains("QXMediaType=Thick"));
    }

    void aPresetIsInOtherProgramsAsWell()
    {
        m_cups->addQueue(kQueue, kPpd);
        const RunEnd saved =
            m_runner->run({u"-d"_s, kQueue, u"--save-preset"_s, u"Monthly Reports"_s,
                           u"--save-instance"_s, u"reports"_s, u"-o"_s, u"QXMediaType=Thick"_s});
        QVERIFY2(saved.status == 0, saved.text().constData());
        QVERIFY2(saved.err.contains(kInstance), saved.text().constData());
        QVERIFY(userOptions().contains("Dest office/reports "));
        const QByteArray theirs = printedByLp({u"-d"_s, kInstance});
        QVERIFY(!theirs.isEmpty());
        QCOMPARE(printedHere({u"-d"_s, kQueue, u"--preset"_s, u"Monthly Reports"_s}) == theirs,
                 true);
    }

    void aPresetThatIsKeptAgainTakesItsInstancesAlong()
    {
        m_cups->addQueue(kQueue, kPpd);
        m_cups->addQueue(u"lab"_s, kPpd);
        m_runner->setUserOptions("Dest lab x=1\n");
        const QStringList keep{u"--save-preset"_s, u"Monthly Reports"_s};
        const QStringList elsewhere{u"--save-instance"_s, u"reports"_s};
        QCOMPARE(m_runner->run(QStringList{u"-d"_s, kQueue} + keep + elsewhere).status, 0);
        QCOMPARE(m_runner->run(QStringList{u"-d"_s, u"lab"_s} + keep + elsewhere).status, 0);
        const RunEnd again = m_runner->run(QStringList{u"-d"_s, kQueue} + keep +
                                           asArguments({u"QXMediaType=Thick"_s}));
        QVERIFY2(again.status == 0, again.text().constData());
        QVERIFY2(again.err.contains(u"lab/reports"_s), again.text().constData());
        QVERIFY(userOptions().startsWith("Dest lab x=1\n"));
        QVERIFY2(tool(u"lpoptions"_s, {u"-p"_s, u"lab/reports"_s}).contains(" QXMediaType=Thick "),
                 userOptions().constData());
        QVERIFY(tool(u"lpoptions"_s, {u"-p"_s, u"lab/reports"_s, u"-l"_s}).contains("*Thick"));
        const QByteArray theirs = printedByLp({u"-d"_s, kInstance});
        QVERIFY(!theirs.isEmpty());
        QCOMPARE(printedHere({u"-d"_s, kQueue, u"--preset"_s, u"Monthly Reports"_s}) == theirs,
                 true);
    }

    // The last one counts, for the preset and for each of its instances.
    void whoeverKeepsAPresetAtOncePresetAndInstancesAreAlike()
    {
        const QStringList queues{kQueue, u"lab"_s};
        const QStringList media{u"Plain"_s, u"Thick"_s, u"Thin"_s, u"BOND"_s};
        const QStringList keep{u"--save-preset"_s, u"Reports"_s};
        m_runner->setUserOptions("# by hand\nDest gone x=1\n");
        for (const QString &queue : queues) {
            m_cups->addQueue(queue, kPpd);
            QCOMPARE(
                m_runner
                    ->run(QStringList{u"-d"_s, queue, u"--save-instance"_s, u"reports"_s} + keep)
                    .status,
                0);
        }
        std::vector<std::unique_ptr<ProgramRun>> terminals;
        for (qsizetype i = 0; i < media.size(); ++i)
            terminals.push_back(
                m_runner->start(QStringList{u"-d"_s, queues.at(i % 2)} + keep +
                                asArguments({u"QXMediaType="_s + media.at(i), u"number-up=2"_s})));
        for (const auto &terminal : terminals) {
            const RunEnd end = terminal->wait();
            QVERIFY2(end.status == 0, end.text().constData());
        }
        QVERIFY(userOptions().startsWith("# by hand\nDest gone x=1\n"));
        const RunEnd summary =
            m_runner->run({u"-d"_s, kQueue, u"--preset"_s, u"Reports"_s, u"--save-preset"_s,
                           u"Now"_s, u"--save-instance"_s, u"now"_s});
        QVERIFY2(summary.status == 0, summary.text().constData());
        const QByteArray kept = optionsOf("office/now");
        QVERIFY(kept.contains(" number-up=2"));
        for (const QByteArray &instance : {QByteArray("office/reports"), QByteArray("lab/reports")})
            QCOMPARE(optionsOf(instance), kept);
    }

    void aPresetWhoseInstanceCannotBeWrittenIsKeptAndThatIsSaid()
    {
        m_cups->addQueue(kQueue, kPpd);
        m_runner->setUserOptions("Dest office/reports x=1\n");
        const RunEnd saved = m_runner->run({u"-d"_s, kQueue, u"--save-preset"_s, u"Reports"_s,
                                            u"--save-instance"_s, u"reports"_s});
        QCOMPARE(saved.status, 1);
        QVERIFY2(saved.err.contains(u"is there already"_s), saved.text().constData());
        QVERIFY2(saved.out.contains(u"The preset “Reports” is kept."_s), saved.text().constData());
        QVERIFY2(!saved.err.contains(u"No preset was kept"_s), saved.text().constData());
        QCOMPARE(userOptions(), QByteArray("Dest office/reports x=1\n"));
    }

    void aNameWithoutLatinLettersIsRefusedWithAnotherOne()
    {
        m_cups->addQueue(kQueue, kPpd);
        const RunEnd saved = save({}, u"報告書"_s);
        QCOMPARE(saved.status, 1);
        QVERIFY2(saved.err.contains(u"such as “preset1”"_s), saved.text().constData());
        QVERIFY(userOptions().isEmpty());
    }

    // lpoptions empties the file and writes it in place, from what it has read before.
    void nobodyLosesALineWhileLpoptionsWrites()
    {
        m_cups->addQueue(kQueue, kPpd);
        m_cups->addQueue(u"lab"_s, kPpd);
        m_runner->setUserOptions("Dest lab x=1\n");
        QCOMPARE(tool(u"lpoptions"_s, {u"-p"_s, u"lab"_s, u"-o"_s, u"first=1"_s}), QByteArray());
        std::vector<std::unique_ptr<ProgramRun>> windows;
        for (int window = 0; window < 2; ++window)
            windows.push_back(
                m_runner->start({u"--no-dialog"_s, u"-d"_s, kQueue, u"--save-instance"_s,
                                 u"window%1"_s.arg(window), u"-o"_s, u"QXMediaType=Thick"_s}));
        for (int round = 0; round < 60 && (windows[0]->isRunning() || windows[1]->isRunning());
             ++round)
            tool(u"lpoptions"_s, {u"-p"_s, u"lab"_s, u"-o"_s, u"round=%1"_s.arg(round)});
        for (const auto &window : windows) {
            const RunEnd end = window->wait();
            QVERIFY2(end.status == 0, end.text().constData());
        }
        const QByteArray content = userOptions();
        for (const char *line : {"Dest office/window0 ", "Dest office/window1 ", "Dest lab "})
            QVERIFY2(content.count(line) == 1, content.constData());
        QVERIFY2(content.contains(" first=1") && content.contains(" x=1"), content.constData());
    }
};

QTEST_GUILESS_MAIN(QueueInstancesTest)
#include "queue_instances_test.moc"
