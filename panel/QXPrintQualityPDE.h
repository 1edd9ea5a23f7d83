#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

#include "panel/ImageMode.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPluginCallback.h"
#include "platform/toolkit/Alert.h"
#include "platform/toolkit/BindingDictionary.h"

class QLabel;

namespace corvana {

class InterfaceConnections;

/// The base of both panels: life cycle, the binding of PPD options to controls, the summary, and
/// services around the controls.
///
/// A panel names its options and says, through determineUI(), determineLabel() and determineKey(),
/// which control shows each; everything else is generic. All operations are virtual, and the base
/// calls its own through them: an override replaces a step of the base wherever the base takes it.
/// This holds during construction as well, which has two phases: the base's initWithCallback()
/// calls overrides before the concrete panel's own construction has gone on. Overrides must work
/// then.
///
/// Ownership: the panel owns its view. The PPD is the host's.
/// Thread: GUI thread only.
class QXPrintQualityPDE : public PDEPanel
{
public:
    QXPrintQualityPDE() = default;
    ~QXPrintQualityPDE() override;

    // Life cycle (QXPrintQualityPDE.cpp)

    /// Second phase of construction; false when no panel results, because the host cannot be asked
    /// before a choice changes.
    virtual bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback);
    /// Deletes the view and ends all observations. Every destructor calls it first, so that no
    /// control can act on a panel of which a part is destroyed already. A second call does nothing.
    void dealloc();
    /// Ends all observations of the panel, whatever the notification.
    virtual void removeNotificationObserver(const Notification &notification);
    QString panelKind() override;
    QWidget *panelView() override;
    void willShow() override;
    bool shouldHide() override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    bool shouldPrint() override;
    /// Reads the controls back and stores the disclosure state. Does nothing before the panel was
    /// shown for the first time.
    virtual void saveAllValues();
    /// Hook: defaults that a panel imposes.
    virtual void setDefaults();
    /// Hook, called once during construction. Overrides rely on this spelling of its name.
    virtual void chechModelName();
    /// Hook.
    virtual void changeResolutionLetterB();

    QString thePDEName() const { return m_thePDEName; }
    void setThePDEName(const QString &name) { m_thePDEName = name; }
    /// Option keyword to choice keyword; the panels' own numbers stand under keys of their own and
    /// keep the type they were stored with.
    const QVariantMap &outputBin() const { return m_outputBin; }
    void setOutputBin(const QVariantMap &bin) { m_outputBin = bin; }
    /// Bits: ImageMode.
    std::int16_t imageModeFlag() const { return m_imageModeFlag; }

    // Binding of PPD options to controls (QXPrintQualityPDE-binding.cpp)

    /// Takes over those of the keywords that the PPD defines, in their order. Without a list the
    /// panel keeps the keywords that it has.
    virtual void setPPDKeys(const std::optional<QStringList> &keywords);
    std::optional<QStringList> supportedPPDOptionKeys() override;
    /// The options to summarise.
    virtual std::optional<QStringList> availablePPDOptionKeys();
    /// Fills the controls from the PPD.
    virtual void initializePopup();
    /// Shows `outputBin` in all controls.
    virtual void updateUI();
    /// Shows `outputBin` in one control.
    virtual void updateUIforKey(const QString &keyword);
    /// Reads all controls into `outputBin`, each through the host.
    virtual void getUIValues();
    /// Asks the host and stores the choice; false when nothing was stored.
    virtual bool setAndMarkValue_forKey(const QString &choice, const QString &keyword);
    /// The action of every bound control.
    virtual void requestNewOutputBin(QWidget *control);
    /// Puts a control back to the stored choice after the host refused a change.
    virtual void revertUI_forKey(QWidget *control, const QString &keyword);
    void PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                              const QString &choice) override;
    bool chooseAsUser(const QString &keyword, const QString &choice) override;
    /// The bound controls, in the order of the panel's options.
    QList<PanelControl> controls() override;
    /// Hook: a panel's rules between options.
    virtual void checkConstraints();
    /// Enables or disables the controls.
    virtual void checkUIConstraints();
    virtual void checkFax();
    virtual void checkColorSync();
    QVariantMap summaryInfo() override;
    /// The control that shows an option, or null.
    virtual QWidget *determineUI(const QString &keyword);
    /// The label that titles an option's control, or null.
    virtual QWidget *determineLabel(const QString &keyword);
    /// The option that a control stands for; null for none.
    virtual QString determineKey(QWidget *control);

    // Services around the controls (QXPrintQualityPDE-services.cpp)

    virtual QString optionName();
    virtual void restoreOptionState();
    virtual void saveOptionState();
    /// Hook: shows or hides the advanced options.
    virtual void toggleShowOption(QWidget *button);
    /// Units: points.
    virtual void setViewFrameSize(double width, double height);
    virtual void dialogDidExpand(const Notification &notification);
    /// Units: points, upwards.
    virtual void adjustUIPosition_forParts(double distance, const QList<QWidget *> &views);
    virtual void changeImage_ofView(const QString &name, QLabel *view);
    virtual bool registerHelp();
    virtual QString helpAnchor();
    virtual QString helpBook();
    bool shouldShowHelp() override;
    virtual void showHelpFile(QWidget *sender);
    virtual bool shouldShowAlert(const QString &key);
    virtual void alertDidEnd_returnCode_contextInfo(const AlertAnswer &answer, int returnCode,
                                                    const QString &key);

protected:
    /// Outlets and actions of the panel's interface file.
    virtual void connectInterface(InterfaceConnections &connections);

    /// Sets the options that the panel handles from a list of the bundle's information dictionary,
    /// unless they are set already. If the list is missing, the panel has no options, which is
    /// logged.
    void loadPPDKeys(const QString &entry);
    /// Takes the marked choice of every option, else its default, into `outputBin`.
    void restoreMarkedChoices();

    bool hasMode(ImageMode mode) const { return (m_imageModeFlag & mode) != 0; }
    void setMode(ImageMode mode, bool on);

    /// The control of an option; nothing where the panel has none for it, or was never shown.
    std::optional<PanelControl> boundControl(const QString &keyword);
    /// The title of the part that is folded away, as controls() names it.
    QString advancedTitle() { return localized(optionName()); }
    /// Opens the part that is folded away, as a click on its triangle does.
    void openAdvancedPart();

    /// A window has room for the whole view when it is higher than the view by more than this.
    /// Units: points.
    static constexpr double kHeightAroundPanel = 96.0;
    /// Makes the view higher by `height` when the disclosure button is on, else lower. Units:
    /// points.
    void resizeForDisclosure(const QWidget *button, double height);

    /// The host's print settings, or null where it has none.
    PMPrintSettings printSettings() const;
    /// Asks the host whether an option may take a choice.
    bool askHost(const QString &keyword, const QString &choice);
    /// The text of the bundle's string table, `key` itself where there is none.
    QString localized(const QString &key) const;
    /// Writes into `effectContent` when there is one.
    void setEffectContent(const QString &key, const QVariant &value);
    /// Whether the panel handles an option, that is its PPD has it.
    bool handles(QLatin1StringView keyword) const { return PPDKeys && PPDKeys->contains(keyword); }

    // Fields. They are in this state until initWithCallback() runs.

    std::shared_ptr<PDEPluginCallback> pdePluginCallbackObject;
    /// The options that this panel handles, in display order; nothing until setPPDKeys() ran.
    std::optional<QStringList> PPDKeys;
    /// The current paper's name as judged by the panel; null before the first judgement.
    QString paperName;
    /// Ownership: the host's.
    ppd_file_t *ppd = nullptr;
    std::shared_ptr<Bundle> pluginBundle;
    /// Whether the controls were filled once.
    bool popupInited = false;
    /// Created with the view and owned by it; null before.
    QPointer<BindingDictionary> effectContent;
    QPointer<QPushButton> optionButton;

    QString m_thePDEName;
    QVariantMap m_outputBin;
    std::int16_t m_imageModeFlag = 0;
    /// Ownership: the panel's, even while it stands in the host's window.
    QPointer<QWidget> m_panelView;

private:
    void showUnsupportedPaperAlert();
    QString choiceText(ppd_option_t *option, const QString &choice) const;
};

} // namespace corvana
