#pragma once

#include <QtGlobal>

#include "platform/printcore/Ppd.h"

namespace corvana {

/// The range of a whole number, both ends included.
struct ValueBounds
{
    qint64 minimum = 0;
    qint64 maximum = 0;

    bool contains(qint64 value) const { return minimum <= value && value <= maximum; }
    /// The minimum if the value is below it, else the smaller of the value and the maximum. This
    /// holds even if the minimum lies above the maximum.
    qint64 clamped(qint64 value) const;

    bool operator==(const ValueBounds &) const = default;
};

/// The nearest value that a control of Qt can take.
int controlValue(qint64 value);

/// The sleep time's range. Units: minutes. 1 to 99 unless the PPD's parameter declares another.
ValueBounds sleepTimeBounds(ppd_file_t *ppd);

/// The density's range. Units: steps, negative is lighter. -6 to 6 unless the PPD's parameter
/// declares another.
ValueBounds densityBounds(ppd_file_t *ppd);

} // namespace corvana
