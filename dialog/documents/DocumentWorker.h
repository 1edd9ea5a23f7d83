#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include <QString>
#include <QStringList>

#include "dialog/documents/DocumentState.h"
#include "dialog/preview/RendererProcess.h"

class QTemporaryDir;

namespace corvana {

/// Looks into documents, one after the other, on a thread of its own that waits for the process
/// which reads them. That process runs while there is something to be read.
class DocumentWorker
{
public:
    struct Work
    {
        int number = 0; ///< comes back with what was found
        QString path;
        QStringList passwords; ///< tried in that order, behind none at all
        bool isPicture = false;
    };
    struct Found
    {
        int number = 0;
        DocumentState state;
        /// Of the pages that are printed instead of the document; null where it is printed itself.
        std::shared_ptr<QTemporaryDir> copy;
    };

    /// `tell` is called on the worker's thread, and not after the destructor.
    DocumentWorker(RendererSettings settings, std::function<void(const Found &)> tell);
    ~DocumentWorker();
    DocumentWorker(const DocumentWorker &) = delete;
    DocumentWorker &operator=(const DocumentWorker &) = delete;

    void look(const Work &work);

private:
    using Outcome = RendererProcess::Outcome;

    void run();
    bool ends();
    Found found(const Work &work);
    Found foundPicture(const Work &work);
    void check(const Work &work, const QString &password, DocumentState *state);
    std::shared_ptr<QTemporaryDir> copy();

    // Under the mutex.
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Work> m_work;
    bool m_ends = false;

    // The thread's.
    std::function<void(const Found &)> m_tell;
    renderer::Descriptor m_wake;
    RendererProcess m_renderer;

    std::thread m_thread; // last: it uses all the others
};

} // namespace corvana
