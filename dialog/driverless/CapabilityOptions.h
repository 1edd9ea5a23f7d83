#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QString>

#include "dialog/driverless/CapabilityTexts.h"
#include "dialog/driverless/PrinterCapabilities.h"

namespace corvana {

/// A choice of a PPD option, and the value of an IPP attribute that it stands for.
struct CapabilityChoice
{
    QByteArray keyword; ///< as the PPD has it. Range: 1 to 40 ASCII characters
    CapabilityText text;
    QString value;     ///< as the printer lists it; empty where the printer is to be left alone
    QByteArray code{}; ///< PostScript that makes the choice, or nothing
    QSize dimension{}; ///< of a paper. Units: hundredths of a millimetre
    MediaMargins margins{}; ///< of a paper
};

/// An option of the PPD that stands for an attribute of the printer.
struct CapabilityOption
{
    QByteArray keyword;
    QByteArray attribute; ///< the job attribute, or the member of "media-col"
    CapabilityText title;
    QList<CapabilityChoice> choices;
    qsizetype usual = 0; ///< which choice is the default
};

/// The options that a printer's PPD has, page size first: each only where there is something to
/// choose, but for colour mode and resolution, which filters ask for. Of a printer that says
/// nothing of papers, sides or colours, those that most printers have. Always the same for the same
/// printer and the same region of the user.
QList<CapabilityOption> capabilityOptions(const PrinterCapabilities &printer);

} // namespace corvana
