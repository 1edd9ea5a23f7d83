#include "colorsetting/QXLaserColorSettingPDE.h"

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/EffectSet.h"
#include "platform/foundation/Values.h"

namespace corvana {

QString QXLaserColorSettingPDE::currentEffectSetKey() const
{
    return effectSetKey(hasMode(kModeMono), m_outputBin.value(kQXColorMatching).toString());
}

void QXLaserColorSettingPDE::setEffectDefaults()
{
    EffectVal() = {-1, 0};
    // Only the first call takes the PPD's defaults. A later one must not undo a restore.
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
    const EffectSet set = usableEffectSet(stored);
    for (const EffectInfo &effect : kEffectTable) {
        const QVariant &value = set.at(effect.effect);
        noteRestoredEffect(effect, integerValue(value));
        m_outputBin.insert(effect.keyword, value);
        setEffectContent(effect.keyword, value);
    }
}

// A restore may move the very control that reported last. What that control reports next is then no
// repetition, even if it is the same value again. The value that the control showed stands in the
// binding dictionary; `outputBin` holds the printer's marked choices while a restore is going on.
void QXLaserColorSettingPDE::noteRestoredEffect(const EffectInfo &effect, qint64 restored)
{
    const LastEffect &last = EffectVal();
    if (effectContent && effect.tag == last.tag && effectValue(effect.keyword) != restored)
        m_lastReportIsStale = last.value != restored;
}

void QXLaserColorSettingPDE::saveEffectValues()
{
    const PMPrintSettings settings = printSettings();
    if (!settings)
        return;
    EffectSet set;
    for (const EffectInfo &effect : kEffectTable) {
        if (effectContent)
            m_outputBin.insert(effect.keyword, effectValue(effect.keyword));
        set[effect.effect] = m_outputBin.value(effect.keyword);
    }
    PMPrintSettingsSetValue(settings, currentEffectSetKey(), storedEffectSet(set), false);
}

void QXLaserColorSettingPDE::writeShownValues(PrintSettings &settings) const
{
    if (!effectContent)
        return;
    EffectSet set;
    for (const EffectInfo &effect : kEffectTable)
        set[effect.effect] = effectValue(effect.keyword);
    settings.setValue(currentEffectSetKey(), storedEffectSet(set));
}

void QXLaserColorSettingPDE::sayShownEffectsChanged()
{
    if (pdePluginCallbackObject &&
        pdePluginCallbackObject->respondsTo(PDECallbackOperation::shownValuesDidChange))
        pdePluginCallbackObject->shownValuesDidChange();
}

} // namespace corvana
