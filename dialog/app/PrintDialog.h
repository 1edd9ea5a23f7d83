#pragma once

#include <memory>

#include <QDialog>
#include <QHash>
#include <QList>

#include "dialog/app/AlertPresenters.h"
#include "dialog/app/OpenedPrinter.h"
#include "dialog/app/PrintRequest.h"
#include "dialog/app/PrinterSource.h"
#include "dialog/chooser/PrinterModel.h"
#include "dialog/job/FileQueue.h"
#include "dialog/job/ServerJob.h"
#include "platform/foundation/HelpManager.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;

namespace corvana {

class ElidedLabel;
class ElidedToolButton;
class GeneralPage;
class HelpWindow;
class MessageBar;
class OptionsPage;
class PanelPage;
class PrinterComboBox;
class PrinterStatusLine;
class SummaryPage;

/// The print dialog: General, one page for each panel (the options of a printer without any),
/// Summary. It stays open until the job is
/// printed or the user cancels; a failure leaves every setting in place.
///
/// Ownership: of the session and its panels, which go before the window's own widgets do.
class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PrintDialog(PrintRequest request, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// The file that the job was printed to; empty until then, and for a job that a queue has.
    QString printedTo() const { return m_printedTo; }
    /// What became of the job, for the terminal that the program was started from; empty while
    /// nothing was printed.
    QString report() const { return m_report; }

    /// Ends the dialog from outside, whatever the user is doing: alerts and questions are closed
    /// unanswered, a running job is canceled first.
    void interrupt();

    void accept() override;
    void reject() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // The pages and what is set on them (PrintDialog.cpp)

    void closePrinter();
    void fillPages();
    bool bringUpPanels();
    void showPanelViews();
    bool applyRequestedOptions();
    void takeCopies(std::optional<int> copies);
    QList<SummaryLine> summary();
    void showPageRanges();
    void refreshPages();
    void updatePrintButton();
    void pageEntered(int page);
    void propose(const QString &keyword, const QString &choice);
    void settled();
    void showRefusal(const Refusal &refusal);
    QString textOf(const OptionChoice &choice) const;
    int panelOfPage(int page) const;

    // The window around the pages (PrintDialog-window.cpp)

    void buildWindow();
    void addPageShortcuts();
    QLayout *buildFooter();
    QWidget *buildOutputLabel();
    QWidget *buildOutputRow();
    void orderFocus();
    void followList();
    void followPanelView();
    void giveHeightBack(int surplus);
    void growBy(int pixels);
    void showHelp();
    void showHelpPage(const HelpPage &page);
    void updateSilencedAlerts();

    // Choosing and opening printers (PrintDialog-printers.cpp)

    /// A job's settings as options, so that they outlive their session.
    struct KeptSettings
    {
        QList<JobOption> options;
        int copies = 1;
    };

    void setUpPrinters();
    void askCredentials(const CredentialsQuestion &question, const CredentialStore::Answer &answer);
    void choosePrinter(const Printer &printer);
    void printerReady(const ReadyPrinter &ready);
    void printerChecked(const Printer &printer, qint64 ppdLastModified);
    void printerFailed(const QString &problem, const QString &brief);
    void offerQueue(const Printer &printer);
    void printersListed();
    void takeExpectedPrinter();
    void showListState();
    void openPrinter(const ReadyPrinter &ready);
    void showAsking();
    void showWaiting(const QString &text, bool canRetry);
    bool isUntouched() const;
    void keepSettings();
    bool printsToFile() const;
    void updateDestination();

    // Printing (PrintDialog-job.cpp)

    void chooseOutput();
    bool readPageRanges();
    bool finishOptions();
    void startJob(const QString &output);
    void jobFinished(const QString &problem);
    void startServerJob();
    void leave();
    void serverJobFinished(const JobOutcome &outcome);
    void showProgress(const JobProgress &progress);
    void showJobRunning(bool running);
    bool isPrinting() const { return m_job || m_serverJob; }
    bool confirmOverwriting(const QString &file);

    PrintRequest m_request;
    WindowAlertPresenter m_presenter;
    std::shared_ptr<CredentialStore> m_credentials;
    PrinterSource m_source;
    Printer m_chosen;
    bool m_chosenByUser = false;
    std::unique_ptr<OpenedPrinter> m_printer;
    std::optional<ReadyPrinter> m_comesNext; // while the one that is open is in use
    QHash<PrinterId, KeptSettings> m_kept;   // of printers that were open
    int m_openedCopies = 1;                  // as the printer was opened
    bool m_copiesSet = false;                // by the user
    std::optional<QString> m_pageRanges;     // as the user left them; they go along like the copies
    std::unique_ptr<FileQueue> m_job;
    std::unique_ptr<ServerJob> m_serverJob;
    QHash<PrinterId, int> m_earlierJobs; // of printers that may print them yet
    SessionSnapshot m_opened;            // what the printer was set to when it was opened
    QList<JobOption> m_attributes;
    QString m_printedTo;
    QString m_report;
    QString m_chosenOutput; // the name that the user has confirmed to overwrite
    int m_grownBy = 0;      // the height that panels needed beyond the user's; pixels
    QSize m_given;          // the window's size when it opened
    QSize m_followed;       // the window's size when it followed a panel last
    bool m_painted = false;
    bool m_panelsUp = false;
    bool m_interrupted = false;
    bool m_leaving = false;   // the user does not want to see how the job ends
    bool m_printable = false; // nothing that belongs to the printer is missing
    SessionSnapshot m_shown;  // the state that the pages show
    QString m_jobOutput;      // where the running job goes

    PrinterComboBox *m_printers = nullptr;
    PrinterStatusLine *m_status = nullptr;
    QCheckBox *m_toFile = nullptr;
    QLabel *m_toFileLabel = nullptr;
    QWidget *m_outputRow = nullptr;
    QPushButton *m_leave = nullptr; // lets a job go on without the window
    ElidedLabel *m_document = nullptr;
    MessageBar *m_message = nullptr;
    QTabWidget *m_pages = nullptr;
    GeneralPage *m_general = nullptr;
    QList<PanelPage *> m_panelPages;
    OptionsPage *m_options = nullptr; // of a printer without panels
    SummaryPage *m_summary = nullptr;
    QLineEdit *m_output = nullptr;
    QPushButton *m_helpButton = nullptr;
    QPushButton *m_print = nullptr;
    QPushButton *m_cancel = nullptr;
    QProgressBar *m_progress = nullptr;
    ElidedLabel *m_progressText = nullptr;
    ElidedToolButton *m_silenced = nullptr;
    HelpWindow *m_help = nullptr;
};

} // namespace corvana
