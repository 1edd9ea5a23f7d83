#include <QAccessible>
#include <QPushButton>
#include <QTest>

#include "dialog/job/JobProgress.h"
#include "dialog/window/JobFooter.h"

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
