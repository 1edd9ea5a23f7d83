#include "tests/dialog/task/QueueTaskTest.h"

#include <QDir>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/Client.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

void QueueTaskTest::setUserOptions(const QByteArray &lines)
{
    QDir(m_home->path()).mkpath(u".cups"_s);
    writeFile(m_home->filePath(u".cups/lpoptions"_s), lines);
}

QString QueueTaskTest::ppd(const PpdBuilder &ppd)
{
    return writeFile(m_home->filePath(u"office.ppd"_s), ppd.text());
}

PrintRequest QueueTaskTest::request(const QString &options)
{
    PrintRequest request = m_scene->request(QList<Printer>());
    request.documents.first().path = corvana::test::sourceFile(u"tests/data/page.txt"_s);
    request.documents.first().format = u"text/plain"_s;
    request.server = *ServerAddress::parse(m_between->server());
    request.serverWasNamed = true;
    request.wantedPrinter = u"office"_s;
    request.options = parseOptions({options});
    return request;
}

void QueueTaskTest::open(const PrintRequest &request)
{
    m_scene->make(request).start();
    QVERIFY2(m_scene->reaches(Phase::Opened), qPrintable(task().problem().text));
    task().bringUp();
}

bool QueueTaskTest::printed()
{
    const qsizetype before = face().outcomes.size();
    const qsizetype refused = face().refusals.size();
    task().print();
    return QTest::qWaitFor(
               [&] { return face().outcomes.size() > before || face().refusals.size() > refused; },
               kPatience) &&
           face().outcomes.size() > before;
}

QString QueueTaskTest::jobValue(int job, const char *attribute)
{
    return Client(m_cups->server()).jobValue(job, attribute);
}

void QueueTaskTest::printSlowly(const PrintRequest &request)
{
    m_cups->addQueue(u"office"_s, ppd(officePrinter()),
                     {.deviceUri = m_cups->capture(u"office"_s).waitAtStart().uri()});
    open(request);
    task().print();
    QTRY_VERIFY_WITH_TIMEOUT(task().isJobHandedOver(), kPatience);
}

void QueueTaskTest::initTestCase()
{
    if (!PrivateCups::isAvailable())
        QSKIP("no CUPS server here");
}

void QueueTaskTest::init()
{
    m_home = std::make_unique<OwnHome>();
    m_serverRoot = std::make_unique<Variable>("CUPS_SERVERROOT", "/nonexistent");
    m_cups = std::make_unique<PrivateCups>();
    m_cups->start();
    m_between = std::make_unique<FaultyServer>(m_cups->port());
    m_scene = std::make_unique<TaskScene>();
}

void QueueTaskTest::cleanup()
{
    m_scene.reset();
    m_between.reset();
    m_cups.reset();
    m_serverRoot.reset();
    m_home.reset();
}

} // namespace corvana::test
