#include <QFileInfo>
#include <QTest>

#include "dialog/session/JobTicket.h"
#include "dialog/task/PassedOn.h"
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

// A number that panels keep for an option, as it is without panels.
struct Number
{
    const char *name;
    const char *printer;
    const char *lock;
    const char *value; ///< that the job has
    const char *other; ///< what somebody asks for against it
    const char *same;  ///< the same in another form
};
constexpr Number kNumbers[] = {
    {"a custom value", "corvana-cl5.ppd", "QXDensityAdjustment=2", "Custom.2",
     "QXDensityAdjustment=Custom.5", "QXDensityAdjustment=+2"},
    {"a custom value in its own form", "corvana-cl5.ppd", "QXDensityAdjustment=Custom.2",
     "Custom.2", "QXDensityAdjustment=5", "QXDensityAdjustment=2"},
    {"a choice", "corvana-cl2.ppd", "QXDensityAdjustment=2", "2", "QXDensityAdjustment=3",
     "QXDensityAdjustment=+2"},
    {"a time", "corvana-cl5.ppd", "QXSleepTime=12", "Custom.12", "QXSleepTime=Default",
     "QXSleepTime=Custom.12"},
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

    // The scene's printers have no panels, as an administrator's rule, or a desk without the
    // bundle, leaves one that has them elsewhere.
    void aValueOfPanelsIsLockedWithoutThem_data() { addRows(kNumbers); }
    void aValueOfPanelsIsLockedWithoutThem()
    {
        const Number &row = currentRow(kNumbers);
        m_fetched.ppd =
            ppdOfFile(QFileInfo(samplePpdPath()).dir().filePath(QString::fromUtf8(row.printer)));
        const QString keyword = QString::fromUtf8(row.lock).section(u'=', 0, 0);
        const JobOption locked{keyword, QString::fromUtf8(row.value)};
        for (const char *asked : {"", row.other, row.lock, row.same}) {
            m_settings = {};
            say(By::Options, QString::fromUtf8(asked));
            lock(row.lock);
            const QStringList unset = start().unset;
            QVERIFY(!m_printer->jobValues);
            const QList<JobOption> job =
                jobOptions(*m_printer->session, nullptr, m_settings.attributes());
            QVERIFY2(job.contains(locked), asked);
            QCOMPARE(unset.isEmpty(), asked != row.other);
            if (asked == row.other)
                QVERIFY2(unset.join(u' ').contains(u"by your administrator (1.conf:2)"_s),
                         qPrintable(unset.join(u' ')));
        }
    }

    void filesAsTheyAreAreLockedAwayAlone()
    {
        say(By::Options, u"raw"_s);
        lock("raw=false");
        const QStringList refused = start().unset;
        QCOMPARE(refused, QStringList{u"“raw” is set by your administrator (1.conf:2)."_s});
        QVERIFY(!passesFilesOn(*m_printer, m_settings.attributes()));
    }

    // Whoever wants what the lock wants is not refused, whatever is locked.
    void filesThatAreWorkedOnCanBeAskedForBesideALock()
    {
        for (const char *locked : {"raw=no", "Boost=ON"}) {
            for (const QString &asked : {u"raw=false"_s, u"noraw"_s}) {
                say(By::Options, asked);
                lock(locked);
                const StartOutcome outcome = start();
                QCOMPARE(outcome.unset + outcome.ignored, QStringList());
                QVERIFY(!passesFilesOn(*m_printer, m_settings.attributes()));
            }
        }
    }

    void nobodyIsKeptFromHavingFilesWorkedOn()
    {
        const auto session = sessionFor(smallPrinter());
        const auto voids = lockSettings(
            policyFrom("[all]\nlock.raw=true\n")->locksOf(m_fetched.printer), *session, nullptr);
        QCOMPARE(voids.size(), 1);
        QCOMPARE(voids.constFirst().text(), u"1.conf:2: “true” is not allowed. Allowed: false."_s);
        QVERIFY(session->locks().isEmpty());
    }

    // Locks of what nobody does there are void; those of what a server does with a job hold.
    void aQueueThatPassesFilesOnHasTheLocksThatItCanKeep()
    {
        PrinterCapabilities raw;
        raw.passesFilesOn = true;
        m_fetched.capabilities = std::make_shared<const PrinterCapabilities>(raw);
        m_request.policy = policyFrom("[all]\nlock.number-up=2\nlock.Boost=ON\n"
                                      "lock.raw=false\nlock.job-priority=10\nlock.copies=2\n");
        QString error;
        QList<PolicyProblem> voids;
        m_printer = openPrinter(m_fetched, {}, m_presenter, &error, [&](OpenedPrinter &opened) {
            QList<PolicyEntry> locks = policyOf(m_request).locksOf(m_fetched.printer);
            voids = takeWhatCannotBeDone(locks, opened);
            voids += lockSettings(locks, *opened.session, nullptr);
        });
        QStringList texts;
        for (const PolicyProblem &problem : std::as_const(voids))
            texts += problem.text();
        const QString said =
            u"The queue “office” passes files on as they are: %1 cannot be done."_s;
        QCOMPARE(texts, (QStringList{u"1.conf:4: "_s + said.arg(u"raw=false"_s),
                                     u"1.conf:3: "_s + said.arg(u"Boost=ON"_s),
                                     u"1.conf:2: "_s + said.arg(u"number-up=2"_s)}));
        m_settings.setLocks(m_printer->session->locks());
        for (const QString &asked : {QString(), u"raw"_s, u"noraw"_s, u"copies=2"_s}) {
            say(By::Options, asked);
            const StartOutcome outcome = applyStartValues(m_request, *m_printer, m_settings);
            QCOMPARE(outcome.unset + outcome.ignored, QStringList());
        }
        QCOMPARE(m_settings.attribute(u"job-priority"_s), u"10"_s);
        QVERIFY(m_settings.attribute(u"number-up"_s).isNull());
        QCOMPARE(m_settings.copies(), 2);
        say(By::Options, u"copies=3"_s);
        const StartOutcome outcome = applyStartValues(m_request, *m_printer, m_settings);
        QVERIFY2(outcome.unset.join(u' ').contains(u"by your administrator (1.conf:6)"_s),
                 qPrintable(outcome.unset.join(u' ')));
    }

    void aNumberBeyondTheRangeLocksNothing()
    {
        m_fetched.ppd = ppdOfFile(samplePpdPath());
        lock("QXDensityAdjustment=99999999999");
        start();
        QVERIFY(m_printer->session->locks().isEmpty());
        const QList<PolicyProblem> voids = lockSettings(
            policyOf(m_request).locksOf(m_fetched.printer), *m_printer->session, nullptr);
        QCOMPARE(voids.size(), 1);
        QVERIFY2(voids.constFirst().text().contains(u"Custom.-"_s),
                 qPrintable(voids.constFirst().text()));
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
