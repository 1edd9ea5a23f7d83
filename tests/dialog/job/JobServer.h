#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>

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
    bool begun = true; ///< something of it may have got to the printer
    const char *queue = nullptr; ///< that has it; null: does not say
    bool wantsLogIn = false;     ///< the device has not let it in
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
    /// Hangs up when it has the whole document, instead of an answer; the one of that number only
    /// (from 1), where it is given.
    void loseTheAnswerToTheDocument(int number = 0) { m_losesAnswerTo = number; }
    /// Refuses the document of that number.
    void refuseTheDocument(int number) { m_refuses = number; }
    /// Called in the server's thread when the document of a number has come.
    void whenADocumentComes(const std::function<void(int number)> &act) { m_act = act; }
    void refuseToCancel() { m_cancels = false; }
    void loseTheAnswerToTheCancellation() { m_losesCancellation = true; }
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
        NotAccepted, ///< for the reason "Toner is being changed."
    };
    void setCreation(Creation creation) { m_creation = creation; }
    void forgetTheQueue() { m_knowsQueue = false; }
    /// Lets clients subscribe, and says to those who have that the job has ended so. Another job
    /// has ended before it, in whatever way.
    void rememberTheEnd(const SaidOfJob &end)
    {
        const std::scoped_lock lock(m_mutex);
        m_end = end;
    }
    void setPpdStatus(int status) { m_ppdStatus = status; }
    /// The queue has this PPD.
    void setPpd(const QByteArray &ppd)
    {
        const std::scoped_lock lock(m_mutex);
        m_ppd = ppd;
        m_ppdStatus = 200;
    }

    /// Prints a document on its queue, which has no PPD. The server may not ask for a password.
    ServerJobRequest request(const Document &document) const;
    quint16 port() const { return m_server.port(); }
    /// Whether a worker is still there.
    bool isInUse() const { return m_server.openConnections() > 0; }
    int count(ipp_op_t operation) const { return m_server.count(operation); }
    QList<CannedRequest> requests() const { return m_server.requests(); }

private:
    CannedAnswer answer(const CannedRequest &request);
    CannedAnswer answerToGet();
    CannedAnswer answerToCreation(const CannedRequest &request);
    CannedAnswer listOfJobs();
    CannedAnswer answerToDocument();
    CannedAnswer answerToSubscriber(const CannedRequest &request);
    SaidOfJob afterCancel();
    SaidOfJob stateOf(int job);

    std::mutex m_mutex;
    QList<SaidOfJob> m_states{SaidOfJob()};
    SaidOfJob m_earlier;
    SaidOfJob m_afterCancel;
    static constexpr int kNone = -1;
    std::atomic<int> m_losesAnswerTo{kNone};
    std::atomic<int> m_refuses{kNone};
    std::atomic<int> m_documents{0};
    std::function<void(int)> m_act; // set before anything is sent
    std::optional<SaidOfJob> m_end;
    std::atomic<bool> m_losesAnswer{false};
    std::atomic<bool> m_cancels{true};
    std::atomic<bool> m_losesCancellation{false};
    std::atomic<int> m_ppdStatus{404};
    QByteArray m_ppd = kServersPpd;
    std::atomic<bool> m_knowsQueue{true};
    std::atomic<Creation> m_creation{Creation::Answered};
    QString m_token;       // in the server's thread
    CannedServer m_server; // the first to go
};

} // namespace corvana::test
