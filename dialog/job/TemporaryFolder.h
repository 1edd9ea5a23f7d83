#pragma once

#include <QString>
#include <QTemporaryDir>

namespace corvana {

/// Why a folder for files of our own could not be made, with the place where it was to be, which is
/// what TMPDIR says; empty where it is there.
QString problemOf(const QTemporaryDir &folder);

} // namespace corvana
