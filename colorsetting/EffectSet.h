#pragma once

#include <map>

#include <QString>
#include <QVariant>
#include <QVariantList>

#include "colorsetting/Effects.h"
#include "platform/printcore/Ppd.h"
#include "platform/printcore/PrintSettings.h"

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

/// Whether a job is printed in monochrome.
bool printsInMonochrome(const PrintSettings &settings);

/// Whether the printer's driver matches the colours of a job, rather than the application: no
/// effect is in force otherwise.
bool driverMatchesColors(const PrintSettings &settings, ppd_file_t *ppd);

/// The print settings entry of the effect set of a job, and the set itself.
QString effectSetKey(const PrintSettings &settings);
EffectSet effectSetOf(const PrintSettings &settings);

/// Whether an effect applies to a job: none does while the application matches the colours, and few
/// do in monochrome printing. The panel's summary names just these.
bool isInForce(const EffectInfo &effect, const PrintSettings &settings, ppd_file_t *ppd);

} // namespace corvana
