#pragma once

#include "platform/pde/PDEPageColors.h"

namespace corvana {

/// What the Color Setting panel does to its reference picture, for the user's own pages: the
/// effects that are in force, or grey in monochrome printing.
class QXPageColors : public PDEPageColors
{
public:
    PageColors pageColors(const PrintSettings &settings, ppd_file_t *ppd) const override;
};

} // namespace corvana
