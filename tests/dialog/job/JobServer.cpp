#include "tests/dialog/job/JobServer.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kTokenAttribute = "corvana-job-token";

CannedAnswer answerAbout(const SaidOfJob &job)
{
    if (job.hangsUp)
        return {{}, true};
    if (job.status != IPP_STATUS_OK)
        return ippAnswer(newIppAnswer(job.status));
    ipp_t *answer = newIppAnswer();
    ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", job.state);
    ippAddString(answer, IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-state-reasons", nullptr,
                 job.wantsLogIn ? "cups-held-for-authentication" : "none");
    if (job.queue)
        ippAddString(answer, IPP_TAG_JOB, IPP_TAG_URI, "job-printer-uri", nullptr, job.queue);
    if (job.documents >= 0)
        ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "number-of-documents", job.documents);
    // What has not happened yet has no time.
    if (!job.begun)
        ippAddOutOfBand(answer, IPP_TAG_JOB, IPP_TAG_NOVALUE, "time-at-processing");
    return ippAnswer(answer);
}

} // namespace

ServerJobRequest JobServer::request(const Document &document) const
{
    using namespace std::chrono_literals;
    ServerJobRequest request;
    request.server.address = {u"127.0.0.1"_s, port(), HTTP_ENCRYPTION_IF_REQUESTED};
    request.server.patience = {10s, 10s};
    request.server.credentials = std::make_shared<CredentialStore>();
    request.printer.origin = PrinterOrigin::Queue;
    request.printer.name = u"office"_s;
    request.printer.uri = u"ipp://localhost/printers/office"_s;
    QString error;
    request.ppd = writtenPpd("*PPD-Adobe: \"4.3\"\n", &error);
    request.documents = {document};
    request.ticket = {document.title, 1, {}};
    return request;
}

CannedAnswer JobServer::answer(const CannedRequest &request)
{
    switch (request.operation) {
    case 0:
        return answerToGet();
    case IPP_OP_CREATE_JOB:
        return answerToCreation(request);
    case IPP_OP_GET_JOBS:
        return listOfJobs();
    case IPP_OP_SEND_DOCUMENT:
        return answerToDocument();
    case IPP_OP_CANCEL_JOB:
        if (m_losesCancellation)
            return {{}, true};
        say({afterCancel()});
        return ippAnswer(newIppAnswer(m_cancels ? IPP_STATUS_OK : IPP_STATUS_ERROR_NOT_POSSIBLE));
    case IPP_OP_GET_JOB_ATTRIBUTES:
        return answerAbout(stateOf(request.value("job-id").toInt()));
    case IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS:
    case IPP_OP_GET_NOTIFICATIONS:
        return answerToSubscriber(request);
    default: {
        if (!m_knowsQueue)
            return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_FOUND));
        ipp_t *answer = newIppAnswer();
        ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "office");
        ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-state-message", nullptr,
                     "Toner is being changed.");
        return ippAnswer(answer);
    }
    }
}

CannedAnswer JobServer::answerToGet()
{
    const std::scoped_lock lock(m_mutex);
    return httpAnswer(m_ppdStatus, m_ppdStatus == 200 ? m_ppd : QByteArray());
}

CannedAnswer JobServer::answerToCreation(const CannedRequest &request)
{
    m_token = request.value(kTokenAttribute);
    ipp_t *answer = nullptr;
    switch (m_creation.load()) {
    case Creation::Answered:
        answer = newIppAnswer();
        ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", kJob);
        return ippAnswer(answer);
    case Creation::Numberless:
        return ippAnswer(newIppAnswer());
    case Creation::NotAccepted:
        return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS));
    case Creation::Refused:
        return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_BUSY));
    default:
        return {{}, true};
    }
}

CannedAnswer JobServer::answerToDocument()
{
    const int number = ++m_documents;
    if (m_act)
        m_act(number);
    if (m_losesAnswerTo == 0 || m_losesAnswerTo == number)
        return {{}, true};
    return ippAnswer(newIppAnswer(
        m_refuses == number ? IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED : IPP_STATUS_OK));
}

CannedAnswer JobServer::listOfJobs()
{
    if (m_creation == Creation::LostAndUnlistable)
        return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_AUTHORIZED));
    if (m_creation == Creation::LostAndGuarded)
        return httpAnswer(401, {}, "WWW-Authenticate: Basic realm=\"Test\"\r\n");
    ipp_t *answer = newIppAnswer();
    const auto add = [answer](int job, const QString &token) {
        ippAddSeparator(answer);
        ippAddInteger(answer, IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", job);
        ippAddString(answer, IPP_TAG_JOB, IPP_TAG_URI, kTokenAttribute, nullptr,
                     token.toUtf8().constData());
    };
    add(kEarlierJob, u"urn:uuid:another"_s);
    if (m_creation == Creation::Numberless || m_creation == Creation::LostAndListed)
        add(kJob, m_token);
    return ippAnswer(answer);
}

CannedAnswer JobServer::answerToSubscriber(const CannedRequest &request)
{
    constexpr int kSubscription = 5;
    const std::scoped_lock lock(m_mutex);
    if (!m_end)
        return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_TOO_MANY_SUBSCRIPTIONS));
    ipp_t *answer = newIppAnswer();
    constexpr ipp_tag_t group = IPP_TAG_EVENT_NOTIFICATION;
    const auto addEvent = [&](int job, int state, const char *queue) {
        ippAddInteger(answer, group, IPP_TAG_INTEGER, "notify-subscription-id", kSubscription);
        ippAddString(answer, group, IPP_TAG_TEXT, "notify-text", nullptr, "It has ended.");
        ippAddInteger(answer, group, IPP_TAG_INTEGER, "notify-job-id", job);
        ippAddInteger(answer, group, IPP_TAG_ENUM, "job-state", state);
        if (queue)
            ippAddString(answer, group, IPP_TAG_URI, "notify-printer-uri", nullptr, queue);
    };
    if (request.operation == IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS) {
        ippAddInteger(answer, IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-subscription-id",
                      kSubscription);
    } else if (request.value("notify-subscription-ids").toInt() == kSubscription) {
        addEvent(kEarlierJob, IPP_JSTATE_ABORTED, nullptr);
        addEvent(kJob, m_end->state, m_end->queue);
        addEvent(kJob + 1, IPP_JSTATE_ABORTED, nullptr);
    }
    return ippAnswer(answer);
}

SaidOfJob JobServer::afterCancel()
{
    const std::scoped_lock lock(m_mutex);
    return m_afterCancel;
}

SaidOfJob JobServer::stateOf(int job)
{
    const std::scoped_lock lock(m_mutex);
    if (job == kEarlierJob)
        return m_earlier;
    return m_states.size() > 1 ? m_states.takeFirst() : m_states.constFirst();
}

} // namespace corvana::test
