#include "tests/support/TestPaths.h"

#include <QFileInfo>

namespace corvana::test {

namespace {

// What a test names in its environment stands in the place of what was built: the same texts in a
// language that does not exist, for example.
QString placeOf(const char *variable, const QString &built)
{
    return qEnvironmentVariable(variable, built);
}

} // namespace

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
    const QString bundle = placeOf("CORVANA_TEST_BUNDLE", QStringLiteral(CORVANA_TEST_BUNDLE_DIR));
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
    return placeOf("CORVANA_TEST_SHARE", QStringLiteral(CORVANA_TEST_SHARE_DIR)) + u'/' + path;
}

QString sharedFile(QLatin1StringView path)
{
    return sharedFile(QString(path));
}

} // namespace corvana::test
