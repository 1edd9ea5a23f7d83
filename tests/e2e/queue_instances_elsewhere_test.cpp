#include <QTest>

#include "tests/e2e/LpTools.h"
#include "tests/e2e/QueueRuns.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kOffice = u"office"_s;
const QString kLab = u"lab"_s;
const QString kOtherModel = sourceFile("resources/ppd/corvana-ml3.ppd"_L1);

QStringList saving(const QStringList &more)
{
    return QStringList{u"--no-dialog"_s, u"-d"_s, kOffice} + more;
}

} // namespace

/// Instances on queues that were named beside the printer: each says what its own queue needs, so
/// that lp prints there what this program prints there.
class QueueInstancesElsewhereTest : public QueueRuns
{
    Q_OBJECT

private:
    LpTools tools() const { return {*m_cups, *m_runner}; }
    // Where the queue and its user have set a lot themselves.
    void addQueues()
    {
        m_cups->addQueue(kOffice, kPpd);
        QueueSettings settings;
        settings.options = {u"number-up-default=4"_s, u"sides-default=two-sided-long-edge"_s,
                            u"QXMediaType=Thin"_s};
        m_cups->addQueue(kLab, kPpd, settings);
        m_runner->setUserOptions("# by hand\nDest lab media=A5 mirror=true\n");
    }
    void lpPrintsAsHere(const QString &queue, const QStringList &here)
    {
        const QByteArray theirs = tools().printedByLp(queue, {u"-d"_s, queue + u"/reports"_s});
        QVERIFY(!theirs.isEmpty());
        const QByteArray ours = tools().printedHere(queue, QStringList{u"-d"_s, queue} + here);
        QCOMPARE(printedFeatures(ours), printedFeatures(theirs));
        QCOMPARE(ours == theirs, true);
    }

private Q_SLOTS:
    void aPresetIsAnInstanceOfEachQueueThatIsNamed()
    {
        addQueues();
        const RunEnd saved = m_runner->run(saving(
            {u"--save-preset"_s, u"Monthly"_s, u"--save-instance"_s, u"Reports"_s, u"--also-on"_s,
             u"lab,office"_s, u"-o"_s, u"QXMediaType=Thick"_s, u"-o"_s, u"media=A4"_s}));
        QVERIFY2(saved.status == 0, saved.text().constData());
        for (const char *name : {"“office/reports”", "“lab/reports”"})
            QVERIFY2((saved.err + saved.out).contains(QString::fromUtf8(name)),
                     saved.text().constData());
        // What the preset does not name is what is usual there, and is said as well.
        QVERIFY2(tools().optionsOf("lab/reports").contains(" number-up=4"),
                 tools().userOptions().constData());
        QVERIFY(!tools().optionsOf("office/reports").contains(" number-up="));
        QCOMPARE(tools().userOptions().count("Dest lab/reports "), 1);
        lpPrintsAsHere(kOffice, {u"--preset"_s, u"Monthly"_s});
        lpPrintsAsHere(kLab, {u"--preset"_s, u"Monthly"_s});

        // And follows there, as that queue is by then.
        QueueSettings settings;
        settings.options = {u"number-up-default=2"_s, u"page-border-default=single"_s};
        m_cups->addQueue(kLab, kPpd, settings);
        const RunEnd again = m_runner->run(
            saving({u"--save-preset"_s, u"Monthly"_s, u"-o"_s, u"QXMediaType=BOND"_s}));
        QVERIFY2(again.status == 0, again.text().constData());
        QVERIFY2(tools().optionsOf("lab/reports").contains(" QXMediaType=BOND"),
                 tools().userOptions().constData());
        QVERIFY2(tools().optionsOf("lab/reports").contains(" page-border=single"),
                 tools().userOptions().constData());
        lpPrintsAsHere(kLab, {u"--preset"_s, u"Monthly"_s});
        QVERIFY(tools().userOptions().startsWith("# by hand\nDest lab media=A5 mirror=true\n"));
    }

    void settingsWithoutAPresetAreAnInstanceOfEachQueue()
    {
        addQueues();
        const QStringList options{u"-o"_s, u"number-up=2"_s, u"-o"_s, u"QXMediaType=Thick"_s};
        const RunEnd saved = m_runner->run(saving(
            QStringList{u"--save-instance"_s, u"reports"_s, u"--also-on"_s, kLab} + options));
        QVERIFY2(saved.status == 0, saved.text().constData());
        lpPrintsAsHere(kOffice, options);
        QVERIFY2(tools().optionsOf("lab/reports").contains(" number-up=2"),
                 tools().userOptions().constData());
        lpPrintsAsHere(kLab, options);
        // They are of no preset.
        const QByteArray before = tools().optionsOf("lab/reports");
        QCOMPARE(m_runner->run(saving({u"--save-preset"_s, u"reports"_s})).status, 0);
        QCOMPARE(tools().optionsOf("lab/reports"), before);
    }

    void aQueueThatCannotHaveItIsNamedAndTheOthersHaveIt()
    {
        addQueues();
        m_cups->addQueue(u"hall"_s, kOtherModel);
        const RunEnd saved =
            m_runner->run(saving({u"--save-preset"_s, u"Monthly"_s, u"--save-instance"_s,
                                  u"reports"_s, u"--also-on"_s, u"gone,hall,lab"_s}));
        QCOMPARE(saved.status, 1);
        for (const char *said :
             {"“gone/reports” in other programs: ", "“hall/reports” in other programs: ",
              "“lab/reports”.", "The preset “Monthly” is kept."})
            QVERIFY2((saved.err + saved.out).contains(QString::fromUtf8(said)),
                     saved.text().constData());
        QVERIFY(!saved.err.contains(u"Nothing was printed"_s));
        QVERIFY(!tools().optionsOf("lab/reports").isEmpty());
        QVERIFY(tools().optionsOf("gone/reports").isEmpty());
        QVERIFY(tools().optionsOf("hall/reports").isEmpty());
    }

    // An instance that is named for its queue is that queue.
    void anInstanceThatIsNamedIsItsQueue()
    {
        addQueues();
        const QStringList preset{u"--save-preset"_s, u"Monthly"_s};
        const QStringList also{u"--save-instance"_s, u"Reports"_s, u"--also-on"_s, u"lab/other"_s};
        m_runner->setUserOptions("Dest lab/other QXMediaType=Thick\n");
        const RunEnd saved = m_runner->run(saving(preset + also));
        QVERIFY2(saved.status == 0, saved.text().constData());
        QVERIFY2(!tools().optionsOf("lab/reports").isEmpty(), tools().userOptions().constData());
        QCOMPARE(tools().userOptions().count("Dest lab/"), 2);
    }

    void aNameThatNobodyCanHaveIsSaidOnce()
    {
        addQueues();
        const RunEnd saved =
            m_runner->run(saving({u"--save-preset"_s, u"月次"_s, u"--save-instance"_s, u"月次"_s,
                                  u"--also-on"_s, kLab}));
        QCOMPARE(saved.status, 1);
        QCOMPARE(saved.err.count(u"“月次” has no letters"_s), 1);
        QVERIFY2(!saved.err.contains(u"lab/"_s) && !saved.err.contains(u"document"_s),
                 saved.text().constData());
    }

    void aQueueIsNamedForAnInstanceOnly()
    {
        const RunEnd refused = m_runner->run(saving({u"--also-on"_s, kLab}));
        QCOMPARE(refused.status, 2);
        QVERIFY2(refused.err.contains(u"--save-instance"_s), refused.text().constData());
    }
};

QTEST_GUILESS_MAIN(QueueInstancesElsewhereTest)
#include "queue_instances_elsewhere_test.moc"
