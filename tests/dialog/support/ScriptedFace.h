#pragma once

#include <functional>

#include <QObject>
#include <QStringList>

#include "dialog/task/PrintTask.h"
#include "tests/support/ScriptedAlertPresenter.h"

namespace corvana::test {

/// A face that nobody looks at: it answers as a test tells it to, and notes what its task says.
class ScriptedFace : public QObject, public TaskFace
{
public:
    /// Notes what a task says from now on.
    void watch(PrintTask &task);

    // What it answers.
    bool overwrites = true;
    bool printsWithout = true;
    bool takesWhatIsTyped = true;
    bool canBeAsked = true;
    bool busy = false;
    Instructions instructionsAre = Instructions::Followed;
    /// What it answers when a document's password is asked for; then nothing.
    QStringList documentPasswords;
    /// What it answers when sheets are to be put back; then turnAnswer waits for the test.
    QList<bool> turnAnswers;
    TurnAnswer turnAnswer;
    /// What happens while the task asks, such as news from a server; may be empty.
    std::function<void()> meanwhile;

    // What it has seen.
    QList<PrintTask::Phase> phases;
    QList<TaskMessage> messages;
    QList<TaskRefusal> refusals;
    QStringList ignored; ///< of lpoptions
    QStringList asked;   ///< files that may be overwritten or not
    QStringList notes;   ///< on documents
    QList<DocumentPasswordQuestion> passwordQuestions;
    QList<TurnQuestion> turns; ///< sheets that were to be put back
    int passwords = 0;         ///< how often one was asked for
    QList<JobOutcome> outcomes;
    QList<QList<SummaryLine>> summaries;
    ScriptedAlertPresenter presenter;

    std::optional<bool> printsMany = true; ///< what it answers to a job of many sheets
    QStringList confirmations;             ///< what it was asked so
    QStringList warnings;                  ///< what it was asked to print without
    /// The problems of the last refusal; empty when there is none.
    QStringList problems() const;
    /// The text of the last message; null when there is none.
    QString message() const;

    AlertPresenter &alerts() override { return presenter; }
    bool canAsk() const override { return canBeAsked; }
    void askCredentials(const CredentialsQuestion &, const CredentialStore::Answer &answer) override
    {
        ++passwords;
        answer(std::nullopt);
    }
    void askDocumentPassword(const DocumentPasswordQuestion &question,
                             const PasswordAnswer &answer) override
    {
        passwordQuestions += question;
        answer(documentPasswords.isEmpty() ? std::nullopt
                                           : std::optional(documentPasswords.takeFirst()));
    }
    void askToTurn(const TurnQuestion &question, const TurnAnswer &answer) override
    {
        turns += question;
        if (!turnAnswers.isEmpty())
            answer(turnAnswers.takeFirst());
        else
            turnAnswer = answer;
    }
    Instructions instructions() const override { return instructionsAre; }
    bool finishEditing() override { return takesWhatIsTyped; }
    bool userIsBusy() const override { return busy; }
    bool mayOverwrite(const QString &file) override
    {
        asked += file;
        if (meanwhile)
            meanwhile();
        return overwrites;
    }
    bool mayPrintWithout(const QString &what) override
    {
        warnings += what;
        return printsWithout;
    }
    std::optional<bool> mayPrintMany(const QString &what) override
    {
        confirmations += what;
        return printsMany;
    }
    void writeSummary(const QList<SummaryLine> &lines) override { summaries += lines; }
};

} // namespace corvana::test
