#include "dialog/job/Handover.h"

#include <algorithm>
#include <memory>

#include <QCoreApplication>
#include <QFile>

#include "dialog/job/JobRequests.h"
#include "dialog/printers/QueueRequests.h"

namespace corvana {

namespace {

using namespace std::chrono_literals;

// How often a job is looked up while it is followed.
constexpr std::chrono::milliseconds kLookUpInterval = 500ms;
// What is put in order after a failure must not keep the user waiting.
constexpr std::chrono::milliseconds kPatienceAfterFailure = 5s;
// How often a server that has just hung up is asked what became of the job.
constexpr int kLookUpsAfterFailure = 3;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ServerJob)
};

QString withMessage(const QString &text, const QString &message)
{
    return message.isEmpty() ? text : Texts::tr("%1 The printer says: %2").arg(text, message);
}

// One job, from the question whether to send it at all to its end.
class Handover
{
public:
    Handover(ServerWorker &worker, const ServerJobRequest &request, const Document &document,
             const std::function<void(const JobProgress &)> &report)
        : m_worker(worker), m_request(request), m_document(document), m_report(report),
          m_connection(&worker.connection())
    {
    }

    JobOutcome run()
    {
        QFile file(m_document.path);
        if (!file.open(QIODevice::ReadOnly))
            return failed(nothingPrinted(
                Texts::tr("%1 cannot be read: %2.").arg(m_document.title, file.errorString())));
        if (std::optional<JobOutcome> reason = whyNotToSend())
            return *reason;
        m_forDevice = credentialsForDevice();
        if (needsCredentials() && !m_forDevice)
            return failed(Texts::tr("The printer “%1” wants a user and a password; none was given. "
                                    "Nothing was printed.")
                              .arg(printerName()));
        const QString token = newJobToken();
        const std::optional<int> job =
            createJob(*m_connection, m_request.printer, m_request.ticket, token, m_forDevice);
        if (!job)
            return withdrawNumberless(token);
        m_job = *job;
        return sendAndFollow(file);
    }

private:
    ServerWorker &m_worker;
    const ServerJobRequest &m_request;
    const Document &m_document;
    const std::function<void(const JobProgress &)> &m_report;
    ServerConnection *m_connection;
    std::unique_ptr<ServerConnection> m_another; // after the first one was lost
    std::optional<Credentials> m_forDevice;
    int m_job = 0;
    bool m_whole = false;      // the server may have all of the document
    bool m_isComplete = false; // the server has all of the job

    QString printerName() const { return m_request.printer.name; }
    QString jobName() const { return corvana::jobName(m_request.printer, m_job); }
    JobOutcome outcome(JobOutcome::Kind kind, const QString &text) const
    {
        return {kind, m_job, text};
    }
    QString whatIsWrong() const { return m_connection->problem().text(m_worker.context().address); }

    // A connection that no cancellation touches, for what has to be put in order. Nobody is asked
    // for a password for that: nothing could end such a question.
    ServerConnection &another()
    {
        ServerContext context = m_worker.context();
        context.mayAsk = false;
        context.patience.connecting = std::min(context.patience.connecting, kPatienceAfterFailure);
        context.patience.answering = std::min(context.patience.answering, kPatienceAfterFailure);
        m_another = std::make_unique<ServerConnection>(context, nullptr);
        return *m_another;
    }

    JobOutcome failed(const QString &text) const { return outcome(JobOutcome::Kind::Failed, text); }

    QString notCreated() const
    {
        const ServerProblem &problem = m_connection->problem();
        if (problem.kind == ServerProblem::Kind::NotFound)
            return Texts::tr("The queue “%1” is not there any more. Nothing was printed.")
                .arg(printerName());
        if (problem.status == IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS)
            return Texts::tr("The queue “%1” takes no jobs at the moment. Nothing was printed.")
                .arg(printerName());
        return nothingPrinted(whatIsWrong());
    }

    static QString nothingPrinted(const QString &why)
    {
        return Texts::tr("%1 Nothing was printed.").arg(why);
    }

    // Takes back a job that the server may have made without its number getting here. It has no
    // document, but would stand in the queue until its server gives it up.
    JobOutcome withdrawNumberless(const QString &token)
    {
        const ServerProblem &problem = m_connection->problem();
        const bool canceled = m_worker.isCanceled();
        const auto kind = canceled ? JobOutcome::Kind::Canceled : JobOutcome::Kind::Failed;
        const bool mayBeThere =
            m_connection->requestWasSent() &&
            (!problem || problem.mayPass() || problem.kind == ServerProblem::Kind::Canceled);
        if (!mayBeThere)
            return outcome(kind, canceled ? Texts::tr("Printing was canceled.") : notCreated());
        QString why = whatIsWrong();
        if (canceled)
            why = Texts::tr("Printing was canceled.");
        else if (!problem)
            why = Texts::tr("The print server did not say which job it has made.");
        const std::optional<int> job = findJob(another(), m_request.printer, token);
        if (!job)
            return outcome(kind,
                           Texts::tr("%1 Nothing was printed, but a job without a document "
                                     "may be at the print server. It could not be looked "
                                     "for: %2")
                               .arg(why, m_another->problem().text(m_worker.context().address)));
        if (*job == 0)
            return outcome(kind, canceled ? why : nothingPrinted(why));
        m_job = *job;
        return withdraw(kind, why);
    }

    std::optional<JobOutcome> whyNotToSend()
    {
        if (m_request.earlierJob > 0) {
            const auto earlier = lookUpJob(*m_connection, m_request.printer, m_request.earlierJob);
            if (!earlier && m_connection->problem().kind != ServerProblem::Kind::NotFound)
                return failed(Texts::tr("%1 Whether job %2 of the earlier try was printed is not "
                                        "known yet, so nothing was sent again.")
                                  .arg(whatIsWrong(), QString::number(m_request.earlierJob)));
            const bool mayPrint = earlier && (earlier->state == IPP_JSTATE_COMPLETED ||
                                              (!earlier->isOver() && earlier->documents != 0));
            if (mayPrint)
                return JobOutcome{JobOutcome::Kind::AlreadyThere, m_request.earlierJob,
                                  whereTheEarlierJobIs(*earlier).arg(m_request.earlierJob)};
        }
        if (m_request.printer.origin != PrinterOrigin::Queue)
            return std::nullopt;
        const QueueDetails now =
            lookForNewPpd(*m_connection, m_request.printer, m_request.ppdLastModified);
        switch (now.state) {
        case QueueDetails::Ppd::Unchanged:
            return std::nullopt;
        case QueueDetails::Ppd::New:
            if (now.ppd == openedPpd())
                return std::nullopt; // installed once more, or its queue was
            return printerChanged();
        case QueueDetails::Ppd::None:
            if (m_request.ppdLastModified == 0)
                return std::nullopt;
            return printerChanged();
        case QueueDetails::Ppd::Unknown:
            break;
        }
        if (m_worker.isCanceled())
            return outcome(JobOutcome::Kind::Canceled, Texts::tr("Printing was canceled."));
        return failed(notCreated());
    }

    JobOutcome printerChanged() const
    {
        return outcome(JobOutcome::Kind::PrinterChanged,
                       Texts::tr("The options of the printer “%1” have changed at its server. "
                                 "Nothing was printed.")
                           .arg(printerName()));
    }

    static QString whereTheEarlierJobIs(const JobStatus &job)
    {
        if (job.state == IPP_JSTATE_COMPLETED)
            return Texts::tr("Job %1 of the earlier try has been printed.");
        if (job.state == IPP_JSTATE_HELD)
            return Texts::tr("Job %1 of the earlier try is held in the queue.");
        if (job.state == IPP_JSTATE_STOPPED)
            return Texts::tr("Job %1 of the earlier try is stopped in the queue.");
        return Texts::tr("Job %1 of the earlier try is in the queue and will be printed.");
    }

    QByteArray openedPpd() const
    {
        QFile file(m_request.ppdPath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool needsCredentials() const
    {
        const QStringList &wanted = m_request.printer.authInfo;
        return wanted.contains(QLatin1StringView("username")) ||
               wanted.contains(QLatin1StringView("password"));
    }

    QString realmOfDevice() const
    {
        return QStringLiteral("%1 %2").arg(m_worker.context().address.argument(),
                                           m_request.printer.uri);
    }

    std::optional<Credentials> credentialsForDevice()
    {
        const auto &store = m_worker.context().credentials;
        if (!needsCredentials() || !store)
            return std::nullopt;
        const ServerAddress &address = m_worker.context().address;
        return store
            ->ask(realmOfDevice(),
                  {address, QString::fromUtf8(cupsUser()),
                   address.isLocal() || address.encryption == HTTP_ENCRYPTION_REQUIRED ||
                       address.encryption == HTTP_ENCRYPTION_ALWAYS,
                   true},
                  [this] { return m_worker.isCanceled(); })
            .credentials;
    }

    JobOutcome sendAndFollow(QFile &file)
    {
        const qint64 total = file.size();
        m_report({JobProgress::Stage::Sending, m_job, 0, 0, total});
        const bool sent =
            sendDocument(*m_connection, m_request.printer, m_job, m_document.format,
                         m_document.title, file, [&](qint64 bytes) {
                             m_report({JobProgress::Stage::Sending, m_job, 0, bytes, total});
                         });
        const bool mayHaveAll = sent || m_connection->problem().mayPass() ||
                                m_connection->problem().kind == ServerProblem::Kind::Canceled;
        m_whole = mayHaveAll && m_connection->documentWasSent();
        if (sent)
            return confirmAndFollow();
        if (m_worker.isCanceled())
            return withdraw(JobOutcome::Kind::Canceled, Texts::tr("Printing was canceled."),
                            m_whole);
        const QString problem = whatIsWrong();
        if (m_whole)
            return findOut(problem);
        return withdraw(JobOutcome::Kind::Failed, problem);
    }

    // Takes back a job that is not to be printed, and says whether that worked.
    JobOutcome withdraw(JobOutcome::Kind kind, const QString &why, bool mayHavePrinted = false)
    {
        if (cancelJob(another(), m_request.printer, m_job)) {
            if (mayHavePrinted) {
                const auto status = lookUpJob(*m_another, m_request.printer, m_job);
                mayHavePrinted = !status || status->begun;
            }
            return outcome(
                kind, mayHavePrinted
                          ? Texts::tr("%1 Job %2 was canceled; pages that the printer has already "
                                      "may still come out.")
                                .arg(why, jobName())
                          : Texts::tr("%1 Job %2 was canceled; nothing was printed.")
                                .arg(why, jobName()));
        }
        if (m_another->problem().kind == ServerProblem::Kind::Refused ||
            m_another->problem().kind == ServerProblem::Kind::NotFound) {
            // It is over already, one way or the other, or it is somebody else's business.
            const ServerProblem refusal = m_another->problem();
            const auto status = lookUpJob(*m_another, m_request.printer, m_job);
            if (status && status->isOver())
                return ended(*status);
            if (m_isComplete)
                return lostSight(refusal);
        }
        const QString whyNot = m_another->problem().text(m_worker.context().address);
        if (m_whole && kind == JobOutcome::Kind::Canceled) // it would be said to be, and not to be
            return outcome(JobOutcome::Kind::Unknown,
                           Texts::tr("Job %1 could not be canceled and may still be printed. %2")
                               .arg(jobName(), whyNot));
        if (m_whole)
            return outcome(JobOutcome::Kind::Unknown,
                           Texts::tr("%1 Job %2 could not be canceled and may still be printed. %3")
                               .arg(why, jobName(), whyNot));
        return outcome(JobOutcome::Kind::Failed,
                       Texts::tr("%1 Job %2 may still be at the print server, without its whole "
                                 "document. It could not be canceled: %3")
                           .arg(why, jobName(), whyNot));
    }

    // The document was sent, and then the server went silent: it may have the job or not.
    JobOutcome findOut(const QString &problem)
    {
        for (int i = 0; i < kLookUpsAfterFailure; ++i) {
            const auto status = lookUpJob(another(), m_request.printer, m_job);
            if (status) {
                m_connection = m_another.get();
                if (status->documents == 0 && !status->isOver()) {
                    m_whole = false;
                    return withdraw(JobOutcome::Kind::Failed, problem);
                }
                return follow(status);
            }
            if (m_another->problem().kind == ServerProblem::Kind::NotFound)
                return failed(Texts::tr("%1 The print server does not know job %2 any more. It was "
                                        "probably not printed.")
                                  .arg(problem, jobName()));
            if (!m_worker.sleep(kLookUpInterval))
                break;
        }
        return outcome(JobOutcome::Kind::Unknown,
                       Texts::tr("%1 The document had been sent, so job %2 may be printed or not. "
                                 "Printing again looks for it first.")
                           .arg(problem, jobName()));
    }

    JobOutcome confirmAndFollow()
    {
        const auto status = lookUpJob(*m_connection, m_request.printer, m_job);
        if (status)
            return follow(*status);
        if (m_worker.isCanceled())
            return withdraw(JobOutcome::Kind::Canceled, Texts::tr("Printing was canceled."), true);
        // It was taken, by a server that forgets a job as soon as that is over.
        if (m_connection->problem().kind == ServerProblem::Kind::NotFound)
            return lostSight(m_connection->problem());
        return findOut(whatIsWrong());
    }

    JobOutcome follow(std::optional<JobStatus> status)
    {
        m_isComplete = true;
        for (;;) {
            if (m_worker.isCanceled())
                return canceledOrLeftAlone();
            if (!status)
                status = lookUpAgain();
            if (!status)
                return m_worker.isCanceled() ? canceledOrLeftAlone()
                                             : lostSight(m_connection->problem());
            if (status->isOver())
                return ended(*status);
            const JobProgress progress = progressOf(*status);
            m_report(progress);
            if (status->state == IPP_JSTATE_STOPPED)
                return outcome(
                    JobOutcome::Kind::Stopped,
                    withMessage(Texts::tr("Job %1 was stopped. It is still in the queue, where it "
                                          "can be released or canceled.")
                                    .arg(jobName()),
                                status->message));
            if (isHeldForLogIn(*status) && needsCredentials())
                return notLetIn();
            if (status->state == IPP_JSTATE_HELD)
                return outcome(JobOutcome::Kind::InQueue,
                               withMessage(Texts::tr("Job %1 is held in the queue “%2”.")
                                               .arg(jobName(), printerName()),
                                           status->message));
            if (!m_request.follow)
                return inQueue(progress);
            if (!m_worker.sleep(kLookUpInterval))
                return canceledOrLeftAlone();
            status = lookUpJob(*m_connection, m_request.printer, m_job);
        }
    }

    // One answer that does not come says little about a job that its server has: it is asked for
    // again, after longer and longer pauses, for as long as a server is waited for.
    std::optional<JobStatus> lookUpAgain()
    {
        const auto enough =
            std::chrono::steady_clock::now() + m_worker.context().patience.answering;
        for (auto pause = kLookUpInterval;; pause *= 2) {
            const ServerProblem &problem = m_connection->problem();
            if (!problem.mayPass() || std::chrono::steady_clock::now() >= enough ||
                !m_worker.sleep(pause))
                return std::nullopt;
            if (const auto status = lookUpJob(*m_connection, m_request.printer, m_job))
                return status;
        }
    }

    // Whoever follows a job no longer does not end it.
    JobOutcome canceledOrLeftAlone()
    {
        if (m_worker.isLeftAlone())
            return inQueue({});
        return withdraw(JobOutcome::Kind::Canceled, Texts::tr("Printing was canceled."), true);
    }

    static bool isHeldForLogIn(const JobStatus &status)
    {
        return status.state == IPP_JSTATE_HELD &&
               status.reasons.contains(QLatin1StringView("cups-held-for-authentication"));
    }

    // What was given for the device was wrong; the next try asks again, and sends another job.
    JobOutcome notLetIn()
    {
        if (const auto &store = m_worker.context().credentials; store && m_forDevice)
            store->forget(realmOfDevice(), *m_forDevice);
        return withdraw(JobOutcome::Kind::Failed,
                        Texts::tr("The printer “%1” does not accept this user and password.")
                            .arg(printerName()));
    }

    JobOutcome inQueue(const JobProgress &progress) const
    {
        if (progress.stage == JobProgress::Stage::Stopped)
            return outcome(JobOutcome::Kind::InQueue,
                           withMessage(Texts::tr("Job %1 waits in the queue “%2”, which is "
                                                 "stopped.")
                                           .arg(jobName(), printerName()),
                                       progress.message));
        return outcome(JobOutcome::Kind::InQueue,
                       Texts::tr("Job %1 is in the queue “%2”.").arg(jobName(), printerName()));
    }

    JobProgress progressOf(const JobStatus &status) const
    {
        JobProgress progress{
            JobProgress::Stage::Waiting, m_job, status.pages, 0, 0, status.message};
        if (status.state == IPP_JSTATE_PROCESSING)
            progress.stage = JobProgress::Stage::Printing;
        else if (status.state == IPP_JSTATE_HELD)
            progress.stage = JobProgress::Stage::Held;
        else if (status.printerStopped || status.state == IPP_JSTATE_STOPPED)
            progress.stage = JobProgress::Stage::Stopped;
        return progress;
    }

    JobOutcome lostSight(const ServerProblem &problem) const
    {
        if (problem.kind == ServerProblem::Kind::NotFound)
            return outcome(JobOutcome::Kind::InQueue,
                           Texts::tr("Job %1 has left the queue “%2”, whose server keeps no record "
                                     "of it.")
                               .arg(jobName(), printerName()));
        return outcome(JobOutcome::Kind::Unknown,
                       Texts::tr("Job %1 was handed over completely. %2 So whether it has been "
                                 "printed is not known.")
                           .arg(jobName(), problem.text(m_worker.context().address)));
    }

    JobOutcome ended(const JobStatus &status) const
    {
        switch (status.state) {
        case IPP_JSTATE_COMPLETED:
            return outcome(JobOutcome::Kind::Printed,
                           Texts::tr("Printed on “%1” as job %2.").arg(printerName(), jobName()));
        case IPP_JSTATE_CANCELED:
            return outcome(JobOutcome::Kind::Canceled,
                           m_worker.isCanceled()
                               ? Texts::tr("Printing was canceled.")
                               : Texts::tr("Job %1 was canceled at the printer or its server.")
                                     .arg(jobName()));
        default:
            return failed(withMessage(
                Texts::tr("Job %1 failed: the printer or its server gave it up.").arg(jobName()),
                status.message));
        }
    }
};

} // namespace

JobOutcome handOver(ServerWorker &worker, const ServerJobRequest &request, const Document &document,
                    const std::function<void(const JobProgress &)> &report)
{
    return Handover(worker, request, document, report).run();
}

} // namespace corvana
