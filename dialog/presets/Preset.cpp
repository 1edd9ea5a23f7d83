#include "dialog/presets/Preset.h"

#include <algorithm>
#include <iterator>

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

QString problemOfNewPresetName(const QString &name)
{
    static constexpr const char *kAlwaysThere[] = {"Printer Defaults", "Last Used"};
    const auto isCalled = [&](const char *one) {
        const QString shown = QCoreApplication::translate("corvana::TaskPresets", one);
        return name.compare(shown, Qt::CaseInsensitive) == 0 ||
               name.compare(QLatin1StringView(one), Qt::CaseInsensitive) == 0;
    };
    if (std::any_of(std::begin(kAlwaysThere), std::end(kAlwaysThere), isCalled))
        return Texts::tr("“%1” is always there, and is no name of a preset.").arg(name);
    return problemOfPresetName(name);
}

} // namespace corvana
