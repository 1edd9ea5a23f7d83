#include "platform/library/OwnLibrary.h"

#include <dlfcn.h>

#include <QFile>
#include <QFileInfo>
#include <QLibrary>

namespace corvana {

namespace {

// Any address in the library that this code is in.
constexpr char kHere = 0;

QString ownFolder()
{
    Dl_info library{};
    if (::dladdr(&kHere, &library) == 0)
        return {};
    return QFileInfo(QFileInfo(QFile::decodeName(library.dli_fname)).canonicalFilePath()).path();
}

} // namespace

QFunctionPointer functionOfOwnLibrary(const QString &file, const char *name, QString *error)
{
    const QString folder = ownFolder();
    if (!folder.startsWith(u'/')) {
        *error = QStringLiteral("the folder of %1 is not known").arg(file);
        return nullptr;
    }
    QLibrary library(folder + u'/' + file);
    // Its libraries may keep threads and caches of their own, which do not survive being unloaded.
    library.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    const QFunctionPointer function = library.resolve(name);
    if (!function)
        *error = library.errorString();
    return function;
}

} // namespace corvana
