#pragma once

#include <memory>
#include <utility>

#include <QByteArray>
#include <QList>
#include <QString>

#include <cups/cups.h>

namespace corvana::test {

/// A plain user of libcups, as any program could be: one connection to a server, with time-outs.
/// For tests of the fixtures, and for tests that must reach a server past the product's own code.
class Client
{
public:
    using Options = QList<std::pair<QByteArray, QByteArray>>;

    /// `server`: "127.0.0.1:PORT". Connects at once.
    explicit Client(const QString &server,
                    http_encryption_t encryption = HTTP_ENCRYPTION_IF_REQUESTED);

    bool isConnected() const { return m_http != nullptr; }
    http_t *http() const { return m_http.get(); }

    /// Sends `document` as a job with Create-Job and Send-Document. Returns its number, 0 when it
    /// was not taken.
    int print(const QString &queue, const QByteArray &document, const QByteArray &format,
              const Options &options = {});
    /// The HTTP status of the last step of print().
    http_status_t httpStatus() const { return m_httpStatus; }
    /// The IPP status of the last answer to print() or value().
    ipp_status_t status() const { return m_status; }

    /// An attribute of a queue, or of a job, as text ("a,b" for several values); null without it.
    QString queueValue(const QString &queue, const char *attribute);
    QString jobValue(int id, const char *attribute);
    /// The answer to one IPP request about a queue that has no other attributes.
    ipp_status_t ask(ipp_op_t operation, const QString &queue);

private:
    using Answer = std::unique_ptr<ipp_t, void (*)(ipp_t *)>;
    /// Sends a request and deletes it.
    Answer answerTo(ipp_t *request, const QByteArray &resource);
    QString value(ipp_t *request, const char *attribute);

    std::unique_ptr<http_t, void (*)(http_t *)> m_http;
    http_status_t m_httpStatus = HTTP_STATUS_NONE;
    ipp_status_t m_status = IPP_STATUS_OK;
};

} // namespace corvana::test
