#include "dialog/job/DeviceLogIn.h"

#include <cups/cups.h>

namespace corvana {

using namespace Qt::StringLiterals;

bool DeviceLogIn::isNeeded() const
{
    return m_printer.authInfo.contains("username"_L1) || m_printer.authInfo.contains("password"_L1);
}

bool DeviceLogIn::ask()
{
    if (!isNeeded())
        return true;
    const auto &store = m_worker.context().credentials;
    if (!store)
        return false;
    const ServerAddress &address = m_worker.context().address;
    const bool isSecret = address.isLocal() || address.encryption == HTTP_ENCRYPTION_REQUIRED ||
                          address.encryption == HTTP_ENCRYPTION_ALWAYS;
    m_credentials = store
                        ->ask(realm(), {address, QString::fromUtf8(cupsUser()), isSecret, true},
                              [this] { return m_worker.isCanceled(); })
                        .credentials;
    return m_credentials.has_value();
}

void DeviceLogIn::forget()
{
    if (const auto &store = m_worker.context().credentials; store && m_credentials)
        store->forget(realm(), *m_credentials);
}

bool DeviceLogIn::wasGuess() const
{
    const auto &store = m_worker.context().credentials;
    return store && store->isGuess(realm());
}

CredentialRealm DeviceLogIn::realm() const
{
    return {m_worker.context().address.argument(), m_printer.uri};
}

} // namespace corvana
