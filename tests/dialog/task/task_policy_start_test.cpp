#include <QTest>

#include "tests/dialog/task/StartValuesScene.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using By = JobSettings::By;

struct Against
{
    const char *name;
    By by;
    const char *lock;    ///< KEYWORD=VALUE
    const char *option;  ///< what somebody sets against it
    const char *keyword; ///< that is looked at afterwards
    const char *value;
};

// Every place in which values start, against a lock of every kind.
const Against kAgainst[] = {
    {"queue, choice", By::Queue, "Boost=ON", "Boost=OFF", "Boost", "ON"},
    {"queue, by another name", By::Queue, "sides=two-sided-long-edge", "sides=one-sided", "Duplex",
     "DuplexNoTumble"},
    {"queue, attribute", By::Queue, "number-up=2", "number-up=4", "number-up", "2"},
    {"queue, copies", By::Queue, "copies=2", "copies=3", "copies", "2"},
    {"lpoptions, choice", By::UserQueues, "Boost=ON", "Boost=OFF", "Boost", "ON"},
    {"lpoptions, by another name", By::UserQueues, "Duplex=DuplexNoTumble", "sides=one-sided",
     "Duplex", "DuplexNoTumble"},
    {"lpoptions, attribute", By::UserQueues, "number-up=2", "number-up=4", "number-up", "2"},
    {"lpoptions, attribute by another name", By::UserQueues, "orientation-requested=3", "landscape",
     "orientation-requested", "3"},
    {"lpoptions, copies", By::UserQueues, "copies=2", "copies=3", "copies", "2"},
    {"lpoptions, files as they are", By::UserQueues, "Boost=ON", "raw", "raw", nullptr},
    {"policy, choice", By::Policy, "Boost=ON", "Boost=OFF", "Boost", "ON"},
    {"-o, choice", By::Options, "Boost=ON", "Boost=OFF", "Boost", "ON"},
    {"-o, other letters", By::Options, "boost=on", "BOOST=off", "Boost", "ON"},
    {"-o, what collides", By::Options, "Duplex=DuplexNoTumble", "Media=Card", "Duplex",
     "DuplexNoTumble"},
    {"-o, attribute", By::Options, "number-up=2", "number-up=4", "number-up", "2"},
    {"-o, pages", By::Options, "page-ranges=1-2", "page-ranges=1-9", "page-ranges", "1-2"},
    {"-o, copies", By::Options, "copies=2", "copies=3", "copies", "2"},
    {"-o, files as they are", By::Options, "Boost=ON", "raw", "raw", nullptr},
};

} // namespace

/// Where the values of a job start under a policy: its defaults have their place, and no place gets
/// around its locks.
class TaskPolicyStartTest : public StartValuesScene
{
    Q_OBJECT

private:
    QString now(const QString &keyword)
    {
        if (keyword == u"copies"_s)
            return QString::number(m_settings.copies());
        const QString marked = m_printer->session->markedChoice(keyword);
        return marked.isNull() ? attribute(keyword) : marked;
    }
    // Behind the default that a row may have said already.
    void lock(const QByteArray &what)
    {
        QByteArray text = "[all]\nlock." + what + '\n';
        const QList<PolicyEntry> defaults = policyOf(m_request).defaultsOf(m_fetched.printer);
        for (const PolicyEntry &entry : defaults)
            text += "default." + entry.keyword.toUtf8() + '=' + entry.value.toUtf8() + '\n';
        m_request.policy = policyFrom(text);
    }

private Q_SLOTS:
    void noPlaceMovesALock_data() { addRows(kAgainst); }
    void noPlaceMovesALock()
    {
        const Against &row = currentRow(kAgainst);
        say(row.by, QString::fromUtf8(row.option));
        lock(row.lock);
        const StartOutcome outcome = start();
        QCOMPARE(now(QString::fromUtf8(row.keyword)), QString::fromUtf8(row.value));
        const QStringList said = outcome.ignored + outcome.unset;
        QVERIFY2(said.join(u'\n').contains(u"by your administrator (1.conf:2)"_s),
                 qPrintable(said.join(u'\n')));
        QCOMPARE(outcome.unset.isEmpty(), row.by != By::Options);
    }

    void whatAgreesWithALockIsTakenWithoutAWord()
    {
        say(By::UserQueues, u"number-up=2"_s);
        say(By::Options, u"Boost=ON"_s);
        m_request.policy = policyFrom("[all]\nlock.Boost=ON\nlock.number-up=2\n");
        const StartOutcome outcome = start();
        QVERIFY2(outcome.ignored.isEmpty() && outcome.unset.isEmpty(),
                 qPrintable((outcome.ignored + outcome.unset).join(u'\n')));
    }

    void aRefusedOptionIsNamedByWhatPeopleCallIt()
    {
        say(By::Options, u"number-up=4"_s);
        lock("number-up=2");
        const StartOutcome outcome = start();
        QCOMPARE(outcome.unset, QStringList{u"number-up=4: “Pages per Sheet” is set by your "
                                            "administrator (1.conf:2)."_s});
    }

    void aDefaultThatCannotBeTakenSaysItsFileAndLine()
    {
        m_request.policy = policyFrom("[all]\ndefault.Media=Gold\ndefault.Boost=ON\n");
        const StartOutcome outcome = start();
        QCOMPARE(outcome.ignored.size(), 1);
        QVERIFY2(outcome.ignored.at(0).startsWith(u"1.conf:2: Media=Gold:"_s),
                 qPrintable(outcome.ignored.at(0)));
        QCOMPARE(now(u"Boost"_s), u"ON"_s);
    }

    void aLockOfWhatThePrinterLacksIsVoid()
    {
        m_request.policy = policyFrom("[all]\nlock.Staple=Left\nlock.Media=Gold\nlock.Boost=ON\n");
        const auto session = sessionFor(smallPrinter());
        const QList<PolicyProblem> voids =
            lockSettings(policyOf(m_request).locksOf(m_fetched.printer), *session, nullptr);
        QCOMPARE(voids.size(), 2);
        QCOMPARE(voids.at(0).origin.line, 3); // the later one counts more, and is taken first
        QCOMPARE(voids.at(1).origin.line, 2);
        QCOMPARE(session->locks().keys(), (QStringList{u"Boost"_s, u"raw"_s}));
    }

    void ofTwoNamesOfOneOptionTheOneThatCountsMoreIsTaken()
    {
        m_request.policy =
            policyFrom({"[all]\nlock.Duplex=DuplexTumble\n", "[all]\nlock.sides=one-sided\n"});
        const auto session = sessionFor(smallPrinter());
        const QList<PolicyProblem> voids =
            lockSettings(policyOf(m_request).locksOf(m_fetched.printer), *session, nullptr);
        QCOMPARE(session->markedChoice(u"Duplex"_s), u"None"_s);
        QCOMPARE(voids.size(), 1);
        QCOMPARE(voids.at(0).origin.file, u"1.conf"_s);
    }

    void aLockMakesRoomForItself()
    {
        PpdBuilder ppd = smallPrinter();
        ppd.constraint("Boost", "ON", "Tray", "Upper");
        const auto session = sessionFor(ppd);
        const auto policy = policyFrom("[all]\nlock.Boost=ON\n");
        const auto voids = lockSettings(policy->locksOf(m_fetched.printer), *session, nullptr);
        QVERIFY(voids.isEmpty());
        QCOMPARE(session->markedChoice(u"Boost"_s), u"ON"_s);
        QCOMPARE(session->markedChoice(u"Tray"_s), u"Lower"_s);
    }
};

QTEST_MAIN(TaskPolicyStartTest)
#include "task_policy_start_test.moc"
