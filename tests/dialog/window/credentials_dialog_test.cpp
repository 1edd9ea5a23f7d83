#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "dialog/window/CredentialsDialog.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

CredentialsQuestion questionFor(const QString &user)
{
    CredentialsQuestion question;
    question.server.host = u"print.example.com"_s;
    question.user = user;
    question.encrypted = true;
    return question;
}

QString textOf(const QDialog &dialog)
{
    QString text;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        text += label->text() + u'\n';
    return text;
}

} // namespace

class CredentialsDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsTypedIsTheAnswer()
    {
        CredentialsDialog dialog(questionFor(u"lisa"_s));
        dialog.show();
        auto *user = dialog.findChild<QLineEdit *>(u"user"_s);
        auto *password = dialog.findChild<QLineEdit *>(u"password"_s);
        QCOMPARE(user->text(), u"lisa"_s);
        QVERIFY(password->text().isEmpty());
        user->setText(u"bart"_s);
        QTest::keyClicks(password, u"secret"_s);
        QTest::keyClick(password, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.credentials().user, u"bart"_s);
        QCOMPARE(dialog.credentials().password, u"secret"_s);
    }

    void escapeIsNoAnswer()
    {
        CredentialsDialog dialog(questionFor(u"lisa"_s));
        dialog.show();
        dialog.setResult(QDialog::Accepted);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(!dialog.isVisible());
    }

    void thePasswordIsNotShown()
    {
        CredentialsDialog dialog(questionFor(u"lisa"_s));
        auto *password = dialog.findChild<QLineEdit *>(u"password"_s);
        QCOMPARE(password->echoMode(), QLineEdit::Password);
        password->setText(u"secret"_s);
        QVERIFY(!password->displayText().contains(u"secret"_s));
    }

    void theKeyboardIsWhereSomethingIsMissing_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("field");
        QTest::newRow("user known") << u"lisa"_s << u"password"_s;
        QTest::newRow("user unknown") << QString() << u"user"_s;
    }
    void theKeyboardIsWhereSomethingIsMissing()
    {
        QFETCH(QString, user);
        QFETCH(QString, field);
        CredentialsDialog dialog(questionFor(user));
        QVERIFY(dialog.focusWidget());
        QCOMPARE(dialog.focusWidget()->objectName(), field);
    }

    void itSaysWhoAsksAndWhoMayReadAlong_data()
    {
        QTest::addColumn<bool>("encrypted");
        QTest::addColumn<bool>("forDevice");
        QTest::newRow("server") << true << false;
        QTest::newRow("printer") << true << true;
        QTest::newRow("server, plain") << false << false;
        QTest::newRow("printer, plain") << false << true;
    }
    void itSaysWhoAsksAndWhoMayReadAlong()
    {
        QFETCH(bool, encrypted);
        QFETCH(bool, forDevice);
        CredentialsQuestion question = questionFor(u"lisa"_s);
        question.encrypted = encrypted;
        question.forDevice = forDevice;
        const CredentialsDialog dialog(question);
        const QString text = textOf(dialog);
        QVERIFY(text.contains(u"“print.example.com”"_s));
        QCOMPARE(text.contains(u"The printer wants"_s), forDevice);
        QCOMPARE(dialog.findChild<QLabel *>(u"notEncrypted"_s) != nullptr, !encrypted);
    }

    void theNameOfAServerIsTextAndNothingElse()
    {
        CredentialsQuestion question = questionFor(u"<b>lisa</b>"_s);
        question.server.host = u"<img src=x>&print"_s;
        const CredentialsDialog dialog(question);
        bool found = false;
        for (const QLabel *label : dialog.findChildren<QLabel *>()) {
            if (!label->text().contains(question.server.host))
                continue;
            found = true;
            QCOMPARE(label->textFormat(), Qt::PlainText);
        }
        QVERIFY(found);
        QCOMPARE(dialog.credentials().user, u"<b>lisa</b>"_s);
    }
};

QTEST_MAIN(CredentialsDialogTest)
#include "credentials_dialog_test.moc"
