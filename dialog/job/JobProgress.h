#pragma once

#include <QString>
#include <QStringList>

#include "dialog/printers/Printer.h"

namespace corvana {

/// How far a job has come.
struct JobProgress
{
    enum class Stage { Converting, Sending, Waiting, Held, Printing, Stopped };

    /// Which sides are printed, of a job whose sheets go through the printer twice.
    enum class Sides { All, First, Other };

    Stage stage = Stage::Converting;
    int job = 0;       ///< its number at the server; 0 before it has one
    int page = 0;      ///< that the printer or the filter chain has come to; 0 where nobody counts
    qint64 sent = 0;   ///< bytes
    qint64 total = 0;  ///< bytes; 0 where nothing is being sent
    QString message{}; ///< what the printer says
    QStringList reasons{}; ///< what its server says of its state: IPP keywords
    Sides sides = Sides::All;

    bool operator==(const JobProgress &) const = default;
    /// For a person: "Printing page 3…".
    QString text() const;
};

/// How users and lp name a job: "QUEUE-NUMBER", without an instance, or the number of a printer
/// that is spoken to directly.
QString jobName(const Printer &printer, int job);

} // namespace corvana
