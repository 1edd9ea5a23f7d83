#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/SettingsValues.h"
#include "dialog/task/TaskHistory.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

namespace {

constexpr int kPrintPanel = 0;
constexpr int kColorPanel = 1;

struct NamedCase
{
    const char *name;
    void (*act)(PrintTask &task);
    QString undoText;
    bool isOneStepWhenRepeated; // with another value
    void (*actAgain)(PrintTask &task);
};

// Of the office printer, which has no panels.
const QList<NamedCase> kNamed{
    {"an option", [](PrintTask &task) { task.propose(u"Media"_s, u"Card"_s); },
     u"Undo Paper Type"_s, false, [](PrintTask &task) { task.propose(u"Media"_s, u"Film"_s); }},
    {"a value of an option", [](PrintTask &task) { task.propose(u"Sleep"_s, u"Custom.12"_s); },
     u"Undo Sleep Time"_s, true, [](PrintTask &task) { task.propose(u"Sleep"_s, u"Custom.13"_s); }},
    {"copies", [](PrintTask &task) { task.setCopies(2); }, u"Undo Copies"_s, true,
     [](PrintTask &task) { task.setCopies(12); }},
    {"pages", [](PrintTask &task) { task.setPageRanges(u"1"_s); }, u"Undo Pages"_s, true,
     [](PrintTask &task) { task.setPageRanges(u"1-3"_s); }},
    {"a word of an attribute", [](PrintTask &task) { task.setAttribute(u"number-up"_s, u"2"_s); },
     u"Undo Pages per Sheet"_s, false,
     [](PrintTask &task) { task.setAttribute(u"number-up"_s, u"4"_s); }},
    {"a number of an attribute",
     [](PrintTask &task) { task.setAttribute(u"job-priority"_s, u"7"_s); }, u"Undo Priority"_s,
     true, [](PrintTask &task) { task.setAttribute(u"job-priority"_s, u"70"_s); }},
};

} // namespace

/// What a user has done to a task's settings is taken back and done again, one event at a time.
class TaskHistoryTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &task() { return *m_scene->task; }
    PanelHost &panels() { return *task().opened()->panels; }
    PpdSession &session() { return m_scene->session(); }
    PrintTask &openOffice() { return m_scene->open(m_scene->request(officePrinter())); }
    Printer sample() { return {u"cl5"_s, u"CL"_s, samplePpdPath(), 5}; }
    PrintTask &openSample() { return m_scene->open(m_scene->request({sample()})); }
    QSlider *slider(const QString &name)
    {
        const QPointer<QWidget> view = panels().views().value(kColorPanel);
        return view ? view->findChild<QSlider *>(name) : nullptr;
    }
    QStringList paths()
    {
        QStringList paths;
        for (const Document &document : task().documents())
            paths += document.path;
        return paths;
    }
    // The panels are done, and the step is recorded.
    static void settle() { QTest::qWait(1); }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup() { m_scene.reset(); }

    void documentsAreASettingOfTheUsersToo()
    {
        openOffice();
        const QString first = task().documents().constFirst().path;
        const QString second = sourceFile(u"tests/data/page.txt"_s);
        task().addDocuments({second});
        QCOMPARE(task().history().undoText(), u"Undo Documents"_s);
        task().propose(u"Media"_s, u"Card"_s);
        settle();
        task().moveDocument(1, 0);
        task().removeDocument(1);
        QCOMPARE(paths(), QStringList{second});
        task().history().undo();
        QCOMPARE(paths(), (QStringList{second, first}));
        task().history().undo();
        QCOMPARE(paths(), (QStringList{first, second}));
        QCOMPARE(session().markedChoice(u"Media"_s), u"Card"_s);
        QCOMPARE(task().history().undoText(), u"Undo Paper Type"_s);
        task().history().undo();
        QVERIFY(session().markedChoice(u"Media"_s) != u"Card"_s);
        QCOMPARE(paths(), (QStringList{first, second}));
        task().history().undo();
        QCOMPARE(paths(), QStringList{first});
        QVERIFY(!task().history().canUndo());
        for (int i = 0; i < 4; ++i)
            task().history().redo();
        QCOMPARE(paths(), QStringList{second});
        QCOMPARE(session().markedChoice(u"Media"_s), u"Card"_s);
        QVERIFY(!task().history().canRedo());
    }

    void defaultsOfThePrinterLeaveDocumentsAlone()
    {
        openOffice();
        task().propose(u"Media"_s, u"Card"_s);
        settle();
        task().addDocuments({sourceFile(u"tests/data/page.txt"_s)});
        const QStringList both = paths();
        task().history().resetAll();
        QCOMPARE(paths(), both);
        QVERIFY(session().markedChoice(u"Media"_s) != u"Card"_s);
        task().history().undo();
        QCOMPARE(paths(), both);
        QCOMPARE(session().markedChoice(u"Media"_s), u"Card"_s);
    }

    // What is added while another printer is asked for is no part of choosing that printer.
    void documentsThatComeWhileAPrinterIsAskedForAreAStepOfTheirOwn()
    {
        const Printer office = m_scene->printer(u"office"_s, officePrinter().text());
        m_scene->open(m_scene->request({office, sample()}));
        connect(&task(), &PrintTask::phaseChanged, this, [this](Phase phase) {
            if (phase == Phase::Fetching)
                task().addDocuments({sourceFile(u"tests/data/page.txt"_s)});
        });
        task().choosePrinter(sample());
        task().bringUp();
        settle();
        QCOMPARE(task().documents().size(), 2);
        QCOMPARE(task().history().undoText(), u"Undo Printer"_s);
        // On the way back another one comes.
        task().history().undo();
        task().bringUp();
        settle();
        QCOMPARE(task().printer().name, u"office"_s);
        for (const int left : {3, 2}) {
            QCOMPARE(task().documents().size(), left);
            QCOMPARE(task().history().undoText(), u"Undo Documents"_s);
            task().history().undo();
        }
        QCOMPARE(task().documents().size(), 1);
        QCOMPARE(task().printer().name, u"office"_s);
    }

    void aStepIsCalledByWhatWasSet_data() { addRows(kNamed); }
    void aStepIsCalledByWhatWasSet()
    {
        const NamedCase &row = currentRow(kNamed);
        openOffice();
        QVERIFY(!task().history().canUndo());
        QCOMPARE(task().history().undoText(), u"Undo"_s);
        const TaskSettings before = task().settingsNow();
        row.act(task());
        settle();
        QVERIFY(task().history().canUndo());
        QCOMPARE(task().history().undoText(), row.undoText);
        const TaskSettings after = task().settingsNow();
        QVERIFY(!(after == before));
        task().history().undo();
        QVERIFY(task().settingsNow() == before);
        QVERIFY(!task().history().canUndo());
        QCOMPARE(task().history().redoText(), QString(row.undoText).replace(u"Undo"_s, u"Redo"_s));
        task().history().redo();
        QVERIFY(task().settingsNow() == after);
        QVERIFY(!task().history().canRedo());
    }

    void onlyWhatIsTypedOrMovedGoesOn_data() { addRows(kNamed); }
    void onlyWhatIsTypedOrMovedGoesOn()
    {
        const NamedCase &row = currentRow(kNamed);
        openOffice();
        const TaskSettings before = task().settingsNow();
        row.act(task());
        settle();
        const TaskSettings between = task().settingsNow();
        row.actAgain(task());
        settle();
        task().history().undo();
        QVERIFY(task().settingsNow() == (row.isOneStepWhenRepeated ? before : between));
    }

    void aFieldThatIsLeftEndsItsStep()
    {
        openOffice();
        task().setCopies(2);
        task().history().endStep();
        task().setCopies(3);
        settle();
        task().history().undo();
        QCOMPARE(task().settings().copies(), 2);
    }

    void whatHasNotBeenRecordedYetIsTakenBackToo()
    {
        openOffice();
        task().setCopies(2);
        task().history().undo(); // before the event loop has come round
        QCOMPARE(task().settings().copies(), 1);
        QVERIFY(task().history().canRedo());
    }

    void aRefusedChoiceIsNoStep()
    {
        openOffice();
        task().propose(u"Media"_s, u"Film"_s);
        settle();
        task().propose(u"Staple"_s, u"Left"_s);
        settle();
        QCOMPARE(task().history().undoText(), u"Undo Paper Type"_s);
    }

    void takingAnOfferIsOneStep()
    {
        openOffice();
        task().propose(u"Media"_s, u"Film"_s);
        settle();
        const TaskSettings before = task().settingsNow();
        task().propose(u"Staple"_s, u"Left"_s);
        QVERIFY(m_scene->face.messages.constLast().take);
        m_scene->face.messages.constLast().take();
        settle();
        QCOMPARE(session().markedChoice(u"Staple"_s), u"Left"_s);
        task().history().undo();
        QVERIFY(task().settingsNow() == before);
    }

    void aPickOnAPanelIsOneStepWithAllThatItsRulesDo()
    {
        openSample();
        QVERIFY(panels().visit(kPrintPanel));
        settle();
        QVERIFY(!task().history().canUndo());
        const TaskSettings before = task().settingsNow();
        // The envelope brings its own rules, and says how it is loaded.
        m_scene->face.presenter.expect();
        QVERIFY(panels().pick(u"QXMediaType"_s, u"Env"_s));
        settle();
        QVERIFY(
            differences(before, task().settingsNow(), *task().opened()).contains(u"QXMediaType"_s));
        QCOMPARE(task().history().undoText(), u"Undo Media Type"_s);
        const TaskSettings after = task().settingsNow();
        const qsizetype alerts = m_scene->face.presenter.shown().size();
        task().history().undo();
        QVERIFY(task().settingsNow() == before);
        QVERIFY(!task().history().canUndo());
        task().history().redo();
        QVERIFY(task().settingsNow() == after);
        settle();
        QVERIFY(task().settingsNow() == after);
        QCOMPARE(m_scene->face.presenter.shown().size(), alerts); // it was read already
    }

    void aPaperThatBringsAMediumIsOneStep()
    {
        openSample();
        const TaskSettings before = task().settingsNow();
        m_scene->face.presenter.expect();
        task().propose(kPageSizeOption, u"EnvDL"_s);
        settle();
        QCOMPARE(session().markedChoice(u"QXMediaType"_s), u"Env"_s);
        QCOMPARE(task().history().undoText(), u"Undo Paper Size"_s);
        const TaskSettings after = task().settingsNow();
        task().history().undo();
        settle();
        QVERIFY(task().settingsNow() == before);
        QCOMPARE(session().pageFormat(), before.session.pageFormat);
        task().history().redo();
        settle();
        QVERIFY(task().settingsNow() == after);
        QCOMPARE(m_scene->face.presenter.shown().size(), 1);
    }

    void oneDragOfASliderIsOneStep()
    {
        openSample();
        QVERIFY(panels().visit(kPrintPanel));
        QVERIFY(panels().pick(u"QXMonoColor"_s, u"Color"_s));
        QVERIFY(panels().visit(kColorPanel));
        settle();
        const TaskSettings before = task().settingsNow();
        QSlider *brightness = slider(u"brightnessSlider"_s);
        QVERIFY(brightness);
        for (const int value : {2, 5, 9}) {
            brightness->setValue(value);
            settle();
        }
        QCOMPARE(task().history().undoText(), u"Undo Brightness"_s);
        task().history().endStep(); // let go
        brightness->setValue(-4);
        settle();
        task().history().undo();
        QCOMPARE(brightness->value(), 9);
        task().history().undo();
        QVERIFY(task().settingsNow() == before);
        QCOMPARE(brightness->value(), 0);
        task().history().redo();
        task().history().redo();
        QCOMPARE(brightness->value(), -4);
    }

    void lookingAtAPageIsNoStep()
    {
        openSample();
        for (const int panel : {kPrintPanel, kColorPanel, -1, kPrintPanel, -1}) {
            QVERIFY(panels().visit(panel));
            task().showSettings();
            task().summary();
            settle();
        }
        QVERIFY(!task().history().canUndo());
        QCOMPARE(task().history().changedSettings(), QStringList());
    }

    void anotherPrinterIsAStep()
    {
        const Printer office = m_scene->printer(u"office"_s, officePrinter().text());
        m_scene->open(m_scene->request({sample(), office}));
        QVERIFY(panels().visit(kPrintPanel));
        task().setCopies(3);
        settle();
        const TaskSettings before = task().settingsNow();
        task().choosePrinter(office);
        task().bringUp();
        settle();
        QCOMPARE(task().history().undoText(), u"Undo Printer"_s);
        task().propose(u"Media"_s, u"Card"_s);
        settle();
        const TaskSettings after = task().settingsNow();
        task().history().undo();
        task().history().undo();
        QVERIFY(task().phase() != Phase::Ready);
        QVERIFY(!task().history().canUndo());
        task().bringUp();
        QVERIFY(task().settingsNow() == before);
        QCOMPARE(task().history().undoText(), u"Undo Copies"_s);
        task().history().redo();
        task().bringUp();
        task().history().redo();
        settle();
        QVERIFY(task().settingsNow() == after);
    }

    void nothingIsTakenBackWhileAJobIsMade()
    {
        openOffice();
        task().setCopies(2);
        settle();
        bool could = true;
        QObject::connect(&task(), &PrintTask::phaseChanged, &task(), [&](Phase phase) {
            if (phase == Phase::Asking || phase == Phase::Printing)
                could = task().history().canUndo() || task().history().canRedo();
        });
        task().print();
        QVERIFY(!could);
        QVERIFY(!task().history().canUndo());
        task().history().undo();
        QCOMPARE(task().settings().copies(), 2);
        QVERIFY(m_scene->reaches(Phase::Ended));
    }

    void onlyWhatDiffersFromTheStartIsChanged()
    {
        PrintRequest request = m_scene->request(officePrinter());
        request.options = parseOptions({u"Tray=Lower number-up=2"_s});
        m_scene->open(request);
        // What was asked for is no part of where the printer starts.
        QCOMPARE(task().history().changedSettings(), (QStringList{u"Tray"_s, u"number-up"_s}));
        task().propose(u"Media"_s, u"Card"_s);
        task().setAttribute(u"number-up"_s, u"4"_s);
        task().setCopies(2);
        task().setPageRanges(u"1"_s);
        QCOMPARE(task().history().changedSettings(),
                 (QStringList{u"Media"_s, u"Tray"_s, u"number-up"_s}));
        QCOMPARE(task().history().backText(), u"Back to Printer Defaults"_s);
        QCOMPARE(task().history().baseText(u"Media"_s), u"Plain Paper"_s);
        QVERIFY(task().history().baseText(u"number-up"_s).isNull());
        SettingsBase base{task().settingsNow(), u"Reports"_s};
        task().history().setBase(base);
        QCOMPARE(task().history().changedSettings(), QStringList());
        QCOMPARE(task().history().backText(), u"Back to Reports"_s);
        QCOMPARE(task().history().baseText(u"Media"_s), u"Card"_s);
    }

    void oneSettingGoesBack()
    {
        openOffice();
        task().propose(u"Media"_s, u"Card"_s);
        task().propose(u"Tray"_s, u"Lower"_s);
        task().setAttribute(u"number-up"_s, u"4"_s);
        settle();
        const TaskSettings before = task().settingsNow();
        task().history().resetSettings({u"Media"_s});
        QCOMPARE(task().history().changedSettings(), (QStringList{u"Tray"_s, u"number-up"_s}));
        QCOMPARE(task().history().undoText(), u"Undo Paper Type"_s);
        task().history().undo();
        QVERIFY(task().settingsNow() == before);
        task().history().resetSettings({u"number-up"_s});
        QCOMPARE(task().history().changedSettings(), (QStringList{u"Media"_s, u"Tray"_s}));
    }

    void aTrayGoesBackWithTheFeedingByHand()
    {
        m_scene->open(m_scene->request(
            PpdBuilder()
                .option("InputSlot", "Tray", "Upper", {{"Upper", "Upper"}, {"Lower", "Lower"}})
                .option("ManualFeed", "By Hand", "False", {{"True", "Yes"}, {"False", "No"}})));
        task().propose(u"InputSlot"_s, u"Lower"_s);
        task().history().setBase({task().settingsNow(), u"Reports"_s});
        task().propose(u"ManualFeed"_s, u"True"_s);
        task().history().resetSettings({u"ManualFeed"_s});
        QCOMPARE(session().markedChoice(u"InputSlot"_s), u"Lower"_s);
        QCOMPARE(task().history().changedSettings(), QStringList());
    }

    void everythingGoesBackInOneStep()
    {
        openSample();
        const TaskSettings start = task().settingsNow();
        QVERIFY(panels().visit(kPrintPanel));
        m_scene->face.presenter.expect();
        QVERIFY(panels().pick(u"QXMediaType"_s, u"Env"_s));
        task().setAttribute(u"number-up"_s, u"4"_s);
        task().setCopies(2);
        task().setPageRanges(u"1"_s);
        settle();
        const TaskSettings before = task().settingsNow();
        QVERIFY(!task().history().changedSettings().isEmpty());
        task().history().resetAll();
        QCOMPARE(task().history().changedSettings(), QStringList());
        QCOMPARE(task().settings().copies(), 2); // of this job alone
        QCOMPARE(task().settings().pageRanges(), u"1"_s);
        QCOMPARE(task().settingsNow().session.marks, start.session.marks);
        QCOMPARE(task().history().undoText(), u"Undo Reset"_s);
        task().history().undo();
        QVERIFY(task().settingsNow() == before);
    }

    void aResetThatCollidesIsSaidByName()
    {
        openOffice();
        task().propose(u"Staple"_s, u"Left"_s);
        task().history().setBase({task().settingsNow(), u"Reports"_s});
        task().propose(u"Staple"_s, u"OFF"_s);
        task().propose(u"Media"_s, u"Film"_s);
        settle();
        task().history().resetSettings({u"Staple"_s});
        QVERIFY2(m_scene->face.message().contains(u"Staple"_s),
                 qPrintable(m_scene->face.message()));
        QVERIFY(task().history().changedSettings().contains(u"Staple"_s));
        m_scene->face.messages.clear();
        task().history().resetSettings({u"Staple"_s, u"Media"_s});
        QVERIFY(m_scene->face.messages.isEmpty());
        QCOMPARE(task().history().changedSettings(), QStringList());
    }

    void aPrinterThatIsLeftKeepsWhatItsChangesAreComparedWith()
    {
        const Printer office = m_scene->printer(u"office"_s, officePrinter().text());
        m_scene->open(m_scene->request({office, sample()}));
        task().propose(u"Media"_s, u"Card"_s);
        settle();
        task().choosePrinter(sample());
        task().bringUp();
        QCOMPARE(task().history().changedSettings(), QStringList());
        task().choosePrinter(office);
        task().bringUp();
        QCOMPARE(task().history().changedSettings(), (QStringList{u"Media"_s}));
    }
};

QTEST_MAIN(TaskHistoryTest)
#include "task_history_test.moc"
