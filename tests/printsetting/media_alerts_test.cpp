#include <QFile>
#include <QProcess>
#include <QTest>

#include "panel/OptionKeywords.h"
#include "platform/toolkit/ImageView.h"
#include "tests/printsetting/AlertsFixture.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The alerts that say how to load a medium when it is chosen: for which media they are shown, and
/// which of them can be silenced.
class MediaAlertsTest : public AlertsFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openForAlerts(); }
    void cleanup() { closeAll(); }

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
        openPanel(PpdBuilder()
                      .modelNumber(5)
                      .option("QXMediaType", "Media Type", "Plain",
                              {{"Plain", "Plain"}, {"EnvOther", "Other"}})
                      .text());
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
            self.start(QCoreApplication::arguments().constFirst(),
                       {u"onlyAScreenOfTwoPixelsAPointIsFine"_s});
            QVERIFY(self.waitForFinished());
            QVERIFY2(self.exitCode() == 0, self.readAllStandardOutput().constData());
        }
    }

private:
    QVariant record(const QString &key) const
    {
        const auto domain = UserDefaults::standardUserDefaults().persistentDomainForName(
            m_bundle->bundle()->identifier());
        return domain.value_or(QVariantMap()).value(key);
    }
};

QTEST_MAIN(MediaAlertsTest)
#include "media_alerts_test.moc"
