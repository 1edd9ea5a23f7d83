#pragma once

#include <QLatin1StringView>
#include <QString>

namespace corvana::test {

/// Files that tests read. They are named here and nowhere on a compiler's command line, so that
/// what was compiled in one checkout serves in the next one.

/// A file of the source tree; `path` as in "resources/ppd/corvana-cl5.ppd".
QString sourceFile(const QString &path);
QString sourceFile(QLatin1StringView path);

/// A file of the plug-in bundle in the build folder; without a path the bundle itself.
QString bundleFile(const QString &path);
QString bundleFile(QLatin1StringView path = {});

/// The folder that the bundle lies in, which a program is told to look in.
QString bundleRoot();

/// A file of the program's share folder in the build folder.
QString sharedFile(const QString &path);
QString sharedFile(QLatin1StringView path);

} // namespace corvana::test
