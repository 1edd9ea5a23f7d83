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

namespace {

// How often it is looked whether a job has ended. Units: milliseconds.
constexpr int kPatience = 200;

} // namespace

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
    bool waits = false;
    for (const QString &path : paths) {
        QString problem;
        // What stands behind one keeps its place.
        if (waits = waits || isReadToItsEnd(path); waits) {
            m_looks.toRead += path;
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
    m_looks.unread += problems;
    readDocuments();
}

// What is written by another program comes when it is complete, one after the other, and nobody has
// to wait for it.
void PrintTask::readDocuments()
{
    const bool areSome = !m_looks.read.isEmpty() || !m_looks.readOfRequest.isEmpty();
    if (areSome && !canChangeDocuments()) // when the job has ended
        return QTimer::singleShot(kPatience, this, &PrintTask::readDocuments);
    // Those that the task was started with are nobody's step.
    if (const auto first = std::exchange(m_looks.readOfRequest, {}); !first.isEmpty()) {
        m_history->addDocuments(first);
        if (m_baseline.coming)
            m_baseline.coming->documents += first;
        setDocuments(m_request.documents + first);
    }
    if (!m_looks.read.isEmpty())
        chooseDocuments(m_request.documents + std::exchange(m_looks.read, {}));
    if (m_looks.reading) {
        if (!m_looks.unread.isEmpty())
            Q_EMIT said(m_looks.sayingWhatIsRead());
        return;
    }
    if (m_looks.toRead.isEmpty()) {
        if (!m_looks.unread.isEmpty())
            say(TaskMessage::Kind::Problem, std::exchange(m_looks.unread, {}).join(u'\n'));
        return;
    }
    const QString path = m_looks.toRead.takeFirst();
    QList<Document> *behind = m_looks.requested > 0 ? &m_looks.readOfRequest : &m_looks.read;
    m_looks.requested = std::max<qsizetype>(m_looks.requested - 1, 0);
    const auto cancel = [this] {
        m_looks.reading.reset();
        Q_EMIT unsaid();
        // What stands behind it was asked for as well. Its message takes the place of this one.
        QMetaObject::invokeMethod(this, &PrintTask::readDocuments, Qt::QueuedConnection);
    };
    m_looks.beingRead = {.text = path == kStandardInput
                                     ? tr("Standard input is being read.")
                                     : tr("%1 is being read.").arg(shownName(path)),
                         .offer = tr("Cancel"),
                         .take = cancel,
                         .staysWithoutPrinter = true};
    Q_EMIT said(m_looks.sayingWhatIsRead());
    m_looks.reading = std::make_unique<SlowWork>(
        [this, path, behind](const std::stop_token &stop) -> SlowWork::Then {
            QString problem;
            const Document document = inspectDocument(path, &problem, DocumentKinds::Known, stop);
            return [this, behind, document, problem] {
                m_looks.reading.release()->deleteLater(); // which has called this
                if (document.path.isEmpty())
                    m_looks.unread += problem;
                else
                    *behind += document;
                readDocuments();
            };
        });
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
