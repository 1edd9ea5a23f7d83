#include <QTemporaryDir>

#include "dialog/presets/PresetFile.h"
#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

namespace {

/// Input: the file of a preset. It is a preset or has a problem, never both; a preset that is
/// written is read as the same preset, and written as the same bytes; and no name of one is a path.
void run(const QByteArray &input)
{
    const MemoryFile memory(input);
    const PresetReading reading = readPresetFile(memory.path());
    require(reading.preset.has_value() == reading.problem.isEmpty(),
            "a file is a preset or has a problem", reading.problem);
    if (!reading.preset)
        return;
    const Preset &preset = *reading.preset;
    require(problemOfPresetName(preset.name).isEmpty(), "a preset has a name that can be given",
            preset.name);
    const QByteArray written = writePreset(preset);
    const PresetReading again = readPreset(written);
    require(again.preset == reading.preset, "a preset that is written is read as itself",
            again.problem + QString::fromUtf8(written));
    require(writePreset(*again.preset) == written, "a preset is written as the same bytes");
    static const QTemporaryDir folder;
    const QString kept = folder.filePath(QStringLiteral("presets/a.json"));
    require(writePresetFile(kept, preset).isEmpty() &&
                readPresetFile(kept).preset == reading.preset,
            "a preset that is kept is there", kept);
    const QString file = fileNameFor(preset.name);
    require(!file.contains(u'/') && !file.startsWith(u'.') && file.size() <= 64,
            "the name of a preset's file is no path", file);
}

const Target target("preset_file", run);

} // namespace

} // namespace corvana::fuzz
