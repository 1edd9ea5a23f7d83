#pragma once

#include <functional>
#include <memory>

#include <QStringList>
#include <QTemporaryFile>

#include "dialog/printers/Printer.h"
#include "dialog/session/PanelHost.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

class Bundle;
class PDEJobValues;
struct PrinterCapabilities;

/// One printer, opened: its session and its panels. Another printer, PPD or language needs another
/// one.
struct OpenedPrinter
{
    Printer printer;
    std::unique_ptr<PpdSession> session;
    /// After the session, which the panels borrow.
    std::unique_ptr<PanelHost> panels;
    /// Null for a printer without panels. Ownership: the plug-in's.
    PDEJobValues *jobValues = nullptr;
    /// The bundle that the panels come from, or null.
    std::shared_ptr<Bundle> bundle;
    /// What a printer without a PPD of its own can do, and the PPD that was written for it, whose
    /// choices are said in its own words when it is printed to; null for any other printer.
    std::shared_ptr<const PrinterCapabilities> capabilities;
    std::shared_ptr<QTemporaryFile> writtenPpd;
    /// The digest of its PPD; empty where nobody has to compare it.
    QByteArray ppdHash{};
    /// When the PPD was changed at its server. Units: seconds since 1970; 0 where there is none.
    qint64 ppdLastModified = 0;
    /// Why the printer has no panels although it should; empty otherwise.
    QString panelProblem;
};

/// Opens a printer. Panels come from the plug-in bundle in the first of the `bundleRoots` that
/// holds it, when the PPD wants them; without them the printer has the General page and the list of
/// its options only, and the log says why. `restore` brings the session to where it was left,
/// before any panel is built on it. Errors: null; `error` says what is wrong with the PPD.
std::unique_ptr<OpenedPrinter> openPrinter(const Printer &printer, const QStringList &bundleRoots,
                                           AlertPresenter &presenter, QString *error,
                                           const std::function<void(PpdSession &)> &restore = {});

} // namespace corvana
