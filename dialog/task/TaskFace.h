#pragma once

#include <functional>
#include <optional>

#include <QList>
#include <QString>

#include "dialog/server/CredentialStore.h"
#include "dialog/session/PanelHost.h"
#include "dialog/task/ByHand.h"
#include "platform/toolkit/Alert.h"

namespace corvana {

/// Which document wants a password.
struct DocumentPasswordQuestion
{
    QString title{};       ///< its name
    bool forOwner = false; ///< it opens, and the owner's password would allow printing
    bool isRetry = false;  ///< the password that was given is wrong
};

/// What a task asks of the face that a user sees it by: a window, a terminal, a test. A face shows,
/// asks and answers; what follows from an answer is the task's to know.
///
/// Thread: GUI thread only.
class TaskFace
{
public:
    /// What becomes of a job whose panels have shown instructions ("open the back cover").
    enum class Instructions {
        Followed, ///< there were none, or somebody has read them: the job is printed
        Wait,     ///< the job has to wait in its queue until somebody has followed them
        Refuse,   ///< nobody is there to follow them: nothing is printed
    };

    TaskFace() = default;
    TaskFace(const TaskFace &) = delete;
    TaskFace &operator=(const TaskFace &) = delete;
    virtual ~TaskFace() = default;

    /// Shows the alerts of the panels. Ownership: the face's; lives as long as the task.
    virtual AlertPresenter &alerts() = 0;
    /// Whether there is anybody who could be asked for a password, or to put sheets back.
    virtual bool canAsk() const { return true; }
    /// Asks for a user and a password, and calls `answer` once, now or later. Called only where
    /// canAsk().
    virtual void askCredentials(const CredentialsQuestion &question,
                                const CredentialStore::Answer &answer) = 0;
    /// Asks for the password of a document, and calls `answer` once, now or later; with nothing
    /// when nobody gives it. Called only where canAsk().
    using PasswordAnswer = std::function<void(const std::optional<QString> &)>;
    virtual void askDocumentPassword(const DocumentPasswordQuestion &question,
                                     const PasswordAnswer &answer) = 0;
    /// Asks to put the sheets back whose first sides are printed, and calls `answer` once, now or
    /// later, with whether they are there; else the other sides are not printed. Called only where
    /// canAsk().
    using TurnAnswer = std::function<void(bool arePutBack)>;
    virtual void askToTurn(const TurnQuestion &question, const TurnAnswer &answer) = 0;
    /// What the instructions that the panels have just shown mean for the job.
    virtual Instructions instructions() const = 0;

    /// Takes a value that is being typed. False when it cannot be taken; the face then says why.
    virtual bool finishEditing() { return true; }
    /// Whether an alert, a question or an open list is in front of the user, so that the printer
    /// must not be taken away.
    virtual bool userIsBusy() const { return false; }
    /// Whether a file that stands there already may be replaced.
    virtual bool mayOverwrite(const QString &file) = 0;
    /// Whether to print although something will be missing on paper; `what` says what.
    virtual bool mayPrintWithout(const QString &what) = 0;
    /// Whether to print so many sheets; `what` says how many. Nothing where nobody can be asked.
    virtual std::optional<bool> mayPrintMany(const QString &what) = 0;
    /// Writes the summary where the user has asked for it. Called only then.
    virtual void writeSummary(const QList<SummaryLine> &lines) = 0;
};

} // namespace corvana
