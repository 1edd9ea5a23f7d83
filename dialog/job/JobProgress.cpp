#include "dialog/job/JobProgress.h"

#include <QCoreApplication>

#include "dialog/printers/UserQueues.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ServerJob)
};

QString textOfStage(const JobProgress &progress)
{
    using Stage = JobProgress::Stage;
    switch (progress.stage) {
    case Stage::Converting:
        return Texts::tr("Preparing…");
    case Stage::Sending:
        return progress.total > 0
                   ? Texts::tr("Sending, %1 %…").arg(progress.sent * 100 / progress.total)
                   : Texts::tr("Asking the print server…");
    case Stage::Waiting:
        return Texts::tr("Waiting in the queue…");
    case Stage::Held:
        return Texts::tr("Held in the queue");
    case Stage::Printing:
        return progress.page > 0 ? Texts::tr("Printing page %1…").arg(progress.page)
                                 : Texts::tr("Printing…");
    case Stage::Stopped:
        return progress.message.isEmpty()
                   ? Texts::tr("The printer is stopped.")
                   : Texts::tr("The printer is stopped: %1").arg(progress.message);
    }
    return {};
}

} // namespace

QString JobProgress::text() const
{
    switch (sides) {
    case Sides::All:
        break;
    case Sides::First:
        return Texts::tr("First sides: %1").arg(textOfStage(*this));
    case Sides::Other:
        return Texts::tr("Other sides: %1").arg(textOfStage(*this));
    }
    return textOfStage(*this);
}

QString jobName(const Printer &printer, int job)
{
    if (printer.origin == PrinterOrigin::Device)
        return QString::number(job);
    return u"%1-%2"_s.arg(queueOfInstance(printer.name), QString::number(job));
}

} // namespace corvana
