#pragma once

#include "dialog/task/AlertPolicy.h"
#include "platform/toolkit/Alert.h"

namespace corvana {

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
