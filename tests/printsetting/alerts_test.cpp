#include <QFile>
#include <QProcess>
#include <QTest>

#include "panel/OptionKeywords.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/ViewFrame.h"
#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Texts that tell the pieces apart, whatever the shipped ones say. Signs that formats know must
// come through as they are.
const QMap<QString, QString> kTexts{
    {u"OK"_s, u"Good"_s},
    {u"Cancel"_s, u"Back"_s},
    {u"DLG_TITLE_BACKCOVER"_s, u"Open it"_s},
    {u"STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS"_s, u"[R %1]"_s},
    {u"STR_MES_BACKCOVER_OPEN"_s, u"[O %@]"_s},
    {u"STR_MES_BACKCOVER_PULLDOWN_GRAY"_s, u"[G]"_s},
    {u"STR_MES_BACKCOVER_NOTE_USEMP"_s, u"[U]"_s},
    {u"STR_MES_BACKCOVER_STARTPRINT"_s, u"[S]"_s},
    {u"DLG_BACKCOVER_INSTRUCTION_NOTE"_s, u"[E]"_s},
    {u"STR_MES_BACKCOVER_NOTE_DUPLEX"_s, u"[D]"_s},
    {u"STR_MES_TRAY_REQUEST_INSTRUCTIONS"_s, u"[request %2]"_s},
    {u"STR_MES_TRAY_RECOMMEND_INSTRUCTIONS"_s, u"[recommend %3]"_s},
    {u"STR_MES_TRAY_SELECT_MP"_s, u"[select %1]"_s},
    {u"STR_MES_TRAY_USEMP"_s, u"[use]"_s},
    {u"STR_MES_TRAY_USEMP_ONESHEET"_s, u"[use one]"_s},
    {u"Unsupported Paper Title"_s, u"No such paper"_s},
};

const AlertAnswer kOk{0, false};
const AlertAnswer kCancel{1, false};
const AlertAnswer kSilenced{0, true};

} // namespace

/// The alerts that say how to load special media: when they are shown, what they say, and what
/// their answers do.
class AlertsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_preferences.emplace();
        m_bundle.emplace(TestBundle::copied());
        m_bundle->setTexts(kTexts);
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

    // At print time

    void theBackCoverAlertIsWordedForTheMedium_data()
    {
        QTest::addColumn<QString>("medium");
        QTest::addColumn<QString>("oneSided");
        QTest::addColumn<QString>("twoSided");
        QTest::addColumn<QString>("picture");
        const QString envelope = u"[R %1]\n\n - [O %@]\n - [G]"_s;
        for (const char *medium : {"Env", "EnvThin", "EnvThick"}) {
            QTest::newRow(medium) << QString::fromLatin1(medium) << envelope
                                  << envelope + u"\n\n[E]"_s << u"Backcover_env"_s;
        }
        QTest::newRow("Label") << u"Label"_s << u"[R %1]\n\n - [O %@]\n\n[U]"_s
                               << u"[R %1]\n\n - [O %@]\n\n[U]\n\n[D]"_s << u"Backcover_label"_s;
        QTest::newRow("PostCard") << u"PostCard"_s << u"[R %1]\n\n - [O %@]\n - [G]\n - [S]"_s
                                  << u"[R %1]\n\n - [O %@]\n - [G]\n - [S]\n\n[D]"_s
                                  << u"Backcover_label"_s;
    }
    void theBackCoverAlertIsWordedForTheMedium()
    {
        QFETCH(QString, medium);
        QFETCH(QString, oneSided);
        QFETCH(QString, twoSided);
        QFETCH(QString, picture);
        const QImage image =
            readPicture(m_bundle->bundle()->pathForResource(picture, u"tiff"_s), 1.0);
        QVERIFY(!image.isNull());
        for (const bool twice : {false, true}) {
            makePanel(5, medium);
            if (twice)
                m_host->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
            m_host->alerts().expect(kOk);
            QVERIFY(m_panel->shouldPrint());
            QCOMPARE(m_host->alerts().shown().size(), 1);
            const ShownAlert &shown = m_host->alerts().shown().first();
            QCOMPARE(shown.alert.messageText, u"Open it"_s);
            QCOMPARE(shown.alert.informativeText, twice ? twoSided : oneSided);
            QCOMPARE(shown.alert.buttons, (QStringList{u"Good"_s, u"Back"_s}));
            QVERIFY(shown.alert.style == Alert::Style::Informational);
            QVERIFY(!shown.alert.showsSuppressionButton);
            QVERIFY2(m_panel->m_panelView, "the view was loaded for its illustration");
            QCOMPARE(shown.parent.data(), m_panel->m_panelView.data());
            QVERIFY(m_panel->accessoryView);
            QCOMPARE(shown.alert.accessoryView, m_panel->accessoryView.data());
            QCOMPARE(m_panel->accessoryView->alertImage(), image);
            QCOMPARE(viewFrame(m_panel->accessoryView).width,
                     image.deviceIndependentSize().width());
            QCOMPARE(viewFrame(m_panel->accessoryView).height,
                     image.deviceIndependentSize().height());
        }
    }

    void otherMediaPrintWithoutAQuestion_data()
    {
        QTest::addColumn<QVariant>("medium");
        for (const char *medium :
             {"Plain", "Thick", "Glossy", "BOND", "EnvOther", "Postcard", "label", ""})
            QTest::newRow(medium) << QVariant(QString::fromLatin1(medium));
        QTest::newRow("nothing") << QVariant();
        QTest::newRow("a list") << QVariant(QStringList{u"Env"_s, u"Env"_s});
    }
    void otherMediaPrintWithoutAQuestion()
    {
        QFETCH(QVariant, medium);
        makePanel(5, QString());
        m_host->mark(u"Duplex"_s, u"DuplexNoTumble"_s);
        m_panel->m_outputBin.insert(u"QXMediaType"_s, medium);
        QVERIFY(m_panel->shouldPrint());
        QCOMPARE(m_host->marked(u"Duplex"_s), u"DuplexNoTumble"_s);
    }

    void aTwoSidedJobIsOneSidedBeforeTheQuestionAndAfterEitherAnswer_data()
    {
        QTest::addColumn<bool>("cancels");
        QTest::newRow("printed") << false;
        QTest::newRow("cancelled") << true;
    }
    void aTwoSidedJobIsOneSidedBeforeTheQuestionAndAfterEitherAnswer()
    {
        QFETCH(bool, cancels);
        makePanel(5, u"EnvThin"_s);
        m_host->mark(u"Duplex"_s, u"DuplexTumble"_s);
        m_host->alerts().expect(cancels ? kCancel : kOk);
        m_host->alerts().whenShown = [this](const Alert &) { m_host->note(u"alert"_s); };
        m_host->forgetCalls();
        QCOMPARE(m_panel->shouldPrint(), !cancels);
        const QList<HostCall> expected{{u"PMSetDuplex"_s, {u"1"_s}}, {u"alert"_s, {}}};
        QCOMPARE(m_host->calls(), expected);
        QCOMPARE(m_host->marked(u"Duplex"_s), u"None"_s);
    }

    void aOneSidedJobIsLeftAlone()
    {
        makePanel(5, u"Label"_s);
        m_host->alerts().expect(kCancel);
        QVERIFY(!m_panel->shouldPrint());
        QVERIFY(m_host->calls().isEmpty());
    }

    void theBackCoverAlertIsShownAtEveryPrint()
    {
        makePanel(5, u"Env"_s);
        for (int i = 1; i <= 3; ++i) {
            m_host->alerts().expect(kSilenced); // no answer can silence it
            QVERIFY(m_panel->shouldPrint());
            QCOMPARE(m_host->alerts().shown().size(), i);
        }
    }

    void aPieceWithoutTranslationIsLeftOut()
    {
        QMap<QString, QString> texts = kTexts;
        texts.remove(u"STR_MES_BACKCOVER_OPEN"_s);
        texts.remove(u"DLG_TITLE_BACKCOVER"_s);
        m_bundle.reset();
        m_bundle.emplace(TestBundle::copied());
        m_bundle->setTexts(texts);
        makePanel(5, u"Env"_s);
        m_host->alerts().expect(kOk);
        QVERIFY(m_panel->shouldPrint());
        const Alert &alert = m_host->alerts().shown().first().alert;
        QCOMPARE(alert.informativeText, u"[R %1]\n\n - \n - [G]"_s);
        QCOMPARE(alert.messageText, u"DLG_TITLE_BACKCOVER"_s); // a title cannot be left out
    }

    void aFaxIsSentWithoutAnyQuestion()
    {
        makePanel(5, u"Env"_s);
        m_host->mark(u"QXOutput"_s, u"FAX"_s);
        m_host->mark(u"Duplex"_s, u"DuplexTumble"_s);
        m_panel->paperName = kUnsupportedPaper;
        QVERIFY(m_panel->shouldPrint());
        QCOMPARE(m_host->marked(u"Duplex"_s), u"DuplexTumble"_s);
    }

    void anUnsupportedPaperIsRefusedBeforeAnyOtherQuestion()
    {
        makePanel(5, u"Env"_s);
        m_host->mark(u"Duplex"_s, u"DuplexTumble"_s);
        m_panel->paperName = kUnsupportedPaper;
        m_host->alerts().expect(kOk);
        QVERIFY(!m_panel->shouldPrint());
        QCOMPARE(m_host->alerts().shown().first().alert.messageText, u"No such paper"_s);
        QCOMPARE(m_host->marked(u"Duplex"_s), u"DuplexTumble"_s);
    }

    void aHostThatShowsNoAlertsPrintsOnOneSide()
    {
        makePanel(5, u"Env"_s);
        m_host->mark(u"Duplex"_s, u"DuplexTumble"_s);
        m_host->lack(PDECallbackOperation::alertPresenter);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"can show no alert"_s));
        QVERIFY(m_panel->shouldPrint());
        QCOMPARE(m_host->marked(u"Duplex"_s), u"None"_s);
    }

    void aJobWithoutPrintSettingsIsAskedAboutAllTheSame()
    {
        makePanel(5, u"Env"_s);
        m_host->mark(u"Duplex"_s, u"DuplexTumble"_s);
        m_host->answerNoPrintSettings();
        m_host->alerts().expect(kCancel);
        QVERIFY(!m_panel->shouldPrint());
    }

    void anAlertWithoutItsPictureIsShownAllTheSame_data()
    {
        QTest::addColumn<QString>("lack");
        QTest::addColumn<QString>("logged");
        QTest::newRow("no file") << u"missing"_s << u"no illustration"_s;
        QTest::newRow("no picture") << u"broken"_s << u"is no picture"_s;
        QTest::newRow("no view for it") << u"view"_s << QString();
    }
    void anAlertWithoutItsPictureIsShownAllTheSame()
    {
        QFETCH(QString, lack);
        QFETCH(QString, logged);
        if (lack == u"missing")
            m_bundle->remove(u"pictures/Backcover_env.tiff"_s);
        else if (lack == u"broken")
            m_bundle->addBrokenPicture(u"Backcover_env"_s);
        else
            m_bundle->edit(u"interface/QXLaserPrintSetting.ui"_s, "name=\"accessoryView\"",
                           "name=\"otherView\"");
        makePanel(5, u"Env"_s);
        m_host->alerts().expect(kCancel);
        if (!logged.isNull())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(logged));
        QVERIFY(!m_panel->shouldPrint());
        QVERIFY(!m_host->alerts().shown().first().alert.accessoryView);
        QCOMPARE(m_host->alerts().shown().first().alert.informativeText,
                 u"[R %1]\n\n - [O %@]\n - [G]"_s);
    }

    void eachAlertShowsItsOwnPicture()
    {
        makePanel(5, u"Env"_s);
        QList<QImage> shown;
        m_host->alerts().whenShown = [&](const Alert &) {
            shown += m_panel->accessoryView->alertImage();
        };
        for (const QString &medium : {u"Env"_s, u"Label"_s, u"Env"_s}) {
            m_panel->m_outputBin.insert(u"QXMediaType"_s, medium);
            m_host->alerts().expect(kOk);
            QVERIFY(m_panel->shouldPrint());
        }
        QCOMPARE(shown.size(), 3);
        QVERIFY(shown.at(0) != shown.at(1));
        QCOMPARE(shown.at(2), shown.at(0));
    }

    // When a medium is chosen

    void choosingAMediumSaysHowToLoadIt_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<int>("model");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("canBeSilenced");
        QTest::addColumn<QString>("text");
        const QString usual = u"[recommend %3]\n\n - [select %1]\n - [use]"_s;
        for (const char *title : {"Envelopes", "Thick Envelopes", "Thin Envelopes", "Thick Paper",
                                  "Thicker Paper", "Bond Paper"})
            QTest::newRow(title) << QString::fromLatin1(title) << 5 << true << true << usual;
        QTest::newRow("Glossy Paper") << u"Glossy Paper"_s << 5 << true << true
                                      << u"[recommend %3]\n\n - [select %1]\n - [use one]"_s;
        QTest::newRow("Labels") << u"Labels"_s << 5 << true << false
                                << u"[request %2]\n\n - [select %1]\n - [use]"_s;
        QTest::newRow("a later model") << u"Thick Paper"_s << 6 << true << true << usual;
        QTest::newRow("Glossy Paper, a model without the front feed")
            << u"Glossy Paper"_s << 4 << false << true << QString();
        QTest::newRow("Labels, a model without the front feed")
            << u"Labels"_s << 4 << false << false << QString();
        QTest::newRow("Thin Paper") << u"Thin Paper"_s << 5 << false << true << QString();
        QTest::newRow("Plain Paper") << u"Plain Paper"_s << 5 << false << true << QString();
    }
    void choosingAMediumSaysHowToLoadIt()
    {
        QFETCH(QString, title);
        QFETCH(int, model);
        QFETCH(bool, shown);
        QFETCH(bool, canBeSilenced);
        QFETCH(QString, text);
        makePanel(model, QString());
        showPanel();
        if (shown)
            m_host->alerts().expect(kOk);
        QVERIFY(pick(m_panel->mediaTypePopup, title));
        QCOMPARE(m_host->alerts().shown().size(), shown ? 1 : 0);
        if (!shown)
            return;
        const ShownAlert &found = m_host->alerts().shown().first();
        QCOMPARE(found.alert.messageText, title);
        QCOMPARE(found.alert.informativeText, text);
        QCOMPARE(found.alert.buttons, QStringList{u"Good"_s});
        QVERIFY(found.alert.style == Alert::Style::Informational);
        QCOMPARE(found.alert.showsSuppressionButton, canBeSilenced);
        QCOMPARE(found.alert.accessoryView, m_panel->accessoryView.data());
        QCOMPARE(
            m_panel->accessoryView->alertImage(),
            readPicture(m_bundle->bundle()->pathForResource(u"front_paper"_s, u"tiff"_s), 1.0));
    }

    void aMediumThatMerelyBeginsAsAnEnvelopeIsNotExplained()
    {
        m_host = RecordingHost::forPpd(PpdBuilder()
                                           .modelNumber(5)
                                           .option("QXMediaType", "Media Type", "Plain",
                                                   {{"Plain", "Plain"}, {"EnvOther", "Other"}})
                                           .text());
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        showPanel();
        QVERIFY(pick(m_panel->mediaTypePopup, u"Other"_s));
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), u"EnvOther"_s);
        QVERIFY(m_host->alerts().shown().isEmpty());
    }

    void aSilencedAlertIsNotShownAgain()
    {
        makePanel(5, QString());
        showPanel();
        m_host->alerts().expect(kSilenced);
        QVERIFY(pick(m_panel->mediaTypePopup, u"Glossy Paper"_s));
        QCOMPARE(record(u"FrontPaper_Glossy"_s), QVariant(u"false"_s));
        QVERIFY(pick(m_panel->mediaTypePopup, u"Plain Paper"_s));
        QVERIFY(pick(m_panel->mediaTypePopup, u"Glossy Paper"_s));
        QCOMPARE(m_host->alerts().shown().size(), 1);
        m_host->alerts().expect(kOk); // silenced for its own medium alone
        QVERIFY(pick(m_panel->mediaTypePopup, u"Thick Paper"_s));
        QCOMPARE(record(u"FrontPaper_Thick"_s), QVariant(u"true"_s));
        // Another dialog remembers it.
        makePanel(5, QString());
        showPanel();
        QVERIFY(pick(m_panel->mediaTypePopup, u"Glossy Paper"_s));
    }

    void anAlertThatIsNotSilencedComesAgain()
    {
        makePanel(5, QString());
        showPanel();
        for (int i = 0; i < 2; ++i) {
            m_host->alerts().expect(kOk);
            QVERIFY(pick(m_panel->mediaTypePopup, u"Labels"_s));
            QCOMPARE(record(u"FrontPaper_Label"_s), QVariant(u"true"_s));
            QVERIFY(pick(m_panel->mediaTypePopup, u"Plain Paper"_s));
        }
        QCOMPARE(m_host->alerts().shown().size(), 2);
    }

    void recordsLeaveOtherPreferencesAlone()
    {
        const QString domain = m_bundle->bundle()->identifier();
        QVERIFY(UserDefaults::standardUserDefaults().setPersistentDomain_forName(
            {{u"Other"_s, u"kept"_s}, {u"FrontPaper_Thick"_s, false}}, domain));
        makePanel(5, QString());
        showPanel();
        QVERIFY(pick(m_panel->mediaTypePopup, u"Thick Paper"_s));
        m_host->alerts().expect(kSilenced);
        QVERIFY(pick(m_panel->mediaTypePopup, u"Glossy Paper"_s));
        QCOMPARE(record(u"Other"_s), QVariant(u"kept"_s));
        QCOMPARE(record(u"FrontPaper_Thick"_s), QVariant(u"false"_s));
        QCOMPARE(record(u"FrontPaper_Glossy"_s), QVariant(u"false"_s));
    }

    void preferencesThatCannotBeWrittenLetTheAlertComeAgain()
    {
        m_preferences->makeUnwritable();
        makePanel(5, QString());
        showPanel();
        for (int i = 0; i < 2; ++i) {
            m_host->alerts().expect(kSilenced);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cannot be written"_s));
            QVERIFY(pick(m_panel->mediaTypePopup, u"Glossy Paper"_s));
            QVERIFY(pick(m_panel->mediaTypePopup, u"Plain Paper"_s));
        }
        QCOMPARE(m_host->alerts().shown().size(), 2);
    }

    void aRefusedMediumIsNotExplained()
    {
        makePanel(5, QString());
        showPanel();
        m_host->refuse(u"QXMediaType"_s, u"Thick"_s);
        QVERIFY(pick(m_panel->mediaTypePopup, u"Thick Paper"_s));
        QCOMPARE(m_panel->mediaTypePopup->currentText(), u"Plain Paper"_s);
    }

    void theAlertIsTitledByTheMarkedChoice()
    {
        makePanel(5, u"Label"_s);
        for (const QString &marked : {u"Thick"_s, QString()}) {
            m_host->mark(u"QXMediaType"_s, u"Thick"_s);
            if (marked.isNull())
                m_host->unmark(u"QXMediaType"_s);
            m_host->alerts().expect(kOk);
            m_panel->showAlertWhenSelectMediaKey_withAlertKey(u"QXMediaType"_s, u"Any"_s);
            const Alert &alert = m_host->alerts().shown().last().alert;
            // Without a mark the option itself is all that there is to name.
            QCOMPARE(alert.messageText, marked.isNull() ? u"Media Type"_s : u"Thick Paper"_s);
            QVERIFY2(alert.informativeText.startsWith(u"[request"), "worded by what is stored");
        }
    }

    void anAlertOfAnOptionThatThePrinterLacksHasNoTitle()
    {
        makePanel(5, QString());
        m_host->alerts().expect(kOk);
        m_panel->showAlertWhenSelectMediaKey_withAlertKey(u"NoOption"_s, u"Any"_s);
        QCOMPARE(m_host->alerts().shown().first().alert.messageText, QString());
        QCOMPARE(record(u"Any"_s), QVariant(u"true"_s));
    }

    void theFurtherChangesOfAPickAreMadeWhenItsAlertIsShown()
    {
        makePanel(5, QString());
        showPanel();
        m_host->forgetCalls();
        m_panel->tracing = true;
        m_host->alerts().expect(kOk);
        m_host->alerts().whenShown = [this](const Alert &) { m_host->note(u"alert"_s); };
        QVERIFY(pick(m_panel->mediaTypePopup, u"Bond Paper"_s));
        // Whoever looks at the job while the alert waits sees all of it.
        QCOMPARE(m_host->calls().last(), (HostCall{u"alert"_s, {}}));
        const auto at = [this](const QString &operation) {
            return m_host->calls().indexOf(HostCall{operation, {}});
        };
        QVERIFY(at(u"saveAllValues"_s) >= 0 && at(u"saveAllValues"_s) < at(u"alert"_s));
    }

    // The screen

    void onlyAScreenOfTwoPixelsAPointIsFine()
    {
        makePanel(5, QString());
        QCOMPARE(m_panel->isRetinaScreen(), qEnvironmentVariable("QT_SCALE_FACTOR") == u"2");
    }
    void screensOfOtherScalesAreNotFine()
    {
        for (const QString &scale : {u"1"_s, u"1.5"_s, u"2"_s, u"3"_s}) {
            QProcess self;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(u"QT_SCALE_FACTOR"_s, scale);
            self.setProcessEnvironment(environment);
            self.start(QCoreApplication::applicationFilePath(),
                       {u"onlyAScreenOfTwoPixelsAPointIsFine"_s});
            QVERIFY(self.waitForFinished());
            QVERIFY2(self.exitCode() == 0, self.readAllStandardOutput().constData());
        }
    }

private:
    // A panel, not shown yet, of a printer whose medium is `medium`; null leaves the usual one.
    void makePanel(int model, const QString &medium)
    {
        m_panel.reset();
        m_host = RecordingHost::forPpd(samplePpd(model));
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        if (!medium.isNull())
            m_panel->m_outputBin.insert(u"QXMediaType"_s, medium);
        m_host->forgetCalls();
    }
    void showPanel()
    {
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
    }
    QVariant record(const QString &key) const
    {
        const auto domain = UserDefaults::standardUserDefaults().persistentDomainForName(
            m_bundle->bundle()->identifier());
        return domain.value_or(QVariantMap()).value(key);
    }

    std::optional<UserPreferences> m_preferences;
    std::optional<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<PrintSettingProbe> m_panel;
};

QTEST_MAIN(AlertsTest)
#include "alerts_test.moc"
