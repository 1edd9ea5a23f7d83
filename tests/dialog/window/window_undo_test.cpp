#include <algorithm>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopeGuard>
#include <QSlider>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <QTranslator>
#include <QTreeView>

#include "dialog/session/OptionNames.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "dialog/window/PresetButton.h"
#include "dialog/window/PresetMenu.h"
#include "dialog/window/PrintWindow.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/Gestures.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kGeneralPage = 0;
constexpr int kPrintPage = 1;
constexpr int kColorPage = 2;
constexpr int kOptionsPage = 1; // of a printer without panels

} // namespace

/// What is undone by keys and buttons, what is marked as changed, and the ways back and to a
/// setting, in a whole window.
class WindowUndoTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<WindowDriver> m_window;

    void open(const QString &ppdPath)
    {
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.title = u"Job"_s;
        request.output = m_filter->output();
        request.bundleRoots = builtBundleRoots();
        request.printers = {{u"printer"_s, u"Printer"_s, ppdPath, 5}};
        m_window = std::make_unique<WindowDriver>(request, WindowDriver::Activation::Yes);
        QTRY_COMPARE(task().phase(), PrintTask::Phase::Ready);
        QTRY_VERIFY(m_window->child<QTableWidget>(u"summary"_s));
    }
    void openOffice() { open(writeFile(m_filter->ppdPath(), officePrinter().text())); }
    void openSample() { open(samplePpdPath()); }

    PrintTask &task() { return m_window->dialog().task(); }
    template <typename Child> Child *child(const QString &name)
    {
        return m_window->child<Child>(name);
    }
    QToolButton *undo() { return child<QToolButton>(u"undo"_s); }
    QToolButton *redo() { return child<QToolButton>(u"redo"_s); }
    void focus(QWidget *widget)
    {
        widget->setFocus();
        QTRY_VERIFY(widget->hasFocus());
    }
    // To whatever has the focus, as a keyboard does.
    void press(QKeyCombination keys)
    {
        QWidget *widget = m_window->dialog().focusWidget();
        QTest::keyClick(widget ? widget : &m_window->dialog(), keys.key(),
                        keys.keyboardModifiers());
        QTest::qWait(1);
    }
    void type(const QString &text)
    {
        QTest::keyClicks(m_window->dialog().focusWidget(), text);
        QTest::qWait(1);
    }
    // The dots that are seen on the page that is shown.
    int dots()
    {
        int shown = 0;
        const auto all = m_window->pages()->currentWidget()->findChildren<QWidget *>(u"changed"_s);
        for (const QWidget *dot : all)
            shown += dot->isVisible() ? 1 : 0;
        return shown;
    }
    // How often a screen reader was told so; as far as it is kept.
    qsizetype announced(const QString &text)
    {
        const auto all = m_window->dialog().findChildren<QWidget *>(u"announcement"_s);
        return std::count_if(all.cbegin(), all.cend(),
                             [&](const QWidget *one) { return one->accessibleName() == text; });
    }
    QStringList summaryTitles()
    {
        QStringList titles;
        for (const auto &[title, value] : m_window->summaryLines())
            titles += title;
        return titles;
    }

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init()
    {
        m_filter = std::make_unique<FakeFilter>("printf '%s\\n' \"$@\" >$DIR/arguments; echo ok\n");
    }
    void cleanup()
    {
        m_window.reset();
        m_filter.reset();
    }

    void theButtonSaysWhatItTakesBack()
    {
        openOffice();
        QVERIFY(undo() && redo());
        QVERIFY(!undo()->isEnabled() && !redo()->isEnabled());
        QVERIFY(pick(child<QComboBox>(kDuplexOption), u"Long Edge"_s));
        QTRY_VERIFY(undo()->isEnabled());
        QVERIFY2(undo()->text().startsWith(u"Undo "_s), qPrintable(undo()->text()));
        QCOMPARE(undo()->accessibleName(), task().history().undoText());
        QVERIFY(undo()->toolTip().contains(u"Ctrl+Z"_s));
        undo()->click();
        QVERIFY(!undo()->isEnabled());
        QTRY_VERIFY(redo()->isEnabled());
        QVERIFY(redo()->accessibleName().startsWith(u"Redo "_s));
        redo()->click();
        QCOMPARE(task().opened()->session->markedChoice(kDuplexOption), u"DuplexNoTumble"_s);
        QCOMPARE(child<QComboBox>(kDuplexOption)->currentText(), u"Long Edge"_s);
    }

    // On a page that nobody may be looking at.
    void whatWasTakenBackIsSaidOnce()
    {
        openOffice();
        QVERIFY(pick(child<QComboBox>(kDuplexOption), u"Long Edge"_s));
        QTRY_VERIFY(undo()->isEnabled());
        const QString undone = task().history().undoText();
        press(Qt::CTRL | Qt::Key_Z);
        press(Qt::CTRL | Qt::Key_Z); // there is nothing
        QCOMPARE(announced(undone), 1);
        redo()->click();
        QCOMPARE(announced(task().history().undoText().replace(u"Undo"_s, u"Redo"_s)), 1);
        // A change that nobody has recorded yet is the step that goes back.
        task().setCopies(4);
        QTest::keyClick(&m_window->dialog(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(announced(u"Undo Copies"_s), 1);
        QCOMPARE(announced(undone), 1);
    }

    // What is in force is read before what can be taken back, in the longest of languages.
    void theNameOfThePresetHasRoomFirst_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"de", "fr", "pt_BR", "ja"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }
    void theNameOfThePresetHasRoomFirst()
    {
        QFETCH(QString, language);
        QTranslator translator;
        QVERIFY(translator.load(u"corvana-print_"_s + language, sharedFile(u"translations"_s)));
        QCoreApplication::installTranslator(&translator);
        const auto gone = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });
        openSample();
        task().propose(u"QXEnhanceBlkPrt"_s, u"ON"_s);
        QTRY_VERIFY(undo()->isEnabled());
        const auto *preset = qobject_cast<PresetButton *>(child<QToolButton>(u"preset"_s));
        QTRY_VERIFY2(preset->width() >= preset->wholeWidth(),
                     qPrintable(u"%1 of %2: %3"_s.arg(preset->width())
                                    .arg(preset->wholeWidth())
                                    .arg(preset->text())));
        QVERIFY(preset->text() != presetLabel(task().presets().selectedName())); // "(changed)"
        QVERIFY(undo()->accessibleName().contains(u"Enhance Black Printing"_s));
        QVERIFY(undo()->toolTip().contains(u"Enhance Black Printing"_s));
        const bool hasText = undo()->toolButtonStyle() != Qt::ToolButtonIconOnly;
        QVERIFY(undo()->width() >=
                (hasText ? 5 * undo()->fontMetrics().height() : undo()->iconSize().width()));
        m_window.reset();
    }

    void typingIsTakenBackByItsFieldFirst()
    {
        openOffice();
        QVERIFY(pick(child<QComboBox>(kDuplexOption), u"Long Edge"_s));
        auto *ranges = child<QLineEdit>(u"pageRanges"_s);
        focus(ranges);
        type(u"2-3"_s);
        QCOMPARE(task().settings().pageRanges(), u"2-3"_s);
        press(Qt::CTRL | Qt::Key_Z);
        QCOMPARE(ranges->text(), QString());
        QCOMPARE(task().settings().pageRanges(), QString());
        QCOMPARE(task().opened()->session->markedChoice(kDuplexOption), u"DuplexNoTumble"_s);
        // Nothing of the typing is left: the step before it goes back.
        press(Qt::CTRL | Qt::Key_Z);
        QVERIFY(task().opened()->session->markedChoice(kDuplexOption) != u"DuplexNoTumble"_s);
        press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
        press(Qt::CTRL | Qt::Key_Y);
        QCOMPARE(task().opened()->session->markedChoice(kDuplexOption), u"DuplexNoTumble"_s);
    }

    void stepsOfANumberAreOneUntilItIsLeft()
    {
        openOffice();
        auto *copies = child<QSpinBox>(u"copies"_s);
        focus(copies);
        for (int i = 0; i < 3; ++i)
            press(Qt::Key_Up);
        QCOMPARE(task().settings().copies(), 4);
        focus(child<QLineEdit>(u"pageRanges"_s));
        focus(copies);
        press(Qt::Key_Up);
        QCOMPARE(task().settings().copies(), 5);
        press(Qt::CTRL | Qt::Key_Z);
        QCOMPARE(copies->value(), 4);
        press(Qt::CTRL | Qt::Key_Z);
        QCOMPARE(copies->value(), 1);
        QVERIFY(!undo()->isEnabled());
        press(Qt::CTRL | Qt::Key_Y);
        QCOMPARE(copies->value(), 4);
    }

    void theKeysWorkInAList()
    {
        openOffice();
        m_window->showPage(kOptionsPage);
        auto *options = child<QTreeView>(u"options"_s);
        QVERIFY(options);
        task().propose(u"Media"_s, u"Card"_s);
        focus(options);
        QTRY_VERIFY(undo()->isEnabled());
        press(Qt::CTRL | Qt::Key_Z);
        QCOMPARE(task().opened()->session->markedChoice(u"Media"_s), u"Plain"_s);
        press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
        QCOMPARE(task().opened()->session->markedChoice(u"Media"_s), u"Card"_s);
    }

    void theKeysWorkOnAPanel()
    {
        openSample();
        QVERIFY(m_window->waitForPanels(2));
        m_window->showPage(kPrintPage);
        QWidget *panel = m_window->waitForPanel(kPrintPage);
        auto *media = panel->findChild<QComboBox *>(u"mediaTypePopup"_s);
        QVERIFY(media);
        const QString before = media->currentText();
        focus(media);
        QTest::keyClick(media, Qt::Key_Down);
        QTRY_VERIFY(undo()->isEnabled());
        QVERIFY(media->currentText() != before);
        press(Qt::CTRL | Qt::Key_Z);
        QCOMPARE(media->currentText(), before);
        QVERIFY(!undo()->isEnabled());
    }

    void oneDragOfASliderIsOneStep()
    {
        openSample();
        QVERIFY(m_window->waitForPanels(2));
        task().propose(u"QXMonoColor"_s, u"Color"_s);
        m_window->showPage(kColorPage);
        QWidget *panel = m_window->waitForPanel(kColorPage);
        auto *slider = panel->findChild<QSlider *>(u"brightnessSlider"_s);
        QVERIFY(slider && slider->isEnabled());
        QTest::qWait(1);
        task().history().endStep();
        const QString before = task().history().undoText();
        for (const int value : {3, 7}) {
            QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(1, 1));
            slider->setValue(value - 1);
            QTest::qWait(1);
            slider->setValue(value);
            QTest::qWait(1);
            QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(1, 1));
            QTest::qWait(1);
        }
        const int last = slider->value();
        focus(slider);
        press(Qt::CTRL | Qt::Key_Z);
        QVERIFY(slider->value() != last);
        while (task().history().canUndo() && task().history().undoText() != before)
            press(Qt::CTRL | Qt::Key_Z);
        QCOMPARE(slider->value(), 0);
    }

    void whatIsChangedIsMarkedWithWhatItWas()
    {
        openOffice();
        QCOMPARE(dots(), 0);
        auto *duplex = child<QComboBox>(kDuplexOption);
        QVERIFY(pick(duplex, u"Long Edge"_s));
        QTRY_COMPARE(dots(), 1);
        auto *dot = m_window->pages()->currentWidget()->findChild<QWidget *>(u"changed"_s);
        QVERIFY2(dot->toolTip().contains(u"Printer Defaults"_s), qPrintable(dot->toolTip()));
        QVERIFY2(duplex->accessibleDescription().startsWith(u"Changed."_s),
                 qPrintable(duplex->accessibleDescription()));
        QVERIFY(pick(child<QComboBox>(u"number-up"_s), u"4"_s));
        QTRY_COMPARE(dots(), 2);
        press(Qt::CTRL | Qt::Key_Z);
        QTRY_COMPARE(dots(), 1);
        undo()->click();
        QTRY_COMPARE(dots(), 0);
        QCOMPARE(duplex->accessibleDescription(), QString());
    }

    void aMarkOnAPanelMovesNothing()
    {
        openSample();
        QVERIFY(m_window->waitForPanels(2));
        m_window->showPage(kPrintPage);
        QWidget *panel = m_window->waitForPanel(kPrintPage);
        auto *media = panel->findChild<QComboBox *>(u"mediaTypePopup"_s);
        QVERIFY(media);
        QTest::qWait(20);
        const QRect place = media->geometry();
        const QSize size = panel->size();
        QCOMPARE(dots(), 0);
        QTest::keyClick(media, Qt::Key_Down);
        QTRY_VERIFY(dots() > 0);
        QCOMPARE(media->geometry(), place);
        QCOMPARE(panel->size(), size);
        for (const QWidget *dot : panel->findChildren<QWidget *>(u"changed"_s))
            QVERIFY(dot->parentWidget()->rect().contains(dot->geometry()));
    }

    // The longest title of a group leaves no room in front of it there; around the group there is.
    void aMarkTouchesNoSlider()
    {
        openSample();
        QVERIFY(m_window->waitForPanels(2));
        task().propose(u"QXMonoColor"_s, u"Color"_s);
        m_window->showPage(kColorPage);
        QWidget *panel = m_window->waitForPanel(kColorPage);
        const QList<QSlider *> sliders = panel->findChildren<QSlider *>();
        task().opened()->panels->disclose(u"QXBrightness"_s);
        QTRY_VERIFY(sliders.constFirst()->isVisible());
        const int before = dots();
        for (QSlider *slider : sliders)
            QTest::keyClick(slider, Qt::Key_Right);
        QTRY_COMPARE(dots(), before + 6);
        const auto placeOf = [panel](const QWidget *widget) {
            return QRect(widget->mapTo(panel, QPoint()), widget->size());
        };
        for (const QWidget *dot : panel->findChildren<QWidget *>(u"changed"_s)) {
            QVERIFY(panel->rect().contains(placeOf(dot)));
            for (const QSlider *slider : sliders)
                QVERIFY2(!placeOf(dot).intersects(placeOf(slider)),
                         qPrintable(slider->objectName()));
        }
    }

    void aSettingGoesBackByItsMenu()
    {
        openOffice();
        auto *duplex = child<QComboBox>(kDuplexOption);
        const QString before = duplex->currentText();
        QVERIFY(pick(duplex, u"Long Edge"_s));
        QTRY_COMPARE(dots(), 1);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, duplex->mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(duplex, &event);
        auto *menu = m_window->dialog().findChild<QMenu *>(u"changedMenu"_s);
        QVERIFY(menu);
        QCOMPARE(menu->actions().constFirst()->text(), u"Back to Printer Defaults"_s);
        menu->actions().constFirst()->trigger();
        menu->close();
        QTRY_COMPARE(duplex->currentText(), before);
        QTRY_COMPARE(dots(), 0);
    }

    void aPageAndEverythingGoBackByTheRow()
    {
        openOffice();
        QVERIFY(pick(child<QComboBox>(kDuplexOption), u"Long Edge"_s));
        task().propose(u"Media"_s, u"Card"_s);
        task().setCopies(2);
        auto *reset = child<QToolButton>(u"reset"_s);
        auto *page = child<QAction>(u"resetPage"_s);
        auto *all = child<QAction>(u"resetAll"_s);
        QVERIFY(reset && page && all);
        Q_EMIT reset->menu()->aboutToShow();
        QVERIFY(page->isEnabled() && all->isEnabled());
        QVERIFY(all->text().contains(u"Back to Printer Defaults"_s));
        page->trigger();
        QCOMPARE(task().history().changedSettings(), QStringList{u"Media"_s});
        Q_EMIT reset->menu()->aboutToShow();
        QVERIFY(!page->isEnabled() && all->isEnabled());
        all->trigger();
        QCOMPARE(task().history().changedSettings(), QStringList());
        QCOMPARE(task().settings().copies(), 2);
        Q_EMIT reset->menu()->aboutToShow();
        QVERIFY(!all->isEnabled());
        undo()->click();
        QCOMPARE(task().history().changedSettings(), QStringList{u"Media"_s});
    }

    void theSummaryCanShowWhatIsChangedAlone()
    {
        openOffice();
        task().propose(u"Media"_s, u"Card"_s);
        task().setCopies(2);
        const QStringList all = summaryTitles();
        auto *only = child<QCheckBox>(u"onlyChanged"_s);
        QVERIFY(only && !only->isChecked());
        only->setChecked(true);
        QCOMPARE(summaryTitles(), (QStringList{u"Copies"_s, u"Paper Type"_s}));
        const auto *table = child<QTableWidget>(u"summary"_s);
        QVERIFY(table->item(1, 0)->toolTip().contains(u"Plain Paper"_s));
        QCOMPARE(table->item(1, 0)->data(Qt::AccessibleTextRole).toString(),
                 u"Paper Type, changed"_s);
        m_window.reset();
        openOffice(); // remembered
        QVERIFY(child<QCheckBox>(u"onlyChanged"_s)->isChecked());
        QCOMPARE(summaryTitles(), QStringList());
        child<QCheckBox>(u"onlyChanged"_s)->setChecked(false);
        QVERIFY(summaryTitles().size() >= all.size() - 1);
    }

    // What black and white leaves without a line of its panel stands under a title of its own.
    void aTitleInTheSummaryStandsAboveLinesOnly()
    {
        openSample();
        QVERIFY(m_window->waitForPanels(2));
        task().propose(u"QXColorMatching"_s, u"Vivid"_s);
        task().propose(u"QXMonoColor"_s, u"Mono"_s);
        const auto whole = m_window->summaryLines();
        const auto *table = child<QTableWidget>(u"summary"_s);
        const int last = table->rowCount() - 1;
        QCOMPARE(whole.last(), (std::pair{u"Color Matching"_s, u"Vivid"_s}));
        QCOMPARE(whole.at(last - 1).first, u"Also in the job"_s);
        QCOMPARE(table->columnSpan(last - 1, 0), 2);
        QVERIFY(table->item(last - 1, 0)->font().bold() && !table->item(last, 0)->font().bold());
        auto *only = child<QCheckBox>(u"onlyChanged"_s);
        only->setChecked(true);
        QVERIFY(summaryTitles().endsWith(u"Color Matching"_s));
        QVERIFY(summaryTitles().contains(u"Also in the job"_s));
        QCOMPARE(table->columnSpan(table->rowCount() - 2, 0), 2);
        only->setChecked(false); // the title was further up
        for (int row = 0; row <= last; ++row)
            QCOMPARE(table->columnSpan(row, 0), row == last - 1 ? 2 : 1);
        only->setChecked(true);
        task().propose(u"QXColorMatching"_s, u"Normal"_s);
        QVERIFY(!summaryTitles().contains(u"Also in the job"_s));
        only->setChecked(false);
        QVERIFY(!summaryTitles().contains(u"Also in the job"_s));
        for (int row = 0; row < table->rowCount(); ++row)
            QCOMPARE(table->columnSpan(row, 0), 1);
    }

    void aLineOfTheSummaryLeadsToItsControl()
    {
        openSample();
        QVERIFY(m_window->waitForPanels(2));
        const auto lines = m_window->summaryLines();
        auto *table = child<QTableWidget>(u"summary"_s);
        QStringList leadNowhere;
        for (int row = 0; row < lines.size(); ++row) {
            m_window->showLastPage();
            table->setCurrentCell(row, 0);
            table->setFocus();
            const QString name = table->item(row, 0)->data(Qt::UserRole).toString();
            if (name.isEmpty()) {
                leadNowhere += lines.at(row).first;
                continue;
            }
            QTest::keyClick(table, Qt::Key_Return);
            QTRY_VERIFY2(m_window->pages()->currentWidget() !=
                             m_window->pages()->widget(m_window->pages()->count() - 1),
                         qPrintable(lines.at(row).first));
            QVERIFY(!table->hasFocus());
        }
        QCOMPARE(task().phase(), PrintTask::Phase::Ready); // Enter went there, and did not print
        // They tell of no setting.
        leadNowhere.removeAll(u"Sheets"_s);
        leadNowhere.removeAll(u"Model"_s);
        QCOMPARE(leadNowhere.join(u", "_s), QString());
        m_window->showPage(kGeneralPage);
    }
};

QTEST_MAIN(WindowUndoTest)
#include "window_undo_test.moc"
