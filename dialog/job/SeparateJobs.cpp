#include "dialog/job/SeparateJobs.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/job/HandoverOutcomes.h"
#include "dialog/job/JobRequests.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = JobOutcome::Kind;

// What is put in order after a cancellation must not keep the user waiting.
constexpr std::chrono::seconds kPatienceAfterCancel = 5s;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ServerJob)
};

// The jobs of one try, from the first document that is still to be sent.
class SeparateJobs
{
public:
    SeparateJobs(ServerWorker &worker, const ServerJobRequest &request,
                 const QList<Document> &documents,
                 const std::function<void(const JobProgress &)> &report)
        : m_worker(worker), m_request(request), m_documents(documents), m_report(report)
    {
        // Another number of them is another order, of which nothing was sent.
        if (request.earlierDocuments == documents.size())
            m_sent = std::min<int>(request.sentDocuments, int(documents.size()) - 1);
    }

    JobOutcome run()
    {
        const int first = m_sent;
        JobOutcome outcome;
        while (m_sent < m_documents.size()) {
            outcome = handOverOne(m_sent, m_sent == first ? m_request.earlierJob : 0);
            if (!outcome.isDone() && outcome.kind != Kind::AlreadyThere)
                return brokenOff(outcome);
            m_jobs += outcome.job;
            ++m_sent;
        }
        return allSent(outcome);
    }

private:
    ServerWorker &m_worker;
    const ServerJobRequest &m_request;
    const QList<Document> &m_documents;
    const std::function<void(const JobProgress &)> &m_report;
    int m_sent = 0;    // of the documents, in this try and those before it
    QList<int> m_jobs; // of this try

    JobOutcome handOverOne(int index, int earlierJob)
    {
        const bool isLast = index + 1 == m_documents.size();
        ServerJobRequest one = m_request;
        one.ticket.title = m_documents.at(index).title;
        one.earlierJob = earlierJob;
        one.earlierDocuments = earlierJob > 0 ? 1 : 0;
        one.follow = m_request.follow && isLast;
        // Nobody may leave before the last one is there.
        return handOver(m_worker, one, {m_documents.at(index)}, [&](const JobProgress &progress) {
            if (isLast || progress.stage == JobProgress::Stage::Sending)
                m_report(progress);
        });
    }

    QString names() const
    {
        QStringList names;
        for (const int job : m_jobs)
            names += jobName(m_request.printer, job);
        return names.join(u", "_s);
    }

    // For the next try.
    JobOutcome remembered(JobOutcome outcome) const
    {
        outcome.sentDocuments = m_sent;
        outcome.documents = int(m_documents.size());
        return outcome;
    }

    JobOutcome allSent(JobOutcome outcome)
    {
        if (outcome.kind == Kind::Printed || outcome.kind == Kind::Sent)
            lookUpTheOthers(&outcome);
        const QString form =
            m_request.ppd->isWritten
                ? Texts::tr("%1 The queue “%2” has no driver, and would have sent the documents "
                            "in one stream. So each is a job of its own: %3.")
                : Texts::tr("%1 With “raw” the queue “%2” would have sent the documents in one "
                            "stream. So each is a job of its own: %3.");
        outcome.text = form.arg(outcome.text, m_request.printer.name, names());
        // The last one may be asked for again, where it is not over.
        m_sent = outcome.kind == Kind::AlreadyThere ? 0 : m_sent - 1;
        return remembered(outcome);
    }

    // They were before it in the queue.
    void lookUpTheOthers(JobOutcome *outcome)
    {
        for (const int job : std::as_const(m_jobs)) {
            const auto status = lookUpJob(m_worker.connection(), m_request.printer, job);
            if (!status || status->state == IPP_JSTATE_COMPLETED)
                continue;
            const QString name = jobName(m_request.printer, job);
            if (!status->isKnown()) {
                outcome->kind = Kind::Unknown;
                outcome->text += u' ' + HandoverOutcomes::unknownState(*status, name);
                continue;
            }
            outcome->kind = status->isOver() ? Kind::Failed : Kind::InQueue;
            outcome->text +=
                u' ' +
                (status->isOver()
                     ? Texts::tr("Job %1 was canceled or given up at the printer or its server.")
                           .arg(name)
                     : Texts::tr("Job %1 is still in the queue.").arg(name));
        }
    }

    JobOutcome brokenOff(JobOutcome outcome)
    {
        if (m_worker.isCanceled() && !m_worker.isLeftAlone())
            takeBackTheOthers(&outcome);
        // Of the order as a whole jobs were made.
        if (m_sent > 0 && outcome.kind == Kind::Refused)
            outcome.kind = Kind::Failed;
        if (m_sent > 0)
            outcome.text =
                Texts::tr("%1 Documents that were sent before, each as a job of its own: "
                          "%2 of %3. Printing again sends the others.")
                    .arg(outcome.text, QString::number(m_sent),
                         QString::number(m_documents.size()));
        return remembered(outcome);
    }

    // The last one first, so that what stays is what comes first.
    void takeBackTheOthers(JobOutcome *outcome)
    {
        ServerContext context = m_worker.context();
        context.mayAsk = false;
        context.patience = {kPatienceAfterCancel, kPatienceAfterCancel};
        ServerConnection connection(context, nullptr);
        while (!m_jobs.isEmpty() && cancelJob(connection, m_request.printer, m_jobs.constLast())) {
            outcome->text += u' ' + Texts::tr("Job %1 was canceled; pages that the printer has "
                                              "already may still come out.")
                                        .arg(jobName(m_request.printer, m_jobs.takeLast()));
            --m_sent;
        }
    }
};

} // namespace

bool canStandInARow(const QList<Document> &documents)
{
    return std::all_of(documents.cbegin(), documents.cend(), [&](const Document &document) {
        return document.format == documents.constFirst().format &&
               (document.format == "application/postscript"_L1 ||
                document.format == "text/plain"_L1);
    });
}

JobOutcome handOverSeparately(ServerWorker &worker, const ServerJobRequest &request,
                              const QList<Document> &documents,
                              const std::function<void(const JobProgress &)> &report)
{
    return SeparateJobs(worker, request, documents, report).run();
}

} // namespace corvana
