#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include "tests/dialog/window/pages/OptionsWindow.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

/// Values of the user's own: typed, checked, kept and taken.
class OptionsValuesTest : public QObject, private OptionsWindow
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { close(); }

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
};

QTEST_MAIN(OptionsValuesTest)

#include "options_values_test.moc"
