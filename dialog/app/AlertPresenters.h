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
    explicit TerminalAlertPresenter(AlertPolicy policy) : m_policy(policy) {}

    AlertAnswer runModal(const Alert &alert, QWidget *parent) override;

    /// Whether an alert was shown whose instructions the job has to wait for.
    bool jobMustWait() const { return m_shown && m_policy != AlertPolicy::Print; }

private:
    AlertPolicy m_policy;
    bool m_shown = false;
};

} // namespace corvana
