// The table behind determineUI(), determineLabel(), determineKey(), determineField(),
// determineSlider() and the outlets.

#include "colorsetting/QXLaserColorSettingPDE-roster.h"

#include <algorithm>

namespace corvana {

using namespace Qt::StringLiterals;

using Panel = QXLaserColorSettingPDE;

const QXLaserColorSettingPDE::Roster::Option QXLaserColorSettingPDE::Roster::options[] = {
    {kQXColorMatching, Outlet<Panel>::of<&Panel::colorMatchingMatrix>("colorMatchingMatrix"_L1),
     Outlet<Panel>::of<&Panel::colorMatchingLabel>("colorMatchingLabel"_L1)},
    {kQXEnhanceBlkPrt,
     Outlet<Panel>::of<&Panel::enhancedBlackCheckBox>("enhancedBlackCheckBox"_L1),
     {}},
    {kQXGray, Outlet<Panel>::of<&Panel::grayCheckBox>("grayCheckBox"_L1), {}},
};

const QXLaserColorSettingPDE::Roster::EffectControls QXLaserColorSettingPDE::Roster::effects[] = {
    {Effect::Brightness, Outlet<Panel>::of<&Panel::brightnessLabel>("brightnessLabel"_L1),
     Outlet<Panel>::of<&Panel::brightnessField>("brightnessField"_L1),
     Outlet<Panel>::of<&Panel::brightnessSlider>("brightnessSlider"_L1)},
    {Effect::Contrast, Outlet<Panel>::of<&Panel::contrastLabel>("contrastLabel"_L1),
     Outlet<Panel>::of<&Panel::contrastField>("contrastField"_L1),
     Outlet<Panel>::of<&Panel::contrastSlider>("contrastSlider"_L1)},
    {Effect::Red, Outlet<Panel>::of<&Panel::redLabel>("redLabel"_L1),
     Outlet<Panel>::of<&Panel::redField>("redField"_L1),
     Outlet<Panel>::of<&Panel::redSlider>("redSlider"_L1)},
    {Effect::Green, Outlet<Panel>::of<&Panel::greenLabel>("greenLabel"_L1),
     Outlet<Panel>::of<&Panel::greenField>("greenField"_L1),
     Outlet<Panel>::of<&Panel::greenSlider>("greenSlider"_L1)},
    {Effect::Blue, Outlet<Panel>::of<&Panel::blueLabel>("blueLabel"_L1),
     Outlet<Panel>::of<&Panel::blueField>("blueField"_L1),
     Outlet<Panel>::of<&Panel::blueSlider>("blueSlider"_L1)},
    {Effect::Saturation, Outlet<Panel>::of<&Panel::saturationLabel>("saturationLabel"_L1),
     Outlet<Panel>::of<&Panel::saturationField>("saturationField"_L1),
     Outlet<Panel>::of<&Panel::saturationSlider>("saturationSlider"_L1)},
};

const Outlet<Panel> QXLaserColorSettingPDE::Roster::furtherOutlets[] = {
    Outlet<Panel>::of<&Panel::effectImageView>("effectImageView"_L1),
    Outlet<Panel>::of<&Panel::optionLabel>("optionLabel"_L1),
    Outlet<Panel>::of<&Panel::colorModeImageView>("colorModeImageView"_L1),
    Outlet<Panel>::of<&Panel::ditherPopup>("ditherPopup"_L1),
    Outlet<Panel>::of<&Panel::ditherLabel>("ditherLabel"_L1),
    Outlet<Panel>::of<&Panel::colorEnhanceButton>("colorEnhanceButton"_L1),
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
