#include "dialog/task/PrintTask.h"

#include <algorithm>
#include <utility>

#include <QTimer>

#include "dialog/job/FileBytes.h"
#include "dialog/task/JobNames.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/text/TextCheck.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

bool PrintTask::canChangeDocuments() const
{
    switch (m_phase) {
    case Phase::Fetching:
    case Phase::Missing:
    case Phase::Opened:
    case Phase::Ready:
        return true;
    default:
        return false;
    }
}

// `elsewhere`: addresses of what the user would like to print and nobody has here.
void PrintTask::addDocuments(const QStringList &paths, const QStringList &elsewhere)
{
    if (!canChangeDocuments())
        return;
    QList<Document> documents = m_request.documents;
    QStringList problems;
    QStringList coming;
    for (const QString &path : paths) {
        QString problem;
        // What stands behind one keeps its place.
        if (!coming.isEmpty() || isReadToItsEnd(path)) {
            coming += path;
            continue;
        }
        const Document document = inspectDocument(path, &problem);
        if (document.path.isEmpty())
            problems += problem;
        else
            documents += document;
    }
    if (documents.size() > m_request.documents.size())
        chooseDocuments(documents);
    for (const QString &address : elsewhere)
        problems +=
            tr("%1 is not on this computer. Save it here to print it.").arg(terminalLine(address));
    m_coming.addProblems(problems);
    m_coming.await(coming, ComingDocuments::AskedBy::User);
    m_coming.proceed();
}

void PrintTask::takeComing(const QList<Document> &documents, ComingDocuments::AskedBy by)
{
    if (by == ComingDocuments::AskedBy::User)
        return chooseDocuments(m_request.documents + documents);
    // Those that the task was started with are nobody's step.
    m_history->addDocuments(documents);
    if (m_baseline.coming)
        m_baseline.coming->documents += documents;
    setDocuments(m_request.documents + documents);
}

void PrintTask::removeDocument(int index)
{
    if (!canChangeDocuments() || index < 0 || index >= m_request.documents.size())
        return;
    QList<Document> documents = m_request.documents;
    documents.removeAt(index);
    chooseDocuments(documents);
}

void PrintTask::moveDocument(int from, int to)
{
    const qsizetype count = m_request.documents.size();
    if (!canChangeDocuments() || from < 0 || to < 0 || from >= count || to >= count || from == to)
        return;
    QList<Document> documents = m_request.documents;
    documents.move(from, to);
    chooseDocuments(documents);
}

// The user did. A question about them may stay open for long, so the step is there before.
void PrintTask::chooseDocuments(QList<Document> documents)
{
    // A list that is filled at one end and emptied at the other keeps more room with each turn, and
    // every step of the history has one.
    documents.squeeze();
    m_history->recordDocuments(documents);
    if (m_baseline.coming) // a step is being undone, and leads to another printer
        m_baseline.coming->documents = documents;
    setDocuments(documents);
}

void PrintTask::setDocuments(const QList<Document> &documents)
{
    m_request.documents = documents;
    if (!m_request.titleWasNamed)
        m_request.title = titleOfDocuments(documents);
    // A name that somebody has chosen stays.
    const bool isProposed = !m_request.outputWasNamed && m_output.path == m_output.proposed;
    if (isProposed) {
        m_request.output = proposedOutput(documents);
        m_output.path = m_output.proposed = m_request.output;
        if (m_opened)
            proposeOutput();
        Q_EMIT outputProposed();
    }
    m_looks.texts.reset();
    m_looks.documents.check(documents);
    if (m_phase == Phase::Ready)
        lookForMissingCharacters();
    // What was sent before is another job.
    for (Memory &memory : m_memory)
        memory.earlierJob = memory.earlierDocuments = 0;
    Q_EMIT unsaid();
    Q_EMIT documentsChanged();
    if (m_phase != Phase::Ready)
        return;
    showSettings();
    sayOfDocuments();
    askForPasswords();
}

} // namespace corvana
