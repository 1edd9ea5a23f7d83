#include "dialog/session/PanelHost.h"

#include <QScopeGuard>

namespace corvana {

void PanelHost::followSession()
{
    connect(&m_session, &PpdSession::changed, this, &PanelHost::noteChange);
    connect(&m_session, &PpdSession::refused, this, [this] {
        m_news.refusal = true;
        scheduleDelivery();
    });
    connect(&m_session, &PpdSession::paperChanged, this, [this] {
        m_news.paper = true;
        scheduleDelivery();
    });
    connect(&m_session, &PpdSession::entriesChanged, this, [this] {
        m_news.entries = true;
        scheduleDelivery();
    });
}

// A session that goes back to a former state says of no choice that it is another one.
void PanelHost::tellMarks()
{
    const SessionSnapshot now = m_session.snapshot();
    for (auto mark = now.marks.cbegin(); mark != now.marks.cend(); ++mark)
        m_pending.insert(mark.key(), {mark.value(), nullptr}); // told where it is news
    deliverPending();
}

void PanelHost::restoreTo(const SessionSnapshot &snapshot)
{
    m_isRestoring = true;
    const auto done = qScopeGuard([this] { m_isRestoring = false; });
    m_session.restore(snapshot);
    deliverPending(); // panels judge the paper, and may propose a medium for it
    m_session.restore(snapshot);
    // A panel that keeps a choice which is not marked would propose it again when it restores.
    tellMarks();
    m_session.restore(snapshot);
    restoreAll();
    m_session.restore(snapshot); // panels write entries of their own while they restore
    m_pending.clear();
    m_news = {.scheduled = m_news.scheduled};
}

} // namespace corvana
