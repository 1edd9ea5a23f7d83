#include <QTest>
#include <QTranslator>

#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionTexts.h"
#include "dialog/session/Summary.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

namespace {

class ColonOfFrench : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const QString words = QString::fromLatin1(text);
        const bool isOfSummary = QByteArrayView(context) == "Summary" && words.startsWith(u"%1:"_s);
        return isOfSummary ? QString(words).replace(u':', u"\u00a0:"_s) : QString();
    }
};

} // namespace

class SummaryTest : public QObject
{
    Q_OBJECT

private:
    ScriptedAlertPresenter m_presenter;

private Q_SLOTS:
    void copiesThenTheGeneralOptionsThenThePanels()
    {
        const auto session = sessionFor(smallPrinter());
        session->change(u"Duplex"_s, u"DuplexTumble"_s, Origin::Dialog);
        FakePlugIn plugIn({u"A"_s, u"B"_s});
        PanelHost panels(*session, &plugIn, m_presenter);
        plugIn.panels.at(0)->summaryLines = {{u"Media"_s, u"Plain Paper"_s}};
        plugIn.panels.at(1)->summaryLines = {{u"Color"_s, u"Vivid"_s}};
        QCOMPARE(sessionSummary(*session, panels, 3, {}),
                 (QList<SummaryLine>{{u"Copies"_s, u"3, collated"_s},
                                     {u"Two-Sided"_s, u"Short Edge"_s},
                                     {u"Paper Size"_s, u"A4"_s},
                                     {u"Output To"_s, u"Printer"_s},
                                     {u"Colors Matched By"_s, u"Printer"_s},
                                     {u"Media"_s, u"Plain Paper"_s},
                                     {u"Color"_s, u"Vivid"_s}}));
    }

    void theCopiesSayWhetherTheyAreCollated()
    {
        const auto session = sessionFor(PpdBuilder());
        PanelHost panels(*session, nullptr, m_presenter);
        const QList<JobOption> uncollated{{u"collate"_s, u"false"_s}};
        QCOMPARE(
            sessionSummary(*session, panels, 3, uncollated),
            (QList<SummaryLine>{{u"Copies"_s, u"3, not collated"_s}, {u"Paper Size"_s, u"A4"_s}}));
        QCOMPARE(sessionSummary(*session, panels, 1, uncollated),
                 (QList<SummaryLine>{
                     {u"Copies"_s, u"1"_s}, {u"Paper Size"_s, u"A4"_s}, {u"Collate"_s, u"Off"_s}}));
    }

    void thePrintersOwnOptionSaysWhetherCopiesAreCollated()
    {
        const auto session = sessionFor(
            PpdBuilder().option("Collate", "Collate", "False", {{"True", "On"}, {"False", "Off"}}));
        PanelHost panels(*session, nullptr, m_presenter);
        QCOMPARE(sessionSummary(*session, panels, 2, {}).constFirst().value, u"2, collated"_s);
        session->change(u"Collate"_s, u"False"_s, Origin::Dialog);
        QCOMPARE(
            sessionSummary(*session, panels, 2, {}),
            (QList<SummaryLine>{{u"Copies"_s, u"2, not collated"_s}, {u"Paper Size"_s, u"A4"_s}}));
    }

    void optionsThatThePrinterLacksHaveNoLine()
    {
        const auto session = sessionFor(PpdBuilder());
        PanelHost panels(*session, nullptr, m_presenter);
        QCOMPARE(sessionSummary(*session, panels, 1, {}),
                 (QList<SummaryLine>{{u"Copies"_s, u"1"_s}, {u"Paper Size"_s, u"A4"_s}}));
    }

    void withoutPanelsTheOtherOptionsAreToldThatDifferFromTheDefault()
    {
        const auto session = sessionFor(smallPrinter());
        PanelHost panels(*session, nullptr, m_presenter);
        const QList<SummaryLine> before = sessionSummary(*session, panels, 1, {});
        session->change(u"Boost"_s, u"ON"_s, Origin::Dialog);
        session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        QCOMPARE(
            sessionSummary(*session, panels, 1, {}),
            (before + QList<SummaryLine>{{u"Tray"_s, u"Lower Tray"_s}, {u"Boost"_s, u"On"_s}}));
    }

    void whatNoPanelHasIsToldWhenItDiffersFromTheDefault()
    {
        const auto session = sessionFor(smallPrinter());
        FakePlugIn plugIn({u"A"_s, u"B"_s});
        PanelHost panels(*session, &plugIn, m_presenter);
        plugIn.panels.at(0)->supported = QStringList{u"Tray"_s};
        plugIn.panels.at(0)->summaryLines = {{u"Tray"_s, u"Below"_s}};
        const QList<SummaryLine> before = sessionSummary(*session, panels, 1, {});
        session->change(u"Boost"_s, u"ON"_s, Origin::Dialog);
        session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        QCOMPARE(sessionSummary(*session, panels, 1, {}),
                 (before + QList<SummaryLine>{{u"Boost"_s, u"On"_s}}));
    }

    // It does not count just now; the job carries it all the same.
    void whatAPanelHasNoLineForIsToldBehindAllOthersWhenItWasChosen()
    {
        const auto session = sessionFor(smallPrinter());
        FakePlugIn plugIn({u"A"_s});
        PanelHost panels(*session, &plugIn, m_presenter);
        plugIn.panels.at(0)->supported =
            QStringList{u"Tray"_s, u"Media"_s, u"Duplex"_s, u"QXOutput"_s};
        session->change(u"QXOutput"_s, u"FAX"_s, Origin::Dialog); // told with the general options
        plugIn.panels.at(0)->summaryLines = {{u"Media"_s, u"Plain Paper"_s}};
        session->change(u"Boost"_s, u"ON"_s, Origin::Dialog);
        const QList<SummaryLine> before = sessionSummary(*session, panels, 1, {});
        QCOMPARE(before.constLast(), (SummaryLine{u"Boost"_s, u"On"_s}));
        session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        const QList<SummaryLine> lines = sessionSummary(*session, panels, 1, {});
        QCOMPARE(lines, (before + QList<SummaryLine>{{u"Also in the job"_s, {}},
                                                     {u"Tray"_s, u"Lower Tray"_s}}));
        QVERIFY(lines.at(lines.size() - 2).isHeading && !lines.constLast().isHeading);
        QCOMPARE(lines.constLast().keyword, u"Tray"_s);
    }

    // It is of no single option then, and each that has its title is told.
    void aLineOfAPanelTellsOfAllOptionsOfItsTitle()
    {
        const QList<PpdChoice> choices{{"Off", "Off"}, {"On", "On"}};
        const auto session = sessionFor(PpdBuilder()
                                            .option("Left", "Edge", "Off", choices)
                                            .option("Right", "Edge", "Off", choices));
        FakePlugIn plugIn({u"A"_s});
        PanelHost panels(*session, &plugIn, m_presenter);
        plugIn.panels.at(0)->supported = QStringList{u"Left"_s, u"Right"_s};
        plugIn.panels.at(0)->summaryLines = {{u"Edge"_s, u"Both"_s}};
        session->change(u"Left"_s, u"On"_s, Origin::Dialog);
        session->change(u"Right"_s, u"On"_s, Origin::Dialog);
        const QList<SummaryLine> lines = sessionSummary(*session, panels, 1, {});
        QCOMPARE(lines.constLast(), (SummaryLine{u"Edge"_s, u"Both"_s}));
        QVERIFY(lines.constLast().keyword.isEmpty());
    }

    // The plug-in's own value takes the place of the mark.
    void whatAPanelHasNoLineForIsToldAsTheJobHasIt_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("marked");
        QTest::addColumn<QString>("told"); // null for none
        QTest::newRow("a choice") << u"6"_s << u"1"_s << u"Six"_s;
        QTest::newRow("no choice") << u"7"_s << u"1"_s << u"7"_s;
        QTest::newRow("custom") << u"Custom.7"_s << u"1"_s << u"7"_s;
        QTest::newRow("its default") << u"1"_s << u"6"_s << QString();
    }
    void whatAPanelHasNoLineForIsToldAsTheJobHasIt()
    {
        QFETCH(QString, value);
        QFETCH(QString, marked);
        QFETCH(QString, told);
        const auto session = sessionFor(
            PpdBuilder().option("Strength", "Strength", "1", {{"1", "One"}, {"6", "Six"}}));
        FakePlugIn plugIn({u"A"_s});
        FakeJobValues values;
        plugIn.values = &values;
        PanelHost panels(*session, &plugIn, m_presenter);
        plugIn.panels.at(0)->supported = QStringList{u"Strength"_s};
        session->change(u"Strength"_s, marked, Origin::Dialog);
        session->printSettings().setValue(u"fake.Strength"_s, value);
        QCOMPARE(jobOptions(*session, &values, {}).constLast(), (JobOption{u"Strength"_s, value}));
        const SummaryLine last = sessionSummary(*session, panels, 1, {}).constLast();
        QCOMPARE(last, told.isNull() ? (SummaryLine{u"Paper Size"_s, u"A4"_s})
                                     : (SummaryLine{u"Strength"_s, told}));
    }

    // Whatever form a plug-in gives it.
    void aSecretThatIsNoChoiceIsNotToldEither()
    {
        const auto session =
            sessionFor(PpdBuilder()
                           .option("Strength", "Strength", "None", {{"None", "None"}})
                           .line("*CustomStrength True: \"\"")
                           .line("*ParamCustomStrength Code/Code: 1 passcode 1 8"));
        FakePlugIn plugIn({u"A"_s});
        FakeJobValues values;
        plugIn.values = &values;
        PanelHost panels(*session, &plugIn, m_presenter);
        plugIn.panels.at(0)->supported = QStringList{u"Strength"_s};
        for (const QString &secret : {u"7"_s, u"Custom.7"_s, u"word"_s}) {
            session->printSettings().setValue(u"fake.Strength"_s, secret);
            QCOMPARE(jobOptions(*session, &values, {}).constLast().value, secret);
            QCOMPARE(sessionSummary(*session, panels, 1, {}).constLast(),
                     (SummaryLine{u"Strength"_s, u"••••••"_s}));
        }
    }

    void aSecretThatAPanelHasNoLineForIsNotTold()
    {
        const auto session = sessionFor(PpdBuilder().option("AccessCode", "Access", "None",
                                                            {{"None", "None"}, {"1234", "1234"}}));
        FakePlugIn plugIn({u"A"_s});
        PanelHost panels(*session, &plugIn, m_presenter);
        plugIn.panels.at(0)->supported = QStringList{u"AccessCode"_s};
        session->change(u"AccessCode"_s, u"1234"_s, Origin::Dialog);
        QCOMPARE(sessionSummary(*session, panels, 1, {}).constLast(),
                 (SummaryLine{u"Access"_s, u"••••••"_s}));
    }

    void theOptionForColorIsToldOnceByItsPanelOrWithTheGeneralOptions()
    {
        const auto session = sessionFor(smallPrinter());
        FakePlugIn plugIn({u"A"_s});
        FakeJobValues values;
        values.color = u"Tray"_s;
        plugIn.values = &values;
        PanelHost panels(*session, &plugIn, m_presenter);
        const auto trays = [&] {
            QStringList told;
            const QList<SummaryLine> lines = sessionSummary(*session, panels, 1, {});
            for (const SummaryLine &line : lines) {
                if (line.title == u"Tray"_s)
                    told += line.value;
            }
            return told;
        };
        const QString usual = trays().value(0);
        QCOMPARE(trays(), QStringList{usual});
        session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        QCOMPARE(trays(), QStringList{u"Lower Tray"_s});
        plugIn.panels.at(0)->supported = QStringList{u"Tray"_s};
        plugIn.panels.at(0)->summaryLines = {{u"Tray"_s, u"Below"_s}};
        QCOMPARE(trays(), QStringList{u"Below"_s});
    }

    void theAttributesOfTheJobAreTold()
    {
        const auto session = sessionFor(PpdBuilder());
        PanelHost panels(*session, nullptr, m_presenter);
        QCOMPARE(sessionSummary(*session, panels, 1,
                                {{u"page-ranges"_s, u"1-4"_s}, {u"outputorder"_s, u"reverse"_s}}),
                 (QList<SummaryLine>{{u"Copies"_s, u"1"_s},
                                     {u"Paper Size"_s, u"A4"_s},
                                     {u"Pages"_s, u"1-4"_s},
                                     {u"Output Order"_s, u"Last Page First"_s}}));
    }

    void aPasswordIsNotTold()
    {
        const auto session = sessionFor(officePrinter());
        session->change(u"Pin"_s, u"Custom.4711"_s, Origin::Dialog);
        QCOMPARE(optionLine(*session, u"Pin"_s), (SummaryLine{u"PIN Code"_s, u"••••••"_s}));
    }

    // Whatever the type that a PPD gives it. That there is one, or none, may be told.
    void aSecretThatIsAChoiceIsNotTold()
    {
        const auto session = sessionFor(
            PpdBuilder()
                .option("AccessCode", "Access", "None",
                        {{"None", "None"}, {"1234", "1234"}, {"Always", "Always"}})
                .option("Tray", "Tray", "Upper", {{"Upper", "Upper"}, {"Tray1234", "Tray 1234"}}));
        ppd_file_t *ppd = session->ppd();
        QCOMPARE(optionLine(*session, u"AccessCode"_s), (SummaryLine{u"Access"_s, u"None"_s}));
        QVERIFY(secretsOf(*session).isEmpty());
        session->change(u"AccessCode"_s, u"1234"_s, Origin::Dialog);
        session->change(u"Tray"_s, u"Tray1234"_s, Origin::Dialog);
        QCOMPARE(optionLine(*session, u"AccessCode"_s), (SummaryLine{u"Access"_s, u"••••••"_s}));
        QCOMPARE(optionLine(*session, u"Tray"_s), (SummaryLine{u"Tray"_s, u"Tray 1234"_s}));
        QCOMPARE(secretsOf(*session), QStringList{u"1234"_s});
        QCOMPARE(optionText(ppd, u"AccessCode"_s, u"1234"_s), u"AccessCode=••••••"_s);
        QCOMPARE(optionText(ppd, u"AccessCode"_s, u"Always"_s), u"AccessCode=Always"_s);
    }

    void whatTheGeneralPageOffersIsNoFurtherOption()
    {
        const auto session = sessionFor(smallPrinter());
        QStringList keywords;
        for (const ppd_option_t *option : furtherOptions(*session))
            keywords += ppdKeyword(option->keyword);
        QCOMPARE(keywords, (QStringList{u"Tray"_s, u"Media"_s, u"Boost"_s}));
    }

    void whatIsBuiltInIsNoChoiceOfAJob()
    {
        const auto session = sessionFor(smallPrinter().text() +
                                        "*OpenGroup: InstallableOptions/Options Installed\n*OpenUI "
                                        "*Finisher/Finisher: Boolean\n"
                                        "*DefaultFinisher: False\n*Finisher True/Installed: \"\"\n"
                                        "*Finisher False/Not Installed: \"\"\n*CloseUI: *Finisher\n"
                                        "*CloseGroup: InstallableOptions\n");
        QVERIFY(ppdOption(session->ppd(), u"Finisher"_s) != nullptr);
        for (const ppd_option_t *option : furtherOptions(*session))
            QVERIFY(ppdKeyword(option->keyword) != u"Finisher"_s);
        // Who asks for it all the same is told what the job has.
        QVERIFY(session->change(u"Finisher"_s, u"True"_s, Origin::Dialog).accepted());
        FakePlugIn plugIn({u"A"_s});
        PanelHost panels(*session, &plugIn, m_presenter);
        QVERIFY(sessionSummary(*session, panels, 1, {}).contains({u"Finisher"_s, u"Installed"_s}));
    }

    void aMarkThatAPanelChangesForItsSummaryIsTheMarkThatIsTold()
    {
        const auto session = sessionFor(smallPrinter());
        FakePlugIn plugIn({u"A"_s});
        PanelHost panels(*session, &plugIn, m_presenter);
        FakePanel &panel = *plugIn.panels.at(0);
        panel.inside.insert(u"summary"_s, [&] { panel.propose(u"Duplex"_s, u"DuplexTumble"_s); });
        const QList<SummaryLine> lines = sessionSummary(*session, panels, 1, {});
        QVERIFY(lines.contains({u"Two-Sided"_s, u"Short Edge"_s}));
    }

    void aCustomPaperIsToldByItsSize()
    {
        const auto session = sampleSession();
        session->change(u"PageSize"_s, u"Custom.283.46457x566.92913"_s, Origin::Dialog);
        QCOMPARE(optionLine(*session, u"PageSize"_s),
                 (SummaryLine{u"Paper Size"_s, u"100 × 200 mm"_s}));
    }

    void anotherCustomValueIsToldAsItIs()
    {
        const auto session = sampleSession();
        session->change(u"QXSleepTime"_s, u"Custom.12"_s, Origin::Dialog);
        QCOMPARE(optionLine(*session, u"QXSleepTime"_s), (SummaryLine{u"Sleep Time"_s, u"12"_s}));
    }

    void whatHasNoMarkHasNoLine()
    {
        const auto session = sampleSession();
        QCOMPARE(optionLine(*session, u"Nothing"_s), SummaryLine{});
        const auto unmarked = sessionFor(PpdBuilder().option("Duplex", "Two-Sided", "Unknown",
                                                             {{"None", "Off"}, {"Other", "On"}}));
        QCOMPARE(optionLine(*unmarked, u"Duplex"_s), SummaryLine{});
    }

    void aTextThatCannotBeReadIsReplacedByItsKeyword()
    {
        const auto session = sessionFor(PpdBuilder().option(
            "Duplex", "Zweiseitig \xfc", "None", {{"None", "Aus \xfc"}, {"DuplexTumble", "Kurz"}}));
        QCOMPARE(optionLine(*session, u"Duplex"_s), (SummaryLine{u"Duplex"_s, u"None"_s}));
    }

    void theTextHasOneLineForEach()
    {
        QCOMPARE(summaryText({{u"Copies"_s, u"1"_s}, {u"Two-Sided"_s, u"Off"_s}}),
                 u"Copies: 1\nTwo-Sided: Off\n"_s);
        QCOMPARE(summaryText({{u"Also in the job"_s, {}, {}, true}, {u"Tray"_s, u"Lower"_s}}),
                 u"Also in the job:\nTray: Lower\n"_s);
        QCOMPARE(summaryText({}), QString());
    }

    // Names and values come from PPDs, and a place for a value in them is none.
    void nameAndValueAreJoinedAsTheLanguageDoes()
    {
        ColonOfFrench french;
        QCoreApplication::installTranslator(&french);
        const QString text =
            summaryText({{u"Parts %2"_s, {}, {}, true}, {u"Name %2"_s, u"%1 value"_s}});
        QCoreApplication::removeTranslator(&french);
        QCOMPARE(text, u"Parts %2\u00a0:\nName %2\u00a0: %1 value\n"_s);
    }
};

QTEST_MAIN(SummaryTest)

#include "summary_test.moc"
