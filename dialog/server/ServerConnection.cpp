#include "dialog/server/ServerConnection.h"

#include <array>
#include <utility>

#include <QIODevice>
#include <QScopeGuard>

#include "dialog/server/AnswerReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kBlock = 65536;
// No PPD is that large; an endless answer must not fill the memory. Units: bytes.
constexpr qint64 kLargestFile = 32 * 1024 * 1024;
// What CUPS says of 10,000 queues when it says all, 10 KB of each, where a server knows no "limit".
constexpr qint64 kLargestAnswer = 128 * 1024 * 1024;
// How long a server may think about whether it wants a document. Units: milliseconds.
constexpr int kMomentForRefusal = 1000;
// What is said beside a refusal is of no use; this much is passed over to keep the connection.
constexpr qint64 kLargestRefusal = 65536;
// Behind it no standard has any. It is within the range of the enumeration.
constexpr int kLastStatus = 0x1fff;

// Whether a request changes nothing at the server, so that it can be sent twice.
bool onlyAsks(ipp_t *message)
{
    return QLatin1StringView(ippOpString(ippGetOperation(message))).contains("Get-"_L1);
}

} // namespace

IppMessage ServerConnection::request(IppMessage message, const QByteArray &resource)
{
    return exchange(std::move(message), resource, nullptr, {});
}

IppMessage ServerConnection::request(IppMessage message, const QByteArray &resource,
                                     QIODevice &document,
                                     const std::function<void(qint64)> &progress)
{
    return exchange(std::move(message), resource, &document, progress);
}

IppMessage ServerConnection::exchange(IppMessage message, const QByteArray &resource,
                                      QIODevice *document,
                                      const std::function<void(qint64)> &progress)
{
    m_documentSent = false;
    m_requestSent = false;
    qCDebug(lcServer) << ippOpString(ippGetOperation(message.get())) << resource;
    const auto status = m_line.converse("POST", resource, onlyAsks(message.get()), [&] {
        return sendIpp(message.get(), resource, document, progress);
    });
    if (!status)
        return nullptr;
    if (*status != HTTP_STATUS_OK) {
        m_isEarly ? noteEarly(*status) : m_line.noteFailure(*status);
        m_line.close();
        return nullptr;
    }
    IppMessage answer = unlessRefused(readIpp());
    if (!m_isEarly)
        return answer;
    // What the server has not got it cannot have taken, and the rest of it never comes.
    if (answer)
        m_line.fail({ServerProblem::Kind::NotUnderstood});
    m_line.close();
    return nullptr;
}

http_status_t ServerConnection::sendIpp(ipp_t *message, const QByteArray &resource,
                                        QIODevice *document,
                                        const std::function<void(qint64)> &progress)
{
    m_documentSent = false;
    m_isEarly = false;
    if (document && !document->seek(0)) {
        m_line.fail({ServerProblem::Kind::DocumentUnreadable, document->errorString()});
        return HTTP_STATUS_ERROR;
    }
    size_t length = ippLength(message);
    if (document)
        length += static_cast<size_t>(document->size());
    http_t *http = m_line.http();
    beginRequest();
    httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    httpSetLength(http, length);
    if (document)
        httpSetExpect(http, HTTP_STATUS_CONTINUE);
    m_requestSent = true;
    if (httpPost(http, resource.constData()) != 0)
        return HTTP_STATUS_ERROR;
    ippSetState(message, IPP_STATE_IDLE);
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippWrite(http, message);
    if (state == IPP_STATE_ERROR)
        return answerInstead();
    if (!document)
        return HTTP_STATUS_CONTINUE;
    // A server that does not want the document says so before it comes.
    if (httpWait(http, kMomentForRefusal)) {
        if (const http_status_t early = earlyAnswer(); early != HTTP_STATUS_CONTINUE)
            return early;
    }
    return sendDocument(*document, progress);
}

// What every request has. libcups keeps how it has logged in.
void ServerConnection::beginRequest()
{
    httpClearFields(m_line.http());
    if (const char *authorization = httpGetAuthString(m_line.http()))
        httpSetField(m_line.http(), HTTP_FIELD_AUTHORIZATION, authorization);
}

// What a server says before it has the whole document. What is refused now is refused, whatever
// would come behind it; an IPP message says why.
http_status_t ServerConnection::earlyAnswer()
{
    const http_status_t status = m_line.readHead();
    m_isEarly = status > HTTP_STATUS_CONTINUE;
    return status;
}

// Who says in the midst of a document that it will not have it does not have it: that is no trouble
// on the way which may pass.
void ServerConnection::noteEarly(http_status_t status)
{
    if (!m_line.isCanceled() &&
        (status == HTTP_STATUS_REQUEST_TOO_LARGE || status >= HTTP_STATUS_SERVER_ERROR))
        return m_line.fail({ServerProblem::Kind::Refused, QString::fromUtf8(httpStatus(status)),
                            status == HTTP_STATUS_REQUEST_TOO_LARGE
                                ? IPP_STATUS_ERROR_REQUEST_ENTITY
                                : IPP_STATUS_ERROR_SERVICE_UNAVAILABLE});
    m_line.noteFailure(status);
}

// What a server has said before it took no more of a request. That cannot go on where it was broken
// off, whatever an interim answer promises.
http_status_t ServerConnection::answerInstead()
{
    if (!httpWait(m_line.http(), 0))
        return HTTP_STATUS_ERROR;
    // Patience may have gone by with sending; it has answered all the same.
    m_line.wait().start();
    const http_status_t status = earlyAnswer();
    return status == HTTP_STATUS_CONTINUE ? HTTP_STATUS_ERROR : status;
}

// The message, or null where there is none.
IppMessage ServerConnection::readIpp()
{
    const bool isLast = m_line.isLastAnswer();
    AnswerReader reader(m_line.http(), m_line.wait(), kLargestAnswer);
    IppMessage message = reader.readIpp();
    if (!message)
        noteUnread(reader);
    if (!message || !reader.skipRest() || isLast)
        m_line.close();
    return message;
}

// Null for an answer that says no.
IppMessage ServerConnection::unlessRefused(IppMessage response)
{
    // "Redirection" and above are refusals; ignored attributes are not.
    if (!response || ippGetStatusCode(response.get()) < IPP_STATUS_REDIRECTION_OTHER_SITE)
        return response;
    // A server may say any number, and no value may be read that the enumeration cannot have.
    const int number = ippGetStatusCode(response.get());
    const ipp_status_t said =
        number > kLastStatus ? IPP_STATUS_ERROR_INTERNAL : static_cast<ipp_status_t>(number);
    m_line.fail({said == IPP_STATUS_ERROR_NOT_FOUND ? ServerProblem::Kind::NotFound
                                                    : ServerProblem::Kind::Refused,
                 ippText(ippFindAttribute(response.get(), "status-message", IPP_TAG_ZERO)), said});
    return nullptr;
}

// CONTINUE when all of it was taken.
http_status_t ServerConnection::sendDocument(QIODevice &document,
                                             const std::function<void(qint64)> &progress)
{
    ServerWait &wait = m_line.wait();
    wait.endOnAnswer(true);
    const auto waitsAgain = qScopeGuard([&wait] { wait.endOnAnswer(false); });
    qint64 sent = 0;
    std::array<char, kBlock> block{};
    while (!document.atEnd()) {
        const qint64 length = document.read(block.data(), kBlock);
        if (length < 0 || (length == 0 && !document.atEnd())) {
            m_line.close();
            m_line.fail({ServerProblem::Kind::DocumentUnreadable, document.errorString()});
            return HTTP_STATUS_ERROR;
        }
        wait.start();
        if (m_line.isCanceled())
            return HTTP_STATUS_ERROR;
        if (httpWrite2(m_line.http(), block.data(), static_cast<size_t>(length)) < 0)
            return answerInstead();
        sent += length;
        if (progress)
            progress(sent);
        if (!document.atEnd() && httpCheck(m_line.http())) {
            if (const http_status_t early = earlyAnswer(); early != HTTP_STATUS_CONTINUE)
                return early;
        }
    }
    m_documentSent = true;
    return HTTP_STATUS_CONTINUE;
}

void ServerConnection::noteUnread(const AnswerReader &reader)
{
    if (reader.end() == AnswerReader::End::Broken)
        m_line.noteFailure(HTTP_STATUS_ERROR);
    else if (reader.end() == AnswerReader::End::TooLarge)
        m_line.fail({ServerProblem::Kind::TooLarge});
    else
        m_line.fail({ServerProblem::Kind::NotUnderstood});
}

ServerConnection::File ServerConnection::get(const QByteArray &resource)
{
    qCDebug(lcServer) << "GET" << resource;
    const auto status = m_line.converse("GET", resource, true, [&] { return sendGet(resource); });
    if (!status)
        return {};
    return *status == HTTP_STATUS_OK ? readFile() : takeRefusal(*status);
}

ServerConnection::File ServerConnection::readFile()
{
    const bool isLast = m_line.isLastAnswer();
    AnswerReader reader(m_line.http(), m_line.wait(), kLargestFile);
    auto content = reader.readAll();
    if (!content) {
        noteUnread(reader);
        m_line.close();
        return {};
    }
    if (isLast)
        m_line.close();
    return {File::State::Read, std::move(*content)};
}

// "There is none" is an answer; anything else is a failure.
ServerConnection::File ServerConnection::takeRefusal(http_status_t status)
{
    if (status != HTTP_STATUS_NOT_FOUND) {
        m_line.noteFailure(status);
        m_line.close();
        return {};
    }
    const bool isLast = m_line.isLastAnswer();
    if (!AnswerReader(m_line.http(), m_line.wait(), kLargestRefusal).readAll() || isLast)
        m_line.close();
    return {File::State::Missing, {}};
}

http_status_t ServerConnection::sendGet(const QByteArray &resource)
{
    beginRequest();
    return httpGet(m_line.http(), resource.constData()) == 0 ? HTTP_STATUS_CONTINUE
                                                             : HTTP_STATUS_ERROR;
}

} // namespace corvana
