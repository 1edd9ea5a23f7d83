#include "colorsetting/QXLaserColorSettingPDE.h"

#include <QAbstractSlider>
#include <QLineEdit>

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/EffectPreview.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/ViewFrame.h"
#include "platform/toolkit/Windows.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// What a slider or a field reports. The number in a field may have a fraction.
QVariant reportedValue(const QWidget *sender)
{
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(sender))
        return slider->value();
    if (const auto *field = qobject_cast<const QLineEdit *>(sender))
        return field->text();
    return {};
}

// The effects of a filter that a code means: one of them, or all with a negative code.
QList<const EffectInfo *> effectsOfCode(EffectFilter filter, int code)
{
    QList<const EffectInfo *> meant;
    for (const EffectInfo &effect : kEffectTable) {
        if (effect.filter == filter && (code < 0 || code == effectCode(effect)))
            meant += &effect;
    }
    return meant;
}

} // namespace

QXLaserColorSettingPDE::LastEffect &QXLaserColorSettingPDE::EffectVal()
{
    static LastEffect last;
    return last;
}

FilterImage QXLaserColorSettingPDE::refImage() const
{
    // The picture is read when it is needed first, because most panels are never shown.
    if (!m_refImageFile.isEmpty() && !m_refPictures.contains(m_refImageFile))
        m_refPictures.insert(m_refImageFile, FilterImage(readPicture(m_refImageFile, 1.0)));
    return m_refImageFile.isEmpty() ? m_refImage : m_refPictures.value(m_refImageFile);
}

void QXLaserColorSettingPDE::setRefImage(const FilterImage &image)
{
    m_refImage = image;
    m_refImageFile.clear();
}

void QXLaserColorSettingPDE::setRefImageWithName(const QString &name)
{
    const QString file = pluginBundle ? pluginBundle->pathForResource(name, u"tiff"_s) : QString();
    if (!file.isNull())
        m_refImageFile = file;
}

FilterImage QXLaserColorSettingPDE::applyColorControlFilter_code(const FilterImage &image, int code)
{
    ccFilter->setValue_forKey(image, kCIInputImageKey);
    for (const EffectInfo *effect : effectsOfCode(EffectFilter::ColorControls, code)) {
        const qint64 value = effectValue(effect->keyword);
        if (code >= 0)
            setEffectContent(effect->keyword, static_cast<float>(value));
        ccFilter->setValue_forKey(effectParameter(*effect, value), effect->filterKey);
    }
    return ccFilter->outputImage();
}

FilterImage QXLaserColorSettingPDE::applyColorMatrixFilter_code(const FilterImage &image, int code)
{
    cmFilter->setValue_forKey(image, kCIInputImageKey);
    for (const EffectInfo *effect : effectsOfCode(EffectFilter::ColorMatrix, code)) {
        const qint64 value = effectValue(effect->keyword);
        if (code >= 0)
            setEffectContent(effect->keyword, value);
        cmFilter->setValue_forKey(effectParameter(*effect, value), effect->filterKey);
    }
    // The filter keeps the gains until colours are printed again. A grey image has no use for them.
    return hasMode(kModeMono) ? monochrome(image) : cmFilter->outputImage();
}

qint64 QXLaserColorSettingPDE::effectValue(QLatin1StringView keyword) const
{
    return effectContent ? integerValue(effectContent->value(keyword)) : 0;
}

void QXLaserColorSettingPDE::effectValueDidChange(QWidget *sender)
{
    const qint64 tag = controlTag(sender);
    const QVariant reported = reportedValue(sender);
    LastEffect &last = EffectVal();
    if (tag == last.tag && reported.toFloat() == static_cast<float>(last.value))
        return;
    last = {tag, integerValue(reported)};

    // The filter of the effect that was moved is applied first.
    FilterImage result;
    if (tag < kFirstMatrixTag) {
        const FilterImage controlled =
            applyColorControlFilter_code(refImage(), static_cast<int>(tag));
        if (hasMode(kModeMono)) {
            result = monochrome(controlled);
        } else {
            cmFilter->setValue_forKey(controlled, kCIInputImageKey);
            result = cmFilter->outputImage();
        }
    } else if (tag <= kLastEffectTag) {
        const FilterImage gained =
            applyColorMatrixFilter_code(refImage(), static_cast<int>(tag) - kFirstMatrixTag);
        ccFilter->setValue_forKey(gained, kCIInputImageKey);
        result = ccFilter->outputImage();
    }
    if (!result.isNull())
        showPreview(result);
}

void QXLaserColorSettingPDE::redrawEffectImage()
{
    const bool mono = hasMode(kModeMono);
    const QVariant matching = m_outputBin.value(kQXColorMatching);
    switch (previewColors(matching.toString(), mono, hasMode(kModeFaxOutput))) {
    case PreviewColors::Grey:
        setRefImageWithName(kNone);
        return showPreview(monochrome(refImage()));
    case PreviewColors::AsTheyAre:
        return showPreview(refImage());
    case PreviewColors::WithEffects:
        const auto value = [this](const EffectInfo &effect) { return effectValue(effect.keyword); };
        return showPreview(withEffects(refImage(), value, mono, *ccFilter, *cmFilter));
    }
}

void QXLaserColorSettingPDE::showPreview(const FilterImage &image)
{
    if (effectImageView)
        effectImageView->setImage(image);
}

void QXLaserColorSettingPDE::revertEffectDialog(QWidget *)
{
    EffectVal() = {-1, 0};
    ccFilter->setDefaults();
    cmFilter->setDefaults();
    setEffectContent(kColorFlag, false);
    setEffectDefaults();
    redrawEffectImage();
}

void QXLaserColorSettingPDE::updateImage(QWidget *)
{
    if (!hasMode(kModePanelShown))
        return;
    const QWidget *window = keyWindow(m_panelView);
    const double height = window ? window->frameGeometry().height() / pixelsPerPoint(window) : 0.0;
    if (effectContent && effectContent->value(kFrameHeight).toDouble() == height)
        return;
    setEffectContent(kFrameHeight, height);
    if (height <= viewFrame(m_panelView).height + kHeightAroundPanel)
        return;
    if (effectImageView)
        effectImageView->displayIfNeeded();
    redrawEffectImage();
}

} // namespace corvana
