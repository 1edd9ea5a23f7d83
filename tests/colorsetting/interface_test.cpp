#include <QTest>

#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/LabelColor.h"
#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The panel with the interface file that is shipped.
class InterfaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_host = RecordingHost::forSamplePrinter();
        m_panel = std::make_unique<ColorSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_host->forgetCalls();
    }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
    }

    void everyOutletIsConnected()
    {
        QCOMPARE(takeInterfaceProblems(), QStringList());
        QVERIFY(m_panel->effectContent);
        QVERIFY(m_panel->colorMatchingMatrix);
        QVERIFY(m_panel->colorMatchingLabel);
        QVERIFY(m_panel->enhancedBlackCheckBox);
        QVERIFY(m_panel->grayCheckBox);
    }

    void showingFillsTheControls()
    {
        RadioMatrix *matrix = m_panel->colorMatchingMatrix;
        QCOMPARE(matrix->numberOfRows(), 3);
        QCOMPARE(matrix->cellTitle(0), u"Normal"_s);
        QCOMPARE(matrix->cellTitle(1), u"Vivid"_s);
        QCOMPARE(matrix->cellTitle(2), u"None"_s);
        QCOMPARE(matrix->selectedRow(), 0);
        QCOMPARE(m_panel->colorMatchingLabel->text(), u"Color Matching: "_s);
        QCOMPARE(m_panel->grayCheckBox->text(), u"Print Gray with Black Toner Only"_s);
        QCOMPARE(m_panel->enhancedBlackCheckBox->text(), u"Enhance Black Printing"_s);
        QVERIFY(!m_panel->grayCheckBox->isChecked());
        for (const QLatin1StringView effect : kEffectKeywords)
            QCOMPARE(m_panel->effectContent->value(effect), QVariant(qint64(0)));
    }

    void theControlsAreFilledOnce()
    {
        m_panel->colorMatchingMatrix->setCellTitle(0, u"as it was left"_s);
        m_panel->willShow();
        QCOMPARE(m_panel->colorMatchingMatrix->cellTitle(0), u"as it was left"_s);
    }

    void aPickReachesHostPanelAndJob()
    {
        QVERIFY(pick(m_panel->colorMatchingMatrix, 2));
        QCOMPARE(m_host->asked(), QStringList{u"QXColorMatching=None"_s});
        QCOMPARE(m_panel->stored(u"QXColorMatching"_s), u"None"_s);
        QCOMPARE(m_host->marked(u"QXColorMatching"_s), u"None"_s);
        QCOMPARE(m_panel->entry(u"QXColorMatching"_s), QVariant(u"None"_s));
    }

    void aPickByKeyboardReachesTheHost()
    {
        QTest::keyClick(m_panel->grayCheckBox, Qt::Key_Space);
        QCOMPARE(m_host->asked(), QStringList{u"QXGray=ON"_s});
        QCOMPARE(m_host->marked(u"QXGray"_s), u"ON"_s);
    }

    void aRefusedPickIsTakenBack()
    {
        m_host->refuseEverything();
        QVERIFY(pick(m_panel->colorMatchingMatrix, 2));
        QCOMPARE(m_panel->colorMatchingMatrix->selectedRow(), 0);
        m_panel->grayCheckBox->click();
        QVERIFY(!m_panel->grayCheckBox->isChecked());
        QCOMPARE(m_host->marked(u"QXGray"_s), u"OFF"_s);
        QCOMPARE(m_host->marked(u"QXColorMatching"_s), u"Normal"_s);
    }

    void monochromePrintingMatchesNoColors()
    {
        m_panel->setMode(kModeMono, true);
        m_panel->updateUI();
        QVERIFY(!m_panel->colorMatchingMatrix->isEnabled());
        QCOMPARE(textColor(m_panel->colorMatchingLabel), ControlTextColor::Disabled);
        m_panel->setMode(kModeMono, false);
        m_panel->updateUI();
        QVERIFY(m_panel->colorMatchingMatrix->isEnabled());
        QCOMPARE(textColor(m_panel->colorMatchingLabel), ControlTextColor::Normal);
    }

    void aFaxDisablesTheControlsAndKeepsTheChoices()
    {
        m_host->mark(u"QXGray"_s, u"ON"_s);
        m_host->mark(u"QXOutput"_s, u"FAX"_s);
        m_panel->restoreValuesAndReturnError(nullptr);
        QVERIFY(!m_panel->colorMatchingMatrix->isEnabled());
        QVERIFY(!m_panel->grayCheckBox->isEnabled());
        QVERIFY(!m_panel->enhancedBlackCheckBox->isEnabled());
        QCOMPARE(textColor(m_panel->colorMatchingLabel), ControlTextColor::Disabled);
        QCOMPARE(m_host->marked(u"QXGray"_s), u"ON"_s);
    }

    void hidingIsNeverRefused()
    {
        QVERIFY(m_panel->hasMode(kModePanelShown));
        QVERIFY(m_panel->shouldHide());
        QVERIFY(!m_panel->hasMode(kModePanelShown));
    }

private:
    TestBundle m_bundle = TestBundle::built();
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<ColorSettingProbe> m_panel;
};

QTEST_MAIN(InterfaceTest)
#include "interface_test.moc"
