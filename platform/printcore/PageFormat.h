#pragma once

#include <optional>

#include <QString>

#include "platform/PlatformExport.h"
#include "platform/printcore/PMStatus.h"

namespace corvana {

/// A paper: its name, the PPD's name for it, and its size.
struct Paper
{
    /// The PPD keyword of the size ("A4", "Postcard", "EnvDL"); contains "Custom" for a custom
    /// size.
    QString name;
    /// The keyword of the PPD's own size entry; absent for a size that the PPD lacks.
    std::optional<QString> ppdPaperName;
    double width = 0;  ///< Units: points, 1/72 inch
    double height = 0; ///< Units: points, 1/72 inch

    bool operator==(const Paper &) const = default;
};

/// The page format of one job. A value: what a snapshot keeps.
struct PageFormat
{
    Paper paper;

    bool operator==(const PageFormat &) const = default;
};

/// Borrowed references, valid for as long as the host's own object; null means none.
using PMPageFormat = const PageFormat *;
using PMPaper = const Paper *;

/// Posted by a host when the paper of its page format is another one; everything that it offers its
/// panels says so already then.
inline constexpr char kPrintDestinationPaperDidChangeNotification[] =
    "PMPrintDestinationPaperDidChangeNotification";

/// The paper of a page format. Errors: kPMInvalidObject without a page format.
CORVANA_PLATFORM_EXPORT PMStatus PMGetPageFormatPaper(PMPageFormat pageFormat, PMPaper *paper);

/// The paper's name. Errors: kPMInvalidObject without a paper, kPMValueUnavailable without a name.
CORVANA_PLATFORM_EXPORT PMStatus PMPaperGetName(PMPaper paper, QString *name);

/// The PPD's keyword for the paper. Errors: kPMInvalidObject without a paper, kPMValueUnavailable
/// for a size that the PPD lacks.
CORVANA_PLATFORM_EXPORT PMStatus PMPaperGetPPDPaperName(PMPaper paper, QString *name);

/// Units: points. Errors: kPMInvalidObject without a paper.
CORVANA_PLATFORM_EXPORT PMStatus PMPaperGetWidth(PMPaper paper, double *width);
/// Units: points. Errors: kPMInvalidObject without a paper.
CORVANA_PLATFORM_EXPORT PMStatus PMPaperGetHeight(PMPaper paper, double *height);

} // namespace corvana
