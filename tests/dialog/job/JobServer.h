#pragma once

#include <atomic>
#include <mutex>

#include <QList>
#include <QString>

#include "dialog/job/Handover.h"
#include "tests/support/cups/CannedServer.h"

namespace corvana::test {

/// The job that a JobServer makes, and one that it has had for longer.
inline constexpr int kJob = 8;
inline constexpr int kEarlierJob = 7;

/// The PPD of the queue, where its server says that it has one.
inline constexpr auto kServersPpd = "*PPD-Adobe: \"4.3\"\n";

/// What a server says of a job.
struct SaidOfJob
{
    int state = IPP_JSTATE_COMPLETED;
    int documents = 1; ///< -1: does not say
    ipp_status_t status = IPP_STATUS_OK;
    bool hangsUp = false;
};

/// A server of one queue and at most two jobs, which says of them what a test wants.
class JobServer
{
public:
    JobServer() : m_server([this](const CannedRequest &request) { return answer(request); }) {}

    /// Said of the job from now on: each once, and the last for good.
    void say(const QList<SaidOfJob> &states)
    {
        const std::scoped_lock lock(m_mutex);
        m_states = states;
    }
    void sayOfEarlierJob(const SaidOfJob &state)
    {
        const std::scoped_lock lock(m_mutex);
        m_earlier = state;
    }
    /// Hangs up when it has the whole document, instead of an answer.
    void loseTheAnswerToTheDocument() { m_losesAnswer = true; }
    void refuseToCancel() { m_cancels = false; }
    /// Said of the job as soon as it was to be canceled, whether or not that was done.
    void sayAfterCancel(const SaidOfJob &state)
    {
        const std::scoped_lock lock(m_mutex);
        m_afterCancel = state;
    }
    /// What becomes of a job that is to be created, and what is heard of it.
    enum class Creation {
        Answered,
        Numberless,
        Lost,
        LostAndListed,
        LostAndUnlistable,
        LostAndGuarded, ///< the list of jobs wants a password
        Refused,
    };
    void setCreation(Creation creation) { m_creation = creation; }
    void forgetTheQueue() { m_knowsQueue = false; }
    void setPpdStatus(int status) { m_ppdStatus = status; }

    /// Prints a document on its queue, which has no PPD. The server may not ask for a password.
    ServerJobRequest request(const Document &document) const;
    quint16 port() const { return m_server.port(); }
    /// Whether a worker is still there.
    bool isInUse() const { return m_server.openConnections() > 0; }
    int count(ipp_op_t operation) const { return m_server.count(operation); }
    QList<CannedRequest> requests() const { return m_server.requests(); }

private:
    CannedAnswer answer(const CannedRequest &request);
    CannedAnswer answerToCreation(const CannedRequest &request);
    CannedAnswer listOfJobs();
    SaidOfJob afterCancel();
    SaidOfJob stateOf(int job);

    std::mutex m_mutex;
    QList<SaidOfJob> m_states{SaidOfJob()};
    SaidOfJob m_earlier;
    SaidOfJob m_afterCancel;
    std::atomic<bool> m_losesAnswer{false};
    std::atomic<bool> m_cancels{true};
    std::atomic<int> m_ppdStatus{404};
    std::atomic<bool> m_knowsQueue{true};
    std::atomic<Creation> m_creation{Creation::Answered};
    QString m_token;       // in the server's thread
    CannedServer m_server; // the first to go
};

} // namespace corvana::test
