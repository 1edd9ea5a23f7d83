#pragma once

#include <memory>
#include <optional>

#include <QFileInfo>
#include <QHash>
#include <QTimer>

#include "dialog/documents/DocumentChecks.h"
#include "dialog/job/Job.h"
#include "dialog/job/ResultFile.h"
#include "dialog/printers/FetchedPrinter.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/PanelHost.h"
#include "dialog/task/ByHand.h"
#include "dialog/task/JobColors.h"
#include "dialog/task/LeftSession.h"
#include "dialog/task/TaskSettings.h"
#include "dialog/text/TextCheck.h"

namespace corvana {

struct KeptSettings;

/// Why a printer cannot be asked for, whole and in few words.
struct PrinterProblem
{
    QString text{};
    QString brief{};
};

/// Parts of what a PrintTask keeps, each for one of its subjects.
struct TaskState
{
    // What a task remembers of a printer while another one is open.
    struct Memory
    {
        std::optional<LeftSession> session;
        std::shared_ptr<const KeptSettings> kept; // of the same
        int earlierJob = 0;                       // that may print yet
        int earlierDocuments = 0;
        int sentDocuments = 0; // as jobs of their own
        std::optional<SettingsBase> base{};
        // As it was opened with all options that it had, by the hash of their PPD: steps may lead
        // back to settings of a time when they were others.
        QHash<QByteArray, SessionSnapshot> opened{};
    };
    struct Chosen
    {
        Printer printer;                    // as its server describes it by now
        bool deliberately = false;          // named or picked, and not for want of a better one
        bool canBeAnother = false;          // somebody sits there who can choose
        PrinterProblem problem;             // why it cannot be asked for
        QStringList unset;                  // what was asked for with it and cannot be set
        bool policyWasTold = false;         // that something of the policy is not used
        QStringList ignored;                // the same of what nobody has asked for just now
        std::optional<FetchedPrinter> next; // while the one that is open is in use
    };
    struct Run
    {
        // What is not known yet of a job that is about to begin.
        enum class Awaits { Nothing, Texts, Sheets };
        std::unique_ptr<Job> job;
        JobTicket ticket;             // of the one whose sheets are counted
        QList<SummaryLine> lines;     // of its summary
        JobOutcome outcome;           // of the last one
        bool held = false;            // the job waits until its instructions have been followed
        bool textsAreSettled = false; // nothing has to be asked about them any more
        Awaits awaits = Awaits::Nothing;
        std::optional<HandRun> hand{}; // of a job that is printed on both sides by hand
    };
    struct Output
    {
        QString path;
        bool toFile = false;
        bool confirmed = false;
        QString proposed{};   // and nobody's choice
        bool isTaken = false; // a file is there, and its user has agreed to replace it
        /// `isSeen`: somebody sits there; nobody has seen a name that was proposed to a script.
        bool wouldReplace(bool isSeen) const
        {
            return !confirmed && QFileInfo::exists(path) && (isSeen || path != proposed);
        }
        ResultFile::NamedBy namedBy() const
        {
            return isTaken || path != proposed ? ResultFile::NamedBy::User
                                               : ResultFile::NamedBy::Nobody;
        }
    };
    struct Colors
    {
        PageColors shown;
        QString text;
        bool isBlack = false; // the job is black and white, whatever the panels say
    };
    // What is found out about the documents before they are printed.
    struct Looks
    {
        DocumentChecks documents;
        std::unique_ptr<TextCheck> texts;
        QTimer textPatience;  // until a job is made without the finding of the texts
        QStringList declined; // documents whose password somebody does not want to give
        QStringList told;     // what was said of them
        bool isAsking = false;
        bool areReady = false;   // of the job that is made; else they are waited for
        bool printsThen = false; // Print was chosen meanwhile
        bool countsThen = false;
    };
    struct Baseline
    {
        SessionSnapshot opened;  // before any option was taken
        SessionSnapshot left;    // as it was set before, where it was; no panel has seen it yet
        QStringList lost;        // what of the settings that came back could not be set again
        SessionSnapshot started; // before the user changed anything
        SessionSnapshot shown;   // as the face was told last
        QList<JobOption> chosen; // attributes, before the user changed anything
        std::optional<SessionSnapshot> asked; // before options were asked for, where some were
        JobSettings jobAsked;                 // the same of the job
        std::optional<TaskSettings> coming;   // to be restored when their printer is open
    };
};

} // namespace corvana
