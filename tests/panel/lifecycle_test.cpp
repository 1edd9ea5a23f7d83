#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QVBoxLayout>

#include "platform/toolkit/InterfaceLoader.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr char kInterface[] = R"(<ui version="4.0"><class>TestPanel</class>
<widget class="QWidget" name="panelView">
 <widget class="QPushButton" name="optionButton">
  <property name="checkable"><bool>true</bool></property>
  <property name="action" stdset="0"><string>toggleShowOption</string></property>
 </widget>
 <widget class="QPushButton" name="helpButton">
  <property name="action" stdset="0"><string>showHelpFile</string></property>
 </widget>
 <widget class="QCheckBox" name="QXGray">
  <property name="action" stdset="0"><string>requestNewOutputBin</string></property>
 </widget>
</widget></ui>)";

QStringList steps(const RecordingHost &host)
{
    QStringList names;
    for (const HostCall &call : host.calls())
        names += call.operation;
    return names;
}

// Counts notifications on behalf of a panel.
class Observation
{
public:
    explicit Observation(const TestPanel &panel)
    {
        NotificationCenter::defaultCenter().addObserver(
            &panel, u"Something"_s, nullptr, [this](const Notification &) { ++m_count; });
    }
    int countAfterPosting()
    {
        NotificationCenter::defaultCenter().post(u"Something"_s, nullptr);
        return m_count;
    }

private:
    int m_count = 0;
};

} // namespace

class LifecycleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle = std::make_unique<TestBundle>();
        m_host = RecordingHost::forSamplePrinter();
    }
    void cleanup()
    {
        QCOMPARE(m_host->alerts().outstanding(), 0);
        takeInterfaceProblems();
        m_host.reset();
        m_bundle.reset();
    }

    void constructionRestoresAndChecksThroughTheConcretePanel()
    {
        TestPanel panel({u"QXMediaType"_s});
        panel.trace();
        QVERIFY(panel.initWithHost(m_host));
        const QStringList expected{
            u"chechModelName"_s,   u"restoreValuesAndReturnError"_s,
            u"checkFax"_s,         u"setDefaults"_s,
            u"checkColorSync"_s,   u"restoreOptionState"_s,
            u"checkConstraints"_s, u"saveAllValues"_s,
            u"checkConstraints"_s,
        };
        QCOMPARE(steps(*m_host), expected);
        QCOMPARE(panel.ppd, m_host->ppd());
        QCOMPARE(panel.pdePluginCallbackObject.get(), m_host.get());
        QCOMPARE(panel.pluginBundle, m_bundle->bundle());
        QCOMPARE(panel.thePDEName(), u"TestPanel"_s);
    }

    void constructionStartsFromNothing()
    {
        TestPanel panel;
        panel.setOutputBin({{u"QXMediaType"_s, u"Label"_s}});
        panel.paperName = u"UnsupportedPaper"_s;
        panel.popupInited = true;
        panel.setMode(kModePanelShown, true);
        panel.setMode(kModeMono, true);
        QVERIFY(panel.initWithHost(m_host));
        QVERIFY(panel.outputBin().isEmpty());
        QVERIFY(panel.paperName.isNull());
        QVERIFY(!panel.popupInited);
        QVERIFY(!panel.hasMode(kModePanelShown));
        QVERIFY(!panel.hasMode(kModeMono));
    }

    void aHostThatCannotBeAskedGetsNoPanel()
    {
        m_host->lack(PDECallbackOperation::willChangePPDOptionKeyValue_ppdChoice);
        TestPanel panel({u"QXMediaType"_s});
        panel.trace();
        QVERIFY(!panel.initWithHost(m_host));
        QVERIFY(!panel.pdePluginCallbackObject);
        QVERIFY(!panel.pluginBundle);
        QVERIFY(panel.outputBin().isEmpty());
        QVERIFY2(m_host->calls().isEmpty(), "no step of the construction may run");
    }

    void aBundleWithoutInformationLeavesThePanelUnnamed()
    {
        m_bundle.reset();
        m_bundle = std::make_unique<TestBundle>(TestBundle::Information::Absent);
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        QVERIFY(panel.thePDEName().isNull());
    }

    void thePanelKeepsItsHostAndBundleUntilItDies()
    {
        const auto before = m_host.use_count();
        const auto bundlesBefore = m_bundle->bundle().use_count();
        QPointer<QWidget> view;
        {
            TestPanel panel;
            QVERIFY(panel.initWithCallback(m_host));
            view = panel.makeView();
            QCOMPARE(m_host.use_count(), before + 1);
            QCOMPARE(m_bundle->bundle().use_count(), bundlesBefore + 1);
        }
        QCOMPARE(m_host.use_count(), before);
        QCOMPARE(m_bundle->bundle().use_count(), bundlesBefore);
        QVERIFY2(view.isNull(), "the view dies with its panel");
        QCOMPARE(ppdFirstOption(m_host->ppd()) != nullptr, true); // the PPD is the host's
    }

    void aDeadPanelObservesNothing()
    {
        auto panel = std::make_unique<TestPanel>();
        QVERIFY(panel->initWithHost(m_host));
        Observation observation(*panel);
        QCOMPARE(observation.countAfterPosting(), 1);
        panel.reset();
        QCOMPARE(observation.countAfterPosting(), 1);
    }

    void thePanelKindEndsWithTheName()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        QCOMPARE(panel.panelKind(), u"com.corvana.print.pde.CocoaTestPanel"_s);
        panel.setThePDEName(u"%1Other%2"_s);
        QCOMPARE(panel.panelKind(), u"com.corvana.print.pde.Cocoa%1Other%2"_s);
    }

    void theViewIsLoadedOnceAndConnected()
    {
        m_bundle->addInterface(u"TestPanel"_s, kInterface);
        TestPanel panel({u"QXGray"_s});
        QVERIFY(panel.initWithHost(m_host));
        QVERIFY(!panel.effectContent);
        QWidget *view = panel.panelView();
        QVERIFY(view);
        QCOMPARE(panel.panelView(), view);
        QVERIFY(panel.effectContent);
        QVERIFY(panel.optionButton);

        panel.optionButton->click();
        QCOMPARE(panel.toggledBy, QList<QWidget *>{panel.optionButton});
        view->findChild<QAbstractButton *>(u"QXGray"_s)->click();
        QCOMPARE(m_host->asked(), QStringList{u"QXGray=ON"_s});
    }

    void aMissingInterfaceFileLeavesNoView()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"TestPanel\\.ui"_s));
        QVERIFY(!panel.panelView());
        QVERIFY(!panel.effectContent);
        QVERIFY2(takeInterfaceProblems().value(0).contains(u"TestPanel.ui"_s),
                 "the host can still tell its user why the page is empty");
    }

    void everyShowFillsTheControlsAnew()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        for (int show = 0; show < 2; ++show) {
            m_host->forgetCalls();
            panel.trace();
            panel.willShow();
            const QStringList expected{u"checkColorSync"_s, u"checkFax"_s, u"initializePopup"_s,
                                       u"registerHelp"_s};
            QCOMPARE(steps(*m_host), expected);
            QVERIFY(panel.hasMode(kModePanelShown));
        }
    }

    void hidingIsNeverRefusedAndClearsOnlyTheShownBit()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        for (int bit = 0; bit < 15; ++bit)
            panel.setMode(static_cast<ImageMode>(1 << bit), true);
        QVERIFY(panel.shouldHide());
        QCOMPARE(panel.imageModeFlag(), std::int16_t(0x7fff & ~0x2000));
        QVERIFY(panel.shouldHide());
    }

    void theClosingOfItsWindowEndsAllObservations()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        QWidget window;
        panel.makeView()->setParent(&window);
        window.show();
        panel.willShow();
        Observation observation(panel);
        QCOMPARE(observation.countAfterPosting(), 1);

        QWidget other;
        other.show();
        other.close();
        QCOMPARE(observation.countAfterPosting(), 2);
        window.close();
        QCOMPARE(observation.countAfterPosting(), 2);
        panel.m_panelView->setParent(nullptr);
    }

    void anyNotificationHandedToTheRemovalEndsAllObservations()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        Observation observation(panel);
        panel.removeNotificationObserver({u"Whatever"_s, nullptr, {}, false});
        QCOMPARE(observation.countAfterPosting(), 0);
    }

    void savingWritesNothingByItself()
    {
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        const QVariantMap before = m_host->settings().entries();
        QString error = u"untouched"_s;
        QVERIFY(panel.saveValuesAndReturnError(&error));
        QCOMPARE(error, u"untouched"_s);
        QCOMPARE(m_host->settings().entries(), before);
        QVERIFY(m_host->asked().isEmpty());
    }

    void valuesAreReadBackOnlyAfterTheFirstShow()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        m_host->forgetCalls();
        panel.trace();
        panel.saveAllValues();
        QCOMPARE(steps(*m_host), QStringList{u"saveAllValues"_s});
        panel.willShow();
        m_host->forgetCalls();
        panel.saveAllValues();
        const QStringList expected{u"saveAllValues"_s, u"getUIValues"_s, u"checkUIConstraints"_s,
                                   u"saveOptionState"_s};
        QCOMPARE(steps(*m_host), expected);
    }

private:
    std::unique_ptr<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
};

QTEST_MAIN(LifecycleTest)
#include "lifecycle_test.moc"
