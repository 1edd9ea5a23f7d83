#pragma once

#include <QByteArray>

#include "dialog/job/JobOutcome.h"

namespace corvana {

/// What became of a job as one line that a program can read, JSON in UTF-8 with a line break behind
/// it. Its keys: queue, job (a number), state (a keyword), reasons (IPP keywords), pages, file,
/// message (what a person is told). What is not known is null.
QByteArray outcomeLine(const JobOutcome &outcome);

/// The same for a job that was never made.
QByteArray refusalLine(const QString &queue, const QStringList &problems);

/// Writes such a line to standard output.
void writeLine(const QByteArray &line);

} // namespace corvana
