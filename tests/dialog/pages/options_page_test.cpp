#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "dialog/pages/ChoiceEditor.h"
#include "dialog/pages/OptionsModel.h"
#include "dialog/pages/OptionsPage.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

/// The page with all options, worked with keys and clicks in a window that has a default button.
class OptionsPageTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<QDialog> m_window;
    OptionsPage *m_page = nullptr;
    QTreeView *m_list = nullptr;
    QStringList m_proposed; // "Keyword=Choice"
    int m_printed = 0;      // presses of the default button

    void open(const PpdBuilder &ppd, const QList<OptionChoice> &marks = {})
    {
        m_session = sessionFor(ppd);
        for (const OptionChoice &mark : marks)
            QVERIFY(m_session->change(mark.keyword, mark.choice, Origin::Dialog).accepted());
        m_proposed.clear();
        m_printed = 0;
        m_window = std::make_unique<QDialog>();
        m_window->resize(600, 400);
        m_page = new OptionsPage(*m_session);
        auto *print = new QPushButton(u"Print"_s);
        print->setDefault(true);
        auto *layout = new QVBoxLayout(m_window.get());
        layout->addWidget(m_page);
        layout->addWidget(print);
        connect(print, &QPushButton::clicked, this, [this] { ++m_printed; });
        connect(m_page, &OptionsPage::proposed, this,
                [this](const QString &keyword, const QString &choice) {
                    m_proposed += keyword + u'=' + choice;
                    m_session->change(keyword, choice, Origin::Dialog);
                });
        m_list = m_page->findChild<QTreeView *>(u"options"_s);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_list->setFocus();
    }
    QModelIndex option(const QString &keyword) const
    {
        const QAbstractItemModel *model = m_list->model();
        const QModelIndexList found =
            model->match(model->index(0, 0), OptionsModel::KeywordRole, keyword, 1,
                         Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex()
                               : found.constFirst().siblingAtColumn(OptionsModel::Choice);
    }
    QString current() const
    {
        return m_list->currentIndex().data(OptionsModel::KeywordRole).toString();
    }
    QString shown(const QString &keyword) const { return option(keyword).data().toString(); }
    void go(const QString &keyword)
    {
        m_list->setFocus();
        m_list->setCurrentIndex(option(keyword));
    }
    void clickOn(const QModelIndex &index)
    {
        m_list->scrollTo(index);
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {},
                          m_list->visualRect(index).center());
    }
    ChoiceEditor *editor() const
    {
        const auto editors = m_list->viewport()->findChildren<ChoiceEditor *>();
        for (ChoiceEditor *editor : editors) {
            if (editor->isVisible())
                return editor;
        }
        return nullptr;
    }
    QComboBox *choices() const { return editor() ? editor()->findChild<QComboBox *>() : nullptr; }
    QLineEdit *field() const
    {
        auto *field = editor() ? editor()->findChild<QLineEdit *>(u"customValue"_s) : nullptr;
        return field && field->isVisible() ? field : nullptr;
    }
    QLineEdit *search() const { return m_page->findChild<QLineEdit *>(u"search"_s); }
    QString hint() const
    {
        const auto *hint = m_page->findChild<QLabel *>(u"hint"_s);
        return hint->isVisible() ? hint->text() : QString();
    }
    static QWidget *openList() { return QApplication::activePopupWidget(); }
    void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    void type(const QString &text)
    {
        for (const QChar c : text) { // QTest types ASCII only
            QKeyEvent press(QEvent::KeyPress, c.toUpper().unicode(), {}, QString(c));
            QApplication::sendEvent(QApplication::focusWidget(), &press);
        }
    }
    /// Opens the field of an option for a value of the user's own.
    void openField(const QString &keyword)
    {
        go(keyword);
        key(Qt::Key_Return);
        QVERIFY(choices());
        if (openList())
            choices()->hidePopup();
        QVERIFY(pick(choices(), choices()->itemText(choices()->findData(u"Custom"_s))));
        QVERIFY(field());
        QVERIFY(field()->hasFocus());
    }

private Q_SLOTS:
    void cleanup()
    {
        m_window.reset();
        m_session.reset();
    }

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
        QCOMPARE(note(u"Film"_s), u"Cannot be combined with “Staple: Top Left”."_s);
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

    void aValueInItsRangeIsTaken_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("proposed");
        QTest::addColumn<QString>("allowed");
        const auto row = [](const char *name, const QString &keyword, const QString &typed,
                            const QString &proposed, const QString &allowed) {
            QTest::newRow(name) << keyword << typed << proposed << allowed;
        };
        row("least", u"Sleep"_s, u"1"_s, u"Sleep=Custom.1"_s, u"Sleep Time: 1 to 99"_s);
        row("most", u"Sleep"_s, u"99"_s, u"Sleep=Custom.99"_s, u"Sleep Time: 1 to 99"_s);
        row("full-width digits", u"Sleep"_s, u"４２ "_s, u"Sleep=Custom.42"_s,
            u"Sleep Time: 1 to 99"_s);
        row("a text", u"Mark"_s, u"For me"_s, u"Mark=Custom.For me"_s,
            u"Watermark: 1 to 20 characters"_s);
        row("a PIN", u"Pin"_s, u"4711"_s, u"Pin=Custom.4711"_s, u"PIN Code: 4 to 8 characters"_s);
    }
    void aValueInItsRangeIsTaken()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, typed);
        QFETCH(QString, proposed);
        QFETCH(QString, allowed);
        open(officePrinter());
        openField(keyword);
        QCOMPARE(m_proposed, QStringList()); // nothing before a value is there
        QCOMPARE(hint(), allowed);
        type(typed);
        key(Qt::Key_Return);
        QCOMPARE(m_proposed, QStringList{proposed});
        QVERIFY(!editor());
        QCOMPARE(hint(), QString());
        QVERIFY(shown(keyword).startsWith(u"Custom: "_s));
        QVERIFY(m_list->hasFocus());
        QCOMPARE(m_printed, 0);
    }

    void aValueOutOfItsRangeStaysAndSaysWhatIsAllowed_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("said");
        const auto row = [](const char *name, const QString &keyword, const QString &typed,
                            const QString &said) {
            QTest::newRow(name) << keyword << typed << said;
        };
        row("below", u"Sleep"_s, u"0"_s,
            u"“0” is not possible for Sleep Time. Allowed: 1 to 99."_s);
        row("above", u"Sleep"_s, u"100"_s,
            u"“100” is not possible for Sleep Time. Allowed: 1 to 99."_s);
        row("no number", u"Sleep"_s, u"x"_s,
            u"“x” is not possible for Sleep Time. Allowed: 1 to 99."_s);
        row("no digits", u"Pin"_s, u"abcd"_s,
            u"This is not possible for PIN Code. Allowed: 4 to 8 characters."_s);
    }
    void aValueOutOfItsRangeStaysAndSaysWhatIsAllowed()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, typed);
        QFETCH(QString, said);
        open(officePrinter());
        openField(keyword);
        type(typed);
        key(Qt::Key_Return);
        QCOMPARE(m_proposed, QStringList());
        QCOMPARE(hint(), said);
        QVERIFY(field());
        QVERIFY(field()->hasFocus());
        QCOMPARE(field()->text(), typed);
        QVERIFY(!QApplication::activeModalWidget() ||
                QApplication::activeModalWidget() == m_window.get());
        QCOMPARE(m_printed, 0);
        // Nothing that would be printed instead.
        QVERIFY(!m_page->finishEditing());
    }

    void escapeLeavesAValueThatCannotBeTaken()
    {
        open(officePrinter());
        openField(u"Sleep"_s);
        type(u"100"_s);
        key(Qt::Key_Return);
        key(Qt::Key_Escape);
        QVERIFY(!editor());
        QCOMPARE(hint(), QString());
        QVERIFY(m_window->isVisible());
        QVERIFY(m_page->finishEditing());
        openField(u"Sleep"_s);
        QCOMPARE(field()->text(), QString());
    }

    void aValueThatCannotBeTakenIsThereAgainWhenTheUserComesBack()
    {
        QTest::failOnWarning(QRegularExpression(u"does not belong"_s));
        open(officePrinter());
        openField(u"Sleep"_s);
        type(u"100"_s);
        m_list->setCurrentIndex(option(u"Tray"_s));
        QVERIFY(!editor());
        QCOMPARE(hint(), u"“100” is not possible for Sleep Time. Allowed: 1 to 99."_s);
        QCOMPARE(shown(u"Sleep"_s), u"Printer's Setting"_s);
        go(u"Sleep"_s);
        key(Qt::Key_Return);
        QVERIFY(field());
        QCOMPARE(field()->text(), u"100"_s);
        type(u"10"_s); // in place of it
        key(Qt::Key_Return);
        QCOMPARE(m_proposed, QStringList{u"Sleep=Custom.10"_s});
        QCOMPARE(hint(), QString());
    }

    void aValueIsTakenWhenTheFocusGoesElsewhere()
    {
        open(officePrinter());
        openField(u"Sleep"_s);
        type(u"7"_s);
        m_window->findChild<QPushButton *>()->setFocus();
        QCOMPARE(m_proposed, QStringList{u"Sleep=Custom.7"_s});
        QVERIFY(!editor());
        QVERIFY(m_page->finishEditing());
    }

    void aValueIsTakenWhenTheUserGoesToAnotherRow()
    {
        QTest::failOnWarning(QRegularExpression(u"does not belong"_s));
        open(officePrinter());
        openField(u"Sleep"_s);
        type(u"7"_s);
        clickOn(option(u"Media"_s).siblingAtColumn(OptionsModel::Title));
        QCOMPARE(m_proposed, QStringList{u"Sleep=Custom.7"_s});
        QVERIFY(!editor());
        QCOMPARE(hint(), QString());
    }

    void aValueThatCannotBeTakenStaysWhenTheFocusGoesElsewhere()
    {
        open(officePrinter());
        openField(u"Sleep"_s);
        type(u"100"_s);
        m_window->findChild<QPushButton *>()->setFocus();
        QVERIFY(field());
        QCOMPARE(field()->text(), u"100"_s);
        QVERIFY(!m_page->finishEditing());
        m_page->focusEditor();
        QVERIFY(field()->hasFocus());
    }

    void theValueThatIsSetCanBeChanged()
    {
        open(officePrinter(), {{u"Sleep"_s, u"Custom.12"_s}});
        QCOMPARE(shown(u"Sleep"_s), u"Custom: 12"_s);
        go(u"Sleep"_s);
        key(Qt::Key_Return);
        QVERIFY(field());
        QCOMPARE(field()->text(), u"12"_s);
        key(Qt::Key_Return);
        QCOMPARE(m_proposed, QStringList()); // it is the same
        go(u"Sleep"_s);
        type(u"34"_s);
        key(Qt::Key_Return);
        QCOMPARE(m_proposed, QStringList{u"Sleep=Custom.34"_s});
        QCOMPARE(shown(u"Sleep"_s), u"Custom: 34"_s);
    }

    void aPasswordIsNotSeenWhileItIsTyped()
    {
        open(officePrinter());
        openField(u"Pin"_s);
        QCOMPARE(field()->echoMode(), QLineEdit::Password);
        QCOMPARE(field()->accessibleName(), u"PIN Code"_s);
    }

    void severalValuesAtOnceAreOnlyKept_data()
    {
        QTest::addColumn<bool>("marked");
        QTest::newRow("not marked") << false;
        QTest::newRow("marked") << true;
    }
    void severalValuesAtOnceAreOnlyKept()
    {
        QFETCH(bool, marked);
        open(officePrinter());
        if (marked)
            m_session->change(u"Shift"_s, u"Custom"_s, Origin::Dialog);
        m_page->refresh();
        go(u"Shift"_s);
        key(Qt::Key_Return);
        QVERIFY(choices());
        QCOMPARE(choices()->findData(u"Custom"_s) >= 0, marked);
        QCOMPARE(choices()->currentText(), marked ? u"Custom"_s : u"Off"_s);
        QVERIFY(!field());
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

    void aSearchFieldIsThereForManyOptionsOnly()
    {
        open(officePrinter());
        QVERIFY(search()->isVisible());
        open(smallPrinter());
        QVERIFY(!search()->isVisible());
    }

    void searchingLeavesWhatIsFoundUnderItsHeading()
    {
        open(officePrinter());
        search()->setFocus();
        type(u"transp"_s);
        QCOMPARE(m_list->model()->rowCount(), 1);
        const QModelIndex group = m_list->model()->index(0, 0);
        QCOMPARE(group.data().toString(), u"Paper"_s);
        QVERIFY(m_list->isExpanded(group));
        QCOMPARE(current(), u"Media"_s);
        key(Qt::Key_Return); // goes to what was found
        QCOMPARE(m_printed, 0);
        QVERIFY(m_list->hasFocus());
        key(Qt::Key_Return);
        QVERIFY(choices());
    }

    void escapeClearsTheSearchAndThenLeavesTheWindow()
    {
        open(officePrinter());
        search()->setFocus();
        type(u"punch"_s);
        QCOMPARE(m_list->model()->rowCount(), 1);
        key(Qt::Key_Escape);
        QCOMPARE(search()->text(), QString());
        QCOMPARE(m_list->model()->rowCount(), 5);
        QVERIFY(m_list->isExpanded(m_list->model()->index(4, 0)));
        QVERIFY(m_window->isVisible());
        key(Qt::Key_Escape);
        QVERIFY(!m_window->isVisible());
    }

    void aSearchInVainSaysSo()
    {
        open(officePrinter());
        search()->setFocus();
        type(u"glitter"_s);
        QCOMPARE(m_list->model()->rowCount(), 0);
        QCOMPARE(hint(), u"Nothing contains “glitter”."_s);
        key(Qt::Key_Return);
        QVERIFY(search()->hasFocus());
        QCOMPARE(m_printed, 0);
        key(Qt::Key_Escape);
        QCOMPARE(hint(), QString());
        QVERIFY(m_list->currentIndex().isValid());
    }

    void searchingWhileAValueCannotBeTakenKeepsItForLater()
    {
        open(officePrinter());
        openField(u"Sleep"_s);
        type(u"100"_s);
        search()->setFocus();
        type(u"sleep"_s);
        QVERIFY(!editor());
        QVERIFY(m_page->finishEditing());
        go(u"Sleep"_s);
        key(Qt::Key_Return);
        QVERIFY(field());
        QCOMPARE(field()->text(), u"100"_s);
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
