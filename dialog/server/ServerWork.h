#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "dialog/server/ServerConnection.h"

namespace corvana {

struct ServerWorkState;

/// What work against a server has at hand, on its own thread.
class ServerWorker
{
public:
    ServerConnection &connection() { return m_connection; }
    const ServerContext &context() const { return m_connection.context(); }
    bool isCanceled() const;
    /// Canceled only because nobody waits for it any more: what is done already is to stay done.
    bool isLeftAlone() const;
    /// Runs `function` on the GUI thread, in the order of the calls, unless whoever started the
    /// work has lost interest by then.
    void post(std::function<void()> function) const;
    /// Waits; false when the work was canceled meanwhile.
    bool sleep(std::chrono::milliseconds time) const;

private:
    friend class ServerWork;
    ServerWorker(ServerContext context, std::shared_ptr<ServerWorkState> shared);

    std::shared_ptr<ServerWorkState> m_shared;
    ServerConnection m_connection;
};

/// Work against a server on a thread of its own. The GUI thread never waits for it: a host name
/// that is looked up, or TLS that is negotiated, cannot be interrupted, so a thread that nobody
/// needs any more is left to end by itself.
///
/// Thread: GUI thread.
class ServerWork
{
public:
    using Work = std::function<void(ServerWorker &)>;

    ServerWork() = default;
    /// Starts `work`, which must own everything that it uses.
    ServerWork(ServerContext context, Work work);
    /// Cancels, and nothing that was posted arrives any more.
    ~ServerWork();
    ServerWork(ServerWork &&) noexcept = default;
    ServerWork &operator=(ServerWork &&other) noexcept;

    /// Ends its waits. It may still do what has to be done, and post, and is to undo what it did.
    void cancel();

private:
    void abandon();

    std::shared_ptr<ServerWorkState> m_shared;
};

} // namespace corvana
