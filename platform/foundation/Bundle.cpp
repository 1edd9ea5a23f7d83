#include "platform/foundation/Bundle.h"

#include <dlfcn.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QLoggingCategory>
#include <QTranslator>

#include "platform/foundation/StringTable.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcBundle, "corvana.foundation.bundle", QtWarningMsg)

namespace {

// The one context of every string table; the key is the source text.
constexpr char kStringTableContext[] = "Localizable";

QHash<QString, std::shared_ptr<Bundle>> &modules()
{
    static QHash<QString, std::shared_ptr<Bundle>> bundlesByModule;
    return bundlesByModule;
}

QString canonicalModule(const QString &file)
{
    const QString canonical = QFileInfo(file).canonicalFilePath();
    // The loader may name the program by the words it was started with, relative to a folder that
    // is no longer the current one.
    return canonical.isEmpty()
               ? QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath()
               : canonical;
}

// Which user languages a localisation serves. The first two names are older than language codes.
QString languageCode(const QString &localization)
{
    if (localization == "English"_L1)
        return u"en"_s;
    if (localization == "Japanese"_L1)
        return u"ja"_s;
    return QString(localization).replace(u'_', u'-');
}

// Whether a name stays in the folder that it is looked up in.
bool isPlainName(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'/') && !name.startsWith(u'.');
}

bool isWholeTable(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && isWholeStringTable(file.readAll());
}

int lineOfOffset(const QByteArray &text, int offset)
{
    return static_cast<int>(text.left(offset).count('\n')) + 1;
}

} // namespace

Bundle::Bundle(QString path) : m_path(std::move(path)) {}

Bundle::~Bundle() = default;

std::shared_ptr<Bundle> Bundle::open(const QString &path, QString *error)
{
    const QFileInfo folder(path);
    if (!folder.isDir()) {
        if (error)
            *error = u"%1: there is no such bundle folder"_s.arg(path);
        return nullptr;
    }
    std::shared_ptr<Bundle> bundle(new Bundle(folder.canonicalFilePath()));
    bundle->readInfo(error);
    return bundle;
}

void Bundle::readInfo(QString *error)
{
    const auto fail = [&](const QString &what) {
        qCWarning(lcBundle).noquote() << what;
        if (error)
            *error = what;
    };
    QFile file(m_path + u"/info.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        return fail(u"%1: %2"_s.arg(file.fileName(), file.errorString()));
    const QByteArray text = file.readAll();
    QJsonParseError parse;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parse);
    if (parse.error != QJsonParseError::NoError) {
        return fail(u"%1:%2: this is not JSON: %3"_s.arg(
            file.fileName(), QString::number(lineOfOffset(text, parse.offset)),
            parse.errorString()));
    }
    if (!document.isObject())
        return fail(u"%1:1: a JSON object was expected"_s.arg(file.fileName()));
    m_info = document.object();
}

void Bundle::associateModule(const QString &moduleFile, const std::shared_ptr<Bundle> &bundle)
{
    const QString module = QFileInfo(moduleFile).canonicalFilePath();
    if (module.isEmpty())
        qCWarning(lcBundle) << "there is no module" << moduleFile;
    else
        modules().insert(module, bundle);
}

std::shared_ptr<Bundle> Bundle::bundleForCode(const void *address)
{
    Dl_info module;
    if (!dladdr(address, &module) || !module.dli_fname)
        return nullptr;
    return modules().value(canonicalModule(QFile::decodeName(module.dli_fname)));
}

QString Bundle::infoString(QLatin1StringView key) const
{
    const QJsonValue value = m_info ? m_info->value(key) : QJsonValue();
    return value.isString() ? value.toString() : QString();
}

std::optional<QStringList> Bundle::infoStringList(const QString &key) const
{
    const QJsonValue value = m_info ? m_info->value(key) : QJsonValue();
    if (!value.isArray())
        return std::nullopt;
    QStringList texts;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array) {
        if (!entry.isString())
            return std::nullopt;
        texts += entry.toString();
    }
    return texts;
}

QStringList Bundle::localizations() const
{
    return infoStringList(kCFBundleLocalizationsKey).value_or(QStringList());
}

// "zh-Hans-CN" serves "zh-CN": scripts are implied by the regions that the localisations name.
bool Bundle::localizationServes(const QString &localization, const QString &userLanguage)
{
    const QString code = languageCode(localization);
    if (code == userLanguage)
        return true;
    const QLocale wanted(userLanguage);
    const QLocale offered(code);
    // What is no language code at all would pass for the language "C".
    if (offered.language() == QLocale::C || wanted.language() != offered.language())
        return false;
    // A localisation without a region serves every region; one with a region serves its script.
    return !code.contains(u'-') || wanted.script() == offered.script();
}

QStringList Bundle::preferredLocalizations(const QStringList &localizations)
{
    QStringList preferred;
    const QStringList userLanguages = QLocale().uiLanguages();
    for (const QString &language : userLanguages) {
        for (const QString &localization : localizations) {
            if (!preferred.contains(localization) && localizationServes(localization, language))
                preferred += localization;
        }
    }
    if (preferred.isEmpty() && !localizations.isEmpty())
        preferred += localizations.first();
    return preferred;
}

QString Bundle::localizedString(const QString &key) const
{
    if (!m_strings) {
        m_strings = std::make_unique<QTranslator>();
        const QString name = preferredLocalizations(localizations()).value(0);
        const QString table = u"%1/strings/%2.qm"_s.arg(m_path, name);
        // QTranslator would seek a missing table under shorter names, even outside the bundle.
        if (!isPlainName(name) || !QFileInfo(table).isFile() || !isWholeTable(table) ||
            !m_strings->load(table))
            qCWarning(lcBundle) << "no string table could be loaded from" << table;
    }
    return m_strings->translate(kStringTableContext, key.toUtf8().constData());
}

QString Bundle::localizedStringOrKey(const QString &key) const
{
    const QString text = localizedString(key);
    return text.isNull() ? key : text;
}

QString Bundle::pathForResource(const QString &name, const QString &type) const
{
    if (!isPlainName(name) || type.contains(u'/'))
        return {};
    const QLatin1StringView folder(type == "ui"_L1 ? "interface" : "pictures");
    const QFileInfo file(u"%1/%2/%3.%4"_s.arg(m_path, folder, name, type));
    return file.isFile() ? file.filePath() : QString();
}

} // namespace corvana
