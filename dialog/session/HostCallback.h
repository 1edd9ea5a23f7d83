#pragma once

#include <functional>

#include "dialog/session/PpdSession.h"
#include "platform/pde/PDEPluginCallback.h"

namespace corvana {

/// What this dialog offers the panels. It records and answers; whatever has to call a panel in turn
/// is left to PanelHost, which waits until the panel has returned.
///
/// Ownership: borrows the session and the presenter, both of which outlive the panels.
class HostCallback : public PDEPluginCallback
{
public:
    /// `viewResized` runs when a panel's view has taken another size; it must not call a panel.
    /// Without it this host takes no resize notices. `shownChanged` does the same for values that
    /// a panel shows and has not saved.
    HostCallback(PpdSession &session, AlertPresenter &presenter,
                 std::function<void()> viewResized = {}, std::function<void()> shownChanged = {});

    /// Refuses, from here on and unseen, what panels propose for these options instead of these
    /// choices: whoever asked for the choices has decided.
    void holdTo(const QList<OptionChoice> &choices) { m_held = choices; }

    bool respondsTo(PDECallbackOperation operation) const override;
    ppd_file_t *ppdFile() override;
    PMPrintSettings printSettings() override;
    PMPageFormat pageFormat() override;
    bool willChangePPDOptionKeyValue_ppdChoice(const QString &keyword,
                                               const QString &choice) override;
    void panelViewDidResize() override;
    void shownValuesDidChange() override;
    AlertPresenter *alertPresenter() override;

private:
    PpdSession &m_session;
    AlertPresenter &m_presenter;
    std::function<void()> m_viewResized;
    std::function<void()> m_shownChanged;
    QList<OptionChoice> m_held;
};

} // namespace corvana
