#include <QTest>

#include "dialog/task/SettingsHistory.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

TaskSettings state(int number)
{
    TaskSettings settings;
    settings.session.marks.insert(u"Tray"_s, QString::number(number));
    return settings;
}

// As large as those of a printer with very many options.
TaskSettings largeState(int number)
{
    TaskSettings settings = state(number);
    for (int option = 0; option < 10000; ++option)
        settings.session.marks.insert(u"Option%1"_s.arg(option), u"Choice"_s);
    return settings;
}

SettingsHistory::Step step(const QString &name, bool goesOn = false)
{
    return {name, {name}, goesOn};
}

SettingsHistory begun()
{
    SettingsHistory history;
    history.begin(state(0));
    return history;
}

} // namespace

/// The steps of a user, and the way back over them.
class SettingsHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHistoryBeginsWithNothingToTakeBack()
    {
        SettingsHistory history;
        QVERIFY(!history.hasBegun());
        QVERIFY(!history.canUndo());
        QVERIFY(!history.canRedo());
        history.begin(state(0));
        QVERIFY(history.hasBegun());
        QVERIFY(!history.canUndo());
        QVERIFY(!history.canRedo());
        QCOMPARE(history.undoName(), QString());
        QVERIFY(history.present() == state(0));
    }

    void stepsGoBackAndForwardInTheirOrder()
    {
        SettingsHistory history = begun();
        history.add(state(1), step(u"Tray"_s));
        history.add(state(2), step(u"Media"_s));
        QCOMPARE(history.undoName(), u"Media"_s);
        QVERIFY(history.undo() == state(1));
        QCOMPARE(history.undoName(), u"Tray"_s);
        QCOMPARE(history.redoName(), u"Media"_s);
        QVERIFY(history.undo() == state(0));
        QVERIFY(!history.canUndo());
        QVERIFY(history.redo() == state(1));
        QVERIFY(history.redo() == state(2));
        QVERIFY(!history.canRedo());
        QVERIFY(history.present() == state(2));
    }

    void aNewStepEndsWhatCouldBeDoneAgain()
    {
        SettingsHistory history = begun();
        history.add(state(1), step(u"Tray"_s));
        history.add(state(2), step(u"Media"_s));
        history.undo();
        history.undo();
        history.add(state(3), step(u"Sleep"_s));
        QVERIFY(!history.canRedo());
        QCOMPARE(history.count(), 1);
        QVERIFY(history.undo() == state(0));
    }

    void whatIsTypedIntoOneFieldIsOneStep()
    {
        SettingsHistory history = begun();
        history.add(state(1), step(u"Copies"_s, true));
        history.add(state(12), step(u"Copies"_s, true));
        QCOMPARE(history.count(), 1);
        QVERIFY(history.present() == state(12));
        QVERIFY(history.undo() == state(0));
        QVERIFY(history.redo() == state(12));
    }

    void aFieldThatWasLeftBeginsAnotherStep()
    {
        SettingsHistory history = begun();
        history.add(state(1), step(u"Copies"_s, true));
        history.endStep();
        history.add(state(12), step(u"Copies"_s, true));
        QCOMPARE(history.count(), 2);
        QVERIFY(history.undo() == state(1));
    }

    void anotherSettingIsAnotherStep()
    {
        SettingsHistory history = begun();
        history.add(state(1), step(u"Copies"_s, true));
        history.add(state(2), step(u"Pages"_s, true));
        history.add(state(3), step(u"Pages"_s));
        QCOMPARE(history.count(), 3);
    }

    void aStepThatWasDoneAgainTakesInNothing()
    {
        SettingsHistory history = begun();
        history.add(state(1), step(u"Copies"_s, true));
        history.undo();
        history.redo();
        history.add(state(2), step(u"Copies"_s, true));
        QCOMPARE(history.count(), 2);
    }

    void typingThatComesToNothingLeavesNoStep()
    {
        SettingsHistory history = begun();
        history.add(state(1), step(u"Copies"_s, true));
        history.add(state(0), step(u"Copies"_s, true));
        QCOMPARE(history.count(), 0);
        QVERIFY(!history.canUndo());
        QVERIFY(history.present() == state(0));
    }

    void whatNobodyDidIsNoStep()
    {
        SettingsHistory history = begun();
        history.add(state(1), step(u"Tray"_s));
        history.undo();
        history.replacePresent(state(7));
        QVERIFY(history.canRedo());
        QVERIFY(history.present() == state(7));
        history.redo();
        QVERIFY(history.undo() == state(7));
    }

    void theOldestStepsAreForgotten()
    {
        SettingsHistory history = begun();
        constexpr int kMany = SettingsHistory::kMostSteps + 50;
        for (int i = 1; i <= kMany; ++i)
            history.add(state(i), step(u"Tray"_s));
        QCOMPARE(history.count(), SettingsHistory::kMostSteps);
        QVERIFY(history.present() == state(kMany));
        while (history.canUndo())
            history.undo();
        QVERIFY(history.present() == state(50));
    }

    void largeStatesAreKeptInBounds()
    {
        SettingsHistory history;
        history.begin(largeState(0));
        for (int i = 1; i <= 30; ++i)
            history.add(largeState(i), step(u"Tray"_s));
        QVERIFY2(history.count() < 10, qPrintable(QString::number(history.count())));
        QVERIFY(history.count() > 1);
        QVERIFY(history.present() == largeState(30));
        QVERIFY(history.undo() == largeState(29));
    }

    void thePrinterIsComparedByWhatItIs()
    {
        TaskSettings one = state(1);
        one.printer = Printer{u"lobby"_s, u"Lobby"_s, {}, 0, PrinterOrigin::Queue};
        TaskSettings other = one;
        other.printer.stateMessage = u"Toner is low"_s;
        QVERIFY(one == other);
        other.printer.name = u"hall"_s;
        QVERIFY(!(one == other));
        other = one;
        other.ppdHash = "another";
        QVERIFY(!(one == other));
        other = one;
        other.job.setPageRanges(u"2"_s);
        QVERIFY(!(one == other));
    }
};

QTEST_MAIN(SettingsHistoryTest)
#include "settings_history_test.moc"
