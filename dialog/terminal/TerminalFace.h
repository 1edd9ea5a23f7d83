#pragma once

#include <cstdio>
#include <optional>

#include "dialog/task/TaskFace.h"
#include "dialog/terminal/TerminalAlertPresenter.h"

namespace corvana {

class PrintTask;
class TerminationSignals;

/// The face of a task in a terminal or a script, where nobody watches: alerts are written and
/// answered by a policy, passwords are asked on the terminal that controls the program.
class TerminalFace : public TaskFace
{
public:
    /// Borrows the signals, which end a question for a password.
    /// `policy`: nothing for the one that suits where the job goes. `forPeople`: where the summary
    /// goes.
    TerminalFace(std::optional<AlertPolicy> policy, const TerminationSignals &termination,
                 FILE *forPeople = stdout);

    /// The task that it is the face of. Borrowed; to be set before the task is started.
    void setTask(const PrintTask *task) { m_task = task; }

    AlertPresenter &alerts() override;
    /// Not where no terminal controls the program, as for a job of the system's.
    bool canAsk() const override { return bool(m_questioner); }
    void askCredentials(const CredentialsQuestion &question,
                        const CredentialStore::Answer &answer) override;
    void askDocumentPassword(const DocumentPasswordQuestion &question,
                             const PasswordAnswer &answer) override;
    /// On the terminal, which waits for Enter.
    void askToTurn(const TurnQuestion &question, const TurnAnswer &answer) override;
    Instructions instructions() const override;
    /// What -o and --output name was meant.
    bool mayOverwrite(const QString &) override { return true; }
    /// Says it; whoever prints from a script wants what can be had.
    bool mayPrintWithout(const QString &what) override;
    /// Whoever means it says so in advance.
    std::optional<bool> mayPrintMany(const QString &) override { return std::nullopt; }
    void writeSummary(const QList<SummaryLine> &lines) override;

private:
    std::optional<AlertPolicy> m_policy;
    CredentialStore::Questioner m_questioner;
    const TerminationSignals &m_termination;
    const PrintTask *m_task = nullptr;
    FILE *m_forPeople;
    std::optional<TerminalAlertPresenter> m_presenter; // once it is known where the job goes
};

} // namespace corvana
