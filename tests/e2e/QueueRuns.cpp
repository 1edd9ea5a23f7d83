#include "tests/e2e/QueueRuns.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace corvana::test {

CapturedJob QueueRuns::printed(const QString &queue, const QStringList &arguments)
{
    const RunEnd end = m_runner->run(QStringList{u"-d"_s, queue} + arguments);
    [&] { QVERIFY2(end.status == 0, end.text().constData()); }();
    const QList<CapturedJob> jobs = m_cups->capture(queue).jobs();
    [&] { QCOMPARE(jobs.size(), 1); }();
    return jobs.value(0);
}

KnownJob QueueRuns::onlyJob(const QString &queue) const
{
    const QList<KnownJob> jobs = m_cups->jobs(queue);
    return jobs.size() == 1 ? jobs.constFirst() : KnownJob();
}

void QueueRuns::initTestCase()
{
    if (!PrivateCups::isAvailable())
        QSKIP("no CUPS server here");
}

void QueueRuns::init()
{
    m_cups = std::make_unique<PrivateCups>();
    m_cups->start();
    m_runner = std::make_unique<ProgramRunner>(m_cups->server());
}

void QueueRuns::cleanup()
{
    m_runner.reset();
    m_cups.reset();
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray codeOf(const QByteArray &choice)
{
    return "CorvanaOption(" + choice + ')';
}

} // namespace corvana::test
