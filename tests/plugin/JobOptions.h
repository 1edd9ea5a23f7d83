#pragma once

#include <QStringList>
#include <QTest>

#include "platform/pde/PDEJobValues.h"
#include "tests/support/EffectEntries.h"

namespace corvana {

/// How QCOMPARE prints an option. Ownership: the caller's, to be freed with delete[].
inline char *toString(const JobOption &option)
{
    return QTest::toString(option.name + u'=' + option.value);
}

namespace test {

/// Where the panels keep values of their own.
inline constexpr QLatin1StringView kSleep{"com.corvana.print.PrintSettings.sleep"};
inline constexpr QLatin1StringView kSleepMode{"com.corvana.print.PrintSettings.sleepmode"};
inline constexpr QLatin1StringView kDensity{"com.corvana.print.PrintSettings.densitymode"};

/// "keyword=value" of each.
inline QStringList valuesOf(const QList<JobOption> &options)
{
    QStringList values;
    for (const JobOption &option : options)
        values += option.name + u'=' + option.value;
    return values;
}

} // namespace test
} // namespace corvana

Q_DECLARE_METATYPE(corvana::JobOption)
