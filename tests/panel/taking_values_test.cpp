#include <QCheckBox>
#include <QComboBox>
#include <QTest>

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QStringList kKeywords{u"QXMediaType"_s, u"QXQuietMode"_s, u"QXGray"_s, u"MirrorPrint"_s,
                            u"QXSlowDrying"_s};

PpdBuilder printerForTaking()
{
    PpdBuilder ppd;
    ppd.option("QXMediaType", "Media Type", "Plain",
               {{"Plain", "Plain Paper"},
                {"PlainDuplex", "Plain Paper, Two Sides"},
                {"Thick", "Thick Paper"}});
    ppd.option("QXQuietMode", "Quiet Mode", "Device",
               {{"Device", "As the Printer"}, {"ON", "On"}, {"OFF", "Off"}});
    ppd.onOff("QXGray", "Gray").onOff("QXSlowDrying", "Slow Drying");
    ppd.option("MirrorPrint", "Mirror", "False", {{"False", "No"}, {"True", "Yes"}});
    ppd.option("QXOutput", "Output", "Printer", {{"Printer", "Printer"}, {"FAX", "Fax"}});
    return ppd;
}

void setSilently(QCheckBox *box, bool on)
{
    box->blockSignals(true);
    box->setChecked(on);
    box->blockSignals(false);
}

} // namespace

class TakingValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_host = RecordingHost::forPpd(printerForTaking().text());
        m_panel = std::make_unique<TestPanel>(kKeywords);
        QVERIFY(m_panel->initWithHost(m_host));
        m_popUp = m_panel->addPopUp(u"QXMediaType"_s);
        m_matrix = m_panel->addMatrix(u"QXQuietMode"_s, 3);
        m_gray = m_panel->addCheckBox(u"QXGray"_s);
        m_mirror = m_panel->addCheckBox(u"MirrorPrint"_s);
        m_slowDrying = m_panel->addCheckBox(u"QXSlowDrying"_s);
        m_panel->willShow();
        m_panel->updateUI();
        m_host->forgetCalls();
    }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
    }

    // setAndMarkValue_forKey

    void aNewChoiceIsAskedForAndStored()
    {
        QVERIFY(m_panel->setAndMarkValue_forKey(u"Thick"_s, u"QXMediaType"_s));
        QCOMPARE(stored(u"QXMediaType"_s), u"Thick"_s);
        QCOMPARE(m_host->asked(), QStringList{u"QXMediaType=Thick"_s});
    }

    void theStoredChoiceIsNotAskedForAgain()
    {
        QVERIFY(!m_panel->setAndMarkValue_forKey(u"Plain"_s, u"QXMediaType"_s));
        QVERIFY(m_host->asked().isEmpty());
    }

    void aRefusedChoiceIsNotStored()
    {
        m_host->refuse(u"QXMediaType"_s, u"Thick"_s);
        QVERIFY(!m_panel->setAndMarkValue_forKey(u"Thick"_s, u"QXMediaType"_s));
        QCOMPARE(stored(u"QXMediaType"_s), u"Plain"_s);
        QCOMPARE(m_host->asked(), QStringList{u"QXMediaType=Thick"_s});
    }

    void aChoiceOfNoOptionIsNotAskedFor()
    {
        QVERIFY(!m_panel->setAndMarkValue_forKey(u"Thick"_s, QString()));
        QVERIFY(m_host->asked().isEmpty());
        QVERIFY(!m_panel->outputBin().contains(QString()));
    }

    // chooseAsUser

    void aChoiceOnBehalfOfTheUserActsAsAPick_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::newRow("pop-up") << u"QXMediaType"_s << u"Thick"_s;
        QTest::newRow("radio buttons") << u"QXQuietMode"_s << u"OFF"_s;
        QTest::newRow("box") << u"QXGray"_s << u"ON"_s;
    }
    void aChoiceOnBehalfOfTheUserActsAsAPick()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QVERIFY(m_panel->chooseAsUser(keyword, choice));
        QCOMPARE(stored(keyword), choice);
        QVERIFY(m_host->asked().contains(keyword + u'=' + choice));
        // The same once more is no news, and is taken all the same.
        QVERIFY(m_panel->chooseAsUser(keyword, choice));
    }

    void whatNoControlOffersIsNotChosen()
    {
        QVERIFY(!m_panel->chooseAsUser(u"QXMediaType"_s, u"Film"_s));
        QVERIFY(!m_panel->chooseAsUser(u"QXQuietMode"_s, u"Film"_s));
        QVERIFY(!m_panel->chooseAsUser(u"QXGray"_s, u"Film"_s));
        QVERIFY(!m_panel->chooseAsUser(u"QXOutput"_s, u"FAX"_s));
        m_popUp->setEnabled(false);
        QVERIFY(!m_panel->chooseAsUser(u"QXMediaType"_s, u"Thick"_s));
        QVERIFY(m_host->asked().isEmpty());
    }

    // requestNewOutputBin

    void anAcceptedPickRunsItsStepsInOrder()
    {
        m_panel->trace();
        QVERIFY(pick(m_popUp, u"Thick Paper"_s));
        const QList<HostCall> expected{
            {u"willChangePPDOptionKeyValue_ppdChoice"_s, {u"QXMediaType"_s, u"Thick"_s}},
            {u"updateUIforKey"_s, {u"QXMediaType"_s}},
            {u"saveAllValues"_s, {}},
            {u"getUIValues"_s, {}},
            {u"checkUIConstraints"_s, {}},
            {u"saveOptionState"_s, {}},
        };
        QCOMPARE(m_host->calls(), expected);
        QCOMPARE(stored(u"QXMediaType"_s), u"Thick"_s);
        QCOMPARE(m_host->marked(u"QXMediaType"_s), u"Thick"_s);
    }

    void aRefusedPickPutsTheControlBackAndSaves()
    {
        m_host->refuse(u"QXMediaType"_s, u"Thick"_s);
        m_panel->trace();
        QVERIFY(pick(m_popUp, u"Thick Paper"_s));
        const QList<HostCall> expected{
            {u"willChangePPDOptionKeyValue_ppdChoice"_s, {u"QXMediaType"_s, u"Thick"_s}},
            {u"revertUI_forKey"_s, {u"QXMediaType"_s}},
            {u"saveAllValues"_s, {}},
            {u"getUIValues"_s, {}},
            {u"checkUIConstraints"_s, {}},
            {u"saveOptionState"_s, {}},
        };
        QCOMPARE(m_host->calls(), expected);
        QCOMPARE(stored(u"QXMediaType"_s), u"Plain"_s);
        QCOMPARE(m_popUp->currentText(), u"Plain Paper"_s);
    }

    void pickingWhatIsStoredAsksAgain()
    {
        QVERIFY(pick(m_popUp, u"Plain Paper"_s));
        QCOMPARE(m_host->asked(), QStringList{u"QXMediaType=Plain"_s});
    }

    void aPickInAMatrixIsTheChoiceOfItsCell()
    {
        QVERIFY(pick(m_matrix, 2));
        QCOMPARE(m_host->asked(), QStringList{u"QXQuietMode=OFF"_s});
        QCOMPARE(stored(u"QXQuietMode"_s), u"OFF"_s);
    }

    void aRefusedPickInAMatrixIsPutBack()
    {
        m_host->refuseEverything();
        QVERIFY(pick(m_matrix, 2));
        QCOMPARE(m_matrix->selectedRow(), 0);
        QCOMPARE(stored(u"QXQuietMode"_s), u"Device"_s);
    }

    void aCheckBoxStandsForItsTwoChoices()
    {
        QVERIFY(click(m_gray));
        QVERIFY(click(m_gray));
        QVERIFY(click(m_mirror));
        QVERIFY(click(m_mirror));
        const QStringList expected{u"QXGray=ON"_s, u"QXGray=OFF"_s, u"MirrorPrint=True"_s,
                                   u"MirrorPrint=False"_s};
        QCOMPARE(m_host->asked(), expected);
    }

    void aRefusedTickIsTakenBack()
    {
        m_host->refuseEverything();
        m_gray->click();
        QVERIFY(!m_gray->isChecked());
        m_mirror->click();
        QVERIFY(!m_mirror->isChecked());
        QCOMPARE(m_host->asked(), (QStringList{u"QXGray=ON"_s, u"MirrorPrint=True"_s}));
    }

    void whatHasNoChoiceIsOnlySaved_data()
    {
        QTest::addColumn<QString>("control");
        QTest::newRow("a pop-up without selection") << u"pop-up"_s;
        QTest::newRow("an item without a choice") << u"item"_s;
        QTest::newRow("a matrix without selection") << u"matrix"_s;
        QTest::newRow("a cell without a choice") << u"cell"_s;
        QTest::newRow("a control of another kind") << u"other"_s;
    }
    void whatHasNoChoiceIsOnlySaved()
    {
        QFETCH(QString, control);
        QWidget *sender = m_popUp;
        if (control == u"pop-up"_s) {
            popup::selectItemAt(m_popUp, -1);
        } else if (control == u"item"_s) {
            popup::addItemWithTitle(m_popUp, u"nothing"_s);
            popup::selectItemAt(m_popUp, popup::indexOfItemWithTitle(m_popUp, u"nothing"_s));
        } else if (control == u"other"_s) {
            sender = m_panel->addOtherControl(u"QXOutput"_s);
        } else {
            sender = m_matrix;
            m_matrix->selectRow(control == u"matrix"_s ? -1 : 1);
            m_matrix->setRepresentedObject(1, QVariant());
        }
        m_panel->trace();
        m_panel->requestNewOutputBin(sender);
        const QList<HostCall> expected{
            {u"saveAllValues"_s, {}},
            {u"getUIValues"_s, {}},
            {u"checkUIConstraints"_s, {}},
            {u"saveOptionState"_s, {}},
        };
        QCOMPARE(m_host->calls(), expected);
    }

    // getUIValues

    void theControlsAreReadInTheOrderOfTheOptions()
    {
        popup::selectItemAt(m_popUp, 1);
        m_matrix->selectRow(1);
        setSilently(m_gray, true);
        setSilently(m_mirror, true);
        m_panel->trace();
        m_panel->getUIValues();
        QCOMPARE(m_host->calls().value(1), (HostCall{u"checkUIConstraints"_s, {}}));
        const QStringList expected{u"QXMediaType=Thick"_s, u"QXQuietMode=ON"_s, u"QXGray=ON"_s,
                                   u"MirrorPrint=True"_s};
        QCOMPARE(m_host->asked(), expected); // slow drying stands as it is stored
        QCOMPARE(stored(u"MirrorPrint"_s), u"True"_s);
    }

    void aRefusedValueLeavesItsControlAsItIs()
    {
        m_host->refuseEverything();
        popup::selectItemAt(m_popUp, 1);
        m_panel->getUIValues();
        QCOMPARE(m_popUp->currentText(), u"Thick Paper"_s);
        QCOMPARE(stored(u"QXMediaType"_s), u"Plain"_s);
    }

    void controlsWithoutAChoiceAreSkipped()
    {
        popup::selectItemAt(m_popUp, -1);
        m_matrix->selectRow(-1);
        m_panel->getUIValues();
        QVERIFY(m_host->asked().isEmpty());
    }

    void plainDuplexPaperIsRecordedWhileItsBitIsSet_data()
    {
        QTest::addColumn<bool>("bit");
        QTest::addColumn<int>("item");
        QTest::addColumn<QStringList>("asked");
        QTest::newRow("set") << true << 0 << QStringList{u"QXMediaType=PlainDuplex"_s};
        QTest::newRow("set, another item")
            << true << 1 << QStringList{u"QXMediaType=PlainDuplex"_s};
        QTest::newRow("set, nothing selected") << true << -1 << QStringList{};
        QTest::newRow("clear") << false << 0 << QStringList{};
    }
    void plainDuplexPaperIsRecordedWhileItsBitIsSet()
    {
        QFETCH(bool, bit);
        QFETCH(int, item);
        QFETCH(QStringList, asked);
        m_panel->setMode(kModePlainDuplex, bit);
        popup::selectItemAt(m_popUp, item);
        m_panel->getUIValues();
        QCOMPARE(m_host->asked(), asked);
    }

    void aDisabledCheckBoxIsStoredAsOff_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<bool>("fax");
        QTest::addColumn<QStringList>("asked");
        QTest::newRow("MirrorPrint") << u"MirrorPrint"_s << false
                                     << QStringList{u"MirrorPrint=True"_s, u"MirrorPrint=False"_s};
        QTest::newRow("any other")
            << u"QXGray"_s << false << QStringList{u"QXGray=ON"_s, u"QXGray=OFF"_s};
        QTest::newRow("slow drying keeps its state")
            << u"QXSlowDrying"_s << false << QStringList{u"QXSlowDrying=ON"_s};
        QTest::newRow("a fax keeps MirrorPrint")
            << u"MirrorPrint"_s << true << QStringList{u"MirrorPrint=True"_s};
        QTest::newRow("a fax keeps any other")
            << u"QXGray"_s << true << QStringList{u"QXGray=ON"_s};
    }
    void aDisabledCheckBoxIsStoredAsOff()
    {
        QFETCH(QString, keyword);
        QFETCH(bool, fax);
        QFETCH(QStringList, asked);
        auto *box = qobject_cast<QCheckBox *>(m_panel->determineUI(keyword));
        QVERIFY(box);
        m_panel->ownUIRule = [box] { box->setEnabled(false); };
        m_panel->setMode(kModeFaxOutput, fax);
        setSilently(box, true);
        m_panel->getUIValues();
        QCOMPARE(m_host->asked(), asked);
        QVERIFY2(box->isChecked(), "only what is stored changes");
    }

    void aDisabledAncestorIsNoReasonToStoreOff()
    {
        setSilently(m_gray, true);
        m_panel->m_panelView->setEnabled(false);
        m_panel->getUIValues();
        QCOMPARE(m_host->asked(), QStringList{u"QXGray=ON"_s});
    }

private:
    QString stored(const QString &keyword) const
    {
        return m_panel->outputBin().value(keyword).toString();
    }

    TestBundle m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<TestPanel> m_panel;
    QComboBox *m_popUp = nullptr;
    RadioMatrix *m_matrix = nullptr;
    QCheckBox *m_gray = nullptr;
    QCheckBox *m_mirror = nullptr;
    QCheckBox *m_slowDrying = nullptr;
};

QTEST_MAIN(TakingValuesTest)
#include "taking_values_test.moc"
