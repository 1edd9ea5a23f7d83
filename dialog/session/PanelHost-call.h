#pragma once

#include "dialog/session/PanelHost.h"

namespace corvana {

// Marks that a panel is being called, so that nobody calls another one meanwhile.
class PanelHost::Call
{
public:
    Call(PanelHost &host, PDEPanel &panel) : m_host(host) { m_host.m_callStack.append(&panel); }
    ~Call()
    {
        m_host.m_callStack.removeLast();
        if (m_host.hasNews())
            m_host.scheduleDelivery();
    }
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

private:
    PanelHost &m_host;
};

} // namespace corvana
