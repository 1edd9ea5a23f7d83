#include "platform/imaging/FilterImage.h"

#include <QLoggingCategory>

#include "platform/imaging/PixelKernel.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcFilterImage, "corvana.imaging.image", QtWarningMsg)

FilterImage::FilterImage(const QImage &picture)
    : m_picture(picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32
                                                                  : QImage::Format_RGB32))
{
    if (m_picture.isNull() && !picture.isNull())
        qCWarning(lcFilterImage) << "no memory for a picture of" << picture.size();
}

FilterImage FilterImage::filtered(const ColorTransform &next) const
{
    FilterImage result = *this;
    if (!isNull())
        result.m_transform = m_transform.then(next);
    return result;
}

QImage FilterImage::rendered() const
{
    if (m_transform.isIdentity() && !m_picture.hasAlphaChannel())
        return m_picture;
    QImage result;
    renderInto(result);
    return result;
}

void FilterImage::renderInto(QImage &destination) const
{
    if (isNull()) {
        destination = QImage();
        return;
    }
    const bool translucent = m_picture.hasAlphaChannel();
    const QImage::Format format =
        translucent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    // Writing to pixels that somebody else holds would copy them first, only to overwrite them.
    if (destination.size() != extent() || destination.format() != format ||
        !destination.isDetached())
        destination = QImage(extent(), format);
    if (destination.isNull()) {
        qCWarning(lcFilterImage) << "no memory to render a picture of" << extent();
        return;
    }
    destination.setDevicePixelRatio(m_picture.devicePixelRatio());
    transformPixels(m_transform, {m_picture.constBits(), m_picture.bytesPerLine()},
                    {destination.bits(), destination.bytesPerLine()}, extent(),
                    translucent ? AlphaForm::Premultiplied : AlphaForm::Straight);
}

} // namespace corvana
