#include "dialog/server/CredentialStore.h"

#include <chrono>
#include <utility>

namespace corvana {

namespace {
// How often a worker that waits for an answer looks whether it is still wanted.
constexpr std::chrono::milliseconds kLookAround{100};
} // namespace

std::shared_ptr<CredentialStore> CredentialStore::create()
{
    // Objects go on the thread that they live on.
    return {new CredentialStore, [](CredentialStore *store) { store->deleteLater(); }};
}

void CredentialStore::setQuestioner(Questioner questioner)
{
    const std::scoped_lock lock(m_mutex);
    m_questioner = std::move(questioner);
}

void CredentialStore::giveInAdvance(const Credentials &credentials)
{
    const std::scoped_lock lock(m_mutex);
    m_given = credentials;
}

bool CredentialStore::isFirstInPlain(const CredentialRealm &realm, const Credentials &sent)
{
    const std::scoped_lock lock(m_mutex);
    return m_given == sent && m_sentInPlain.insert(realm).second;
}

std::optional<Credentials> CredentialStore::known(const CredentialRealm &realm) const
{
    const std::scoped_lock lock(m_mutex);
    return knownOrGiven(realm);
}

bool CredentialStore::isGuess(const CredentialRealm &realm) const
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_known.find(realm);
    return found != m_known.end() && found->second.isGuess;
}

void CredentialStore::forget(const CredentialRealm &realm, const Credentials &refused)
{
    const std::scoped_lock lock(m_mutex);
    if (mayBeRight(realm, refused))
        m_refused[realm] += refused;
    const auto found = m_known.find(realm);
    if (found != m_known.end() && found->second.credentials == refused)
        m_known.erase(found);
}

bool CredentialStore::mayBeRight(const CredentialRealm &realm, const Credentials &credentials) const
{
    const auto refused = m_refused.find(realm);
    return refused == m_refused.end() || !refused->second.contains(credentials);
}

std::optional<Credentials> CredentialStore::knownOrGiven(const CredentialRealm &realm) const
{
    if (const auto found = m_known.find(realm); found != m_known.end())
        return found->second.credentials;
    return m_given && mayBeRight(realm, *m_given) ? m_given : std::nullopt;
}

// What was given for somebody else of the same server.
std::optional<Credentials> CredentialStore::guess(const CredentialRealm &realm)
{
    for (const auto &[other, known] : m_known) {
        if (other.server == realm.server && mayBeRight(realm, known.credentials))
            return (m_known[realm] = {known.credentials, true}).credentials;
    }
    return std::nullopt;
}

CredentialStore::Outcome CredentialStore::ask(const CredentialRealm &realm,
                                              const CredentialsQuestion &question,
                                              const std::function<bool()> &canceled)
{
    std::unique_lock lock(m_mutex);
    if (const auto known = knownOrGiven(realm))
        return {known, false};
    if (const auto tried = guess(realm))
        return {tried, false};
    if (!m_questioner)
        return {std::nullopt, true};
    std::shared_ptr<Pending> pending = m_pending[realm];
    if (!pending) {
        pending = m_pending[realm] = std::make_shared<Pending>(Pending{question});
        // By name, so that nothing but the lock hands the question over.
        QMetaObject::invokeMethod(this, "putQuestions", Qt::QueuedConnection);
    }
    while (!pending->answered && !canceled())
        m_changed.wait_for(lock, kLookAround);
    return {pending->answer, false};
}

void CredentialStore::putQuestions()
{
    std::map<CredentialRealm, CredentialsQuestion> questions;
    Questioner questioner;
    {
        const std::scoped_lock lock(m_mutex);
        questioner = m_questioner;
        for (const auto &[realm, pending] : m_pending) {
            if (!std::exchange(pending->isPut, true))
                questions.emplace(realm, pending->question);
        }
    }
    for (const auto &[realm, question] : questions) {
        if (!questioner) {
            answered(realm, std::nullopt);
            continue;
        }
        questioner(question, [this, realm = realm](const std::optional<Credentials> &answer) {
            answered(realm, answer);
        });
    }
}

void CredentialStore::answered(const CredentialRealm &realm,
                               const std::optional<Credentials> &answer)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_pending.find(realm);
    if (found == m_pending.end())
        return;
    if (answer)
        m_known[realm] = {*answer, false};
    found->second->answered = true;
    found->second->answer = answer;
    m_pending.erase(found);
    m_changed.notify_all();
}

} // namespace corvana
