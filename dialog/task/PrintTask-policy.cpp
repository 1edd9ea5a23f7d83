#include "dialog/task/PrintTask.h"

#include <QLoggingCategory>

#include "dialog/policy/Policy.h"
#include "dialog/policy/PolicyLocks.h"
#include "dialog/session/LockedValues.h"
#include "dialog/session/OptionNames.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcTaskPolicy, "corvana.dialog.policy", QtWarningMsg)

QString PrintTask::lockedBy(const QString &name) const
{
    const QString by = m_opened ? m_opened->session->lockedBy(name) : QString();
    return by.isNull() ? QString() : lockedText(by);
}

QString PrintTask::whyNoFile() const
{
    const auto entry = policyOf(m_request).whatForbidsFiles(m_chosen.printer);
    return entry ? notOfferedText(*entry, m_chosen.printer) : QString();
}

// Before anything else is marked, so that nothing else ever moves it.
void PrintTask::lock(OpenedPrinter &opened)
{
    const QList<PolicyEntry> locks = policyOf(m_request).locksOf(opened.fetched.printer);
    const QList<PolicyProblem> voids = lockSettings(locks, *opened.session, opened.jobValues);
    for (const PolicyProblem &problem : voids)
        qCInfo(lcTaskPolicy).noquote() << "void:" << terminalLine(problem.text());
}

// Panels write what is theirs alone without asking anybody. Answers what they had moved.
QStringList PrintTask::keepLocks()
{
    const QStringList moved = putBackLockedValues(*m_opened->session, m_opened->jobValues);
    if (!moved.isEmpty()) {
        const QSignalBlocker blocker(m_opened->panels.get());
        m_opened->panels->restoreAll();
    }
    return moved;
}

QStringList PrintTask::lockedTexts(const QStringList &keywords) const
{
    QStringList texts;
    for (const QString &keyword : keywords)
        texts += lockedText(keyword, *m_opened->session);
    return texts;
}

void PrintTask::sayLocked(const QStringList &keywords)
{
    if (keywords.isEmpty())
        return;
    say(TaskMessage::Kind::Problem, lockedTexts(keywords).join(u'\n'));
}

// The number of -n was asked for just now; any other is quietly as many as are printed.
QStringList PrintTask::lockedCopies() const
{
    const bool isOther = m_request.copiesWereNamed && m_request.copies != m_settings.copiesAskedFor();
    if (!isOther || m_settings.lockedBy(kCopiesAttribute).isNull())
        return {};
    return lockedTexts({kCopiesAttribute});
}

// The last look at a job: nothing gets past a lock by a way that nobody has thought of.
QStringList PrintTask::problemsOfLocks() const
{
    const OptionLocks &locks = m_opened->session->locks();
    if (locks.isEmpty() || passesFilesOn())
        return {};
    const JobTicket job = ticket();
    return lockedTexts(brokenLocks(locks, job.options, m_settings.copiesAskedFor()));
}

} // namespace corvana
