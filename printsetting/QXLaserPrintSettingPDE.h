#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPointer>

#include "panel/QXPrintQualityPDE.h"
#include "printsetting/ValueBounds.h"

namespace corvana {

/// The panel "Print Setting": media type, resolution, colour mode, paper source, and the printer's
/// further options.
class QXLaserPrintSettingPDE : public QXPrintQualityPDE
{
public:
    ~QXLaserPrintSettingPDE() override;

    // Construction, roster, defaults (QXLaserPrintSettingPDE.cpp)

    bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback) override;
    QString panelName() override;
    std::optional<QStringList> supportedPPDOptionKeys() override;
    std::optional<QStringList> availablePPDOptionKeys() override;
    void willShow() override;
    void setPPDKeys(const std::optional<QStringList> &keywords) override;
    void setDefaults() override;
    void initializePopup() override;
    /// Brings the values of the advanced options to their controls, which stand in these views.
    virtual void initializeAdvOption(const QList<QWidget *> &views);
    QWidget *determineUI(const QString &keyword) override;
    QWidget *determineLabel(const QString &keyword) override;
    QString determineKey(QWidget *control) override;

    // Rules between options (QXLaserPrintSettingPDE-constraints.cpp)

    /// The bits of the interface language.
    virtual void checkLang();
    /// The media type that this printer and language must not offer; null for none.
    virtual QString inhibitedMediaType();
    /// The media type to impose.
    virtual QString defaultMediaType();
    void checkConstraints() override;
    void checkUIConstraints() override;
    /// Sets or clears kModeMono and announces it to the other panel.
    virtual void canSelectColorMode();
    /// Whether the job prints on one side.
    virtual bool isSimplexMode();
    /// The place for rules of the paper source; there are none.
    virtual void checkStateWithPaperFeed();
    void requestNewOutputBin(QWidget *control) override;

    // Persistence and summary (QXLaserPrintSettingPDE-persistence.cpp)

    void PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                              const QString &choice) override;
    void updateUIforKey(const QString &keyword) override;
    void revertUI_forKey(QWidget *control, const QString &keyword) override;
    void saveAllValues() override;
    bool saveValuesAndReturnError(QString *error) override;
    bool restoreValuesAndReturnError(QString *error) override;
    QVariantMap summaryInfo() override;

    // Sleep time and density (QXLaserPrintSettingPDE-values.cpp)

    virtual void canSetManualSleep();
    virtual void saveSleepTimeValue();
    virtual void restoreSleepTimeValue();
    virtual void saveDensityValue();
    virtual void restoreDensityValue();

    // Paper (QXLaserPrintSettingPDE-paper.cpp)

    /// Judges the page's paper; true when it was judged anew.
    virtual bool readPageSetup();

protected:
    void connectInterface(InterfaceConnections &connections) override;

    QPointer<QComboBox> mediaTypePopup;
    QPointer<QComboBox> resolutionPopup;
    QPointer<QComboBox> monoColorPopup;
    QPointer<QComboBox> paperFeedPopup;
    QPointer<QLabel> mediaTypeLabel;
    QPointer<QLabel> resolutionLabel;
    QPointer<QLabel> monoColorLabel;
    QPointer<QLabel> paperFeedLabel;

    /// "QXSleepTime_Time" when the PPD takes a custom sleep time, else null.
    QString PPDSleepTimeKey;
    /// Units: minutes.
    qint64 kSleepTimeDefault = 0;
    qint64 kSleepTimeMin = 0;
    qint64 kSleepTimeMax = 0;
    /// Units: steps. 0 until the defaults were set.
    qint64 kDensityMin = 0;
    qint64 kDensityMax = 0;
    /// "QXResolution" or "Resolution".
    QString PPDResolutionKey;

private:
    struct Roster;

    ValueBounds sleepBounds() const { return {kSleepTimeMin, kSleepTimeMax}; }
    ValueBounds densityRange() const { return {kDensityMin, kDensityMax}; }
    void prepareSleepTime();
    void resetDefaultedOption(const QString &keyword);
    void reconcileImproveOutput();
    QString storedChoice(QLatin1StringView keyword) const;
};

} // namespace corvana
