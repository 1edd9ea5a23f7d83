#pragma once

#include <span>

#include "dialog/session/JobAttributes.h"

namespace corvana {

/// The job attributes that say what the printer does with the sheets: colours, quality, trays,
/// finishing. For most of them PPDs have options (see AttributeReader).
std::span<const JobAttribute> printerAttributes();

} // namespace corvana
