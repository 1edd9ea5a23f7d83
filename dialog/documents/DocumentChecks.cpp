#include "dialog/documents/DocumentChecks.h"

#include <algorithm>
#include <utility>

#include <QFileInfo>
#include <QLoggingCategory>

#include "dialog/job/DocumentCopy.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcDocuments, "corvana.dialog.documents", QtWarningMsg)

namespace {

constexpr auto kPdf = "application/pdf"_L1;
constexpr auto kPicture = "image/jpeg"_L1; // of others no camera says anything

} // namespace

DocumentChecks::DocumentChecks(RendererSettings settings, QObject *parent)
    : QObject(parent), m_settings(std::move(settings))
{
}

DocumentChecks::~DocumentChecks() = default;

void DocumentChecks::addPassword(const QString &password)
{
    if (!m_passwords.contains(password))
        m_passwords += password;
}

void DocumentChecks::check(const QList<Document> &documents)
{
    const QHash<QString, Known> before = std::exchange(m_known, {});
    m_files.clear();
    for (const Document &document : documents) {
        if (!document.copy) // which is ours
            m_files += document.path;
        if ((document.format != kPdf && document.format != kPicture) ||
            m_known.contains(document.path))
            continue;
        const QFileInfo info(document.path);
        const auto known = before.find(document.path);
        if (known != before.end() && known->size == info.size() &&
            known->time == info.lastModified())
            m_known.insert(document.path, *known);
        else
            look(document, m_passwords);
    }
    if (m_watch)
        m_watch->watch(m_files);
}

void DocumentChecks::follow()
{
    if (m_watch)
        return;
    m_watch = std::make_unique<DocumentWatch>();
    connect(m_watch.get(), &DocumentWatch::changed, this, &DocumentChecks::outdated);
    m_watch->watch(m_files);
}

void DocumentChecks::look(const Document &document, const QStringList &passwords)
{
    const QFileInfo info(document.path);
    Known &known = m_known[document.path];
    known.size = info.size();
    known.time = info.lastModified();
    known.work = ++m_lastWork;
    const DocumentWorker::Work work{known.work, document.path, passwords,
                                    document.format == kPicture};
    if (m_isHeld)
        m_held += work;
    else
        hand(work);
}

void DocumentChecks::begin()
{
    m_isHeld = false;
    const QList<DocumentWorker::Work> held = std::exchange(m_held, {});
    for (const DocumentWorker::Work &work : held)
        hand(work);
}

void DocumentChecks::hand(const DocumentWorker::Work &work)
{
    if (!m_worker) {
        m_worker = std::make_unique<DocumentWorker>(
            m_settings, [this](const DocumentWorker::Found &found) {
                QMetaObject::invokeMethod(
                    this, [this, found] { take(found); }, Qt::QueuedConnection);
            });
    }
    m_worker->look(work);
}

bool DocumentChecks::isDone() const
{
    return std::none_of(m_known.cbegin(), m_known.cend(),
                        [](const Known &known) { return known.work != 0; });
}

DocumentState DocumentChecks::stateOf(const Document &document) const
{
    return m_known.value(document.path).state;
}

void DocumentChecks::unlock(const Document &document, const QString &password)
{
    look(document, {password});
}

Document DocumentChecks::printed(const Document &document) const
{
    Document printed = document;
    if (const Known known = m_known.value(document.path); known.copy) {
        printed.path = pathOfCopy(*known.copy);
        printed.copy = known.copy;
        printed.original = document.path;
    }
    return printed;
}

void DocumentChecks::take(const DocumentWorker::Found &found)
{
    const auto known = std::find_if(m_known.begin(), m_known.end(),
                                    [&](const Known &one) { return one.work == found.number; });
    if (known == m_known.end())
        return; // nobody wants to know any more
    known->work = 0;
    known->state = found.state;
    known->copy = found.copy;
    if (!found.state.details.isEmpty() || found.state.kind == DocumentState::Kind::Unknown)
        qCInfo(lcDocuments).noquote()
            << known.key() << "was looked at:" << terminalLine(found.state.details);
    if (isDone())
        Q_EMIT changed();
}

} // namespace corvana
