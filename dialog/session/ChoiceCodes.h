#pragma once

#include <QString>

#include "platform/printcore/Ppd.h"

namespace corvana {

/// Whether a printer would hear of a choice. What CUPS' filters leave out of the data for it, and
/// say nothing of: the code of an option whose place in the job is below zero, and that of one
/// which belongs into the job language around the document, where the PPD does not say how that
/// begins. Nor does a printer understand a code that was cut off in the midst of a damaged line.
///
/// True for the option's default, which the printer does without being told; for a choice without a
/// code, and for what is no choice; and where a program of the driver's own makes the data, which
/// is told the choices themselves.
bool canBeSent(ppd_file_t *ppd, const QString &keyword, const QString &choice);

/// What to say of a choice that cannot be sent. `choice` is its option and itself, as people, or
/// those who write commands, know them.
QString notSentText(const QString &choice);

} // namespace corvana
