#include <algorithm>

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>

#include "dialog/session/OptionNames.h"
#include "dialog/task/SettingsIndex.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/window/SettingsPages.h"
#include "dialog/window/pages/ControlLock.h"
#include "dialog/window/pages/GeneralPage.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kColorMode{"QXMonoColor"};

} // namespace

/// The option for color, which the panels' plug-in names and the page General offers as well.
class WindowColorTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<WindowDriver> m_window;

    void open(const QByteArray &policy = {})
    {
        PrintRequest request = requestFor(sampleDocument());
        request.printers = {{u"cl5"_s, u"cl5"_s, samplePpdPath(), 5}};
        if (!policy.isEmpty())
            request.policy = policyFrom(policy);
        m_window = std::make_unique<WindowDriver>(request, WindowDriver::Activation::Yes);
        QVERIFY(QTest::qWaitFor([this] { return task().canPrint(); }, kWindowPatience));
        QVERIFY(m_window->waitForPanels(2));
    }
    PrintTask &task() { return m_window->dialog().task(); }
    GeneralPage *general() { return m_window->dialog().findChild<GeneralPage *>(); }
    QComboBox *onGeneral() { return general()->findChild<QComboBox *>(kColorMode); }
    QComboBox *onPanel()
    {
        PanelHost &panels = *task().opened()->panels;
        const QList<PanelControl> controls = panels.controls(panels.panelOf(kColorMode));
        for (const PanelControl &one : controls) {
            if (one.keyword == kColorMode)
                return qobject_cast<QComboBox *>(one.control);
        }
        return nullptr;
    }
    QStringList valuesOf(const QString &title)
    {
        QStringList values;
        for (const auto &[name, value] : m_window->summaryLines()) {
            if (name == title)
                values += value;
        }
        return values;
    }

private Q_SLOTS:
    void cleanup() { m_window.reset(); }

    void itStandsBetweenPagesAndSides()
    {
        open();
        QVERIFY(onGeneral() && onGeneral()->isVisible());
        const auto y = [this](const QString &name) {
            QWidget *control = general()->findChild<QWidget *>(name);
            return control->mapTo(general(), QPoint()).y();
        };
        QVERIFY(y(u"pageRanges"_s) < y(kColorMode));
        QVERIFY(y(kColorMode) < y(kDuplexOption));
        QVERIFY(!general()->findChild<QWidget *>(u"print-color-mode"_s));
    }

    void thePanelsHearOfWhatIsChosen()
    {
        open();
        QVERIFY(!valuesOf(u"Saturation"_s).isEmpty());
        m_window->showPage(0);
        QVERIFY(pick(onGeneral(), u"Mono"_s));
        QTRY_COMPARE(task().opened()->session->markedChoice(kColorMode), u"Mono"_s);
        QCOMPARE(onPanel()->currentText(), u"Mono"_s);
        // Of black and white the panel for colors has no saturation.
        QCOMPARE(valuesOf(u"Saturation"_s), QStringList());
        QCOMPARE(valuesOf(u"Color Mode"_s), QStringList{u"Mono"_s});
    }

    void thePageHearsOfWhatIsChosenOnThePanel()
    {
        open();
        m_window->showPage(1);
        QVERIFY(pick(onPanel(), u"Color"_s));
        QTRY_COMPARE(onGeneral()->currentText(), u"Color"_s);
    }

    void aChoiceIsMarkedAndIsOneStepThatIsCalledByIt()
    {
        open();
        m_window->showPage(0);
        const QString before = onGeneral()->currentText();
        QVERIFY(pick(onGeneral(), u"Mono"_s));
        QTRY_VERIFY(onGeneral()->accessibleDescription().startsWith(u"Changed."_s));
        QVERIFY2(task().history().undoText().contains(u"Color Mode"_s),
                 qPrintable(task().history().undoText()));
        m_window->child<QToolButton>(u"undo"_s)->click();
        QTRY_COMPARE(onGeneral()->currentText(), before);
        QVERIFY(!task().history().canUndo());
        QCOMPARE(onPanel()->currentText(), before);
        QCOMPARE(onGeneral()->accessibleDescription(), QString());
    }

    void itIsFoundOnceAndWhereEverybodyLooks()
    {
        open();
        const QList<Setting> settings = settingsIndexOf(task()).settings();
        QCOMPARE(std::count_if(settings.cbegin(), settings.cend(),
                               [](const Setting &one) { return one.keyword == kColorMode; }),
                 1);
        m_window->showPage(2);
        const auto shown = m_window->dialog().findChild<SettingsPages *>()->goTo(kColorMode);
        QCOMPARE(shown.control, onGeneral());
        QTRY_VERIFY(onGeneral()->hasFocus());
    }

    void aLockHoldsOnBothPages()
    {
        open("[all]\nlock.QXMonoColor=Mono\n");
        QCOMPARE(onGeneral()->currentText(), u"Mono"_s);
        QVERIFY(ControlLock::isLocked(onGeneral()));
        QTRY_VERIFY(ControlLock::isLocked(onPanel()));
        onGeneral()->setFocus();
        QTest::keyClick(onGeneral(), Qt::Key_Home);
        QCOMPARE(task().opened()->session->markedChoice(kColorMode), u"Mono"_s);
    }
};

QTEST_MAIN(WindowColorTest)
#include "window_color_test.moc"
