#include "platform/toolkit/PdfPictures.h"

#include <QLoggingCategory>

#include "platform/library/OwnLibrary.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPdfPictures, "corvana.toolkit.pdf", QtWarningMsg)

namespace {

FirstPageOfPdf loadFirstPageOfPdf()
{
    QString error;
    const auto firstPage = reinterpret_cast<FirstPageOfPdf>(
        functionOfOwnLibrary(u"libcorvana-pdf-pictures.so"_s, kFirstPageOfPdf, &error));
    if (!firstPage)
        qCWarning(lcPdfPictures).noquote()
            << "pictures that are PDF pages cannot be shown:" << error;
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
