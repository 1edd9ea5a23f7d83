#pragma once

#include "printsetting/PrintSettingKeys.h"
#include "printsetting/QXLaserPrintSetting.h"
#include "printsetting/QXLaserPrintSettingPDE.h"
#include "tests/support/RecordingHost.h"

namespace corvana::test {

/// The Print Setting panel with everything protected open to tests. Its main steps are noted
/// between the calls of its host while `tracing` is on.
class PrintSettingProbe : public QXLaserPrintSettingPDE
{
public:
    explicit PrintSettingProbe(std::shared_ptr<RecordingHost> host) : m_host(std::move(host)) {}

    bool initWithHost() { return initWithCallback(m_host); }

    bool tracing = false;

    using QXLaserPrintSettingPDE::accessoryView;
    using QXLaserPrintSettingPDE::advancedTableView;
    using QXLaserPrintSettingPDE::advancedTabView;
    using QXLaserPrintSettingPDE::arrayController;
    using QXLaserPrintSettingPDE::densityField;
    using QXLaserPrintSettingPDE::densityLabel;
    using QXLaserPrintSettingPDE::densitySlider;
    using QXLaserPrintSettingPDE::effectContent;
    using QXLaserPrintSettingPDE::hasMode;
    using QXLaserPrintSettingPDE::improveLabel;
    using QXLaserPrintSettingPDE::improveMatrix;
    using QXLaserPrintSettingPDE::improveTonerfixButton;
    using QXLaserPrintSettingPDE::kDensityMax;
    using QXLaserPrintSettingPDE::kDensityMin;
    using QXLaserPrintSettingPDE::kSleepTimeDefault;
    using QXLaserPrintSettingPDE::kSleepTimeMax;
    using QXLaserPrintSettingPDE::kSleepTimeMin;
    using QXLaserPrintSettingPDE::m_outputBin;
    using QXLaserPrintSettingPDE::m_panelView;
    using QXLaserPrintSettingPDE::mediaTypeLabel;
    using QXLaserPrintSettingPDE::mediaTypePopup;
    using QXLaserPrintSettingPDE::monoColorLabel;
    using QXLaserPrintSettingPDE::monoColorPopup;
    using QXLaserPrintSettingPDE::optionButton;
    using QXLaserPrintSettingPDE::optionLabel;
    using QXLaserPrintSettingPDE::paperFeedLabel;
    using QXLaserPrintSettingPDE::paperFeedPopup;
    using QXLaserPrintSettingPDE::paperName;
    using QXLaserPrintSettingPDE::pluginBundle;
    using QXLaserPrintSettingPDE::popupInited;
    using QXLaserPrintSettingPDE::ppd;
    using QXLaserPrintSettingPDE::PPDKeys;
    using QXLaserPrintSettingPDE::PPDResolutionKey;
    using QXLaserPrintSettingPDE::PPDSleepTimeKey;
    using QXLaserPrintSettingPDE::printSettings;
    using QXLaserPrintSettingPDE::quietModeMatrix;
    using QXLaserPrintSettingPDE::reduceGhostButton;
    using QXLaserPrintSettingPDE::reducePaperButton;
    using QXLaserPrintSettingPDE::resolutionLabel;
    using QXLaserPrintSettingPDE::resolutionPopup;
    using QXLaserPrintSettingPDE::setMode;
    using QXLaserPrintSettingPDE::skipBlankButton;
    using QXLaserPrintSettingPDE::sleepTimeField;
    using QXLaserPrintSettingPDE::sleepTimeMatrix;
    using QXLaserPrintSettingPDE::sleepTimePrefixLabel;
    using QXLaserPrintSettingPDE::sleepTimeStepper;
    using QXLaserPrintSettingPDE::sleepTimeSuffixLabel;
    using QXLaserPrintSettingPDE::tonerSaveButton;

    QString stored(const QString &keyword) const { return outputBin().value(keyword).toString(); }
    QVariant entry(const QString &key) const { return m_host->settings().value(key); }

    void setPPDKeys(const std::optional<QStringList> &keywords) override
    {
        note("setPPDKeys");
        QXLaserPrintSettingPDE::setPPDKeys(keywords);
    }
    bool readPageSetup() override
    {
        note("readPageSetup", {paperName});
        return QXLaserPrintSettingPDE::readPageSetup();
    }
    void updateUIforKey(const QString &keyword) override
    {
        note("updateUIforKey", {keyword});
        QXLaserPrintSettingPDE::updateUIforKey(keyword);
    }

    void initializeAdvOption(const QList<QWidget *> &views) override
    {
        note("initializeAdvOption");
        QXLaserPrintSettingPDE::initializeAdvOption(views);
    }

// One step each, noted and then done.
#define TRACED(OPERATION)                                                                          \
    void OPERATION() override                                                                      \
    {                                                                                              \
        note(#OPERATION);                                                                          \
        QXLaserPrintSettingPDE::OPERATION();                                                       \
    }
    TRACED(canSelectColorMode)
    TRACED(checkColorSync)
    TRACED(checkConstraints)
    TRACED(checkFax)
    TRACED(checkLang)
    TRACED(checkStateWithPaperFeed)
    TRACED(getUIValues)
    TRACED(restoreDensityValue)
    TRACED(restoreOptionState)
    TRACED(restoreSleepTimeValue)
    TRACED(saveAllValues)
    TRACED(saveDensityValue)
    TRACED(saveOptionState)
    TRACED(saveSleepTimeValue)
    TRACED(setDefaults)
    TRACED(updateUI)
#undef TRACED

private:
    void note(const char *operation, const QStringList &arguments = {})
    {
        if (tracing)
            m_host->note(QString::fromLatin1(operation), arguments);
    }

    std::shared_ptr<RecordingHost> m_host;
};

} // namespace corvana::test
