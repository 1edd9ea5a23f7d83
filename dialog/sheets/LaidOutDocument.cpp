#include "dialog/sheets/LaidOutDocument.h"

#include <utility>

namespace corvana {

namespace {

QSizeF shownSize(const PdfPage &page)
{
    const QSizeF size = (page.crop.isEmpty() ? page.media : page.crop).size();
    return page.rotation % 180 == 0 ? size : size.transposed();
}

} // namespace

LaidOutDocument::LaidOutDocument(std::unique_ptr<QTemporaryDir> folder, const QString &path,
                                 int count, const QList<PdfPage> &sides)
    : m_folder(std::move(folder)), m_path(path), m_count(count)
{
    m_sizes.reserve(sides.size());
    for (const PdfPage &side : sides)
        m_sizes += shownSize(side);
}

} // namespace corvana
