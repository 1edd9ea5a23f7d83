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

} // namespace

QString JobProgress::text() const
{
    switch (stage) {
    case Stage::Converting:
        return Texts::tr("Preparing…");
    case Stage::Sending:
        return total > 0 ? Texts::tr("Sending, %1 %…").arg(sent * 100 / total)
                         : Texts::tr("Asking the print server…");
    case Stage::Waiting:
        return Texts::tr("Waiting in the queue…");
    case Stage::Held:
        return Texts::tr("Held in the queue");
    case Stage::Printing:
        return page > 0 ? Texts::tr("Printing page %1…").arg(page) : Texts::tr("Printing…");
    case Stage::Stopped:
        return message.isEmpty() ? Texts::tr("The printer is stopped.")
                                 : Texts::tr("The printer is stopped: %1").arg(message);
    }
    return {};
}

QString jobName(const Printer &printer, int job)
{
    if (printer.origin == PrinterOrigin::Device)
        return QString::number(job);
    return u"%1-%2"_s.arg(queueOfInstance(printer.name), QString::number(job));
}

} // namespace corvana
