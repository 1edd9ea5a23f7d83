#pragma once

#include "platform/PlatformExport.h"

namespace corvana {

/// While one of these lives, changes of controls are the program's own: they fire no action and
/// write nothing back through a binding. Every change without it is the user's, whether it came by
/// mouse, keyboard or assistive technology.
///
/// Keep the scope to the single call that changes the control: whatever runs inside cannot act.
/// Thread: GUI thread only.
class CORVANA_PLATFORM_EXPORT ProgrammaticChange
{
public:
    ProgrammaticChange();
    ~ProgrammaticChange();
    ProgrammaticChange(const ProgrammaticChange &) = delete;
    ProgrammaticChange &operator=(const ProgrammaticChange &) = delete;

    static bool isInProgress();
};

} // namespace corvana
