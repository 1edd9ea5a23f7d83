#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "platform/printcore/Ppd.h"

namespace corvana {

class Bundle;

/// Whether a printer gets a bundle's panels, and why.
struct PanelDecision
{
    bool panels = false;
    QString reason; ///< for the log and for whoever asks
};

/// The file name of the bundle that a PPD names; null when it names none.
QString namedBundle(ppd_file_t *ppd);

/// A PPD gets the panels of the bundle that its attribute "QXPrintDialogExtension" names by file
/// name, or of a bundle whose identifying keywords ("PMPPDKeysIdentifying" of its information
/// dictionary) it defines, all of them.
PanelDecision decidePanels(ppd_file_t *ppd, const Bundle &bundle);

} // namespace corvana
