#include "tests/support/TestBundle.h"
#include "tests/support/TestPaths.h"

#include <stdexcept>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

QJsonObject informationOf(const QJsonObject &further)
{
    QJsonObject information{
        {kCFBundleIdentifierKey, u"com.corvana.print.test"_s},
        {kCFBundleNameKey, u"TestPanel"_s},
        {kCFBundleHelpBookNameKey, u"Test Panel Help"_s},
        {kCFBundleLocalizationsKey, QJsonArray{u"English"_s}},
    };
    for (auto entry = further.begin(); entry != further.end(); ++entry)
        information.insert(entry.key(), entry.value());
    return information;
}

} // namespace

TestBundle TestBundle::built()
{
    TestBundle bundle{std::unique_ptr<QTemporaryDir>()};
    bundle.open(corvana::test::bundleFile());
    return bundle;
}

TestBundle TestBundle::copied()
{
    TestBundle bundle(std::make_unique<QTemporaryDir>());
    const QDir source(corvana::test::bundleFile());
    const QDir target(bundle.m_folder->path());
    for (const char *folder : {"interface", "strings", "pictures"}) {
        target.mkdir(QString::fromLatin1(folder));
        const QDir files(source.filePath(QString::fromLatin1(folder)));
        for (const QString &file : files.entryList(QDir::Files)) {
            const QString copy = target.filePath(QString::fromLatin1(folder) + u'/' + file);
            QFile::copy(files.filePath(file), copy);
            QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
        }
    }
    QFile::copy(source.filePath(u"info.json"_s), target.filePath(u"info.json"_s));
    bundle.open(bundle.m_folder->path());
    return bundle;
}

TestBundle::TestBundle(Information information, const QJsonObject &furtherInformation)
    : TestBundle(std::make_unique<QTemporaryDir>())
{
    for (const char *folder : {"interface", "strings", "pictures"})
        QDir(m_folder->path()).mkdir(QString::fromLatin1(folder));
    QFile::copy(corvana::test::bundleFile(u"strings/English.qm"_s),
                m_folder->filePath(u"strings/English.qm"_s));
    if (information == Information::Present) {
        write(u"info.json"_s, QJsonDocument(informationOf(furtherInformation)).toJson());
    }
    open(m_folder->path());
}

TestBundle::TestBundle(std::unique_ptr<QTemporaryDir> folder) : m_folder(std::move(folder)) {}

TestBundle::~TestBundle()
{
    if (m_bundle) // not moved from
        Bundle::associateModule(QCoreApplication::applicationFilePath(), nullptr);
}

void TestBundle::addInterface(const QString &name, const QByteArray &text)
{
    write(u"interface/%1.ui"_s.arg(name), text);
}

void TestBundle::addPicture(const QString &name)
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    // The name says TIFF; what is read goes by the content, and every Qt can write a PNG.
    const QString file = m_folder->filePath(u"pictures/%1.tiff"_s.arg(name));
    if (!picture.save(file, "PNG"))
        throw std::runtime_error(file.toStdString() + " could not be written");
}

void TestBundle::addBrokenPicture(const QString &name)
{
    write(u"pictures/%1.tiff"_s.arg(name), "no picture");
}

void TestBundle::setTexts(const QMap<QString, QString> &textsByKey)
{
    QString table = u"<!DOCTYPE TS><TS version=\"2.1\" language=\"en\"><context>"
                    "<name>Localizable</name>"_s;
    for (auto text = textsByKey.begin(); text != textsByKey.end(); ++text) {
        table += u"<message><source>%1</source><translation>%2</translation></message>"_s.arg(
            text.key().toHtmlEscaped(), text.value().toHtmlEscaped());
    }
    table += u"</context></TS>"_s;
    static QHash<QString, QByteArray> compiled; // starting the compiler is slow
    if (compiled.contains(table))
        return write(u"strings/English.qm"_s, compiled.value(table));
    write(u"strings/English.ts"_s, table.toUtf8());
    const QString source = m_folder->filePath(u"strings/English.ts"_s);
    const QString target = m_folder->filePath(u"strings/English.qm"_s);
    if (QProcess::execute(QStringLiteral(CORVANA_TEST_LRELEASE),
                          {u"-silent"_s, source, u"-qm"_s, target}) != 0)
        throw std::runtime_error(source.toStdString() + " is no string table");
    QFile result(target);
    if (result.open(QIODevice::ReadOnly))
        compiled.insert(table, result.readAll());
}

void TestBundle::remove(const QString &file)
{
    if (!m_folder || !QFile::remove(m_folder->filePath(file)))
        throw std::runtime_error(file.toStdString() + " could not be removed");
}

void TestBundle::edit(const QString &name, const QByteArray &before, const QByteArray &after)
{
    QFile file(m_folder ? m_folder->filePath(name) : QString());
    QByteArray content;
    if (file.open(QIODevice::ReadOnly))
        content = file.readAll();
    if (content.count(before) != 1)
        throw std::runtime_error(name.toStdString() + " is not as it was expected");
    write(name, content.replace(before, after));
    if (name == u"info.json")
        open(m_folder->path()); // it was read already
}

void TestBundle::open(const QString &path)
{
    m_bundle = Bundle::open(path);
    if (!m_bundle)
        throw std::runtime_error(path.toStdString() + " is no bundle");
    Bundle::associateModule(QCoreApplication::applicationFilePath(), m_bundle);
}

void TestBundle::write(const QString &name, const QByteArray &content)
{
    if (!m_folder)
        throw std::logic_error("the bundle of the build is not a test's to change");
    QFile file(m_folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error(file.fileName().toStdString() + " could not be written");
}

UserPreferences::UserPreferences() : m_former(qgetenv("XDG_CONFIG_HOME"))
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path()));
}

UserPreferences::~UserPreferences()
{
    qputenv("XDG_CONFIG_HOME", m_former);
}

void UserPreferences::makeUnwritable()
{
    QFile file(m_folder.filePath(u"corvana-print"_s));
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error(file.fileName().toStdString() + " is in use already");
}

UserLanguage::UserLanguage(const QString &name)
{
    QLocale::setDefault(QLocale(name));
}

UserLanguage::~UserLanguage()
{
    QLocale::setDefault(m_former);
}

} // namespace corvana::test
