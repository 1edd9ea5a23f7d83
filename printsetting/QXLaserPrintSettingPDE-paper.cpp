#include "printsetting/QXLaserPrintSettingPDE.h"

namespace corvana {

bool QXLaserPrintSettingPDE::readPageSetup()
{
    return false;
}

} // namespace corvana
