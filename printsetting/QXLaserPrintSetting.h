#pragma once

#include <QString>

namespace corvana {

/// The Print Setting panel's own operations on strings.
namespace QXLaserPrintSetting {

/// The key of the numeric density beside the density option: "QXDensityAdjustment_Density".
QString densityParamKey();

/// Whether toner may be saved at a resolution: not at the two that print finer dots.
bool allowTonerSaveResolution(const QString &resolutionChoice);

} // namespace QXLaserPrintSetting

} // namespace corvana
