#include "tests/dialog/support/LoadedBundle.h"

#include <stdexcept>

#include <QFileInfo>

#include "platform/pde/PDEBundleLoader.h"

namespace corvana::test {

namespace {
constexpr char kBundleFolder[] = CORVANA_TEST_BUNDLE_DIR;
}

QStringList builtBundleRoots()
{
    return {QFileInfo(QString::fromUtf8(kBundleFolder)).path()};
}

PDEPlugIn &loadedPlugIn()
{
    const LoadedPlugIn loaded = loadPlugInBundle(
        QFileInfo(QString::fromUtf8(kBundleFolder)).fileName(), builtBundleRoots());
    if (!loaded.plugIn)
        throw std::runtime_error(loaded.problem.toStdString());
    return *loaded.plugIn;
}

} // namespace corvana::test
