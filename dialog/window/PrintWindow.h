#pragma once

#include <QDialog>

#include "dialog/task/PrintTask.h"
#include "dialog/window/WindowAlertPresenter.h"
#include "dialog/window/WindowGrowth.h"
#include "platform/foundation/HelpManager.h"

namespace corvana {

class HelpWindow;
class JobFooter;
class MessageBar;
class PreviewFolding;
class PreviewPane;
class PrinterHeader;
class SettingsColumn;
class SettingsPages;
class TaskPreview;

/// The face of a task that a person sits in front of: the print dialog. It stays open until the job
/// is printed or the user cancels; a failure leaves every setting in place.
///
/// Ownership: of the task, whose panels go before the window's own widgets do.
class PrintWindow : public QDialog, private TaskFace
{
    Q_OBJECT

public:
    explicit PrintWindow(PrintRequest request, QWidget *parent = nullptr);
    ~PrintWindow() override;

    PrintTask &task() { return *m_task; }

    /// The file that the job was printed to; empty until then, and for a job that a queue has.
    QString printedTo() const { return m_task->outcome().file; }
    /// What became of the job, for the terminal that the program was started from; empty while
    /// nothing was printed.
    QString report() const { return m_report; }

    /// Ends the dialog from outside, whatever the user is doing: alerts and questions are closed
    /// unanswered, a running job is canceled first.
    void interrupt();

    void accept() override;
    void reject() override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // What Enter in a field may take.
    struct Taken
    {
        SessionSnapshot session;
        QList<JobOption> attributes;
        int copies = 1;

        bool operator==(const Taken &) const = default;
    };

    // The window itself (PrintWindow.cpp)

    void buildWindow();
    void buildColumns(SettingsColumn *settings);
    void connectParts();
    void addPageShortcuts();
    Taken taken() const;
    void orderFocus();
    void followList();
    void takeIconsFromTheme();
    void followPage();
    void showHelp();
    void showHelpPage(const HelpPage &page);
    void updateSilencedAlerts();

    // What the task tells (PrintWindow-task.cpp)

    void connectTask();
    void phaseChanged(PrintTask::Phase phase);
    void printerOpened();
    void showPrinter();
    void showList();
    void showListState();
    void showListFailure();
    void showMessage(const TaskMessage &message);
    void showRefusal(const TaskRefusal &refusal);
    void jobEnded(const JobOutcome &outcome);
    void offerToPrintAgain(const JobOutcome &outcome);
    void ended();
    bool mayLeaveHalf();

    // What the task asks (PrintWindow-task.cpp)

    AlertPresenter &alerts() override { return m_presenter; }
    void askCredentials(const CredentialsQuestion &question,
                        const CredentialStore::Answer &answer) override;
    void askDocumentPassword(const DocumentPasswordQuestion &question,
                             const PasswordAnswer &answer) override;
    void askToTurn(const TurnQuestion &question, const TurnAnswer &answer) override;
    Instructions instructions() const override { return Instructions::Followed; }
    bool finishEditing() override;
    bool userIsBusy() const override;
    bool mayOverwrite(const QString &file) override;
    bool mayPrintWithout(const QString &what) override;
    bool confirm(const QString &what, const QString &button);
    std::optional<bool> mayPrintMany(const QString &what) override;
    void writeSummary(const QList<SummaryLine> &lines) override;

    WindowAlertPresenter m_presenter;
    std::unique_ptr<PrintTask> m_task;
    PreviewPane *m_preview = nullptr;
    TaskPreview *m_taskPreview = nullptr;
    std::unique_ptr<PreviewFolding> m_folding;
    PrinterHeader *m_header = nullptr;
    MessageBar *m_message = nullptr;
    SettingsPages *m_pages = nullptr;
    JobFooter *m_footer = nullptr;
    HelpWindow *m_help = nullptr;
    WindowGrowth m_growth;
    QString m_report;
    Taken m_beforeEnter;
    bool m_painted = false;
};

} // namespace corvana
