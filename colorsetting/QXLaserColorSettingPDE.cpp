#include "colorsetting/QXLaserColorSettingPDE.h"

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/ColorTransformer.h"
#include "colorsetting/Effects.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/ViewFrame.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kInternalName{"QXLaserColorSetting"};
constexpr QLatin1StringView kHelpBook{"Corvana Color Settings Help (Laser)"};

// Units: points.
constexpr double kHeight = 110.0;
constexpr double kAdvancedHeight = 238.0;

// The information dictionary of the bundle has one list for each panel.
QString supportedKeysEntry()
{
    return kPPDKeysSupported + u"Color"_s;
}

} // namespace

QXLaserColorSettingPDE::~QXLaserColorSettingPDE()
{
    dealloc();
}

bool QXLaserColorSettingPDE::initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback)
{
    if (!QXPrintQualityPDE::initWithCallback(callback))
        return false;
    setThePDEName(kInternalName);
    setEffectDefaults();
    restoreEffectValues();
    saveEffectValues();
    ValueTransformer::setValueTransformer(std::make_shared<ColorTransformer>(),
                                          QLatin1StringView(kColorTransformerName));
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(
        this, kLaserPrintSettingNotification, pdePluginCallbackObject.get(),
        [this](const Notification &notification) { printSettingsNotified(notification); });
    // This panel's own observer gets it as well, and reads the colour mode from the print settings.
    center.post(kLaserPrintSettingNotification, pdePluginCallbackObject.get());
    return true;
}

QString QXLaserColorSettingPDE::panelName()
{
    return localized(u"Color Setting"_s);
}

QString QXLaserColorSettingPDE::helpBook()
{
    return kHelpBook;
}

void QXLaserColorSettingPDE::connectInterface(InterfaceConnections &connections)
{
    QXPrintQualityPDE::connectInterface(connections);
    connectOutlets(connections);
    connections.action(u"effectValueDidChange"_s, [this](QWidget *sender) {
        if (std::exchange(m_lastReportIsStale, false))
            EffectVal() = {-1, 0};
        effectValueDidChange(sender);
        sayShownEffectsChanged();
    });
    connections.action(u"revertEffectDialog"_s, [this](QWidget *sender) {
        revertEffectDialog(sender);
        updateUI(); // reverting leaves the effects disabled until the controls are updated
        sayShownEffectsChanged();
    });
    connections.action(u"updateImage"_s, [this](QWidget *sender) { updateImage(sender); });
}

void QXLaserColorSettingPDE::willShow()
{
    QXPrintQualityPDE::willShow();
    setEffectContent(kFrameHeight, 0.0); // the preview is drawn anew after every showing
    updateUI();
}

bool QXLaserColorSettingPDE::shouldHide()
{
    return QXPrintQualityPDE::shouldHide();
}

void QXLaserColorSettingPDE::setDefaults() {}

void QXLaserColorSettingPDE::initializePopup()
{
    if (popupInited)
        return;
    QXPrintQualityPDE::initializePopup();
    if (optionLabel)
        optionLabel->setText(localized(u"advancedcolorItem"_s));
    ViewFrame frame = viewFrame(m_panelView);
    frame.height = kHeight;
    setViewFrame(m_panelView, frame);
    bool anyEffect = false;
    for (const QLatin1StringView keyword : kEffectKeywords) {
        titleEffectLabel(keyword);
        anyEffect = anyEffect || ppdOption(ppd, keyword);
    }
    setEffectContent(kEffectsFlag, anyEffect);
    setEffectContent(kNoEffectsFlag, !anyEffect);
    restoreOptionState();
    for (const QLatin1StringView keyword : kEffectKeywords)
        setEffectContent(keyword, integerValue(m_outputBin.value(keyword)));
}

void QXLaserColorSettingPDE::titleEffectLabel(QLatin1StringView keyword)
{
    auto *label = qobject_cast<QLabel *>(determineLabel(keyword));
    if (!label)
        return;
    const ppd_option_t *option = ppdOption(ppd, keyword);
    const QString text = option ? ppdText(option->text).value_or(QString()) : localized(keyword);
    QLineEdit *field = determineField(keyword);
    if (!text.isNull()) {
        setLiteralText(label, text);
        if (field)
            field->setAccessibleName(text);
    }
    // Effects that the printer lacks are not offered: the job could not carry them.
    for (QWidget *widget : {static_cast<QWidget *>(label), static_cast<QWidget *>(field),
                            static_cast<QWidget *>(determineSlider(keyword))}) {
        if (widget)
            widget->setVisible(option != nullptr);
    }
}

void QXLaserColorSettingPDE::toggleShowOption(QWidget *button)
{
    resizeForDisclosure(button, kAdvancedHeight);
    if (grayCheckBox && isControlEnabled(grayCheckBox))
        keepBlackPlainWithGray();
}

// Gray is printed with black toner alone already. Nothing else disables enhanced black: a box that
// cannot be ticked is saved as off, and who matches the colours must not cost the user their
// choice.
void QXLaserColorSettingPDE::keepBlackPlainWithGray()
{
    if (grayCheckBox && enhancedBlackCheckBox && grayCheckBox->isChecked())
        enhancedBlackCheckBox->setEnabled(false);
}

void QXLaserColorSettingPDE::updateUI()
{
    QXPrintQualityPDE::updateUI();
}

void QXLaserColorSettingPDE::PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                                                  const QString &choice)
{
    QXPrintQualityPDE::PPDOptionKeyValueDidChange_ppdChoice(keyword, choice);
}

bool QXLaserColorSettingPDE::restoreValuesAndReturnError(QString *error)
{
    loadPPDKeys(supportedKeysEntry());
    QXPrintQualityPDE::restoreValuesAndReturnError(error);
    return true;
}

bool QXLaserColorSettingPDE::saveValuesAndReturnError(QString *error)
{
    QXPrintQualityPDE::saveValuesAndReturnError(error);
    saveEffectValues();
    return true;
}

void QXLaserColorSettingPDE::saveAllValues()
{
    QXPrintQualityPDE::saveAllValues();
    saveEffectValues();
}

void QXLaserColorSettingPDE::checkConstraints()
{
    QXPrintQualityPDE::checkConstraints();
    restoreEffectValues();
}

void QXLaserColorSettingPDE::checkUIConstraints()
{
    const bool driverMatchesColors = hasMode(kModeColorSync);
    const bool mono = hasMode(kModeMono);
    const bool fax = hasMode(kModeFaxOutput);
    const bool shown = hasMode(kModePanelShown);
    const auto color = [](QWidget *label, ControlTextColor textColor) {
        if (label)
            setTextColor(label, textColor);
    };

    QXPrintQualityPDE::checkUIConstraints();
    setEffectContent(kQXColorMatching, driverMatchesColors);
    if (fax) {
        color(optionLabel, ControlTextColor::Disabled);
        for (const QString &keyword : PPDKeys.value_or(QStringList()))
            color(determineLabel(keyword), ControlTextColor::Disabled);
        for (const QLatin1StringView keyword : kEffectKeywords)
            showEffectDisabled(keyword);
        setEffectContent(kColorFlag, false);
        return;
    }
    color(optionLabel, ControlTextColor::Normal);
    setEffectContent(kColorEnhancementFlag, driverMatchesColors);
    setEffectContent(kMonoColorFlag, driverMatchesColors && !mono);
    const QVariant matching = m_outputBin.value(kQXColorMatching);
    if (driverMatchesColors) {
        setEffectContent(kColorFlag, !mono);
        for (const EffectInfo &effect : kEffectTable) {
            const bool printsInGray = mono && effect.inMonochrome;
            if (matching == QVariant(QString(kNone)) && !printsInGray)
                disableEffect(effect.keyword);
        }
    } else {
        // In colour printing the flag keeps its value.
        if (mono)
            setEffectContent(kColorFlag, false);
        for (const QLatin1StringView keyword : kEffectKeywords)
            disableEffect(keyword);
    }
    keepBlackPlainWithGray();

    if (driverMatchesColors && !matching.isValid())
        return;
    setRefImageWithName(driverMatchesColors ? matching.toString() : QString(kNone));
    if (shown)
        redrawEffectImage();
}

void QXLaserColorSettingPDE::disableEffect(QLatin1StringView keyword)
{
    showEffectDisabled(keyword);
    if (QSlider *slider = determineSlider(keyword))
        slider->setEnabled(false);
}

void QXLaserColorSettingPDE::showEffectDisabled(QLatin1StringView keyword)
{
    for (QWidget *text :
         {determineLabel(keyword), static_cast<QWidget *>(determineField(keyword))}) {
        if (text)
            setTextColor(text, ControlTextColor::Disabled);
    }
}

void QXLaserColorSettingPDE::printSettingsNotified(const Notification &notification)
{
    QVariant mode;
    if (notification.hasUserInfo) {
        setMode(kModeMono, booleanValue(notification.userInfo.value(kQXMonoColor)));
    } else if (PMPrintSettingsGetValue(printSettings(), kQXMonoColor, &mode) == kPMNoError) {
        setMode(kModeMono, mode.toString() == kMono);
    }
    // Nothing is drawn here. The next update of the controls shows the new state.
}

} // namespace corvana
