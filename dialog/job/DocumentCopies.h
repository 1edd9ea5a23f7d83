#pragma once

#include <QString>

#include "dialog/session/JobTicket.h"

namespace corvana {

/// In which order the copies of a job come out.
enum class CopiesOrder {
    Plain,        ///< one copy, or one document: what "collate" says is all that there is to say
    SetOfAll,     ///< A B A B: the documents, and then all of them again
    EachDocument, ///< A A B B: each document with all its copies
    EachPage,     ///< of documents that were put together: each page with all its copies
};

/// Whether copies come out one after the other (1 2 3 1 2 3), as is usual, rather than each page
/// with all its copies.
bool isCollated(const QList<JobOption> &options);

/// The most documents that a job is given for the sake of the order of its copies: each of them
/// goes through the network and the filters of the server.
inline constexpr int kMostRepeatedDocuments = 100;

/// How often the documents of a job are sent one after the other, each with a single copy, for
/// copies in the order A B A B: a server prints A A B B whatever it is asked for. 1 where they are
/// sent once, with the copies of the ticket.
int repetitionsOf(const JobTicket &ticket, int documents);

/// The order of the copies of a job with so many documents. `arePutTogether`: they become one.
CopiesOrder copiesOrder(const JobTicket &ticket, int documents, bool arePutTogether);

/// The order for a person: "each document with all its copies (A A B B)"; empty where it is plain.
QString textOf(CopiesOrder order);

} // namespace corvana
