#pragma once

#include <QString>

namespace corvana {

/// The Print Setting panel's own operations on strings.
namespace QXLaserPrintSetting {

/// The key of the numeric density beside the density option: "QXDensityAdjustment_Density".
QString densityParamKey();

/// Whether toner may be saved at a resolution: not at the two that print finer dots.
bool allowTonerSaveResolution(const QString &resolutionChoice);

/// The value, kept inside the range, as a decimal text.
/// Errors: null for a range whose lower end lies above its upper end.
QString stringWithInteger_fromInteger_toInteger(qint64 value, qint64 low, qint64 high);

/// Whether the back cover has to be open for a medium: for envelopes, labels and post cards.
bool shouldOpenCoverPaperKind(const QString &mediaType);

} // namespace QXLaserPrintSetting

} // namespace corvana
