#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPointer>

#include "panel/QXPrintQualityPDE.h"
#include "platform/toolkit/RadioMatrix.h"

namespace corvana {

/// The panel "Color Setting": colour matching, enhanced black, gray, and the colour effects kept
/// for each colour matching mode.
class QXLaserColorSettingPDE : public QXPrintQualityPDE
{
public:
    ~QXLaserColorSettingPDE() override;

    // Construction, roster, rules (QXLaserColorSettingPDE.cpp)

    bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback) override;
    QString panelName() override;
    QString helpBook() override;
    void willShow() override;
    bool shouldHide() override;
    void setDefaults() override;
    void initializePopup() override;
    void updateUI() override;
    void PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                              const QString &choice) override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    void saveAllValues() override;
    void checkConstraints() override;
    void checkUIConstraints() override;
    QWidget *determineUI(const QString &keyword) override;
    QWidget *determineLabel(const QString &keyword) override;
    QString determineKey(QWidget *control) override;
    /// Takes over the colour mode of the Print Setting panel.
    virtual void printSettingsNotified(const Notification &notification);

    // Colour effect sets (QXLaserColorSettingPDE-effects.cpp)

    virtual void setEffectDefaults();
    virtual void restoreEffectValues();
    virtual void saveEffectValues();

    // Summary (QXLaserColorSettingPDE-summary.cpp)

    std::optional<QStringList> availablePPDOptionKeys() override;
    QVariantMap summaryInfo() override;

protected:
    void connectInterface(InterfaceConnections &connections) override;

    QPointer<RadioMatrix> colorMatchingMatrix;
    QPointer<QLabel> colorMatchingLabel;
    QPointer<QCheckBox> enhancedBlackCheckBox;
    QPointer<QCheckBox> grayCheckBox;

    /// Whether the effect keywords have their first values.
    std::optional<QStringList> PPDEffectKeys;

private:
    struct Roster;

    QString currentEffectSetKey() const;
};

} // namespace corvana
