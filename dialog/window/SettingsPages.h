#pragma once

#include <optional>

#include <QList>
#include <QTabWidget>

#include "dialog/window/pages/ChangeMarks.h"

namespace corvana {

class GeneralPage;
class OptionsPage;
class PanelPage;
class PrintTask;
class SummaryPage;
struct Setting;
struct SummaryLine;

/// The pages of a task's settings: General, one for each panel (the options of a printer without
/// any), Summary; or one that says what is being waited for.
///
/// Ownership: borrows the task. The panels' views belong to their panels.
class SettingsPages : public QTabWidget
{
    Q_OBJECT

public:
    explicit SettingsPages(PrintTask &task, QWidget *parent = nullptr);

    /// On a small screen with large letters no more than leaves the buttons on it: pages scroll.
    QSize minimumSizeHint() const override;

    /// Makes the pages of the printer that was opened.
    void open();
    /// Shows the views of the panels, which have come up, and enters the current page. Does nothing
    /// when it was done for this printer already; answers whether it was done now.
    bool showPanels();
    /// Lets go of all pages. The panels, which delete their views, are gone by then.
    void close();
    /// In the place of the pages, while there are none. The same text again changes nothing.
    void showWaiting(const QString &text, bool canRetry);

    /// Shows the settings of the task.
    void refresh();
    /// Takes what is being typed. False when that is not possible: its page says why.
    bool finishEditing();
    /// Shows where the pages to print are typed.
    void showPageRanges();
    /// Where a setting is seen.
    struct Shown
    {
        QWidget *control = nullptr; ///< null where it is not shown
        QRect part{};               ///< of the control, where that shows many settings
        bool canBeSet = false;      ///< it has the focus
    };
    /// Goes to the page of a setting, opens what hides it there, and puts the focus on it.
    Shown goTo(const Setting &setting);
    /// The same for the setting that the task knows by this name; nothing where no page shows it.
    Shown goTo(const QString &name);
    /// The settings of the page that is shown that were changed, and taking them back.
    QStringList changedOnPage() const;
    void resetPage();
    /// The index of the panel whose page is shown; -1 on a page of the dialog.
    int currentPanel() const;
    /// The page of a panel that is shown; null on a page of the dialog.
    PanelPage *currentPanelPage() const;
    /// By how much the page that is shown is too low for its contents; negative: higher than they
    /// need. Nothing for a page that needs no height of its own. Units: pixels.
    std::optional<int> missingHeight() const;
    /// Goes on to the next page or back to the one before, in a circle.
    void turn(int step);

Q_SIGNALS:
    void retryPressed();
    /// A page was entered, and every page shows the settings.
    void entered();
    /// missingHeight() has another answer.
    void heightChanged();
    /// A page got further controls, which come last for Tab.
    void controlsAdded();
    /// Other copies or other pages were typed.
    void jobEdited();

private:
    void addPages();
    void takeFocus();
    void addAllOptions();
    void makeOptions();
    QWidget *disclose(const Setting &setting);
    void showPanelViews();
    void addGeneral();
    void showAttributes();
    void showLocks();
    void enter(int page);
    ShownChanges changesNow() const;
    QList<MarkedControl> controlsOfPanels() const;
    QStringList settingsOfPage() const;
    void showChanges();
    void reset(const QString &name);
    void showSummary();
    void setSummaryLines(const QList<SummaryLine> &lines);
    void showCountedSheets();

    PrintTask &m_task;
    GeneralPage *m_general = nullptr;
    QList<PanelPage *> m_panelPages;
    QWidget *m_optionsTab = nullptr;  // that has the list of options, once it was looked at
    OptionsPage *m_options = nullptr; // null until then, and where there is none
    SummaryPage *m_summary = nullptr;
    ChangeMarks *m_panelMarks;
    bool m_showsPanels = false;
    bool m_tookFocus = false;
    QString m_former; // the title of the page that was shown when the pages were closed
};

} // namespace corvana
