#include "tests/e2e/QueueScene.h"

#include <stdexcept>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "tests/support/NumberedPdf.h"
#include "tests/support/TestPaths.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {
/// How long a server is waited for. Units: seconds.
constexpr auto kPatience = "2";
} // namespace

UserFolders::UserFolders()
{
    const std::pair<const char *, QString> folders[] = {{"HOME", u"home"_s},
                                                        {"XDG_CONFIG_HOME", u"config"_s},
                                                        {"XDG_CACHE_HOME", u"cache"_s},
                                                        {"XDG_DATA_HOME", u"data"_s}};
    for (const auto &[name, folder] : folders) {
        if (!QDir(m_folder.path()).mkdir(folder))
            throw std::runtime_error("no temporary folder");
        qputenv(name, m_folder.filePath(folder).toLocal8Bit());
    }
    qputenv("CORVANA_PRINT_PATIENCE", kPatience);
}

QString UserFolders::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("the test's folder cannot be written");
    return file.fileName();
}

// A PDF, which goes to the server as it is. What lies before "startxref" no reader looks at.
QString UserFolders::longDocument(const QString &name, int size) const
{
    const QByteArray comment = "% A long document.\n";
    QByteArray document = numberedPdf("page", 3);
    document.insert(document.lastIndexOf("startxref"), comment.repeated(size / comment.size()));
    return write(name, document);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(path.toStdString() + " cannot be read");
    return file.readAll();
}

QString samplePpdPath(const QString &printer)
{
    return corvana::test::sourceFile(u"resources/ppd/%1.ppd"_s).arg(printer);
}

bool matches(const QString &text, const QString &expression)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::DotMatchesEverythingOption)
        .match(text)
        .hasMatch();
}

QueueScene::QueueScene(const CupsSettings &settings)
    : cups(settings), between(cups.port()), device(cups.capture(kQueue))
{
    // A former scene may have had the same port, and another queue of this name.
    QDir(qEnvironmentVariable("XDG_CACHE_HOME")).removeRecursively();
    cups.start();
}

void QueueScene::addQueue(const QString &ppdPath)
{
    QueueSettings settings;
    settings.deviceUri = device.uri();
    cups.addQueue(kQueue, ppdPath, settings);
}

void QueueScene::open(const QStringList &documents, const QString &printer)
{
    window.reset();
    window =
        std::make_unique<QueueDriver>(QueueDriver::Start{between.server(), printer, documents});
}

QList<int> QueueScene::states() const
{
    QList<int> states;
    for (const KnownJob &job : cups.jobs())
        states += job.state;
    return states;
}

void QueueScene::goAway()
{
    between.setManner(FaultyServer::Manner::Refuses);
    between.dropConnections();
}

void QueueScene::fallSilent()
{
    between.setManner(FaultyServer::Manner::NeverAnswers);
    between.dropConnections();
}

void QueueScene::mend()
{
    between.clearFaults();
    between.releaseResponses();
    between.setManner(FaultyServer::Manner::Passes);
}

} // namespace corvana::test
