#include "platform/toolkit/ProgrammaticChange.h"

namespace corvana {

namespace {
int depth = 0;
}

ProgrammaticChange::ProgrammaticChange()
{
    ++depth;
}

ProgrammaticChange::~ProgrammaticChange()
{
    --depth;
}

bool ProgrammaticChange::isInProgress()
{
    return depth > 0;
}

} // namespace corvana
