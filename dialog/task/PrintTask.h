#pragma once

#include <memory>
#include <optional>

#include <QHash>
#include <QObject>

#include "dialog/documents/DocumentTexts.h"
#include "dialog/job/Job.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/printers/PrinterSource.h"
#include "dialog/sheets/ChoosablePages.h"
#include "dialog/sheets/SheetCounter.h"
#include "dialog/task/ComingDocuments.h"
#include "dialog/task/JobSettings.h"
#include "dialog/task/OfferedAttributes.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PrintRequest.h"
#include "dialog/task/SheetPreview.h"
#include "dialog/task/TaskFace.h"
#include "dialog/task/TaskMessage.h"
#include "dialog/task/TaskSettings.h"
#include "dialog/task/TaskState.h"

namespace corvana {

class TaskHistory;
class TaskPresets;

/// One thing that is to be printed, from its documents to what became of them: the printer that is
/// opened for it, its options and copies, the questions before it is printed, and its job. Every
/// face (the window, the terminal) shows one of these and holds no rule of its own, so that what
/// one face refuses every face refuses, in the same words.
///
/// A face calls start(), bringUp() once it can show panels, and print() when the user says so; it
/// follows the phases and says what said() and refused() tell it.
///
/// Ownership: of the printer's session and panels; borrows the face, which lives longer.
/// Thread: GUI thread only; servers are asked on others.
class PrintTask : public QObject
{
    Q_OBJECT

public:
    enum class Phase {
        Fetching,  ///< the printer is being asked for its options; nothing can be set yet
        Missing,   ///< it could not be asked for or opened; problem() says why
        Opened,    ///< its session is there; its panels have not come up
        Ready,     ///< everything can be set and printed
        Asking,    ///< Print was chosen; panels are asked, and an alert may be open
        Printing,  ///< texts are looked through, sheets are counted, then a job runs
        Turning,   ///< one half of the sides is printed; somebody puts the sheets back
        Canceling, ///< the job is being taken back; then everything can be set again
        Leaving,   ///< interrupted, or left by its user: the job's answer ends the task
        Ended,     ///< outcome() says with what
    };

    /// What an interruption means for a job that its queue has already.
    enum class OnInterrupt { LeaveJob, CancelJob };

    PrintTask(PrintRequest request, TaskFace &face, QObject *parent = nullptr);
    ~PrintTask() override;

    Phase phase() const { return m_phase; }
    const PrintRequest &request() const { return m_request; }
    /// Why the printer cannot be asked for; empty while it can.
    const PrinterProblem &problem() const { return m_chosen.problem; }

    // The printer (PrintTask-printers.cpp)

    /// Opens the first printer for somebody who can choose another one: the printer that was named,
    /// the user's default, the one used last, else the one that saves a PDF. It is there at once
    /// where its options are known from before.
    void start();
    /// Opens the printer for somebody who cannot choose: the one that was named, the user's
    /// default, else that of the server; never before its server has said what its options are.
    void startUnattended();
    PrinterSource &printers() { return m_source; }
    /// The one that is open, or is being asked for.
    const Printer &printer() const { return m_chosen.printer; }
    /// Whether printer() was named or picked, rather than being there for want of a better one.
    bool isPrinterChosen() const { return m_chosen.deliberately; }
    /// Whether printer() is there only because nobody has found a real one yet.
    bool hasNoPrinterYet() const
    {
        return !m_chosen.deliberately && m_chosen.printer.origin == PrinterOrigin::File &&
               m_request.printers.isEmpty();
    }
    /// Opens another printer. What was set for this one comes back with it.
    void choosePrinter(const Printer &printer);
    /// Asks the server again for the printer; a password may be asked for.
    void retry();
    /// Null while there is none.
    OpenedPrinter *opened() const { return m_opened.get(); }

    // What is printed (PrintTask-documents.cpp)

    /// In the order in which they are printed.
    const QList<Document> &documents() const { return m_request.documents; }
    bool canChangeDocuments() const; ///< not while they are printed
    /// Adds files behind those that are there. What cannot be printed is said, for each of them, in
    /// the words of the command line; the others are taken. This and the next two are steps.
    void addDocuments(const QStringList &paths, const QStringList &elsewhere = {});
    void removeDocument(int index);
    void moveDocument(int from, int to);

    /// Whether all of them were looked into; the summary and a preview wait for that.
    bool knowsDocuments() const { return m_looks.documents.isDone(); }

    // What is set (PrintTask.cpp)

    /// Brings the panels up and the options of the request in; once for a printer. From the first
    /// call on the documents are looked into, whether or not a printer is there.
    void bringUp();
    JobSettings &settings() { return m_settings; }
    /// The user chose a number of copies, or pages as JobSettings::setPageRanges() takes them.
    void setCopies(int copies);
    void setPageRanges(const QString &ranges);
    /// The user picked a choice on a page of the dialog.
    void propose(const QString &keyword, const QString &choice);
    /// The job attributes that a face offers, with what is in force.
    QList<OfferedAttribute> attributes() const;
    /// The user chose a value of a job attribute; null: none. Answers why it is not taken, in words
    /// for the place where it was entered; empty when it is.
    QString setAttribute(const QString &name, const QString &value);
    /// Makes every face show the settings anew.
    void showSettings();
    /// The summary of the job as it stands now.
    QList<SummaryLine> summary();
    /// Counts the sheets of the job as it stands now, for a face that shows them: sheetsCounted()
    /// follows where the summary does not have them already.
    void countSheets();
    /// What is known of its sheets; sheetsCounted() says when that is more. A face calls
    /// countSheets() after each change.
    SheetPreview sheetPreview() const;
    /// Whether documents reach the printer as they are, so that nothing of its settings and nothing
    /// that is done to pages has an effect.
    bool passesFilesOn() const;
    /// Whether nothing is printed: the pages, as a preview shows them, become a PDF in a file.
    bool savesAsPdf() const;

    // Its pages (PrintTask-pages.cpp)

    /// What pages can be chosen. More is known of them when sheetsCounted() says so.
    ChoosablePages choosablePages() const;
    /// The user chose pages, as ChoosablePages::valueFor() writes them; a refusal is said.
    void choosePages(const QString &ranges);

    // What was set before, and can be set again (PrintTask-restoring.cpp). All of it only once a
    // printer is ready.

    TaskSettings settingsNow() const;
    /// Brings the task to a state that it had. Panels are restored, and faces are told. Another
    /// printer is chosen first; the rest follows when it is open. Whoever calls this for a user
    /// records a step then.
    void restoreSettings(const TaskSettings &settings);
    /// What the user has done, and what can be taken back of it.
    TaskHistory &history() const { return *m_history; }
    /// Settings that come from before and are kept for later.
    TaskPresets &presets() const { return *m_presets; }

    // What an administrator has decided (PrintTask-policy.cpp)

    /// Who keeps an option, an attribute of the job or the number of copies ("copies") at what it
    /// is, in a sentence for the place where it is shown; null where nobody does.
    QString lockedBy(const QString &name) const;
    /// Why nothing of the printer that is open goes into a file; empty where it may.
    QString whyNoFile() const;

    // The colours of its pages (PrintTask-colors.cpp)

    /// How colours come out, as far as a screen can show it: with what the panels show now, while a
    /// slider is being moved as well. pageColorsChanged() says when they are others. Those of the
    /// document until the panels have come up.
    const PageColors &pageColors() const { return m_colors.shown; }
    /// What of the colours a preview shows and what it does not know, in sentences; empty while
    /// there is nothing to say.
    const QString &pageColorsText() const { return m_colors.text; }

    // The job (PrintTask-job.cpp)

    bool canPrint() const;
    bool printsToFile() const;
    /// Whether a queue's job goes into a file instead. The printer of a PPD file has no other way.
    void setPrintsToFile(bool toFile) { m_output.toFile = toFile; }
    const QString &output() const { return m_output.path; }
    /// `confirmed`: the user has agreed already that what stands there is replaced.
    void setOutput(const QString &path, bool confirmed = false);
    /// Prints: asks the panels, makes a ticket of everything, and starts the job. refused() or
    /// jobEnded() follows. Without any document only the summary is written.
    void print();
    /// Takes the job back wherever it is; nothing more is heard of one that was not begun.
    void cancel();
    /// Lets a job that its queue has go on by itself; the task then ends.
    void leave();
    /// Ends the task from outside, whatever it is doing.
    void interrupt(OnInterrupt job);
    /// Whether the job goes on without this program. One whose sheets have to be put back does not.
    bool isJobHandedOver() const
    {
        return m_run.job && m_run.job->isHandedOver() && !isFirstPass();
    }
    /// Whether one half of the sides is printed by now, or is being printed; the other is not.
    bool isBetweenPasses() const
    {
        return m_phase == Phase::Turning || (m_run.job && isFirstPass());
    }
    /// Of the job that ended last; Failed without a text before that.
    const JobOutcome &outcome() const { return m_run.outcome; }
    /// Whether the job waits in its queue for instructions to be followed.
    bool isHeld() const { return m_run.held; }
    const ServerContext &server() const { return m_source.serverOf(m_chosen.printer); }

Q_SIGNALS:
    void phaseChanged(corvana::PrintTask::Phase phase);
    /// The printer and its panels were closed, and are gone.
    void printerClosed();
    /// What is known of printer() is other than it was.
    void printerChanged();
    void settingsChanged(); ///< what a face shows has to be read again
    /// Other documents are printed, or in another order.
    void documentsChanged();
    /// What is written is another kind of file, and another name for it is proposed: output().
    void outputProposed();
    /// pageColors() are others, or pageColorsText().
    void pageColorsChanged();
    /// More is known of the sheets than before: the summary and sheetPreview() say other things.
    void sheetsCounted();
    void said(const corvana::TaskMessage &message);
    /// The user wants to see the first sheet of the document of that path.
    void sheetWanted(const QString &path);
    /// What the task had said last is settled.
    void unsaid();
    /// Something that nobody has asked for just now, in lpoptions or among the defaults of the
    /// queue, cannot be taken or is not understood. It is said to the user as well.
    void ignored(const QString &problem);
    /// Something that whoever prints has to know, such as that a protected document goes out
    /// without protection. It is said to the user as well.
    void noted(const QString &what);
    /// print() prints nothing.
    void refused(const corvana::TaskRefusal &refusal);
    void progressed(const corvana::JobProgress &progress);
    /// Whatever became of the job. Everything can be set again, unless the task has ended.
    void jobEnded(const corvana::JobOutcome &outcome);

private:
    friend class TaskPresets;

    using Memory = TaskState::Memory;
    using Run = TaskState::Run;

    void enter(Phase phase);
    PrintsTo printsTo() const;
    void say(TaskMessage::Kind kind, const QString &text);
    void chooseDocuments(QList<Document> documents);
    void setDocuments(const QList<Document> &documents);
    void takeComing(const QList<Document> &documents, ComingDocuments::AskedBy by);
    void documentsLookedAt();
    void sayOfDocuments();
    QString problemOf(const Document &document) const;
    QString damageOf(const Document &document) const;
    TaskRefusal documentProblems() const;
    bool mayAskForPassword() const;
    bool documentsAreReady();
    bool documentsCanBeCounted() const;
    bool mayPrintWithoutLostPages();
    void refuseDocuments(const TaskRefusal &refusal);
    void askForPasswords();
    void askForPassword(const Document &document);
    void passwordDeclined(const Document &document);
    QList<Document> printedDocuments() const;

    void connectSource();
    void take(const FetchedPrinter &ready);
    void takeNext();
    void open(const FetchedPrinter &ready);
    void close();
    void proposeOutput();
    void rememberSession(const FetchedPrinter *next = nullptr);
    void takeExpectedPrinter();
    void printerChecked(const FetchedPrinter &checked);
    void printerFailed(const QString &problem, const QString &brief);
    void offerQueue(const Printer &printer);
    bool isUntouched() const;
    bool isPrinting() const;

    QList<Refusal> bringPanelsUp();
    void applyStartOptions();
    void takeInevitableDefaults();
    void sayStartProblems();
    QStringList takeMostCopies();
    void noteMissingPages();
    void settled();
    void sayRefusal(const Refusal &refusal);
    void proposeToPanels(const JobOption &option);
    void takeWayOut(const QList<OptionChoice> &wayOut, const OptionChoice &proposed);

    void beginHistory();
    void takeComingSettings();

    void lock(OpenedPrinter &opened);
    QStringList keepLocks();
    QStringList lockedTexts(const QStringList &keywords) const;
    QStringList lockedCopies() const;
    QStringList policyProblems();
    QStringList problemsOfLocks() const;
    void sayLocked(const QStringList &keywords);
    std::optional<TaskRefusal> askForManySheets();
    void noteInJournal(const JobOutcome &outcome) const;

    void settingsAffectColors();
    void showColors();
    QList<JobOption> jobAttributes() const;
    std::optional<TaskRefusal> finish();
    std::optional<TaskRefusal> askPanels();
    QString unknownDocument() const;
    void lookForMissingCharacters();
    bool isTextCheckOver() const;
    bool mayPrintTexts();
    void awaitTexts();
    void settleTexts();
    void startJob(const JobTicket &ticket);
    void followJob(std::unique_ptr<Job> job);
    void startByHand(const JobTicket &ticket);
    void startPass();
    bool isFirstPass() const;
    std::optional<JobOutcome> afterPass(const JobOutcome &outcome);
    QString textOfHalf(const QString &other) const;
    void askToTurn();
    void endBetweenPasses(Phase next);

    JobTicket ticket() const;
    SheetRequest sheetRequest(const JobTicket &ticket) const;
    bool putsDocumentsTogether() const;
    QList<SummaryLine> withSheets(QList<SummaryLine> lines, const JobTicket &ticket) const;
    QList<SummaryLine> summaryOfSettings();
    void prepareJob();
    void countBeforeJob();
    void goOnWithJob();
    void sheetsKnown();
    bool isPreparing() const { return m_phase == Phase::Printing && !m_run.job; }
    void stopPreparing();
    void endPreparing();
    ChoosableDocument choosable(const Document &document, const DocumentSheets *counted) const;
    SheetArrangement arrangementOf(const JobTicket &job) const;
    SheetPreview previewOf(const JobSheets &sheets, const JobTicket &ticket) const;
    SheetPreview beginOf(const JobSheets &first, const JobTicket &job) const;
    bool isNoPdfInSpiteOfItsName(const QString &file) const;
    void jobFinished(const JobOutcome &outcome);

    PrintRequest m_request;
    TaskFace &m_face;
    std::shared_ptr<CredentialStore> m_credentials;
    PrinterSource m_source;
    TaskState::Chosen m_chosen;
    std::unique_ptr<OpenedPrinter> m_opened;
    QHash<PrinterId, Memory> m_memory;
    TaskState::Baseline m_baseline;
    std::unique_ptr<TaskHistory> m_history;
    std::unique_ptr<TaskPresets> m_presets;
    JobSettings m_settings;
    TaskState::Colors m_colors;
    TaskState::Output m_output;
    SheetCounter m_sheets;
    SheetPreview m_preview; // that was known last
    Run m_run;
    TaskState::Looks m_looks;
    ComingDocuments m_coming{[this] { return canChangeDocuments(); }};
    Phase m_phase = Phase::Fetching;
};

} // namespace corvana
