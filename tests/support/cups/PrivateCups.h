#pragma once

#include <memory>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cups/cups.h>

#include "tests/support/cups/CaptureDevice.h"
#include "tests/support/cups/ServerProcess.h"

namespace corvana::test {

/// A job as the server knows it, asked with IPP by the test itself.
struct KnownJob
{
    int id = 0;
    ipp_jstate_t state = IPP_JSTATE_PENDING;
    QString name;
    QString user;
    QString queue;
    QStringList reasons;
};

/// How a private server is set up.
struct CupsSettings
{
    enum class Encryption {
        IfRequested, ///< plain, and TLS for a client that begins with it or asks for the upgrade
        Always,      ///< nothing but TLS from the first byte on (ipps)
    };
    /// With TLS the server makes itself a self-signed certificate. A server on the loopback never
    /// demands the upgrade from plain (426); FaultyServer::askForEncryption does.
    Encryption encryption = Encryption::IfRequested;
    /// Operations for which the policy asks for a password (401) that no client can know. No policy
    /// denies anything to the loopback (403); FaultyServer::answerHttp does.
    QList<ipp_op_t> authenticated;
    /// Further lines of cupsd.conf.
    QByteArray directives;
};

/// What an administrator says about a queue.
struct QueueSettings
{
    QString description{};
    QString location{};
    /// Defaults, "QXMediaType=Thick", as lpadmin -o takes them.
    QStringList options{};
    /// Who may print, "deny:lisa", as lpadmin -u takes it. Empty: everybody.
    QString users{};
    /// Where jobs go. Empty: to capture(name).
    QString deviceUri{};
};

/// A CUPS server of the test's own: cupsd on a free port of 127.0.0.1, with everything it reads and
/// writes in one temporary folder. Works as root and as any user. Nobody has to authenticate, jobs
/// show everything to everybody, a job whose backend fails is aborted, and configuration is
/// written at once. It knows the scheme `capture` and all backends and filters of the system.
///
/// Errors: whatever cannot be set up throws std::runtime_error with the end of the server's log, so
/// that a test fails where the cause is.
class PrivateCups
{
public:
    /// Does not start it yet.
    explicit PrivateCups(const CupsSettings &settings = {});
    /// Stops the server and removes the folder.
    ~PrivateCups();
    PrivateCups(const PrivateCups &) = delete;
    PrivateCups &operator=(const PrivateCups &) = delete;

    /// Whether this machine has cupsd and lpadmin; a test without them is skipped.
    static bool isAvailable();

    /// Returns when it answers. Queues, jobs and port outlast a stop.
    void start();
    void stop();
    /// As a crash would: SIGKILL, and nothing is written.
    void kill();
    void restart();
    bool isRunning() { return m_process.isRunning(); }

    /// "127.0.0.1:PORT", for CUPS_SERVER or cupsSetServer. The same before and after a restart.
    QString server() const { return m_port.server(); }
    quint16 port() const { return m_port.number(); }
    /// "ipp://127.0.0.1:PORT/printers/NAME", or "ipps:" with Encryption::Always.
    QString queueUri(const QString &name) const;

    /// Adds or changes a queue: enabled, taking jobs, not shared.
    void addQueue(const QString &name, const QString &ppdPath, const QueueSettings &settings = {});
    /// A queue without PPD: data passes unchanged.
    void addRawQueue(const QString &name, const QueueSettings &settings = {});
    /// A queue as the system sets it up for an IPP Everywhere printer that answers at `deviceUri`:
    /// its PPD is written from what the printer says of itself.
    void addEverywhereQueue(const QString &name, const QString &deviceUri);
    /// A class of queues that exist already.
    void addClass(const QString &name, const QStringList &members);
    void removeQueue(const QString &name);
    void setPpd(const QString &name, const QString &ppdPath);
    void setDefault(const QString &name);
    /// The reason becomes the queue's state message.
    void stopQueue(const QString &name, const QString &reason = {});
    void startQueue(const QString &name);
    void rejectJobs(const QString &name, const QString &reason = {});
    void acceptJobs(const QString &name);

    /// Jobs of a queue in the order of their numbers, finished ones included; all queues' without
    /// a name.
    QList<KnownJob> jobs(const QString &name = {}) const;
    /// A job by its number; with id 0 when there is none.
    KnownJob job(int id) const;
    void cancelJob(int id);

    /// Where the jobs of a queue without another device arrive. Give `capture(name).pages(3).uri()`
    /// as device URI for a printer that behaves in a certain way.
    CaptureDevice capture(const QString &name) const;

    QString errorLog() const;
    QString accessLog() const;
    /// The folder of the whole server.
    QString folder() const { return m_folder.path(); }

private:
    void makeFolders() const;
    void installPrograms() const;
    void writeConfiguration() const;
    void lpadmin(const QStringList &arguments) const;
    void setUpQueue(const QString &name, const QStringList &driver,
                    const QueueSettings &settings) const;
    using Answer = std::unique_ptr<ipp_t, void (*)(ipp_t *)>;
    /// Sends a request, which it deletes, over a connection of its own.
    Answer ask(ipp_t *request, const char *resource) const;
    void queueOperation(ipp_op_t operation, const QString &name, const QString &reason) const;
    [[noreturn]] void fail(const QString &what) const;

    CupsSettings m_settings;
    QTemporaryDir m_folder;
    LoopbackPort m_port;
    ServerProcess m_process;
    QStringList m_classes;
};

/// A PPD like `ppd`, whose documents go through a filter that reads them and then fails. The server
/// keeps such a job as "stopped", and the queue goes on.
QByteArray withFailingFilter(const QByteArray &ppd);
/// A PPD like `ppd`, that names a filter which this machine does not have.
QByteArray withMissingFilter(const QByteArray &ppd);

} // namespace corvana::test
