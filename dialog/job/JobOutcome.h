#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

namespace corvana {

/// What became of a job, and nothing that is not known to be so.
struct JobOutcome
{
    enum class Kind {
        Printed, ///< the server says that it is complete, or the file has its name
        /// The server says that it is complete, but nobody could count its pages: not even an empty
        /// one would have been noticed.
        Sent,
        InQueue,      ///< the server has all of it and will print it; `text` says what it waits for
        Stopped,      ///< the server has all of it, and prints it when somebody releases it
        Failed,       ///< it will not be printed
        Refused,      ///< its queue does not take it: no job was made
        Canceled,     ///< somebody ended it, here or at the server
        Unknown,      ///< it was sent, and nobody can say what became of it
        AlreadyThere, ///< an earlier try turned out to have reached the queue; nothing was sent
        PrinterChanged, ///< the printer's options are others by now; nothing was sent
    };

    Kind kind = Kind::Failed;
    int job = 0;       ///< its number at the server; 0 when it never had one
    QString text{};    ///< for a person: one or more sentences
    QString file{};    ///< absolute path of a result that is a file; empty for a job of a server
    int documents = 0; ///< how many the job at its server was to have; 0 where that is not known
    /// How many of these the next try leaves out, because they are jobs of their own already.
    int sentDocuments = 0;

    QString queue{};       ///< that has the job, without an instance; empty where there is none
    QStringList reasons{}; ///< what its server says last of its state: IPP keywords
    int pages = 0;         ///< pages or sheets that came out; 0 where nobody counts

    bool operator==(const JobOutcome &) const = default;
    /// Whether the server has the job, or the file is there, for the exit status.
    bool isDone() const
    {
        return kind == Kind::Printed || kind == Kind::Sent || kind == Kind::InQueue;
    }
};

/// Whether it may come out of the printer yet, so that the same printed again may come out twice.
inline bool mayStillPrint(const JobOutcome &outcome)
{
    using Kind = JobOutcome::Kind;
    return outcome.kind == Kind::Unknown || outcome.kind == Kind::Stopped ||
           outcome.kind == Kind::InQueue;
}

/// What a program reads of it: "printed", "in-queue". "refused" is by the dialog or by a queue:
/// whoever reads it need not know which.
QLatin1StringView outcomeKeyword(JobOutcome::Kind kind);

} // namespace corvana
