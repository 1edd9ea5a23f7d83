#include "dialog/job/JobOutcome.h"

namespace corvana {

using namespace Qt::StringLiterals;

QLatin1StringView outcomeKeyword(JobOutcome::Kind kind)
{
    using Kind = JobOutcome::Kind;
    switch (kind) {
    case Kind::Printed:
        return "printed"_L1;
    case Kind::Sent:
        return "sent"_L1;
    case Kind::InQueue:
        return "in-queue"_L1;
    case Kind::Stopped:
        return "stopped"_L1;
    case Kind::Failed:
        return "failed"_L1;
    case Kind::Refused:
        return "refused"_L1;
    case Kind::Canceled:
        return "canceled"_L1;
    case Kind::Unknown:
        return "unknown"_L1;
    case Kind::AlreadyThere:
        return "already-there"_L1;
    case Kind::PrinterChanged:
        return "printer-changed"_L1;
    }
    return {};
}

} // namespace corvana
