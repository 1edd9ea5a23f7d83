#include "dialog/task/AlertPolicy.h"

#include <array>
#include <utility>

#include <QLatin1StringView>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kPolicies{
    std::pair("print"_L1, AlertPolicy::Print),
    std::pair("hold"_L1, AlertPolicy::Hold),
    std::pair("refuse"_L1, AlertPolicy::Refuse),
};

} // namespace

std::optional<AlertPolicy> alertPolicy(const QString &name)
{
    for (const auto &[policyName, policy] : kPolicies) {
        if (name == policyName)
            return policy;
    }
    return std::nullopt;
}

} // namespace corvana
