#pragma once

#include <QString>

#include "platform/PlatformExport.h"
#include "platform/printcore/PageFormat.h"
#include "platform/printcore/Ppd.h"
#include "platform/printcore/PrintSettings.h"

namespace corvana {

class AlertPresenter;

/// The operations of PDEPluginCallback that a host may leave out.
enum class PDECallbackOperation {
    printSettings,
    pageFormat,
    willChangePPDOptionKeyValue_ppdChoice,
    panelViewDidResize,
    shownValuesDidChange,
    alertPresenter,
};

/// What a host offers its panels. One object serves all panels of one dialog, and is the sender of
/// the notifications that they exchange.
///
/// Ownership: shared; a panel keeps it until it dies. Thread: GUI thread only. The host never calls
/// a panel from inside any of these operations: a panel calls them in the midst of its own work.
class PDEPluginCallback
{
public:
    PDEPluginCallback() = default;
    PDEPluginCallback(const PDEPluginCallback &) = delete;
    PDEPluginCallback &operator=(const PDEPluginCallback &) = delete;
    virtual ~PDEPluginCallback() = default;

    /// Whether the host implements an operation. A panel asks before it calls; without
    /// willChangePPDOptionKeyValue_ppdChoice no panel can be constructed.
    virtual bool respondsTo(PDECallbackOperation operation) const = 0;

    /// The opened PPD file of the current printer. Ownership: the host's, for longer than any
    /// panel.
    virtual ppd_file_t *ppdFile() = 0;
    /// The job's print settings, or null. Ownership: the host's.
    virtual PMPrintSettings printSettings() = 0;
    /// The job's page format, or null. Ownership: the host's.
    virtual PMPageFormat pageFormat() = 0;

    /// Asks whether an option may take a choice. When the answer is true the host has already
    /// marked the choice in the PPD and recorded it in the print settings; false means that a
    /// constraint of the PPD, or an unknown name, refused the change. Never throws.
    virtual bool willChangePPDOptionKeyValue_ppdChoice(const QString &keyword,
                                                       const QString &choice) = 0;

    /// The panel's view has taken another size.
    virtual void panelViewDidResize() = 0;

    /// The user has moved a control whose value the panel keeps to itself until it saves
    /// (PDEPanel::writeShownValues()). Said at each step of a slider.
    virtual void shownValuesDidChange() = 0;

    /// Who shows the panels' alerts. Ownership: the host's. Never null where the host answers it.
    virtual AlertPresenter *alertPresenter() = 0;
};

} // namespace corvana
