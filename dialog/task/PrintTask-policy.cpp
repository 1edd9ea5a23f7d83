#include "dialog/task/PrintTask.h"

#include <utility>

#include <QLocale>
#include <QLoggingCategory>

#include "dialog/job/PageChoice.h"
#include "dialog/policy/JobJournal.h"
#include "dialog/policy/Policy.h"
#include "dialog/policy/PolicyLocks.h"
#include "dialog/session/LockedValues.h"
#include "dialog/session/OptionNames.h"
#include "dialog/sheets/SheetCount.h"
#include "dialog/task/JobColors.h"
#include "dialog/task/PassedOn.h"
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
    QList<PolicyEntry> locks = policyOf(m_request).locksOf(opened.fetched.printer);
    QList<PolicyProblem> voids = takeWhatCannotBeDone(locks, opened);
    voids += lockSettings(locks, *opened.session, opened.jobValues);
    for (const PolicyProblem &problem : voids) {
        opened.voidLocks += problem.text();
        qCInfo(lcTaskPolicy).noquote() << "void:" << terminalLine(problem.text());
    }
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

// Files that somebody else may have written, and lines that nobody understands, decide nothing. Who
// prints is told once, in few words; the rest is for administrators.
QStringList PrintTask::policyProblems()
{
    if (policyOf(m_request).reading().problems.isEmpty() ||
        std::exchange(m_chosen.policyWasTold, true))
        return {};
    return {tr("Not everything that your administrator has decided can be used. "
               "“corvana-print --check-policy” says what, and why.")};
}

// The number of -n was asked for just now; any other is quietly as many as are printed.
QStringList PrintTask::lockedCopies() const
{
    const bool isOther =
        m_request.copiesWereNamed && m_request.copies != m_settings.copiesAskedFor();
    if (!isOther || m_settings.lockedBy(kCopiesAttribute).isNull())
        return {};
    return lockedTexts({kCopiesAttribute});
}

// Why a job of so many sheets is not printed; nothing where it is.
std::optional<TaskRefusal> PrintTask::askForManySheets()
{
    if (savesAsPdf())
        return std::nullopt; // takes no paper
    const std::optional<int> decided = policyOf(m_request).confirmSheets(m_chosen.printer);
    // Where nobody has decided, somebody who sits in front of it is asked, and a script is not.
    const int most = decided.value_or(m_chosen.canBeAnother ? kUsualConfirmSheets : 0);
    const JobSheets *sheets = m_sheets.counted(sheetRequest(m_run.ticket));
    const std::optional<int> once = sheets ? sheetsOfOneCopy(*sheets) : std::nullopt;
    const qint64 all = qint64(once.value_or(0)) * m_run.ticket.copies;
    if (most == 0 || all <= most || m_request.manySheetsAreMeant)
        return std::nullopt;
    const QString what = tr("This job takes %1 sheets of paper.").arg(QLocale().toString(all));
    const std::optional<bool> may = m_face.mayPrintMany(what);
    if (!may)
        return TaskRefusal{
            {tr("This job takes %1 sheets of paper. More than %2 are printed only with --yes.")
                 .arg(QLocale().toString(all), QLocale().toString(most))}};
    return *may ? std::nullopt : std::optional(TaskRefusal{{}, TaskRefusal::Place::Nowhere, true});
}

void PrintTask::noteInJournal(const JobOutcome &outcome) const
{
    const Policy &policy = policyOf(m_request);
    if (!m_opened || !policy.writesJournal(m_chosen.printer))
        return;
    JournaledJob job;
    job.user = policy.user().name;
    job.printer = m_chosen.printer.name;
    job.job = outcome.job;
    job.outcome = outcomeKeyword(outcome.kind);
    job.isColor = !isBlackAndWhite(*m_opened, m_run.ticket.options);
    if (const JobSheets *sheets = m_sheets.counted(sheetRequest(m_run.ticket))) {
        const PageChoice choice = pageChoiceOf(m_run.ticket.options);
        int pages = 0;
        bool isCounted = true;
        for (const DocumentSheets &document : sheets->documents) {
            isCounted = isCounted && document.pages;
            pages += chosenPages(document.pages.value_or(0), choice);
        }
        if (isCounted)
            job.pages = pages;
        if (const std::optional<int> once = sheetsOfOneCopy(*sheets))
            job.sheets = qint64(*once) * m_run.ticket.copies;
    }
    if (policy.journalHasTitles(m_chosen.printer))
        job.title = m_run.ticket.title;
    const QByteArray line = journalLine(job);
    m_request.journal ? m_request.journal(line) : writeToJournal(line);
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
