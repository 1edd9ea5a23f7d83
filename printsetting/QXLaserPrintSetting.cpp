#include "printsetting/QXLaserPrintSetting.h"

#include <algorithm>

#include "printsetting/PrintSettingKeys.h"

namespace corvana::QXLaserPrintSetting {

using namespace Qt::StringLiterals;

namespace {
constexpr QLatin1StringView kResolutionsWithoutTonerSave[] = {"1200dpi"_L1, "2400x600dpi"_L1};
}

QString densityParamKey()
{
    return u"%1_%2"_s.arg(kQXDensityAdjustment, kDensityParameter);
}

bool allowTonerSaveResolution(const QString &resolutionChoice)
{
    return std::none_of(std::begin(kResolutionsWithoutTonerSave),
                        std::end(kResolutionsWithoutTonerSave),
                        [&](QLatin1StringView excluded) { return resolutionChoice == excluded; });
}

QString stringWithInteger_fromInteger_toInteger(qint64 value, qint64 low, qint64 high)
{
    return low > high ? QString() : QString::number(std::clamp(value, low, high));
}

bool shouldOpenCoverPaperKind(const QString &mediaType)
{
    return mediaType.startsWith(kEnv) || mediaType == kLabel || mediaType == kPostCard;
}

} // namespace corvana::QXLaserPrintSetting
