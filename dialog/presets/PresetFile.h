#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QString>

#include "dialog/presets/Preset.h"

namespace corvana {

// One preset as one file: JSON that a person can read. The file may be anybody's work: it is
// bounded, and each value of it is checked.

/// No file of ours is longer. Units: bytes.
inline constexpr qint64 kLargestPresetFile = qint64(512) * 1024;

struct PresetReading
{
    std::optional<Preset> preset{};
    /// Why there is none: what stands where, and what was expected.
    QString problem{};
};

/// Errors: see PresetReading; never a part of a preset.
PresetReading readPreset(const QByteArray &json);
QByteArray writePreset(const Preset &preset);

/// The same for a file. One that is not there gives neither a preset nor a problem. `isTrusted`
/// looks at what was opened before it is read; what it does not trust gives neither, too.
PresetReading readPresetFile(const QString &path,
                             const std::function<bool(int descriptor)> &isTrusted = {});

/// Writes a file as a whole, or not at all, and makes its folder where there is none; the content
/// is on the disk when this returns. Answers why it was not written; empty when it was.
QString writePresetFile(const QString &path, const Preset &preset);

/// A name for a file of whatever name: a part of it to be recognised by, and a number that no other
/// name has. It is never a path, and has at most 64 ASCII characters.
QString fileNameFor(const QString &name);

} // namespace corvana
