#include "colorsetting/QXLaserColorSettingPDE.h"

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/EffectSet.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/ControlActions.h"

namespace corvana {

QString QXLaserColorSettingPDE::currentEffectSetKey() const
{
    return effectSetKey(hasMode(kModeMono), m_outputBin.value(kQXColorMatching).toString());
}

void QXLaserColorSettingPDE::setEffectDefaults()
{
    EffectVal() = {-1, 0};
    // Only the first call takes the PPD's defaults; a later one must not undo what was restored.
    if (!PPDEffectKeys) {
        PPDEffectKeys.emplace();
        for (const QLatin1StringView keyword : kEffectKeywords) {
            *PPDEffectKeys += keyword;
            if (const ppd_option_t *option = ppdOption(ppd, keyword))
                m_outputBin.insert(keyword, integerValue(ppdKeyword(option->defchoice)));
        }
        ccFilter = ImageFilter::filterWithName(kCIColorControls);
        cmFilter = ImageFilter::filterWithName(kCIColorMatrix);
        for (ImageFilter *filter : {ccFilter.get(), cmFilter.get()}) {
            filter->setDefaults();
            filter->setValue_forKey(refImage(), kCIInputImageKey);
        }
    }
    for (const QLatin1StringView keyword : kEffectKeywords)
        setEffectContent(keyword, m_outputBin.value(keyword));
}

void QXLaserColorSettingPDE::restoreEffectValues()
{
    const PMPrintSettings settings = printSettings();
    if (!settings)
        return;
    QVariant stored;
    PMPrintSettingsGetValue(settings, currentEffectSetKey(), &stored);
    if (!PPDEffectKeys)
        setEffectDefaults();
    const std::optional<QVariantList> values = usableEffectSet(stored);
    for (size_t i = 0; i < kEffectKeywords.size(); ++i) {
        const QVariant value =
            values ? values->at(static_cast<qsizetype>(i)) : QVariant(QString::number(0));
        noteRestoredEffect(kEffectKeywords[i], integerValue(value));
        m_outputBin.insert(kEffectKeywords[i], value);
        setEffectContent(kEffectKeywords[i], value);
    }
}

// A restore may move the very control that reported last. What that control reports next is then no
// repetition, even if it is the same value again. The value that the control showed stands in the
// binding dictionary; `outputBin` holds the printer's marked choices while a restore is going on.
void QXLaserColorSettingPDE::noteRestoredEffect(QLatin1StringView keyword, qint64 restored)
{
    const QSlider *slider = determineSlider(keyword);
    const LastEffect &last = EffectVal();
    if (slider && controlTag(slider) == last.tag && effectValue(keyword) != restored)
        m_lastReportIsStale = last.value != restored;
}

void QXLaserColorSettingPDE::saveEffectValues()
{
    const PMPrintSettings settings = printSettings();
    if (!settings)
        return;
    QVariantList values;
    for (const QLatin1StringView keyword : kEffectKeywords) {
        if (effectContent)
            m_outputBin.insert(keyword, integerValue(effectContent->value(keyword)));
        // Appended as one value, not joined as a list.
        values.append(usableEffectValue(m_outputBin.value(keyword)));
    }
    PMPrintSettingsSetValue(settings, currentEffectSetKey(), values, false);
}

} // namespace corvana
