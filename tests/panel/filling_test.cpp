#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
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

// "Umschläge" in Latin-1: no UTF-8.
const QByteArray kNotUtf8 = "Umschl\xe4ge";

PpdBuilder specialPrinter()
{
    PpdBuilder ppd;
    ppd.option("QXMediaType", "Media & Type", "Plain",
               {{"Plain", "Plain & Simple"},
                {"PlainDuplex", "Duplex Plain Paper"},
                {"Card1", "Hagaki"},
                {"Card2", "Hagaki Inkjet"},
                {"Card3", "Hagak"},
                {"Card4", "hagaki"},
                {"Card5", "Old Hagaki"},
                {"Env", kNotUtf8},
                {"Glossy", "Glossy Paper"}});
    ppd.option("Twins", "Twins", "First",
               {{"First", "Same"}, {"Other", "Other"}, {"Last", "Same"}});
    ppd.option("Matrix3", "Three & More", "One",
               {{"One", "The One"}, {"Two", "The Two"}, {"Three", "The Three"}});
    ppd.option("Empty", "Empty Option", "None", {});
    ppd.option("BadText", kNotUtf8, "One", {{"One", "The One"}});
    ppd.onOff("QXBiDir", "Two Ways & Back").onOff("QXGray", "Gray");
    return ppd;
}

QStringList titles(const QComboBox *popUp)
{
    QStringList list;
    for (int i = 0; i < popUp->count(); ++i)
        list += popUp->itemText(i);
    return list;
}

QStringList choices(const QComboBox *popUp)
{
    QStringList list;
    for (int i = 0; i < popUp->count(); ++i)
        list += popup::representedObject(popUp, i).toString();
    return list;
}

} // namespace

class FillingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = RecordingHost::forPpd(specialPrinter().text()); }
    void cleanup() { m_host.reset(); }

    void aPopUpOffersTheChoicesOfThePpd()
    {
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        QComboBox *popUp = panel.addPopUp(u"QXMediaType"_s);
        popup::addItemWithTitle(popUp, u"left over"_s);
        popUp->hide();
        panel.initializePopup();
        // Left out: what begins with "Hagaki", duplex plain paper, a text that is not UTF-8.
        const QStringList expected{u"Plain & Simple"_s, u"Hagak"_s, u"hagaki"_s, u"Old Hagaki"_s,
                                   u"Glossy Paper"_s};
        QCOMPARE(titles(popUp), expected);
        const QStringList expectedChoices{u"Plain"_s, u"Card3"_s, u"Card4"_s, u"Card5"_s,
                                          u"Glossy"_s};
        QCOMPARE(choices(popUp), expectedChoices);
        QCOMPARE(popUp->currentIndex(), -1);
        QVERIFY(!popUp->isHidden());
        QVERIFY2(m_host->asked().isEmpty(), "filling is no act of the user");
    }

    void ofTwoChoicesWithOneTextTheLaterIsOffered()
    {
        TestPanel panel({u"Twins"_s});
        QVERIFY(panel.initWithHost(m_host));
        QComboBox *popUp = panel.addPopUp(u"Twins"_s);
        panel.initializePopup();
        QCOMPARE(choices(popUp), (QStringList{u"Other"_s, u"Last"_s}));
    }

    void thePopUpsLabelIsShownAndTitled()
    {
        TestPanel panel({u"QXMediaType"_s, u"Twins"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.addPopUp(u"QXMediaType"_s);
        panel.addPopUp(u"Twins"_s);
        QLabel *label = panel.addLabel(u"QXMediaType"_s);
        QGroupBox *box = panel.addBox(u"Twins"_s);
        label->hide();
        box->hide();
        panel.initializePopup();
        QCOMPARE(label->text(), u"Media & Type: "_s);
        QVERIFY(!label->isHidden());
        QCOMPARE(box->title(), u"Twins"_s);
        QVERIFY(!box->isHidden());
    }

    void aPopUpWithoutChoicesStillGetsItsLabel()
    {
        TestPanel panel({u"Empty"_s});
        QVERIFY(panel.initWithHost(m_host));
        QComboBox *popUp = panel.addPopUp(u"Empty"_s);
        QLabel *label = panel.addLabel(u"Empty"_s);
        panel.initializePopup();
        QCOMPARE(popUp->count(), 0);
        QCOMPARE(label->text(), u"Empty Option: "_s);
    }

    void aPopUpOfAnOptionThatThePpdLacksIsEmptied()
    {
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.PPDKeys = QStringList{u"NoOption"_s, u"QXMediaType"_s};
        QComboBox *popUp = panel.addPopUp(u"NoOption"_s);
        QComboBox *next = panel.addPopUp(u"QXMediaType"_s);
        QLabel *label = panel.addLabel(u"NoOption"_s);
        label->hide();
        label->setText(u"as it was"_s);
        popup::addItemWithTitle(popUp, u"left over"_s);
        panel.initializePopup();
        QCOMPARE(popUp->count(), 0);
        QVERIFY(label->isHidden());
        QCOMPARE(label->text(), u"as it was"_s);
        QVERIFY2(next->count() > 0, "the next option is filled all the same");
    }

    void aLabelIsLeftAloneWhenTheTextIsNotUtf8()
    {
        TestPanel panel({u"BadText"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.addPopUp(u"BadText"_s);
        QLabel *label = panel.addLabel(u"BadText"_s);
        label->setText(u"as it was"_s);
        panel.initializePopup();
        QCOMPARE(label->text(), u"as it was"_s);
    }

    void itemTextsGoIntoTheBindingsOfThatTagOnly_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<bool>("goes");
        QTest::newRow("item texts") << 5 << true;
        QTest::newRow("item pictures") << 10 << false;
        QTest::newRow("no tag") << 0 << false;
    }
    void itemTextsGoIntoTheBindingsOfThatTagOnly()
    {
        QFETCH(int, tag);
        QFETCH(bool, goes);
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.addPopUp(u"QXMediaType"_s, tag);
        panel.initializePopup();
        QCOMPARE(panel.effectContent->value(u"Plain"_s),
                 goes ? QVariant(u"Plain & Simple"_s) : QVariant());
        QVERIFY2(!panel.effectContent->contains(u"PlainDuplex"_s), "it is no item");
        QVERIFY2(!panel.effectContent->contains(u"Card1"_s), "it is no item");
    }

    void itemPicturesGoToTheItemsOfThatTagOnly_data()
    {
        QTest::addColumn<int>("tag");
        QTest::addColumn<bool>("goes");
        QTest::newRow("item pictures") << 10 << true;
        QTest::newRow("item texts") << 5 << false;
        QTest::newRow("no tag") << 0 << false;
    }
    void itemPicturesGoToTheItemsOfThatTagOnly()
    {
        QFETCH(int, tag);
        QFETCH(bool, goes);
        m_bundle.addPicture(u"Plain"_s);
        m_bundle.addBrokenPicture(u"Glossy"_s);
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        QComboBox *popUp = panel.addPopUp(u"QXMediaType"_s, tag);
        panel.initializePopup();
        const auto hasPicture = [popUp](const QString &choice) {
            const int item = popup::indexOfItemWithRepresentedObject(popUp, QVariant(choice));
            return item >= 0 && !popUp->itemIcon(item).isNull();
        };
        QCOMPARE(hasPicture(u"Plain"_s), goes);
        QVERIFY2(!hasPicture(u"Glossy"_s), "a file that is no picture");
        QVERIFY2(!hasPicture(u"Card3"_s), "a choice without a picture");
    }

    void aMatrixLosesRowsFromItsMiddle_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<QList<int>>("former"); // former rows in their new order, -1 is a new one
        QTest::newRow("five rows for three choices") << 5 << QList<int>{0, 3, 4};
        QTest::newRow("four rows for three choices") << 4 << QList<int>{0, 2, 3};
        QTest::newRow("as many rows as choices") << 3 << QList<int>{0, 1, 2};
        QTest::newRow("too few rows") << 1 << QList<int>{0, -1, -1};
    }
    void aMatrixLosesRowsFromItsMiddle()
    {
        QFETCH(int, rows);
        QFETCH(QList<int>, former);
        TestPanel panel({u"Matrix3"_s});
        QVERIFY(panel.initWithHost(m_host));
        RadioMatrix *matrix = panel.addMatrix(u"Matrix3"_s, rows);
        QList<QRadioButton *> before;
        for (int row = 0; row < rows; ++row)
            before += matrix->cell(row);
        matrix->hide();
        panel.initializePopup();
        QCOMPARE(matrix->numberOfRows(), 3);
        QVERIFY(!matrix->isHidden());
        const QStringList texts{u"The One"_s, u"The Two"_s, u"The Three"_s};
        const QStringList keywords{u"One"_s, u"Two"_s, u"Three"_s};
        for (int row = 0; row < 3; ++row) {
            if (former.at(row) >= 0)
                QCOMPARE(matrix->cell(row), before.at(former.at(row)));
            QCOMPARE(matrix->cellTitle(row), texts.at(row));
            QCOMPARE(matrix->representedObject(row), QVariant(keywords.at(row)));
        }
        QVERIFY2(m_host->asked().isEmpty(), "filling is no act of the user");
    }

    void theMatrixLabelIsTitledButNotShown()
    {
        TestPanel panel({u"Matrix3"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.addMatrix(u"Matrix3"_s, 3);
        QLabel *label = panel.addLabel(u"Matrix3"_s);
        label->hide();
        panel.initializePopup();
        QCOMPARE(label->text(), u"Three & More: "_s);
        QVERIFY(label->isHidden());
    }

    void theMatrixBoxIsTitledLiterally()
    {
        TestPanel panel({u"Matrix3"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.addMatrix(u"Matrix3"_s, 3);
        QGroupBox *box = panel.addBox(u"Matrix3"_s);
        panel.initializePopup();
        QCOMPARE(box->title(), u"Three && More"_s); // "&&" shows one "&" and underlines nothing
    }

    void aMatrixOfAnOptionThatThePpdLacksStaysAsItIs()
    {
        TestPanel panel({u"Matrix3"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.PPDKeys = QStringList{u"NoOption"_s};
        RadioMatrix *matrix = panel.addMatrix(u"NoOption"_s, 5);
        panel.initializePopup();
        QCOMPARE(matrix->numberOfRows(), 5);
        QVERIFY(matrix->cellTitle(0).isEmpty());
    }

    void aCheckBoxIsTitledWithTheOption()
    {
        TestPanel panel({u"QXGray"_s, u"QXBiDir"_s});
        QVERIFY(panel.initWithHost(m_host));
        QCheckBox *gray = panel.addCheckBox(u"QXGray"_s);
        QCheckBox *biDir = panel.addCheckBox(u"QXBiDir"_s);
        gray->hide();
        panel.initializePopup();
        QCOMPARE(gray->text(), u"Gray"_s);
        QCOMPARE(biDir->text(), u"Two Ways && Back"_s);
        QVERIFY(!gray->isHidden());
    }

    void onlyTheTwoWayBoxFollowsTheTonerSaveBit_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<bool>("noTonerSave");
        QTest::addColumn<bool>("before");
        QTest::addColumn<bool>("after");
        QTest::newRow("two ways, allowed") << u"QXBiDir"_s << false << false << true;
        QTest::newRow("two ways, not allowed") << u"QXBiDir"_s << true << true << false;
        QTest::newRow("another, allowed") << u"QXGray"_s << false << false << false;
        QTest::newRow("another, not allowed") << u"QXGray"_s << true << true << true;
    }
    void onlyTheTwoWayBoxFollowsTheTonerSaveBit()
    {
        QFETCH(QString, keyword);
        QFETCH(bool, noTonerSave);
        QFETCH(bool, before);
        QFETCH(bool, after);
        TestPanel panel({keyword});
        QVERIFY(panel.initWithHost(m_host));
        QCheckBox *box = panel.addCheckBox(keyword);
        box->setEnabled(before);
        panel.setMode(kModeNoTonerSave, noTonerSave);
        panel.initializePopup();
        QCOMPARE(box->isEnabled(), after);
    }

    void aControlOfAnotherKindIsOnlyShown()
    {
        TestPanel panel({u"QXGray"_s, u"Twins"_s});
        QVERIFY(panel.initWithHost(m_host));
        QWidget *other = panel.addOtherControl(u"QXGray"_s);
        other->hide();
        panel.initializePopup();
        QVERIFY(!other->isHidden());
    }

    void aPanelWithoutAViewIsFilledAllTheSame()
    {
        TestPanel panel({u"QXMediaType"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.initializePopup();
        QVERIFY(panel.popupInited);
    }

    void fillingClosesTheAdvancedPartAndRegistersHelp_data()
    {
        QTest::addColumn<bool>("helpIsRegistered");
        QTest::newRow("registered") << true;
        QTest::newRow("not registered") << false;
    }
    void fillingClosesTheAdvancedPartAndRegistersHelp()
    {
        QFETCH(bool, helpIsRegistered);
        TestPanel panel({u"QXGray"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.makeView();
        panel.effectContent->setValue(panel.optionName(), true);
        panel.setMode(kModeHelpRegistered, !helpIsRegistered);
        panel.helpIsRegistered = helpIsRegistered;
        QVERIFY(!panel.popupInited);
        panel.initializePopup();
        QCOMPARE(panel.effectContent->value(u"advancedItem"_s), QVariant(false));
        QCOMPARE(panel.hasMode(kModeHelpRegistered), helpIsRegistered);
        QVERIFY(panel.popupInited);
    }

private:
    TestBundle m_bundle;
    std::shared_ptr<RecordingHost> m_host;
};

QTEST_MAIN(FillingTest)
#include "filling_test.moc"
