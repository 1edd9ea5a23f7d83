#include "printsetting/QXLaserPrintSetting.h"

#include <algorithm>

#include "printsetting/PrintSettingKeys.h"

namespace corvana::QXLaserPrintSetting {

namespace {
constexpr QLatin1StringView kResolutionsWithoutTonerSave[] = {QLatin1StringView("1200dpi"),
                                                              QLatin1StringView("2400x600dpi")};
}

QString densityParamKey()
{
    return QStringLiteral("%1_%2").arg(kQXDensityAdjustment, kDensityParameter);
}

bool allowTonerSaveResolution(const QString &resolutionChoice)
{
    return std::none_of(std::begin(kResolutionsWithoutTonerSave),
                        std::end(kResolutionsWithoutTonerSave),
                        [&](QLatin1StringView excluded) { return resolutionChoice == excluded; });
}

} // namespace corvana::QXLaserPrintSetting
