#include "dialog/documents/DocumentWorker.h"

#include <utility>

#include <fcntl.h>
#include <sys/eventfd.h>

#include <QFile>
#include <QTemporaryDir>

#include "dialog/job/DocumentCopy.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using Kind = DocumentState::Kind;

bool isPicture(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "\xff\xd8";
}

DocumentState stateOf(RendererProcess::Outcome outcome, const CheckedPdf &checked)
{
    using Outcome = RendererProcess::Outcome;
    DocumentState state;
    state.isDamaged = checked.isDamaged;
    state.pages = checked.pages;
    state.lostPages = checked.lostPages;
    state.damagedAt = checked.damagedAt;
    state.details = checked.detail;
    if (outcome == Outcome::PasswordNeeded)
        state.kind = Kind::Locked;
    else if (outcome == Outcome::Damaged)
        state.kind = Kind::Unreadable;
    else if (outcome == Outcome::Done)
        state.kind = checked.mayPrint || checked.isOwner ? Kind::Fine : Kind::Forbidden;
    return state;
}

} // namespace

DocumentWorker::DocumentWorker(RendererSettings settings, std::function<void(const Found &)> tell)
    : m_tell(std::move(tell)), m_wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_renderer(
          std::move(settings), [this] { return !ends(); }, m_wake.get()),
      m_thread([this] { run(); })
{
}

DocumentWorker::~DocumentWorker()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_ends = true;
        m_changed.notify_all();
        ::eventfd_write(m_wake.get(), 1);
    }
    m_thread.join();
}

void DocumentWorker::look(const Work &work)
{
    const std::scoped_lock lock(m_mutex);
    m_work.push_back(work);
    m_changed.notify_all();
}

bool DocumentWorker::ends()
{
    const std::scoped_lock lock(m_mutex);
    return m_ends;
}

void DocumentWorker::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        if (m_work.empty() && !m_ends) {
            lock.unlock();
            m_renderer.stop();
            lock.lock();
        }
        m_changed.wait(lock, [this] { return m_ends || !m_work.empty(); });
        if (m_ends)
            return;
        const Work work = m_work.front();
        m_work.pop_front();
        lock.unlock();
        const Found result = found(work);
        if (!ends())
            m_tell(result);
        lock.lock();
    }
}

DocumentWorker::Found DocumentWorker::found(const Work &work)
{
    if (work.isPicture)
        return foundPicture(work);
    Found result{work.number, {}, nullptr};
    check(work, {}, &result.state);
    bool isUnlocked = false;
    for (const QString &password : work.passwords) {
        const bool helps =
            result.state.kind == Kind::Locked || result.state.kind == Kind::Forbidden;
        if (!helps)
            break;
        DocumentState state;
        check(work, password, &state);
        isUnlocked = state.kind == Kind::Fine;
        // One that opens without a password still does.
        if (state.kind != Kind::Locked)
            result.state = state;
        else
            result.state.isPasswordWrong = true;
    }
    // What is damaged is printed as it was found here, or the chain may find less of it, or
    // nothing.
    const bool needsCopy = isUnlocked || result.state.lostPages > 0;
    if (result.state.kind != Kind::Fine || (!needsCopy && !result.state.isDamaged))
        return result;
    result.copy = copy();
    result.state.isUnlocked = isUnlocked && result.copy;
    if (!result.copy && needsCopy)
        result.state.kind = isUnlocked ? Kind::NotCopied : Kind::Unknown;
    return result;
}

// What cannot be turned is printed as it lies, as CUPS does with any picture.
DocumentWorker::Found DocumentWorker::foundPicture(const Work &work)
{
    Found result{work.number, {}, nullptr};
    result.state.kind = Kind::Fine;
    DocumentState turned;
    check(work, {}, &turned);
    if (turned.kind != Kind::Fine)
        return result;
    result.copy = copy();
    // A file may be a picture and something else, too.
    if (result.copy && !isPicture(pathOfCopy(*result.copy)))
        result.copy.reset();
    if (!result.copy)
        result.state.details = u"the picture could not be turned"_s;
    return result;
}

void DocumentWorker::check(const Work &work, const QString &password, DocumentState *state)
{
    Outcome outcome = m_renderer.start();
    CheckedPdf checked;
    if (outcome == Outcome::Done)
        outcome = m_renderer.check(work.path, password, &checked);
    *state = stateOf(outcome, checked);
}

// Nobody but the user reads it; it goes with whoever holds its folder.
std::shared_ptr<QTemporaryDir> DocumentWorker::copy()
{
    auto folder = std::make_shared<QTemporaryDir>();
    if (!folder->isValid())
        return nullptr;
    const renderer::Descriptor file(::open(QFile::encodeName(pathOfCopy(*folder)).constData(),
                                           O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                                           S_IRUSR | S_IWUSR));
    if (!file || m_renderer.copy(file.get()) != Outcome::Done)
        return nullptr;
    return folder;
}

} // namespace corvana
