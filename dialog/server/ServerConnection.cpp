#include "dialog/server/ServerConnection.h"

#include <array>
#include <utility>

#include <QIODevice>

#include "dialog/server/AnswerReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kBlock = 65536;
// No PPD is that large; an endless answer must not fill the memory. Units: bytes.
constexpr qint64 kLargestFile = 32 * 1024 * 1024;
// What CUPS says of 10,000 queues when it says all, 10 KB of each, where a server knows no "limit".
constexpr qint64 kLargestAnswer = 128 * 1024 * 1024;
// What is said beside a refusal is of no use; this much is passed over to keep the connection.
constexpr qint64 kLargestRefusal = 65536;

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
        m_line.noteFailure(*status);
        m_line.close();
        return nullptr;
    }
    return unlessRefused(readIpp());
}

http_status_t ServerConnection::sendIpp(ipp_t *message, const QByteArray &resource,
                                        QIODevice *document,
                                        const std::function<void(qint64)> &progress)
{
    m_documentSent = false;
    if (document && !document->seek(0)) {
        m_line.fail({ServerProblem::Kind::DocumentUnreadable, document->errorString()});
        return HTTP_STATUS_ERROR;
    }
    size_t length = ippLength(message);
    if (document)
        length += static_cast<size_t>(document->size());
    ippSetState(message, IPP_STATE_IDLE);
    m_requestSent = true;
    const http_status_t status =
        cupsSendRequest(m_line.http(), message, resource.constData(), length);
    if (status != HTTP_STATUS_CONTINUE && status != HTTP_STATUS_OK)
        return httpGetStatus(m_line.http());
    // libcups goes over to TLS, and to a new connection, by itself.
    if (!m_line.keepsOnlyTrusted())
        return HTTP_STATUS_ERROR;
    if (document && status == HTTP_STATUS_CONTINUE)
        m_documentSent = sendDocument(*document, progress);
    return HTTP_STATUS_CONTINUE;
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
    const ipp_status_t said = ippGetStatusCode(response.get());
    m_line.fail({said == IPP_STATUS_ERROR_NOT_FOUND ? ServerProblem::Kind::NotFound
                                                    : ServerProblem::Kind::Refused,
                 ippText(ippFindAttribute(response.get(), "status-message", IPP_TAG_ZERO)), said});
    return nullptr;
}

// True when all of it was taken.
bool ServerConnection::sendDocument(QIODevice &document,
                                    const std::function<void(qint64)> &progress)
{
    qint64 sent = 0;
    std::array<char, kBlock> block{};
    while (!document.atEnd()) {
        const qint64 length = document.read(block.data(), kBlock);
        if (length < 0 || (length == 0 && !document.atEnd())) {
            m_line.close();
            m_line.fail({ServerProblem::Kind::DocumentUnreadable, document.errorString()});
            return false;
        }
        m_line.wait().start();
        if (m_line.isCanceled() ||
            cupsWriteRequestData(m_line.http(), block.data(), static_cast<size_t>(length)) !=
                HTTP_STATUS_CONTINUE)
            return false;
        sent += length;
        if (progress)
            progress(sent);
    }
    return true;
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
    httpClearFields(m_line.http());
    if (const char *authorization = httpGetAuthString(m_line.http()))
        httpSetField(m_line.http(), HTTP_FIELD_AUTHORIZATION, authorization);
    // A connection that had been idle for too long is made anew.
    if (httpGet(m_line.http(), resource.constData()) != 0 &&
        (!m_line.reconnect() || httpGet(m_line.http(), resource.constData()) != 0))
        return HTTP_STATUS_ERROR;
    // So does libcups, by itself, after a refusal.
    return m_line.keepsOnlyTrusted() ? HTTP_STATUS_CONTINUE : HTTP_STATUS_ERROR;
}

} // namespace corvana
