#include "dialog/terminal/TerminalFace.h"

#include <QTextStream>

#include "dialog/session/Summary.h"
#include "dialog/task/PrintTask.h"
#include "dialog/terminal/TerminalQuestions.h"
#include "dialog/terminal/TerminationSignals.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

TerminalFace::TerminalFace(std::optional<AlertPolicy> policy, const TerminationSignals &termination,
                           FILE *forPeople)
    : m_policy(policy),
      m_questioner(terminalQuestioner([&termination] { return termination.caught() != 0; })),
      m_termination(termination), m_forPeople(forPeople)
{
}

AlertPresenter &TerminalFace::alerts()
{
    if (!m_presenter) {
        const bool canWait = !m_task->printsToFile();
        m_presenter.emplace(m_policy.value_or(canWait ? AlertPolicy::Hold : AlertPolicy::Print),
                            canWait);
    }
    return *m_presenter;
}

void TerminalFace::askCredentials(const CredentialsQuestion &question,
                                  const CredentialStore::Answer &answer)
{
    m_questioner(question, answer);
}

void TerminalFace::askDocumentPassword(const DocumentPasswordQuestion &question,
                                       const PasswordAnswer &answer)
{
    answer(documentPasswordFromTerminal(question, [this] { return m_termination.caught() != 0; }));
}

void TerminalFace::askToTurn(const TurnQuestion &question, const TurnAnswer &answer)
{
    answer(sheetsArePutBack(question, [this] { return m_termination.caught() != 0; }));
}

TaskFace::Instructions TerminalFace::instructions() const
{
    if (!m_presenter || !m_presenter->jobMustWait())
        return Instructions::Followed;
    return m_presenter->policy() == AlertPolicy::Hold ? Instructions::Wait : Instructions::Refuse;
}

bool TerminalFace::mayPrintWithout(const QString &what)
{
    QTextStream(stderr) << "corvana-print: " << terminalText(what) << "\n";
    return true;
}

void TerminalFace::writeSummary(const QList<SummaryLine> &lines)
{
    QTextStream(m_forPeople) << summaryText(lines);
}

} // namespace corvana
