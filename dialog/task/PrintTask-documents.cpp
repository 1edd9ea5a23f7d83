#include "dialog/task/PrintTask.h"

#include "dialog/task/JobNames.h"
#include "dialog/text/TextCheck.h"

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

void PrintTask::addDocuments(const QStringList &paths)
{
    if (!canChangeDocuments())
        return;
    QList<Document> documents = m_request.documents;
    QStringList problems;
    for (const QString &path : paths) {
        QString problem;
        const Document document = inspectDocument(path, &problem);
        if (document.path.isEmpty())
            problems += problem;
        else
            documents += document;
    }
    if (documents.size() > m_request.documents.size())
        chooseDocuments(documents);
    if (!problems.isEmpty())
        say(TaskMessage::Kind::Problem, problems.join(u'\n'));
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
    recordDocuments(documents);
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
    Q_EMIT historyChanged();
    if (m_phase != Phase::Ready)
        return;
    showSettings();
    sayOfDocuments();
    askForPasswords();
}

} // namespace corvana
