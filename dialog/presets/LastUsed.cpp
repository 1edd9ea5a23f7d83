#include "dialog/presets/LastUsed.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "dialog/presets/PresetFile.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/session/DialogPreferences.h"
#include "platform/foundation/UserDefaults.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(LastUsed)
};

constexpr QLatin1StringView kPreference = "lastUsed"_L1;

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           u"/corvana-print/last-used"_s;
}

// An instance of a queue is a printer of its own here, as it has options of its own.
QString pathOf(const Printer &printer, const QString &server)
{
    const PrinterId id = idOf(printer);
    const QString where = printer.origin == PrinterOrigin::Queue ? server : id.place;
    return u"%1/%2.json"_s.arg(folder(), fileNameFor(id.name + u'@' + where));
}

QString damaged(const QString &path, const QString &why)
{
    return Texts::tr("The settings of the last job cannot be read, and stay as they are in “%1”: "
                     "%2.")
        .arg(QDir::toNativeSeparators(path), why);
}

} // namespace

LastUsedReading readLastUsed(const Printer &printer, const QString &server)
{
    const QString path = pathOf(printer, server);
    const PresetReading reading = readPresetFile(path);
    if (!reading.problem.isEmpty())
        return {{}, damaged(path, reading.problem)};
    return {reading.preset ? reading.preset->content : PresetContent(), {}};
}

QString writeLastUsed(const Printer &printer, const QString &server, const PresetContent &changes)
{
    const QString path = pathOf(printer, server);
    const PresetReading former = readPresetFile(path);
    if (!former.problem.isEmpty())
        return damaged(path, former.problem);
    if (changes.isEmpty()) {
        if (QFile file(path); file.exists() && !file.remove())
            return Texts::tr("“%1” cannot be removed: %2.")
                .arg(QDir::toNativeSeparators(path), file.errorString());
        return {};
    }
    Preset kept = former.preset.value_or(Preset());
    if (former.preset && kept.content == changes)
        return {};
    // For people who look into the folder; the file is found by its name.
    kept.name = presetName(printer.name).left(kLongestPresetName);
    if (!problemOfPresetName(kept.name).isEmpty())
        kept.name = u"?"_s;
    kept.content = changes;
    return writePresetFile(path, kept);
}

bool remembersLastUsed()
{
    const QVariantMap domain = UserDefaults::standardUserDefaults()
                                   .persistentDomainForName(kDialogDomain)
                                   .value_or(QVariantMap());
    return domain.value(kPreference, true).toBool();
}

QString setRemembersLastUsed(bool remembers)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap domain = defaults.persistentDomainForName(kDialogDomain).value_or(QVariantMap());
    domain.insert(kPreference, remembers);
    if (!defaults.setPersistentDomain_forName(domain, kDialogDomain))
        return Texts::tr("“%1” cannot be written.")
            .arg(QDir::toNativeSeparators(UserDefaults::fileOfDomain(kDialogDomain)));
    if (remembers)
        return {};
    QString problem;
    const QStringList files = QDir(folder()).entryList({u"*.json"_s}, QDir::Files);
    for (const QString &name : files) {
        QFile file(folder() + u'/' + name);
        if (!file.remove())
            problem = Texts::tr("“%1” cannot be removed: %2.")
                          .arg(QDir::toNativeSeparators(file.fileName()), file.errorString());
    }
    return problem;
}

} // namespace corvana
