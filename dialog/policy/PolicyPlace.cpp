#include "dialog/policy/PolicyPlace.h"

#include "platform/foundation/OwnVariable.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr char kVariable[] = "CORVANA_PRINT_POLICY";

PolicyPlace placeNamed(const QString &named)
{
    if (named.startsWith(u'/'))
        return {named, true};
    return {QStringLiteral(CORVANA_SYSCONFDIR "/corvana-print/policy.d"), false};
}

} // namespace

PolicyPlace policyPlaceOf(const QString &program)
{
    return placeNamed(ownVariable(kVariable, program));
}

PolicyPlace policyPlace()
{
    return placeNamed(ownVariable(kVariable));
}

} // namespace corvana
