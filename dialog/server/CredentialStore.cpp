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

std::optional<Credentials> CredentialStore::known(const QString &realm) const
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_known.find(realm);
    return found == m_known.end() ? std::nullopt : std::optional(found->second);
}

void CredentialStore::forget(const QString &realm, const Credentials &refused)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_known.find(realm);
    if (found != m_known.end() && found->second == refused)
        m_known.erase(found);
}

CredentialStore::Outcome CredentialStore::ask(const QString &realm,
                                              const CredentialsQuestion &question,
                                              const std::function<bool()> &canceled)
{
    std::unique_lock lock(m_mutex);
    if (const auto found = m_known.find(realm); found != m_known.end())
        return {found->second, false};
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
    std::map<QString, CredentialsQuestion> questions;
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

void CredentialStore::answered(const QString &realm, const std::optional<Credentials> &answer)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_pending.find(realm);
    if (found == m_pending.end())
        return;
    if (answer)
        m_known[realm] = *answer;
    found->second->answered = true;
    found->second->answer = answer;
    m_pending.erase(found);
    m_changed.notify_all();
}

} // namespace corvana
