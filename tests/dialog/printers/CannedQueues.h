#pragma once

#include <memory>
#include <mutex>

#include <QList>

#include "dialog/printers/Printer.h"
#include "tests/support/cups/CannedServer.h"

namespace corvana::test {

/// A print server with as many queues as a test wants, which it changes as it likes.
class CannedQueues
{
public:
    CannedQueues();

    /// The server answers with these from now on, in this order, page by page as it is asked.
    void setQueues(const QList<Printer> &queues);
    void setDefault(const QString &name);
    /// Answers this status to the listing, behind the first `pages` pages. IPP_STATUS_OK: as usual.
    void failAfter(int pages, ipp_status_t status);
    /// Answers without regard to "limit" and "first-printer-name".
    void ignoreLimits();

    quint16 port() const { return m_server->port(); }
    /// How often a page was asked for.
    int pagesAsked() const { return m_server->count(IPP_OP_CUPS_GET_PRINTERS); }
    QList<CannedRequest> requests() const { return m_server->requests(); }

private:
    CannedAnswer answer(const CannedRequest &request);

    std::mutex m_mutex;
    QList<Printer> m_queues;
    QString m_default;
    int m_pagesUntilFailure = 0;
    ipp_status_t m_failure = IPP_STATUS_OK;
    bool m_ignoresLimits = false;
    std::unique_ptr<CannedServer> m_server; // the first to go
};

/// Idle queues "queue1", "queue2"…
QList<Printer> manyQueues(int count);

} // namespace corvana::test
