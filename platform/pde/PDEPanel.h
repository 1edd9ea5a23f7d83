#pragma once

#include <optional>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QtGlobal>

class QWidget;

namespace corvana {

class PrintSettings;

/// Key of the summary dictionary under which the option texts stand in display order.
inline constexpr char kSummaryDisplayOrder[] = "Summary Display Order";

/// A control of a panel: where the user finds one setting. For hosts that find settings by name,
/// mark what was changed, or show what is locked.
///
/// Ownership: the widgets are the view's.
struct PanelControl
{
    QString keyword{}; ///< the option of the PPD, or the name that the setting has in a job
    QString text{};    ///< what the user reads, without colon and mnemonic
    QStringList
        choices{}; ///< what can be chosen, as the user reads it; empty for boxes and numbers
    QStringList sections{}; ///< the titles of the parts of the panel that hold it, outermost first
    QWidget *control = nullptr;
    QWidget *label = nullptr; ///< null where the control has its title itself
    QList<QWidget *>
        companions{}; ///< further widgets that set the same, as a field beside a slider
};

/// The panel protocol: what a host calls on each panel, in the order of a panel's life.
///
/// Ownership: the host shares the panel with the plug-in; the panel owns its view, which the host
/// shows inside its own window and must let live as long as the panel.
/// Thread: GUI thread only. A host calls one operation at a time and lets it return.
class PDEPanel
{
public:
    PDEPanel() = default;
    PDEPanel(const PDEPanel &) = delete;
    PDEPanel &operator=(const PDEPanel &) = delete;
    virtual ~PDEPanel() = default;

    /// The localised title in the dialog's panel menu.
    virtual QString panelName() = 0;
    /// Identifies the kind of panel, for instance to remember the one last shown.
    virtual QString panelKind() = 0;
    /// The panel's view; the first request loads it. Null when it cannot be loaded.
    virtual QWidget *panelView() = 0;

    /// The panel is about to appear.
    virtual void willShow() = 0;
    /// The user leaves the panel. False would refuse that.
    virtual bool shouldHide() = 0;

    /// Brings the panel up to date with the print settings and the PPD's marks.
    /// Errors: `error`, which may be null, takes a message when the answer is false.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Makes the panel write its values into the print settings. Errors: as above.
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    /// Writes what the panel's controls show and it has not saved yet into `settings`, a copy of
    /// the job's, so that a host can show what a control does while it is still being moved. Panel
    /// and job stay as they are. By default there is nothing of the kind.
    virtual void writeShownValues([[maybe_unused]] PrintSettings &settings) const {}

    /// Option text to choice text, plus the order under kSummaryDisplayOrder. The panel restores
    /// and saves on the way, so it asks the host again.
    virtual QVariantMap summaryInfo() = 0;

    /// The PPD options that the panel owns; nothing when the panel has not been told yet.
    virtual std::optional<QStringList> supportedPPDOptionKeys() = 0;
    /// An option took another choice elsewhere in the dialog.
    virtual void PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                                      const QString &choice) = 0;
    /// The user takes an offer of the host to choose this. A panel that has a control for the
    /// option acts as if the user had picked it there, with all rules and instructions, and answers
    /// true; any other panel answers false.
    virtual bool chooseAsUser([[maybe_unused]] const QString &keyword,
                              [[maybe_unused]] const QString &choice)
    {
        return false;
    }

    /// The settings that the user finds in the panel: what this printer has, in the order of the
    /// view, also what is folded away now, and values of the panel's own. Empty until the panel was
    /// shown once; the same from then on.
    virtual QList<PanelControl> controls() { return {}; }
    /// Opens what hides the control of a setting; does nothing for a setting that the panel lacks.
    virtual void disclose([[maybe_unused]] const QString &keyword) {}

    /// The user pressed Print; false holds the job back. May run modal alerts.
    virtual bool shouldPrint() = 0;
    /// The user pressed the dialog's help button; false when the panel showed its own help.
    virtual bool shouldShowHelp() = 0;
};

} // namespace corvana
