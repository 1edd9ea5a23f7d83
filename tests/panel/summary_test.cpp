#include <QTest>

#include "tests/support/PpdBuilder.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kOrder = QLatin1StringView(kSummaryDisplayOrder);

PpdBuilder printerForSummary()
{
    PpdBuilder ppd;
    ppd.option("QXMediaType", "Media Type", "Plain",
               {{"Plain", "Plain Paper"}, {"Thick", "Thick Paper"}, {"Bad", "Umschl\xe4ge"}});
    ppd.onOff("QXGray", "Gray");
    ppd.option("MirrorPrint", "Mirror", "False", {{"False", "Falsch"}, {"True", "Wahr"}});
    ppd.option("BadText", "Umschl\xe4ge", "One", {{"One", "The One"}});
    return ppd;
}

} // namespace

class SummaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle = std::make_unique<TestBundle>();
        m_bundle->setTexts({{u"ON"_s, u"Yes"_s}, {u"OFF"_s, u"No"_s}});
        m_host = RecordingHost::forPpd(printerForSummary().text());
    }
    void cleanup()
    {
        m_host.reset();
        m_bundle.reset();
    }

    void theLinesComeInTheOrderOfTheOptions()
    {
        TestPanel panel({u"QXGray"_s, u"QXMediaType"_s, u"MirrorPrint"_s});
        QVERIFY(panel.initWithHost(m_host));
        m_host->mark(u"MirrorPrint"_s, u"True"_s); // the summary restores first
        const QVariantMap expected{
            {u"Gray"_s, u"No"_s},
            {u"Media Type"_s, u"Plain Paper"_s},
            {u"Mirror"_s, u"Yes"_s},
            {kOrder, QStringList{u"Gray"_s, u"Media Type"_s, u"Mirror"_s}},
        };
        QCOMPARE(panel.summaryInfo(), expected);
    }

    void switchesAreWordedByTheBundle_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::newRow("ON") << u"QXGray"_s << u"ON"_s << u"Gray"_s << u"Yes"_s;
        QTest::newRow("OFF") << u"QXGray"_s << u"OFF"_s << u"Gray"_s << u"No"_s;
        QTest::newRow("True") << u"MirrorPrint"_s << u"True"_s << u"Mirror"_s << u"Yes"_s;
        QTest::newRow("False") << u"MirrorPrint"_s << u"False"_s << u"Mirror"_s << u"No"_s;
    }
    void switchesAreWordedByTheBundle()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QFETCH(QString, title);
        QFETCH(QString, text);
        m_host->mark(keyword, choice);
        TestPanel panel({keyword});
        QVERIFY(panel.initWithHost(m_host));
        QCOMPARE(panel.summaryInfo().value(title), QVariant(text));
    }

    void withoutATranslationSwitchesAreWordedByTheirKeys()
    {
        m_bundle.reset();
        m_bundle = std::make_unique<TestBundle>();
        m_bundle->setTexts({});
        TestPanel panel({u"MirrorPrint"_s});
        QVERIFY(panel.initWithHost(m_host));
        QCOMPARE(panel.summaryInfo().value(u"Mirror"_s), QVariant(u"OFF"_s));
    }

    void whatHasNoTextGetsNoLine()
    {
        m_host->mark(u"QXMediaType"_s, u"Bad"_s);
        TestPanel panel({u"BadText"_s, u"QXMediaType"_s, u"QXGray"_s});
        QVERIFY(panel.initWithHost(m_host));
        const QVariantMap expected{{u"Gray"_s, u"No"_s}, {kOrder, QStringList{u"Gray"_s}}};
        QCOMPARE(panel.summaryInfo(), expected);
    }

    void anOptionThatThePpdLacksGetsNoLine()
    {
        TestPanel panel({u"QXGray"_s});
        QVERIFY(panel.initWithHost(m_host));
        panel.PPDKeys = QStringList{u"NoOption"_s, u"QXGray"_s};
        QCOMPARE(panel.summaryInfo().value(kOrder), QVariant(QStringList{u"Gray"_s}));
    }

    void aValueThatMatchesNoChoiceGetsNoLine()
    {
        // Restoring takes over what is marked, so such a value comes from a panel's own rules.
        class OwnValue : public TestPanel
        {
        public:
            using TestPanel::TestPanel;
            void checkConstraints() override { m_outputBin.insert(u"QXMediaType"_s, u"Stone"_s); }
        };
        OwnValue panel({u"QXMediaType"_s, u"QXGray"_s});
        QVERIFY(panel.initWithHost(m_host));
        const QVariantMap expected{{u"Gray"_s, u"No"_s}, {kOrder, QStringList{u"Gray"_s}}};
        QCOMPARE(panel.summaryInfo(), expected);
    }

    void thePanelChoosesWhichOptionsAreSummarised()
    {
        class OnlyGray : public TestPanel
        {
        public:
            using TestPanel::TestPanel;
            std::optional<QStringList> availablePPDOptionKeys() override
            {
                return QStringList{u"QXGray"_s};
            }
        };
        OnlyGray panel({u"QXMediaType"_s, u"QXGray"_s});
        QVERIFY(panel.initWithHost(m_host));
        QCOMPARE(panel.summaryInfo().value(kOrder), QVariant(QStringList{u"Gray"_s}));
    }

    void aPanelWithoutOptionsHasAnEmptySummary()
    {
        TestPanel panel;
        QVERIFY(panel.initWithHost(m_host));
        QCOMPARE(panel.summaryInfo(), (QVariantMap{{kOrder, QStringList()}}));
    }

private:
    std::unique_ptr<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
};

QTEST_MAIN(SummaryTest)
#include "summary_test.moc"
