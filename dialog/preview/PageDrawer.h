#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include <QHash>
#include <QImage>
#include <QList>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include "dialog/preview/PageTrouble.h"
#include "dialog/preview/RendererProcess.h"

namespace corvana {

/// A page and how large it is to be drawn.
struct PageToDraw
{
    QString file;
    int page = 0; ///< from 0
    QSize size;   ///< Units: pixels

    bool operator==(const PageToDraw &) const = default;
};

inline size_t qHash(const PageToDraw &page, size_t seed = 0)
{
    return qHashMulti(seed, page.file, page.page, page.size.width(), page.size.height());
}

/// What became of a page.
struct FinishedPage
{
    PageToDraw page;
    QImage picture; ///< null when there is trouble
    PageTrouble trouble = PageTrouble::None;
    bool concernsDocument = false; ///< none of the document's pages can be drawn
};

/// What is known of the pages of a document without drawing them; empty where it cannot be read.
struct DescribedPages
{
    QString file;
    QList<QSizeF> sizes; ///< as each page is read; Units: points; null: the page is damaged
    QStringList labels;  ///< what the document calls each; empty where that is its number
};

/// Draws pages one after the other on a thread of its own, which talks to the renderer, starts it
/// again when it dies and copies the pictures. A page during which it dies twice is given up.
class PageDrawer
{
public:
    static constexpr int kMostDescribed = 20'000;

    /// `tell` is called on the drawer's thread when there is something to be taken. It is not
    /// called after the destructor.
    PageDrawer(RendererSettings settings, std::function<void()> tell);
    /// Ends the renderer, too, in the midst of a page.
    ~PageDrawer();
    PageDrawer(const PageDrawer &) = delete;
    PageDrawer &operator=(const PageDrawer &) = delete;

    /// Starts the renderer, so that the first page does not wait for that.
    void prepare();
    /// What is to be drawn now, the first one first; replaces what was to be drawn before. A page
    /// that is in work and not among them is given up, unless it is nearly finished for all we
    /// know.
    void draw(const QList<PageToDraw> &pages);
    /// Nothing of that file is finished any more, and it is opened anew when it is needed again.
    void forget(const QString &file);
    std::vector<FinishedPage> takeFinished();
    /// Reads sizes and labels of a document's pages, before anything else is drawn. Of one with
    /// more than kMostDescribed pages nothing is read.
    void describe(const QString &file);
    std::vector<DescribedPages> takeDescribed();

private:
    using Clock = std::chrono::steady_clock;
    using Outcome = RendererProcess::Outcome;

    /// What is asked of the thread.
    struct Wanted
    {
        QList<PageToDraw> pages;
        QStringList forgotten;  ///< documents that are to be closed
        QStringList toDescribe; ///< documents
        bool isToPrepare = false;
        bool isToEnd = false;

        bool hasAnything() const
        {
            return isToEnd || isToPrepare || !forgotten.isEmpty() || !toDescribe.isEmpty() ||
                   !pages.isEmpty();
        }
    };
    struct InWork
    {
        PageToDraw page;
        Clock::time_point since = Clock::now();
        bool isWanted = true;
        bool isForgotten = false;
    };
    /// What the thread alone knows of a document.
    struct Known
    {
        quint32 number = 0; ///< of the document in the renderer; 0 while it is not open there
        int deaths = 0;     ///< of the renderer, since a page of it was drawn
        int pages = 0;
        quint64 used = 0;
    };

    void run();
    void wake();
    bool keepOn();
    void closeForgotten(const QStringList &files);
    std::optional<FinishedPage> drawn(const PageToDraw &page);
    Outcome tryToDraw(const PageToDraw &page, Known &known, FinishedPage *finished);
    Outcome startRenderer();
    DescribedPages described(const QString &file);
    Outcome openDocument(const QString &file, Known &known);
    void makeRoomForDocument();

    // Under the mutex.
    std::mutex m_mutex;
    std::condition_variable m_changed;
    Wanted m_wanted;
    std::optional<InWork> m_inWork;
    std::vector<FinishedPage> m_finished;
    std::vector<DescribedPages> m_described;

    // The thread's.
    std::function<void()> m_tell;
    renderer::Descriptor m_wake;
    RendererProcess m_renderer;
    QHash<QString, Known> m_documents;
    quint32 m_lastNumber = 0;
    quint64 m_uses = 0;

    std::thread m_thread; // last: it uses all the others
};

} // namespace corvana
