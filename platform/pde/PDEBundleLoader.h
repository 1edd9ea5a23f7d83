#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "platform/PlatformExport.h"

namespace corvana {

class Bundle;
class PDEPlugIn;

/// A plug-in bundle whose code is loaded, or the reason why it is not.
struct LoadedPlugIn {
    std::shared_ptr<Bundle> bundle;
    /// Ownership: the module's, which is never unloaded. Null when `problem` is set.
    PDEPlugIn *plugIn = nullptr;
    QString problem;
};

/// Loads the bundle `fileName` (for instance "QXCLQuality13PDE.bundle") from the first of the
/// `trustedRoots` that holds it, and creates its principal object.
///
/// A bundle is refused, before any of its code runs, when its canonical path lies outside the root
/// it was found in, when it or anything between it and the root can be written by others, when its
/// information dictionary lacks the keys of a plug-in, or when its module was built for another
/// contract.
CORVANA_PLATFORM_EXPORT LoadedPlugIn loadPlugInBundle(const QString &fileName,
                                                      const QStringList &trustedRoots);

} // namespace corvana
