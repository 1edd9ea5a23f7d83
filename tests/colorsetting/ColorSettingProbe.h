#pragma once

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/EffectSet.h"
#include "colorsetting/QXLaserColorSettingPDE.h"
#include "panel/OptionKeywords.h"
#include "tests/support/EffectEntries.h"
#include "tests/support/RecordingHost.h"

namespace corvana::test {

/// The Color Setting panel with everything protected open to tests. Its main steps are noted
/// between the calls of its host while `tracing` is on.
class ColorSettingProbe : public QXLaserColorSettingPDE
{
public:
    explicit ColorSettingProbe(std::shared_ptr<RecordingHost> host) : m_host(std::move(host)) {}

    bool initWithHost() { return initWithCallback(m_host); }

    bool tracing = false;

    using QXLaserColorSettingPDE::ccFilter;
    using QXLaserColorSettingPDE::cmFilter;
    using QXLaserColorSettingPDE::colorMatchingLabel;
    using QXLaserColorSettingPDE::colorMatchingMatrix;
    using QXLaserColorSettingPDE::effectContent;
    using QXLaserColorSettingPDE::effectImageView;
    using QXLaserColorSettingPDE::enhancedBlackCheckBox;
    using QXLaserColorSettingPDE::grayCheckBox;
    using QXLaserColorSettingPDE::hasMode;
    using QXLaserColorSettingPDE::m_outputBin;
    using QXLaserColorSettingPDE::optionButton;
    using QXLaserColorSettingPDE::optionLabel;
    using QXLaserColorSettingPDE::popupInited;
    using QXLaserColorSettingPDE::PPDEffectKeys;
    using QXLaserColorSettingPDE::PPDKeys;
    using QXLaserColorSettingPDE::setMode;

    QString stored(const QString &keyword) const { return outputBin().value(keyword).toString(); }
    QVariant entry(const QString &key) const { return m_host->settings().value(key); }
    /// The six effects as they are held, in the order of kEffectKeywords.
    QVariantList effects() const
    {
        QVariantList values;
        for (const QLatin1StringView keyword : kEffectKeywords)
            values += outputBin().value(keyword);
        return values;
    }
    QVariantList shownEffects() const
    {
        QVariantList values;
        for (const QLatin1StringView keyword : kEffectKeywords)
            values += effectContent->value(keyword);
        return values;
    }

    bool restoreValuesAndReturnError(QString *error) override
    {
        note("restoreValuesAndReturnError");
        return QXLaserColorSettingPDE::restoreValuesAndReturnError(error);
    }
    void printSettingsNotified(const Notification &notification) override
    {
        note("printSettingsNotified");
        QXLaserColorSettingPDE::printSettingsNotified(notification);
    }

// One step each, noted and then done.
#define TRACED(OPERATION)                                                                          \
    void OPERATION() override                                                                      \
    {                                                                                              \
        note(#OPERATION);                                                                          \
        QXLaserColorSettingPDE::OPERATION();                                                       \
    }
    TRACED(checkConstraints)
    TRACED(restoreEffectValues)
    TRACED(saveAllValues)
    TRACED(saveEffectValues)
    TRACED(setEffectDefaults)
    TRACED(updateUI)
#undef TRACED

private:
    void note(const char *operation)
    {
        if (tracing)
            m_host->note(QString::fromLatin1(operation));
    }

    std::shared_ptr<RecordingHost> m_host;
};

/// Six texts, as a set of effects is stored.
inline QVariantList effectTexts(const QStringList &texts)
{
    QVariantList values;
    for (const QString &text : texts)
        values += QVariant(text);
    return values;
}

} // namespace corvana::test
