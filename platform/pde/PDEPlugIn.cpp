#include "platform/pde/PDEPlugIn.h"

namespace corvana {

PDEPlugIn::~PDEPlugIn() = default;

} // namespace corvana
