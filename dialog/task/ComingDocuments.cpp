#include "dialog/task/ComingDocuments.h"

#include <utility>

#include <QTimer>

#include "dialog/job/FileBytes.h"
#include "dialog/job/SlowWork.h"

namespace corvana {

namespace {

// How often it is asked whether documents can be taken now. Units: milliseconds.
constexpr int kPatience = 200;

} // namespace

ComingDocuments::ComingDocuments(std::function<bool()> mayTake, QObject *parent)
    : QObject(parent), m_mayTake(std::move(mayTake))
{
}

ComingDocuments::~ComingDocuments() = default;

void ComingDocuments::await(const QStringList &paths, AskedBy by)
{
    for (const QString &path : paths)
        m_awaited += {path, by};
}

void ComingDocuments::proceed()
{
    const bool areSome = !m_come.isEmpty() || !m_comeOfRequest.isEmpty();
    if (areSome && !m_mayTake()) // when the job has ended
        return QTimer::singleShot(kPatience, this, &ComingDocuments::proceed);
    handOver(AskedBy::Request);
    handOver(AskedBy::User);
    if (m_reading) {
        if (!m_problems.isEmpty())
            sayAgain();
        return;
    }
    if (!m_awaited.isEmpty())
        return read(m_awaited.takeFirst());
    if (!m_problems.isEmpty())
        Q_EMIT said({TaskMessage::Kind::Problem, std::exchange(m_problems, {}).join(u'\n')});
}

void ComingDocuments::handOver(AskedBy by)
{
    const QList<Document> documents =
        std::exchange(by == AskedBy::Request ? m_comeOfRequest : m_come, {});
    if (!documents.isEmpty())
        Q_EMIT came(documents, by);
}

void ComingDocuments::read(const Awaited &next)
{
    m_message = message(next.path);
    m_reading =
        std::make_unique<SlowWork>([this, next](const std::stop_token &stop) -> SlowWork::Then {
            QString problem;
            const Document document =
                inspectDocument(next.path, &problem, DocumentKinds::Known, stop);
            return [this, by = next.by, document, problem] {
                m_reading.release()->deleteLater(); // which has called this
                if (document.path.isEmpty())
                    m_problems += problem;
                else
                    (by == AskedBy::Request ? m_comeOfRequest : m_come) += document;
                proceed();
            };
        });
    sayAgain();
}

TaskMessage ComingDocuments::message(const QString &path)
{
    const auto cancel = [this] {
        m_reading.reset();
        Q_EMIT unsaid();
        // What stands behind it was asked for as well. Its message takes the place of this one.
        QMetaObject::invokeMethod(this, &ComingDocuments::proceed, Qt::QueuedConnection);
    };
    return {.text = path == kStandardInput ? tr("Standard input is being read.")
                                           : tr("%1 is being read.").arg(shownName(path)),
            .offer = tr("Cancel"),
            .take = cancel,
            .staysWithoutPrinter = true};
}

// With what could not be read: there is one message at a time.
void ComingDocuments::sayAgain()
{
    if (!m_reading)
        return;
    TaskMessage message = m_message;
    if (!m_problems.isEmpty())
        message.kind = TaskMessage::Kind::Problem;
    message.text = (m_problems + QStringList{message.text}).join(u'\n');
    Q_EMIT said(message);
}

} // namespace corvana
