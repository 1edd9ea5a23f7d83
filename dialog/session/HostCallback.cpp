#include "dialog/session/HostCallback.h"

#include <algorithm>
#include <exception>

#include <QLoggingCategory>

namespace corvana {

Q_LOGGING_CATEGORY(lcHost, "corvana.dialog.host", QtWarningMsg)

HostCallback::HostCallback(PpdSession &session, AlertPresenter &presenter,
                           std::function<void()> viewResized, std::function<void()> shownChanged)
    : m_session(session), m_presenter(presenter), m_viewResized(std::move(viewResized)),
      m_shownChanged(std::move(shownChanged))
{
}

bool HostCallback::respondsTo(PDECallbackOperation operation) const
{
    if (operation == PDECallbackOperation::panelViewDidResize)
        return m_viewResized != nullptr;
    return operation != PDECallbackOperation::shownValuesDidChange || m_shownChanged;
}

ppd_file_t *HostCallback::ppdFile()
{
    return m_session.ppd();
}

PMPrintSettings HostCallback::printSettings()
{
    return &m_session.printSettings();
}

PMPageFormat HostCallback::pageFormat()
{
    return &m_session.pageFormat();
}

bool HostCallback::willChangePPDOptionKeyValue_ppdChoice(const QString &keyword,
                                                         const QString &choice)
{
    const bool isDecided = std::any_of(m_held.cbegin(), m_held.cend(), [&](const auto &held) {
        return held.keyword == keyword && held.choice != choice;
    });
    if (isDecided)
        return false;
    // A panel is in the midst of its own work here and could not handle an exception.
    try {
        return m_session.change(keyword, choice, PpdSession::Origin::Panel).accepted();
    } catch (const std::exception &exception) {
        qCCritical(lcHost) << "refused:" << keyword << choice << exception.what();
    } catch (...) {
        qCCritical(lcHost) << "refused:" << keyword << choice << "by an unknown exception";
    }
    return false;
}

void HostCallback::panelViewDidResize()
{
    if (m_viewResized)
        m_viewResized();
}

void HostCallback::shownValuesDidChange()
{
    if (m_shownChanged)
        m_shownChanged();
}

AlertPresenter *HostCallback::alertPresenter()
{
    return &m_presenter;
}

} // namespace corvana
