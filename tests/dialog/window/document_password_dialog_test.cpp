#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "dialog/window/DocumentPasswordDialog.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class DocumentPasswordDialogTest : public QObject
{
    Q_OBJECT

private:
    static QLineEdit *field(const QDialog &dialog)
    {
        return dialog.findChild<QLineEdit *>(u"password"_s);
    }

private Q_SLOTS:
    void whatIsTypedIsTheAnswerAndIsNotShown()
    {
        DocumentPasswordDialog dialog({u"report.pdf"_s});
        dialog.show();
        QCOMPARE(dialog.focusWidget(), field(dialog));
        QTest::keyClicks(field(dialog), u"secret"_s);
        QVERIFY(!field(dialog)->displayText().contains(u"secret"_s));
        QTest::keyClick(field(dialog), Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.password(), u"secret"_s);
    }

    void anEmptyFieldIsNoAnswerAndEscapeIsNone()
    {
        DocumentPasswordDialog dialog({u"report.pdf"_s});
        dialog.show();
        QTest::keyClick(field(dialog), Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void itSaysWhichDocumentAndWhatWasWrong()
    {
        const QString name = u"<b>"_s + QString(500, u'x') + u".pdf"_s;
        const DocumentPasswordDialog first({name});
        const auto *question = first.findChild<QLabel *>(u"question"_s);
        QVERIFY(question->text().contains(u"<b>xxx"_s));
        QVERIFY(question->text().contains(u"x.pdf"_s));
        QVERIFY(question->text().size() < 300);
        QCOMPARE(question->textFormat(), Qt::PlainText);
        QVERIFY(!first.findChild<QLabel *>(u"wrong"_s));
        const DocumentPasswordDialog second({u"a.pdf"_s, true, true});
        QVERIFY(second.findChild<QLabel *>(u"wrong"_s));
        QVERIFY(second.findChild<QLabel *>(u"question"_s)->text().contains(u"owner's password"_s));
    }
};

QTEST_MAIN(DocumentPasswordDialogTest)

#include "document_password_dialog_test.moc"
