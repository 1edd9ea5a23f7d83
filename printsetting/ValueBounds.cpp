#include "printsetting/ValueBounds.h"

#include <algorithm>
#include <limits>

#include <QLoggingCategory>

#include "printsetting/PrintSettingKeys.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcBounds, "corvana.printsetting.bounds", QtWarningMsg)

namespace {

ValueBounds declaredBounds(ppd_file_t *ppd, QLatin1StringView option, QLatin1StringView parameter,
                           ValueBounds usual)
{
    const ppd_cparam_t *declared = ppdCustomParameter(ppd, option, parameter);
    if (!declared || declared->type != PPD_CUSTOM_INT)
        return usual;
    const ValueBounds bounds{declared->minimum.custom_int, declared->maximum.custom_int};
    if (bounds.minimum > bounds.maximum)
        qCWarning(lcBounds) << "the PPD declares for" << option << parameter << "a minimum of"
                            << bounds.minimum << "above the maximum of" << bounds.maximum;
    return bounds;
}

} // namespace

qint64 ValueBounds::clamped(qint64 value) const
{
    return value < minimum ? minimum : std::min(value, maximum);
}

int controlValue(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

ValueBounds sleepTimeBounds(ppd_file_t *ppd)
{
    return declaredBounds(ppd, kQXSleepTime, kTimeParameter, {1, 99});
}

ValueBounds densityBounds(ppd_file_t *ppd)
{
    return declaredBounds(ppd, kQXDensityAdjustment, kDensityParameter, {-6, 6});
}

} // namespace corvana
