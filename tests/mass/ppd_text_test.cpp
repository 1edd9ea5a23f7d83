#include <QTest>

#include "tests/mass/PpdText.h"

using namespace corvana::test;

namespace {

const QByteArray kPpd = R"(*PPD-Adobe: "4.3"
*% *OpenUI *Comment/No option: PickOne
*OpenGroup: InstallableOptions/What it has
*OpenUI *Tray2/Tray 2: Boolean
*DefaultTray2: False
*Tray2 True/Installed: ""
*Tray2 False/Not Installed: ""
*CloseUI: *Tray2
*CloseGroup: InstallableOptions
*OpenUI *MediaType/Media Type: PickOne
*DefaultMediaType: Plain
*MediaType Plain/Plain: "<</MediaType (Plain)>>
  setpagedevice"
*End
*MediaType Film/Film: ""
*fr.MediaType Film/Transparent: ""
*CloseUI: *MediaType
*JCLOpenUI *JCLEconomy/Economy: Boolean
*DefaultJCLEconomy: False
*JCLEconomy True/On: "x"
*JCLEconomy False/Off: "y"
*JCLCloseUI: *JCLEconomy
*UIConstraints: *MediaType Film *JCLEconomy
*UIConstraints: *Tray2 False *MediaType Plain
*cupsUIConstraints three: "*Tray2 True *MediaType Film *JCLEconomy False"
)";

} // namespace

class PpdTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionsAreReadInTheOrderOfTheFile()
    {
        const PpdText text = readPpdText(kPpd);
        QCOMPARE(text.options.size(), 3);
        QCOMPARE(text.options.at(0).keyword, QByteArray("Tray2"));
        QVERIFY(text.options.at(0).isInstallable);
        QCOMPARE(text.options.at(1).keyword, QByteArray("MediaType"));
        QVERIFY(!text.options.at(1).isInstallable);
        QCOMPARE(text.options.at(1).defaultChoice, QByteArray("Plain"));
        QCOMPARE(text.options.at(1).choices, (QList<QByteArray>{"Plain", "Film"}));
        QCOMPARE(text.options.at(2).choices, (QList<QByteArray>{"True", "False"}));
        QVERIFY(!text.option("Comment"));
    }

    void aConstraintHoldsInEitherOrder()
    {
        const PpdText text = readPpdText(kPpd);
        QVERIFY(text.excludes({{"Tray2", "False"}, {"MediaType", "Plain"}}));
        QVERIFY(text.excludes({{"MediaType", "Plain"}, {"Tray2", "False"}}));
        QVERIFY(!text.excludes({{"MediaType", "Film"}, {"Tray2", "False"}}));
    }

    void aConstraintWithoutAChoiceMeansEveryOneThatSwitchesOn()
    {
        const PpdText text = readPpdText(kPpd);
        QVERIFY(text.excludes({{"JCLEconomy", "True"}, {"MediaType", "Film"}}));
        QVERIFY(!text.excludes({{"JCLEconomy", "False"}, {"MediaType", "Film"}}));
    }

    void aConstraintOfThreeNeedsAllThree()
    {
        const PpdText text = readPpdText(kPpd);
        QVERIFY(text.excludes({{"Tray2", "True"}, {"JCLEconomy", "False"}, {"MediaType", "Film"}}));
        QVERIFY(!text.excludes({{"Tray2", "True"}, {"MediaType", "Film"}}));
    }
};

QTEST_GUILESS_MAIN(PpdTextTest)

#include "ppd_text_test.moc"
