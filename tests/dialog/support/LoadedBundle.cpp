#include "tests/dialog/support/LoadedBundle.h"

#include <stdexcept>

#include <QFileInfo>

#include "platform/pde/PDEBundleLoader.h"
#include "tests/support/TestPaths.h"

namespace corvana::test {

namespace {
const QString kBundleFolder = corvana::test::bundleFile();
}

QStringList builtBundleRoots()
{
    return {QFileInfo(kBundleFolder).path()};
}

PDEPlugIn &loadedPlugIn()
{
    const LoadedPlugIn loaded =
        loadPlugInBundle(QFileInfo(kBundleFolder).fileName(), builtBundleRoots());
    if (!loaded.plugIn)
        throw std::runtime_error(loaded.problem.toStdString());
    return *loaded.plugIn;
}

} // namespace corvana::test
