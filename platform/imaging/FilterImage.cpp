#include "platform/imaging/FilterImage.h"

#include <QLoggingCategory>

#include "platform/imaging/ExactPixels.h"
#include "platform/imaging/PixelKernel.h"
#include "platform/library/OwnLibrary.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcFilterImage, "corvana.imaging.image", QtWarningMsg)

namespace {

// Without the library pictures look the same, and take longer.
TransformPixels loadTransformPixels()
{
    QString error;
    const auto transform = reinterpret_cast<TransformPixels>(
        functionOfOwnLibrary(u"libcorvana-pixel-kernel.so"_s, kTransformPixels, &error));
    if (transform)
        return transform;
    qCWarning(lcFilterImage).noquote() << "pictures are transformed slowly:" << error;
    return transformPixelsExactly;
}

} // namespace

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
    static const TransformPixels run = loadTransformPixels();
    run(m_transform, {m_picture.constBits(), m_picture.bytesPerLine()},
        {destination.bits(), destination.bytesPerLine()}, extent(),
        translucent ? AlphaForm::Premultiplied : AlphaForm::Straight);
}

} // namespace corvana
