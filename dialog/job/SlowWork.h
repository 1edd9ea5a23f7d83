#pragma once

#include <functional>
#include <memory>
#include <stop_token>

#include <QObject>

namespace corvana {

/// One piece of work that may wait for a disk, a network or another program, on a thread of its
/// own. Nobody waits for it: what nothing can interrupt is left to end by itself.
///
/// Thread: GUI thread.
class SlowWork : public QObject
{
    Q_OBJECT

public:
    /// What is done on the GUI thread with what came of it.
    using Then = std::function<void()>;
    using Work = std::function<Then(std::stop_token)>;

    /// Starts `work`, which must own everything that it uses.
    explicit SlowWork(Work work);
    /// Asks it to stop. Its answer does not come any more.
    ~SlowWork() override;

private:
    struct Shared;

    void end();

    std::shared_ptr<Shared> m_shared;
};

} // namespace corvana
