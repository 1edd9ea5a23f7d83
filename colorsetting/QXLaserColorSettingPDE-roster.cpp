// The table behind determineUI(), determineLabel(), determineKey(), determineField(),
// determineSlider() and the outlets.

#include "colorsetting/QXLaserColorSettingPDE.h"

#include <algorithm>

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/Effects.h"
#include "panel/Outlet.h"
#include "platform/toolkit/Mnemonics.h"

namespace corvana {

using namespace Qt::StringLiterals;

using Panel = QXLaserColorSettingPDE;

// The panel's options and effects, one row each. Look-ups and outlets are made from these rows.
struct QXLaserColorSettingPDE::Roster
{
    struct Option
    {
        QLatin1StringView keyword;
        Outlet<Panel> control;
        Outlet<Panel> label; // none: the control has its title itself
    };
    struct EffectControls
    {
        Effect effect;
        Outlet<Panel> label;
        Outlet<Panel> field;
        Outlet<Panel> slider;
    };

    static const Option options[];
    static const EffectControls effects[]; // in the order of the view
    // Controls that show neither an option nor an effect.
    static const Outlet<Panel> furtherOutlets[];

    static const Option *find(const QString &keyword);
    static const EffectControls *findEffect(const QString &keyword);
};

const QXLaserColorSettingPDE::Roster::Option QXLaserColorSettingPDE::Roster::options[] = {
    {kQXColorMatching, outlet<&Panel::colorMatchingMatrix>("colorMatchingMatrix"_L1),
     outlet<&Panel::colorMatchingLabel>("colorMatchingLabel"_L1)},
    {kQXEnhanceBlkPrt, outlet<&Panel::enhancedBlackCheckBox>("enhancedBlackCheckBox"_L1), {}},
    {kQXGray, outlet<&Panel::grayCheckBox>("grayCheckBox"_L1), {}},
};

const QXLaserColorSettingPDE::Roster::EffectControls QXLaserColorSettingPDE::Roster::effects[] = {
    {Effect::Brightness, outlet<&Panel::brightnessLabel>("brightnessLabel"_L1),
     outlet<&Panel::brightnessField>("brightnessField"_L1),
     outlet<&Panel::brightnessSlider>("brightnessSlider"_L1)},
    {Effect::Contrast, outlet<&Panel::contrastLabel>("contrastLabel"_L1),
     outlet<&Panel::contrastField>("contrastField"_L1),
     outlet<&Panel::contrastSlider>("contrastSlider"_L1)},
    {Effect::Saturation, outlet<&Panel::saturationLabel>("saturationLabel"_L1),
     outlet<&Panel::saturationField>("saturationField"_L1),
     outlet<&Panel::saturationSlider>("saturationSlider"_L1)},
    {Effect::Red, outlet<&Panel::redLabel>("redLabel"_L1), outlet<&Panel::redField>("redField"_L1),
     outlet<&Panel::redSlider>("redSlider"_L1)},
    {Effect::Green, outlet<&Panel::greenLabel>("greenLabel"_L1),
     outlet<&Panel::greenField>("greenField"_L1), outlet<&Panel::greenSlider>("greenSlider"_L1)},
    {Effect::Blue, outlet<&Panel::blueLabel>("blueLabel"_L1),
     outlet<&Panel::blueField>("blueField"_L1), outlet<&Panel::blueSlider>("blueSlider"_L1)},
};

const Outlet<Panel> QXLaserColorSettingPDE::Roster::furtherOutlets[] = {
    outlet<&Panel::effectImageView>("effectImageView"_L1),
    outlet<&Panel::optionLabel>("optionLabel"_L1),
    outlet<&Panel::colorModeImageView>("colorModeImageView"_L1),
    outlet<&Panel::ditherPopup>("ditherPopup"_L1),
    outlet<&Panel::ditherLabel>("ditherLabel"_L1),
    outlet<&Panel::colorEnhanceButton>("colorEnhanceButton"_L1),
};

const QXLaserColorSettingPDE::Roster::Option *
QXLaserColorSettingPDE::Roster::find(const QString &keyword)
{
    const auto *found =
        std::find_if(std::begin(options), std::end(options),
                     [&keyword](const Option &option) { return option.keyword == keyword; });
    return found == std::end(options) ? nullptr : found;
}

const QXLaserColorSettingPDE::Roster::EffectControls *
QXLaserColorSettingPDE::Roster::findEffect(const QString &keyword)
{
    const EffectInfo *effect = effectOfKeyword(keyword);
    const auto *found =
        std::find_if(std::begin(effects), std::end(effects), [effect](const EffectControls &row) {
            return effect && row.effect == effect->effect;
        });
    return found == std::end(effects) ? nullptr : found;
}

void QXLaserColorSettingPDE::connectOutlets(InterfaceConnections &connections)
{
    for (const Roster::Option &option : Roster::options) {
        option.control.connect(*this, connections);
        option.label.connect(*this, connections);
    }
    for (const Roster::EffectControls &row : Roster::effects) {
        for (const Outlet<Panel> *outlet : {&row.label, &row.field, &row.slider})
            outlet->connect(*this, connections);
    }
    for (const Outlet<Panel> &outlet : Roster::furtherOutlets)
        outlet.connect(*this, connections);
}

QWidget *QXLaserColorSettingPDE::determineUI(const QString &keyword)
{
    const Roster::Option *option = Roster::find(keyword);
    return option ? option->control.widget(*this) : nullptr;
}

QWidget *QXLaserColorSettingPDE::determineLabel(const QString &keyword)
{
    if (const Roster::Option *option = Roster::find(keyword))
        return option->label.widget(*this);
    const Roster::EffectControls *effect = Roster::findEffect(keyword);
    return effect ? effect->label.widget(*this) : nullptr;
}

QString QXLaserColorSettingPDE::determineKey(QWidget *control)
{
    for (const Roster::Option &option : Roster::options) {
        if (control && option.control.widget(*this) == control)
            return option.keyword;
    }
    return {};
}

QList<PanelControl> QXLaserColorSettingPDE::controls()
{
    QList<PanelControl> found;
    for (const Roster::Option &option : Roster::options) {
        if (const auto control = boundControl(option.keyword))
            found += *control;
    }
    for (const Roster::EffectControls &row : Roster::effects) {
        const auto *label = qobject_cast<QLabel *>(row.label.widget(*this));
        const auto effect =
            std::find_if(kEffectTable.begin(), kEffectTable.end(),
                         [&row](const EffectInfo &info) { return info.effect == row.effect; });
        // Effects that the printer lacks have controls, which are not shown.
        if (!popupInited || !label || !ppdOption(ppd, effect->keyword))
            continue;
        found += PanelControl{.keyword = effect->keyword,
                              .text = literalText(label),
                              .sections = {advancedTitle()},
                              .control = row.slider.widget(*this),
                              .label = row.label.widget(*this),
                              .companions = {row.field.widget(*this)}};
    }
    return found;
}

void QXLaserColorSettingPDE::disclose(const QString &keyword)
{
    if (Roster::findEffect(keyword) && ppdOption(ppd, keyword))
        openAdvancedPart();
}

QLineEdit *QXLaserColorSettingPDE::determineField(const QString &keyword)
{
    const Roster::EffectControls *effect = Roster::findEffect(keyword);
    return effect ? qobject_cast<QLineEdit *>(effect->field.widget(*this)) : nullptr;
}

QSlider *QXLaserColorSettingPDE::determineSlider(const QString &keyword)
{
    const Roster::EffectControls *effect = Roster::findEffect(keyword);
    return effect ? qobject_cast<QSlider *>(effect->slider.widget(*this)) : nullptr;
}

} // namespace corvana
