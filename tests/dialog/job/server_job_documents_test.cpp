#include <sys/resource.h>

#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/ServerJob.h"
#include "tests/dialog/job/JobServer.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

namespace {

constexpr int kDocuments = 3;

// What the server says of a job when the answer to one of its documents was lost.
struct LostAnswer
{
    const char *name;
    int document; ///< from 1
    SaidOfJob said;
    Kind kind;
    int sent;
    int canceled;
};
constexpr LostAnswer kLostAnswers[] = {
    {"the first, which came", 1, {IPP_JSTATE_HELD, 1}, Kind::Failed, 1, 1},
    {"one in the midst", 2, {IPP_JSTATE_HELD, 2}, Kind::Failed, 2, 1},
    {"the last, printed meanwhile", 3, {IPP_JSTATE_COMPLETED, 3}, Kind::Printed, 3, 0},
    {"the last, which never came", 3, {IPP_JSTATE_HELD, 2}, Kind::Failed, 3, 1},
    {"the last, printed without it", 3, {IPP_JSTATE_COMPLETED, 2}, Kind::Failed, 3, 0},
    {"the last, and nobody counts", 3, {IPP_JSTATE_COMPLETED, -1}, Kind::Printed, 3, 0},
    {"the last, and nobody says", 3, {0, -1, IPP_STATUS_OK, true}, Kind::Unknown, 3, 0},
};

// A job of an earlier try, of which it is known that it was to have three documents.
struct EarlierTry
{
    const char *name;
    SaidOfJob said;
    Kind kind;
    int canceled;
    const char *words;
};
constexpr EarlierTry kEarlierTries[] = {
    {"waits with all", {IPP_JSTATE_PENDING, 3}, Kind::AlreadyThere, 0, "will be printed"},
    {"waits for the rest", {IPP_JSTATE_HELD, 2, IPP_STATUS_OK, false, false}, Kind::Printed, 1, ""},
    {"has begun without the rest",
     {IPP_JSTATE_PROCESSING, 2},
     Kind::AlreadyThere,
     0,
     "2 of its 3 documents"},
    {"was printed without the rest",
     {IPP_JSTATE_COMPLETED, 1},
     Kind::AlreadyThere,
     0,
     "1 of its 3 documents"},
    {"was canceled with a part", {IPP_JSTATE_CANCELED, 2}, Kind::Printed, 0, ""},
    {"has none", {IPP_JSTATE_HELD, 0}, Kind::Printed, 0, ""},
    {"is in no known state", {99, 3}, Kind::Failed, 0, "gives job 7 the state 99"},
    {"is in no known state, in part", {0, 2}, Kind::Failed, 0, "not known yet"},
};

// What queues make of a document, and whether two of them can be sent.
struct QueueKind
{
    const char *name;
    const char *lines;
    bool isOneFile;
};
constexpr QueueKind kQueueKinds[] = {
    {"PostScript", "", false},
    {"PDF", "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n", true},
    {"PDF, document by document",
     "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n*cupsSingleFile: True\n",
     false},
};

} // namespace

/// Several documents as one job of a print server: none twice, none lost, and the answer true.
class ServerJobDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_server = std::make_unique<JobServer>();
        m_server->say({{IPP_JSTATE_COMPLETED, kDocuments}});
        m_request = m_server->request(document(1));
        for (int i = 2; i <= kDocuments; ++i)
            m_request.documents += document(i);
    }

    void eachIsSentByItselfAndTheLastIsCalledSo()
    {
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Printed);
        QCOMPARE(outcome.documents, kDocuments);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QStringList names;
        QList<bool> lasts;
        QByteArrayList contents;
        for (const CannedRequest &sent : documentsSent()) {
            names += sent.value("document-name");
            lasts += sent.find("last-document").truth;
            contents += sent.document();
        }
        QCOMPARE(names, (QStringList{u"1.txt"_s, u"2.txt"_s, u"3.txt"_s}));
        QCOMPARE(lasts, (QList<bool>{false, false, true}));
        QCOMPARE(contents, (QByteArrayList{"text 1\n", "text 2\n", "text 3\n"}));
    }

    void copiesComeInSets_data()
    {
        QTest::addColumn<QList<JobOption>>("options");
        QTest::addColumn<int>("copies");
        QTest::addColumn<QString>("copiesSent");
        QTest::addColumn<int>("sent");
        QTest::addColumn<bool>("isRemarked");
        const QList<JobOption> none;
        QTest::newRow("as usual") << none << 2 << u"1"_s << 6 << false;
        QTest::newRow("not collated")
            << QList<JobOption>{{u"collate"_s, u"false"_s}} << 2 << u"2"_s << 3 << false;
        QTest::newRow("too many") << none << 50 << u"50"_s << 3 << true;
    }
    void copiesComeInSets()
    {
        QFETCH(QList<JobOption>, options);
        QFETCH(int, copies);
        QFETCH(int, sent);
        QFETCH(bool, isRemarked);
        m_server->say({{IPP_JSTATE_COMPLETED, sent}});
        m_request.ticket.copies = copies;
        m_request.ticket.options = options;
        const JobOutcome outcome = print();
        QVERIFY2(outcome.kind == Kind::Printed, qPrintable(outcome.text));
        QCOMPARE(documentsSent().size(), sent);
        for (qsizetype i = 0; i < documentsSent().size(); ++i)
            QCOMPARE(documentsSent().at(i).find("last-document").truth, i == sent - 1);
        QTEST(m_server->requests().at(indexOfCreation()).value("copies"), "copiesSent");
        QVERIFY2(outcome.text.contains(u"(A A B B)"_s) == isRemarked, qPrintable(outcome.text));
    }

    void aDocumentThatIsRefusedInTheMidstTakesTheJobBack()
    {
        m_server->refuseTheDocument(2);
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.endsWith(u"Job office-8 was canceled; nothing was printed."_s),
                 qPrintable(outcome.text));
        QCOMPARE(documentsSent().size(), 2);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 1);
    }

    void aDocumentThatVanishesInTheMidstTakesTheJobBack()
    {
        m_server->whenADocumentComes([this](int) { QFile::remove(path(2)); });
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.startsWith(u"2.txt cannot be read"_s), qPrintable(outcome.text));
        QVERIFY2(outcome.text.endsWith(u"nothing was printed."_s), qPrintable(outcome.text));
        QCOMPARE(documentsSent().size(), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 1);
    }

    void aDocumentThatIsGoneBeforeMakesNoJob()
    {
        QVERIFY(QFile::remove(path(3)));
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Failed);
        QVERIFY2(outcome.text.contains(u"3.txt"_s), qPrintable(outcome.text));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 0);
    }

    void anAnswerThatIsLostIsFoundOut_data() { addRows(kLostAnswers); }
    void anAnswerThatIsLostIsFoundOut()
    {
        const auto &[name, document, said, kind, sent, canceled] = currentRow(kLostAnswers);
        m_server->loseTheAnswerToTheDocument(document);
        m_server->say({said});
        m_server->sayAfterCancel({IPP_JSTATE_CANCELED, said.documents});
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QCOMPARE(documentsSent().size(), sent);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), canceled);
        if (kind == Kind::Failed && canceled == 0)
            QVERIFY2(outcome.text.contains(u"2 of its 3 documents only"_s),
                     qPrintable(outcome.text));
    }

    void whatCannotBeTakenBackIsRemembered()
    {
        m_server->refuseTheDocument(3);
        m_server->whenADocumentComes([this](int number) {
            if (number == 3)
                m_server->loseTheAnswerToTheCancellation();
        });
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, Kind::Unknown);
        QCOMPARE(outcome.job, kJob);
        QCOMPARE(outcome.documents, kDocuments);
        QVERIFY2(outcome.text.contains(u"some of its documents"_s), qPrintable(outcome.text));
    }

    void whatAnEarlierTryLeftInPartIsNeitherDoubledNorLost_data() { addRows(kEarlierTries); }
    void whatAnEarlierTryLeftInPartIsNeitherDoubledNorLost()
    {
        const auto &[name, said, kind, canceled, words] = currentRow(kEarlierTries);
        m_server->sayOfEarlierJob(said);
        m_server->sayAfterCancel({IPP_JSTATE_COMPLETED, kDocuments});
        m_request.earlierJob = kEarlierJob;
        m_request.earlierDocuments = kDocuments;
        const JobOutcome outcome = print();
        QCOMPARE(outcome.kind, kind);
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), kind == Kind::Printed ? 1 : 0);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), canceled);
        QVERIFY2(outcome.text.contains(QString::fromLatin1(words)), qPrintable(outcome.text));
    }

    // A queue without a driver gets each PDF as a job.
    void oneOfSeveralJobsInNoKnownStateIsNotCalledGivenUp()
    {
        for (Document &one : m_request.documents)
            one.format = u"application/pdf"_s;
        m_request.follow = true;
        m_server->say(
            {{IPP_JSTATE_PENDING, 1}, {IPP_JSTATE_PENDING, 1}, {IPP_JSTATE_COMPLETED, 1}, {99, 1}});
        const JobOutcome outcome = print();
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), kDocuments);
        QCOMPARE(outcome.kind, Kind::Unknown);
        QVERIFY2(outcome.text.contains(u"gives job office-8 the state 99"_s) &&
                     !outcome.text.contains(u"given up"_s),
                 qPrintable(outcome.text));
    }

    void aJobIsCanceledBetweenItsDocuments()
    {
        ServerJob job(m_request);
        m_server->whenADocumentComes([&](int number) {
            if (number == 2)
                QMetaObject::invokeMethod(&job, &ServerJob::cancel, Qt::BlockingQueuedConnection);
        });
        m_server->sayAfterCancel({IPP_JSTATE_CANCELED, 2});
        job.start();
        const JobOutcome outcome = job.wait();
        QCOMPARE(outcome.kind, Kind::Canceled);
        QVERIFY2(outcome.text.endsWith(u"nothing was printed."_s), qPrintable(outcome.text));
        QCOMPARE(documentsSent().size(), 2);
        QCOMPARE(m_server->count(IPP_OP_CANCEL_JOB), 1);
    }

    void moreDocumentsThanFilesThatCanBeOpenArePrinted()
    {
        constexpr int many = 300;
        for (int i = kDocuments + 1; i <= many; ++i)
            m_request.documents += document(i);
        m_server->say({{IPP_JSTATE_COMPLETED, many}});
        rlimit former = {};
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &former), 0);
        const rlimit few{64, former.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &few), 0);
        const JobOutcome outcome = print();
        ::setrlimit(RLIMIT_NOFILE, &former);
        QCOMPARE(outcome.text, u"Printed on “office” as job office-8."_s);
        QCOMPARE(documentsSent().size(), many);
        QCOMPARE(documentsSent().constLast().value("document-name"), u"300.txt"_s);
    }

    void theProgressCountsAllDocuments()
    {
        ServerJob job(m_request);
        qint64 most = 0;
        connect(&job, &Job::progressed, this, [&](const JobProgress &progress) {
            if (progress.stage != JobProgress::Stage::Sending || progress.job == 0)
                return;
            QCOMPARE(progress.total, qint64(21));
            QVERIFY(progress.sent >= most);
            most = progress.sent;
        });
        job.start();
        job.wait();
        QCOMPARE(most, qint64(21));
    }

    void aQueueGetsOneFileWhereItsPrinterWouldSeeNoMore_data() { addRows(kQueueKinds); }
    void aQueueGetsOneFileWhereItsPrinterWouldSeeNoMore()
    {
        const auto &[name, lines, isOneFile] = currentRow(kQueueKinds);
        usePpd(PpdBuilder().text() + lines);
        const int sent = isOneFile ? 1 : kDocuments;
        m_server->say({{IPP_JSTATE_COMPLETED, sent}});
        const JobOutcome outcome = print();
        QVERIFY2(outcome.kind == Kind::Printed, qPrintable(outcome.text));
        QCOMPARE(documentsSent().size(), sent);
        // Texts have become pages by then.
        QCOMPARE(documentsSent().constFirst().value("document-format"), u"application/pdf"_s);
        QVERIFY2(outcome.text.contains(u"put together"_s) == isOneFile, qPrintable(outcome.text));
    }

    // See separate_jobs_test for what becomes of those.
    void aQueueWithoutADriverGetsAJobForEachOfWhatCannotStandInARow()
    {
        QCOMPARE(print().kind, Kind::Printed); // texts
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), 1);
        int jobs = 1;
        // One language does not follow another one, and PDFs do not follow each other.
        for (const QString &format : {u"application/postscript"_s, u"application/pdf"_s}) {
            m_request.documents[1].format = format;
            m_server->say({{IPP_JSTATE_COMPLETED, 1}});
            QCOMPARE(print().kind, Kind::Printed);
            jobs += kDocuments;
            QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), jobs);
        }
        m_request.documents = {m_request.documents.at(1)};
        m_request.ticket.options = {{u"number-up"_s, u"2"_s}, {u"page-ranges"_s, u"1"_s}};
        const JobOutcome pair = print();
        QCOMPARE(pair.kind, Kind::Failed);
        QVERIFY2(pair.text.contains(u"number-up"_s) && pair.text.contains(u"page-ranges"_s),
                 qPrintable(pair.text));
        QCOMPARE(m_server->count(IPP_OP_CREATE_JOB), jobs);
    }

private:
    QString path(int number) const { return m_folder.filePath(u"%1.txt"_s.arg(number)); }
    Document document(int number) const
    {
        const QString name = u"%1.txt"_s.arg(number);
        return {writeFile(path(number), "text " + QByteArray::number(number) + '\n'),
                u"text/plain"_s, name};
    }
    // The queue has a driver of its own.
    void usePpd(const QByteArray &text)
    {
        QString error;
        m_request.ppd = temporaryPpd(text, &error);
        m_server->setPpd(text);
    }
    JobOutcome print()
    {
        ServerJob job(m_request);
        job.start();
        return job.wait();
    }
    QList<CannedRequest> documentsSent() const
    {
        QList<CannedRequest> sent = m_server->requests();
        sent.removeIf(
            [](const CannedRequest &one) { return one.operation != IPP_OP_SEND_DOCUMENT; });
        return sent;
    }
    qsizetype indexOfCreation() const
    {
        const QList<CannedRequest> all = m_server->requests();
        return std::find_if(
                   all.cbegin(), all.cend(),
                   [](const CannedRequest &one) { return one.operation == IPP_OP_CREATE_JOB; }) -
               all.cbegin();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<JobServer> m_server;
    ServerJobRequest m_request;
};

QTEST_MAIN(ServerJobDocumentsTest)

#include "server_job_documents_test.moc"
