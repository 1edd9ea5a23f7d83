#include <QTest>

#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/printsetting/PrintSettingFixture.h"
#include "tests/support/Gestures.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The panel with the interface file that is shipped.
class InterfaceTest : public PrintSettingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle.emplace(TestBundle::built());
        openPanel(RecordingHost::forSamplePrinter());
        showPanel();
    }
    void cleanup() { closeAll(); }

    void everyOutletIsConnected()
    {
        QCOMPARE(takeInterfaceProblems(), QStringList());
        QVERIFY(m_panel->effectContent);
        const QList<QWidget *> outlets{
            m_panel->mediaTypePopup,       m_panel->resolutionPopup,
            m_panel->monoColorPopup,       m_panel->paperFeedPopup,
            m_panel->mediaTypeLabel,       m_panel->resolutionLabel,
            m_panel->monoColorLabel,       m_panel->paperFeedLabel,
            m_panel->advancedTabView,      m_panel->advancedTableView,
            m_panel->tonerSaveButton,      m_panel->improveMatrix,
            m_panel->reducePaperButton,    m_panel->improveTonerfixButton,
            m_panel->reduceGhostButton,    m_panel->densityField,
            m_panel->densitySlider,        m_panel->sleepTimeField,
            m_panel->sleepTimeStepper,     m_panel->sleepTimeMatrix,
            m_panel->skipBlankButton,      m_panel->quietModeMatrix,
            m_panel->optionLabel,          m_panel->optionButton,
            m_panel->densityLabel,         m_panel->improveLabel,
            m_panel->sleepTimePrefixLabel, m_panel->sleepTimeSuffixLabel,
            m_panel->accessoryView,
        };
        QVERIFY(m_panel->arrayController);
        for (qsizetype i = 0; i < outlets.size(); ++i)
            QVERIFY2(outlets.at(i), qPrintable(QString::number(i)));
    }

    void showingFillsTheControls_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("items");
        QTest::newRow("media type") << u"QXMediaType"_s << u"Media Type: "_s << u"Plain Paper"_s
                                    << 10; // post cards are not offered
        QTest::newRow("resolution") << u"QXResolution"_s << u"Resolution: "_s << u"600 dpi"_s << 3;
        QTest::newRow("color mode")
            << u"QXMonoColor"_s << u"Color Mode: "_s << u"Auto (Color or Mono)"_s << 3;
        QTest::newRow("paper source")
            << u"QXInputSlot"_s << u"Paper Source: "_s << u"Auto Select"_s << 5;
    }
    void showingFillsTheControls()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, title);
        QFETCH(QString, shown);
        QFETCH(int, items);
        auto *popUp = qobject_cast<QComboBox *>(m_panel->determineUI(keyword));
        auto *label = qobject_cast<QLabel *>(m_panel->determineLabel(keyword));
        QVERIFY(popUp && label);
        QCOMPARE(label->text(), title);
        QCOMPARE(popUp->currentText(), shown);
        QCOMPARE(popUp->count(), items);
        QVERIFY(popUp->isEnabled());
        QCOMPARE(label->buddy(), popUp); // read out together
    }

    void whatIsMarkedIsShown()
    {
        m_host->mark(u"QXResolution"_s, u"1200dpi"_s);
        m_panel->restoreValuesAndReturnError(nullptr);
        QCOMPARE(m_panel->resolutionPopup->currentText(), u"1200 dpi"_s);
    }

    void aPickByKeyboardReachesHostPanelAndJob()
    {
        QVERIFY(pickWithKeyboard(m_panel->resolutionPopup, u"1200 dpi"_s));
        QCOMPARE(m_host->asked(), (QStringList{u"QXResolution=1200dpi"_s, u"TonerSaveMode=OFF"_s}));
        QCOMPARE(m_panel->stored(u"QXResolution"_s), u"1200dpi"_s);
        QCOMPARE(m_host->marked(u"QXResolution"_s), u"1200dpi"_s);
        QCOMPARE(m_panel->entry(u"QXResolution"_s), QVariant(u"1200dpi"_s));
    }

    void aRefusedPickIsTakenBack()
    {
        m_host->mark(u"Duplex"_s, u"DuplexTumble"_s);
        QVERIFY(pick(m_panel->mediaTypePopup, u"Glossy Paper"_s)); // never on both sides
        QCOMPARE(m_host->asked(), QStringList{u"QXMediaType=Glossy"_s});
        QCOMPARE(m_panel->mediaTypePopup->currentText(), u"Plain Paper"_s);
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), u"Plain"_s);
        QCOMPARE(m_host->marked(u"QXMediaType"_s), u"Plain"_s);
        QCOMPARE(m_panel->entry(u"QXMediaType"_s), QVariant(u"Plain"_s));
    }

    void aFaxDisablesTheControls()
    {
        m_host->mark(u"QXOutput"_s, u"FAX"_s);
        m_panel->restoreValuesAndReturnError(nullptr);
        QVERIFY(!m_panel->mediaTypePopup->isEnabled());
        QVERIFY(!m_panel->paperFeedPopup->isEnabled());
        QVERIFY2(m_host->asked().isEmpty(), "what was chosen stays");
    }

    void showingAgainKeepsWhatIsShown()
    {
        QVERIFY(pick(m_panel->mediaTypePopup, u"Thin Paper"_s));
        QVERIFY(m_panel->shouldHide());
        m_panel->willShow();
        QCOMPARE(m_panel->mediaTypePopup->currentText(), u"Thin Paper"_s);
        QCOMPARE(m_panel->mediaTypePopup->count(), 10);
    }
};

QTEST_MAIN(InterfaceTest)
#include "interface_test.moc"
