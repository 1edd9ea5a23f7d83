#include <csignal>

#include <QSignalSpy>
#include <QTest>

#include "dialog/terminal/TerminationSignals.h"

using namespace corvana;

namespace {

// What is done at a signal, while this lives.
class Disposition
{
public:
    Disposition(int signal, void (*handler)(int)) : m_signal(signal)
    {
        struct sigaction action = {};
        action.sa_handler = handler;
        ::sigaction(signal, &action, &m_former);
    }
    ~Disposition() { ::sigaction(m_signal, &m_former, nullptr); }
    Disposition(const Disposition &) = delete;
    Disposition &operator=(const Disposition &) = delete;

    static bool isDefault(int signal)
    {
        struct sigaction action = {};
        ::sigaction(signal, nullptr, &action);
        return action.sa_handler == SIG_DFL;
    }

private:
    int m_signal;
    struct sigaction m_former = {};
};

} // namespace

class TerminationSignalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSignalIsKnownAtOnceAndToldByTheEventLoop_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("status");
        QTest::newRow("Ctrl-C") << SIGINT << 130;
        QTest::newRow("kill") << SIGTERM << 143;
        QTest::newRow("the terminal is gone") << SIGHUP << 129;
    }
    void aSignalIsKnownAtOnceAndToldByTheEventLoop()
    {
        QFETCH(int, signal);
        QFETCH(int, status);
        const Disposition usual(signal, SIG_DFL);
        const TerminationSignals termination;
        const QSignalSpy received(&termination, &TerminationSignals::received);
        QCOMPARE(termination.caught(), 0);
        QCOMPARE(std::raise(signal), 0);
        QCOMPARE(termination.caught(), signal);
        QCOMPARE(termination.exitStatus(), status);
        QCOMPARE(received.size(), 0);
        QTRY_COMPARE(received.size(), 1);
    }

    void theFirstSignalCounts()
    {
        const Disposition interrupt(SIGINT, SIG_DFL);
        const Disposition terminate(SIGTERM, SIG_DFL);
        const TerminationSignals termination;
        const QSignalSpy received(&termination, &TerminationSignals::received);
        std::raise(SIGTERM);
        std::raise(SIGINT);
        QTRY_COMPARE(received.size(), 1);
        std::raise(SIGINT);
        QCoreApplication::processEvents();
        QCOMPARE(received.size(), 1);
        QCOMPARE(termination.caught(), SIGTERM);
    }

    void whatWasIgnoredStaysIgnored()
    {
        const Disposition ignored(SIGHUP, SIG_IGN);
        const TerminationSignals termination;
        std::raise(SIGHUP);
        QCOMPARE(termination.caught(), 0);
    }

    void afterwardsEverythingIsAsBefore()
    {
        const Disposition usual(SIGTERM, SIG_DFL);
        {
            const TerminationSignals termination;
            QVERIFY(!Disposition::isDefault(SIGTERM));
            std::raise(SIGTERM);
        }
        QVERIFY(Disposition::isDefault(SIGTERM));
        const TerminationSignals next;
        QCOMPARE(next.caught(), 0);
    }
};

QTEST_GUILESS_MAIN(TerminationSignalsTest)

#include "termination_signals_test.moc"
