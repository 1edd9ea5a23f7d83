#pragma once

#include <optional>

#include <QString>

#include "dialog/presets/PresetContent.h"
#include "dialog/printers/Printer.h"

namespace corvana {

// What the user changed for the last job of each printer, and so wants for the next one. Only
// changes are kept, so that whatever else a printer starts with counts as it is by then.

struct LastUsedReading
{
    PresetContent changes{}; ///< see changesIn(); empty when there are none
    QString problem{};       ///< why a file that is there cannot be read; with its path
};

/// `server` is the address of a queue's server.
LastUsedReading readLastUsed(const Printer &printer, const QString &server);

/// Keeps changes; without any there is nothing kept. Answers why they were not; empty when they
/// were. A file that is damaged is never replaced.
QString writeLastUsed(const Printer &printer, const QString &server, const PresetContent &changes);

/// Whether the user wants that at all, which is so until it is switched off.
bool remembersLastUsed();
/// Switched off, what was kept so far is removed. Answers why not everything was; empty otherwise.
QString setRemembersLastUsed(bool remembers);

} // namespace corvana
