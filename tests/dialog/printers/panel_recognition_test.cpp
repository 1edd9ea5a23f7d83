#include <unistd.h>

#include <QJsonArray>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/printers/PanelRecognition.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr char kBundleName[] = "QXCLQuality13PDE.bundle";

PpdBuilder printerWith(const QList<QByteArray> &keywords)
{
    PpdBuilder ppd;
    for (const QByteArray &keyword : keywords)
        ppd.onOff(keyword, keyword);
    return ppd;
}

} // namespace

/// Which printers get the panels of a bundle.
class PanelRecognitionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSamplePrinterNamesTheBundle()
    {
        const TestBundle bundle = TestBundle::built();
        const auto session = sampleSession();
        const PanelDecision decision = decidePanels(session->ppd(), *bundle.bundle());
        QVERIFY(decision.panels);
        QVERIFY2(decision.reason.contains(QLatin1StringView(kBundleName)),
                 qPrintable(decision.reason));
    }

    void aPpdNamesABundleByItsFileName_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<bool>("panels");
        const auto row = [](const char *name, const QByteArray &lines, bool panels) {
            QTest::newRow(name) << lines << panels;
        };
        row("its name", "*QXPrintDialogExtension: \"QXCLQuality13PDE.bundle\"", true);
        row("another bundle", "*QXPrintDialogExtension: \"Other.bundle\"", false);
        row("without the suffix", "*QXPrintDialogExtension: \"QXCLQuality13PDE\"", false);
        row("in other case", "*QXPrintDialogExtension: \"qxclquality13pde.bundle\"", false);
        row("a path, which could lead anywhere",
            "*QXPrintDialogExtension: \"/tmp/QXCLQuality13PDE.bundle\"", false);
        row("a path back to it", "*QXPrintDialogExtension: \"x/../QXCLQuality13PDE.bundle\"",
            false);
        row("nothing", "*QXPrintDialogExtension: \"\"", false);
        row("after another bundle",
            "*QXPrintDialogExtension: \"Other.bundle\"\n"
            "*QXPrintDialogExtension: \"QXCLQuality13PDE.bundle\"",
            true);
        row("in another attribute", "*OtherExtension: \"QXCLQuality13PDE.bundle\"", false);
    }
    void aPpdNamesABundleByItsFileName()
    {
        QFETCH(QByteArray, lines);
        QFETCH(bool, panels);
        const TestBundle bundle = TestBundle::built();
        const auto session = sessionFor(PpdBuilder().line(lines));
        const PanelDecision decision = decidePanels(session->ppd(), *bundle.bundle());
        QCOMPARE(decision.panels, panels);
        QVERIFY(!decision.reason.isEmpty());
    }

    void aPpdWithAllIdentifyingOptionsGetsThePanels()
    {
        const TestBundle bundle = TestBundle::built();
        const auto session =
            sessionFor(printerWith({"QXMediaType", "QXMonoColor", "QXColorMatching"}));
        const PanelDecision decision = decidePanels(session->ppd(), *bundle.bundle());
        QVERIFY(decision.panels);
        QVERIFY2(decision.reason.contains(u"QXMediaType"_s), qPrintable(decision.reason));
    }

    void oneMissingOptionIsEnoughForNoneAndIsNamed_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::newRow("media type") << u"QXMediaType"_s;
        QTest::newRow("color mode") << u"QXMonoColor"_s;
        QTest::newRow("color matching") << u"QXColorMatching"_s;
    }
    void oneMissingOptionIsEnoughForNoneAndIsNamed()
    {
        QFETCH(QString, missing);
        QList<QByteArray> keywords{"QXMediaType", "QXMonoColor", "QXColorMatching"};
        keywords.removeOne(missing.toLatin1());
        const TestBundle bundle = TestBundle::built();
        const auto session = sessionFor(printerWith(keywords));
        const PanelDecision decision = decidePanels(session->ppd(), *bundle.bundle());
        QVERIFY(!decision.panels);
        QVERIFY2(decision.reason.endsWith(missing), qPrintable(decision.reason));
    }

    void aBundleWithoutIdentifyingOptionsFitsNoPrinterByItself_data()
    {
        QTest::addColumn<QJsonArray>("keys");
        QTest::newRow("an empty list") << QJsonArray();
        QTest::newRow("no list of texts") << QJsonArray{1, 2};
    }
    void aBundleWithoutIdentifyingOptionsFitsNoPrinterByItself()
    {
        QFETCH(QJsonArray, keys);
        const TestBundle bundle(TestBundle::Information::Present,
                                {{u"PMPPDKeysIdentifying"_s, keys}});
        const auto session = sampleSession();
        QVERIFY(!decidePanels(session->ppd(), *bundle.bundle()).panels);
    }

    void aBundleWithoutInformationFitsNoPrinterByItself()
    {
        const TestBundle bundle(TestBundle::Information::Absent);
        const auto session = sampleSession();
        QVERIFY(!decidePanels(session->ppd(), *bundle.bundle()).panels);
    }

    void anAdministratorsRulesDecide_data()
    {
        QTest::addColumn<QByteArray>("rules");
        QTest::addColumn<PanelRule>("rule");
        const auto row = [](const char *name, const QByteArray &rules, PanelRule rule) {
            QTest::newRow(name) << rules << rule;
        };
        row("an empty file", "", PanelRule::ByPpd);
        row("the queue's name", "none lobby", PanelRule::None);
        row("in other case", "none LOBBY", PanelRule::None);
        row("a part of it", "none lob", PanelRule::ByPpd);
        row("a pattern", "panels lo*", PanelRule::Panels);
        row("a pattern of one character", "panels lobb?", PanelRule::Panels);
        row("everything", "none *", PanelRule::None);
        row("the printer's name with its blanks", "panels  Office   Printer 5", PanelRule::Panels);
        row("another printer", "panels Office Printer 6", PanelRule::ByPpd);
        row("the first that fits counts", "panels lobby\nnone *", PanelRule::Panels);
        row("comments and empty lines", "# none *\n\n  none lobby # for now\n", PanelRule::None);
        row("without a pattern", "none", PanelRule::ByPpd);
        row("no rule", "maybe lobby\nNONE lobby", PanelRule::ByPpd);
    }
    void anAdministratorsRulesDecide()
    {
        QFETCH(QByteArray, rules);
        QFETCH(PanelRule, rule);
        const QTemporaryDir folder;
        const QString file = writeFile(folder.filePath(u"panels.conf"_s), rules);
        QCOMPARE(panelRule(file, {u"lobby"_s, u"Office Printer 5"_s}), rule);
    }

    void aLogQuotesOnlyTheBeginningOfALineWithoutEnd()
    {
        const QTemporaryDir folder;
        const QString file = writeFile(folder.filePath(u"panels.conf"_s),
                                       "maybe " + QByteArray("instances").repeated(10000));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"^.{0,300} no rule: maybe instances.{0,80}$"_s));
        QCOMPARE(panelRule(file, {u"lobby"_s}), PanelRule::ByPpd);
    }

    // A rule behind them counts all the same.
    void aFileThatIsNoneOfRulesIsNotToldLineByLine()
    {
        const QTemporaryDir folder;
        const QString file = writeFile(folder.filePath(u"panels.conf"_s),
                                       QByteArray("maybe\n").repeated(5000) + "none lobby\n");
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        for (int line = 0; line < 100; ++line)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u" no rule: maybe$"_s));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"more lines that are no rules$"_s));
        QCOMPARE(panelRule(file, {u"lobby"_s}), PanelRule::None);
    }

    void withoutRulesThePpdDecides()
    {
        QCOMPARE(panelRule(u"/nonexistent/panels.conf"_s, {u"lobby"_s}), PanelRule::ByPpd);
    }

    void anInstalledProgramReadsItsAdministratorsRules()
    {
        const Variable named("CORVANA_PRINT_PANELS", "/home/of/somebody/panels.conf");
        QCOMPARE(panelRulesFile(), u"/home/of/somebody/panels.conf"_s);
        if (::geteuid() != 0)
            QSKIP("only root can run a program that is somebody else's");
        QCOMPARE(::seteuid(65534), 0);
        const QString file = panelRulesFile();
        QCOMPARE(::seteuid(0), 0);
        QCOMPARE(file, u"/etc/corvana-print/panels.conf"_s);
    }

    void whatIsForcedOrForbiddenIsNotLookedForInThePpd()
    {
        const TestBundle bundle = TestBundle::built();
        const auto named = sampleSession();
        const auto other = sessionFor(printerWith({"Staple"}));
        QVERIFY(!decidePanels(named->ppd(), *bundle.bundle(), PanelRule::None).panels);
        QVERIFY(decidePanels(other->ppd(), *bundle.bundle(), PanelRule::Panels).panels);
    }
};

QTEST_GUILESS_MAIN(PanelRecognitionTest)

#include "panel_recognition_test.moc"
