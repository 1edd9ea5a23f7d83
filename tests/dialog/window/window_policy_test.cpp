#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

#include "dialog/window/pages/ControlLock.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Locked controls: they are read, they keep the focus, they say who has chosen, and nothing that a
/// user does to them changes anything.
class WindowPolicyTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<WindowDriver> m_window;

    void open(const QByteArray &policy)
    {
        PrintRequest request = requestFor(sampleDocument());
        request.printers = {{u"cl5"_s, u"cl5"_s, samplePpdPath(), 5}};
        request.policy = policyFrom(policy);
        m_window = std::make_unique<WindowDriver>(request, WindowDriver::Activation::Yes);
        QVERIFY(QTest::qWaitFor([this] { return m_window->dialog().task().canPrint(); },
                                kWindowPatience));
    }
    template <typename Control> Control *control(const QString &name)
    {
        return m_window->child<Control>(name);
    }
    void strain(QWidget *control)
    {
        control->setFocus();
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home,
                                  Qt::Key_Space, Qt::Key_F4, Qt::Key_PageDown, Qt::Key_A, Qt::Key_O,
                                  Qt::Key_9, Qt::Key_Plus, Qt::Key_Right, Qt::Key_Left})
            QTest::keyClick(control, key);
        QTest::keyClick(control, Qt::Key_Down, Qt::AltModifier);
        QTest::mouseClick(control, Qt::LeftButton);
        QTest::mouseClick(control, Qt::LeftButton, {}, {control->width() - 4, 4});
    }

private Q_SLOTS:
    void cleanup() { m_window.reset(); }

    void aLockedPopUpIsReadAndNotChanged()
    {
        open("[all]\nlock.Duplex=DuplexNoTumble\n");
        auto *duplex = control<QComboBox>(u"Duplex"_s);
        QVERIFY(ControlLock::isLocked(duplex));
        QVERIFY(duplex->isEnabled());
        QVERIFY(duplex->findChild<QWidget *>(u"lockMark"_s)->isVisible());
        const QString before = duplex->currentText();
        strain(duplex);
        QCOMPARE(duplex->currentText(), before);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        QVERIFY(duplex->hasFocus());
        QCOMPARE(m_window->dialog().task().opened()->session->markedChoice(u"Duplex"_s),
                 u"DuplexNoTumble"_s);
        QVERIFY(duplex->toolTip().contains(u"1.conf:2"_s));
        QCOMPARE(QAccessible::queryAccessibleInterface(duplex)->text(QAccessible::Description),
                 u"Set by your administrator (1.conf:2)."_s);
        QVERIFY(!ControlLock::isLocked(control<QComboBox>(u"PageSize"_s)));
        QTest::keyClick(duplex, Qt::Key_Tab);
        QVERIFY(!duplex->hasFocus());
    }

    void lockedCopiesAndCollationAreNotChanged()
    {
        open("[all]\nlock.copies=3\nlock.collate=false\n");
        auto *copies = control<QSpinBox>(u"copies"_s);
        strain(copies);
        QCOMPARE(copies->value(), 3);
        auto *collate = control<QCheckBox>(u"collate"_s);
        QVERIFY(ControlLock::isLocked(collate));
        strain(collate);
        QVERIFY(!collate->isChecked());
        QAccessible::queryAccessibleInterface(collate)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        QTRY_VERIFY(!collate->isChecked()); // the task refuses what got past the control
        QCOMPARE(m_window->dialog().task().settings().attribute(u"collate"_s), u"false"_s);
    }

    void aLockedControlOfAPanelIsNotChangedAndNoAncestorIsDisabled()
    {
        open("[all]\nlock.QXMediaType=Thick\nlock.QXMonoColor=mono\n");
        QVERIFY(m_window->waitForPanels(2));
        m_window->showPage(1);
        PanelHost &panels = *m_window->dialog().task().opened()->panels;
        QWidget *medium = nullptr;
        for (const PanelControl &one : panels.controls(0)) {
            if (one.keyword == u"QXMediaType"_s)
                medium = one.control;
        }
        QVERIFY(medium);
        QTRY_VERIFY(ControlLock::isLocked(medium));
        strain(medium);
        QCOMPARE(m_window->dialog().task().opened()->session->markedChoice(u"QXMediaType"_s),
                 u"Thick"_s);
        for (QWidget *above = medium; above; above = above->parentWidget())
            QVERIFY(above->isEnabled());
    }

    // A field beside a slider is just as wide as its number.
    void aPadlockHidesNeitherTheNumberNorTheHandle_data()
    {
        QTest::addColumn<int>("value");
        QTest::addRow("low") << -8;
        QTest::addRow("high") << 8;
    }
    void aPadlockHidesNeitherTheNumberNorTheHandle()
    {
        QFETCH(int, value);
        open("[all]\nlock.QXMonoColor=Color\nlock.QXBrightness=" + QByteArray::number(value) +
             "\n");
        QVERIFY(m_window->waitForPanels(2));
        m_window->showPage(2);
        auto *field = control<QLineEdit>(u"brightnessField"_s);
        QTRY_VERIFY(ControlLock::isLocked(field));
        QCOMPARE(field->text(), QString::number(value));
        const QRect lock = field->findChild<QWidget *>(u"lockMark"_s)->geometry();
        const int text = field->fontMetrics().horizontalAdvance(u"-10"_s);
        QVERIFY(field->rect().contains(lock));
        QVERIFY2(lock.right() < field->width() - text, qPrintable(QString::number(lock.right())));
        auto *slider = control<QSlider>(u"brightnessSlider"_s);
        const int ofSlider = slider->findChild<QWidget *>(u"lockMark"_s)->geometry().center().x();
        QCOMPARE(ofSlider<slider->width() / 2, value> 0);
    }

    void aPrinterThatMayNotPrintToFilesHasNoFieldForThem()
    {
        open("[printer other]\nfile-output=no\n");
        QVERIFY(control<QWidget>(u"output"_s)->isVisible());
        m_window.reset();
        PrintRequest request = requestFor(sampleDocument());
        request.printers.clear();
        request.server = *ServerAddress::parse(u"127.0.0.1:1"_s);
        request.wantedPrinter = u"office"_s;
        request.policy = policyFrom("[all]\nfile-output=no\n");
        m_window = std::make_unique<WindowDriver>(request);
        QVERIFY(!control<QWidget>(u"output"_s)->isVisible());
        QVERIFY(!control<QCheckBox>(u"toFile"_s)->isVisible());
        for (const Printer &printer : m_window->dialog().task().printers().printers())
            QVERIFY(!savesPdf(printer));
    }
};

QTEST_MAIN(WindowPolicyTest)
#include "window_policy_test.moc"
