// Services around the controls: resizing, moving, illustrations, silenced alerts.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/ViewFrame.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kAdvancedItemEntry = u"com.corvana.print.PrintSettings.advancedItem"_s;

} // namespace

class ServicesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<TestPanel> m_panel;

    qsizetype resizeNotices() const
    {
        return m_host->calls().count(HostCall{u"panelViewDidResize"_s, {}});
    }
    // A blue PDF page, as small as the pictures.
    void addPage(const QString &name)
    {
        QPdfWriter page(m_bundle->bundle()->path() + u"/pictures/"_s + name + u".pdf"_s);
        page.setPageSize(
            QPageSize(QSizeF(8, 8), QPageSize::Point, QString(), QPageSize::ExactMatch));
        page.setPageMargins(QMarginsF());
        QPainter(&page).fillRect(QRect(0, 0, page.width(), page.height()), Qt::blue);
    }
    QString preferences() const
    {
        return UserDefaults::fileOfDomain(m_bundle->bundle()->identifier());
    }

private Q_SLOTS:
    void init()
    {
        m_bundle = std::make_unique<TestBundle>(
            TestBundle::Information::Present,
            QJsonObject{{u"CFBundleIdentifier"_s, u"com.corvana.test.services"_s}});
        m_host = RecordingHost::forSamplePrinter();
        m_window = std::make_unique<QWidget>();
        m_panel = std::make_unique<TestPanel>();
        QVERIFY(m_panel->initWithHost(m_host));
        m_panel->makeView()->setParent(m_window.get());
        m_window->resize(600, 400);
        m_window->show();
        m_panel->setMode(kModePanelShown, true);
        m_host->forgetCalls();
        QFile::remove(preferences());
        QDir(preferences()).removeRecursively(); // of a test that failed
    }
    void cleanup()
    {
        QFile::remove(preferences());
        m_panel.reset();
        m_window.reset();
        m_host.reset();
        m_bundle.reset();
    }

    void theHostIsToldAtOnceOnlyInAWindowThatHasRoom_data()
    {
        QTest::addColumn<double>("roomAroundPanel");
        QTest::addColumn<bool>("atOnce");
        QTest::newRow("96 points are not enough") << 96.0 << false;
        QTest::newRow("a little more is") << 98.0 << true;
        QTest::newRow("a window that must grow") << -100.0 << false;
    }
    void theHostIsToldAtOnceOnlyInAWindowThatHasRoom()
    {
        QFETCH(double, roomAroundPanel);
        QFETCH(bool, atOnce);
        const double window = m_window->frameGeometry().height() / pixelsPerPoint(m_window.get());
        const double height = window - roomAroundPanel;
        m_panel->setViewFrameSize(300, height);
        QCOMPARE(viewFrame(m_panel->panelView()).height, height);
        QCOMPARE(resizeNotices(), atOnce ? 1 : 0);
        QTRY_COMPARE(resizeNotices(), 1); // one resize, one notice
        QTest::qWait(20);
        QCOMPARE(resizeNotices(), 1);
    }

    void twoResizesBeforeTheLayoutAreOneNotice()
    {
        m_panel->setViewFrameSize(300, 1000);
        m_panel->setViewFrameSize(300, 1100);
        QTRY_COMPARE(resizeNotices(), 1);
        QTest::qWait(20);
        QCOMPARE(resizeNotices(), 1);
    }

    void aHiddenPanelIsResizedWithoutNotice()
    {
        m_panel->setMode(kModePanelShown, false);
        m_panel->setViewFrameSize(300, 110);
        QTest::qWait(20);
        QCOMPARE(viewFrame(m_panel->panelView()).height, 110.0);
        QCOMPARE(resizeNotices(), 0);
    }

    void aHostWithoutResizeNoticesGetsNoResize()
    {
        const ViewFrame before = viewFrame(m_panel->panelView());
        m_host->lack(PDECallbackOperation::panelViewDidResize);
        m_panel->setViewFrameSize(300, 110);
        QCOMPARE(viewFrame(m_panel->panelView()), before);
    }

    void viewsMoveUpByPoints()
    {
        QWidget part(m_panel->panelView());
        part.setGeometry(10, 100, 50, 20);
        const double scale = pixelsPerPoint(&part);
        m_panel->adjustUIPosition_forParts(30.0, {&part, nullptr});
        QCOMPARE(part.geometry(), QRect(10, 100 - qRound(30 * scale), 50, 20));
    }

    void anIllustrationIsShownByName()
    {
        m_bundle->addPicture(u"lever"_s);
        QLabel view(m_panel->panelView());
        view.hide();
        m_panel->changeImage_ofView(u"lever"_s, &view);
        QVERIFY(hasImage(&view));
        QCOMPARE(imageName(&view), u"lever"_s);
        QVERIFY(!view.isHidden());
    }

    void theIllustrationThatIsShownIsNotReadAgain()
    {
        m_bundle->addPicture(u"lever"_s);
        QLabel view(m_panel->panelView());
        m_panel->changeImage_ofView(u"lever"_s, &view);
        const qint64 shown = view.pixmap(Qt::ReturnByValue).cacheKey();
        m_bundle->addPicture(u"lever"_s);
        m_panel->changeImage_ofView(u"lever"_s, &view);
        QCOMPARE(view.pixmap(Qt::ReturnByValue).cacheKey(), shown);
    }

    void anIllustrationMayBeAPdfPage()
    {
        addPage(u"drawing"_s);
        QLabel view(m_panel->panelView());
        view.hide();
        m_panel->changeImage_ofView(u"drawing"_s, &view);
        QVERIFY(hasImage(&view));
        QCOMPARE(imageName(&view), u"drawing"_s);
        QVERIFY(!view.isHidden());
        QCOMPARE(view.pixmap(Qt::ReturnByValue).toImage().pixelColor(2, 2), QColor(Qt::blue));
    }

    void aPictureComesBeforeThePageOfItsName()
    {
        addPage(u"lever"_s);
        m_bundle->addPicture(u"lever"_s);
        QLabel view(m_panel->panelView());
        m_panel->changeImage_ofView(u"lever"_s, &view);
        QCOMPARE(view.pixmap(Qt::ReturnByValue).toImage().pixelColor(2, 2), QColor(Qt::red));
    }

    void anIllustrationThatTheBundleLacksHidesItsView()
    {
        m_bundle->addPicture(u"lever"_s);
        QLabel view(m_panel->panelView());
        m_panel->changeImage_ofView(u"lever"_s, &view);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no illustration"_s));
        m_panel->changeImage_ofView(u"missing"_s, &view);
        QVERIFY(view.isHidden());
        QCOMPARE(imageName(&view), u"None"_s);
    }

    void aFileThatIsNoPictureLeavesTheFormerOne()
    {
        m_bundle->addPicture(u"lever"_s);
        m_bundle->addBrokenPicture(u"broken"_s);
        QLabel view(m_panel->panelView());
        m_panel->changeImage_ofView(u"lever"_s, &view);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is no picture"_s));
        m_panel->changeImage_ofView(u"broken"_s, &view);
        QVERIFY(hasImage(&view));
        QCOMPARE(imageName(&view), u"lever"_s);
        QVERIFY(!view.isHidden());
    }

    // "" stands for no entry, "YES" and "NO" for one.
    void theDisclosureIsRestoredFromTheJob_data()
    {
        QTest::addColumn<QString>("held");
        QTest::addColumn<QString>("job");
        QTest::addColumn<QVariant>("result");
        QTest::addColumn<bool>("toggled");
        QTest::newRow("nothing, nothing") << u""_s << u""_s << QVariant() << false;
        QTest::newRow("nothing, closed") << u""_s << u"NO"_s << QVariant() << false;
        QTest::newRow("nothing, open") << u""_s << u"YES"_s << QVariant(true) << true;
        QTest::newRow("closed, nothing") << u"NO"_s << u""_s << QVariant(u"NO"_s) << false;
        QTest::newRow("closed, closed") << u"NO"_s << u"NO"_s << QVariant(u"NO"_s) << false;
        QTest::newRow("closed, open") << u"NO"_s << u"YES"_s << QVariant(true) << true;
        QTest::newRow("open, nothing") << u"YES"_s << u""_s << QVariant(false) << true;
        QTest::newRow("open, closed") << u"YES"_s << u"NO"_s << QVariant(false) << true;
        QTest::newRow("open, open") << u"YES"_s << u"YES"_s << QVariant(u"YES"_s) << false;
    }
    void theDisclosureIsRestoredFromTheJob()
    {
        QFETCH(QString, held);
        QFETCH(QString, job);
        QFETCH(QVariant, result);
        QFETCH(bool, toggled);
        m_host->settings().setEntries({});
        if (!job.isEmpty())
            m_host->settings().setValue(kAdvancedItemEntry, job);
        if (!held.isEmpty())
            m_panel->effectContent->setValue(u"advancedItem"_s, held);
        m_panel->restoreOptionState();
        QCOMPARE(m_panel->effectContent->value(u"advancedItem"_s), result);
        QCOMPARE(m_panel->toggledBy.size(), toggled ? 1 : 0);
    }

    void aDisclosureThatWasNeverSetIsSavedAsClosed()
    {
        m_host->settings().setEntries({});
        m_panel->saveOptionState();
        QCOMPARE(m_host->settings().value(kAdvancedItemEntry), QVariant(false));
        m_panel->effectContent->setValue(u"advancedItem"_s, true);
        m_panel->saveOptionState();
        QCOMPARE(m_host->settings().value(kAdvancedItemEntry), QVariant(true));
    }

    void aSilencedAlertStaysSilentAcrossPanels()
    {
        const QString key = u"FrontPaper_Env"_s;
        QVERIFY(m_panel->shouldShowAlert(key));
        m_panel->alertDidEnd_returnCode_contextInfo({0, true}, 0, key);
        QVERIFY(!m_panel->shouldShowAlert(key));
        QVERIFY(m_panel->shouldShowAlert(u"FrontPaper_Label"_s));
        TestPanel other;
        QVERIFY(other.initWithHost(m_host));
        QVERIFY(!other.shouldShowAlert(key));
        other.alertDidEnd_returnCode_contextInfo({1, false}, 1, key);
        QVERIFY(m_panel->shouldShowAlert(key));
    }

    void anAlertWithoutAKeyIsNotRecorded()
    {
        m_panel->alertDidEnd_returnCode_contextInfo({0, true}, 0, QString());
        QVERIFY(!QFile::exists(preferences()));
    }

    void preferencesThatCannotBeReadShowEveryAlertAndAreKept()
    {
        const QString key = u"FrontPaper_Env"_s;
        QVERIFY(QDir().mkpath(preferences())); // a folder where the file belongs
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cannot be read"_s));
        QVERIFY(m_panel->shouldShowAlert(key));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cannot be read"_s));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"were kept as"_s));
        m_panel->alertDidEnd_returnCode_contextInfo({0, true}, 0, key);
        QVERIFY(!m_panel->shouldShowAlert(key));
        const QString kept = preferences() + u".damaged"_s;
        QVERIFY(QFileInfo(kept).isDir());
        QVERIFY(QDir().rmdir(kept));
    }
};

QTEST_MAIN(ServicesTest)
#include "services_test.moc"
