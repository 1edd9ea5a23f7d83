#include "dialog/job/Handover.h"

#include <algorithm>
#include <memory>

#include <QCoreApplication>
#include <QFile>

#include "dialog/job/DeviceLogIn.h"
#include "dialog/job/EarlierJob.h"
#include "dialog/job/FollowedJob.h"
#include "dialog/job/FormerDefaults.h"
#include "dialog/job/JobRequests.h"
#include "dialog/printers/QueueRequests.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = JobOutcome::Kind;

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

bool isHeldForLogIn(const JobStatus &status)
{
    return status.state == IPP_JSTATE_HELD &&
           status.reasons.contains("cups-held-for-authentication"_L1);
}

// One job, from the question whether to send it at all to its end. What it comes to is put into
// words by HandoverOutcomes.
class Handover
{
public:
    Handover(ServerWorker &worker, const ServerJobRequest &request,
             const QList<Document> &documents,
             const std::function<void(const JobProgress &)> &report)
        : m_worker(worker), m_request(request), m_documents(documents), m_report(report),
          m_connection(&worker.connection()), m_logIn(worker, request.printer),
          m_outcomes(request.printer, request.mayBeEmpty),
          m_followed(request.printer, request.follow, m_outcomes)
    {
    }

    JobOutcome run()
    {
        JobOutcome outcome = createAndFollow();
        if (outcome.job > 0 && outcome.job == job())
            outcome.documents = documentCount();
        return outcome;
    }

private:
    JobOutcome createAndFollow()
    {
        // Each is opened when its turn comes: there may be more of them than files can be open.
        for (const Document &document : m_documents) {
            QFile file(document.path);
            if (!file.open(QIODevice::ReadOnly))
                return m_outcomes.cannotBeRead(document.title, file.errorString());
            m_totalSize += file.size();
        }
        if (std::optional<JobOutcome> reason = whyNotToSend())
            return *reason;
        if (!m_logIn.ask())
            return m_outcomes.noCredentials();
        const QString token = newJobToken();
        const std::optional<int> job =
            createJob(*m_connection, m_request.printer, ticketToSend(m_request, *m_connection),
                      token, m_logIn.credentials());
        if (!job)
            return withdrawNumberless(token);
        m_outcomes.setJob(*job);
        m_followed.begin(*m_connection);
        const JobOutcome outcome = sendAndFollow();
        m_followed.end(*m_connection);
        return outcome;
    }

    ServerWorker &m_worker;
    const ServerJobRequest &m_request;
    const QList<Document> &m_documents;
    const std::function<void(const JobProgress &)> &m_report;
    ServerConnection *m_connection;
    std::unique_ptr<ServerConnection> m_another; // after the first one was lost
    DeviceLogIn m_logIn;
    HandoverOutcomes m_outcomes;
    FollowedJob m_followed;
    qint64 m_totalSize = 0;    // of the documents
    bool m_hasPart = false;    // the server may have some of the documents
    bool m_whole = false;      // the server may have all of them
    bool m_isComplete = false; // the server has all of the job

    int job() const { return m_outcomes.job(); }
    int documentCount() const { return static_cast<int>(m_documents.size()); }
    QString inWords(const ServerProblem &problem) const
    {
        return problem.text(m_worker.context().address);
    }
    QString whatIsWrong() const { return inWords(m_connection->problem()); }

    // A connection that no cancellation touches, for what has to be put in order. Nobody is asked
    // for a password for that: nothing could end such a question.
    ServerConnection &another()
    {
        ServerContext context = m_worker.context();
        context.mayAsk = false;
        context.patience.connecting = std::min(context.patience.connecting, kPatienceAfterFailure);
        context.patience.answering = std::min(context.patience.answering, kPatienceAfterFailure);
        const bool isFollowed = m_connection == m_another.get();
        m_another = std::make_unique<ServerConnection>(context, nullptr);
        if (isFollowed) // on the one that has just gone
            m_connection = m_another.get();
        return *m_another;
    }

    // Takes back a job that the server may have made without its number getting here. It has no
    // document, but would stand in the queue until its server gives it up.
    JobOutcome withdrawNumberless(const QString &token)
    {
        const ServerProblem problem = m_connection->problem();
        const bool canceled = m_worker.isCanceled();
        const bool mayBeThere =
            m_connection->requestWasSent() &&
            (!problem || problem.mayPass() || problem.kind == ServerProblem::Kind::Canceled);
        if (!mayBeThere)
            return canceled ? m_outcomes.canceledBefore() : notCreated(problem);
        const auto kind = canceled ? Kind::Canceled : Kind::Failed;
        QString why = whatIsWrong();
        if (canceled)
            why = Texts::tr("Printing was canceled.");
        else if (!problem)
            why = Texts::tr("The print server did not say which job it has made.");
        const std::optional<int> job = findJob(another(), m_request.printer, token);
        if (!job)
            return m_outcomes.mayBeThereWithoutNumber(kind, why, inWords(m_another->problem()));
        if (*job == 0)
            return canceled ? m_outcomes.canceledBefore() : m_outcomes.nothingPrinted(why);
        m_outcomes.setJob(*job);
        return withdraw(kind, why);
    }

    std::optional<JobOutcome> whyNotToSend()
    {
        if (std::optional<JobOutcome> earlier = whatBecameOfEarlierJob(m_worker, m_request))
            return earlier;
        if (m_request.goesOn || m_request.printer.origin != PrinterOrigin::Queue)
            return std::nullopt;
        const QueueDetails now = fetchPpdOnly(*m_connection, m_request.printer);
        const PpdCopy &opened = *m_request.ppd;
        switch (now.state) {
        case QueueDetails::Ppd::Read:
            if (!opened.isWritten && now.ppdHash == opened.hash)
                return whetherDefaultsChanged();
            return m_outcomes.printerChanged();
        case QueueDetails::Ppd::None:
            return opened.isWritten ? whetherDefaultsChanged() : m_outcomes.printerChanged();
        case QueueDetails::Ppd::Unknown:
            break;
        }
        if (m_worker.isCanceled())
            return m_outcomes.canceledBefore();
        return notCreated(m_connection->problem());
    }

    // What the server would add to the job without anybody having seen it. One that does not say is
    // asked for the job next, and says then what is wrong.
    std::optional<JobOutcome> whetherDefaultsChanged()
    {
        if (!m_request.defaults)
            return std::nullopt;
        const auto now = fetchDefaults(*m_connection, m_request.printer);
        if (m_worker.isCanceled())
            return m_outcomes.canceledBefore();
        return now && now != m_request.defaults ? std::optional(m_outcomes.printerChanged())
                                                : std::nullopt;
    }

    JobOutcome notCreated(const ServerProblem &problem)
    {
        const QString reason = problem.status == IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS
                                   ? whyNotAccepting(*m_connection, m_request.printer)
                                   : QString();
        return m_outcomes.notCreated(problem, inWords(problem), reason);
    }

    JobOutcome sendAndFollow()
    {
        qint64 before = 0;
        for (int i = 0; i < documentCount(); ++i) {
            const Document &document = m_documents.at(i);
            QFile file(document.path);
            if (!file.open(QIODevice::ReadOnly))
                return withdraw(
                    Kind::Failed,
                    Texts::tr("%1 cannot be read: %2.").arg(document.title, file.errorString()));
            const auto reportSent = [&](qint64 bytes) {
                m_report({JobProgress::Stage::Sending, job(), 0, before + bytes, m_totalSize});
            };
            reportSent(0);
            const bool isLast = i == documentCount() - 1;
            if (!sendDocument(*m_connection, m_request.printer, job(),
                              {document.format, document.title, file, isLast}, reportSent))
                return notSent(isLast);
            m_hasPart = true;
            before += file.size();
        }
        m_whole = true;
        return confirmAndFollow();
    }

    JobOutcome notSent(bool wasLast)
    {
        const bool mayHaveIt = (m_connection->problem().mayPass() ||
                                m_connection->problem().kind == ServerProblem::Kind::Canceled) &&
                               m_connection->documentWasSent();
        m_whole = mayHaveIt && wasLast;
        m_hasPart = m_hasPart || mayHaveIt;
        if (m_worker.isCanceled())
            return withdrawCanceled(m_whole);
        const QString problem = whatIsWrong();
        if (m_whole)
            return findOut(problem);
        return withdraw(Kind::Failed, problem);
    }

    JobOutcome withdrawCanceled(bool mayHavePrinted)
    {
        return withdraw(Kind::Canceled, Texts::tr("Printing was canceled."), mayHavePrinted);
    }

    // Takes back a job that is not to be printed, and says whether that worked.
    JobOutcome withdraw(Kind kind, const QString &why, bool mayHavePrinted = false)
    {
        if (cancelJob(another(), m_followed.queue(), job())) {
            if (mayHavePrinted) {
                const auto status = m_followed.lookUp(*m_another);
                mayHavePrinted = !status || status->begun;
            }
            return m_outcomes.withdrawn(kind, why, mayHavePrinted);
        }
        if (m_another->problem().kind == ServerProblem::Kind::Refused ||
            m_another->problem().kind == ServerProblem::Kind::NotFound) {
            // It is over already, one way or the other, or it is somebody else's business.
            const ServerProblem refusal = m_another->problem();
            const auto status = m_followed.lookUp(*m_another);
            if (status && status->isOver())
                return ended(*status);
            if (m_isComplete)
                return m_outcomes.lostSight(refusal, inWords(refusal));
        }
        if (m_hasPart && !m_whole)
            return m_outcomes.partNotWithdrawn(why, inWords(m_another->problem()));
        return m_outcomes.notWithdrawn(kind, why, inWords(m_another->problem()), m_whole);
    }

    // A server may begin a job anew after a crash, with the documents that it has got by then.
    JobOutcome ended(const JobStatus &status) const
    {
        if (status.state == IPP_JSTATE_COMPLETED && status.lacksDocuments(documentCount()))
            return m_outcomes.endedInPart(status, documentCount());
        return m_outcomes.ended(status, m_worker.isCanceled());
    }

    // The documents were sent, and then the server went silent: it may have the job or not.
    JobOutcome findOut(const QString &problem)
    {
        for (int i = 0; i < kLookUpsAfterFailure; ++i) {
            const auto status = m_followed.lookUp(another());
            if (status) {
                m_connection = m_another.get();
                if (status->lacksDocuments(documentCount()) && !status->isOver()) {
                    m_whole = false;
                    m_hasPart = status->documents > 0;
                    return withdraw(Kind::Failed, problem);
                }
                return follow(status);
            }
            if (m_another->problem().kind == ServerProblem::Kind::NotFound)
                return m_outcomes.notKnownAnyMore(problem);
            if (!m_worker.sleep(kLookUpInterval))
                break;
        }
        return m_outcomes.mayBePrinted(problem);
    }

    JobOutcome confirmAndFollow()
    {
        const auto status = m_followed.lookUp(*m_connection);
        if (status)
            return follow(*status);
        if (m_worker.isCanceled())
            return withdrawCanceled(true);
        // It was taken, by a server that forgets a job as soon as that is over.
        if (m_connection->problem().kind == ServerProblem::Kind::NotFound)
            return m_request.follow ? m_outcomes.lostSight(m_connection->problem(), whatIsWrong())
                                    : m_outcomes.handedOver();
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
                return m_worker.isCanceled()
                           ? canceledOrLeftAlone()
                           : m_outcomes.lostSight(m_connection->problem(), whatIsWrong());
            if (status->isOver() || !status->isKnown())
                return ended(*status);
            const JobProgress progress = m_followed.progress(*status);
            m_report(progress);
            if (status->state == IPP_JSTATE_STOPPED)
                return m_outcomes.stopped(*status);
            if (isHeldForLogIn(*status) && m_logIn.isNeeded()) {
                if (!logInOnceMore())
                    return notLetIn();
                status = m_followed.lookUp(*m_connection);
                continue;
            }
            if (status->state == IPP_JSTATE_HELD)
                return m_outcomes.held(*status);
            if (!m_request.follow)
                return m_outcomes.inQueue(progress);
            if (!m_worker.sleep(kLookUpInterval))
                return canceledOrLeftAlone();
            m_followed.keepFollowing(*m_connection);
            status = m_followed.lookUp(*m_connection);
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
            if (const auto status = m_followed.lookUp(*m_connection))
                return status;
        }
    }

    // Whoever follows a job no longer does not end it.
    JobOutcome canceledOrLeftAlone()
    {
        if (m_worker.isLeftAlone())
            return m_outcomes.inQueue({});
        return withdrawCanceled(true);
    }

    // The server's user and password were tried for the device, and are not those: now the user is
    // asked.
    bool logInOnceMore()
    {
        if (!m_logIn.wasGuess())
            return false;
        m_logIn.forget();
        return m_logIn.ask() && m_logIn.credentials() &&
               authenticateJob(*m_connection, m_followed.queue(), job(), *m_logIn.credentials());
    }

    // What was given for the device was wrong; the next try asks again, and sends another job.
    JobOutcome notLetIn()
    {
        m_logIn.forget();
        return withdraw(Kind::Failed, m_outcomes.credentialsRefused());
    }
};

} // namespace

JobOutcome handOver(ServerWorker &worker, const ServerJobRequest &request,
                    const QList<Document> &documents,
                    const std::function<void(const JobProgress &)> &report)
{
    return Handover(worker, request, documents, report).run();
}

} // namespace corvana
