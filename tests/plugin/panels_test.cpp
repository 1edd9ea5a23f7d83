#include <QTest>

#include "colorsetting/ColorTransformer.h"
#include "colorsetting/QXLaserColorSettingPDE.h"
#include "plugin/QXCLQuality13PDEPlugIn.h"
#include "printsetting/QXLaserPrintSettingPDE.h"
#include "tests/support/Gestures.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kTransformer = QLatin1StringView(kColorTransformerName);

class OtherTransformer : public ValueTransformer
{
public:
    QVariant transformedValue(const QVariant &) const override { return {}; }
    QVariant reverseTransformedValue(const QVariant &) const override { return {}; }
};

bool colorTransformerIsRegistered()
{
    return std::dynamic_pointer_cast<ColorTransformer>(
               ValueTransformer::valueTransformerForName(kTransformer)) != nullptr;
}

} // namespace

class PanelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ValueTransformer::setValueTransformer(std::make_shared<OtherTransformer>(), kTransformer);
        QVERIFY(!colorTransformerIsRegistered());
    }

    void everyBundleWillDo()
    {
        QVERIFY(m_plugIn.initWithBundle(nullptr));
        QVERIFY(m_plugIn.initWithBundle(m_bundle.bundle()));
    }

    void theTypeHasTwoPanelsInOrder()
    {
        const auto host = RecordingHost::forSamplePrinter();
        const auto panels =
            m_plugIn.PDEPanelsForType_withHostInfo(u"BDB091F4-E57F-11D3-B5CC-0050E4603277"_s, host);
        QCOMPARE(panels.size(), 2);
        QVERIFY(std::dynamic_pointer_cast<QXLaserPrintSettingPDE>(panels.at(0)));
        QVERIFY(std::dynamic_pointer_cast<QXLaserColorSettingPDE>(panels.at(1)));
        QCOMPARE(panels.at(0)->panelName(), u"Print Setting"_s);
        QCOMPARE(panels.at(1)->panelName(), u"Color Setting"_s);
        QVERIFY(colorTransformerIsRegistered());
    }

    void otherTypesHaveNone_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("lower case") << u"bdb091f4-e57f-11d3-b5cc-0050e4603277"_s;
        QTest::newRow("one lower-case letter") << u"BDB091F4-E57F-11D3-B5CC-0050e4603277"_s;
        QTest::newRow("longer") << u"BDB091F4-E57F-11D3-B5CC-0050E4603277 "_s;
        QTest::newRow("another") << u"00000000-0000-0000-0000-000000000000"_s;
        QTest::newRow("empty") << QString();
    }
    void otherTypesHaveNone()
    {
        QFETCH(QString, type);
        const auto host = RecordingHost::forSamplePrinter();
        QVERIFY(m_plugIn.PDEPanelsForType_withHostInfo(type, host).isEmpty());
        QVERIFY(!colorTransformerIsRegistered());
        QVERIFY(host->calls().isEmpty());
    }

    void panelsThatCannotBeConstructedAreLeftOut()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->lack(PDECallbackOperation::willChangePPDOptionKeyValue_ppdChoice);
        const QString type = QLatin1StringView(kPrintDialogExtensionType);
        QVERIFY(m_plugIn.PDEPanelsForType_withHostInfo(type, host).isEmpty());
        QVERIFY2(colorTransformerIsRegistered(), "the type is right all the same");
    }

    void everyDialogGetsPanelsOfItsOwn()
    {
        const QString type = QLatin1StringView(kPrintDialogExtensionType);
        const auto host = RecordingHost::forSamplePrinter();
        const auto first = m_plugIn.PDEPanelsForType_withHostInfo(type, host);
        const auto second = m_plugIn.PDEPanelsForType_withHostInfo(type, host);
        QCOMPARE(second.size(), 2);
        QVERIFY(first.at(0) != second.at(0));
        QVERIFY(first.at(1) != second.at(1));
    }

    void theColorModeOfOnePanelRulesTheOther()
    {
        const auto host = RecordingHost::forSamplePrinter();
        const auto panels = m_plugIn.PDEPanelsForType_withHostInfo(
            QLatin1StringView(kPrintDialogExtensionType), host);
        QWidget *printSetting = panels.at(0)->panelView();
        QWidget *colorSetting = panels.at(1)->panelView();
        QVERIFY(printSetting && colorSetting);
        panels.at(0)->willShow();
        panels.at(1)->willShow();
        auto *matrix = colorSetting->findChild<QWidget *>(u"colorMatchingMatrix"_s);
        QVERIFY(matrix->isEnabled());
        QVERIFY(panels.at(0)->shouldHide());
        QVERIFY(pick(printSetting->findChild<QComboBox *>(u"monoColorPopup"_s), u"Mono"_s));
        panels.at(1)->willShow();
        QVERIFY(!matrix->isEnabled());
        QVERIFY(!panels.at(1)->summaryInfo().contains(u"Color Matching"_s));
    }

    void theJobValuesAreAlwaysTheSame()
    {
        QVERIFY(m_plugIn.jobValues());
        QCOMPARE(m_plugIn.jobValues(), m_plugIn.jobValues());
    }

private:
    TestBundle m_bundle = TestBundle::built();
    QXCLQuality13PDEPlugIn m_plugIn;
};

QTEST_MAIN(PanelsTest)
#include "panels_test.moc"
