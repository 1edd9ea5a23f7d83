#pragma once

#include <memory>

#include <QObject>

class QSocketNotifier;

namespace corvana {

/// Takes the signals that ask a program to end (SIGINT, SIGTERM, SIGHUP) for as long as it lives,
/// so that a job can take its filter chain and its unfinished file along. A signal that was ignored
/// before stays ignored: whoever started the program wanted that.
///
/// One object at a time. While nobody turns the event loop, a signal waits; ask caught() then.
/// Thread: GUI thread only.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

    /// The first signal that came, or 0. Known at once, before `received` is emitted.
    int caught() const;
    /// The exit status of a program that a signal has ended, as shells count it.
    /// Range: 128 and the signal's number.
    int exitStatus() const { return 128 + caught(); }

Q_SIGNALS:
    /// The first signal came; further ones change nothing.
    void received();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
    bool m_told = false;
};

} // namespace corvana
