#include "platform/imaging/ScaledRenderer.h"

#include <QLoggingCategory>

namespace corvana {

Q_LOGGING_CATEGORY(lcScaled, "corvana.imaging.scaled", QtWarningMsg)

const QImage &ScaledRenderer::render(const FilterImage &image, QSize size, double devicePixelRatio)
{
    QSize pixels;
    if (devicePixelRatio > 0)
        pixels = (QSizeF(size) * devicePixelRatio).toSize();
    if (image.isNull() || pixels.isEmpty()) {
        *this = ScaledRenderer();
        return m_result;
    }

    const QImage &source = image.picture();
    if (m_source.cacheKey() != source.cacheKey() || m_copy.extent() != pixels ||
        m_copy.picture().devicePixelRatio() != devicePixelRatio) {
        QImage copy = source.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (copy.isNull())
            qCWarning(lcScaled) << "no memory for a picture of" << pixels;
        else
            copy.setDevicePixelRatio(devicePixelRatio);
        m_source = source;
        m_copy = FilterImage(copy);
    }
    m_copy.filtered(image.transform()).renderInto(m_result);
    return m_result;
}

} // namespace corvana
