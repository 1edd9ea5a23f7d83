#pragma once

#include <optional>

#include <QList>
#include <QString>

#include "dialog/printers/Printer.h"
#include "dialog/server/ServerConnection.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

// What is asked of a print server about a job. All of it waits for a network: for workers.

/// A job as its server describes it.
struct JobStatus
{
    int state = 0;      ///< IPP: 3 pending, 4 held, 5 processing, 6 stopped, 7 to 9 the ends
    int pages = 0;      ///< sheets or pages that came out; 0 where nobody counts
    int documents = -1; ///< -1 where the server does not say
    QString message{};  ///< what the printer says of the job
    QStringList reasons{};
    QString queueUri{}; ///< the queue that has it now; empty where the server does not say
    bool printerStopped = false;
    bool begun = true; ///< whether anything of it may have got to the printer

    /// A server may say anything: what is no state, or none of IPP's, says nothing of the job.
    bool isKnown() const { return state >= IPP_JSTATE_PENDING && state <= IPP_JSTATE_COMPLETED; }
    bool isOver() const { return isKnown() && state >= IPP_JSTATE_CANCELED; }
    /// Whether it has fewer documents than it was to have. What the server does not count, or
    /// nobody remembers (0), is no less.
    bool lacksDocuments(int wanted) const { return documents >= 0 && documents < wanted; }
    bool operator==(const JobStatus &) const = default;
};

/// Why a ticket cannot be sent: CUPS drops or cuts such names and values without a word. Empty when
/// nothing is in the way.
QString unsendableOption(const JobTicket &ticket);

/// A name for one job that no other has, by which it can be found before its number is known.
QString newJobToken();

/// Creates a job without its document. Answers its number.
/// Errors: nothing; the connection's problem() says why.
std::optional<int> createJob(ServerConnection &connection, const Printer &printer,
                             const JobTicket &ticket, const QString &token,
                             const std::optional<Credentials> &forDevice);

/// Looks for the job with this token among those of the user's that are not over. Answers its
/// number, 0 when there is none.
/// Errors: nothing; the connection's problem() says why.
std::optional<int> findJob(ServerConnection &connection, const Printer &printer,
                           const QString &token);

/// One document on its way to a job.
struct DocumentToSend
{
    QString format;
    QString title;
    QIODevice &content;
    bool isLast = true; ///< of its job, which may be printed from then on
};

/// Sends a document of a job. Errors: false.
bool sendDocument(ServerConnection &connection, const Printer &printer, int job,
                  const DocumentToSend &document, const std::function<void(qint64 sent)> &progress);

/// Errors: nothing; the problem is `NotFound` for a job that its server does not know.
std::optional<JobStatus> lookUpJob(ServerConnection &connection, const Printer &printer, int job);

/// The queue that has a job now, where an administrator has moved it to another one of the same
/// server; nothing where it still is where it was sent to.
std::optional<Printer> movedTo(const JobStatus &status, const Printer &printer);

/// Why a queue takes no jobs, in its administrator's words; empty where they say nothing.
/// Errors: empty.
QString whyNotAccepting(ServerConnection &connection, const Printer &printer);

/// Gives a job that its device has not let in another user and password, and lets it go on.
/// Errors: false.
bool authenticateJob(ServerConnection &connection, const Printer &printer, int job,
                     const Credentials &forDevice);

/// Errors: false.
bool cancelJob(ServerConnection &connection, const Printer &printer, int job);

} // namespace corvana
