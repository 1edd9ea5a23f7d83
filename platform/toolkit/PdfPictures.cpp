#include "platform/toolkit/PdfPictures.h"

#include <dlfcn.h>

#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QLoggingCategory>

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPdfPictures, "corvana.toolkit.pdf", QtWarningMsg)

namespace {

// The folder of the library that this code is in, so that nothing from elsewhere is ever loaded:
// neither the environment nor the current folder has a say.
QString ownFolder()
{
    Dl_info library{};
    if (::dladdr(kFirstPageOfPdf, &library) == 0)
        return {};
    return QFileInfo(QFileInfo(QFile::decodeName(library.dli_fname)).canonicalFilePath()).path();
}

FirstPageOfPdf loadFirstPageOfPdf()
{
    const QString folder = ownFolder();
    if (!folder.startsWith(u'/'))
        return nullptr;
    QLibrary library(folder + u"/libcorvana-pdf-pictures.so"_s);
    // Its libraries keep threads and caches of their own, which do not survive being unloaded.
    library.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    const auto firstPage = reinterpret_cast<FirstPageOfPdf>(library.resolve(kFirstPageOfPdf));
    if (!firstPage)
        qCWarning(lcPdfPictures).noquote()
            << "pictures that are PDF pages cannot be shown:" << library.errorString();
    return firstPage;
}

} // namespace

QImage firstPageOfPdf(const QString &file, double devicePixelRatio)
{
    static const FirstPageOfPdf draw = loadFirstPageOfPdf();
    QImage page;
    if (draw)
        draw(file, devicePixelRatio, &page);
    return page;
}

} // namespace corvana
