#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/ServerJob.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = JobOutcome::Kind;

namespace {

const QString kQueue = u"office"_s;
constexpr int kPatience = 20000; // milliseconds that a queue may take on a busy machine

} // namespace

/// Documents that cannot stand in one stream, on a queue without a driver: each is a job of its
/// own, none is lost, none comes twice, and what is said is so.
class SeparateJobsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<FaultyServer> m_between;
    ServerJobRequest m_request;

    static QByteArray contentOf(const QString &title)
    {
        return "%PDF-1.4\n% " + title.toUtf8() + "\n%%EOF\n";
    }
    Document document(const QString &title)
    {
        const QString path = m_folder.filePath(title);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(contentOf(title)) < 1)
            qFatal("no document");
        return {path, u"application/pdf"_s, title};
    }
    void addQueue(const CaptureDevice &device)
    {
        m_cups->addRawQueue(kQueue, {.deviceUri = device.uri()});
    }
    JobOutcome print()
    {
        ServerJob job(m_request);
        job.start();
        return job.wait();
    }
    // What a task makes of an outcome for its next try.
    JobOutcome printAgain(const JobOutcome &former)
    {
        m_request.earlierJob = former.kind == Kind::Unknown ? former.job : 0;
        m_request.earlierDocuments = former.documents;
        m_request.sentDocuments = former.sentDocuments;
        return print();
    }
    // What has come to the printer, once the queue is done with all that it has.
    QList<QByteArray> arrived()
    {
        const auto isBusy = [&] {
            const QList<KnownJob> jobs = m_cups->jobs(kQueue);
            return std::any_of(jobs.cbegin(), jobs.cend(), [](const KnownJob &job) {
                return job.state == IPP_JSTATE_PENDING || job.state == IPP_JSTATE_PROCESSING;
            });
        };
        if (!QTest::qWaitFor([&] { return !isBusy(); }, kPatience))
            return {};
        QList<QByteArray> data;
        for (const CapturedJob &job : m_cups->capture(kQueue).jobs())
            data += job.data;
        return data;
    }
    QList<QByteArray> each() const
    {
        return {contentOf(u"one"_s), contentOf(u"two"_s), contentOf(u"three"_s)};
    }
    QList<int> states() const
    {
        QList<int> states;
        for (const KnownJob &job : m_cups->jobs(kQueue))
            states += job.state;
        return states;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
    }
    void init()
    {
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_between = std::make_unique<FaultyServer>(m_cups->port());
        m_request = {};
        m_request.server.address = {u"127.0.0.1"_s, m_between->port(),
                                    HTTP_ENCRYPTION_IF_REQUESTED};
        m_request.server.patience = {2s, 2s};
        m_request.printer.origin = PrinterOrigin::Queue;
        m_request.printer.name = kQueue;
        m_request.printer.uri = u"ipp://localhost/printers/"_s + kQueue;
        m_request.documents = {document(u"one"_s), document(u"two"_s), document(u"three"_s)};
        m_request.ticket = {u"one and 2 more"_s, 1, {}, {}};
        m_request.mayBeEmpty = true;
        QString error;
        m_request.ppd = writtenPpd("*PPD-Adobe: \"4.3\"\n", &error);
    }
    void cleanup()
    {
        m_between.reset();
        m_cups.reset();
    }

    void eachDocumentIsAJobOfItsOwn()
    {
        addQueue(m_cups->capture(kQueue));
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Sent);
        QVERIFY2(outcome.text.contains(u"office-1, office-2, office-3"_s),
                 qPrintable(outcome.text));
        QCOMPARE(arrived(), each());
        QStringList names;
        for (const KnownJob &job : m_cups->jobs(kQueue))
            names += job.name;
        QCOMPARE(names, (QStringList{u"one"_s, u"two"_s, u"three"_s}));
    }

    void documentsThatCanStandInARowAreOneJob()
    {
        addQueue(m_cups->capture(kQueue));
        for (Document &document : m_request.documents)
            document.format = u"application/postscript"_s;
        QCOMPARE(print().kind, Kind::Sent);
        QCOMPARE(m_cups->jobs(kQueue).size(), 1);
    }

    void whatFailsInTheMidstIsSaidAndTheNextTryGoesOnFromThere()
    {
        addQueue(m_cups->capture(kQueue));
        m_between->answerHttp(HTTP_STATUS_FORBIDDEN, IPP_OP_SEND_DOCUMENT);
        m_between->letPass(IPP_OP_SEND_DOCUMENT, 1);
        const JobOutcome failed = print();
        QCOMPARE(failed.kind, Kind::Failed);
        QCOMPARE(failed.sentDocuments, 1);
        QVERIFY2(failed.text.contains(u"1 of 3"_s), qPrintable(failed.text));
        m_between->clearFaults();
        const JobOutcome outcome = printAgain(failed);
        QCOMPARE(outcome.kind, Kind::Sent);
        QCOMPARE(arrived(), each());
    }

    // A job was made, so the whole is not refused.
    void whatTheQueueRefusesAfterTheFirstHasFailed()
    {
        addQueue(m_cups->capture(kQueue));
        m_between->answerHttp(HTTP_STATUS_FORBIDDEN, IPP_OP_CREATE_JOB);
        QCOMPARE(print().kind, Kind::Refused);
        m_between->clearFaults();
        m_between->answerHttp(HTTP_STATUS_FORBIDDEN, IPP_OP_CREATE_JOB);
        m_between->letPass(IPP_OP_CREATE_JOB, 1);
        const JobOutcome failed = print();
        QCOMPARE(failed.kind, Kind::Failed);
        QCOMPARE(failed.sentDocuments, 1);
    }

    // Its server has the document, and nobody has heard so.
    void aDocumentWhoseFateIsUnknownIsLookedUpBeforeTheRestIsSent()
    {
        addQueue(m_cups->capture(kQueue));
        m_between->swallowResponse(IPP_OP_SEND_DOCUMENT);
        m_between->letPass(IPP_OP_SEND_DOCUMENT, 1);
        m_between->answerHttp(HTTP_STATUS_SERVICE_UNAVAILABLE, IPP_OP_GET_JOB_ATTRIBUTES);
        m_between->letPass(IPP_OP_GET_JOB_ATTRIBUTES, 1);
        const JobOutcome unknown = print();
        QCOMPARE(unknown.kind, Kind::Unknown);
        QCOMPARE(unknown.job, 2);
        QCOMPARE(unknown.sentDocuments, 1);
        m_between->clearFaults();
        QCOMPARE(printAgain(unknown).kind, Kind::Sent);
        QCOMPARE(arrived(), each());
    }

    void aNextTryWithAnotherNumberOfCopiesIsAnotherOrder()
    {
        addQueue(m_cups->capture(kQueue));
        JobOutcome former;
        former.documents = 6;
        former.sentDocuments = 5;
        QCOMPARE(printAgain(former).kind, Kind::Sent);
        QCOMPARE(arrived(), each());
    }

    void whatBecameOfTheFirstIsSaidWithTheLast()
    {
        CaptureDevice device = m_cups->capture(kQueue);
        addQueue(device.waitAtStart());
        ServerJob job(m_request);
        job.start();
        QTRY_VERIFY_WITH_TIMEOUT(job.isHandedOver(), kPatience);
        QTRY_VERIFY_WITH_TIMEOUT(device.hasReached(1, u"start"_s), kPatience);
        m_cups->cancelJob(1);
        device.release(u"all"_s);
        const JobOutcome outcome = job.wait();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.contains(u"Job office-1 was canceled or given up"_s),
                 qPrintable(outcome.text));
        QCOMPARE(states(),
                 (QList<int>{IPP_JSTATE_CANCELED, IPP_JSTATE_COMPLETED, IPP_JSTATE_COMPLETED}));
    }

    void canceledAreAllOfThem()
    {
        CaptureDevice device = m_cups->capture(kQueue);
        addQueue(device.waitAtStart());
        ServerJob job(m_request);
        job.start();
        QTRY_VERIFY_WITH_TIMEOUT(job.isHandedOver(), kPatience);
        job.cancel();
        const JobOutcome outcome = job.wait();
        device.release(u"all"_s);
        QCOMPARE(outcome.kind, Kind::Canceled);
        QCOMPARE(outcome.sentDocuments, 0);
        for (const QString &name : {u"office-1"_s, u"office-2"_s, u"office-3"_s})
            QVERIFY2(outcome.text.contains(name), qPrintable(outcome.text));
        QTRY_COMPARE_WITH_TIMEOUT(
            states(), (QList<int>{IPP_JSTATE_CANCELED, IPP_JSTATE_CANCELED, IPP_JSTATE_CANCELED}),
            kPatience);
    }
};

QTEST_GUILESS_MAIN(SeparateJobsTest)
#include "separate_jobs_test.moc"
