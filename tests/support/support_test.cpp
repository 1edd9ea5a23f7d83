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
using namespace Qt::StringLiterals;

/// What tests rely on is itself tested: a host that forgot a call would hide a defect of a panel.
class SupportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHostMarksTheDefaultsAndRecordsThem()
    {
        const auto host = RecordingHost::forSamplePrinter();
        QCOMPARE(host->marked(u"QXMediaType"_s), u"Plain"_s);
        QCOMPARE(host->settings().value(u"QXMediaType"_s), QVariant(u"Plain"_s));
        QCOMPARE(host->page().paper.name, u"A4"_s);
        QCOMPARE(host->page().paper.height, 842.0);
    }

    void anAcceptedChangeIsMarkedAndRecorded()
    {
        const auto host = RecordingHost::forSamplePrinter();
        QVERIFY(host->willChangePPDOptionKeyValue_ppdChoice(u"QXMediaType"_s, u"Thick"_s));
        QCOMPARE(host->marked(u"QXMediaType"_s), u"Thick"_s);
        QCOMPARE(host->settings().value(u"QXMediaType"_s), QVariant(u"Thick"_s));
        QCOMPARE(host->asked(), QStringList{u"QXMediaType=Thick"_s});
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
        host->refuse(u"QXMonoColor"_s, u"Mono"_s);
        host->mark(u"QXMediaType"_s, u"Glossy"_s);
        const QString marked = host->marked(keyword);
        QVERIFY(!host->willChangePPDOptionKeyValue_ppdChoice(keyword, choice));
        QCOMPARE(host->marked(keyword), marked);
        QCOMPARE(host->asked(), QStringList{keyword + u'=' + choice});
    }

    void anOptionCanBeLeftWithoutAMark()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->unmark(u"QXMediaType"_s);
        QVERIFY(host->marked(u"QXMediaType"_s).isNull());
        host->mark(u"QXMediaType"_s, u"Thin"_s);
        QCOMPARE(host->marked(u"QXMediaType"_s), u"Thin"_s);
    }

    void oneSidedPrintingIsMarked()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"Duplex"_s, u"DuplexTumble"_s);
        QCOMPARE(PMSetDuplex(host->printSettings(), kPMDuplexNone), kPMNoError);
        QCOMPARE(host->marked(u"Duplex"_s), u"None"_s);
        const QList<HostCall> expected{{u"PMSetDuplex"_s, {u"1"_s}}};
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
        alert.messageText = u"Title"_s;
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
        const QString colorMatching = u"QXColorMatching"_s;
        const QString mediaType = u"QXMediaType"_s;
        TestPanel panel({mediaType, colorMatching});
        QVERIFY(panel.initWithHost(host));
        QComboBox *popUp = panel.addPopUp(mediaType);
        RadioMatrix *matrix = panel.addMatrix(colorMatching, 3);
        panel.willShow();
        panel.updateUI();
        host->forgetCalls();

        QVERIFY(pick(popUp, u"Labels"_s));
        QVERIFY(pick(matrix, 1));
        QVERIFY(pickWithKeyboard(popUp, u"Bond Paper"_s));
        const QStringList expected{u"QXMediaType=Label"_s, u"QXColorMatching=Vivid"_s,
                                   u"QXMediaType=BOND"_s};
        QCOMPARE(host->asked(), expected);
        QVERIFY(!pick(popUp, u"No such paper"_s));
        QVERIFY(!pickWithKeyboard(popUp, u"No such paper"_s));
        QVERIFY(!pick(matrix, 3));
    }
};

QTEST_MAIN(SupportTest)
#include "support_test.moc"
