#include "colorsetting/QXLaserColorSettingPDE.h"

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/Effects.h"
#include "panel/OptionKeywords.h"

namespace corvana {

std::optional<QStringList> QXLaserColorSettingPDE::availablePPDOptionKeys()
{
    QStringList keywords = QXPrintQualityPDE::availablePPDOptionKeys().value_or(QStringList());
    if (!hasMode(kModeColorSync)) {
        for (const QLatin1StringView keyword : {kQXColorMatching, kQXSlowDrying, kQXEnhanceBlkPrt})
            keywords.removeAll(keyword);
    } else if (hasMode(kModeMono)) {
        keywords.removeAll(kQXColorMatching);
    }
    // The effects get lines of their own, with their numbers.
    for (const QLatin1StringView keyword : kEffectKeywords)
        keywords.removeAll(keyword);
    return keywords;
}

QVariantMap QXLaserColorSettingPDE::summaryInfo()
{
    QVariantMap summary = QXPrintQualityPDE::summaryInfo();
    restoreEffectValues();
    if (!hasMode(kModeColorSync))
        return summary;
    const QString orderKey = QLatin1StringView(kSummaryDisplayOrder);
    QStringList order = summary.value(orderKey).toStringList();
    for (const EffectInfo &effect : kEffectTable) {
        if (hasMode(kModeMono) && !effect.inMonochrome)
            continue;
        const ppd_option_t *option = ppdOption(ppd, effect.keyword);
        const std::optional<QString> title = option ? ppdText(option->text) : std::nullopt;
        if (!title)
            continue;
        summary.insert(*title, m_outputBin.value(effect.keyword));
        order += *title;
    }
    summary.insert(orderKey, order);
    return summary;
}

} // namespace corvana
