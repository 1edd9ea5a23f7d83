#include <optional>

#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/PageChoice.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The order of pages, a booklet or each page several times, and what goes along with it.
class TaskPageOrderTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &open(const QString &options = {})
    {
        PrintRequest request = m_scene->request(smallPrinter());
        if (!options.isEmpty())
            request.options = parseOptions({options});
        return m_scene->open(request);
    }
    std::optional<OfferedAttribute> offered(const QString &name)
    {
        const QList<OfferedAttribute> all = m_scene->task->attributes();
        for (const OfferedAttribute &one : all) {
            if (one.name == name)
                return one;
        }
        return {};
    }
    QStringList summary(const QString &title)
    {
        QStringList values;
        for (const SummaryLine &line : m_scene->task->summary()) {
            if (line.title == title)
                values += line.value;
        }
        return values;
    }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup() { m_scene.reset(); }

    void aBookletIsTurnedOverAtTheShortEdge()
    {
        PrintTask &task = open();
        QVERIFY(offered(u"booklet"_s));
        QCOMPARE(task.setAttribute(u"booklet"_s, u"right"_s), QString());
        QCOMPARE(m_scene->session().markedChoice(u"Duplex"_s), u"DuplexTumble"_s);
        QCOMPARE(summary(u"Pages per Sheet"_s), QStringList{u"2"_s});
        QCOMPARE(summary(u"Booklet"_s), QStringList{u"Bound at the Right"_s});
    }

    void backsThatTheMediumLacksAreSaid()
    {
        PrintTask &task = open(u"Media=Card"_s);
        task.setAttribute(u"booklet"_s, u"left"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Duplex"_s), u"None"_s);
        QVERIFY2(m_scene->face.message().contains(u"Card"_s), qPrintable(m_scene->face.message()));
    }

    // What nobody can choose is shown as it is printed; what was chosen before stays, and its way
    // back with it.
    void theBookletDecidesHowManyPagesShareASide()
    {
        PrintTask &task = open();
        const auto shared = [this] { return *offered(u"number-up"_s); };
        QVERIFY(shared().hasEffect);
        task.setAttribute(u"booklet"_s, u"left"_s);
        QCOMPARE(shared().value, u"2"_s);
        QVERIFY(!shared().hasEffect && shared().isUsual);
        task.setAttribute(u"booklet"_s, u"no"_s);
        QVERIFY(shared().hasEffect && shared().value.isNull());
        task.setAttribute(u"number-up"_s, u"4"_s);
        task.setAttribute(u"booklet"_s, u"left"_s);
        QCOMPARE(shared().value, u"2"_s);
        QVERIFY(!shared().hasEffect);
        task.setAttribute(u"booklet"_s, u"no"_s);
        QCOMPARE(shared().value, u"4"_s);
    }

    // Wherever both come from, somebody is told before he prints.
    void whatExcludesEachOtherIsSaidWhenItIsOpened()
    {
        PrintTask &task = open(u"booklet=left number-up=4"_s);
        const QString said = m_scene->face.message();
        QVERIFY2(said.contains(u"Pages per Sheet: 4"_s) && said.contains(u"booklet"_s),
                 qPrintable(said));
        QCOMPARE(task.settings().attribute(u"number-up"_s), u"4"_s);
        task.print();
        QVERIFY(QTest::qWaitFor([&] { return !m_scene->face.refusals.isEmpty(); }));
        // Room is made by whoever chooses one of them.
        m_scene->face.refusals.clear();
        QCOMPARE(task.setAttribute(u"number-up"_s, {}), QString());
        QVERIFY(problemsOfOrder(task.settings().attributes()).isEmpty());
    }

    void whoeverHasLockedOneOfThemIsNamed()
    {
        for (const auto &[lock, asked] : {std::pair("number-up=4", u"booklet=left"_s),
                                          std::pair("booklet=left", u"number-up=4"_s)}) {
            PrintRequest request = m_scene->request(smallPrinter());
            request.policy = policyFrom(QByteArray("[all]\nlock.") + lock + '\n');
            request.options = parseOptions({asked});
            m_scene->face.messages.clear();
            m_scene->face.refusals.clear();
            PrintTask &task = m_scene->open(request);
            QVERIFY2(m_scene->face.message().contains(u"set by your administrator"_s),
                     qPrintable(m_scene->face.message()));
            task.print();
            QVERIFY(QTest::qWaitFor([&] { return !m_scene->face.refusals.isEmpty(); }));
        }
        // In a window, where it is chosen. Nobody else is named.
        PrintRequest request = m_scene->request(smallPrinter());
        request.policy = policyFrom("[all]\nlock.number-up=4\nlock.repeat=1\n");
        PrintTask &task = m_scene->open(request);
        const QString why = task.setAttribute(u"booklet"_s, u"left"_s);
        QVERIFY2(why.contains(u"“Pages per Sheet” is set by your administrator"_s),
                 qPrintable(why));
        QCOMPARE(why.count(u"set by your administrator"_s), 1);
        QVERIFY(!task.settings().attribute(u"booklet"_s).startsWith(u"left"_s));
    }

    void whatAPresetHasTogetherIsSaidWhenItIsTaken()
    {
        QTemporaryDir presets;
        PrintRequest request = m_scene->request(smallPrinter());
        request.presetPlaces = {presets.path()};
        Preset preset{u"Folded"_s, {}, false, {}, {}};
        preset.content.attributes = {{u"booklet"_s, u"left"_s}, {u"number-up"_s, u"4"_s}};
        QCOMPARE(PresetStore(request.presetPlaces).save(preset, PresetStore::Replacing::No),
                 QString());
        PrintTask &task = m_scene->open(request);
        task.bringUp();
        QTRY_VERIFY(task.presets().listing().find(preset.name));
        QCOMPARE(m_scene->face.message(), QString());
        task.presets().use(preset.name);
        const QString said = m_scene->face.message();
        QVERIFY2(said.contains(u"“Folded”"_s) && said.contains(u"Pages per Sheet: 4"_s),
                 qPrintable(said));
    }

    // Not only when it is printed.
    void whatALockExcludesIsRefusedBesideTheChoice()
    {
        PrintTask &task = open();
        task.settings().setLocks(
            {{u"number-up"_s,
              {.kind = OptionLock::Kind::Attribute, .value = u"4"_s, .by = u"1.conf:2"_s}}});
        const QString problem = task.setAttribute(u"booklet"_s, u"left"_s);
        QVERIFY2(problem.contains(u"Pages per Sheet: 4"_s), qPrintable(problem));
        QVERIFY(task.settings().attribute(u"booklet"_s).isNull());
        QCOMPARE(m_scene->session().markedChoice(u"Duplex"_s), u"None"_s);
    }

    void whatTheOrderTookAlongGoesBackWithIt()
    {
        PrintTask &task = open();
        const auto duplex = [this] { return m_scene->session().markedChoice(u"Duplex"_s); };
        task.propose(u"Duplex"_s, u"DuplexNoTumble"_s);
        task.setAttribute(u"number-up"_s, u"4"_s);
        task.setAttribute(u"number-up-layout"_s, u"tblr"_s);
        task.setAttribute(u"repeat"_s, u"2"_s);
        QVERIFY(task.settings().attribute(u"number-up"_s).isNull());
        task.setAttribute(u"booklet"_s, u"left"_s);
        QCOMPARE(duplex(), u"DuplexTumble"_s);
        QVERIFY(task.settings().attribute(u"number-up-layout"_s).isNull());
        QVERIFY(task.settings().attribute(u"repeat"_s).isNull());
        QVERIFY(!offered(u"repeat"_s)->hasEffect);
        task.setAttribute(u"booklet"_s, u"right"_s);
        task.setAttribute(u"booklet"_s, u"no"_s);
        QCOMPARE(duplex(), u"DuplexNoTumble"_s);
        QCOMPARE(task.settings().attribute(u"number-up-layout"_s), u"tblr"_s);
        QCOMPARE(task.settings().attribute(u"repeat"_s), u"2"_s);
        QVERIFY(offered(u"repeat"_s)->hasEffect);
        QVERIFY(problemsOfOrder(task.settings().attributes()).isEmpty());
    }

    void whatWasTakenAlongOutlastsAnotherPrinter()
    {
        const Printer first = m_scene->printer(u"first"_s, smallPrinter().text());
        const Printer second = m_scene->printer(u"second"_s, smallPrinter().text());
        PrintTask &task = m_scene->open(m_scene->request({first, second}));
        task.bringUp();
        task.setAttribute(u"number-up"_s, u"4"_s);
        task.setAttribute(u"booklet"_s, u"left"_s);
        QVERIFY(task.settings().attribute(u"number-up"_s).isNull());
        for (const Printer &printer : {second, first}) {
            task.choosePrinter(printer);
            QVERIFY(m_scene->reaches(PrintTask::Phase::Opened));
            task.bringUp();
        }
        QCOMPARE(task.settings().attribute(u"booklet"_s), u"left"_s);
        task.setAttribute(u"booklet"_s, u"no"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Duplex"_s), u"None"_s);
        QCOMPARE(task.settings().attribute(u"number-up"_s), u"4"_s);
    }

    void whatWasChosenSinceStays()
    {
        PrintTask &task = open();
        const auto duplex = [this] { return m_scene->session().markedChoice(u"Duplex"_s); };
        task.setAttribute(u"booklet"_s, u"left"_s);
        task.propose(u"Duplex"_s, u"None"_s);
        task.propose(u"Duplex"_s, u"DuplexTumble"_s);
        task.setAttribute(u"booklet"_s, u"no"_s);
        QCOMPARE(duplex(), u"DuplexTumble"_s);
        // It was that before: nothing was taken along.
        task.setAttribute(u"booklet"_s, u"left"_s);
        task.setAttribute(u"booklet"_s, u"no"_s);
        QCOMPARE(duplex(), u"DuplexTumble"_s);
    }

    void whatWasChosenOfTheJobSinceStays_data()
    {
        QTest::addColumn<bool>("isReset");
        QTest::newRow("chosen") << false;
        QTest::newRow("reset") << true;
    }
    void whatWasChosenOfTheJobSinceStays()
    {
        QFETCH(bool, isReset);
        PrintTask &task = open();
        task.setAttribute(u"number-up"_s, u"4"_s);
        task.setAttribute(u"booklet"_s, u"left"_s);
        QVERIFY(task.settings().attribute(u"number-up"_s).isNull());
        if (isReset) {
            task.history().resetSettings({u"number-up"_s});
        } else {
            task.setAttribute(u"number-up"_s, u"6"_s);
            task.setAttribute(u"number-up"_s, u"1"_s);
        }
        task.setAttribute(u"booklet"_s, u"no"_s);
        QVERIFY(task.settings().attribute(u"number-up"_s).isNull());
    }

    // However often each page comes, it has room for nothing beside it.
    void eachNumberOfTimesMakesRoom()
    {
        PrintTask &task = open();
        task.setAttribute(u"repeat"_s, u"2"_s);
        task.setAttribute(u"number-up"_s, u"4"_s);
        QVERIFY(!problemsOfOrder(task.settings().attributes()).isEmpty());
        QCOMPARE(task.setAttribute(u"repeat"_s, u"9"_s), QString());
        QCOMPARE(task.settings().attribute(u"repeat"_s), u"9"_s);
        QVERIFY(task.settings().attribute(u"number-up"_s).isNull());
    }

    // Nothing of it is left for an order that is chosen later.
    void whatWasTakenAlongIsForgottenWithTheSettings_data()
    {
        QTest::addColumn<bool>("isReset");
        QTest::newRow("everything is reset") << true;
        QTest::newRow("another printer is chosen") << false;
    }
    void whatWasTakenAlongIsForgottenWithTheSettings()
    {
        QFETCH(bool, isReset);
        const PrintRequest request =
            m_scene->request({m_scene->printer(u"one"_s, smallPrinter().text()),
                              m_scene->printer(u"other"_s, smallPrinter().text())});
        PrintTask &task = m_scene->open(request);
        task.bringUp();
        task.setAttribute(u"number-up"_s, u"4"_s);
        task.setAttribute(u"booklet"_s, u"left"_s);
        if (isReset) {
            task.history().resetAll();
        } else {
            task.choosePrinter(request.printers.at(1));
            QTRY_COMPARE(task.phase(), PrintTask::Phase::Opened);
            task.bringUp();
        }
        QVERIFY(task.settings().attribute(u"booklet"_s).isNull());
        task.setAttribute(u"repeat"_s, u"2"_s);
        task.setAttribute(u"repeat"_s, u"1"_s);
        QVERIFY2(task.settings().attribute(u"number-up"_s).isNull(),
                 qPrintable(task.settings().attribute(u"number-up"_s)));
    }

    // There is nothing to go back to.
    void sidesThatHadNoMarkBeforeABookletStay()
    {
        PrintRequest request = m_scene->request(PpdBuilder().option(
            "Duplex", "Two-Sided", "Unknown",
            {{"None", "Off"}, {"DuplexNoTumble", "Long Edge"}, {"DuplexTumble", "Short Edge"}}));
        PrintTask &task = m_scene->open(request);
        QVERIFY(m_scene->session().markedChoice(kDuplexOption).isNull());
        task.setAttribute(u"booklet"_s, u"left"_s);
        QCOMPARE(m_scene->session().markedChoice(kDuplexOption), QString(kDuplexShortEdge));
        QStringList said;
        connect(&task, &PrintTask::said, this,
                [&](const TaskMessage &message) { said += message.text; });
        QCOMPARE(task.setAttribute(u"booklet"_s, u"no"_s), QString());
        QCOMPARE(m_scene->session().markedChoice(kDuplexOption), QString(kDuplexShortEdge));
        QCOMPARE(said, QStringList());
    }

    void aBookletAndItsFoldingAreOneStep()
    {
        PrintTask &task = open();
        const TaskSettings before = task.settingsNow();
        QCOMPARE(task.setAttribute(u"booklet"_s, u"left"_s), QString());
        QTest::qWait(1);
        QCOMPARE(m_scene->session().markedChoice(kDuplexOption), QString(kDuplexShortEdge));
        QCOMPARE(task.history().undoText(), u"Undo Booklet"_s);
        task.history().undo();
        QVERIFY(task.settingsNow() == before);
        QVERIFY(!task.history().canUndo());
        // Turned off, or reset, it takes its sides along, which is one step as well.
        task.history().redo();
        task.history().resetSettings({u"booklet"_s});
        QTest::qWait(1);
        QCOMPARE(m_scene->session().markedChoice(kDuplexOption), QString(kDuplexNone));
        task.history().undo();
        QCOMPARE(m_scene->session().markedChoice(kDuplexOption), QString(kDuplexShortEdge));
        task.setAttribute(u"booklet"_s, u"no"_s);
        QTest::qWait(1);
        QCOMPARE(m_scene->session().markedChoice(kDuplexOption), QString(kDuplexNone));
        QVERIFY(task.history().changedSettings().isEmpty());
        task.history().undo();
        QCOMPARE(task.settings().attribute(u"booklet"_s), u"left"_s);
        QCOMPARE(m_scene->session().markedChoice(kDuplexOption), QString(kDuplexShortEdge));
    }
};

QTEST_MAIN(TaskPageOrderTest)
#include "task_page_order_test.moc"
