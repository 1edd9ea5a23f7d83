#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "platform/PlatformExport.h"

namespace corvana {

class Bundle;
class PDEPlugIn;

/// A plug-in bundle whose code is loaded, or the reason why it is not.
struct LoadedPlugIn
{
    std::shared_ptr<Bundle> bundle;
    /// Ownership: the module's, which is never unloaded. Null when `problem` is set.
    PDEPlugIn *plugIn = nullptr;
    QString problem;
};

/// A plug-in bundle that was found and looked at, while none of its code runs.
struct FoundPlugIn
{
    std::shared_ptr<Bundle> bundle; ///< null when there is none, or it cannot be trusted
    QString module;                 ///< canonical
    /// Why the bundle cannot be used; empty when it can, or when there is none of that name.
    QString problem;
};

/// Looks for the bundle `fileName` in the trusted roots, and at what it says of itself.
CORVANA_PLATFORM_EXPORT FoundPlugIn findPlugInBundle(const QString &fileName,
                                                     const QStringList &trustedRoots);

/// Loads the code of a bundle that was found; the second time it answers the same principal object.
CORVANA_PLATFORM_EXPORT LoadedPlugIn loadPlugIn(const FoundPlugIn &found);

/// Finds and loads the bundle `fileName` (for instance "QXCLQuality13PDE.bundle") from the first of
/// the `trustedRoots` that holds it, and creates its principal object.
///
/// A bundle is refused, before any of its code runs, when its canonical path lies outside the root
/// it was found in, when it, anything in it or anything between it and the root can be written by
/// others (everybody, or a group in which somebody else may be) or leads out of it, when its information dictionary lacks the keys of a plug-in, or when
/// its module was built for another contract.
CORVANA_PLATFORM_EXPORT LoadedPlugIn loadPlugInBundle(const QString &fileName,
                                                      const QStringList &trustedRoots);

} // namespace corvana
