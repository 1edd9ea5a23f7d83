#pragma once

#include <QMap>
#include <QStringList>

#include "dialog/task/TaskSettings.h"

namespace corvana {

struct OpenedPrinter;

/// The names under which settings stand that are none of the printer's and no job attribute of its
/// table.
inline constexpr QLatin1StringView kCopiesSetting{"copies"};

/// What a state means for a job: option or attribute to its value, as the job says it. Values that
/// panels own are among them; what is stored and not in force, or only shown (what is disclosed),
/// is not.
QMap<QString, QString> valuesOf(const TaskSettings &settings, const OpenedPrinter &printer);

/// The names of valuesOf() that are different in two states, in the order of the alphabet.
QStringList differences(const TaskSettings &one, const TaskSettings &other,
                        const OpenedPrinter &printer);

/// Whether a setting is a number or a text, which is reached by several keys or moves of a slider;
/// any other is one pick.
bool isTypedOrMoved(const QString &name, const TaskSettings &settings,
                    const OpenedPrinter &printer);

/// What a user calls a setting, as the page says that has it; null where nobody has a name for it.
QString settingTitle(const QString &name, const OpenedPrinter &printer);

/// What a user reads for a value that valuesOf() has; null for none. A password is dots.
QString valueText(const QString &name, const QString &value, const OpenedPrinter &printer);

} // namespace corvana
