#pragma once

#include <functional>
#include <memory>

#include <QStringList>

#include "dialog/printers/FetchedPrinter.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/PanelHost.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

class Bundle;
class PDEJobValues;
class PDEPageColors;
class PpdAhead;

/// One printer, opened: its session and its panels. Another printer, PPD or language needs another
/// one.
struct OpenedPrinter
{
    FetchedPrinter fetched;
    /// As its server says them; `fetched` is without those that nobody has asked for.
    QList<JobOption> saidDefaults;
    std::unique_ptr<PpdSession> session;
    /// After the session, which the panels borrow.
    std::unique_ptr<PanelHost> panels;
    /// Null for a printer without panels. Ownership: the plug-in's.
    PDEJobValues *jobValues = nullptr;
    /// The same; null also for panels that do nothing to colours. Ownership: the plug-in's.
    PDEPageColors *pageColors = nullptr;
    /// The bundle that the panels come from, or null.
    std::shared_ptr<Bundle> bundle;
    /// What an administrator locks and this printer does not have; each with its file and line.
    QStringList voidLocks;
    /// Why the printer has no panels although it should; empty otherwise.
    QString panelProblem;
};

/// What was fetched of a printer, for one that is open with the PPD of it.
void setFetched(const FetchedPrinter &fetched, OpenedPrinter &opened);

/// How many copies the printer makes at once; 0: as many as anybody can ask for.
inline int mostCopiesOf(const OpenedPrinter &printer)
{
    return printer.fetched.capabilities ? printer.fetched.capabilities->maximumCopies : 0;
}

/// The job as the printer is set now.
JobTicket makeTicket(const OpenedPrinter &printer, const QList<JobOption> &attributes,
                     const QString &title, int copies);

/// Opens a printer, which has a PPD. Panels come from the plug-in bundle in the first of the
/// `bundleRoots` that holds it, when the PPD wants them; without them the printer has the General
/// page and the list of its options only, and the log says why. `prepare` brings the session to
/// where it was left, and locks what nobody may change, before any panel is built on it. `ppds`
/// opens the PPD, where it is given. Errors: null; `error` says what is wrong with the PPD.
std::unique_ptr<OpenedPrinter> openPrinter(const FetchedPrinter &fetched,
                                           const QStringList &bundleRoots,
                                           AlertPresenter &presenter, QString *error,
                                           const std::function<void(OpenedPrinter &)> &prepare = {},
                                           PpdAhead *ppds = nullptr);

} // namespace corvana
