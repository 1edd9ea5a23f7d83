#include "dialog/task/PrintTask.h"

#include <chrono>
#include <utility>

#include "dialog/job/TextDocuments.h"
#include "dialog/text/TextCheck.h"

namespace corvana {

namespace {

// How long a job waits for what is known of a text's characters; usually that is known long before
// Print is pressed.
constexpr std::chrono::milliseconds kPatienceWithTexts{5000};

} // namespace

// Once for the same documents.
void PrintTask::lookForMissingCharacters()
{
    QStringList texts;
    for (const Document &document : std::as_const(m_request.documents)) {
        if (isTextToLayOut(document, {}))
            texts += document.path;
    }
    if (m_looks.texts || texts.isEmpty())
        return;
    m_looks.texts = std::make_unique<TextCheck>(texts);
    connect(m_looks.texts.get(), &TextCheck::finished, this, &PrintTask::settleTexts);
}

bool PrintTask::isTextCheckOver() const
{
    return !m_looks.texts || m_looks.texts->finding();
}

// A text whose characters nobody has, or may not have, is not printed without a word.
bool PrintTask::mayPrintTexts()
{
    m_run.textsAreSettled = true;
    if (!m_looks.texts || !hasTextToLayOut(m_request.documents, jobAttributes()))
        return true;
    const auto finding = m_looks.texts->finding();
    if (finding && !finding->missing.isEmpty())
        return m_face.mayPrintWithout(tr("No font of this computer has these characters of the "
                                         "text: %1. An empty frame is printed for each of them.")
                                          .arg(finding->missing));
    return (finding && finding->isWhole) ||
           m_face.mayPrintWithout(
               tr("Not all of the text could be looked through for characters that no font of this "
                  "computer has. An empty frame is printed for each of them."));
}

// Texts that nobody could say anything about before are waited for, but not for long.
void PrintTask::awaitTexts()
{
    m_run.awaits = Run::Awaits::Texts;
    if (m_run.textsAreSettled || isTextCheckOver())
        return settleTexts();
    m_looks.textPatience.start(kPatienceWithTexts);
}

void PrintTask::settleTexts()
{
    if (m_run.awaits != Run::Awaits::Texts)
        return;
    m_looks.textPatience.stop();
    m_run.awaits = Run::Awaits::Nothing; // while the user is asked
    const bool mayPrint = m_run.textsAreSettled || mayPrintTexts();
    if (m_phase != Phase::Printing)
        return;
    if (mayPrint)
        return countBeforeJob();
    enter(Phase::Ready);
    Q_EMIT refused({{}, TaskRefusal::Place::Nowhere, true});
    takeNext();
}

} // namespace corvana
