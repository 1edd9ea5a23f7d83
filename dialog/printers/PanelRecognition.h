#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "platform/pde/PDEBundleLoader.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

class Bundle;
struct Printer;

/// Whether a printer gets a bundle's panels, and why.
struct PanelDecision
{
    bool panels = false;
    QString reason;      ///< for the log and for whoever asks
    FoundPlugIn found{}; ///< the bundle that was looked at, if there is a usable one
};

/// What an administrator has decided about a printer's panels.
enum class PanelRule { ByPpd, Panels, None };

/// Reads an administrator's rules: lines "panels PATTERN" and "none PATTERN", of which the first
/// whose pattern fits a name counts; "*" and "?" stand for any characters, "#" begins a comment.
/// A file that is not there decides nothing; a line that is neither is left out and logged.
PanelRule panelRule(const QString &file, const QStringList &names);

/// The file of the rules: /etc/corvana-print/panels.conf, or the one that the environment variable
/// CORVANA_PRINT_PANELS names, where it counts (see ownVariable()).
QString panelRulesFile();

/// The file name of the bundle that a PPD names; null when it names none.
QString namedBundle(ppd_file_t *ppd);

/// A PPD gets the panels of the bundle that its attribute "QXPrintDialogExtension" names by file
/// name, or of a bundle whose identifying keywords ("PMPPDKeysIdentifying" of its information
/// dictionary) it defines, all of them.
///
/// A rule of the administrator's comes first. What it forces still comes from a trusted folder.
PanelDecision decidePanels(ppd_file_t *ppd, const Bundle &bundle,
                           PanelRule rule = PanelRule::ByPpd);

/// The same for a printer, with the administrator's rules and the bundle that is in the first of
/// the `bundleRoots` that has it. None of its code runs.
PanelDecision decidePanels(ppd_file_t *ppd, const Printer &printer, const QStringList &bundleRoots);

/// The file name of the bundle from which a printer's panels come, if it gets any.
QString bundleFileOf(ppd_file_t *ppd);

} // namespace corvana
