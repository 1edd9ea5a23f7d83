#pragma once

#include <QList>
#include <QString>

#include "dialog/session/JobTicket.h"
#include "dialog/session/PanelHost.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/window/PrintWindow.h"

namespace corvana::test {

// The parts of brokenInvariant(). Each answers null where nothing is wrong.

/// The printer whose settings are to be what is shown: null while there is none, while a job is
/// made, and while a panel is at work or has an alert open. What follows from an act is shown when
/// that is over.
inline OpenedPrinter *settledPrinter(PrintWindow &window)
{
    OpenedPrinter *opened = window.task().opened();
    const bool isSettled = opened && window.task().phase() == PrintTask::Phase::Ready;
    return isSettled && !opened->panels->isBusy() ? opened : nullptr;
}

/// The summary that is seen is that of the task, and says what the job carries. Asks for a summary
/// only where one is seen, because that saves what the visible panel shows.
QString summaryFault(PrintWindow &window);
/// What lines of a summary and a job say that the other one does not.
QString summaryAndTicketFault(const QList<SummaryLine> &lines, const JobTicket &ticket,
                              const PpdSession &session);

/// The options, the attributes and the copies on the page "General" show what is in force.
QString generalFault(PrintWindow &window);
/// So does the list of options, where it is seen.
QString optionListFault(PrintWindow &window);
/// So do the controls of the panel that is seen.
QString panelFault(PrintWindow &window);

} // namespace corvana::test
