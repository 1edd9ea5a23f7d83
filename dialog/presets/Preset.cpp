#include "dialog/presets/Preset.h"

#include <algorithm>

#include <QCoreApplication>

#include "platform/foundation/ForeignText.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Preset)
};

} // namespace

QString presetName(const QString &typed)
{
    return typed.normalized(QString::NormalizationForm_C).simplified();
}

QString problemOfPresetName(const QString &name)
{
    if (name.isEmpty())
        return Texts::tr("A preset needs a name.");
    if (name.size() > kLongestPresetName)
        return Texts::tr("The name of a preset has at most %1 characters.").arg(kLongestPresetName);
    const auto characters = name.toUcs4();
    if (!std::all_of(characters.cbegin(), characters.cend(), showsItself))
        return Texts::tr("The name of a preset holds only characters that can be seen.");
    return {};
}

} // namespace corvana
