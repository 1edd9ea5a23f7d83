#include <QCheckBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/TextFieldDelegate.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// A field whose delegate follows what is typed and decides whether it may be left. This one may be
/// left with "good" in it.
class TextFieldDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_told.clear();
        m_asked.clear();
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        m_field = new QLineEdit(u"good"_s);
        m_other = new QLineEdit;
        layout->addWidget(m_field);
        layout->addWidget(m_other);
        setTextFieldDelegate(m_field,
                             {[this](const Notification &notification) { m_told += notification; },
                              [this](QWidget *, const QString &text) {
                                  m_asked += text;
                                  return text == u"good";
                              }});
        QVERIFY(user::show(m_window.get()));
        m_field->setFocus();
        QVERIFY(m_field->hasFocus());
    }
    void cleanup() { m_window.reset(); }

    void everyEditOfTheUserIsTold()
    {
        QTest::keyClicks(m_field, u"ab"_s);
        QTest::keyClick(m_field, Qt::Key_Backspace);
        QCOMPARE(m_told.size(), 3);
        QCOMPARE(m_told.first().name, QLatin1StringView(kControlTextDidChangeNotification));
        QCOMPARE(static_cast<QLineEdit *>(m_told.first().sender), m_field);
    }

    void theProgramsOwnChangesAreNotTold()
    {
        {
            const ProgrammaticChange change;
            m_field->setText(u"other"_s);
        }
        QVERIFY(m_told.isEmpty());
    }

    void aFieldThatMayNotBeLeftTakesTheFocusBack_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("with the tab key") << true;
        QTest::newRow("with the mouse") << false;
    }
    void aFieldThatMayNotBeLeftTakesTheFocusBack()
    {
        QFETCH(bool, byKey);
        m_field->setText(u"bad"_s);
        leave(byKey);
        QVERIFY(m_other->hasFocus()); // until the event is over
        QTRY_VERIFY(m_field->hasFocus());
        QCOMPARE(m_field->selectedText(), u"bad"_s);
        m_field->setText(u"good"_s);
        leave(byKey);
        QCoreApplication::processEvents();
        QVERIFY(m_other->hasFocus());
    }

    void whatIsMendedMeanwhileIsLeft()
    {
        m_field->setText(u"bad"_s);
        leave(true);
        m_field->setText(u"good"_s); // by what the user went to
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QVERIFY(m_other->hasFocus());
    }

    void aFieldThatCannotHaveTheFocusLetsItGo_data()
    {
        QTest::addColumn<bool>("hidden");
        QTest::newRow("hidden") << true;
        QTest::newRow("disabled") << false;
    }
    void aFieldThatCannotHaveTheFocusLetsItGo()
    {
        QFETCH(bool, hidden);
        m_field->setText(u"bad"_s);
        leave(true);
        if (hidden)
            m_field->hide();
        else
            m_field->setEnabled(false);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QVERIFY(!m_field->hasFocus());
    }

    void anotherWindowIsNotHeldUp_data()
    {
        QTest::addColumn<int>("reason");
        QTest::newRow("another window") << int(Qt::ActiveWindowFocusReason);
        QTest::newRow("a menu of the field") << int(Qt::PopupFocusReason);
        QTest::newRow("the menu bar") << int(Qt::MenuBarFocusReason);
    }
    void anotherWindowIsNotHeldUp()
    {
        QFETCH(int, reason);
        m_field->setText(u"bad"_s);
        m_asked.clear();
        QFocusEvent out(QEvent::FocusOut, static_cast<Qt::FocusReason>(reason));
        QCoreApplication::sendEvent(m_field, &out);
        QCoreApplication::processEvents();
        QVERIFY(m_asked.isEmpty());
    }

    void theReturnKeyEndsNothingThatIsNotGood_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }
    void theReturnKeyEndsNothingThatIsNotGood()
    {
        QFETCH(int, key);
        QSignalSpy finished(m_field, &QLineEdit::editingFinished);
        m_field->setText(u"bad"_s);
        QTest::keyClick(m_field, static_cast<Qt::Key>(key));
        QCOMPARE(finished.size(), 0);
        m_field->setText(u"good"_s);
        QTest::keyClick(m_field, static_cast<Qt::Key>(key));
        QCOMPARE(finished.size(), 1);
    }

    void theDelegateIsGivenTheFieldAndItsText()
    {
        QWidget *asked = nullptr;
        QLineEdit field(u"x"_s);
        setTextFieldDelegate(&field, {[](const Notification &) {},
                                      [&asked](QWidget *control, const QString &) {
                                          asked = control;
                                          return true;
                                      }});
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(asked, &field);
        m_asked.clear();
        m_field->setText(u"bad"_s);
        QTest::keyClick(m_field, Qt::Key_Return);
        QCOMPARE(m_asked, QStringList{u"bad"_s});
    }

    void aFieldMayDieWhileItWantsTheFocusBack()
    {
        m_field->setText(u"bad"_s);
        leave(true);
        delete m_field;
        QCoreApplication::processEvents();
        QVERIFY(m_other->hasFocus());
    }

    void aWindowMayDieWithTheFieldInFocus()
    {
        m_field->setText(u"bad"_s);
        m_asked.clear();
        m_window.reset();
        QCoreApplication::processEvents();
        QVERIFY(!QApplication::focusWidget());
    }

private:
    void leave(bool byKey)
    {
        if (byKey)
            QTest::keyClick(m_field, Qt::Key_Tab);
        else
            QTest::mouseClick(m_other, Qt::LeftButton);
    }

    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_field = nullptr;
    QLineEdit *m_other = nullptr;
    QList<Notification> m_told;
    QStringList m_asked;
};

QTEST_MAIN(TextFieldDelegateTest)
#include "text_field_delegate_test.moc"
