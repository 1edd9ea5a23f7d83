#pragma once

#include <QString>

#include "dialog/printers/Printer.h"

namespace corvana {

/// How far a job has come.
struct JobProgress
{
    enum class Stage { Converting, Sending, Waiting, Held, Printing, Stopped };

    Stage stage = Stage::Converting;
    int job = 0;       ///< its number at the server; 0 before it has one
    int page = 0;      ///< 0 where nobody counts
    qint64 sent = 0;   ///< bytes
    qint64 total = 0;  ///< bytes; 0 where nothing is being sent
    QString message{}; ///< what the printer says

    bool operator==(const JobProgress &) const = default;
    /// For a person: "Printing page 3…".
    QString text() const;
};

/// What became of a job, and nothing that is not known to be so.
struct JobOutcome
{
    enum class Kind {
        Printed,      ///< the server says that it is complete
        InQueue,      ///< the server has all of it and will print it; `text` says what it waits for
        Stopped,      ///< the server has all of it, and prints it when somebody releases it
        Failed,       ///< it will not be printed
        Canceled,     ///< somebody ended it, here or at the server
        Unknown,      ///< it was sent, and nobody can say what became of it
        AlreadyThere, ///< an earlier try turned out to have reached the queue; nothing was sent
        PrinterChanged, ///< the printer's options are others by now; nothing was sent
    };

    Kind kind = Kind::Failed;
    int job = 0; ///< its number at the server; 0 when it never had one
    QString text{};

    /// Whether the server has the job, for the exit status.
    bool isDone() const { return kind == Kind::Printed || kind == Kind::InQueue; }
};

/// How users and lp name a job: "QUEUE-NUMBER", without an instance, or the number of a printer
/// that is spoken to directly.
QString jobName(const Printer &printer, int job);

} // namespace corvana
