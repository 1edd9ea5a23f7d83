#include "colorsetting/QXLaserColorSettingPDE.h"

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/ColorTransformer.h"
#include "colorsetting/EffectSet.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/InterfaceLoader.h"

namespace corvana {

namespace {

constexpr QLatin1StringView kInternalName{"QXLaserColorSetting"};
constexpr QLatin1StringView kHelpBook{"Corvana Color Settings Help (Laser)"};

// The panel's list in the bundle's information dictionary stands beside that of the other panel.
QString supportedKeysEntry()
{
    return kPPDKeysSupported + QStringLiteral("Color");
}

} // namespace

// One row an option: the one table behind determineUI(), determineLabel() and determineKey().
struct QXLaserColorSettingPDE::Roster
{
    using Lookup = QWidget *(*)(const QXLaserColorSettingPDE &);

    struct Row
    {
        QLatin1StringView keyword;
        Lookup control;
        Lookup label;
    };

    static QWidget *none(const QXLaserColorSettingPDE &) { return nullptr; }

    static constexpr Row rows[] = {
        {kQXColorMatching,
         [](const QXLaserColorSettingPDE &p) -> QWidget * { return p.colorMatchingMatrix; },
         [](const QXLaserColorSettingPDE &p) -> QWidget * { return p.colorMatchingLabel; }},
        {kQXEnhanceBlkPrt,
         [](const QXLaserColorSettingPDE &p) -> QWidget * { return p.enhancedBlackCheckBox; },
         none},
        {kQXGray, [](const QXLaserColorSettingPDE &p) -> QWidget * { return p.grayCheckBox; },
         none},
    };

    static const Row *rowOf(const QString &keyword)
    {
        for (const Row &row : rows) {
            if (row.keyword == keyword)
                return &row;
        }
        return nullptr;
    }
};

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
    // The own observer reads the colour mode from the print settings.
    center.post(kLaserPrintSettingNotification, pdePluginCallbackObject.get());
    return true;
}

QString QXLaserColorSettingPDE::panelName()
{
    return localized(QStringLiteral("Color Setting"));
}

QString QXLaserColorSettingPDE::helpBook()
{
    return kHelpBook;
}

void QXLaserColorSettingPDE::connectInterface(InterfaceConnections &connections)
{
    QXPrintQualityPDE::connectInterface(connections);
    connections.outlet(QStringLiteral("colorMatchingMatrix"), colorMatchingMatrix);
    connections.outlet(QStringLiteral("colorMatchingLabel"), colorMatchingLabel);
    connections.outlet(QStringLiteral("enhancedBlackCheckBox"), enhancedBlackCheckBox);
    connections.outlet(QStringLiteral("grayCheckBox"), grayCheckBox);
}

void QXLaserColorSettingPDE::willShow()
{
    QXPrintQualityPDE::willShow();
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
    restoreOptionState();
    for (const QLatin1StringView keyword : kEffectKeywords)
        setEffectContent(keyword, integerValue(m_outputBin.value(keyword)));
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

    QXPrintQualityPDE::checkUIConstraints();
    setEffectContent(kQXColorMatching, driverMatchesColors);
    if (fax) {
        setEffectContent(kColorFlag, false);
        return;
    }
    setEffectContent(kColorEnhancementFlag, driverMatchesColors);
    setEffectContent(kMonoColorFlag, driverMatchesColors && !mono);
    if (driverMatchesColors) {
        setEffectContent(kColorFlag, !mono);
        if (grayCheckBox && enhancedBlackCheckBox && grayCheckBox->isChecked())
            enhancedBlackCheckBox->setEnabled(false);
    } else if (mono) {
        // In colour the flag stays as it was.
        setEffectContent(kColorFlag, false);
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
    // Nothing is redrawn here: the next update of the controls shows the new state.
}

QWidget *QXLaserColorSettingPDE::determineUI(const QString &keyword)
{
    const Roster::Row *row = Roster::rowOf(keyword);
    return row ? row->control(*this) : nullptr;
}

QWidget *QXLaserColorSettingPDE::determineLabel(const QString &keyword)
{
    const Roster::Row *row = Roster::rowOf(keyword);
    return row ? row->label(*this) : nullptr;
}

QString QXLaserColorSettingPDE::determineKey(QWidget *control)
{
    for (const Roster::Row &row : Roster::rows) {
        if (control && row.control(*this) == control)
            return row.keyword;
    }
    return {};
}

} // namespace corvana
