#pragma once

#include <QString>

#include "platform/printcore/Ppd.h"

namespace corvana {

// What is said of options: in messages for a terminal or a script by their keywords, as `-o` takes
// them; else by the texts of the PPD.

/// "Tray=Lower"; a password is dots, whatever has become of it.
QString optionText(ppd_file_t *ppd, const QString &name, const QString &value);

/// The choices of an option, and what it takes as custom values: "Default, Custom.1 … Custom.99".
QString allowedChoices(ppd_file_t *ppd, const ppd_option_t *option);

/// What a group of options is called. Those that libcups makes for options outside any group get
/// names of ours: its own are not the printer's words.
QString groupTitle(const ppd_group_t &group);

/// The text of an option's choice as the PPD says it; its keyword where that cannot be read.
QString choiceText(const ppd_choice_t &choice);

} // namespace corvana
