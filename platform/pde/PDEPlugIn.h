#pragma once

#include <memory>

#include <QList>
#include <QString>
#include <QtPlugin>

#include "platform/PlatformExport.h"
#include "platform/pde/PDEPanel.h"

namespace corvana {

class Bundle;
class PDEJobValues;
class PDEPageColors;
class PDEPluginCallback;

/// The type identifier under which a host asks for print dialog panels.
inline constexpr char kPrintDialogExtensionType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

/// The principal object of a plug-in bundle.
///
/// Ownership: the module's; it lives as long as the process. Thread: GUI thread only.
class CORVANA_PLATFORM_EXPORT PDEPlugIn
{
public:
    PDEPlugIn() = default;
    PDEPlugIn(const PDEPlugIn &) = delete;
    PDEPlugIn &operator=(const PDEPlugIn &) = delete;
    virtual ~PDEPlugIn();

    /// Called once after loading; false means that the bundle cannot be used.
    virtual bool initWithBundle(const std::shared_ptr<Bundle> &bundle) = 0;

    /// New panels for one dialog, in display order; empty for a type other than the plug-in's.
    /// The panels share `host`.
    virtual QList<std::shared_ptr<PDEPanel>>
    PDEPanelsForType_withHostInfo(const QString &type,
                                  const std::shared_ptr<PDEPluginCallback> &host) = 0;

    /// The optional interface for values that the panels own, or null. Ownership: the plug-in's.
    virtual PDEJobValues *jobValues() = 0;

    /// The optional interface for what the panels' settings do to colours, or null. Ownership: the
    /// plug-in's.
    virtual PDEPageColors *pageColors() { return nullptr; }
};

} // namespace corvana

/// Identifies the contract and its version; a module that was built for another one is refused
/// before any of its code runs. Each virtual function that is added makes a new version, even one
/// with a default: a module that was built before has no place for it in its tables, and a host
/// would call whatever lies behind them. Its source need not be changed to be built anew.
#define CORVANA_PDE_PLUGIN_IID "com.corvana.print.pde.PlugIn/4"
Q_DECLARE_INTERFACE(corvana::PDEPlugIn, CORVANA_PDE_PLUGIN_IID)
