#pragma once

#include <map>

#include <QString>
#include <QVariant>
#include <QVariantList>

#include "colorsetting/Effects.h"

namespace corvana {

/// Range of an effect, both ends included. Units: steps of the slider.
inline constexpr qint64 kEffectMinimum = -20;
inline constexpr qint64 kEffectMaximum = 20;

/// A value for each effect: a number or a decimal text, as it was stored.
using EffectSet = std::map<Effect, QVariant>;

/// The print settings entry of the effect set in force: monochrome printing has one of its own, the
/// colour matching mode "Vivid" another, every other mode shares the third.
QString effectSetKey(bool mono, const QString &colorMatching);

/// A stored effect value as it may be used: the value itself, or the text "0" when it is absent or
/// out of range.
QVariant usableEffectValue(const QVariant &stored);

/// A stored set, each of its values usable. An entry that is no set of six gives "0" for each.
EffectSet usableEffectSet(const QVariant &stored);

/// The form in which a set is stored: its values, in the order of kEffectTable, each usable.
QVariantList storedEffectSet(const EffectSet &set);

} // namespace corvana
