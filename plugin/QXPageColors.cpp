#include "plugin/QXPageColors.h"

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/EffectPreview.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"

namespace corvana {

PageColors QXPageColors::pageColors(const PrintSettings &settings, ppd_file_t *ppd) const
{
    const bool fax = settings.value(kQXOutput).toString() == kFax;
    const bool mono = printsInMonochrome(settings);
    const QString matching = settings.value(kQXColorMatching).toString();
    const bool matchedByDriver = driverMatchesColors(settings, ppd);
    PageColors colors;
    if (fax || mono)
        colors.ink = PageColors::Ink::Black;
    else if (matchedByDriver && matching != kNone && ppdOption(ppd, kQXColorMatching))
        colors.unknown += kQXColorMatching;

    // While the application matches the colours the panel still shows the effects on its reference
    // picture, but the job has none of them. An effect without an option is none of this printer's.
    const EffectSet set = effectSetOf(settings);
    const EffectValues inForce = [&](const EffectInfo &effect) {
        const bool isPrinted =
            isInForce(effect, settings, ppd) && ppdOption(ppd, effect.keyword) != nullptr;
        return isPrinted ? integerValue(set.at(effect.effect)) : 0;
    };
    switch (previewColors(matching, mono, fax)) {
    case PreviewColors::Grey:
        colors.transform = ColorTransform::grey();
        break;
    case PreviewColors::AsTheyAre:
        break;
    case PreviewColors::WithEffects:
        colors.transform = effectTransform(inForce, mono);
        break;
    }
    return colors;
}

} // namespace corvana
