#include <QCheckBox>
#include <QComboBox>
#include <QTest>

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

PpdBuilder printerForShowing()
{
    PpdBuilder ppd;
    ppd.option("QXMediaType", "Media Type", "Plain",
               {{"Plain", "Plain Paper"},
                {"PlainDuplex", "Plain Paper, Two Sides"},
                {"HagakiUra", "Hagaki, Back"},
                {"Thick", "Thick Paper"},
                {"Glossy", "Glossy Paper"}});
    ppd.option("QXQuietMode", "Quiet Mode", "Device",
               {{"Device", "As the Printer"}, {"ON", "On"}, {"OFF", "Off"}});
    ppd.onOff("QXGray", "Gray");
    ppd.option("MirrorPrint", "Mirror", "False", {{"False", "No"}, {"True", "Yes"}});
    return ppd;
}

// Which way of showing a stored value: after a change, or after the host refused one.
enum class Way { Update, Revert };

void show(TestPanel &panel, QWidget *control, const QString &keyword, Way way)
{
    if (way == Way::Update)
        panel.updateUIforKey(keyword);
    else
        panel.revertUI_forKey(control, keyword);
}

void addWays()
{
    QTest::addColumn<bool>("reverts");
    QTest::newRow("after a change") << false;
    QTest::newRow("after a refusal") << true;
}

Way fetchWay()
{
    return *static_cast<bool *>(QTest::qData("reverts", qMetaTypeId<bool>())) ? Way::Revert
                                                                              : Way::Update;
}

} // namespace

class ShowingValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_host = RecordingHost::forPpd(printerForShowing().text());
        m_panel = std::make_unique<TestPanel>(
            QStringList{u"QXMediaType"_s, u"QXQuietMode"_s, u"QXGray"_s, u"MirrorPrint"_s});
        QVERIFY(m_panel->initWithHost(m_host));
        m_popUp = m_panel->addPopUp(u"QXMediaType"_s);
        m_matrix = m_panel->addMatrix(u"QXQuietMode"_s, 3);
        m_box = m_panel->addCheckBox(u"QXGray"_s);
        m_panel->willShow();
        m_host->forgetCalls();
    }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
    }

    void thePopUpShowsTheStoredChoice_data() { addWays(); }
    void thePopUpShowsTheStoredChoice()
    {
        store(u"QXMediaType"_s, u"Thick"_s);
        show(*m_panel, m_popUp, u"QXMediaType"_s, fetchWay());
        QCOMPARE(m_popUp->currentText(), u"Thick Paper"_s);
        QVERIFY(m_host->asked().isEmpty());
    }

    void duplexPlainPaperIsShownAsPlainAndStaysStored_data() { addWays(); }
    void duplexPlainPaperIsShownAsPlainAndStaysStored()
    {
        store(u"QXMediaType"_s, u"PlainDuplex"_s);
        show(*m_panel, m_popUp, u"QXMediaType"_s, fetchWay());
        QCOMPARE(m_popUp->currentText(), u"Plain Paper"_s);
        QCOMPARE(stored(u"QXMediaType"_s), u"PlainDuplex"_s);
        QVERIFY(m_host->asked().isEmpty());
    }

    void aMediumThatIsNotOfferedIsReplaced_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("substitute");
        QTest::addColumn<QString>("shown");
        QTest::newRow("the back of a post card")
            << QVariant(u"HagakiUra"_s) << u"Glossy"_s << u"Glossy Paper"_s;
        QTest::newRow("an unknown medium")
            << QVariant(u"Stone"_s) << u"Plain"_s << u"Plain Paper"_s;
        QTest::newRow("no medium") << QVariant() << u"Plain"_s << u"Plain Paper"_s;
    }
    void aMediumThatIsNotOfferedIsReplaced()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, substitute);
        QFETCH(QString, shown);
        if (value.isValid())
            store(u"QXMediaType"_s, value.toString());
        else
            m_panel->m_outputBin.remove(u"QXMediaType"_s);
        m_panel->updateUIforKey(u"QXMediaType"_s);
        QCOMPARE(m_popUp->currentText(), shown);
        QCOMPARE(stored(u"QXMediaType"_s), substitute);
        QCOMPARE(m_host->asked(), QStringList{u"QXMediaType="_s + substitute});
    }

    void aRefusedSubstituteIsShownButNotStored()
    {
        m_host->refuse(u"QXMediaType"_s, u"Glossy"_s);
        store(u"QXMediaType"_s, u"HagakiUra"_s);
        m_panel->updateUIforKey(u"QXMediaType"_s);
        QCOMPARE(m_popUp->currentText(), u"Glossy Paper"_s);
        QCOMPARE(stored(u"QXMediaType"_s), u"HagakiUra"_s);
    }

    void withoutTheSubstituteNothingChanges()
    {
        popup::removeItemAt(m_popUp, popup::indexOfItemWithTitle(m_popUp, u"Glossy Paper"_s));
        popup::selectItemAt(m_popUp, 1);
        store(u"QXMediaType"_s, u"HagakiUra"_s);
        m_panel->updateUIforKey(u"QXMediaType"_s);
        QCOMPARE(m_popUp->currentIndex(), 1);
        QCOMPARE(stored(u"QXMediaType"_s), u"HagakiUra"_s);
        QVERIFY(m_host->asked().isEmpty());
    }

    void revertingNeverSubstitutes()
    {
        popup::selectItemAt(m_popUp, 1);
        store(u"QXMediaType"_s, u"HagakiUra"_s);
        m_panel->revertUI_forKey(m_popUp, u"QXMediaType"_s);
        QCOMPARE(m_popUp->currentIndex(), 1);
        QCOMPARE(stored(u"QXMediaType"_s), u"HagakiUra"_s);
        QVERIFY(m_host->asked().isEmpty());
    }

    void otherPopUpsKeepWhatTheyShowForAnUnknownChoice_data() { addWays(); }
    void otherPopUpsKeepWhatTheyShowForAnUnknownChoice()
    {
        TestPanel panel({u"QXQuietMode"_s});
        QVERIFY(panel.initWithHost(m_host));
        QComboBox *popUp = panel.addPopUp(u"QXQuietMode"_s);
        panel.willShow();
        popup::selectItemAt(popUp, 2);
        m_host->forgetCalls();
        for (const QString &unknown : {u"Plain"_s, u"PlainDuplex"_s, u"HagakiUra"_s}) {
            panel.m_outputBin.insert(u"QXQuietMode"_s, unknown);
            show(panel, popUp, u"QXQuietMode"_s, fetchWay());
            QCOMPARE(popUp->currentIndex(), 2);
        }
        QVERIFY(m_host->asked().isEmpty());
    }

    void theMatrixShowsTheFirstCellOfTheStoredChoice_data() { addWays(); }
    void theMatrixShowsTheFirstCellOfTheStoredChoice()
    {
        m_matrix->setRepresentedObject(2, u"ON"_s);
        store(u"QXQuietMode"_s, u"ON"_s);
        show(*m_panel, m_matrix, u"QXQuietMode"_s, fetchWay());
        QCOMPARE(m_matrix->selectedRow(), 1);
        QVERIFY(m_host->asked().isEmpty());
    }

    void theMatrixKeepsItsSelectionForAnUnknownChoice_data() { addWays(); }
    void theMatrixKeepsItsSelectionForAnUnknownChoice()
    {
        m_matrix->selectRow(2);
        store(u"QXQuietMode"_s, u"Whisper"_s);
        show(*m_panel, m_matrix, u"QXQuietMode"_s, fetchWay());
        QCOMPARE(m_matrix->selectedRow(), 2);
        m_panel->m_outputBin.remove(u"QXQuietMode"_s);
        show(*m_panel, m_matrix, u"QXQuietMode"_s, fetchWay());
        QCOMPARE(m_matrix->selectedRow(), 2);
    }

    void theCheckBoxIsOnForTwoChoicesOnly_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("on");
        QTest::addColumn<bool>("reverts");
        for (const bool reverts : {false, true}) {
            const auto row = [reverts](const char *name) -> QTestData & {
                return QTest::addRow("%s, %s", name,
                                     reverts ? "after a refusal" : "after a change");
            };
            row("ON") << QVariant(u"ON"_s) << true << reverts;
            row("True") << QVariant(u"True"_s) << true << reverts;
            row("OFF") << QVariant(u"OFF"_s) << false << reverts;
            row("False") << QVariant(u"False"_s) << false << reverts;
            row("other letter case") << QVariant(u"on"_s) << false << reverts;
            row("nothing") << QVariant() << false << reverts;
        }
    }
    void theCheckBoxIsOnForTwoChoicesOnly()
    {
        QFETCH(QVariant, value);
        QFETCH(bool, on);
        for (const bool before : {false, true}) {
            m_panel->m_outputBin.insert(u"QXGray"_s, u"OFF"_s);
            m_box->blockSignals(true);
            m_box->setChecked(before);
            m_box->blockSignals(false);
            m_panel->m_outputBin.insert(u"QXGray"_s, value);
            show(*m_panel, m_box, u"QXGray"_s, fetchWay());
            QCOMPARE(m_box->isChecked(), on);
        }
        QVERIFY2(m_host->asked().isEmpty(), "showing is no act of the user");
    }

    void anOptionWithoutAControlIsNoError()
    {
        store(u"MirrorPrint"_s, u"True"_s);
        m_panel->updateUIforKey(u"MirrorPrint"_s);
        m_panel->revertUI_forKey(nullptr, u"MirrorPrint"_s);
        QVERIFY(m_host->asked().isEmpty());
    }

    void allControlsAreShownInTheOrderOfTheOptions()
    {
        m_panel->trace();
        m_panel->updateUI();
        const QList<HostCall> expected{
            {u"updateUI"_s, {}},
            {u"checkUIConstraints"_s, {}},
            {u"updateUIforKey"_s, {u"QXMediaType"_s}},
            {u"updateUIforKey"_s, {u"QXQuietMode"_s}},
            {u"updateUIforKey"_s, {u"QXGray"_s}},
            {u"updateUIforKey"_s, {u"MirrorPrint"_s}},
            {u"checkUIConstraints"_s, {}},
        };
        QCOMPARE(m_host->calls(), expected);
    }

    void aChangeElsewhereIsTakenOverAndShown()
    {
        m_panel->trace();
        m_panel->PPDOptionKeyValueDidChange_ppdChoice(u"QXMediaType"_s, u"Thick"_s);
        QCOMPARE(stored(u"QXMediaType"_s), u"Thick"_s);
        QCOMPARE(m_popUp->currentText(), u"Thick Paper"_s);
        QCOMPARE(m_host->calls(), (QList<HostCall>{{u"updateUIforKey"_s, {u"QXMediaType"_s}}}));
    }

    void aChangeElsewhereIsStoredBeforeThereIsAView()
    {
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.trace();
        m_host->forgetCalls();
        panel.PPDOptionKeyValueDidChange_ppdChoice(u"QXMediaType"_s, u"Thick"_s);
        QCOMPARE(panel.outputBin().value(u"QXMediaType"_s), QVariant(u"Thick"_s));
        QVERIFY(m_host->calls().isEmpty());
    }

    void aChangeOfAForeignOptionIsIgnored_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::newRow("the page size") << u"PageSize"_s;
        QTest::newRow("an option of the other panel") << u"Duplex"_s;
        QTest::newRow("other letter case") << u"qxmediatype"_s;
    }
    void aChangeOfAForeignOptionIsIgnored()
    {
        QFETCH(QString, keyword);
        const QVariantMap before = m_panel->outputBin();
        m_panel->trace();
        m_panel->PPDOptionKeyValueDidChange_ppdChoice(keyword, u"A4"_s);
        QCOMPARE(m_panel->outputBin(), before);
        QVERIFY(m_host->calls().isEmpty());
    }

    void aChangeElsewhereOfAPanelWithoutOptionsIsIgnored()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        panel.PPDOptionKeyValueDidChange_ppdChoice(u"QXMediaType"_s, u"Thick"_s);
        QVERIFY(panel.outputBin().isEmpty());
    }

private:
    void store(const QString &keyword, const QString &choice)
    {
        m_panel->m_outputBin.insert(keyword, choice);
    }
    QString stored(const QString &keyword) const
    {
        return m_panel->outputBin().value(keyword).toString();
    }

    TestBundle m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<TestPanel> m_panel;
    QComboBox *m_popUp = nullptr;
    RadioMatrix *m_matrix = nullptr;
    QCheckBox *m_box = nullptr;
};

QTEST_MAIN(ShowingValuesTest)
#include "showing_values_test.moc"
