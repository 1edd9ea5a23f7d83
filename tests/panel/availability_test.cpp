#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

#include "panel/OptionKeywords.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// What decides whether controls can be used: the output destination and who matches colours.
class AvailabilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whileTheOutputIsFaxNothingCanBeUsed()
    {
        const auto host = RecordingHost::forSamplePrinter();
        TestPanel panel({u"QXMediaType"_s, u"QXColorMatching"_s, u"QXGray"_s, u"Duplex"_s});
        QVERIFY(panel.initWithHost(host));
        const QList<QWidget *> controls{panel.addPopUp(u"QXMediaType"_s),
                                        panel.addMatrix(u"QXColorMatching"_s, 3),
                                        panel.addCheckBox(u"QXGray"_s)};
        QLabel *label = panel.addLabel(u"QXMediaType"_s);
        QLabel *labelWithoutControl = panel.addLabel(u"Duplex"_s);
        QGroupBox *box = panel.addBox(u"QXColorMatching"_s);
        QCheckBox *foreign = panel.addCheckBox(u"QXSkipBlank"_s);
        panel.willShow();

        host->mark(u"QXOutput"_s, u"FAX"_s);
        panel.restoreValuesAndReturnError(nullptr);
        QCOMPARE(panel.effectContent->value(u"QXOutput"_s), QVariant(false));
        for (const QWidget *control : controls)
            QVERIFY2(!isControlEnabled(control), qUtf8Printable(control->objectName()));
        QCOMPARE(textColor(label), ControlTextColor::Disabled);
        QCOMPARE(textColor(labelWithoutControl), ControlTextColor::Disabled);
        QCOMPARE(textColor(box), ControlTextColor::Normal); // a box is no text field
        QVERIFY2(isControlEnabled(foreign), "not one of the panel's options");

        host->mark(u"QXOutput"_s, u"Printer"_s);
        panel.restoreValuesAndReturnError(nullptr);
        QCOMPARE(panel.effectContent->value(u"QXOutput"_s), QVariant(true));
        for (const QWidget *control : controls)
            QVERIFY2(isControlEnabled(control), qUtf8Printable(control->objectName()));
        QCOMPARE(textColor(label), ControlTextColor::Normal);
        QCOMPARE(textColor(labelWithoutControl), ControlTextColor::Normal);
    }

    void onlyTheMarkedChoiceFaxIsFax_data()
    {
        QTest::addColumn<QString>("marked"); // null: nothing is marked
        QTest::addColumn<bool>("fax");
        QTest::newRow("FAX") << u"FAX"_s << true;
        QTest::newRow("None") << u"None"_s << false;
        QTest::newRow("other letter case") << u"Fax"_s << false;
        QTest::newRow("nothing marked") << QString() << false;
    }
    void onlyTheMarkedChoiceFaxIsFax()
    {
        QFETCH(QString, marked);
        QFETCH(bool, fax);
        PpdBuilder ppd;
        // Two choices that differ in letter case only would be one to libcups: one PPD each.
        ppd.option("QXOutput", "Output", "None",
                   {{"None", "None"}, {marked == u"Fax"_s ? "Fax" : "FAX", "Fax"}});
        const auto host = RecordingHost::forPpd(ppd.text());
        TestPanel panel;
        QVERIFY(panel.initWithHost(host));
        if (marked.isNull())
            host->unmark(u"QXOutput"_s);
        else
            host->mark(u"QXOutput"_s, marked);
        for (const bool before : {false, true}) {
            panel.setMode(kModeFaxOutput, before);
            panel.checkFax();
            QCOMPARE(panel.hasMode(kModeFaxOutput), fax);
        }
    }

    void aPrinterThatCannotFaxNeverDoes()
    {
        const auto host = RecordingHost::forPpd(PpdBuilder().text());
        TestPanel panel;
        QVERIFY(panel.initWithHost(host));
        panel.setMode(kModeFaxOutput, true);
        panel.checkFax();
        QVERIFY(!panel.hasMode(kModeFaxOutput));
    }

    void theDriverMatchesColorsUnlessTheApplicationDoes_data()
    {
        QTest::addColumn<bool>("attribute");
        QTest::addColumn<QVariant>("entry");
        QTest::addColumn<bool>("driverMatches");
        QTest::newRow("the driver") << true << QVariant(u"AP_VendorColorMatching"_s) << true;
        QTest::newRow("the application")
            << true << QVariant(u"AP_ApplicationColorMatching"_s) << false;
        QTest::newRow("no entry") << true << QVariant() << true;
        QTest::newRow("any other value") << true << QVariant(u"Anybody"_s) << true;
        QTest::newRow("a driver that cannot")
            << false << QVariant(u"AP_VendorColorMatching"_s) << false;
    }
    void theDriverMatchesColorsUnlessTheApplicationDoes()
    {
        QFETCH(bool, attribute);
        QFETCH(QVariant, entry);
        QFETCH(bool, driverMatches);
        PpdBuilder ppd;
        if (attribute)
            ppd.driverMatchesColors();
        const auto host = RecordingHost::forPpd(ppd.text());
        TestPanel panel;
        QVERIFY(panel.initWithHost(host));
        if (entry.isValid())
            host->settings().setValue(kColorMatchingMode, entry);
        for (const bool before : {false, true}) {
            panel.setMode(kModeColorSync, before);
            panel.checkColorSync();
            QCOMPARE(panel.hasMode(kModeColorSync), driverMatches);
        }
    }

    void withoutPrintSettingsTheBitKeepsItsValue_data()
    {
        QTest::addColumn<bool>("lacksTheOperation");
        QTest::newRow("the host has no such operation") << true;
        QTest::newRow("the host has none") << false;
    }
    void withoutPrintSettingsTheBitKeepsItsValue()
    {
        QFETCH(bool, lacksTheOperation);
        const auto host = RecordingHost::forPpd(PpdBuilder().driverMatchesColors().text());
        TestPanel panel;
        QVERIFY(panel.initWithHost(host));
        host->settings().setValue(kColorMatchingMode, QString(kApplicationColorMatching));
        if (lacksTheOperation)
            host->lack(PDECallbackOperation::printSettings);
        else
            host->answerNoPrintSettings();
        for (const bool before : {false, true}) {
            panel.setMode(kModeColorSync, before);
            panel.checkColorSync();
            QCOMPARE(panel.hasMode(kModeColorSync), before);
        }
    }

private:
    TestBundle m_bundle;
};

QTEST_MAIN(AvailabilityTest)
#include "availability_test.moc"
