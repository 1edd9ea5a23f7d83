#include <QAccessible>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "dialog/job/JobProgress.h"
#include "dialog/window/JobFooter.h"
#include "dialog/window/find/FindField.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

// What a screen reader was told, in the order of time.
QStringList announcementsIn(QWidget &window)
{
    QStringList texts;
    QAccessibleInterface *whole = QAccessible::queryAccessibleInterface(&window);
    for (int i = 0; i < whole->childCount(); ++i) {
        if (whole->child(i)->role() == QAccessible::Notification)
            texts += whole->child(i)->text(QAccessible::Name);
    }
    return texts;
}

} // namespace

class JobFooterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Who does not see the progress hears of it, and not of each page.
    void progressIsAnnouncedAndOnlyWhatIsTrueAMomentLater()
    {
        JobFooter footer;
        footer.showRunning(true);
        JobProgress progress;
        progress.stage = JobProgress::Stage::Sending;
        for (int sent = 1; sent <= 50; ++sent) {
            progress.sent = sent;
            progress.total = 100;
            footer.showProgress(progress, false);
        }
        QVERIFY(announcementsIn(footer).isEmpty());
        QTRY_COMPARE(announcementsIn(footer), QStringList{progress.text()});
        footer.showCanceling();
        QTRY_COMPARE(announcementsIn(footer),
                     (QStringList{progress.text(), JobFooter::tr("Canceling…")}));
    }

    // Beside a button that closes the window and lets the job go on.
    void cancelSaysThatItCancelsTheJob()
    {
        JobFooter footer;
        const auto *cancel = footer.findChild<QPushButton *>(u"cancel"_s);
        footer.showRunning(true);
        footer.showProgress({}, false);
        QCOMPARE(cancel->text(), u"Cancel"_s);
        footer.showProgress({}, true);
        QCOMPARE(cancel->text(), u"Cancel Job"_s);
        footer.showRunning(false);
        QCOMPARE(cancel->text(), u"Cancel"_s);
    }

    // Where that has room: what stands there while nothing is printed makes some.
    void closeSaysThatPrintingContinues()
    {
        QWidget window; // a window of its own would be as wide as it needs
        JobFooter footer(&window);
        footer.resize(1000, footer.sizeHint().height());
        window.resize(1000, 100);
        window.show();
        const auto *leave = footer.findChild<QPushButton *>(u"leave"_s);
        const auto *print = footer.findChild<QPushButton *>(u"print"_s);
        footer.setCanPrint(true);
        QVERIFY(leave->isHidden() && print->isVisible());
        footer.setCanPrint(false);
        footer.showRunning(true);
        footer.showProgress({}, true);
        QVERIFY(leave->isVisible() && print->isHidden() && footer.finder()->isHidden());
        QCOMPARE(leave->text(), u"C&lose (printing continues)"_s);
        footer.setGeometry(0, 0, footer.minimumSizeHint().width() + 5, footer.height());
        footer.showProgress({}, true); // it is there, and is not named anew
        QCOMPARE(leave->text(), u"C&lose (printing continues)"_s);
        footer.setGeometry(0, 0, leave->width() + 50, footer.height());
        footer.showProgress({}, false);
        footer.showProgress({}, true);
        QCOMPARE(leave->text(), u"C&lose"_s);
        QCOMPARE(leave->accessibleName(), u"Close (printing continues)"_s);
        footer.setCanPrint(true);
        QVERIFY(print->isVisible()); // so that it can have the focus
        footer.showRunning(false);
        QVERIFY(leave->isHidden() && print->isVisible() && footer.finder()->isVisible());
    }

    // A window that just fits stays as it is: on a small screen Print would be beside it afterwards.
    void noJobWidensTheWindow()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        JobFooter footer;
        layout->addWidget(&footer);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const int least = window.minimumSizeHint().width();
        for (int width = least; width < least + 300; width += 10) {
            window.resize(width, window.height());
            for (const bool isCanceled : {false, true}) {
                footer.showRunning(true);
                footer.setCanPrint(false);
                footer.showProgress({}, true);
                QCOMPARE(window.width(), width);
                if (isCanceled)
                    footer.showCanceling();
                QCOMPARE(window.width(), width);
                footer.setCanPrint(true);
                footer.showRunning(false);
                QCoreApplication::processEvents();
                QCOMPARE(window.width(), width);
            }
        }
    }

    // A second press of the key that printed must not close the window, or cancel the job.
    void noButtonOfARunningJobGetsTheFocusByItself()
    {
        JobFooter footer;
        footer.resize(1000, footer.sizeHint().height());
        footer.show();
        footer.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&footer));
        auto *print = footer.findChild<QPushButton *>(u"print"_s);
        print->setEnabled(true);
        for (QWidget *first :
             {static_cast<QWidget *>(print), footer.finder()->focusOrder().at(0)}) {
            footer.setCanPrint(true);
            footer.showRunning(false);
            first->setFocus();
            QVERIFY(first->hasFocus());
            footer.showRunning(true);
            footer.setCanPrint(false);
            footer.showProgress({}, true);
            QVERIFY(!qobject_cast<QPushButton *>(footer.focusWidget()));
        }
    }

    void aJobThatIsOverBeforeIsNotAnnounced()
    {
        JobFooter footer;
        footer.showRunning(true);
        footer.showRunning(false);
        QTest::qWait(1200);
        QVERIFY(announcementsIn(footer).isEmpty());
    }
};

QTEST_MAIN(JobFooterTest)

#include "job_footer_test.moc"
