#include "dialog/presets/PresetFile.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include "platform/foundation/ForeignText.h"
#include "platform/foundation/WholeFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PresetFile)
};

constexpr int kVersion = 1;

constexpr QLatin1StringView kVersionKey = "version"_L1;
constexpr QLatin1StringView kName = "name"_L1;
constexpr QLatin1StringView kModel = "model"_L1;
constexpr QLatin1StringView kDevice = "device"_L1;
constexpr QLatin1StringView kOptions = "options"_L1;
constexpr QLatin1StringView kPanels = "panels"_L1;
constexpr QLatin1StringView kAttributes = "attributes"_L1;
constexpr QLatin1StringView kChanged = "changed"_L1;

// No printer has more options, no option a longer keyword or value, no panel a longer list.
constexpr qsizetype kMostValues = 4096;
constexpr qsizetype kLongestKey = 255;
constexpr qsizetype kLongestValue = 1023;
constexpr qsizetype kLongestList = 64;

bool showsAll(const QString &text)
{
    const auto characters = text.toUcs4();
    return std::all_of(characters.cbegin(), characters.cend(), showsItself);
}

// A keyword or the name of an attribute.
bool isKey(const QString &text)
{
    return !text.isEmpty() && text.size() <= kLongestKey &&
           std::all_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c > u' ' && c < u'\x7f' && c != u'='; });
}

bool isText(const QJsonValue &value)
{
    return value.isString() && value.toString().size() <= kLongestValue &&
           showsAll(value.toString());
}

bool isPlainValue(const QJsonValue &value)
{
    return value.isBool() || value.isDouble() || isText(value);
}

// What a panel keeps: a value, or a list of values.
bool isPanelValue(const QJsonValue &value)
{
    if (!value.isArray())
        return isPlainValue(value);
    const QJsonArray list = value.toArray();
    return list.size() <= kLongestList && std::all_of(list.cbegin(), list.cend(), isPlainValue);
}

// Reads the parts of one file, until one of them is not what it has to be.
class Reader
{
public:
    explicit Reader(const QJsonObject &json) : m_json(json) {}

    Preset preset()
    {
        Preset preset;
        readVersion();
        preset.name = text(kName);
        if (m_problem.isEmpty() && !problemOfPresetName(preset.name).isEmpty())
            m_problem = u"\"%1\": %2"_s.arg(kName, problemOfPresetName(preset.name));
        preset.model = m_json.contains(kModel) ? text(kModel) : QString();
        const QJsonValue device = m_json.value(kDevice);
        if (!device.isUndefined() && !device.isBool())
            refuse(kDevice, u"true, false"_s);
        preset.device = device.toBool();
        preset.content.options = texts(kOptions, false);
        preset.content.attributes = texts(kAttributes, true);
        preset.content.entries = panelValues();
        preset.changed = names();
        preset.further = m_json;
        for (const QLatin1StringView key :
             {kVersionKey, kName, kModel, kDevice, kOptions, kPanels, kAttributes, kChanged})
            preset.further.remove(key);
        return preset;
    }
    const QString &problem() const { return m_problem; }

private:
    void refuse(const QString &where, const QString &expected)
    {
        if (m_problem.isEmpty())
            m_problem = Texts::tr("“%1”: expected was %2").arg(where.left(kLongestKey), expected);
    }

    void readVersion()
    {
        const QJsonValue version = m_json.value(kVersionKey);
        if (!version.isDouble() || version.toInt() < 1)
            refuse(kVersionKey, u"1"_s);
        else if (version.toInt() > kVersion)
            m_problem = Texts::tr("it was written by a later version of this program");
    }

    QString text(QLatin1StringView key)
    {
        if (!isText(m_json.value(key)))
            refuse(key, Texts::tr("a text"));
        return m_json.value(key).toString();
    }

    QJsonObject object(QLatin1StringView key)
    {
        const QJsonValue value = m_json.value(key);
        if (!value.isUndefined() && !value.isObject())
            refuse(key, u"{ … }"_s);
        const QJsonObject found = value.toObject();
        if (found.size() > kMostValues)
            refuse(key, Texts::tr("at most %1 values").arg(kMostValues));
        for (auto one = found.begin(); one != found.end() && m_problem.isEmpty(); ++one) {
            if (!isKey(one.key()))
                refuse(key, Texts::tr("the name of an option"));
        }
        return m_problem.isEmpty() ? found : QJsonObject();
    }

    QMap<QString, QString> texts(QLatin1StringView key, bool mayBeNull)
    {
        QMap<QString, QString> found;
        const QJsonObject values = object(key);
        for (auto one = values.begin(); one != values.end(); ++one) {
            const bool isNone = mayBeNull && one.value().isNull();
            if (!isNone && (!isText(one.value()) || one.value().toString().isEmpty()))
                refuse(one.key(), Texts::tr("a text"));
            found.insert(one.key(), isNone ? QString() : one.value().toString());
        }
        return found;
    }

    QVariantMap panelValues()
    {
        QVariantMap found;
        const QJsonObject values = object(kPanels);
        for (auto one = values.begin(); one != values.end(); ++one) {
            if (!isPanelValue(one.value()))
                refuse(one.key(), Texts::tr("a value or a list of values"));
            found.insert(one.key(), one.value().toVariant());
        }
        return found;
    }

    QStringList names()
    {
        QStringList found;
        const QJsonValue value = m_json.value(kChanged);
        const QJsonArray list = value.toArray();
        if ((!value.isUndefined() && !value.isArray()) || list.size() > kMostValues)
            refuse(kChanged, u"[ … ]"_s);
        for (const QJsonValue &one : list) {
            if (!isKey(one.toString()))
                refuse(kChanged, Texts::tr("the name of an option"));
            found += one.toString();
        }
        return found;
    }

    const QJsonObject m_json;
    QString m_problem;
};

QJsonObject toJson(const QMap<QString, QString> &texts)
{
    QJsonObject json;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        json.insert(text.key(), text->isNull() ? QJsonValue() : QJsonValue(*text));
    return json;
}

int lineAt(const QByteArray &text, qsizetype offset)
{
    return int(text.left(offset).count('\n')) + 1;
}

QString notWritten(const QString &path, const QString &why)
{
    return Texts::tr("“%1” cannot be written: %2.").arg(QDir::toNativeSeparators(path), why);
}

} // namespace

PresetReading readPreset(const QByteArray &json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return {std::nullopt,
                Texts::tr("line %1: %2")
                    .arg(QString::number(lineAt(json, error.offset)), error.errorString())};
    if (!document.isObject())
        return {std::nullopt, Texts::tr("expected was { … }")};
    Reader reader(document.object());
    const Preset preset = reader.preset();
    if (!reader.problem().isEmpty())
        return {std::nullopt, reader.problem()};
    return {preset, {}};
}

QByteArray writePreset(const Preset &preset)
{
    QJsonObject json = preset.further;
    json.insert(kVersionKey, kVersion);
    json.insert(kName, preset.name);
    if (!preset.model.isEmpty())
        json.insert(kModel, preset.model);
    json.insert(kDevice, preset.device);
    json.insert(kOptions, toJson(preset.content.options));
    json.insert(kPanels, QJsonObject::fromVariantMap(preset.content.entries));
    json.insert(kAttributes, toJson(preset.content.attributes));
    json.insert(kChanged, QJsonArray::fromStringList(preset.changed));
    return QJsonDocument(json).toJson();
}

PresetReading readPresetFile(const QString &path,
                             const std::function<bool(int descriptor)> &isTrusted)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return {};
    // A named pipe would be waited for.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return {std::nullopt, qt_error_string(errno)};
    QFile file;
    struct stat status = {};
    const bool isFile = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (!isFile || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return {std::nullopt, Texts::tr("it is no file")};
    }
    if (isTrusted && !isTrusted(descriptor))
        return {};
    const QByteArray json = file.read(kLargestPresetFile + 1);
    if (json.size() > kLargestPresetFile)
        return {std::nullopt, Texts::tr("it is larger than %1 bytes").arg(kLargestPresetFile)};
    return readPreset(json);
}

QString writePresetFile(const QString &path, const Preset &preset)
{
    const QString folder = QFileInfo(path).path();
    if (!QDir(folder).exists()) {
        errno = 0;
        if (!QDir().mkpath(folder))
            return notWritten(folder, qt_error_string(errno));
        // What somebody prints, and how, is nobody else's business.
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QSaveFile file(path);
    const QByteArray content = writePreset(preset);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return notWritten(path, file.errorString());
    return commitWhole(file) ? QString() : notWritten(path, qt_error_string(errno));
}

QString fileNameFor(const QString &name)
{
    // What is left of other names is only there for people who look into the folder.
    constexpr qsizetype kRecognised = 40;
    constexpr qsizetype kDigits = 16;
    QString readable;
    for (const QChar c : name) {
        const bool isPlain = c.unicode() < 0x80 && c.isLetterOrNumber();
        if (isPlain || (!readable.isEmpty() && !readable.endsWith(u'-')))
            readable += isPlain ? c : QChar(u'-');
    }
    readable.truncate(kRecognised);
    const QByteArray hash = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256);
    return u"%1-%2"_s.arg(readable.isEmpty() ? u"preset"_s : readable,
                          QString::fromLatin1(hash.toHex().first(kDigits)));
}

} // namespace corvana
