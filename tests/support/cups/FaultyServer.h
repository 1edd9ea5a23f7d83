#pragma once

#include <chrono>
#include <memory>

#include <QByteArray>
#include <QList>
#include <QString>

#include <cups/cups.h>

namespace corvana::test {

/// A request that arrived at a FaultyServer.
struct SeenRequest
{
    QByteArray method{};
    QByteArray path{};
    /// 0 for what is no IPP, such as the GET of a PPD, and where a fault for all operations
    /// answered before the client had sent it (libcups waits for "100 Continue").
    int operation = 0;
    int requestId = 0;
    bool isAuthorized = false; ///< carried an Authorization header
    QByteArray credentials{};  ///< "user:password" of a Basic one
};

/// A print server that misbehaves on purpose. It listens on a free port of 127.0.0.1 in a thread of
/// its own, so that a test may block in libcups. In front of another server it passes everything
/// on, but for the faults that it has been told to make.
///
/// A fault is for one IPP operation, or for every request with `anyOperation`. The latest fault
/// that fits a request counts. `times` says how many requests it meets; then it is gone.
/// Thread: all functions may be called from any thread, at any time; they take effect for the
/// following connections and requests.
class FaultyServer
{
public:
    enum class Manner {
        Passes,       ///< on to the server behind it, with the faults below
        NeverAnswers, ///< accepts and reads, and that is all
        Babbles,      ///< answers what is neither HTTP nor IPP
        HangsUp,      ///< accepts and closes at once
        Refuses,      ///< the port is closed
    };
    static constexpr int anyOperation = -1;
    static constexpr int always = -1;

    /// `upstreamPort`: where on 127.0.0.1 the real server listens; it need not run yet.
    explicit FaultyServer(quint16 upstreamPort = 0, Manner manner = Manner::Passes);
    ~FaultyServer();
    FaultyServer(const FaultyServer &) = delete;
    FaultyServer &operator=(const FaultyServer &) = delete;

    /// "127.0.0.1:PORT"; the same in all manners.
    QString server() const;
    quint16 port() const;

    void setManner(Manner manner);
    /// Another server stands behind the connections that follow, after so many more to the one that
    /// stands there now; those that are open keep theirs.
    void setUpstream(quint16 port, int connectionsBefore = 0);
    /// Closes every open connection, as a crash would.
    void dropConnections();
    int openConnections() const;
    /// How many connections were accepted so far.
    int acceptedConnections() const;

    /// Cuts the connection after so many bytes of the document behind the IPP attributes. The
    /// real server sees the request end there.
    void closeAfterDocumentBytes(qint64 bytes, int operation = IPP_OP_SEND_DOCUMENT,
                                 int times = always);
    /// Passes so many bytes of the document, reads no more, and leaves the connection open.
    /// A client has to send more than sockets hold (some megabytes) to notice.
    void stallInDocument(qint64 bytes, int operation = IPP_OP_SEND_DOCUMENT, int times = always);
    /// Takes the complete request and passes it, but keeps the answer, and the connection open.
    void swallowResponse(int operation, int times = always);
    /// Takes the complete request, passes it, and closes when the answer would come.
    void closeBeforeResponse(int operation, int times = always);
    /// Keeps the answer until releaseResponses().
    void delayResponse(int operation, int times = always);
    void releaseResponses();
    /// Answers 401 until a request carries these credentials, and does not pass such requests.
    void askForPassword(const QString &user, const QString &password, int operation = anyOperation);
    /// Answers an HTTP status such as 403 or 503 itself.
    void answerHttp(int status, int operation, int times = always);
    /// Answers an IPP status such as IPP_STATUS_ERROR_BUSY itself, with nothing else.
    void answerIpp(ipp_status_t status, int operation, int times = always);
    /// Answers itself with an IPP message in so many pieces, an attribute of about so many bytes
    /// each, with a pause behind each one. `always`: it has no end, and without a pause it comes as
    /// fast as it is taken.
    void answerInPieces(int operation, int bytes, std::chrono::milliseconds pause,
                        int pieces = always);
    /// Answers 426 to a request that comes in plain. A client that then asks for the upgrade speaks
    /// TLS with the server behind; what it says from there on passes unseen and without faults.
    void askForEncryption(int operation = anyOperation, int times = always);
    /// The faults that were made for this operation begin after so many more requests.
    void letPass(int operation, int times);
    void clearFaults();

    /// Requests in the order in which their operation became known.
    QList<SeenRequest> requests() const;
    int count(int operation) const;
    /// Requests that a fault has met so far. A delayed or swallowed one counts when its answer has
    /// come from the real server, so that a test knows that the server has dealt with it.
    int faultsMade() const;
    /// How often a password was asked for.
    int passwordQuestions() const;
    /// Connections that went on in TLS.
    int upgrades() const;

private:
    class Worker;
    std::unique_ptr<Worker> m_worker;
};

} // namespace corvana::test
