#include "tests/support/TestPaths.h"

#include <QFileInfo>

namespace corvana::test {

QString sourceFile(const QString &path)
{
    return QStringLiteral(CORVANA_TEST_SOURCE_DIR "/") + path;
}

QString sourceFile(QLatin1StringView path)
{
    return sourceFile(QString(path));
}

QString bundleFile(const QString &path)
{
    const QString bundle = QStringLiteral(CORVANA_TEST_BUNDLE_DIR);
    return path.isEmpty() ? bundle : bundle + u'/' + path;
}

QString bundleFile(QLatin1StringView path)
{
    return bundleFile(QString(path));
}

QString bundleRoot()
{
    return QFileInfo(bundleFile()).path();
}

QString sharedFile(const QString &path)
{
    return QStringLiteral(CORVANA_TEST_SHARE_DIR "/") + path;
}

QString sharedFile(QLatin1StringView path)
{
    return sharedFile(QString(path));
}

} // namespace corvana::test
