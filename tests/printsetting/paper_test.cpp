#include <stdexcept>

#include <QTest>

#include "panel/OptionKeywords.h"
#include "platform/printcore/PageFormat.h"
#include "platform/toolkit/MenuActions.h"
#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A printer without rules but those of paper and medium.
PpdBuilder printer()
{
    return PpdBuilder().option("QXMediaType", "Media Type", "Plain",
                               {{"Plain", "Plain"},
                                {"Thin", "Thin"},
                                {"Thick", "Thick"},
                                {"Glossy", "Glossy"},
                                {"Env", "Envelopes"}});
}

Paper listed(const QString &name)
{
    return {name, name, 595, 842};
}

Paper unlisted(const QString &name, double width, double height)
{
    return {name, std::nullopt, width, height};
}

} // namespace

/// How the panel judges the page's paper, and what a new paper brings with it.
class PaperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_preferences.emplace();
        m_bundle.emplace(TestBundle::built());
    }
    void cleanup()
    {
        if (m_host)
            QCOMPARE(m_host->alerts().outstanding(), 0);
        m_panel.reset();
        m_host.reset();
        m_bundle.reset();
        m_preferences.reset();
    }

    // The name

    void thePageNamesThePaper()
    {
        makePanel(printer());
        m_host->page().paper = listed(u"A5"_s);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, u"A5"_s);
        QVERIFY2(!m_panel->readPageSetup(), "it is no new one any more");
    }

    void thePaperThatPagesAreScaledToComesFirst_data()
    {
        QTest::addColumn<QVariant>("mapped");
        QTest::addColumn<QString>("name");
        QTest::newRow("a name") << QVariant(u"Postcard"_s) << u"Postcard"_s;
        QTest::newRow("no entry") << QVariant() << u"A5"_s;
    }
    void thePaperThatPagesAreScaledToComesFirst()
    {
        QFETCH(QVariant, mapped);
        QFETCH(QString, name);
        makePanel(printer());
        m_host->page().paper = listed(u"A5"_s);
        m_host->settings().setValue(kPageToPaperMappingEntry, mapped);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, name);
    }

    void aMappedPaperNeedsNoPage()
    {
        makePanel(printer());
        m_host->answerNoPageFormat();
        m_host->settings().setValue(kPageToPaperMappingEntry, u"Custom.A"_s);
        QVERIFY(m_panel->readPageSetup()); // and nothing says that it would not fit
        QCOMPARE(m_panel->paperName, u"Custom.A"_s);
    }

    void aPaperThatCannotBeReadChangesNothing_data()
    {
        QTest::addColumn<QString>("lack");
        for (const char *lack : {"no operation for print settings", "no print settings",
                                 "no operation for the page", "no page", "no name"})
            QTest::newRow(lack) << QString::fromLatin1(lack);
    }
    void aPaperThatCannotBeReadChangesNothing()
    {
        QFETCH(QString, lack);
        makePanel(printer());
        m_panel->setMode(kModeEnvelopePaper, true);
        m_host->page().paper = listed(u"A5"_s);
        if (lack == u"no operation for print settings")
            m_host->lack(PDECallbackOperation::printSettings);
        else if (lack == u"no print settings")
            m_host->answerNoPrintSettings();
        else if (lack == u"no operation for the page")
            m_host->lack(PDECallbackOperation::pageFormat);
        else if (lack == u"no page")
            m_host->answerNoPageFormat();
        else
            m_host->page().paper = listed(QString());
        QVERIFY(!m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, u"A4"_s);
        QVERIFY(m_panel->hasMode(kModeEnvelopePaper));
        QVERIFY(m_host->asked().isEmpty());
        // Only a job that is gone is not followed any more.
        m_host->answerNoPrintSettings(false);
        postPaperChange();
        const bool followed = lack != u"no print settings";
        if (followed && lack == u"no name")
            m_host->page().paper = listed(u"A5"_s);
        m_panel->paperName = u"B5"_s;
        m_panel->tracing = true;
        m_host->forgetCalls();
        postPaperChange();
        QCOMPARE(m_host->calls().contains(HostCall{u"readPageSetup"_s, {u"B5"_s}}), followed);
    }

    // The size

    void customSizesHaveToFit_data()
    {
        QTest::addColumn<Paper>("paper");
        QTest::addColumn<QString>("name");
        const QString unsupported = kUnsupportedPaper;
        const QString custom = u"Custom"_s;
        QTest::newRow("at the upper limits") << unlisted(custom, 612, 792) << custom;
        QTest::newRow("at the lower limits") << unlisted(custom, 200, 300) << custom;
        QTest::newRow("a width that rounds down to its limit")
            << unlisted(custom, 612.4, 792) << custom;
        QTest::newRow("a width that rounds up beyond its limit")
            << unlisted(custom, 612.5, 792) << unsupported;
        QTest::newRow("a height that rounds down to its limit")
            << unlisted(custom, 612, 792.49) << custom;
        QTest::newRow("a height that rounds up beyond its limit")
            << unlisted(custom, 612, 792.5) << unsupported;
        QTest::newRow("a width that rounds up to the lower limit")
            << unlisted(custom, 199.5, 300) << custom;
        QTest::newRow("a width below") << unlisted(custom, 199.4, 300) << unsupported;
        QTest::newRow("a height below") << unlisted(custom, 200, 299) << unsupported;
        QTest::newRow("no size at all") << unlisted(custom, 0, 0) << unsupported;
        QTest::newRow("an absurd size") << unlisted(custom, 1e30, -1e30) << unsupported;
        QTest::newRow("no number") << unlisted(custom, qQNaN(), 500) << unsupported;
        QTest::newRow("the name contains Custom")
            << unlisted(u"MyCustom.1"_s, 900, 900) << unsupported;
        QTest::newRow("Letter") << unlisted(u"Letter"_s, 900, 900) << unsupported;
        QTest::newRow("Letter that fits") << unlisted(u"Letter"_s, 612, 792) << u"Letter"_s;
        QTest::newRow("other letter case") << unlisted(u"custom"_s, 900, 900) << u"custom"_s;
        QTest::newRow("another paper") << unlisted(u"A3"_s, 900, 900) << u"A3"_s;
        QTest::newRow("a longer name") << unlisted(u"LetterSmall"_s, 900, 900) << u"LetterSmall"_s;
        QTest::newRow("a size that the printer lists")
            << Paper{u"Letter"_s, u"Letter"_s, 900, 900} << u"Letter"_s;
    }
    void customSizesHaveToFit()
    {
        QFETCH(Paper, paper);
        QFETCH(QString, name);
        makePanel(printer().customPageSize(200, 300, 612, 792));
        m_host->page().paper = paper;
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, name);
    }

    void aPrinterWithoutCustomSizesTakesNone()
    {
        makePanel(printer());
        m_host->page().paper = unlisted(u"Letter"_s, 612, 792);
        postPaperChange();
        QCOMPARE(m_panel->paperName, QString(kUnsupportedPaper));
        m_host->alerts().expect();
        QVERIFY(!m_panel->shouldPrint());
        m_host->page().paper = listed(u"A4"_s);
        postPaperChange();
        QVERIFY(m_panel->shouldPrint());
    }

    void aMappedPaperIsMeasuredByThePage()
    {
        makePanel(printer().customPageSize(200, 300, 612, 792));
        m_host->settings().setValue(kPageToPaperMappingEntry, u"Letter"_s);
        m_host->page().paper = unlisted(u"A4"_s, 900, 900);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, QString(kUnsupportedPaper));
    }

    // The medium

    void theFirstPaperKeepsAMediumThatWasChosen_data()
    {
        QTest::addColumn<QVariant>("medium");
        QTest::addColumn<bool>("kept");
        QTest::newRow("Glossy") << QVariant(u"Glossy"_s) << true;
        QTest::newRow("Plain") << QVariant(u"Plain"_s) << false;
        QTest::newRow("nothing") << QVariant() << false;
    }
    void theFirstPaperKeepsAMediumThatWasChosen()
    {
        QFETCH(QVariant, medium);
        QFETCH(bool, kept);
        makePanel(printer());
        m_panel->paperName = QString();
        if (medium.isValid())
            m_panel->m_outputBin.insert(u"QXMediaType"_s, medium);
        else
            m_panel->m_outputBin.remove(u"QXMediaType"_s);
        m_host->page().paper = listed(u"EnvDL"_s);
        QCOMPARE(m_panel->readPageSetup(), !kept);
        QCOMPARE(m_panel->paperName, u"EnvDL"_s);
        QCOMPARE(m_panel->hasMode(kModeEnvelopePaper), !kept);
        QCOMPARE(m_host->asked(), kept ? QStringList() : QStringList{u"QXMediaType=Env"_s});
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), kept ? u"Glossy"_s : u"Env"_s);
        // A later paper decides whatever was chosen.
        m_host->page().paper = listed(u"A5"_s);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), u"Plain"_s);
    }

    void aNewPaperBringsItsMedium_data()
    {
        QTest::addColumn<QString>("paper");
        QTest::addColumn<QString>("medium");
        QTest::addColumn<bool>("envelope");
        QTest::newRow("an envelope") << u"EnvDL"_s << u"Env"_s << true;
        QTest::newRow("Env alone") << u"Env"_s << u"Env"_s << true;
        QTest::newRow("Env further on") << u"DLEnv"_s << u"Plain"_s << false;
        QTest::newRow("other letter case") << u"envDL"_s << u"Plain"_s << false;
        QTest::newRow("a post card") << u"Postcard"_s << u"Thick"_s << false;
        QTest::newRow("any other") << u"A5"_s << u"Plain"_s << false;
    }
    void aNewPaperBringsItsMedium()
    {
        QFETCH(QString, paper);
        QFETCH(QString, medium);
        QFETCH(bool, envelope);
        for (const bool before : {false, true}) {
            makePanel(printer());
            m_panel->m_outputBin.insert(u"QXMediaType"_s, u"Glossy"_s);
            m_panel->setMode(kModeEnvelopePaper, before);
            m_host->page().paper = listed(paper);
            QVERIFY(m_panel->readPageSetup());
            QCOMPARE(m_panel->hasMode(kModeEnvelopePaper), envelope);
            QCOMPARE(m_host->asked(), QStringList{u"QXMediaType="_s + medium});
            QCOMPARE(m_panel->stored(u"QXMediaType"_s), medium);
            QCOMPARE(m_host->marked(u"QXMediaType"_s), medium);
        }
    }

    void aRefusedMediumLeavesThePaperJudged()
    {
        makePanel(printer());
        m_host->refuseEverything();
        m_host->page().paper = listed(u"EnvDL"_s);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, u"EnvDL"_s);
        QVERIFY(m_panel->hasMode(kModeEnvelopePaper));
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), u"Plain"_s);
    }

    // Following the paper

    void aNewPaperIsFollowedStepByStep()
    {
        makePanel(printer());
        m_panel->tracing = true;
        m_host->page().paper = listed(u"A5"_s);
        postPaperChange();
        const QList<HostCall> unseen{
            {u"readPageSetup"_s, {u"A4"_s}},
            {u"willChangePPDOptionKeyValue_ppdChoice"_s, {u"QXMediaType"_s, u"Plain"_s}},
            {u"checkConstraints"_s, {}}};
        QCOMPARE(m_host->calls(), unseen);
        QVERIFY2(!m_panel->m_panelView, "no view is needed for that");

        m_panel->tracing = false;
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_panel->tracing = true;
        m_host->forgetCalls();
        m_host->page().paper = listed(u"A4"_s);
        postPaperChange();
        const QList<HostCall> seen{
            {u"readPageSetup"_s, {u"A5"_s}},
            {u"willChangePPDOptionKeyValue_ppdChoice"_s, {u"QXMediaType"_s, u"Plain"_s}},
            {u"checkConstraints"_s, {}},
            {u"updateUI"_s, {}},
            {u"updateUIforKey"_s, {u"QXMediaType"_s}}};
        QCOMPARE(m_host->calls(), seen);

        m_host->forgetCalls();
        postPaperChange(); // the same paper once more
        QCOMPARE(m_host->calls(), (QList<HostCall>{{u"readPageSetup"_s, {u"A4"_s}}}));
    }

    void aNewPaperIsShownInTheControls()
    {
        makePanel(printer());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        m_host->page().paper = listed(u"Postcard"_s);
        postPaperChange();
        QCOMPARE(m_panel->mediaTypePopup->currentText(), u"Thick"_s);
    }

    void anEnvelopeSaysHowToLoadItWhateverTheModel_data()
    {
        QTest::addColumn<int>("model");
        QTest::newRow("4") << 4;
        QTest::newRow("5") << 5;
    }
    void anEnvelopeSaysHowToLoadItWhateverTheModel()
    {
        QFETCH(int, model);
        makePanel(printer().modelNumber(model));
        m_host->alerts().expect({0, true});
        m_host->page().paper = listed(u"EnvDL"_s);
        postPaperChange();
        QVERIFY2(m_panel->m_panelView, "the view was loaded for its illustration");
        QCOMPARE(m_host->alerts().shown().size(), 1);
        QCOMPARE(m_host->alerts().shown().first().alert.messageText, u"Envelopes"_s);
        QVERIFY(!m_panel->shouldShowAlert(u"FrontPaper_Env"_s));
        // Silenced: not when the next envelope comes.
        m_host->page().paper = listed(u"A4"_s);
        postPaperChange();
        m_host->page().paper = listed(u"EnvC5"_s);
        postPaperChange();
        QCOMPARE(m_host->alerts().shown().size(), 1);
    }

    void anEnvelopeThatTheHostRefusesIsNotExplained()
    {
        makePanel(printer());
        m_host->refuseEverything();
        m_host->page().paper = listed(u"EnvDL"_s);
        postPaperChange();
        QCOMPARE(m_panel->paperName, u"EnvDL"_s);
    }

    // The host keeps the thick envelopes that were chosen before.
    void aNewPaperExplainsThePlainEnvelopeOnly()
    {
        makePanel(printer());
        m_panel->m_outputBin.insert(u"QXMediaType"_s, u"EnvThick"_s);
        m_host->refuseEverything();
        m_host->page().paper = listed(u"EnvDL"_s);
        postPaperChange();
        QCOMPARE(m_panel->paperName, u"EnvDL"_s);
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), u"EnvThick"_s);
        QVERIFY(m_host->alerts().shown().isEmpty());
    }

    void onlyTheMenuWithThePapersCounts_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<bool>("hasUserInfo");
        QTest::addColumn<bool>("counts");
        const QStringList papers{u"Letter"_s, u"A4"_s};
        QTest::newRow("papers") << papers << true << true;
        QTest::newRow("papers, nothing told") << papers << false << false;
        QTest::newRow("another menu") << QStringList{u"A40"_s, u"a4"_s} << true << false;
        QTest::newRow("an empty menu") << QStringList{} << true << false;
    }
    void onlyTheMenuWithThePapersCounts()
    {
        QFETCH(QStringList, items);
        QFETCH(bool, hasUserInfo);
        QFETCH(bool, counts);
        makePanel(printer());
        QComboBox menu;
        menu.addItems(items);
        m_host->page().paper = listed(u"A5"_s);
        m_panel->checkPageSizeChange(
            {QLatin1StringView(kMenuDidSendActionNotification), &menu, {}, hasUserInfo});
        QCOMPARE(m_panel->paperName, counts ? u"A5"_s : u"A4"_s);
    }

    void aMenuActWithoutAMenuIsIgnored()
    {
        makePanel(printer());
        m_host->page().paper = listed(u"A5"_s);
        m_panel->checkPageSizeChange(
            {QLatin1StringView(kMenuDidSendActionNotification), nullptr, {}, true});
        QCOMPARE(m_panel->paperName, u"A4"_s);
    }

    void thePaperMenuIsKnownByItsTranslatedTitle()
    {
        m_bundle.reset();
        m_bundle.emplace(TestBundle::copied());
        m_bundle->setTexts({{u"A4"_s, u"A4 Sheet"_s}});
        makePanel(printer());
        QComboBox menu;
        menu.addItem(u"A4 Sheet"_s);
        m_host->page().paper = listed(u"A5"_s);
        m_panel->checkPageSizeChange(
            {QLatin1StringView(kMenuDidSendActionNotification), &menu, {}, true});
        QCOMPARE(m_panel->paperName, u"A5"_s);
    }

    void aPanelWithoutOptionsFollowsThePaperMenuOnceForEachPick()
    {
        m_bundle.reset();
        m_bundle.emplace(TestBundle::copied());
        m_bundle->edit(u"info.json"_s, "\"PMPPDKeysSupported\"", "\"Other\"");
        makePanel(printer());
        QVERIFY(!m_panel->PPDKeys);
        QComboBox menu;
        menu.addItems({u"A4"_s, u"A5"_s});
        postNotificationWhenMenuActs(&menu);
        m_panel->tracing = true;
        for (int i = 0; i < 4; ++i) {
            m_host->forgetCalls();
            QVERIFY(pick(&menu, u"A5"_s));
            QCOMPARE(m_host->calls().size(), 1);
            QVERIFY(pick(&menu, u"A4"_s));
        }
    }

    void anExceptionOfTheHostEndsAllObservations_data()
    {
        QTest::addColumn<QString>("where");
        QTest::addColumn<bool>("standard");
        QTest::newRow("while the page is read") << u"page"_s << true;
        QTest::newRow("while the medium is asked for") << u"medium"_s << true;
        QTest::newRow("while the alert is shown") << u"alert"_s << true;
        QTest::newRow("of no common kind") << u"medium"_s << false;
    }
    void anExceptionOfTheHostEndsAllObservations()
    {
        QFETCH(QString, where);
        QFETCH(bool, standard);
        makePanel(printer());
        m_host->page().paper = listed(u"EnvDL"_s);
        const auto fail = [standard] {
            if (standard)
                throw std::runtime_error("gone");
            throw 42;
        };
        if (where == u"page") {
            m_host->whenPageIsRead = fail;
        } else if (where == u"medium") {
            m_host->whenAsked = fail;
        } else {
            m_host->alerts().expect();
            m_host->alerts().whenShown = [fail](const Alert &) { fail(); };
        }
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not followed any more"_s));
        postPaperChange();
        m_host->whenPageIsRead = nullptr;
        m_host->whenAsked = nullptr;
        m_host->alerts().whenShown = nullptr;
        m_host->forgetCalls();
        m_panel->tracing = true;
        m_host->page().paper = listed(u"B5"_s);
        postPaperChange();
        QVERIFY(m_host->calls().isEmpty());
        QVERIFY2(m_panel->readPageSetup(), "the panel itself still works");
    }

    void aPanelThatIsGoneHearsNothing()
    {
        makePanel(printer());
        m_panel.reset();
        m_host->forgetCalls();
        postPaperChange();
        QVERIFY(m_host->calls().isEmpty());
    }

private:
    void makePanel(const PpdBuilder &ppd)
    {
        m_panel.reset();
        m_host = RecordingHost::forPpd(ppd.text());
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QCOMPARE(m_panel->paperName, u"A4"_s);
        m_host->forgetCalls();
    }
    static void postPaperChange()
    {
        NotificationCenter::defaultCenter().post(
            QLatin1StringView(kPrintDestinationPaperDidChangeNotification), nullptr);
    }

    std::optional<UserPreferences> m_preferences;
    std::optional<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<PrintSettingProbe> m_panel;
};

QTEST_MAIN(PaperTest)
#include "paper_test.moc"
