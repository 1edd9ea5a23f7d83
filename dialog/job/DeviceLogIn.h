#pragma once

#include <optional>

#include <QString>

#include "dialog/printers/Printer.h"
#include "dialog/server/ServerWork.h"

namespace corvana {

/// The user and the password that a printer's device wants with each job.
/// Ownership: worker and printer are borrowed. Thread: the worker's.
class DeviceLogIn
{
public:
    DeviceLogIn(ServerWorker &worker, const Printer &printer) : m_worker(worker), m_printer(printer)
    {
    }

    bool isNeeded() const;
    /// Takes them from the store of the worker's context, which asks the user for what it lacks.
    /// Waits. True when they are there, or when none are needed.
    bool ask();
    /// They were wrong: the next job asks again.
    void forget();
    /// Whether they were given for the server, and only tried for the device.
    bool wasGuess() const;

    const std::optional<Credentials> &credentials() const { return m_credentials; }

private:
    CredentialRealm realm() const;

    ServerWorker &m_worker;
    const Printer &m_printer;
    std::optional<Credentials> m_credentials;
};

} // namespace corvana
