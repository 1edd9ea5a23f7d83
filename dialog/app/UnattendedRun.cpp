#include "dialog/app/UnattendedRun.h"

#include <QCoreApplication>
#include <QTextStream>

#include "dialog/app/AlertPresenters.h"
#include "dialog/app/OpenedPrinter.h"
#include "dialog/app/TerminationSignals.h"
#include "dialog/job/FileQueue.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "platform/toolkit/InterfaceLoader.h"

namespace corvana {

namespace {

int refused(const QStringList &problems)
{
    QTextStream err(stderr);
    for (const QString &problem : problems)
        err << "corvana-print: " << problem << "\n";
    err << QCoreApplication::translate("UnattendedRun", "Nothing was printed.") << "\n";
    return 1;
}

// A panel without its controls would print other choices than one with them.
QStringList panelProblems(const OpenedPrinter &printer)
{
    QStringList problems = takeInterfaceProblems();
    if (!printer.panelProblem.isEmpty())
        problems += printer.panelProblem;
    return problems;
}

QStringList refusalMessages(PpdSession &session)
{
    QStringList messages;
    const QList<Refusal> refusals = session.takeRefusals();
    for (const Refusal &refusal : refusals)
        messages += conflictMessage(refusal);
    return messages;
}

} // namespace

int runUnattended(const PrintRequest &request)
{
    const TerminationSignals termination;
    TerminalAlertPresenter presenter(request.onAlert);
    QString error;
    const auto printer = openPrinter(request.printers.at(request.chosenPrinter),
                                     request.bundleRoots, presenter, &error);
    if (!printer)
        return refused({error});
    printer->panels->bringUp();
    if (const QStringList problems = panelProblems(*printer); !problems.isEmpty())
        return refused(problems);
    const OptionOutcome options =
        applyOptions(request.options, *printer->session, printer->jobValues, *printer->panels);
    if (!options.ok())
        return refused(options.problems);

    const bool printing = !request.documents.isEmpty();
    const bool allowed = !printing || printer->panels->shouldPrint();
    if (presenter.jobMustWait()) {
        return refused(
            {request.onAlert == AlertPolicy::Hold
                 ? QCoreApplication::translate(
                       "UnattendedRun",
                       "The job would have to wait for these instructions, and a file cannot "
                       "wait. Follow them and print with --on-alert=print.")
                 : QCoreApplication::translate("UnattendedRun",
                                               "The printer's settings show instructions.")});
    }
    if (!allowed)
        return refused({QCoreApplication::translate("UnattendedRun",
                                                    "The printer's settings hold the job back.")});
    QTextStream out(stdout);
    // Before the ticket: the panels restore and save on the way.
    if (request.summary)
        out << summaryText(sessionSummary(*printer->session, *printer->panels, request.copies))
            << Qt::flush;
    const QStringList problems =
        refusalMessages(*printer->session) + jobProblems(*printer->session, printer->jobValues);
    if (!problems.isEmpty())
        return refused(problems);
    const JobTicket ticket =
        makeTicket(*printer, options.attributes, request.title, request.copies);
    if (!printing)
        return 0;

    FileQueue queue;
    QString problem;
    QObject::connect(&queue, &FileQueue::finished, [&problem](const QString &p) { problem = p; });
    QObject::connect(&termination, &TerminationSignals::received, &queue, &FileQueue::cancel);
    queue.print(request.documents, ticket, printer->printer.ppdPath, request.output);
    if (termination.caught())
        queue.cancel(); // while the printer was being opened
    if (!queue.wait()) {
        const int status = refused({problem});
        return termination.caught() ? termination.exitStatus() : status;
    }
    out << QCoreApplication::translate("UnattendedRun", "Printed to %1").arg(request.output)
        << "\n";
    return 0;
}

} // namespace corvana
