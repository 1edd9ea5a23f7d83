#pragma once

#include <memory>

#include <QDialog>
#include <QList>

#include "dialog/app/AlertPresenters.h"
#include "dialog/app/OpenedPrinter.h"
#include "dialog/app/PrintRequest.h"
#include "dialog/job/FileQueue.h"
#include "platform/foundation/HelpManager.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QToolButton;
class QTabWidget;

namespace corvana {

class GeneralPage;
class HelpWindow;
class MessageBar;
class PanelPage;
class SummaryPage;

/// The print dialog: General, one page for each panel, Summary. It stays open until the job is
/// printed or the user cancels; a failure leaves every setting in place.
///
/// Ownership: of the session and its panels, which go before the window's own widgets do.
class PrintDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PrintDialog(PrintRequest request, QWidget *parent = nullptr);
    ~PrintDialog() override;

    /// Where the job was printed to; empty until then.
    QString printedTo() const { return m_printedTo; }

    /// Ends the dialog from outside, whatever the user is doing: alerts and questions are closed
    /// unanswered, a running job is canceled first.
    void interrupt();

    void accept() override;
    void reject() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void buildWindow();
    void addPageShortcuts();
    QLayout *buildFooter();
    QWidget *buildOutputRow();
    void openChosenPrinter();
    void closePrinter();
    void fillPages();
    bool bringUpPanels();
    void showPanelViews();
    bool applyRequestedOptions();
    void orderFocus();
    void refreshPages();
    void updatePrintButton();
    void pageEntered(int page);
    void propose(const QString &keyword, const QString &choice);
    void settled();
    void showRefusal(const Refusal &refusal);
    void followPanelView();
    void giveHeightBack(int surplus);
    void growBy(int pixels);
    void showHelp();
    void showHelpPage(const HelpPage &page);
    void updateSilencedAlerts();

    // Printing (PrintDialog-job.cpp)

    void chooseOutput();
    bool readPageRanges();
    void startJob(const QString &output);
    void jobFinished(const QString &problem);
    void showJobRunning(bool running);
    QString textOf(const OptionChoice &choice) const;
    int panelOfPage(int page) const;
    bool confirmOverwriting(const QString &file);

    PrintRequest m_request;
    WindowAlertPresenter m_presenter;
    std::unique_ptr<OpenedPrinter> m_printer;
    std::unique_ptr<FileQueue> m_job;
    QList<JobOption> m_attributes;
    QString m_printedTo;
    QString m_chosenOutput; // the name that the user has confirmed to overwrite
    int m_grownBy = 0;      // the height that panels needed beyond the user's; pixels
    QSize m_followed;       // the window's size when it followed a panel last
    bool m_painted = false;
    bool m_panelsUp = false;
    bool m_interrupted = false;
    bool m_printable = false; // nothing that belongs to the printer is missing
    SessionSnapshot m_shown;  // the state that the pages show
    QString m_jobOutput;      // where the running job goes

    QComboBox *m_printers = nullptr;
    QLabel *m_document = nullptr;
    MessageBar *m_message = nullptr;
    QTabWidget *m_pages = nullptr;
    GeneralPage *m_general = nullptr;
    QList<PanelPage *> m_panelPages;
    SummaryPage *m_summary = nullptr;
    QLineEdit *m_output = nullptr;
    QPushButton *m_helpButton = nullptr;
    QPushButton *m_print = nullptr;
    QPushButton *m_cancel = nullptr;
    QProgressBar *m_progress = nullptr;
    QLabel *m_progressText = nullptr;
    QToolButton *m_silenced = nullptr;
    HelpWindow *m_help = nullptr;
};

} // namespace corvana
