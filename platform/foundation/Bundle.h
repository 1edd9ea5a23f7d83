#pragma once

#include <memory>
#include <optional>

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

#include "platform/PlatformExport.h"

class QTranslator;

namespace corvana {

/// Entries of the information dictionary that the panels and hosts ask for.
inline constexpr QLatin1StringView kCFBundleNameKey{"CFBundleName"};
inline constexpr QLatin1StringView kCFBundleIdentifierKey{"CFBundleIdentifier"};
inline constexpr QLatin1StringView kCFBundleExecutableKey{"CFBundleExecutable"};
inline constexpr QLatin1StringView kCFBundleLocalizationsKey{"CFBundleLocalizations"};
inline constexpr QLatin1StringView kCFBundleHelpBookNameKey{"CFBundleHelpBookName"};

/// A plug-in bundle: a folder `NAME.bundle` with `info.json` (the information dictionary), the
/// module, `interface/*.ui`, `strings/LOCALIZATION.qm` and `pictures/`.
///
/// Ownership: shared between the host that opened it and the panels that live in its code.
/// Thread: GUI thread only.
class CORVANA_PLATFORM_EXPORT Bundle
{
public:
    /// Opens the bundle at `path`. The folder must exist; a bundle without an information
    /// dictionary, or with one that cannot be read, opens and has none.
    /// Errors: null when there is no such folder. `error`, when given, says why, or what is wrong
    /// with the information dictionary (file, line where known, what was expected).
    static std::shared_ptr<Bundle> open(const QString &path, QString *error = nullptr);

    /// Notes that the code in `moduleFile` belongs to `bundle`: done by whoever loads a module.
    /// A file that does not exist is logged and has no effect.
    static void associateModule(const QString &moduleFile, const std::shared_ptr<Bundle> &bundle);
    /// The bundle whose module contains the machine code or data at `address`, or null.
    static std::shared_ptr<Bundle> bundleForCode(const void *address);

    ~Bundle();

    /// The bundle's folder, canonical.
    QString path() const { return m_path; }
    /// The information dictionary, or nothing when the bundle has none.
    const std::optional<QJsonObject> &infoDictionary() const { return m_info; }
    /// The text under `key` of the information dictionary; null when there is none.
    QString infoString(QLatin1StringView key) const;
    /// The list of texts under `key`; nothing when the entry is absent or no list of texts.
    std::optional<QStringList> infoStringList(const QString &key) const;
    /// The bundle's identifier; null when there is none.
    QString identifier() const { return infoString(kCFBundleIdentifierKey); }

    /// The names of the bundle's localisations ("English", "Japanese", "zh_CN"), as declared.
    QStringList localizations() const;
    /// Those of `localizations` that suit the user's languages, best first, by
    /// QLocale::uiLanguages(); never empty unless `localizations` is: without a match the first
    /// one.
    static QStringList preferredLocalizations(const QStringList &localizations);
    /// Whether a localisation suits readers of a language, given as "ja", "zh-CN" or "zh-Hans-CN":
    /// one without a region suits every region, one with a region all that share its script.
    static bool localizationServes(const QString &localization, const QString &userLanguage);

    /// The text of the bundle's default string table under `key`, in the best localisation.
    /// Null when the table or the key is missing, so that the caller's own fallback applies.
    QString localizedString(const QString &key) const;
    /// The same, with `key` itself as the fallback.
    QString localizedStringOrKey(const QString &key) const;

    /// The file of a resource: type "ui" in `interface/`, anything else in `pictures/`.
    /// Null when there is no such file. A name that would leave the folder finds nothing.
    QString pathForResource(const QString &name, const QString &type) const;

private:
    explicit Bundle(QString path);
    void readInfo(QString *error);

    QString m_path;
    std::optional<QJsonObject> m_info;
    // Loaded at the first look-up, then kept: the language does not change while a bundle lives.
    mutable std::unique_ptr<QTranslator> m_strings;
};

} // namespace corvana
