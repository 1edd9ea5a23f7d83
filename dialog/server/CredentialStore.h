#pragma once

#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <tuple>

#include <QList>
#include <QObject>
#include <QString>

#include "dialog/server/ServerAddress.h"

namespace corvana {

/// A user and a password. Lives in memory only, is written nowhere, and never appears in a log.
struct Credentials
{
    QString user;
    QString password;

    bool operator==(const Credentials &) const = default;
};

/// What a person is asked before a password is sent.
struct CredentialsQuestion
{
    ServerAddress server;
    QString user;           ///< who it would be, as far as is known
    bool encrypted = false; ///< whether others can read along
    bool forDevice = false; ///< the printer behind the queue wants them, not the server
};

/// Who wants a user and a password: a server, or a device behind one of its queues.
struct CredentialRealm
{
    CredentialRealm(const QString &serverArgument, const QString &deviceUri = {})
        : server(serverArgument), device(deviceUri)
    {
    }

    QString server; ///< as ServerAddress::argument() has it
    QString device; ///< empty for the server itself

    bool operator<(const CredentialRealm &other) const
    {
        return std::tie(server, device) < std::tie(other.server, other.device);
    }
};

/// Users and passwords for as long as the program runs, one for each server and each device, so
/// that nobody is asked twice. A server and the devices behind its queues mostly want the same
/// ones: what is known of one of them is tried for another one before anybody is asked. Workers ask
/// for them; the question is put on the GUI thread.
///
/// Thread: all operations but the construction and setQuestioner() from any thread.
class CredentialStore : public QObject
{
    Q_OBJECT

public:
    /// Answers a question, now or later, by calling `answer` once; with nothing when the user does
    /// not want to give any. Called on the GUI thread.
    using Answer = std::function<void(std::optional<Credentials>)>;
    using Questioner = std::function<void(const CredentialsQuestion &, const Answer &answer)>;

    /// Shared with workers, whichever of them is the last to need it.
    static std::shared_ptr<CredentialStore> create();
    explicit CredentialStore(QObject *parent = nullptr) : QObject(parent) {}

    /// Who puts the questions; without one there is nobody to ask.
    void setQuestioner(Questioner questioner);

    /// What everybody gets who wants any, so that nobody is asked; where they turn out wrong, they
    /// are not given again.
    void giveInAdvance(const Credentials &credentials);

    /// Whether these were given in advance and are about to be sent where others can read along,
    /// for the first time: of what nobody was asked, somebody has to be told.
    bool isFirstInPlain(const CredentialRealm &realm, const Credentials &sent);

    /// What was given before; nothing when nobody was asked yet.
    std::optional<Credentials> known(const CredentialRealm &realm) const;
    /// Whether what is known was given for somebody else, and is only tried here: the user has not
    /// been asked yet.
    bool isGuess(const CredentialRealm &realm) const;
    /// They turned out wrong, so the next one is asked again; unless others were given meanwhile.
    void forget(const CredentialRealm &realm, const Credentials &refused);

    struct Outcome
    {
        std::optional<Credentials> credentials;
        bool nobodyToAsk = false;
    };
    /// Asks, and waits for the answer. A second worker that wants the same while the question
    /// stands gets the same answer. `canceled` ends the waiting; it is looked at often.
    Outcome ask(const CredentialRealm &realm, const CredentialsQuestion &question,
                const std::function<bool()> &canceled);

private:
    struct Pending
    {
        CredentialsQuestion question;
        bool isPut = false;
        bool answered = false;
        std::optional<Credentials> answer{};
    };

    struct Known
    {
        Credentials credentials;
        bool isGuess = false;
    };

    Q_INVOKABLE void putQuestions();
    void answered(const CredentialRealm &realm, const std::optional<Credentials> &answer);
    bool mayBeRight(const CredentialRealm &realm, const Credentials &credentials) const;
    std::optional<Credentials> knownOrGiven(const CredentialRealm &realm) const;
    std::optional<Credentials> guess(const CredentialRealm &realm);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    Questioner m_questioner;
    std::optional<Credentials> m_given; // in advance
    std::set<CredentialRealm> m_sentInPlain;
    std::map<CredentialRealm, Known> m_known;
    std::map<CredentialRealm, QList<Credentials>> m_refused;
    std::map<CredentialRealm, std::shared_ptr<Pending>> m_pending;
};

} // namespace corvana
