#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "tests/dialog/window/pages/OptionsWindow.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

/// The list of all options and their choices, worked with keys and clicks.
class OptionsPageTest : public QObject, private OptionsWindow
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { close(); }

    void oneClickOpensTheChoicesOfARow()
    {
        open(officePrinter());
        clickOn(option(u"Media"_s));
        QVERIFY(choices());
        QTRY_VERIFY(openList());
        QCOMPARE(choices()->count(), 4);
        QCOMPARE(choices()->currentText(), u"Plain Paper"_s);
    }

    void aClickOnATitleOnlySelectsItsRow()
    {
        open(officePrinter());
        clickOn(option(u"Media"_s).siblingAtColumn(OptionsModel::Title));
        QVERIFY(!editor());
        QCOMPARE(current(), u"Media"_s);
    }

    void aPressThatIsDraggedAwayOpensNothing()
    {
        open(officePrinter());
        QTest::mousePress(m_list->viewport(), Qt::LeftButton, {},
                          m_list->visualRect(option(u"Tray"_s)).center());
        QTest::mouseRelease(m_list->viewport(), Qt::LeftButton, {},
                            m_list->visualRect(option(u"Media"_s)).center());
        QVERIFY(!editor());
    }

    void aKeyOpensTheChoicesOfARowAndPrintsNothing_data()
    {
        QTest::addColumn<Qt::Key>("pressed");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
        QTest::newRow("F2") << Qt::Key_F2;
        QTest::newRow("Space") << Qt::Key_Space;
    }
    void aKeyOpensTheChoicesOfARowAndPrintsNothing()
    {
        QFETCH(Qt::Key, pressed);
        open(officePrinter());
        go(u"Media"_s);
        key(pressed);
        QVERIFY(choices());
        QTRY_VERIFY(openList());
        QCOMPARE(m_printed, 0);
    }

    void aChoiceIsPickedWithTheKeysAlone()
    {
        open(officePrinter());
        go(u"Tray"_s);
        key(Qt::Key_Return);
        QTRY_VERIFY(openList());
        QTest::keyClick(openList()->focusWidget(), Qt::Key_Down);
        QTest::keyClick(openList()->focusWidget(), Qt::Key_Return);
        QTRY_VERIFY(!editor());
        QCOMPARE(m_proposed, QStringList{u"Tray=Upper"_s});
        QCOMPARE(shown(u"Tray"_s), u"Upper Tray"_s);
        QCOMPARE(m_window->focusWidget(), m_list);
        m_window->activateWindow();
        QTRY_VERIFY(m_list->hasFocus());
        key(Qt::Key_Down);
        QCOMPARE(current(), u"Media"_s);
        QCOMPARE(m_printed, 0);
    }

    void typingPicksTheChoiceThatBeginsSo()
    {
        open(officePrinter());
        go(u"Media"_s);
        type(u"tr"_s);
        QCOMPARE(m_proposed, QStringList{u"Media=Film"_s});
        key(Qt::Key_Return);
        QVERIFY(!editor());
        QVERIFY(m_list->hasFocus());
        QCOMPARE(m_printed, 0);
    }

    void aChoiceThatWasScrolledAwayIsSeenWhenAKeyOpensIt_data()
    {
        QTest::addColumn<Qt::Key>("pressed");
        QTest::newRow("a letter") << Qt::Key_T;
        QTest::newRow("F2") << Qt::Key_F2;
    }
    void aChoiceThatWasScrolledAwayIsSeenWhenAKeyOpensIt()
    {
        QFETCH(Qt::Key, pressed);
        open(officePrinter());
        m_window->setFixedHeight(m_window->minimumSizeHint().height());
        go(u"Media"_s);
        QScrollBar *bar = m_list->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        const QRect seen = m_list->viewport()->rect();
        bar->setValue(bar->maximum());
        if (seen.intersects(m_list->visualRect(option(u"Media"_s))))
            bar->setValue(0);
        QVERIFY(!seen.intersects(m_list->visualRect(option(u"Media"_s))));
        key(pressed);
        QVERIFY(choices());
        QVERIFY(seen.contains(m_list->visualRect(option(u"Media"_s))));
        QVERIFY(!choices()->visibleRegion().isEmpty());
    }

    void escapeLeavesTheChoiceAsItWas()
    {
        open(officePrinter());
        go(u"Media"_s);
        key(Qt::Key_F2);
        QTRY_VERIFY(openList());
        QTest::keyClick(openList()->focusWidget(), Qt::Key_Down);
        QTest::keyClick(openList()->focusWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!editor());
        QCOMPARE(m_proposed, QStringList());
        QVERIFY(m_window->isVisible());
        QCOMPARE(m_window->focusWidget(), m_list);
    }

    void theKeysPassTheHeadings()
    {
        open(officePrinter());
        QStringList passed{current()};
        for (int i = 0; i < 4; ++i) {
            key(Qt::Key_Down);
            passed += current();
        }
        QCOMPARE(passed,
                 (QStringList{u"Banner"_s, u"Tray"_s, u"Media"_s, u"Punch"_s, u"Staple"_s}));
        key(Qt::Key_Left);
        QCOMPARE(current(), u"Staple"_s);
    }

    void aChoiceThatIsRefusedIsPutBackInItsOpenEditorToo()
    {
        open(officePrinter(), {{u"Staple"_s, u"Left"_s}});
        go(u"Media"_s);
        type(u"t"_s);
        QCOMPARE(m_proposed, QStringList{u"Media=Film"_s});
        QVERIFY(choices());
        QCOMPARE(choices()->currentText(), u"Plain Paper"_s);
        QCOMPARE(shown(u"Media"_s), u"Plain Paper"_s);
    }

    void aChoiceThatCollidesSaysWithWhatAndCanBePicked()
    {
        open(officePrinter(), {{u"Staple"_s, u"Left"_s}});
        go(u"Media"_s);
        key(Qt::Key_Return);
        QVERIFY(choices());
        const auto note = [this](const QString &keyword) {
            return choices()->itemData(choices()->findData(keyword), Qt::ToolTipRole).toString();
        };
        QCOMPARE(note(u"Film"_s), u"<qt>Cannot be combined with “Staple: Top Left”.</qt>"_s);
        QCOMPARE(note(u"Card"_s), QString());
        QVERIFY(choices()->itemData(choices()->findData(u"Film"_s), Qt::ForegroundRole).isValid());
        QVERIFY(pick(choices(), u"Transparency"_s));
        QCOMPARE(m_proposed, QStringList{u"Media=Film"_s});
    }

    void refreshingShowsAnotherMarkInTheOpenEditorAndProposesNothing()
    {
        open(officePrinter());
        go(u"Tray"_s);
        key(Qt::Key_Return);
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_page->refresh();
        QCOMPARE(choices()->currentText(), u"Lower Tray"_s);
        QCOMPARE(shown(u"Tray"_s), u"Lower Tray"_s);
        QCOMPARE(m_proposed, QStringList());
    }

    void theDefaultComesBackByKeyAndMenu_data()
    {
        QTest::addColumn<Qt::Key>("pressed"); // 0 for the menu
        QTest::newRow("Delete") << Qt::Key_Delete;
        QTest::newRow("Backspace") << Qt::Key_Backspace;
        QTest::newRow("menu") << Qt::Key_unknown;
    }
    void theDefaultComesBackByKeyAndMenu()
    {
        QFETCH(Qt::Key, pressed);
        open(officePrinter(), {{u"Tray"_s, u"Lower"_s}});
        auto *reset = m_list->findChild<QAction *>(u"reset"_s);
        QCOMPARE(m_list->contextMenuPolicy(), Qt::ActionsContextMenu);
        QVERIFY(m_list->actions().contains(reset));
        go(u"Media"_s);
        QVERIFY(!reset->isEnabled());
        go(u"Tray"_s);
        QVERIFY(reset->isEnabled());
        if (pressed == Qt::Key_unknown)
            reset->trigger();
        else
            key(pressed);
        QCOMPARE(m_proposed, QStringList{u"Tray=Auto"_s});
        QCOMPARE(shown(u"Tray"_s), u"Automatic"_s);
        QVERIFY(!reset->isEnabled());
    }

    void theWheelScrollsTheListAndChangesNothing()
    {
        open(officePrinter());
        go(u"Media"_s);
        type(u"t"_s);
        QVERIFY(choices() && choices()->hasFocus() && !openList());
        m_proposed.clear();
        const QPoint center = choices()->rect().center();
        QWheelEvent wheel(center, choices()->mapToGlobal(center), {}, {0, -240}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(choices(), &wheel);
        QVERIFY(!wheel.isAccepted()); // so the list behind gets it
        QCOMPARE(m_proposed, QStringList());
        QCOMPARE(choices()->currentText(), u"Transparency"_s);
    }

    void everyControlHasANameForAScreenReader()
    {
        open(officePrinter());
        const auto name = [](QWidget *widget) {
            return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
        };
        QCOMPARE(name(m_list), u"Options of the printer"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(m_list)->role(), QAccessible::Tree);
        QCOMPARE(name(search()), u"Search options and choices"_s);
        openField(u"Sleep"_s);
        const auto labels = QAccessible::queryAccessibleInterface(choices())->relations();
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.constFirst().second, QAccessible::Relation(QAccessible::Label));
        QCOMPARE(labels.constFirst().first->text(QAccessible::Name), u"Sleep Time"_s);
        QCOMPARE(name(field()), u"Sleep Time"_s);
        QCOMPARE(field()->accessibleDescription(), u"1 to 99"_s);
    }
};

QTEST_MAIN(OptionsPageTest)

#include "options_page_test.moc"
