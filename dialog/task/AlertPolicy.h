#pragma once

#include <optional>

#include <QString>

namespace corvana {

/// What a run that nobody watches does with the alerts of the panels.
enum class AlertPolicy {
    Print,  ///< writes them and goes on as their default button would
    Hold,   ///< writes them and lets the job wait, where the queue can do that
    Refuse, ///< writes them and does not print
};

/// The policy of that name ("print", "hold", "refuse"). Errors: nothing for any other name.
std::optional<AlertPolicy> alertPolicy(const QString &name);

} // namespace corvana
