#include "dialog/sheets/PassJob.h"

#include <QFile>
#include <QTimer>

#include "dialog/job/FilterPlan.h"
#include "dialog/job/PageChoice.h"

namespace corvana {

using namespace Qt::StringLiterals;

PassJob::PassJob(const ServerJobRequest &request, const PassSource &source,
                 JobProgress::Sides sides, QObject *parent)
    : Job(parent), m_request(request), m_source(source), m_sides(sides)
{
    connect(&m_chain, &FilterChain::finished, this, &PassJob::made);
}

PassJob::~PassJob() = default;

void PassJob::start()
{
    tell({JobProgress::Stage::Converting});
    const QString pdf = m_folder.filePath(u"sides.pdf"_s);
    const PassPdfPlan plan = planPassPdf(m_source, m_folder.path(), pdf);
    const QString problem = m_folder.isValid() ? writeBlanks(plan.blanks) : m_folder.errorString();
    if (m_canceled || !problem.isEmpty()) {
        QTimer::singleShot(0, this, [this, problem] { made(problem); });
        return;
    }
    m_request.documents = {{pdf, u"application/pdf"_s, m_request.ticket.title}};
    m_chain.start(plan.steps, m_request.ticket.secrets);
}

// Answers what stands in the way.
QString PassJob::writeBlanks(const QList<BlankPage> &blanks) const
{
    for (const BlankPage &blank : blanks) {
        QFile file(blank.path);
        if (!file.open(QIODevice::WriteOnly) || file.write(blank.content) != blank.content.size() ||
            !file.flush())
            return tr("%1 cannot be written: %2").arg(blank.path, file.errorString());
    }
    return {};
}

void PassJob::made(const QString &problem)
{
    if (m_canceled)
        return finish({JobOutcome::Kind::Canceled, 0, tr("Printing was canceled.")});
    if (!problem.isEmpty())
        return finish({JobOutcome::Kind::Failed, 0, problem});
    m_job = std::make_unique<ServerJob>(m_request);
    connect(m_job.get(), &Job::progressed, this, &PassJob::tell);
    connect(m_job.get(), &Job::finished, this,
            [this](const JobOutcome &outcome) { finish(outcome); });
    m_job->start();
}

void PassJob::tell(JobProgress progress)
{
    progress.sides = m_sides;
    report(progress);
}

void PassJob::cancel()
{
    if (m_job)
        return m_job->cancel();
    m_canceled = !outcome();
    m_chain.cancel();
}

void PassJob::letGo()
{
    if (m_job)
        m_job->letGo();
}

QList<JobOption> optionsOfPass(const QList<JobOption> &options)
{
    return withoutPageOrder(optionsAfterLayout(options));
}

} // namespace corvana
