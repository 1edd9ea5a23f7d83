#pragma once

#include <algorithm>
#include <vector>

#include <QObject>
#include <QTimer>

namespace corvana {

/// Keeps one act of the user from being reported twice where Qt tells it with two signals, the
/// second of which also comes alone: a change, and then the click or pick that caused it.
///
/// Ownership: lives with `owner`, whose controls it is asked about. Thread: GUI thread only.
class ReportedActs
{
public:
    explicit ReportedActs(QObject *owner) : m_owner(owner) {}

    /// The first signal of an act: runs `report`.
    template <typename Report> void report(const QObject *control, const Report &report)
    {
        const quint64 act = ++m_lastAct;
        m_acts.push_back({act, control});
        report();
        // The second signal follows when this returns, or never. Only now: what was reported may
        // run a modal alert. By number: acts in quick succession, or nested, must not end each
        // other.
        QTimer::singleShot(0, m_owner, [this, act] {
            std::erase_if(m_acts, [act](const Act &other) { return other.number == act; });
        });
    }

    /// The second signal: whether it belongs to an act that was reported already.
    bool endsReportedAct(const QObject *control)
    {
        const auto newest = std::find_if(m_acts.rbegin(), m_acts.rend(),
                                         [&](const Act &act) { return act.control == control; });
        if (newest == m_acts.rend())
            return false;
        m_acts.erase(std::next(newest).base());
        return true;
    }

    /// The control goes; another one may take its address.
    void forget(const QObject *control)
    {
        std::erase_if(m_acts, [&](const Act &act) { return act.control == control; });
    }

private:
    struct Act
    {
        quint64 number;
        const QObject *control; // an identity, never dereferenced
    };

    QObject *m_owner;
    std::vector<Act> m_acts;
    quint64 m_lastAct = 0;
};

} // namespace corvana
