#pragma once

#include <optional>

#include <QSize>
#include <QSizeF>
#include <QString>

#include "platform/printcore/Ppd.h"

namespace corvana {

// Lengths and sizes of papers: the one place where they are read. PPDs count in points, IPP in
// hundredths of a millimetre.

inline constexpr double kPointsPerInch = 72.0;
inline constexpr double kPointsPerMillimetre = kPointsPerInch / 25.4;

constexpr double pointsOfHundredths(double hundredthsOfMillimetre)
{
    return hundredthsOfMillimetre / 100.0 * kPointsPerMillimetre;
}
constexpr double hundredthsOfPoints(double points)
{
    return points / kPointsPerMillimetre * 100.0;
}

/// The size of "WIDTHxHEIGHT" with one unit behind both: pt, in, ft, mm, cm or m; points without
/// one. As CUPS writes it: "." before a fraction, small letters, no sign, no blank.
/// Units: points. Errors: nothing for anything else, and for more than nine digits before the ".".
std::optional<QSizeF> sizeWithUnit(const QString &text);

/// The size of the choice "Custom.WIDTHxHEIGHT" of a PPD. Units and errors as above.
std::optional<QSizeF> customPageSize(const QString &choice);

/// Whether this can be a paper: from a millimetre to 50 metres. Units: hundredths of a millimetre.
bool isPaper(QSize dimension);

/// The size that a media name states: a self-describing name of PWG ("iso_a4_210x297mm"), or one of
/// the names from before those ("na-letter"). Units: hundredths of a millimetre.
/// Errors: an empty size for any other name, and for what can be no paper.
QSize dimensionOfMedia(const QString &name);

/// The page size of a PPD for a media name: its own keyword in any case, or one of the same size.
/// Errors: empty, also for the names by which printers state the limits of their sizes.
QString pageSizeOfMedia(ppd_file_t *ppd, const QString &media);

/// A media name as a custom page size of a PPD, in points: "Custom.4x6IN", "custom_mine_10x15cm",
/// "iso_a6_105x148mm". Whether a printer takes that size is checkCustomValue()'s to say.
/// Errors: empty for a name that states no size.
QString customChoiceOfMedia(const QString &media);

/// The name by which IPP knows a paper of any size ("custom_100x150mm_100x150mm").
/// Units: hundredths of a millimetre.
QString customMediaName(QSize dimension);

} // namespace corvana
