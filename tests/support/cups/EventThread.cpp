#include "tests/support/cups/EventThread.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>

namespace corvana::test {

/// Turns an event into a call in the thread.
class EventThread::Runner : public QObject
{
public:
    explicit Runner(EventThread &owner) : m_owner(owner) {}

protected:
    void customEvent(QEvent *) override { m_owner.runHanded(); }

private:
    EventThread &m_owner;
};

EventThread::EventThread(const QString &name) : m_runner(std::make_unique<Runner>(*this))
{
    m_thread.setObjectName(name);
    m_runner->moveToThread(&m_thread);
    m_thread.start();
    run([this] { m_context = new QObject; });
}

EventThread::~EventThread()
{
    run([this] { delete std::exchange(m_context, nullptr); });
    m_thread.quit();
    m_thread.wait();
}

QObject *EventThread::context()
{
    return m_context;
}

void EventThread::run(std::function<void()> function)
{
    const std::scoped_lock caller(m_callers);
    std::unique_lock lock(m_mutex);
    m_function = std::move(function);
    QCoreApplication::postEvent(m_runner.get(), new QEvent(QEvent::User));
    m_changed.wait(lock, [this] { return !m_function; });
}

void EventThread::runHanded()
{
    std::function<void()> function;
    {
        const std::scoped_lock lock(m_mutex);
        function = m_function;
    }
    function();
    function = nullptr;
    const std::scoped_lock lock(m_mutex);
    m_function = nullptr;
    m_changed.notify_all();
}

} // namespace corvana::test
