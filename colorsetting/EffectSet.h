#pragma once

#include <array>
#include <optional>

#include <QString>
#include <QVariant>
#include <QVariantList>

namespace corvana {

/// The six colour effects, always in this order.
inline constexpr std::array<QLatin1StringView, 6> kEffectKeywords{
    QLatin1StringView("QXBrightness"), QLatin1StringView("QXContrast"),
    QLatin1StringView("QXRed"),        QLatin1StringView("QXGreen"),
    QLatin1StringView("QXBlue"),       QLatin1StringView("QXSaturation"),
};

/// Monochrome printing has only the first two, brightness and contrast.
inline constexpr std::size_t kMonochromeEffectCount = 2;

/// Range of an effect, both ends included. Units: steps of the slider.
inline constexpr qint64 kEffectMinimum = -20;
inline constexpr qint64 kEffectMaximum = 20;

/// The print settings entry of the effect set in force: monochrome printing has one of its own, the
/// colour matching mode "Vivid" another, every other mode shares the third.
QString effectSetKey(bool mono, const QString &colorMatching);

/// A stored effect value as it may be used: the value itself, or the text "0" when it is absent or
/// out of range.
QVariant usableEffectValue(const QVariant &stored);

/// The six values of a stored set, each usable; nothing when the entry is no set of six.
std::optional<QVariantList> usableEffectSet(const QVariant &stored);

} // namespace corvana
