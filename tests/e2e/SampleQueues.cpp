#include "tests/e2e/SampleQueues.h"

#include <algorithm>

#include "tests/e2e/ProgramRunner.h"
#include "tests/support/TestPaths.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

SampleQueues::SampleQueues()
{
    qputenv("XDG_CONFIG_HOME", m_home.filePath(u"config"_s).toLocal8Bit());
    qputenv("XDG_CACHE_HOME", m_home.filePath(u"cache"_s).toLocal8Bit());
    m_cups.start();
    for (const QString &printer : printers())
        m_cups.addQueue(printer, ppdOf(printer));
}

QStringList SampleQueues::printers()
{
    return {u"corvana-cl2"_s, u"corvana-cl3"_s, u"corvana-cl4"_s,
            u"corvana-cl5"_s, u"corvana-mf4"_s, u"corvana-ml3"_s};
}

QString SampleQueues::ppdOf(const QString &printer)
{
    return corvana::test::sourceFile(u"resources/ppd/%1.ppd"_s).arg(printer);
}

std::unique_ptr<DialogDriver> SampleQueues::open(const QString &printer, const QStringList &options,
                                                 const QString &document)
{
    return std::make_unique<DialogDriver>(QueueAt{m_cups.server(), printer, document}, options);
}

QByteArray SampleQueues::printedBy(DialogDriver &driver, const QString &printer)
{
    const QString report = driver.waitForReport();
    const int id = jobNamed(printer, report);
    if (report != u"Printed on “%1” as job %1-%2."_s.arg(printer).arg(id) ||
        m_cups.job(id).state != IPP_JSTATE_COMPLETED)
        return {};
    const QList<CapturedJob> jobs = m_cups.capture(printer).jobs();
    const auto job =
        std::find_if(jobs.cbegin(), jobs.cend(), [id](const CapturedJob &j) { return j.id == id; });
    return job == jobs.cend() ? QByteArray() : job->data;
}

} // namespace corvana::test
