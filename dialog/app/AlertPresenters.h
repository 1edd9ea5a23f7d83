#pragma once

#include <optional>

#include "platform/toolkit/Alert.h"

class QString;

namespace corvana {

/// Shows alerts as windows of the dialog.
class WindowAlertPresenter : public AlertPresenter
{
public:
    AlertAnswer runModal(const Alert &alert, QWidget *parent) override;
};

/// What a run that nobody watches does with the alerts of the panels.
enum class AlertPolicy {
    Print,  ///< writes them and goes on as their default button would
    Hold,   ///< writes them and lets the job wait, where the queue can do that
    Refuse, ///< writes them and does not print
};

/// The policy of that name ("print", "hold", "refuse"). Errors: nothing for any other name.
std::optional<AlertPolicy> alertPolicy(const QString &name);

/// Writes alerts to standard error and answers them by a policy: for runs that nobody watches.
class TerminalAlertPresenter : public AlertPresenter
{
public:
    /// `canHold`: whether the job can wait where it goes. It then goes on as if the instructions
    /// had been followed, to wait there for somebody who has.
    explicit TerminalAlertPresenter(AlertPolicy policy, bool canHold = false)
        : m_policy(policy), m_canHold(canHold)
    {
    }

    AlertAnswer runModal(const Alert &alert, QWidget *parent) override;

    /// Whether an alert was shown whose instructions the job has to wait for.
    bool jobMustWait() const { return m_shown && m_policy != AlertPolicy::Print; }
    AlertPolicy policy() const { return m_policy; }
    /// Whether it can do so.
    bool jobCanWait() const { return m_canHold && m_policy == AlertPolicy::Hold; }

private:
    AlertPolicy m_policy;
    bool m_canHold;
    bool m_shown = false;
};

} // namespace corvana
