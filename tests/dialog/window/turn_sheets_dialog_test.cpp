#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "dialog/window/TurnPicture.h"
#include "dialog/window/TurnSheetsDialog.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

TurnQuestion question()
{
    TurnQuestion one;
    one.done = u"First sides: Printed on “<b>office” as job office-1."_s;
    one.steps = {u"Take the 5 printed sheets out of the printer, as one stack."_s,
                 u"Put them back into the tray with the printed side down, so that the top edge of "
                 "the pages goes into the printer first."_s,
                 u"The last sheet, with page 9, lies uppermost."_s};
    return one;
}

} // namespace

class TurnSheetsDialogTest : public QObject
{
    Q_OBJECT

private:
    static QPushButton *button(const QDialog &dialog, const char *name)
    {
        return dialog.findChild<QPushButton *>(QString::fromLatin1(name));
    }

private Q_SLOTS:
    void enterPrintsTheOtherSides()
    {
        TurnSheetsDialog dialog(question(), [] { return true; });
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    // By the button, by Escape, and by closing the window.
    void itIsLeftOnlyAfterAQuestion()
    {
        int asked = 0;
        bool mayLeave = false;
        TurnSheetsDialog dialog(question(), [&] {
            ++asked;
            return mayLeave;
        });
        dialog.show();
        button(dialog, "cancelOtherSides")->click();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        dialog.close();
        QCOMPARE(asked, 3);
        QVERIFY(dialog.isVisible());
        mayLeave = true;
        dialog.close();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void everythingIsSaidInPlainWords()
    {
        TurnQuestion asked = question();
        const TurnSheetsDialog first(asked, [] { return true; });
        QCOMPARE(first.findChild<QLabel *>(u"done"_s)->text(), asked.done);
        QCOMPARE(first.findChild<QLabel *>(u"done"_s)->textFormat(), Qt::PlainText);
        QCOMPARE(first.findChild<QLabel *>(u"step3"_s)->text(), asked.steps.at(2));
        QVERIFY(!first.findChild<QLabel *>(u"problem"_s));
        asked.problem = u"Other sides: The printer is gone."_s;
        const TurnSheetsDialog second(asked, [] { return true; });
        QCOMPARE(second.findChild<QLabel *>(u"problem"_s)->text(), asked.problem);
    }

    // Each way to put sheets back has a drawing of its own.
    void theDrawingShowsHowTheSheetsLie()
    {
        QList<QImage> drawn;
        for (const auto inTray : {HandFeed::Printed::Down, HandFeed::Printed::Up}) {
            for (const Qt::Edge edge : {Qt::TopEdge, Qt::RightEdge, Qt::BottomEdge, Qt::LeftEdge}) {
                TurnQuestion one = question();
                one.inTray = inTray;
                one.leadingEdge = edge;
                one.isWide = edge == Qt::LeftEdge || edge == Qt::RightEdge;
                TurnPicture picture(one);
                picture.resize(picture.sizeHint());
                const QImage image = picture.grab().toImage();
                QVERIFY(!drawn.contains(image));
                drawn += image;
            }
        }
    }

    void noTextIsCut()
    {
        TurnQuestion asked = question();
        asked.problem = u"Other sides: "_s + QString(60, u'w') + u" "_s + QString(60, u'x');
        TurnSheetsDialog dialog(asked, [] { return true; });
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            QVERIFY2(label->height() >= label->heightForWidth(label->width()),
                     qPrintable(label->text()));
            QVERIFY(dialog.rect().contains(QRect(label->mapTo(&dialog, QPoint()), label->size())));
        }
    }
};

QTEST_MAIN(TurnSheetsDialogTest)
#include "turn_sheets_dialog_test.moc"
