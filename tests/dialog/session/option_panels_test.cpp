#include <optional>

#include <QComboBox>
#include <QFile>
#include <QTest>

#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/PanelHost.h"
#include "dialog/session/Summary.h"
#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPlugIn.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Options of the sample printer with the panels of the plug-in, loaded as the dialog loads them.
class OptionPanelsTest : public QObject
{
    Q_OBJECT

private:
    std::optional<ScriptedAlertPresenter> m_presenter;
    PDEPlugIn *m_plugIn = nullptr;
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<PanelHost> m_panels;

    void open()
    {
        m_panels.reset();
        m_session = sampleSession();
        m_panels = std::make_unique<PanelHost>(*m_session, m_plugIn, *m_presenter);
    }
    void openSample(const QString &name)
    {
        QFile ppd(sourceFile(u"resources/ppd/%1.ppd"_s.arg(name)));
        QVERIFY(ppd.open(QIODevice::ReadOnly));
        m_panels.reset();
        m_session = sessionFor(ppd.readAll());
        m_panels = std::make_unique<PanelHost>(*m_session, m_plugIn, *m_presenter);
    }
    OptionOutcome apply(const QStringList &options)
    {
        return applyOptions(parseOptions(options), *m_session, m_plugIn->jobValues(), *m_panels);
    }
    QString inJob(const QString &name) const
    {
        QStringList values;
        for (const JobOption &option : jobOptions(*m_session, m_plugIn->jobValues(), {})) {
            if (option.name == name)
                values += option.value;
        }
        return values.join(u'|');
    }
    QString shownMedium()
    {
        const QWidget *view = m_panels->views().constFirst();
        const auto *popUp = view->findChild<QComboBox *>(u"mediaTypePopup"_s);
        return popup::representedObject(popUp, popUp->currentIndex()).toString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_plugIn = &loadedPlugIn();
        QVERIFY(m_plugIn->jobValues());
    }
    void init()
    {
        m_presenter.emplace();
        open();
    }
    void cleanup()
    {
        QCOMPARE(m_presenter->outstanding(), 0);
        m_panels.reset();
        m_session.reset();
    }

    void bothPanelsAreThere()
    {
        QCOMPARE(m_panels->panels().size(), 2);
        QCOMPARE(m_panels->panels().at(0)->panelName(), u"Print Setting"_s);
        QCOMPARE(m_panels->panels().at(1)->panelName(), u"Color Setting"_s);
    }

    void everyChoiceIsMarkedAndReachesTheJob_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<bool>("tellsHowToLoad");
        QTest::addColumn<bool>("asksForTheBackCover");
        const QStringList backCoverMedia{u"Env"_s, u"EnvThin"_s, u"EnvThick"_s, u"Label"_s};
        const auto session = sampleSession();
        for (const ppd_option_t *option : session->options()) {
            const QString keyword = ppdKeyword(option->keyword);
            for (int i = 0; i < option->num_choices; ++i) {
                const QString choice = ppdKeyword(option->choices[i].choice);
                // A postcard's own medium is Japan's; a bare "Custom" has no value.
                if (choice == u"Custom"_s || choice == u"PostCard"_s)
                    continue;
                // Forty-one choices each: the ends and the middle tell as much.
                const bool effect = option->num_choices == 41;
                if (effect && choice != u"-20"_s && choice != u"0"_s && choice != u"20"_s)
                    continue;
                // An envelope paper brings the envelope medium with it.
                const bool envelope = keyword == u"PageSize"_s && choice.startsWith(u"Env"_s);
                const bool medium = keyword == u"QXMediaType"_s && backCoverMedia.contains(choice);
                QTest::newRow(qUtf8Printable(keyword + u'=' + choice))
                    << keyword << choice << envelope << (envelope || medium);
            }
        }
    }
    void everyChoiceIsMarkedAndReachesTheJob()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QFETCH(bool, tellsHowToLoad);
        QFETCH(bool, asksForTheBackCover);
        if (tellsHowToLoad)
            m_presenter->expect();
        const OptionOutcome outcome = apply({keyword + u'=' + choice});
        QVERIFY2(outcome.ok(), qPrintable(outcome.problems.join(u'\n')));
        QCOMPARE(m_presenter->outstanding(), 0);
        QCOMPARE(inJob(keyword), choice);
        if (asksForTheBackCover)
            m_presenter->expect();
        QVERIFY(m_panels->shouldPrint());
        QCOMPARE(m_presenter->outstanding(), 0);
        m_panels->summary();
        QCOMPARE(inJob(keyword), choice);
    }

    void panelOwnedValuesReachTheJob_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("job");
        QTest::newRow("shortest sleep") << u"QXSleepTime=Custom.1"_s << u"Custom.1"_s;
        QTest::newRow("longest sleep") << u"QXSleepTime=Custom.99"_s << u"Custom.99"_s;
        QTest::newRow("sleep in the other form") << u"QXSleepTime={Time=12}"_s << u"Custom.12"_s;
        QTest::newRow("automatic sleep") << u"QXSleepTime=Default"_s << u"Default"_s;
        QTest::newRow("lightest") << u"QXDensityAdjustment=-6"_s << u"Custom.-6"_s;
        QTest::newRow("darkest") << u"QXDensityAdjustment=Custom.6"_s << u"Custom.6"_s;
        QTest::newRow("the printer's own density") << u"QXDensityAdjustment=0"_s << u"0"_s;
        QTest::newRow("an effect") << u"QXBrightness=-20"_s << u"-20"_s;
    }
    void panelOwnedValuesReachTheJob()
    {
        QFETCH(QString, option);
        QFETCH(QString, job);
        const OptionOutcome outcome = apply({option});
        QVERIFY2(outcome.ok(), qPrintable(outcome.problems.join(u'\n')));
        QCOMPARE(inJob(option.section(u'=', 0, 0)), job);
        QVERIFY(m_panels->shouldPrint());
        QCOMPARE(inJob(option.section(u'=', 0, 0)), job);
    }

    void panelOwnedValuesOutOfRangeNameTheRange_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("range");
        QTest::newRow("no sleep") << u"QXSleepTime=Custom.0"_s << u"Custom.1 … Custom.99"_s;
        QTest::newRow("long sleep") << u"QXSleepTime=Custom.100"_s << u"Custom.1 … Custom.99"_s;
        QTest::newRow("too light") << u"QXDensityAdjustment=-7"_s << u"-6 … 6"_s;
        QTest::newRow("too dark") << u"QXDensityAdjustment=7"_s << u"-6 … 6"_s;
        QTest::newRow("too bright") << u"QXBrightness=21"_s << u"-20 … 20"_s;
        QTest::newRow("no number") << u"QXBrightness=x"_s << u"-20 … 20"_s;
    }
    void panelOwnedValuesOutOfRangeNameTheRange()
    {
        QFETCH(QString, option);
        QFETCH(QString, range);
        m_panels->bringUp();
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply({option, u"QXMediaType=Thick"_s});
        QCOMPARE(outcome.problems.size(), 1);
        QVERIFY2(outcome.problems.constFirst().startsWith(option) &&
                     outcome.problems.constFirst().contains(range),
                 qPrintable(outcome.problems.constFirst()));
        QCOMPARE(m_session->snapshot(), before);
    }

    // An envelope makes the panel propose its medium, which here cannot be printed on both sides.
    void aMediumThatWasNamedCountsMoreThanTheOneThatAPaperBrings_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QString>("medium");  // null where nothing is taken
        QTest::addColumn<QString>("problem"); // null where everything is
        QTest::newRow("named") << u"PageSize=EnvDL QXMediaType=Thick Duplex=DuplexNoTumble"_s
                               << u"Thick"_s << QString();
        QTest::newRow("named first") << u"Duplex=DuplexNoTumble QXMediaType=Thick PageSize=EnvDL"_s
                                     << u"Thick"_s << QString();
        QTest::newRow("not named") << u"PageSize=EnvDL Duplex=DuplexNoTumble"_s << QString()
                                   << u"QXMediaType=Env: this cannot be combined with "
                                      "Duplex=DuplexNoTumble."_s;
        QTest::newRow("named, and itself in the way")
            << u"PageSize=EnvDL QXMediaType=Thicker Duplex=DuplexNoTumble"_s << QString()
            << u"QXMediaType=Thicker: this cannot be combined with Duplex=DuplexNoTumble."_s;
        QTest::newRow("nothing in the way") << u"PageSize=EnvDL"_s << u"Env"_s << QString();
    }
    void aMediumThatWasNamedCountsMoreThanTheOneThatAPaperBrings()
    {
        QFETCH(QString, options);
        QFETCH(QString, medium);
        QFETCH(QString, problem);
        QFile ppd(samplePpdPath());
        QVERIFY(ppd.open(QIODevice::ReadOnly));
        m_panels.reset();
        m_session =
            sessionFor(ppd.readAll() + "*UIConstraints: *QXMediaType Env *Duplex DuplexNoTumble\n"
                                       "*UIConstraints: *Duplex DuplexNoTumble *QXMediaType Env\n");
        m_panels = std::make_unique<PanelHost>(*m_session, m_plugIn, *m_presenter);
        if (medium == u"Env"_s)
            m_presenter->expect(); // how envelopes are loaded
        const OptionOutcome outcome = apply({options});
        if (problem.isNull())
            QCOMPARE(outcome.problems, QStringList());
        else
            QVERIFY2(outcome.problems.contains(problem), qPrintable(outcome.problems.join(u' ')));
        QCOMPARE(inJob(u"QXMediaType"_s), medium.isNull() ? u"Plain"_s : medium);
    }

    // How envelopes are loaded is nobody's question where another medium was named: a queue would
    // hold the job for it.
    void aMediumThatWasNamedBesideAnEnvelopeHasNoInstructionsForAnother()
    {
        const OptionOutcome outcome =
            apply({u"PageSize=EnvDL QXMediaType=Thick Duplex=DuplexNoTumble"_s});
        QCOMPARE(outcome.problems, QStringList());
        QCOMPARE(inJob(u"PageSize"_s), u"EnvDL"_s);
        QCOMPARE(inJob(u"QXMediaType"_s), u"Thick"_s);
        QCOMPARE(m_presenter->shown().size(), 0);

        // Neither has it when the envelope comes back because nothing of a later set was taken.
        QVERIFY(!apply({u"PageSize=A4 QXMediaType=PostCard"_s}).ok());
        QCOMPARE(inJob(u"QXMediaType"_s), u"Thick"_s);
        QCOMPARE(m_presenter->shown().size(), 0);
    }

    void anEnvelopeThatWasNamedBesideItsPaperHasItsInstructions()
    {
        m_presenter->expect();
        QCOMPARE(apply({u"PageSize=EnvDL QXMediaType=Env"_s}).problems, QStringList());
        QCOMPARE(inJob(u"QXMediaType"_s), u"Env"_s);
    }

    void aDensityIsNeverMarked()
    {
        QVERIFY(apply({u"QXDensityAdjustment=3"_s}).ok());
        QCOMPARE(m_session->markedChoice(u"QXDensityAdjustment"_s), u"0"_s);
        QCOMPARE(inJob(u"QXDensityAdjustment"_s), u"Custom.3"_s);
    }

    void aManualSleepTimeIsMarkedCustom()
    {
        QVERIFY(apply({u"QXSleepTime=Custom.12"_s}).ok());
        QCOMPARE(m_session->markedChoice(u"QXSleepTime"_s), u"Custom"_s);
        QVERIFY(apply({u"QXSleepTime=Default"_s}).ok());
        QCOMPARE(m_session->markedChoice(u"QXSleepTime"_s), u"Default"_s);
        QCOMPARE(inJob(u"QXSleepTime"_s), u"Default"_s);
    }

    void anEffectGoesIntoTheSetOfTheModeThatComesWithIt()
    {
        QVERIFY(apply({u"QXRed=5"_s}).ok());
        QVERIFY(apply({u"QXColorMatching=Vivid QXRed=9"_s}).ok());
        QCOMPARE(inJob(u"QXRed"_s), u"9"_s);
        QCOMPARE(inJob(u"QXColorMatching"_s), u"Vivid"_s);
    }

    void aPostcardMediumOutsideJapanIsAnsweredWithWhatItBecame()
    {
        m_panels->bringUp();
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply({u"QXMediaType=PostCard"_s, u"QXSkipBlank=ON"_s});
        QCOMPARE(outcome.problems.size(), 1);
        QVERIFY2(outcome.problems.constFirst().startsWith(u"QXMediaType=PostCard: "_s) &&
                     outcome.problems.constFirst().contains(u"became "_s),
                 qPrintable(outcome.problems.constFirst()));
        QVERIFY(!outcome.problems.constFirst().contains(u"became PostCard"_s));
        const SessionSnapshot after = m_session->snapshot();
        QCOMPARE(after.marks, before.marks);
        QCOMPARE(after.entries.keys(), before.entries.keys());
        QCOMPARE(after.entries, before.entries);
        QCOMPARE(after, before);
    }

    void aPostcardMediumIsTakenInJapan()
    {
        const UserLanguage japanese(u"ja"_s);
        open();
        const OptionOutcome outcome = apply({u"QXMediaType=PostCard"_s});
        QVERIFY2(outcome.ok(), qPrintable(outcome.problems.join(u'\n')));
        QCOMPARE(inJob(u"QXMediaType"_s), u"PostCard"_s);
    }

    void aRefusedSetLeavesTheJobAsItWas()
    {
        QVERIFY(apply({u"QXSleepTime=Custom.12 QXDensityAdjustment=3 QXRed=5"_s}).ok());
        const SessionSnapshot before = m_session->snapshot();
        const auto job = jobOptions(*m_session, m_plugIn->jobValues(), {});
        QVERIFY(!apply({u"QXSleepTime=Default QXDensityAdjustment=0 QXRed=0 QXMediaType=Glossy "
                        "Duplex=DuplexTumble"_s})
                     .ok());
        QCOMPARE(m_session->snapshot(), before);
        QCOMPARE(jobOptions(*m_session, m_plugIn->jobValues(), {}), job);
    }

    // A panel proposes the medium of an envelope again when it hears of one, and when it restores
    // beside a choice of its own that is not marked.
    void theMediumThatAStateBringsBackIsTheOneThatIsShown_data()
    {
        QTest::addColumn<QString>("later"); // what was set after it
        QTest::newRow("from another paper") << u"PageSize=A4"_s;
        QTest::newRow("from another envelope") << u"PageSize=EnvC5"_s;
        QTest::newRow("from another medium") << u"QXMediaType=Thick"_s;
        QTest::newRow("from the medium of the envelope") << u"QXMediaType=Env"_s;
    }
    void theMediumThatAStateBringsBackIsTheOneThatIsShown()
    {
        QFETCH(QString, later);
        QVERIFY(m_panels->visit(0));
        QVERIFY(apply({u"PageSize=EnvDL QXMediaType=Plain"_s}).ok());
        const SessionSnapshot state = m_session->snapshot();
        QCOMPARE(shownMedium(), u"Plain"_s);
        if (later.contains(u"PageSize=Env"_s))
            m_presenter->expect(); // how envelopes are loaded
        QVERIFY(apply({later}).ok());
        m_panels->restoreTo(state);
        QCOMPARE(m_session->snapshot(), state);
        QCOMPARE(shownMedium(), u"Plain"_s);
        // Nor is it given up when the panel is asked again.
        m_panels->restoreAll();
        QCOMPARE(inJob(u"QXMediaType"_s), u"Plain"_s);
    }

    // What a panel makes of a medium may be another one, and what was asked for is refused with it.
    void aRefusedSetLeavesWhatIsShownAsItWas_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("another paper") << u"PageSize=A4 QXMediaType=PostCard"_s;
        QTest::newRow("a medium that becomes another one") << u"QXMediaType=HagakiUra"_s;
    }
    void aRefusedSetLeavesWhatIsShownAsItWas()
    {
        QFETCH(QString, options);
        openSample(u"corvana-cl2"_s);
        QVERIFY(m_panels->visit(0));
        m_presenter->expect(); // how envelopes are loaded
        QVERIFY(apply({u"PageSize=EnvYou4"_s}).ok());
        QVERIFY(apply({u"QXMediaType=Plain"_s}).ok());
        const SessionSnapshot before = m_session->snapshot();
        QVERIFY(!apply({options}).ok());
        QCOMPARE(m_session->snapshot(), before);
        QCOMPARE(shownMedium(), u"Plain"_s);
    }

    // Beside the mode these do not count; the printer is told of them all the same. Effects that
    // are not in force are in no job, whatever was set.
    void whatTheColorPanelHasNoLineForIsToldAsTheJobHasIt_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QStringList>("told");
        const QString black = u"QXMonoColor=Mono"_s;
        const QString application = u"AP_ColorMatchingMode=AP_ApplicationColorMatching"_s;
        const QStringList all{u"QXColorMatching=Vivid"_s, u"QXEnhanceBlkPrt=ON"_s,
                              u"QXSlowDrying=ON"_s};
        QTest::newRow("black and white, none")
            << black << QStringList{u"QXColorMatching=None"_s} << QStringList{u"None"_s};
        QTest::newRow("black and white, the default") << black << QStringList{} << QStringList{};
        QTest::newRow("black and white, others that have their lines")
            << black << all << QStringList{u"Vivid"_s};
        QTest::newRow("the application matches colors")
            << application << all << QStringList{u"On"_s, u"Vivid"_s, u"On"_s};
        QTest::newRow("effects in color, then black and white")
            << black << QStringList{u"QXRed=5"_s, u"QXBrightness=3"_s} << QStringList{};
        QTest::newRow("effects, then the application matches colors")
            << application << QStringList{u"QXRed=5"_s, u"QXBrightness=3"_s} << QStringList{};
    }
    void whatTheColorPanelHasNoLineForIsToldAsTheJobHasIt()
    {
        QFETCH(QString, mode);
        QFETCH(QStringList, options);
        QFETCH(QStringList, told);
        m_panels->bringUp();
        QVERIFY(options.isEmpty() || apply(options).ok());
        QVERIFY(apply({mode}).ok());
        const QList<SummaryLine> lines = sessionSummary(*m_session, *m_panels, 1, {});
        qsizetype group = 0;
        while (group < lines.size() && !lines.at(group).isHeading)
            ++group;
        QStringList values;
        for (const SummaryLine &line : lines.mid(group + 1)) {
            values += line.value;
            const QString value = inJob(line.keyword);
            const ppd_option_t *option = ppdOption(m_session->ppd(), line.keyword);
            QVERIFY(option && value != ppdKeyword(option->defchoice));
            QCOMPARE(ppdText(ppdChoice(ppdOption(m_session->ppd(), line.keyword), value)->text),
                     line.value);
        }
        QCOMPARE(values, told);
    }

    void theJobIsTheSameWhetherPagesWereVisitedOrNot()
    {
        const QStringList options{
            u"QXSleepTime=Custom.12 QXDensityAdjustment=-2 QXBrightness=3 "
            "QXMediaType=Thick QXResolution=1200dpi "
            "QXColorMatching=Vivid QXGray=ON QXImproveOutput=QXFixIntensity"_s};
        const OptionOutcome unvisitedOutcome = apply(options);
        QVERIFY2(unvisitedOutcome.ok(), qPrintable(unvisitedOutcome.problems.join(u'\n')));
        QVERIFY(m_panels->shouldPrint());
        const auto unvisited = jobOptions(*m_session, m_plugIn->jobValues(), {});

        open();
        QVERIFY(apply(options).ok());
        for (const int page : {0, 1, -1, 1, 0, -1})
            m_panels->visit(page);
        QVERIFY(m_panels->shouldPrint());
        QCOMPARE(jobOptions(*m_session, m_plugIn->jobValues(), {}), unvisited);

        open();
        m_panels->visit(1);
        QVERIFY(apply(options).ok());
        m_panels->visit(0);
        QVERIFY(m_panels->shouldPrint());
        QCOMPARE(jobOptions(*m_session, m_plugIn->jobValues(), {}), unvisited);
    }

    void theJobOfAnUntouchedSessionIsThatOfItsDefaults()
    {
        m_panels->bringUp();
        QVERIFY(m_panels->shouldPrint());
        for (const JobOption &option : jobOptions(*m_session, m_plugIn->jobValues(), {})) {
            const ppd_option_t *found = ppdOption(m_session->ppd(), option.name);
            QVERIFY2(found, qPrintable(option.name));
            QCOMPARE(option.name + u'=' + option.value,
                     option.name + u'=' + ppdKeyword(found->defchoice));
        }
    }

    // The panel writes it itself, and no choice of the PPD is marked.
    void aValueOfThePanelsThatThePrinterWouldNeverHearOfIsRefused()
    {
        QByteArray text = samplePpd(5);
        const QByteArray inJob = "AnySetup *QXSaturation\n";
        QVERIFY(text.contains(inJob));
        text.replace(inJob, "JCLSetup *QXSaturation\n"); // and the PPD has no job language
        m_panels.reset();
        m_session = sessionFor(text);
        m_panels = std::make_unique<PanelHost>(*m_session, m_plugIn, *m_presenter);
        const OptionOutcome outcome = apply({u"QXSaturation=3"_s});
        QCOMPARE(outcome.problems.size(), 1);
        QVERIFY2(outcome.problems.constFirst().startsWith(u"QXSaturation=3"_s),
                 qPrintable(outcome.problems.constFirst()));
        QVERIFY(apply({u"QXBrightness=3"_s}).ok());
    }
};

QTEST_MAIN(OptionPanelsTest)

#include "option_panels_test.moc"
