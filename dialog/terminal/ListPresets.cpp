#include "dialog/terminal/ListPresets.h"

#include <QCoreApplication>
#include <QTextStream>

#include "dialog/policy/Policy.h"
#include "dialog/presets/PresetStore.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

int listPresets(const PrintRequest &request)
{
    PresetPlaces places = request.presetPlaces;
    const Policy &policy = policyOf(request);
    places.owners = policy.reading().place.owners();
    for (const PolicyEntry &entry : policy.reading().entries) {
        const bool isFolder = entry.key == PolicyKey::Presets && !entry.value.isEmpty();
        if (isFolder && policy.appliesToUser(entry.scope) &&
            !places.forEverybody.contains(entry.value))
            places.forEverybody += entry.value;
    }
    const PresetListing all = PresetStore(places).listAll();
    QTextStream out(stdout);
    for (const StoredPreset &stored : all.presets) {
        const QString model = stored.preset.model.isEmpty()
                                  ? QCoreApplication::translate("ListPresets", "all printers")
                                  : stored.preset.model;
        out << terminalLine(stored.preset.name) << "\t" << terminalLine(model) << "\n";
    }
    for (const QString &problem : all.problems)
        QTextStream(stderr) << "corvana-print: " << terminalText(problem) << "\n";
    return all.problems.isEmpty() ? 0 : 1;
}

} // namespace corvana
