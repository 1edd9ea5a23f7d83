#pragma once

#include <optional>

#include <QList>
#include <QTabWidget>

namespace corvana {

class GeneralPage;
class OptionsPage;
class PanelPage;
class PrintTask;
class SummaryPage;

/// The pages of a task's settings: General, one for each panel (the options of a printer without
/// any), Summary; or one that says what is being waited for.
///
/// Ownership: borrows the task. The panels' views belong to their panels.
class SettingsPages : public QTabWidget
{
    Q_OBJECT

public:
    explicit SettingsPages(PrintTask &task, QWidget *parent = nullptr);

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
    /// Other copies or other pages were typed.
    void jobEdited();

private:
    void addPages();
    void showPanelViews();
    void addGeneral();
    void showAttributes();
    void showLocks();
    void enter(int page);
    void showSummary();
    void showCountedSheets();

    PrintTask &m_task;
    GeneralPage *m_general = nullptr;
    QList<PanelPage *> m_panelPages;
    OptionsPage *m_options = nullptr; // of a printer without panels
    SummaryPage *m_summary = nullptr;
    bool m_showsPanels = false;
    QString m_former; // the title of the page that was shown when the pages were closed
};

} // namespace corvana
