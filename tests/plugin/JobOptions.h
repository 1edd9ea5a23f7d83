#pragma once

#include <QTest>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// How QCOMPARE prints an option. Ownership: the caller's, to be freed with delete[].
inline char *toString(const JobOption &option)
{
    return QTest::toString(option.name + u'=' + option.value);
}

} // namespace corvana

Q_DECLARE_METATYPE(corvana::JobOption)
