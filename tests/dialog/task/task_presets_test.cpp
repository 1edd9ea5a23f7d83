#include <QDir>
#include <QDirIterator>
#include <QSignalSpy>
#include <QTest>

#include "dialog/presets/LastUsed.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/OwnHome.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/PresetActs.h"
#include "tests/dialog/task/TaskScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Kind = SelectedPreset::Kind;
using Phase = PrintTask::Phase;

/// Settings that a task keeps for later, and those that it starts with.
class TaskPresetsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OwnHome> m_home;
    std::unique_ptr<TaskScene> m_scene;

    PrintRequest request(const QString &options = {})
    {
        PrintRequest request = m_scene->request(smallPrinter());
        request.presetPlaces = {m_home->filePath(u"presets"_s)};
        request.remembersLastUsed = true;
        request.options = parseOptions({options});
        return request;
    }
    TaskPresets &open(const QString &options = {})
    {
        return m_scene->open(request(options)).presets();
    }
    PrintTask &task() { return *m_scene->task; }
    QString marked(const QString &keyword) { return m_scene->session().markedChoice(keyword); }
    void propose(const QString &keyword, const QString &choice)
    {
        task().propose(keyword, choice);
        QCoreApplication::processEvents();
    }
    QString done(const std::function<void()> &act) { return endOf(task().presets(), act); }
    QString save(const QString &name, bool replaces = false)
    {
        return done([&] { task().presets().save({name, false, false, replaces}); });
    }
    void print()
    {
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QCOMPARE(task().outcome().kind, JobOutcome::Kind::Printed);
        m_scene->task.reset(); // waits for what is written
    }
    int lastUsedFiles() const
    {
        return int(
            QDir(m_home->filePath(u"corvana-print/last-used"_s)).entryList(QDir::Files).size());
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<OwnHome>();
        m_scene = std::make_unique<TaskScene>();
    }
    void cleanup()
    {
        m_scene.reset();
        m_home.reset();
    }

    void aJobStartsWithThePrintersDefaults()
    {
        const TaskPresets &presets = open();
        QCOMPARE(presets.selected(), SelectedPreset());
        QVERIFY(!presets.isChanged() && !presets.hasLastUsed());
        propose(u"Media"_s, u"Film"_s);
        QVERIFY(presets.isChanged());
        propose(u"Media"_s, u"Plain"_s);
        QVERIFY(!presets.isChanged());
    }

    void whatIsSavedIsSelectedAndComesBackInOneStep()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        task().setAttribute(u"number-up"_s, u"2"_s);
        QCOMPARE(save(u"Reports"_s), QString());
        TaskPresets &presets = task().presets();
        QCOMPARE(presets.selected().name, u"Reports"_s);
        QVERIFY(!presets.isChanged());
        QCOMPARE(presets.listing().names(), QStringList{u"Reports"_s});

        presets.useDefaults();
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
        QVERIFY(task().settings().attribute(u"number-up"_s).isNull());
        QCOMPARE(presets.selected().kind, Kind::Defaults);

        propose(u"Boost"_s, u"ON"_s);
        presets.use(u"Reports"_s);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
        QCOMPARE(task().settings().attribute(u"number-up"_s), u"2"_s);
        QVERIFY(!presets.isChanged());
        QCOMPARE(task().history().base().name, u"Reports"_s);
        QVERIFY2(task().history().undoText().contains(u"Reports"_s),
                 qPrintable(task().history().undoText()));

        task().history().undo();
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
        QVERIFY(task().settings().attribute(u"number-up"_s).isNull());
        QVERIFY(presets.isChanged());
    }

    void aPresetThatIsUndoneIsSelectedNoLonger()
    {
        TaskPresets &presets = open();
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(save(u"Reports"_s), QString());
        presets.useDefaults();
        QCOMPARE(presets.selectedName(), u"Printer Defaults"_s);
        presets.use(u"Reports"_s);
        task().history().undo();
        QCOMPARE(presets.selectedName(), u"Printer Defaults"_s);
        QVERIFY(!presets.isChanged());
        QCOMPARE(task().history().base().name, u"Printer Defaults"_s);
        task().history().redo();
        QCOMPARE(presets.selectedName(), u"Reports"_s);
        QVERIFY(!presets.isChanged());
        // Back over the defaults as well: the preset that was saved then.
        task().history().undo();
        task().history().undo();
        QCOMPARE(presets.selectedName(), u"Reports"_s);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QVERIFY(!presets.isChanged());
    }

    void undoingDoesNotSelectAPresetThatIsGoneOrWasReplacedBySaving()
    {
        TaskPresets &presets = open();
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(save(u"Reports"_s), QString());
        presets.useDefaults();
        propose(u"Media"_s, u"Card"_s);
        QCOMPARE(save(u"Letters"_s), QString());
        task().history().undo(); // of the card
        task().history().undo(); // of the defaults
        QCOMPARE(presets.selectedName(), u"Letters"_s);
        QVERIFY(presets.isChanged());
        presets.use(u"Reports"_s);
        presets.useDefaults();
        presets.use(u"Letters"_s);
        task().history().undo();
        QVERIFY(PresetStore(task().request().presetPlaces)
                    .remove(presets.listing().find(u"Reports"_s)->preset)
                    .isEmpty());
        QSignalSpy changed(&presets, &TaskPresets::changed);
        presets.look();
        QVERIFY(changed.wait(5000));
        task().history().undo();
        QCOMPARE(presets.selectedName(), u"Printer Defaults"_s);
    }

    void aNameThatIsTakenIsSaidAndTheSettingsStay()
    {
        open();
        QCOMPARE(save(u"Reports"_s), QString());
        propose(u"Media"_s, u"Film"_s);
        QVERIFY(save(u"Reports"_s).contains(u"“Reports”"_s));
        QVERIFY(m_scene->face.message().contains(u"as they were"_s));
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QVERIFY(task().presets().isChanged());
        QCOMPARE(save(u"Reports"_s, true), QString());
        QVERIFY(!task().presets().isChanged());
    }

    void whereNothingCanBeWrittenThatIsSaidOnceAndTheSettingsStay()
    {
        writeFile(m_home->filePath(u"presets"_s), "a file");
        open();
        propose(u"Media"_s, u"Film"_s);
        QVERIFY(!save(u"Reports"_s).isEmpty());
        QCOMPARE(m_scene->face.messages.size(), 1);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(task().presets().selected().kind, Kind::Defaults);
    }

    void updatingKeepsWhatIsSetUnderTheSameName()
    {
        open();
        QCOMPARE(save(u"Reports"_s), QString());
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(done([&] { task().presets().update(); }), QString());
        QVERIFY(!task().presets().isChanged());
        task().presets().useDefaults();
        task().presets().use(u"Reports"_s);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
    }

    void renamingAndRemovingLeaveTheSettingsAlone()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(save(u"Reports"_s), QString());
        QCOMPARE(done([&] { task().presets().rename(u"Letters"_s); }), QString());
        QCOMPARE(task().presets().selectedName(), u"Letters"_s);
        QCOMPARE(task().presets().listing().names(), QStringList{u"Letters"_s});
        QCOMPARE(done([&] { task().presets().remove(); }), QString());
        QCOMPARE(task().presets().selected().kind, Kind::Defaults);
        QVERIFY(task().presets().listing().presets.isEmpty());
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
    }

    void aPresetForAllPrintersHoldsOnlyWhatWasChosen()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(done([&] { task().presets().save({u"Film"_s, true, false, false}); }), QString());
        const Preset preset = task().presets().listing().find(u"Film"_s)->preset;
        QVERIFY(preset.model.isEmpty());
        QCOMPARE(preset.content.options, (QMap<QString, QString>{{u"Media"_s, u"Film"_s}}));
        propose(u"Boost"_s, u"ON"_s);
        task().presets().use(u"Film"_s);
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
    }

    void whatThePrinterHasNotIsSaidByName()
    {
        open();
        QCOMPARE(save(u"Reports"_s), QString());
        StoredPreset stored = *task().presets().listing().find(u"Reports"_s);
        stored.preset.content.options.insert(u"Tray"_s, u"Cellar"_s);
        stored.preset.content.options.insert(u"Media"_s, u"Film"_s);
        stored.preset.changed = QStringList{u"Tray"_s, u"Media"_s};
        PresetStore({m_home->filePath(u"presets"_s)})
            .save(stored.preset, PresetStore::Replacing::Yes);
        QSignalSpy changed(&task().presets(), &TaskPresets::changed);
        task().presets().look();
        QVERIFY(changed.wait());
        task().presets().use(u"Reports"_s);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QVERIFY2(m_scene->face.message().contains(u"“Reports”"_s) &&
                     m_scene->face.message().contains(u"Cellar"_s),
                 qPrintable(m_scene->face.message()));
    }

    void whatTheUserChangedStartsTheNextJobAndCanBeLeft()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        task().setAttribute(u"number-up"_s, u"2"_s);
        task().setAttribute(u"mirror"_s, u"true"_s);
        task().setAttribute(u"job-priority"_s, u"70"_s);
        task().settings().askForCopies(3, JobSettings::By::User);
        print();
        QCOMPARE(lastUsedFiles(), 1);

        const TaskPresets &presets = open();
        QCOMPARE(presets.selected().kind, Kind::LastUsed);
        QVERIFY(!presets.isChanged());
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(task().settings().attribute(u"number-up"_s), u"2"_s);
        for (const QString &name : {u"mirror"_s, u"job-priority"_s})
            QVERIFY2(task().settings().attribute(name).isNull(), qPrintable(name));
        QCOMPARE(task().settings().copies(), 1);
        const TaskMessage message = m_scene->face.messages.constLast();
        QVERIFY2(message.text.startsWith(u"As in your last job"_s), qPrintable(message.text));
        QCOMPARE(message.offer, u"Use Defaults"_s);
        message.take();
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
        QVERIFY(task().settings().attribute(u"number-up"_s).isNull());
        QCOMPARE(presets.selected().kind, Kind::Defaults);
        task().presets().useLastUsed();
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
    }

    // Changes add up: what the job started with is not forgotten because it was not touched.
    void whatALastJobHadFromTheOneBeforeIsKept()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        print();
        open();
        propose(u"Boost"_s, u"ON"_s);
        print();
        open();
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
    }

    // It is the user's, and comes back with the part, or when the lock goes.
    void whatAPrinterLacksOrHasLockedForOneJobIsRemembered()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        propose(u"Boost"_s, u"ON"_s);
        task().setAttribute(u"number-up"_s, u"2"_s);
        print();
        PrintRequest locked = request();
        locked.policy = policyFrom("[all]\nlock.Boost=OFF\nlock.number-up=4\n");
        m_scene->open(locked);
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
        propose(u"Tray"_s, u"Upper"_s);
        print();
        PrintRequest other = request();
        QFile ppd(other.printers.constFirst().ppdPath);
        QVERIFY(ppd.open(QIODevice::ReadWrite));
        const QByteArray whole = ppd.readAll();
        QVERIFY(ppd.resize(0) && ppd.seek(0));
        QVERIFY(ppd.write(QByteArray(whole).replace("Film", "Foil")) > 0);
        ppd.close();
        m_scene->open(other);
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
        propose(u"Boost"_s, u"OFF"_s);
        print();
        QVERIFY(ppd.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ppd.write(whole);
        ppd.close();
        m_scene->open(other);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        // What somebody has taken back meanwhile stays taken back.
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
        QCOMPARE(task().settings().attribute(u"number-up"_s), u"2"_s);
    }

    // Such as what needs a part that is away for a day.
    void whatIsExcludedForOneJobIsRemembered()
    {
        const PrintRequest printed = request();
        const auto open = [&](const QByteArray &installed) {
            const PpdBuilder ppd =
                smallPrinter()
                    .line("*OpenGroup: InstallableOptions/Installed")
                    .option("Finisher", "Finisher", installed, {{"None", "None"}, {"Big", "Big"}})
                    .line("*CloseGroup: InstallableOptions")
                    .constraint("Finisher", "None", "Boost", "ON");
            writeFile(printed.printers.constFirst().ppdPath, ppd.text());
            m_scene->open(printed);
        };
        open("Big");
        propose(u"Boost"_s, u"ON"_s);
        print();
        open("None");
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
        propose(u"Tray"_s, u"Lower"_s);
        print();
        open("Big");
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
        QCOMPARE(marked(u"Tray"_s), u"Lower"_s);
    }

    void whatAProgramAskedForIsNotRemembered()
    {
        open(u"Media=Film"_s);
        propose(u"Boost"_s, u"ON"_s);
        print();
        open();
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
    }

    void aJobThatWasNotTakenIsNotRemembered()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        m_scene->face.overwrites = false;
        writeFile(m_scene->filter.output(), "there");
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ready));
        m_scene->task.reset();
        QCOMPARE(lastUsedFiles(), 0);
    }

    void withoutChangesNothingIsKept()
    {
        open();
        print();
        QCOMPARE(lastUsedFiles(), 0);
    }

    void switchedOffNothingIsRemembered()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        print();
        open().setRemembersLastUsed(false);
        QCOMPARE(lastUsedFiles(), 0);
        QVERIFY(!task().presets().hasLastUsed());
        propose(u"Boost"_s, u"ON"_s);
        print();
        QCOMPARE(lastUsedFiles(), 0);
        QVERIFY(!remembersLastUsed());
    }

    // What a script prints does not depend on what somebody printed before.
    void whoCannotChooseRemembersNothing()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        print();
        PrintRequest script = request();
        script.remembersLastUsed = false;
        m_scene->make(script).startUnattended();
        task().bringUp();
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
        propose(u"Boost"_s, u"ON"_s);
        print();
        open();
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
    }

    void aPresetThatIsNamedAtTheStartIsSelected()
    {
        open();
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(save(u"Reports"_s), QString());
        PrintRequest named = request();
        named.preset = u"Reports"_s;
        m_scene->open(named);
        QCOMPARE(task().presets().selectedName(), u"Reports"_s);
        QVERIFY(!task().presets().isChanged());
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        named.preset = u"Letters"_s;
        m_scene->open(named);
        QVERIFY(m_scene->face.message().contains(u"Reports"_s));
        QVERIFY(m_scene->face.message().contains(u"Letters"_s));
    }

    void aPresetOfARequestThatCannotBeSetIsNotKept()
    {
        PrintRequest script = request(u"Media=Cardboard"_s);
        m_scene->make(script).startUnattended();
        task().presets().save({u"Reports"_s, false, false, true});
        QCOMPARE(m_scene->face.refusals.size(), 1);
        m_scene->task.reset();
        QVERIFY(PresetStore(script.presetPlaces).listAll().presets.isEmpty());
    }

    void aScriptKeepsWhatItAsksFor()
    {
        PrintRequest script = request(u"Media=Film number-up=2"_s);
        script.presetToSave = u"Reports"_s;
        m_scene->make(script).startUnattended();
        QCOMPARE(save(u"Reports"_s), QString());
        const Preset preset =
            PresetStore(script.presetPlaces).listAll().presets.constFirst().preset;
        QCOMPARE(preset.content.options.value(u"Media"_s), u"Film"_s);
        QCOMPARE(preset.content.attributes.value(u"number-up"_s), u"2"_s);
        QVERIFY(preset.changed.contains(u"Media"_s));
    }

    void aPrinterThatWasLeftComesBackUnderTheSameName()
    {
        PrintRequest two = request();
        two.printers = {m_scene->printer(u"office"_s, smallPrinter().text()),
                        m_scene->printer(u"other"_s, smallPrinter().text())};
        m_scene->open(two);
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(save(u"Reports"_s), QString());
        propose(u"Boost"_s, u"ON"_s);
        task().choosePrinter(two.printers.at(1));
        task().bringUp();
        QCOMPARE(task().presets().selected().kind, Kind::Defaults);
        task().choosePrinter(two.printers.at(0));
        task().bringUp();
        QCOMPARE(task().presets().selectedName(), u"Reports"_s);
        QVERIFY(task().presets().isChanged());
    }

    void aDamagedPresetIsSaidOnce()
    {
        open();
        QCOMPARE(save(u"Reports"_s), QString());
        const QString path = task().presets().listing().presets.constFirst().path;
        writeFile(path, "{");
        m_scene->face.messages.clear();
        open();
        QTRY_COMPARE(m_scene->face.messages.size(), 1);
        QVERIFY(m_scene->face.message().contains(path));
        task().presets().look();
        QTest::qWait(200);
        QCOMPARE(m_scene->face.messages.size(), 1);
    }
};

QTEST_MAIN(TaskPresetsTest)
#include "task_presets_test.moc"
