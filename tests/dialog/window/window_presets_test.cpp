#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "dialog/task/TaskPresets.h"
#include "dialog/window/PrintWindow.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The button below the printer that says what the settings are called, and its menu.
class WindowPresetsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;
    std::vector<std::unique_ptr<Variable>> m_variables;
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<PrintWindow> m_dialog;

    void open()
    {
        writeFile(m_filter->ppdPath(), smallPrinter().text());
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.title = u"Job"_s;
        request.output = m_filter->output();
        request.presetPlaces = {m_home->filePath(u"presets"_s)};
        request.remembersLastUsed = true;
        request.printers = {{u"small"_s, u"Small"_s, m_filter->ppdPath(), 1}};
        m_dialog = std::make_unique<PrintWindow>(request);
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        QTRY_VERIFY(m_dialog->findChild<QTableWidget *>(u"summary"_s));
        QTRY_VERIFY(button()->isEnabled());
    }
    QToolButton *button() { return m_dialog->findChild<QToolButton *>(u"preset"_s); }
    TaskPresets &presets() { return m_dialog->task().presets(); }
    // The texts of the menu as it opens now, without their keys.
    QStringList menu()
    {
        Q_EMIT button()->menu()->aboutToShow();
        QStringList texts;
        for (const QAction *action : button()->menu()->actions()) {
            if (!action->isSeparator())
                texts += QString(action->text()).remove(u'&') +
                         (action->isChecked() ? u"*"_s : QString());
        }
        return texts;
    }
    void pick(const QString &text)
    {
        menu();
        for (QAction *action : button()->menu()->actions()) {
            if (QString(action->text()).remove(u'&') == text && action->isEnabled())
                return action->trigger();
        }
        QFAIL(qPrintable(u"nothing to pick: "_s + text));
    }
    // What stands in front of the window.
    template <typename Kind> Kind *inFront()
    {
        Kind *found = nullptr;
        [[maybe_unused]] const bool came = QTest::qWaitFor([&] {
            found = qobject_cast<Kind *>(QApplication::activeModalWidget());
            return found != nullptr;
        });
        return found;
    }
    void save(const QString &name)
    {
        pick(u"Save Preset…"_s);
        auto *dialog = inFront<QDialog>();
        QVERIFY(dialog);
        auto *field = dialog->findChild<QLineEdit *>(u"presetName"_s);
        QTRY_VERIFY(field->hasFocus());
        field->clear();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(presets().selectedName(), presetName(name));
        QTRY_VERIFY(presets().listing().find(presetName(name)));
    }
    void change(const QString &keyword, const QString &choice)
    {
        m_dialog->task().propose(keyword, choice);
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        for (const char *name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            m_variables.push_back(std::make_unique<Variable>(name, m_home->path().toUtf8()));
        m_filter = std::make_unique<FakeFilter>("echo ok\n");
    }
    void cleanup()
    {
        m_dialog.reset();
        m_filter.reset();
        m_variables.clear();
    }

    void theButtonSaysWhatTheSettingsAreCalledAndWhetherTheyAreOtherByNow()
    {
        open();
        QCOMPARE(button()->text(), u"Printer Defaults"_s);
        change(u"Media"_s, u"Film"_s);
        QTRY_COMPARE(button()->text(), u"Printer Defaults (changed)"_s);
        QCOMPARE(button()->accessibleName(), u"Preset: Printer Defaults (changed)"_s);
        save(u"Reports & letters"_s);
        QTRY_COMPARE(button()->text(), u"Reports && letters"_s);
        QVERIFY(menu().contains(u"Reports  letters*"_s) || menu().contains(u"Reports letters*"_s) ||
                menu().join(u' ').contains(u"letters*"_s));
    }

    void everythingIsReachedFromTheMenu()
    {
        open();
        QCOMPARE(menu(), (QStringList{u"Printer Defaults*"_s, u"Last Used"_s, u"Save Preset…"_s,
                                      u"Remember the Settings of the Last Job*"_s}));
        change(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        pick(u"Printer Defaults"_s);
        QCOMPARE(m_dialog->task().opened()->session->markedChoice(u"Media"_s), u"Plain"_s);
        pick(u"Reports"_s);
        QCOMPARE(m_dialog->task().opened()->session->markedChoice(u"Media"_s), u"Film"_s);
        change(u"Boost"_s, u"ON"_s);
        QTRY_VERIFY(presets().isChanged());
        pick(u"Update “Reports”"_s);
        QTRY_VERIFY(!presets().isChanged());

        pick(u"Rename “Reports”…"_s);
        auto *dialog = inFront<QDialog>();
        QVERIFY(dialog);
        auto *field = dialog->findChild<QLineEdit *>(u"presetName"_s);
        field->setText(u"Letters"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(presets().selectedName(), u"Letters"_s);
        QTRY_VERIFY(menu().contains(u"Letters*"_s));

        pick(u"Delete “Letters”…"_s);
        auto *box = inFront<QMessageBox>();
        QVERIFY(box);
        for (QAbstractButton *one : box->buttons()) {
            if (box->buttonRole(one) == QMessageBox::DestructiveRole)
                one->click();
        }
        QTRY_COMPARE(presets().selectedName(), u"Printer Defaults"_s);
        QTRY_VERIFY(presets().listing().presets.isEmpty());
        QCOMPARE(m_dialog->task().opened()->session->markedChoice(u"Media"_s), u"Film"_s);
    }

    void whatPressingWillDoIsSaidBefore()
    {
        open();
        save(u"Reports"_s);
        pick(u"Save Preset…"_s);
        auto *dialog = inFront<QDialog>();
        QVERIFY(dialog);
        auto *field = dialog->findChild<QLineEdit *>(u"presetName"_s);
        auto *remark = dialog->findChild<QLabel *>(u"presetRemark"_s);
        QPushButton *accept = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
        QCOMPARE(field->text(), u"Reports"_s);
        QCOMPARE(accept->text(), u"Replace"_s);
        QVERIFY(!remark->text().isEmpty());
        dialog->findChild<QRadioButton *>(u"presetForAll"_s)->click();
        QCOMPARE(accept->text(), u"Save"_s);
        field->setText(u"  "_s);
        QVERIFY(!accept->isEnabled());
        field->setText(u"A\u202eB"_s);
        QVERIFY(!accept->isEnabled() && !remark->text().isEmpty());
        dialog->reject();
    }

    void theKeyboardOpensTheMenu()
    {
        open();
        button()->setFocus();
        bool isOpen = false;
        QTimer::singleShot(300, this, [&] {
            isOpen = button()->menu()->isVisible();
            button()->menu()->close();
        });
        QTest::keyClick(button(), Qt::Key_Space);
        QTRY_VERIFY(isOpen);
    }

    // An open menu turns an event loop of its own, within which nobody would hear of the end.
    void anInterruptionIsHeardWhileTheMenuIsOpen()
    {
        open();
        bool isOpen = false;
        QTimer::singleShot(0, this, [&] {
            isOpen = button()->menu()->isVisible();
            m_dialog->interrupt();
        });
        QTimer rescue; // so that a test that fails ends
        rescue.setSingleShot(true);
        connect(&rescue, &QTimer::timeout, button()->menu(), &QWidget::close);
        rescue.start(5000);
        button()->showMenu();
        QVERIFY(isOpen);
        QVERIFY(rescue.isActive());
        QTRY_VERIFY(!m_dialog->isVisible());
    }

    // A menu of a box in front of the window, such as that of a file dialog.
    void anInterruptionIsHeardWhileAMenuOfABoxIsOpen()
    {
        open();
        bool isOpen = false;
        bool wasRescued = false;
        QDialog box(m_dialog.get());
        QTimer::singleShot(0, &box, [&] {
            QMenu menu(&box);
            menu.addAction(u"Rename"_s);
            QTimer::singleShot(0, &menu, [&] {
                isOpen = menu.isVisible();
                m_dialog->interrupt();
            });
            QTimer::singleShot(5000, &menu, [&] {
                wasRescued = true;
                menu.close();
                box.close();
            });
            menu.exec(box.pos());
        });
        box.exec();
        QVERIFY(isOpen);
        QVERIFY(!wasRescued);
        QTRY_VERIFY(!m_dialog->isVisible());
    }
};

QTEST_MAIN(WindowPresetsTest)
#include "window_presets_test.moc"
