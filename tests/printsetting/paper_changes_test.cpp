#include <stdexcept>

#include <QTest>

#include "platform/toolkit/MenuActions.h"
#include "tests/printsetting/PaperFixture.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// How the panel hears of a new paper, and what follows from it.
class PaperChangesTest : public PaperFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openForPaper(); }
    void cleanup() { closeAll(); }

    // Following the paper

    void aNewPaperIsFollowedStepByStep()
    {
        makePanel(printerOfMedia());
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
        makePanel(printerOfMedia());
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
        makePanel(printerOfMedia().modelNumber(model));
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
        makePanel(printerOfMedia());
        m_host->refuseEverything();
        m_host->page().paper = listed(u"EnvDL"_s);
        postPaperChange();
        QCOMPARE(m_panel->paperName, u"EnvDL"_s);
    }

    // The host keeps the thick envelopes that were chosen before.
    void aNewPaperExplainsThePlainEnvelopeOnly()
    {
        makePanel(printerOfMedia());
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
        makePanel(printerOfMedia());
        QComboBox menu;
        menu.addItems(items);
        m_host->page().paper = listed(u"A5"_s);
        m_panel->checkPageSizeChange(
            {QLatin1StringView(kMenuDidSendActionNotification), &menu, {}, hasUserInfo});
        QCOMPARE(m_panel->paperName, counts ? u"A5"_s : u"A4"_s);
    }

    void aMenuActWithoutAMenuIsIgnored()
    {
        makePanel(printerOfMedia());
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
        makePanel(printerOfMedia());
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
        makePanel(printerOfMedia());
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
        makePanel(printerOfMedia());
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
        makePanel(printerOfMedia());
        m_panel.reset();
        m_host->forgetCalls();
        postPaperChange();
        QVERIFY(m_host->calls().isEmpty());
    }
};

QTEST_MAIN(PaperChangesTest)
#include "paper_changes_test.moc"
