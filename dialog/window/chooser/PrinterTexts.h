#pragma once

#include <QString>
#include <QStringList>

#include "dialog/printers/Printer.h"

/// What a person reads about a printer. Most of it comes from servers that nobody vouches for, so
/// everything here is one line of plain text, without control characters and of a bounded length;
/// only tool tips are marked up, with all that is foreign escaped.
namespace corvana {

/// Whether the place that a printer came from still lists it.
enum class Presence { Listed, Gone };

/// One line of plain text: white space is collapsed, what controls a terminal or the direction of
/// the text is dropped. Range: at most 200 UTF-16 code units; a longer text ends with "…".
QString plainLine(const QString &text);

/// The description, or the name of a printer that has none.
QString displayName(const Printer &printer);

/// The words for a state reason, an IPP keyword with or without a severity ("toner-low-report").
/// A keyword that is not known is shown as it is.
QString stateReasonText(const QString &keyword);

/// The words for all state reasons that say something: errors, then warnings, then reports.
QStringList stateReasonTexts(const QStringList &keywords);

/// What the printer is doing, and why: "Idle, toner low". Empty when nothing is known.
QString stateText(const Printer &printer, Presence presence = Presence::Listed);

/// Location and state, as a row of a list shows them below the name; either may be missing.
QString detailText(const Printer &printer, Presence presence = Presence::Listed);

/// Location and state, as a line below the chosen printer shows them; either may be missing.
QString statusText(const Printer &printer, Presence presence = Presence::Listed);

/// Name, location and state, as they are read out.
QString accessibleText(const Printer &printer, Presence presence = Presence::Listed);

/// All that is known, one line each, as markup for a tool tip.
QString printerToolTip(const Printer &printer, Presence presence = Presence::Listed);

} // namespace corvana
