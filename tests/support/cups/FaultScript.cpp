#include "tests/support/cups/FaultScript.h"

#include <algorithm>

namespace corvana::test {

bool Fault::isAnswer() const
{
    switch (kind) {
    case Kind::AskForPassword:
    case Kind::AnswerHttp:
    case Kind::AnswerIpp:
    case Kind::AnswerInPieces:
    case Kind::AskForEncryption:
        return true;
    default:
        return false;
    }
}

FaultyServer::Manner FaultScript::manner() const
{
    const std::lock_guard lock(m_mutex);
    return m_manner;
}

void FaultScript::setManner(FaultyServer::Manner manner)
{
    const std::lock_guard lock(m_mutex);
    m_manner = manner;
}

void FaultScript::add(const Fault &fault)
{
    const std::lock_guard lock(m_mutex);
    m_faults.prepend(fault);
}

void FaultScript::clear()
{
    const std::lock_guard lock(m_mutex);
    m_faults.clear();
}

std::optional<Fault> FaultScript::take(const SeenRequest &request, bool operationIsKnown)
{
    const std::lock_guard lock(m_mutex);
    for (auto fault = m_faults.begin(); fault != m_faults.end(); ++fault) {
        const bool fits = fault->operation == FaultyServer::anyOperation
                              ? operationIsKnown || fault->isAnswer()
                              : operationIsKnown && fault->operation == request.operation;
        if (!fits || (fault->kind == Fault::Kind::AskForPassword &&
                      fault->credentials == request.credentials))
            continue;
        const Fault found = *fault;
        if (fault->times > 0 && --fault->times == 0)
            m_faults.erase(fault);
        if (found.kind == Fault::Kind::None)
            return std::nullopt;
        return found;
    }
    return std::nullopt;
}

bool FaultScript::knows(const QByteArray &credentials) const
{
    const std::lock_guard lock(m_mutex);
    return std::any_of(m_faults.begin(), m_faults.end(), [&](const Fault &fault) {
        return fault.kind == Fault::Kind::AskForPassword && fault.credentials == credentials;
    });
}

void FaultScript::record(const SeenRequest &request)
{
    const std::lock_guard lock(m_mutex);
    m_requests.append(request);
}

QList<SeenRequest> FaultScript::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

} // namespace corvana::test
