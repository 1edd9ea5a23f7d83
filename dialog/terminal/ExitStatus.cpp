#include "dialog/terminal/ExitStatus.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// The help is written before there is an application, whose translations would be needed for
// anything but English.
constexpr struct
{
    ExitStatus status;
    QLatin1StringView meaning;
} kMeanings[] = {
    {ExitStatus::Done, "printed, sent, or in the queue with the reason why it waits there"_L1},
    {ExitStatus::Failed, "refused, failed or canceled"_L1},
    {ExitStatus::NotUnderstood, "a command line that cannot be understood"_L1},
    {ExitStatus::Unknown, "sent, and what became of it is not known"_L1},
    {ExitStatus::StillThere, "the time of --wait is over; the job is still in the queue"_L1},
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

QString exitStatusHelp()
{
    QString help = u"\nExit status:\n"_s;
    for (const auto &[status, meaning] : kMeanings)
        help += u"  %1    %2\n"_s.arg(QString::number(int(status)), meaning);
    return help + u"  128 and a signal's number: ended by that signal\n"_s;
}

} // namespace corvana
