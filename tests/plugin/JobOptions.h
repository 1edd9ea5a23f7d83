#pragma once

#include <QStringList>
#include <QTest>

#include "platform/pde/PDEJobValues.h"

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
inline constexpr QLatin1StringView kNormalEffect{"com.corvana.print.PrintSettings.NormalEffect"};
inline constexpr QLatin1StringView kVividEffect{"com.corvana.print.PrintSettings.VividEffect"};
inline constexpr QLatin1StringView kMonoEffect{"com.corvana.print.PrintSettings.MonoEffect"};

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
