#pragma once

#include <array>

#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSlider>

#include "panel/QXPrintQualityPDE.h"
#include "platform/imaging/FilterImage.h"
#include "platform/imaging/ImageFilter.h"
#include "platform/toolkit/FilterImageView.h"
#include "platform/toolkit/RadioMatrix.h"

namespace corvana {

struct EffectInfo;

/// The panel "Color Setting": colour matching, enhanced black, gray, and the colour effects kept
/// for each colour matching mode, with a preview of what they do.
class QXLaserColorSettingPDE : public QXPrintQualityPDE
{
public:
    ~QXLaserColorSettingPDE() override;

    // Construction, rules (QXLaserColorSettingPDE.cpp)

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
    void toggleShowOption(QWidget *button) override;
    /// Takes over the colour mode of the Print Setting panel.
    virtual void printSettingsNotified(const Notification &notification);

    // Roster (QXLaserColorSettingPDE-roster.cpp)

    QWidget *determineUI(const QString &keyword) override;
    QWidget *determineLabel(const QString &keyword) override;
    QString determineKey(QWidget *control) override;
    /// The bound controls, then the sliders of the effects that the printer has.
    QList<PanelControl> controls() override;
    void disclose(const QString &keyword) override;
    /// The field that shows an effect's number, or null.
    virtual QLineEdit *determineField(const QString &keyword);
    /// The slider of an effect, or null.
    virtual QSlider *determineSlider(const QString &keyword);

    // Colour effect sets (QXLaserColorSettingPDE-effects.cpp)

    virtual void setEffectDefaults();
    virtual void restoreEffectValues();
    virtual void saveEffectValues();
    /// The six effects as the controls show them; a slider is saved only later.
    void writeShownValues(PrintSettings &settings) const override;

    // Preview (QXLaserColorSettingPDE-preview.cpp)

    /// The effect control that acted last, by its tag, and what it reported.
    struct LastEffect
    {
        qint64 tag = 0;
        qint64 value = 0;
    };
    /// Shared by all panels of the process: a report that equals the last one changes nothing.
    static LastEffect &EffectVal();
    /// The picture on which the effects are shown.
    FilterImage refImage() const;
    void setRefImage(const FilterImage &image);
    /// Takes a picture of the bundle; one that the bundle lacks changes nothing.
    virtual void setRefImageWithName(const QString &name);
    /// Sets brightness, contrast or saturation (code 0 to 2), or all three with a negative code,
    /// and answers the filtered image. The filter keeps the parameters that are not set. Any other
    /// code sets none.
    virtual FilterImage applyColorControlFilter_code(const FilterImage &image, int code);
    /// The same for red, green and blue. In monochrome printing the answer is the grey image
    /// instead.
    virtual FilterImage applyColorMatrixFilter_code(const FilterImage &image, int code);
    /// The action of the effects' sliders and fields.
    virtual void effectValueDidChange(QWidget *sender);
    /// Draws the preview anew from all six values.
    virtual void redrawEffectImage();
    /// Brings the values back that were saved last.
    virtual void revertEffectDialog(QWidget *sender);
    /// The window may have another height.
    virtual void updateImage(QWidget *sender);

    // Summary (QXLaserColorSettingPDE-summary.cpp)

    std::optional<QStringList> availablePPDOptionKeys() override;
    QVariantMap summaryInfo() override;

protected:
    void connectInterface(InterfaceConnections &connections) override;

    QPointer<FilterImageView> effectImageView;
    /// Connected if the interface file has them. The panel does not use them.
    QPointer<QLabel> colorModeImageView;
    QPointer<QComboBox> ditherPopup;
    QPointer<QLabel> ditherLabel;
    QPointer<QAbstractButton> colorEnhanceButton;
    QPointer<RadioMatrix> colorMatchingMatrix;
    QPointer<QLabel> colorMatchingLabel;
    QPointer<QLabel> optionLabel;
    QPointer<QLabel> brightnessLabel;
    QPointer<QLabel> contrastLabel;
    QPointer<QLabel> redLabel;
    QPointer<QLabel> greenLabel;
    QPointer<QLabel> blueLabel;
    QPointer<QLabel> saturationLabel;
    QPointer<QLineEdit> brightnessField;
    QPointer<QLineEdit> contrastField;
    QPointer<QLineEdit> redField;
    QPointer<QLineEdit> greenField;
    QPointer<QLineEdit> blueField;
    QPointer<QLineEdit> saturationField;
    QPointer<QSlider> saturationSlider;
    QPointer<QSlider> brightnessSlider;
    QPointer<QSlider> contrastSlider;
    QPointer<QSlider> redSlider;
    QPointer<QSlider> greenSlider;
    QPointer<QSlider> blueSlider;
    QPointer<QCheckBox> enhancedBlackCheckBox;
    QPointer<QCheckBox> grayCheckBox;

    /// The six effect keywords; nothing until they have their first values.
    std::optional<QStringList> PPDEffectKeys;
    /// Created with the first values; each keeps its parameters from one use to the next.
    std::unique_ptr<ImageFilter> ccFilter;
    std::unique_ptr<ImageFilter> cmFilter;

private:
    struct Roster;

    QString currentEffectSetKey() const;
    qint64 effectValue(QLatin1StringView keyword) const;
    void connectOutlets(InterfaceConnections &connections);
    void sayShownEffectsChanged();
    void noteRestoredEffect(const EffectInfo &effect, qint64 restored);
    void showPreview(const FilterImage &image);
    void titleEffectLabel(QLatin1StringView keyword);
    void disableEffect(QLatin1StringView keyword);
    void showEffectDisabled(QLatin1StringView keyword);
    void keepBlackPlainWithGray();

    bool m_lastReportIsStale = false; // a restore moved the control that reported last
    FilterImage m_refImage;
    QString m_refImageFile;                            // empty: the image was given without a file
    mutable QHash<QString, FilterImage> m_refPictures; // by file, those looked at so far
};

} // namespace corvana
