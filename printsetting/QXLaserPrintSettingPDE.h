#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSlider>
#include <QStackedWidget>
#include <QTableView>

#include "panel/QXPrintQualityPDE.h"
#include "platform/toolkit/ArrayController.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/Stepper.h"
#include "printsetting/ExtraAccessoryView.h"
#include "printsetting/ValueBounds.h"

namespace corvana {

struct AdvancedRow;

/// The panel "Print Setting": media type, resolution, colour mode, paper source, and the printer's
/// further options.
class QXLaserPrintSettingPDE : public QXPrintQualityPDE
{
public:
    ~QXLaserPrintSettingPDE() override;

    // Construction, defaults (QXLaserPrintSettingPDE.cpp)

    bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback) override;
    QString panelName() override;
    std::optional<QStringList> supportedPPDOptionKeys() override;
    std::optional<QStringList> availablePPDOptionKeys() override;
    void willShow() override;
    void setPPDKeys(const std::optional<QStringList> &keywords) override;
    void setDefaults() override;
    void initializePopup() override;

    // Roster (QXLaserPrintSettingPDE-roster.cpp)

    QWidget *determineUI(const QString &keyword) override;
    QWidget *determineLabel(const QString &keyword) override;
    QString determineKey(QWidget *control) override;
    /// The options of the main part, then those of the advanced rows.
    QList<PanelControl> controls() override;
    void disclose(const QString &keyword) override;

    // Advanced options (QXLaserPrintSettingPDE-advanced.cpp)

    /// Builds the table of the advanced options. The views are those of the advanced section.
    virtual void initializeAdvOption(const QList<QWidget *> &views);
    /// Adds a row to the table of the advanced options; `identifier` names its page.
    virtual void addAdvOption_forKey(const QString &label, const QString &identifier);
    void toggleShowOption(QWidget *button) override;

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
    /// Enables or disables the items of the given choices. Where the selected item is disabled, or
    /// when `toDefault` is true, selects the choice to fall back to, which the media types and the
    /// paper sources have.
    virtual void changeState_forArray_toEnable_toDefault(QComboBox *popUp,
                                                         const QStringList &choices, bool enable,
                                                         bool toDefault);

    // Persistence and summary (QXLaserPrintSettingPDE-persistence.cpp)

    void PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                              const QString &choice) override;
    void updateUIforKey(const QString &keyword) override;
    void getUIValues() override;
    void revertUI_forKey(QWidget *control, const QString &keyword) override;
    void saveAllValues() override;
    bool saveValuesAndReturnError(QString *error) override;
    bool restoreValuesAndReturnError(QString *error) override;
    QVariantMap summaryInfo() override;
    /// The string with "_on" where the button is enabled and on, else with "_off".
    virtual QString addOnOffSuffix_ToString(const QAbstractButton *control, const QString &string);

    // Sleep time and density (QXLaserPrintSettingPDE-values.cpp)

    virtual void canSetManualSleep();
    /// Shows the stored minutes, kept inside the range.
    virtual void updateSleepTimeUI();
    /// The user edited the sleep time: only digits inside the range stay.
    virtual void controlTextDidChange(const Notification &notification);
    /// Whether the user may leave the sleep time with this text in it.
    virtual bool control_textShouldEndEditing(QWidget *control, const QString &editorText);
    virtual void saveSleepTimeValue();
    virtual void restoreSleepTimeValue();
    virtual void saveDensityValue();
    virtual void restoreDensityValue();

    // Paper and the user's changes (QXLaserPrintSettingPDE-paper.cpp)

    /// Judges the page's paper, and imposes the default medium of a new one; true when it was
    /// judged anew.
    virtual bool readPageSetup();
    /// The paper may be another one.
    virtual void checkPageSizeChange(const Notification &notification);
    void requestNewOutputBin(QWidget *control) override;

    // Alerts (QXLaserPrintSettingPDE-alerts.cpp)

    bool shouldPrint() override;
    /// Says how to load the medium that was chosen, and keeps what the user wants of it next time.
    virtual void showAlertWhenSelectMediaKey_withAlertKey(const QString &keyword,
                                                          const QString &alertKey);
    /// Whether the main screen has exactly two pixels where an ordinary one has one.
    virtual bool isRetinaScreen();

protected:
    void connectInterface(InterfaceConnections &connections) override;

    /// The pages of the advanced options and the table that turns them.
    QPointer<QStackedWidget> advancedTabView;
    QPointer<QTableView> advancedTableView;
    QPointer<QComboBox> mediaTypePopup;
    QPointer<QComboBox> resolutionPopup;
    QPointer<QComboBox> monoColorPopup;
    QPointer<QComboBox> paperFeedPopup;
    QPointer<QCheckBox> tonerSaveButton;
    QPointer<RadioMatrix> improveMatrix;
    QPointer<QCheckBox> reducePaperButton;
    QPointer<QCheckBox> improveTonerfixButton;
    QPointer<QCheckBox> reduceGhostButton;
    QPointer<QLineEdit> densityField;
    QPointer<QSlider> densitySlider;
    QPointer<QLineEdit> sleepTimeField;
    QPointer<Stepper> sleepTimeStepper;
    QPointer<RadioMatrix> sleepTimeMatrix;
    QPointer<QCheckBox> skipBlankButton;
    QPointer<RadioMatrix> quietModeMatrix;
    QPointer<QLabel> mediaTypeLabel;
    QPointer<QLabel> resolutionLabel;
    QPointer<QLabel> monoColorLabel;
    QPointer<QLabel> paperFeedLabel;
    QPointer<QLabel> optionLabel;
    QPointer<ArrayController> arrayController;
    /// A label, or a box with a title.
    QPointer<QWidget> densityLabel;
    QPointer<QLabel> improveLabel;
    QPointer<QLabel> sleepTimePrefixLabel;
    QPointer<QLabel> sleepTimeSuffixLabel;
    QPointer<ExtraAccessoryView> accessoryView;

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
    void connectOutlets(InterfaceConnections &connections);
    void addAdvancedRows();
    void addAdvancedRow(const AdvancedRow &row);
    bool hasAdvancedRow(const AdvancedRow &row) const;
    /// The row's place in the table of the advanced options, or -1.
    int indexOfAdvancedRow(const AdvancedRow &row) const;
    QString advancedRowTitle(int index) const;
    void titleDensityControls(const QString &text);
    void titleImproveBoxes(const QString &text);
    void prepareDensityControls();
    void prepareSleepTimeControls();
    void fitAdvancedTable(QTableView *table);
    void setSleepTimeUsable(bool mode, bool minutes);
    void showSleepTime(qint64 minutes);
    void sayAllowedSleepTimes(QLineEdit *field);
    void takeSteppedSleepTime(Stepper *stepper);
    QString pagePaperName();
    bool pagePaperFits();
    void checkChangedMediaType();
    bool confirmBackCover(const QString &mediaType);
    std::optional<AlertAnswer> runIllustratedAlert(Alert alert, QLatin1StringView picture);
    QString storedChoice(QLatin1StringView keyword) const;

    /// Those that alerts have shown, by their files.
    QHash<QString, QImage> m_illustrations;
};

} // namespace corvana
