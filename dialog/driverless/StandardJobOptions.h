#pragma once

#include <QList>

#include "dialog/driverless/PrinterCapabilities.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// Says the choices of the PPD that ppdOfCapabilities() wrote in the words of the printer: its own
/// job attributes with the values that it lists ("PageSize=A4" becomes "media=iso_a4_210x297mm").
/// A printer that says nothing of an attribute at all gets the standard's value.
///
/// A type, a source or borderless printing makes the paper a "media-col", which stands for "media"
/// then: the printer gets one of them. Choices that no printer understands are left out and logged;
/// options that are none of the PPD's are passed on as they are.
QList<JobOption> standardJobOptions(const QList<JobOption> &ppdOptions,
                                    const PrinterCapabilities &printer);

} // namespace corvana
