#pragma once

#include <functional>
#include <memory>
#include <thread>

#include <QObject>

namespace corvana {

/// Reads and writes presets on a thread of its own, one piece of work after the other, because a
/// home folder may lie on a server that is slow or away.
///
/// Thread: GUI thread. The thread lives while there is work; what a destroyed object was asked to
/// write is still written, and waited for, for a while.
class PresetWork : public QObject
{
    Q_OBJECT

public:
    explicit PresetWork(QObject *parent = nullptr);
    ~PresetWork() override;

    /// Calls `work` on the thread, then what that answers on the GUI thread; not after this object
    /// is gone. Neither may be a lambda that borrows what lives shorter.
    using Then = std::function<void()>;
    void run(std::function<Then()> work);
    /// Whether something was asked for that is not done yet.
    bool isBusy() const { return m_pending > 0; }

Q_SIGNALS:
    void done();

private:
    struct Queue;

    void takeDone();

    std::shared_ptr<Queue> m_queue;
    std::thread m_thread; // the last that was begun
    int m_pending = 0;
};

} // namespace corvana
