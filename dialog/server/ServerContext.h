#pragma once

#include <memory>

#include "dialog/server/CertificateTrust.h"
#include "dialog/server/CredentialStore.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/server/ServerWait.h"

namespace corvana {

/// Which server, and who is asked for passwords.
struct ServerContext
{
    ServerAddress address{};
    std::shared_ptr<CredentialStore> credentials{}; ///< may be null: nobody is asked
    /// Whether the user is waiting for it and may be asked; what runs in the background may not.
    bool mayAsk = false;
    ServerPatience patience = ServerPatience::fromEnvironment();
    CertificateTrust trust{}; ///< which servers are known, and by whom others may be vouched for
};

} // namespace corvana
