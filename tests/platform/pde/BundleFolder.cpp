#include "BundleFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "TestModule.h"

BundleFolder::BundleFolder()
{
    QDir(m_folder.path()).mkdir(QStringLiteral("first"));
    QDir(m_folder.path()).mkdir(QStringLiteral("second"));
    qputenv(kMarkVariable, QFile::encodeName(path(QStringLiteral("mark"))));
}

QByteArray BundleFolder::info(const QByteArray &executable)
{
    return "{\"CFBundleName\": \"Test\", \"CFBundleIdentifier\": \"com.corvana.test\", "
           "\"PMPPDKeysSupported\": [], \"CFBundleExecutable\": \"" +
           executable + "\"}";
}

bool BundleFolder::makeBundle(const QString &bundle, const QString &module, const QByteArray &info)
{
    if (!QDir().mkpath(bundle + QStringLiteral("/module")))
        return false;
    if (!module.isEmpty() && !copyModule(module, bundle + QStringLiteral("/module/test.so")))
        return false;
    return write(bundle + QStringLiteral("/info.json"), info);
}

bool BundleFolder::write(const QString &name, const QByteArray &contents)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

bool BundleFolder::copyModule(const QString &module, const QString &file)
{
    return QFile::copy(QStringLiteral(TEST_MODULES_DIR "/%1.so").arg(module), file);
}

qint64 BundleFolder::marks() const
{
    return QFileInfo(path(QStringLiteral("mark"))).size();
}
