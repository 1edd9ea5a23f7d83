#include "platform/printcore/PageFormat.h"

namespace corvana {

PMStatus PMGetPageFormatPaper(PMPageFormat pageFormat, PMPaper *paper)
{
    if (!pageFormat)
        return kPMInvalidObject;
    *paper = &pageFormat->paper;
    return kPMNoError;
}

PMStatus PMPaperGetName(PMPaper paper, QString *name)
{
    if (!paper)
        return kPMInvalidObject;
    if (paper->name.isEmpty())
        return kPMValueUnavailable;
    *name = paper->name;
    return kPMNoError;
}

PMStatus PMPaperGetPPDPaperName(PMPaper paper, QString *name)
{
    if (!paper)
        return kPMInvalidObject;
    if (!paper->ppdPaperName)
        return kPMValueUnavailable;
    *name = *paper->ppdPaperName;
    return kPMNoError;
}

PMStatus PMPaperGetWidth(PMPaper paper, double *width)
{
    if (!paper)
        return kPMInvalidObject;
    *width = paper->width;
    return kPMNoError;
}

PMStatus PMPaperGetHeight(PMPaper paper, double *height)
{
    if (!paper)
        return kPMInvalidObject;
    *height = paper->height;
    return kPMNoError;
}

} // namespace corvana
