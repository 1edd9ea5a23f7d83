#include "dialog/terminal/ExitStatus.h"

#include <QCoreApplication>

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExitStatus)
};

} // namespace

ExitStatus exitStatusOf(const JobOutcome &outcome)
{
    switch (outcome.kind) {
    case JobOutcome::Kind::Printed:
    case JobOutcome::Kind::Sent:
    case JobOutcome::Kind::InQueue:
        return ExitStatus::Done;
    case JobOutcome::Kind::Unknown:
        return ExitStatus::Unknown;
    case JobOutcome::Kind::Stopped:
    case JobOutcome::Kind::Failed:
    case JobOutcome::Kind::Refused:
    case JobOutcome::Kind::Canceled:
    case JobOutcome::Kind::AlreadyThere:
    case JobOutcome::Kind::PrinterChanged:
        break;
    }
    return ExitStatus::Failed;
}

QList<ExitStatusMeaning> exitStatusMeanings()
{
    return {
        {ExitStatus::Done,
         Texts::tr("printed, sent, or in the queue with the reason why it waits there")},
        {ExitStatus::Failed, Texts::tr("refused, failed or canceled")},
        {ExitStatus::NotUnderstood, Texts::tr("a command line that cannot be understood")},
        {ExitStatus::Unknown, Texts::tr("sent, and what became of it is not known")},
        {ExitStatus::StillThere,
         Texts::tr("the time of --wait is over; the job is still in the queue")},
    };
}

} // namespace corvana
