#include <stdexcept>

#include <QComboBox>
#include <QTest>

#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;

/// What tests rely on is itself tested: a host that forgot a call would hide a defect of a panel.
class SupportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHostMarksTheDefaultsAndRecordsThem()
    {
        const auto host = RecordingHost::forSamplePrinter();
        QCOMPARE(host->marked(QStringLiteral("QXMediaType")), QStringLiteral("Plain"));
        QCOMPARE(host->settings().value(QStringLiteral("QXMediaType")),
                 QVariant(QStringLiteral("Plain")));
        QCOMPARE(host->page().paper.name, QStringLiteral("A4"));
        QCOMPARE(host->page().paper.height, 842.0);
    }

    void anAcceptedChangeIsMarkedAndRecorded()
    {
        const auto host = RecordingHost::forSamplePrinter();
        QVERIFY(host->willChangePPDOptionKeyValue_ppdChoice(QStringLiteral("QXMediaType"),
                                                            QStringLiteral("Thick")));
        QCOMPARE(host->marked(QStringLiteral("QXMediaType")), QStringLiteral("Thick"));
        QCOMPARE(host->settings().value(QStringLiteral("QXMediaType")),
                 QVariant(QStringLiteral("Thick")));
        QCOMPARE(host->asked(), QStringList{QStringLiteral("QXMediaType=Thick")});
    }

    void whatTheHostRefuses_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::newRow("an unknown option") << "NoOption"
                                           << "Plain";
        QTest::newRow("an unknown choice") << "QXMediaType"
                                           << "Paper";
        QTest::newRow("a choice in other letter case") << "QXMediaType"
                                                       << "plain";
        QTest::newRow("a constraint of the PPD") << "Duplex"
                                                 << "DuplexTumble";
        QTest::newRow("what the test refuses") << "QXMonoColor"
                                               << "Mono";
    }
    void whatTheHostRefuses()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        const auto host = RecordingHost::forSamplePrinter();
        host->refuse(QStringLiteral("QXMonoColor"), QStringLiteral("Mono"));
        host->mark(QStringLiteral("QXMediaType"), QStringLiteral("Glossy"));
        const QString marked = host->marked(keyword);
        QVERIFY(!host->willChangePPDOptionKeyValue_ppdChoice(keyword, choice));
        QCOMPARE(host->marked(keyword), marked);
        QCOMPARE(host->asked(), QStringList{keyword + u'=' + choice});
    }

    void anOptionCanBeLeftWithoutAMark()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->unmark(QStringLiteral("QXMediaType"));
        QVERIFY(host->marked(QStringLiteral("QXMediaType")).isNull());
        host->mark(QStringLiteral("QXMediaType"), QStringLiteral("Thin"));
        QCOMPARE(host->marked(QStringLiteral("QXMediaType")), QStringLiteral("Thin"));
    }

    void oneSidedPrintingIsMarked()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(QStringLiteral("Duplex"), QStringLiteral("DuplexTumble"));
        QCOMPARE(PMSetDuplex(host->printSettings(), kPMDuplexNone), kPMNoError);
        QCOMPARE(host->marked(QStringLiteral("Duplex")), QStringLiteral("None"));
        const QList<HostCall> expected{{QStringLiteral("PMSetDuplex"), {QStringLiteral("1")}}};
        QCOMPARE(host->calls(), expected);
    }

    void aPpdThatCannotBeOpenedThrows()
    {
        QVERIFY_EXCEPTION_THROWN(RecordingHost::forPpd("no PPD"), std::runtime_error);
    }

    void anUnexpectedAlertFailsTheTest()
    {
        ScriptedAlertPresenter alerts;
        Alert alert;
        alert.messageText = QStringLiteral("Title");
        QEXPECT_FAIL("", "this alert is not in the script", Continue);
        QCOMPARE(alerts.runModal(alert, nullptr).button, 0);
        QCOMPARE(alerts.shown().size(), 1);
    }

    void anExpectedAlertIsAnsweredFromTheScript()
    {
        ScriptedAlertPresenter alerts;
        alerts.expect({1, true});
        QCOMPARE(alerts.outstanding(), 1);
        const AlertAnswer answer = alerts.runModal({}, nullptr);
        QCOMPARE(answer.button, 1);
        QVERIFY(answer.suppressed);
        QCOMPARE(alerts.outstanding(), 0);
    }

    void gesturesActOncePerAct()
    {
        const TestBundle bundle;
        const auto host = RecordingHost::forSamplePrinter();
        const QString colorMatching = QStringLiteral("QXColorMatching");
        const QString mediaType = QStringLiteral("QXMediaType");
        TestPanel panel({mediaType, colorMatching});
        QVERIFY(panel.initWithHost(host));
        QComboBox *popUp = panel.addPopUp(mediaType);
        RadioMatrix *matrix = panel.addMatrix(colorMatching, 3);
        panel.willShow();
        panel.updateUI();
        host->forgetCalls();

        QVERIFY(pick(popUp, QStringLiteral("Labels")));
        QVERIFY(pick(matrix, 1));
        QVERIFY(pickWithKeyboard(popUp, QStringLiteral("Bond Paper")));
        const QStringList expected{QStringLiteral("QXMediaType=Label"),
                                   QStringLiteral("QXColorMatching=Vivid"),
                                   QStringLiteral("QXMediaType=BOND")};
        QCOMPARE(host->asked(), expected);
        QVERIFY(!pick(popUp, QStringLiteral("No such paper")));
        QVERIFY(!pickWithKeyboard(popUp, QStringLiteral("No such paper")));
        QVERIFY(!pick(matrix, 3));
    }
};

QTEST_MAIN(SupportTest)
#include "support_test.moc"
