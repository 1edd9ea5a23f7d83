#pragma once

#include <QStringList>

namespace corvana {
class PDEPlugIn;
}

namespace corvana::test {

/// The folder in which the build puts plug-in bundles, as a dialog trusts it.
QStringList builtBundleRoots();

/// The plug-in of the build, loaded from its bundle as a dialog loads it. Ownership: its module's.
/// Errors: throws std::runtime_error with the loader's reason.
PDEPlugIn &loadedPlugIn();

} // namespace corvana::test
