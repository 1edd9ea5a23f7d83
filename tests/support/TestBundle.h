#pragma once

#include <memory>

#include <QJsonObject>
#include <QLocale>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

#include "platform/foundation/Bundle.h"

namespace corvana::test {

/// Gives the panels that live in a test program a bundle, for as long as this object lives. Panels
/// find their bundle by the module that holds their code, which here is the program itself.
class TestBundle
{
public:
    enum class Information { Present, Absent };

    /// The bundle of the build, with the interface files, string tables and lists that are shipped.
    static TestBundle built();
    /// A copy of that bundle, whose files a test may replace and remove.
    static TestBundle copied();
    /// A bundle of the test's own in a temporary folder. With its information present it is named
    /// "TestPanel" and its English texts are those that are shipped.
    explicit TestBundle(Information information = Information::Present,
                        const QJsonObject &furtherInformation = {});
    TestBundle(TestBundle &&) = default;
    ~TestBundle();

    const std::shared_ptr<Bundle> &bundle() const { return m_bundle; }

    /// Puts an interface file into a bundle of the test's own.
    void addInterface(const QString &name, const QByteArray &text);
    /// Puts a picture of one colour, 8 by 8 pixels, into a bundle of the test's own.
    void addPicture(const QString &name);
    /// Replaces the English texts of a bundle of the test's own, before any of them was asked for.
    void setTexts(const QMap<QString, QString> &textsByKey);
    /// Puts a file that is no picture into the place of one.
    void addBrokenPicture(const QString &name);
    /// Removes a file, named from the bundle's folder on ("pictures/front_paper.tiff").
    /// Errors: throws std::runtime_error when there was none.
    void remove(const QString &file);
    /// Replaces text in a file of the bundle, named likewise. Errors: throws std::runtime_error
    /// unless `before` is there exactly once.
    void edit(const QString &file, const QByteArray &before, const QByteArray &after);

private:
    explicit TestBundle(std::unique_ptr<QTemporaryDir> folder);
    void open(const QString &path);
    void write(const QString &file, const QByteArray &content);

    std::unique_ptr<QTemporaryDir> m_folder; // null for the bundle of the build
    std::shared_ptr<Bundle> m_bundle;
};

/// Gives the program empty preferences of its own, for as long as this object lives.
class UserPreferences
{
public:
    UserPreferences();
    ~UserPreferences();
    UserPreferences(const UserPreferences &) = delete;
    UserPreferences &operator=(const UserPreferences &) = delete;

    /// Puts a file where the folder of the preferences would be, so that none can be written.
    void makeUnwritable();

private:
    QByteArray m_former;
    QTemporaryDir m_folder;
};

/// Makes a language the user's own for as long as this object lives, as far as the bundles' choice
/// of a localisation goes. The texts of a PPD keep the language of the process.
class UserLanguage
{
public:
    /// A locale name: "ja", "zh_CN", "en".
    explicit UserLanguage(const QString &name);
    ~UserLanguage();
    UserLanguage(const UserLanguage &) = delete;
    UserLanguage &operator=(const UserLanguage &) = delete;

private:
    QLocale m_former;
};

} // namespace corvana::test
