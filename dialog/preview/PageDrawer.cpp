#include "dialog/preview/PageDrawer.h"

#include <algorithm>
#include <utility>

#include <sys/eventfd.h>

namespace corvana {

using namespace std::chrono_literals;

namespace {

/// How long a page that nobody wants any more may still be drawn: it costs more to end the renderer
/// and to start it again.
constexpr auto kGrace = 300ms;
/// How often the renderer may die on a page before that page is given up.
constexpr int kTries = 2;
/// How often it may die on pages of one document, none of which is drawn, before all are given up.
constexpr int kMostDeaths = 8;
constexpr qsizetype kMostDocuments = 16;
static_assert(kMostDocuments < renderer::kMaxDocuments);

PageTrouble troubleOf(RendererProcess::Outcome outcome)
{
    using Outcome = RendererProcess::Outcome;
    switch (outcome) {
    case Outcome::TooLarge:
        return PageTrouble::TooLarge;
    case Outcome::PasswordNeeded:
        return PageTrouble::PasswordNeeded;
    case Outcome::Unreadable:
        return PageTrouble::Unreadable;
    case Outcome::OutOfTime:
        return PageTrouble::TakesTooLong;
    case Outcome::CannotStart:
        return PageTrouble::NoRenderer;
    case Outcome::Damaged:
    case Outcome::Died:
        return PageTrouble::Damaged;
    case Outcome::Done:
    case Outcome::Interrupted:
        break;
    }
    return PageTrouble::None;
}

} // namespace

PageDrawer::PageDrawer(RendererSettings settings, std::function<void()> tell)
    : m_tell(std::move(tell)), m_wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      m_renderer(
          std::move(settings), [this] { return keepOn(); }, m_wake.get()),
      m_thread([this] { run(); })
{
}

PageDrawer::~PageDrawer()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_wanted.isToEnd = true;
        wake();
    }
    m_thread.join();
}

// With the mutex locked. The thread waits here or for the renderer.
void PageDrawer::wake()
{
    m_changed.notify_all();
    ::eventfd_write(m_wake.get(), 1);
}

void PageDrawer::prepare()
{
    const std::scoped_lock lock(m_mutex);
    m_wanted.isToPrepare = true;
    wake();
}

void PageDrawer::draw(const QList<PageToDraw> &pages)
{
    const std::scoped_lock lock(m_mutex);
    m_wanted.pages.clear();
    if (m_inWork)
        m_inWork->isWanted = !m_inWork->isForgotten && pages.contains(m_inWork->page);
    for (const PageToDraw &page : pages) {
        const bool isInWork = m_inWork && !m_inWork->isForgotten && m_inWork->page == page;
        const bool isFinished =
            std::any_of(m_finished.begin(), m_finished.end(),
                        [&](const FinishedPage &finished) { return finished.page == page; });
        if (!isInWork && !isFinished)
            m_wanted.pages.append(page);
    }
    wake();
}

void PageDrawer::forget(const QString &file)
{
    const std::scoped_lock lock(m_mutex);
    m_wanted.pages.removeIf([&](const PageToDraw &page) { return page.file == file; });
    m_wanted.toDescribe.removeAll(file);
    std::erase_if(m_finished, [&](const FinishedPage &page) { return page.page.file == file; });
    if (m_inWork && m_inWork->page.file == file)
        m_inWork->isForgotten = true;
    m_wanted.forgotten.append(file);
    wake();
}

std::vector<FinishedPage> PageDrawer::takeFinished()
{
    const std::scoped_lock lock(m_mutex);
    return std::exchange(m_finished, {});
}

void PageDrawer::describe(const QString &file)
{
    const std::scoped_lock lock(m_mutex);
    if (!m_wanted.toDescribe.contains(file))
        m_wanted.toDescribe.append(file);
    wake();
}

std::vector<DescribedPages> PageDrawer::takeDescribed()
{
    const std::scoped_lock lock(m_mutex);
    return std::exchange(m_described, {});
}

bool PageDrawer::keepOn()
{
    const std::scoped_lock lock(m_mutex);
    eventfd_t count = 0;
    ::eventfd_read(m_wake.get(), &count);
    if (m_wanted.isToEnd || !m_inWork)
        return !m_wanted.isToEnd;
    const bool isWanted = m_inWork->isWanted && !m_inWork->isForgotten;
    return isWanted || Clock::now() - m_inWork->since < kGrace;
}

void PageDrawer::run()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_wanted.hasAnything(); });
        if (m_wanted.isToEnd)
            break;
        const QStringList forgotten = std::exchange(m_wanted.forgotten, {});
        const bool isToPrepare = std::exchange(m_wanted.isToPrepare, false);
        const QString toDescribe =
            m_wanted.toDescribe.isEmpty() ? QString() : m_wanted.toDescribe.takeFirst();
        if (toDescribe.isNull() && !m_wanted.pages.isEmpty())
            m_inWork.emplace().page = m_wanted.pages.takeFirst();
        const std::optional<InWork> work = m_inWork;
        lock.unlock();

        closeForgotten(forgotten);
        if (isToPrepare)
            m_renderer.start();
        std::optional<DescribedPages> description;
        if (!toDescribe.isNull())
            description = described(toDescribe);
        std::optional<FinishedPage> finished;
        if (work)
            finished = drawn(work->page);

        lock.lock();
        const bool isForgotten = m_inWork && m_inWork->isForgotten;
        m_inWork.reset();
        if (description && !m_wanted.isToEnd) {
            m_described.push_back(std::move(*description));
            m_tell();
        }
        if (finished && !isForgotten && !m_wanted.isToEnd) {
            m_finished.push_back(std::move(*finished));
            m_tell();
        }
    }
}

void PageDrawer::closeForgotten(const QStringList &files)
{
    for (const QString &file : files) {
        const Known known = m_documents.take(file);
        if (known.number != 0 && m_renderer.isRunning())
            m_renderer.close(known.number);
    }
}

// Nothing when it was interrupted: nobody wants to know.
std::optional<FinishedPage> PageDrawer::drawn(const PageToDraw &page)
{
    FinishedPage finished;
    finished.page = page;
    Known &known = m_documents[page.file];
    Outcome outcome = Outcome::Died;
    for (int i = 0; i < kTries && outcome == Outcome::Died; ++i) {
        outcome = tryToDraw(page, known, &finished);
        if (outcome == Outcome::Died && ++known.deaths >= kMostDeaths)
            finished.concernsDocument = true;
        if (finished.concernsDocument)
            break;
    }
    if (outcome == Outcome::Interrupted)
        return std::nullopt;
    if (outcome == Outcome::Done)
        known.deaths = 0;
    finished.trouble = troubleOf(outcome);
    return finished;
}

PageDrawer::Outcome PageDrawer::tryToDraw(const PageToDraw &page, Known &known,
                                          FinishedPage *finished)
{
    if (const Outcome started = startRenderer(); started != Outcome::Done) {
        finished->concernsDocument = started == Outcome::CannotStart;
        return started;
    }
    known.used = ++m_uses;
    if (known.number == 0) {
        const Outcome opened = openDocument(page.file, known);
        if (opened != Outcome::Done) {
            // One that kills the renderer gets its second try like any page.
            finished->concernsDocument = opened != Outcome::Died && opened != Outcome::Interrupted;
            return opened;
        }
    }
    return m_renderer.draw(known.number, page.page, page.size, &finished->picture);
}

// What cannot be found out is left out: a page that is drawn says why it cannot be.
DescribedPages PageDrawer::described(const QString &file)
{
    DescribedPages pages{file, {}, {}};
    Known &known = m_documents[file];
    Outcome outcome = startRenderer();
    known.used = ++m_uses;
    if (outcome == Outcome::Done && known.number == 0)
        outcome = openDocument(file, known);
    if (outcome != Outcome::Done || known.pages > kMostDescribed)
        return pages;
    outcome = m_renderer.listSizes(known.number, known.pages, &pages.sizes);
    if (outcome == Outcome::Done)
        m_renderer.listLabels(known.number, known.pages, &pages.labels);
    return pages;
}

// A renderer that was started anew has no document.
PageDrawer::Outcome PageDrawer::startRenderer()
{
    const int before = m_renderer.starts();
    Outcome outcome = m_renderer.start();
    if (outcome == Outcome::CannotStart)
        outcome = m_renderer.start();
    if (m_renderer.starts() != before) {
        for (Known &known : m_documents)
            known.number = 0;
    }
    return outcome;
}

PageDrawer::Outcome PageDrawer::openDocument(const QString &file, Known &known)
{
    makeRoomForDocument();
    if (!m_renderer.isRunning())
        return Outcome::Died;
    int pages = 0;
    const quint32 number = ++m_lastNumber;
    const Outcome outcome = m_renderer.open(number, file, {}, &pages);
    if (outcome == Outcome::Done) {
        known.number = number;
        known.pages = pages;
    }
    return outcome;
}

void PageDrawer::makeRoomForDocument()
{
    Known *oldest = nullptr;
    qsizetype open = 0;
    for (Known &known : m_documents) {
        if (known.number == 0)
            continue;
        ++open;
        if (!oldest || known.used < oldest->used)
            oldest = &known;
    }
    if (open >= kMostDocuments && oldest)
        m_renderer.close(std::exchange(oldest->number, 0));
}

} // namespace corvana
