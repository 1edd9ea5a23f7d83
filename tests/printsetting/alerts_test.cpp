#include <QFile>
#include <QTest>

#include "panel/OptionKeywords.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/ViewFrame.h"
#include "tests/printsetting/AlertsFixture.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The alerts at print time, which say how to load special media: when they are shown, what they
/// say, and what their answers do.
class AlertsTest : public AlertsFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openForAlerts(); }
    void cleanup() { closeAll(); }

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
        QMap<QString, QString> texts = textsOfAlerts();
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
        // The view keeps each: a picture that was read again would stay beside the first one.
        QCOMPARE(shown.at(2).constBits(), shown.at(0).constBits());
    }
};

QTEST_MAIN(AlertsTest)
#include "alerts_test.moc"
