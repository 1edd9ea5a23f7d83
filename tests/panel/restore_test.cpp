#include <QComboBox>
#include <QTest>

#include "panel/OptionKeywords.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kDisclosureEntry{"com.corvana.print.PrintSettings.advancedItem"};

} // namespace

class RestoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = RecordingHost::forSamplePrinter(); }
    void cleanup() { m_host.reset(); }

    void restoreRunsItsStepsInOrder()
    {
        TestPanel panel({u"QXMediaType"_s, u"QXGray"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.makeView();
        panel.willShow();
        m_host->forgetCalls();
        panel.trace();
        QString error = u"untouched"_s;
        QVERIFY(panel.restoreValuesAndReturnError(&error));
        QCOMPARE(error, u"untouched"_s);
        const QList<HostCall> expected{
            {u"restoreValuesAndReturnError"_s, {}},
            {u"checkFax"_s, {}},
            {u"setDefaults"_s, {}},
            {u"checkColorSync"_s, {}},
            {u"restoreOptionState"_s, {}},
            {u"checkConstraints"_s, {}},
            {u"updateUI"_s, {}},
            {u"checkUIConstraints"_s, {}},
            {u"updateUIforKey"_s, {u"QXMediaType"_s}},
            {u"updateUIforKey"_s, {u"QXGray"_s}},
            {u"checkUIConstraints"_s, {}},
            {u"saveAllValues"_s, {}},
            {u"getUIValues"_s, {}},
            {u"checkUIConstraints"_s, {}},
            {u"saveOptionState"_s, {}},
        };
        QCOMPARE(m_host->calls(), expected);
    }

    void aMarkedChoiceIsTakenOver()
    {
        m_host->mark(u"QXMediaType"_s, u"Label"_s);
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        QCOMPARE(panel.outputBin().value(u"QXMediaType"_s), QVariant(u"Label"_s));
        QVERIFY2(m_host->asked().isEmpty(), "what is marked need not be asked for");
    }

    void anOptionWithoutAMarkTakesItsDefault()
    {
        m_host->unmark(u"QXMediaType"_s);
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        QCOMPARE(panel.outputBin().value(u"QXMediaType"_s), QVariant(u"Plain"_s));
    }

    void anOptionThatThePpdLacksIsSkipped()
    {
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.PPDKeys = QStringList{u"NoOption"_s, u"QXMediaType"_s};
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QVERIFY(!panel.outputBin().contains(u"NoOption"_s));
        QVERIFY(panel.outputBin().contains(u"QXMediaType"_s));
    }

    void beforeTheFirstShowTheControlsAreLeftAloneAndNothingIsSaved()
    {
        m_host->mark(u"QXMediaType"_s, u"Label"_s);
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        QComboBox *popUp = panel.addPopUp(u"QXMediaType"_s);
        popup::addItemWithTitle(popUp, u"Labels"_s);
        popup::setRepresentedObject(popUp, 0, u"Label"_s);
        panel.trace();
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QCOMPARE(panel.outputBin().value(u"QXMediaType"_s), QVariant(u"Label"_s));
        QCOMPARE(popUp->currentIndex(), -1);
        QVERIFY(!m_host->settings().contains(kDisclosureEntry));
        QVERIFY(!m_host->calls().contains(HostCall{u"updateUI"_s, {}}));
        QVERIFY(!m_host->calls().contains(HostCall{u"getUIValues"_s, {}}));
    }

    void afterTheFirstShowTheControlsFollowAndTheStateIsSaved()
    {
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        QComboBox *popUp = panel.addPopUp(u"QXMediaType"_s);
        panel.willShow();
        m_host->mark(u"QXMediaType"_s, u"Label"_s);
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QCOMPARE(popUp->currentText(), u"Labels"_s);
        QCOMPARE(m_host->marked(u"QXMediaType"_s), u"Label"_s);
        QCOMPARE(m_host->settings().value(kDisclosureEntry), QVariant(false));
    }

    void theFaxBitIsEvaluatedAnew()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        m_host->mark(u"QXOutput"_s, u"FAX"_s);
        panel.restoreValuesAndReturnError(nullptr);
        QVERIFY(panel.hasMode(kModeFaxOutput));
    }

    void aPanelThatWasNotToldItsOptionsSupportsNoListAtAll()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        QCOMPARE(panel.supportedPPDOptionKeys(), std::optional<QStringList>());
        QCOMPARE(panel.availablePPDOptionKeys(), std::optional<QStringList>());
        panel.setPPDKeys(QStringList());
        QCOMPARE(panel.supportedPPDOptionKeys(), std::optional(QStringList()));
    }

    void onlyOptionsOfThePpdAreKeptInTheirOrder()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        panel.setPPDKeys(QStringList{u"QXGray"_s, u"NoOption"_s, u"QXMediaType"_s, u"qxinputslot"_s,
                                     u""_s, u"Duplex"_s});
        const QStringList kept{u"QXGray"_s, u"QXMediaType"_s, u"Duplex"_s};
        QCOMPARE(panel.supportedPPDOptionKeys(), std::optional(kept));
        QCOMPARE(panel.availablePPDOptionKeys(), std::optional(kept));
    }

    void noListLeavesTheFormerOne()
    {
        TestPanel panel({u"QXGray"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.setPPDKeys(std::nullopt);
        QCOMPARE(panel.supportedPPDOptionKeys(), std::optional(QStringList{u"QXGray"_s}));
    }

private:
    TestBundle m_bundle;
    std::shared_ptr<RecordingHost> m_host;
};

QTEST_MAIN(RestoreTest)
#include "restore_test.moc"
