#pragma once

#include <atomic>
#include <chrono>
#include <mutex>
#include <optional>

#include <QByteArray>
#include <QList>

#include "tests/support/cups/FaultyServer.h"

namespace corvana::test {

/// One thing that goes wrong.
struct Fault
{
    enum class Kind {
        CloseInDocument,
        StallInDocument,
        SwallowResponse,
        CloseBeforeResponse,
        DelayResponse,
        AskForPassword,
        AnswerHttp,
        AnswerIpp,
        AnswerInPieces,
        AskForEncryption,
        None, ///< takes the place of an older fault
    };
    Kind kind = Kind::SwallowResponse;
    int operation = FaultyServer::anyOperation;
    int times = FaultyServer::always;
    qint64 bytes = 0;         ///< of the document, for those in it; of a piece
    int status = 0;           ///< HTTP or IPP
    QByteArray credentials{}; ///< "user:password"
    std::chrono::milliseconds pause{0};
    int pieces = FaultyServer::always;

    /// Whether the request goes no further, but is answered here.
    bool isAnswer() const;
};

/// What a test tells a FaultyServer, and what that has seen.
/// Thread: every function may be called from any thread.
class FaultScript
{
public:
    explicit FaultScript(FaultyServer::Manner manner) : m_manner(manner) {}

    FaultyServer::Manner manner() const;
    void setManner(FaultyServer::Manner manner);
    void add(const Fault &fault);
    void clear();
    /// The fault that meets a request, with one time less left. Of a request whose operation is not
    /// known yet, only faults for all operations are told.
    std::optional<Fault> take(const SeenRequest &request, bool operationIsKnown);
    /// Whether some fault asks for these credentials.
    bool knows(const QByteArray &credentials) const;
    void record(const SeenRequest &request);
    QList<SeenRequest> requests() const;

    std::atomic<int> accepted = 0;
    std::atomic<int> open = 0;
    std::atomic<int> faultsMade = 0;
    std::atomic<int> passwordQuestions = 0;
    std::atomic<int> upgrades = 0;

private:
    mutable std::mutex m_mutex;
    FaultyServer::Manner m_manner;
    QList<Fault> m_faults;
    QList<SeenRequest> m_requests;
};

} // namespace corvana::test
