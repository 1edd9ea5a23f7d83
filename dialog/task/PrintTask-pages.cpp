#include "dialog/task/PrintTask.h"

#include "dialog/session/OptionNames.h"

namespace corvana {

using namespace Qt::StringLiterals;
using Kind = DocumentState::Kind;

ChoosablePages PrintTask::choosablePages() const
{
    ChoosablePages pages;
    pages.choice = pageChoiceOf(m_settings.attributes());
    // Only the layout step knows how many pages a text or a picture has.
    const bool isCounted = m_opened && m_phase == Phase::Ready && !passesFilesOn() &&
                           documentProblems().problems.isEmpty();
    const JobSheets *sheets = isCounted ? m_sheets.counted(sheetRequest(ticket())) : nullptr;
    for (qsizetype i = 0; i < m_request.documents.size(); ++i)
        pages.documents +=
            choosable(m_request.documents.at(i), sheets ? &sheets->documents.at(i) : nullptr);
    return pages;
}

ChoosableDocument PrintTask::choosable(const Document &document,
                                       const DocumentSheets *counted) const
{
    const DocumentState state = m_looks.documents.stateOf(document);
    const bool isPdf = document.format == "application/pdf"_L1;
    ChoosableDocument one;
    one.title = document.title;
    one.pages = state.pages;
    if (one.pages == 0 && counted)
        one.pages = counted->pages.value_or(0);
    if (!isPdf) {
        one.reason = tr("Its pages are made while it is printed. The preview shows them.");
        return one;
    }
    if (state.kind == Kind::Fine || state.kind == Kind::Unknown)
        one.file = m_looks.documents.printed(document).path;
    else
        one.pages = 0; // nothing of it is printed as it is
    one.reason = problemOf(document);
    if (one.reason.isEmpty() && one.pages == 0)
        one.reason = m_looks.documents.isDone() ? tr("How many pages it has is not known.")
                                                : tr("It is being looked at…");
    return one;
}

void PrintTask::choosePages(const QString &ranges)
{
    if (!m_opened)
        return;
    const QString problem =
        setAttribute(kPageRangesAttribute, ranges.isEmpty() ? QString() : ranges);
    if (!problem.isEmpty())
        say(TaskMessage::Kind::Problem, problem);
}

} // namespace corvana
