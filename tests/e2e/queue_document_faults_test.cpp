#include <QTest>

#include "tests/e2e/QueueFaults.h"
#include "tests/support/cups/Client.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// Two documents in three sets, as the settings of every fault ask for.
constexpr int kDocuments = 6;

// The sample printer, but with PDF documents that it takes as they are.
QByteArray takingPdf(const QByteArray &ppd)
{
    QByteArray result;
    for (const QByteArray &line : ppd.split('\n')) {
        if (!line.startsWith("*cupsFilter"))
            result += line + '\n';
    }
    return result + "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n";
}

// Every job that was printed has all of its documents, and the printer got them all.
void verifyWhole(QueueScene &scene)
{
    Client client(scene.cups.server());
    for (const KnownJob &job : scene.cups.jobs()) {
        if (job.state == IPP_JSTATE_COMPLETED)
            QCOMPARE(client.jobValue(job.id, "number-of-documents"), QString::number(kDocuments));
    }
    const QList<CapturedJob> captured = scene.device.jobs();
    QVERIFY(!captured.isEmpty());
    QCOMPARE(captured.constLast().data.count("%%Trailer"), qsizetype(kDocuments));
}

} // namespace

/// The same faults as with one document, in the midst of several: none is printed twice, none is
/// lost, and what is said is so.
class QueueDocumentFaultsTest : public QueueFaultTest
{
    Q_OBJECT

private Q_SLOTS:
    void aJobThatLacksADocumentPrintsNone_data()
    {
        QTest::addColumn<Fault>("fault");
        Fault lacking{.says = u".*Job office-1 was canceled; nothing was printed\\."_s,
                      .jobs = {IPP_JSTATE_CANCELED},
                      .saysAgain = kPrintedAs.arg(2),
                      .jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED},
                      .documentsAgain = 1,
                      .sends = Fault::Sends::SeveralDocuments,
                      .verify = verifyWhole};
        const auto row = [&](const char *name, const std::function<void(FaultyServer &)> &fault,
                             int documentsBefore) {
            lacking.arrange = [=](Scene &scene) {
                fault(scene.between);
                if (documentsBefore > 0)
                    scene.between.letPass(IPP_OP_SEND_DOCUMENT, documentsBefore);
            };
            QTest::newRow(name) << lacking;
        };
        const auto forbid = [](FaultyServer &between) {
            between.answerHttp(HTTP_STATUS_FORBIDDEN, IPP_OP_SEND_DOCUMENT);
        };
        row("the first is forbidden", forbid, 0);
        row("the second is forbidden", forbid, 1);
        row("the last is forbidden", forbid, kDocuments - 1);
        row(
            "busy at the second",
            [](FaultyServer &between) {
                between.answerIpp(IPP_STATUS_ERROR_BUSY, IPP_OP_SEND_DOCUMENT);
            },
            1);
        const auto cut = [](FaultyServer &between) {
            between.closeAfterDocumentBytes(kPartOfDocument, IPP_OP_SEND_DOCUMENT, 1);
        };
        row("hangs up in the first", cut, 0);
        row("hangs up in the second", cut, 1);
        row("hangs up in the last", cut, kDocuments - 1);
        row(
            "silent after the first",
            [](FaultyServer &between) { between.swallowResponse(IPP_OP_SEND_DOCUMENT, 1); }, 0);
        row(
            "hangs up after the first",
            [](FaultyServer &between) { between.closeBeforeResponse(IPP_OP_SEND_DOCUMENT, 1); }, 0);
    }
    void aJobThatLacksADocumentPrintsNone() { playRow(); }

    void aPartThatStaysAtTheServerIsTakenBackByTheNextTry()
    {
        Fault fault{.sends = Fault::Sends::SeveralDocuments, .verify = verifyWhole};
        fault.arrange = [](Scene &scene) {
            scene.between.closeAfterDocumentBytes(kPartOfDocument, IPP_OP_SEND_DOCUMENT, 1);
            scene.between.letPass(IPP_OP_SEND_DOCUMENT, 1);
            scene.between.answerHttp(HTTP_STATUS_SERVICE_UNAVAILABLE, IPP_OP_CANCEL_JOB);
        };
        fault.says = u".*Job office-1 may still be at the print server with some of its documents, "
                     "and may print these\\. It could not be canceled: .+ Printing again looks for "
                     "it first\\."_s;
        fault.jobs = {IPP_JSTATE_HELD};
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 1;
        player().play(fault);
    }

    void aServerThatCrashesBetweenTheDocumentsPrintsThemOnce()
    {
        Fault fault{.sends = Fault::Sends::SeveralDocuments, .verify = verifyWhole};
        fault.arrange = [](Scene &scene) {
            scene.between.delayResponse(IPP_OP_SEND_DOCUMENT, 1);
            scene.between.letPass(IPP_OP_SEND_DOCUMENT, 1);
        };
        fault.when = [](Scene &scene) { return scene.between.faultsMade() > 0; };
        fault.strike = [](Scene &scene) {
            scene.cups.kill();
            scene.between.dropConnections();
        };
        fault.mend = [](Scene &scene) {
            scene.cups.start();
            scene.mend();
        };
        fault.says = u".*Job office-1 may still be at the print server with some of its documents, "
                     "and may print these\\. .+"_s;
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 1;
        player().play(fault);
    }

    void anAnswerThatIsLostLosesNoJobAndMakesNoSecondOne_data()
    {
        QTest::addColumn<Fault>("fault");
        Fault found{.says = kPrintedAs.arg(1),
                    .closes = true,
                    .jobs = {IPP_JSTATE_COMPLETED},
                    .documents = 1,
                    .sends = Fault::Sends::SeveralDocuments,
                    .verify = verifyWhole};
        found.arrange = [](Scene &scene) {
            scene.between.swallowResponse(IPP_OP_SEND_DOCUMENT, 1);
            scene.between.letPass(IPP_OP_SEND_DOCUMENT, kDocuments - 1);
        };
        QTest::newRow("silent after the last") << found;
        found.arrange = [](Scene &scene) {
            scene.between.closeBeforeResponse(IPP_OP_SEND_DOCUMENT, 1);
            scene.between.letPass(IPP_OP_SEND_DOCUMENT, kDocuments - 1);
        };
        QTest::newRow("hangs up after the last") << found;

        Fault gone{.device = [](CaptureDevice &device) { device.waitAtEnd(); },
                   .sends = Fault::Sends::SeveralDocuments,
                   .verify = verifyWhole};
        gone.arrange = [](Scene &scene) {
            scene.between.swallowResponse(IPP_OP_SEND_DOCUMENT);
            scene.between.letPass(IPP_OP_SEND_DOCUMENT, kDocuments - 1);
        };
        // Before the window loses patience with the answer and looks for the job.
        gone.when = [](Scene &scene) { return scene.between.faultsMade() > 0; };
        gone.strike = [](Scene &scene) { scene.goAway(); };
        gone.says = u".*The document had been sent, so job office-1 may be printed or not\\. "
                    "Printing again looks for it first\\."_s;
        gone.jobs = {IPP_JSTATE_PROCESSING};
        gone.documents = 1;
        gone.mend = [](Scene &scene) {
            scene.device.release(u"all"_s);
            QTRY_COMPARE(scene.states(), States{IPP_JSTATE_COMPLETED});
            scene.mend();
        };
        gone.saysAgain = u"Job 1 of the earlier try has been printed\\."_s;
        gone.closesAgain = false;
        gone.jobsAgain = {IPP_JSTATE_COMPLETED};
        gone.documentsAgain = 1;
        QTest::newRow("gone after the last, printed meanwhile") << gone;
    }
    void anAnswerThatIsLostLosesNoJobAndMakesNoSecondOne() { playRow(); }

    void whatThePrinterDoesWithTheJobIsSaid_data()
    {
        QTest::addColumn<Fault>("fault");
        Fault fault{.sends = Fault::Sends::SeveralDocuments};
        fault.device = [](CaptureDevice &device) { device.exitWith(BackendExit::Failed); };
        fault.says = u"Job office-1 failed: the printer or its server gave it up\\..*"_s;
        fault.jobs = {IPP_JSTATE_ABORTED};
        fault.documents = 1;
        fault.saysAgain = u"Job office-2 failed: the printer or its server gave it up\\..*"_s;
        fault.closesAgain = false;
        fault.jobsAgain = {IPP_JSTATE_ABORTED, IPP_JSTATE_ABORTED};
        fault.documentsAgain = 2;
        QTest::newRow("backend fails") << fault;

        fault = {.sends = Fault::Sends::SeveralDocuments};
        fault.ppd = withFailingFilter(contentOf(samplePpdPath(u"corvana-cl5"_s)));
        fault.says = u"Job office-1 was stopped\\. It is still in the queue, where it can be "
                     "released or canceled\\..*"_s;
        fault.jobs = {IPP_JSTATE_STOPPED};
        fault.saysAgain = u"Job 1 of the earlier try is stopped in the queue\\."_s;
        fault.closesAgain = false;
        fault.jobsAgain = {IPP_JSTATE_STOPPED};
        QTest::newRow("filter fails") << fault;

        fault = {.device = [](CaptureDevice &device) { device.pages(2).waitAtPages(); },
                 .sends = Fault::Sends::SeveralDocuments,
                 .verify = verifyWhole};
        fault.when = [](Scene &scene) {
            return scene.device.hasReached(1, u"page-1"_s) &&
                   scene.window->progress().startsWith(u"Printing"_s);
        };
        fault.strike = [](Scene &scene) { scene.cups.cancelJob(1); };
        fault.says = u"Job office-1 was canceled at the printer or its server\\."_s;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.documents = 1;
        fault.mend = [](Scene &scene) { scene.device.release(u"all"_s); };
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 2;
        QTest::newRow("canceled at the server while printing") << fault;
    }
    void whatThePrinterDoesWithTheJobIsSaid() { playRow(); }

    void theUserCancelsBetweenTheDocuments()
    {
        Fault fault{.sends = Fault::Sends::SeveralDocuments, .verify = verifyWhole};
        fault.arrange = [](Scene &scene) {
            scene.between.delayResponse(IPP_OP_SEND_DOCUMENT, 1);
            scene.between.letPass(IPP_OP_SEND_DOCUMENT, 1);
        };
        fault.when = [](Scene &scene) { return scene.between.faultsMade() > 0; };
        fault.strike = [](Scene &scene) { QVERIFY(scene.window->press("cancel")); };
        fault.says =
            u"Printing was canceled\\. Job office-1 was canceled; nothing was printed\\."_s;
        fault.jobs = {IPP_JSTATE_CANCELED};
        fault.saysAgain = kPrintedAs.arg(2);
        fault.jobsAgain = {IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 1;
        player().play(fault);
    }

    void theUserCancelsWhileTheyArePutTogether()
    {
        Fault fault{.ppd = takingPdf(contentOf(samplePpdPath(u"corvana-cl5"_s))),
                    .sends = Fault::Sends::SeveralDocuments};
        fault.when = [](Scene &scene) {
            return scene.window->progress().startsWith(u"Preparing"_s);
        };
        fault.strike = [](Scene &scene) { QVERIFY(scene.window->press("cancel")); };
        fault.says = u".*[Cc]ancel.*"_s;
        fault.saysAgain = kPrintedAs.arg(1) + u" The documents were put together .+"_s;
        fault.jobsAgain = {IPP_JSTATE_COMPLETED};
        fault.documentsAgain = 1;
        player().play(fault);
    }
};

QTEST_MAIN(QueueDocumentFaultsTest)

#include "queue_document_faults_test.moc"
