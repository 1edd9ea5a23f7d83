#include "dialog/presets/PresetReplacing.h"

#include <QCoreApplication>

#include "dialog/session/JobAttributes.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PresetReplacing)
};

template <class Map> bool isSame(const Map &one, const Map &other, const QString &key)
{
    return one.contains(key) == other.contains(key) && one.value(key) == other.value(key);
}

template <class Map, class Stays> void keep(Map *kept, const Map &former, const Stays &stays)
{
    for (auto one = former.cbegin(); one != former.cend(); ++one) {
        if (stays(one.key()))
            kept->insert(one.key(), *one);
    }
}

// What whoever kept the former one had chosen of what stays.
void keepChosen(Preset *preset, const Preset &former, const PresetContent &kept,
                const std::function<bool(const QString &)> &stays)
{
    QStringList chosen = former.changed;
    if (chosen.isEmpty()) // all of it
        chosen = kept.options.keys() + kept.attributes.keys();
    chosen.removeIf([&](const QString &name) { return !stays(name); });
    preset->changed += chosen;
    preset->changed.removeDuplicates();
}

Preset withUntouched(const PresetReplacing &replacing, const Preset &former)
{
    const PresetContent &taken = replacing.origin->taken;
    const PresetContent &set = replacing.set;
    PresetContent kept;
    keep(&kept.options, former.content.options,
         [&](const QString &key) { return isSame(set.options, taken.options, key); });
    keep(&kept.entries, former.content.entries,
         [&](const QString &key) { return isSame(set.entries, taken.entries, key); });
    keep(&kept.attributes, former.content.attributes,
         [&](const QString &key) { return isSame(set.attributes, taken.attributes, key); });
    Preset preset = replacing.preset;
    preset.content = withChanges(preset.content, kept);
    keepChosen(&preset, former, kept,
               [&](const QString &name) { return !replacing.touched.contains(name); });
    return preset;
}

Preset withUnknown(const PresetReplacing &replacing, const Preset &former)
{
    const auto isUnknown = [&](const QString &name) {
        return !replacing.options.contains(name) && !jobAttribute(name);
    };
    PresetContent kept;
    keep(&kept.options, former.content.options, isUnknown);
    keep(&kept.entries, former.content.entries,
         [&](const QString &key) { return !replacing.entries.contains(key); });
    keep(&kept.attributes, former.content.attributes, isUnknown);
    Preset preset = replacing.preset;
    preset.content = withChanges(kept, preset.content);
    keepChosen(&preset, former, kept, isUnknown);
    return preset;
}

} // namespace

QString PresetReplacing::over(const Preset &former, Preset *written) const
{
    const bool isOrigin = origin && isSamePreset(origin->stored, former);
    if (mustBeOrigin && !isOrigin)
        return Texts::tr("“%1” was saved elsewhere since it was selected here, and stays as it is "
                         "there. Select it again, or keep your settings with “Save Preset…”.")
            .arg(preset.name);
    *written = isWhole    ? preset
               : isOrigin ? withUntouched(*this, former)
                          : withUnknown(*this, former);
    if (written->further.isEmpty())
        written->further = former.further;
    return {};
}

bool isSamePreset(const Preset &one, const Preset &other)
{
    return one.model == other.model && one.device == other.device && one.content == other.content &&
           one.changed == other.changed && one.further == other.further;
}

} // namespace corvana
