#pragma once

#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

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

/// Users and passwords for as long as the program runs, one for each server and each device, so
/// that nobody is asked twice. Workers ask for them; the question is put on the GUI thread.
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

    /// What was given before; nothing when nobody was asked yet.
    std::optional<Credentials> known(const QString &realm) const;
    /// They turned out wrong, so the next one is asked again; unless others were given meanwhile.
    void forget(const QString &realm, const Credentials &refused);

    struct Outcome
    {
        std::optional<Credentials> credentials;
        bool nobodyToAsk = false;
    };
    /// Asks, and waits for the answer. A second worker that wants the same while the question
    /// stands gets the same answer. `canceled` ends the waiting; it is looked at often.
    Outcome ask(const QString &realm, const CredentialsQuestion &question,
                const std::function<bool()> &canceled);

private:
    struct Pending
    {
        CredentialsQuestion question;
        bool isPut = false;
        bool answered = false;
        std::optional<Credentials> answer{};
    };

    Q_INVOKABLE void putQuestions();
    void answered(const QString &realm, const std::optional<Credentials> &answer);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    Questioner m_questioner;
    std::map<QString, Credentials> m_known;
    std::map<QString, std::shared_ptr<Pending>> m_pending;
};

} // namespace corvana
