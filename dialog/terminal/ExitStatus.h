#pragma once

#include <QList>
#include <QString>

#include "dialog/job/JobOutcome.h"

namespace corvana {

/// How a run says to a script what became of its job. A signal that ended the run has 128 and its
/// number.
enum class ExitStatus {
    Done = 0,          ///< printed, sent, or in its queue with the reason why it waits there
    Failed = 1,        ///< refused, failed or canceled: it will not be printed
    NotUnderstood = 2, ///< of the command line
    Unknown = 3,       ///< it was sent, and nobody can say what became of it
    StillThere = 4,    ///< the time of --wait is over, and the job is still in its queue
};

ExitStatus exitStatusOf(const JobOutcome &outcome);

struct ExitStatusMeaning
{
    ExitStatus status;
    QString meaning; ///< in the user's language
};

/// All of them, for the help.
QList<ExitStatusMeaning> exitStatusMeanings();

} // namespace corvana
