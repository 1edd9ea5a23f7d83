#include <QTest>

#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Two options without rules of their own, the medium, and the density.
PpdBuilder printer()
{
    PpdBuilder ppd;
    ppd.option("QXMediaType", "Media Type", "Glossy",
               {{"Plain", "Plain"}, {"Glossy", "Glossy"}, {"PostCard", "Postcards"}});
    ppd.option("QXInputSlot", "Paper Source", "Auto", {{"Auto", "Auto"}, {"Tray1", "Tray 1"}});
    ppd.onOff("QXSkipBlank", "Skip Blank Pages");
    return ppd;
}

PpdBuilder printerWithDensity()
{
    return printer().option("QXDensityAdjustment", "Density", "0", {{"0", "Standard"}});
}

} // namespace

class DefaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_host.reset(); }

    void aDefaultIsImposedOnlyWhereNothingIsMarked_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("marked"); // null: nothing
        QTest::addColumn<bool>("imposed");
        QTest::newRow("another value, nothing marked") << QVariant(u"Tray1"_s) << QString() << true;
        QTest::newRow("no value, nothing marked") << QVariant() << QString() << true;
        QTest::newRow("another value, the default marked")
            << QVariant(u"Tray1"_s) << u"Auto"_s << false;
        QTest::newRow("another value, another marked")
            << QVariant(u"Auto2"_s) << u"Tray1"_s << false;
        QTest::newRow("the default, nothing marked") << QVariant(u"Auto"_s) << QString() << false;
    }
    void aDefaultIsImposedOnlyWhereNothingIsMarked()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, marked);
        QFETCH(bool, imposed);
        auto panel = makePanel(printer());
        if (stored.isValid())
            panel->m_outputBin.insert(u"QXInputSlot"_s, stored);
        else
            panel->m_outputBin.remove(u"QXInputSlot"_s);
        if (marked.isNull())
            m_host->unmark(u"QXInputSlot"_s);
        else
            m_host->mark(u"QXInputSlot"_s, marked);
        panel->setDefaults();
        QCOMPARE(m_host->asked(), imposed ? QStringList{u"QXInputSlot=Auto"_s} : QStringList());
        QCOMPARE(panel->outputBin().value(u"QXInputSlot"_s),
                 imposed ? QVariant(u"Auto"_s) : stored);
    }

    void aRefusedDefaultIsNotStored()
    {
        auto panel = makePanel(printer());
        panel->m_outputBin.insert(u"QXInputSlot"_s, u"Tray1"_s);
        m_host->unmark(u"QXInputSlot"_s);
        m_host->refuseEverything();
        panel->setDefaults();
        QCOMPARE(m_host->asked(), QStringList{u"QXInputSlot=Auto"_s});
        QCOMPARE(panel->stored(u"QXInputSlot"_s), u"Tray1"_s);
    }

    void defaultsAreImposedInTheOrderOfTheOptions()
    {
        auto panel = makePanel(printer());
        panel->PPDKeys =
            QStringList{u"QXSkipBlank"_s, u"NoOption"_s, u"QXMediaType"_s, u"QXInputSlot"_s};
        panel->m_outputBin.clear();
        for (const QString &keyword : *panel->PPDKeys)
            m_host->unmark(keyword);
        panel->setDefaults();
        // The medium is the one that the rules name, not the PPD's own default.
        const QStringList expected{u"QXSkipBlank=OFF"_s, u"QXMediaType=Plain"_s,
                                   u"QXInputSlot=Auto"_s};
        QCOMPARE(m_host->asked(), expected);
        QVERIFY(!panel->outputBin().contains(u"NoOption"_s));
    }

    void aMarkedInhibitedMediumIsReplaced()
    {
        auto panel = makePanel(printer());
        m_host->mark(u"QXMediaType"_s, u"PostCard"_s);
        panel->m_outputBin.insert(u"QXMediaType"_s, u"Glossy"_s); // equal to the PPD's default
        panel->setDefaults();
        QCOMPARE(m_host->asked(), QStringList{u"QXMediaType=Plain"_s});
        QCOMPARE(panel->stored(u"QXMediaType"_s), u"Plain"_s);
        QCOMPARE(m_host->marked(u"QXMediaType"_s), u"Plain"_s);
    }

    void anInhibitedMediumIsReplacedBeforeAPanelIsSeen()
    {
        m_host = RecordingHost::forPpd(printer().text());
        m_host->mark(u"QXMediaType"_s, u"PostCard"_s);
        PrintSettingProbe panel(m_host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.stored(u"QXMediaType"_s), u"Plain"_s);
        QCOMPARE(m_host->marked(u"QXMediaType"_s), u"Plain"_s);
    }

    void anotherMarkedMediumIsKept()
    {
        auto panel = makePanel(printer());
        m_host->mark(u"QXMediaType"_s, u"Plain"_s);
        panel->setDefaults();
        QVERIFY(m_host->asked().isEmpty());
    }

    void theDefaultMediumMakesThePaperBeJudgedAnew_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("judged");
        QTest::newRow("another value is stored") << u"Plain"_s << true;
        QTest::newRow("the default is stored") << u"Glossy"_s << false;
    }
    void theDefaultMediumMakesThePaperBeJudgedAnew()
    {
        QFETCH(QString, stored);
        QFETCH(bool, judged);
        auto panel = makePanel(printer());
        m_host->mark(u"QXMediaType"_s, u"Glossy"_s);
        panel->m_outputBin.insert(u"QXMediaType"_s, stored);
        panel->paperName = u"A4"_s;
        panel->tracing = true;
        panel->setDefaults();
        // The paper counts as a custom one meanwhile, so that any paper is a new one.
        QCOMPARE(m_host->calls().contains(HostCall{u"readPageSetup"_s, {u"Custom"_s}}), judged);
    }

    void densityBoundsComeFromThePpd_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<qint64>("minimum");
        QTest::addColumn<qint64>("maximum");
        QTest::newRow("no custom option") << printerWithDensity().text() << qint64(-6) << qint64(6);
        QTest::newRow("declared bounds")
            << printerWithDensity()
                   .customInteger("QXDensityAdjustment", "Density", "D", -3, 4)
                   .text()
            << qint64(-3) << qint64(4);
        QTest::newRow("no parameter Density")
            << printerWithDensity().customInteger("QXDensityAdjustment", "Steps", "S", -3, 4).text()
            << qint64(-6) << qint64(6);
        QTest::newRow("a parameter that is no whole number")
            << printerWithDensity().customOfType("QXDensityAdjustment", "Density", "real").text()
            << qint64(-6) << qint64(6);
    }
    void densityBoundsComeFromThePpd()
    {
        QFETCH(QByteArray, ppd);
        QFETCH(qint64, minimum);
        QFETCH(qint64, maximum);
        m_host = RecordingHost::forPpd(ppd);
        PrintSettingProbe panel(m_host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.kDensityMin, minimum);
        QCOMPARE(panel.kDensityMax, maximum);
    }

    void aPrinterWithoutDensityHasNoBounds()
    {
        auto panel = makePanel(printer());
        QCOMPARE(panel->kDensityMin, qint64(0));
        QCOMPARE(panel->kDensityMax, qint64(0));
    }

    void theDefaultDensityIsTheNumberZero()
    {
        auto panel = makePanel(printerWithDensity());
        QVERIFY(panel->panelView());
        const QString key = QXLaserPrintSetting::densityParamKey();
        panel->m_outputBin.insert(key, u"5"_s);
        panel->m_outputBin.remove(u"QXDensityAdjustment"_s);
        panel->effectContent->setValue(key, 5);
        panel->setDefaults();
        QCOMPARE(panel->outputBin().value(key), QVariant(qint64(0)));
        QCOMPARE(panel->outputBin().value(key).typeId(), int(QMetaType::LongLong));
        QCOMPARE(panel->effectContent->value(key), QVariant(qint64(0)));
    }

    void aDensityThatIsTakenOverAlreadyIsKept()
    {
        auto panel = makePanel(printerWithDensity());
        const QString key = QXLaserPrintSetting::densityParamKey();
        panel->m_outputBin.insert(key, u"5"_s);
        panel->setDefaults();
        QCOMPARE(panel->stored(key), u"5"_s);
    }

private:
    std::unique_ptr<PrintSettingProbe> makePanel(const PpdBuilder &ppd)
    {
        m_host = RecordingHost::forPpd(ppd.text());
        auto panel = std::make_unique<PrintSettingProbe>(m_host);
        if (!panel->initWithHost())
            qFatal("no panel");
        m_host->forgetCalls();
        return panel;
    }

    TestBundle m_bundle = TestBundle::built();
    std::shared_ptr<RecordingHost> m_host;
};

QTEST_MAIN(DefaultsTest)
#include "defaults_test.moc"
