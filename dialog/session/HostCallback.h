#pragma once

#include "platform/pde/PDEPluginCallback.h"

namespace corvana {

class PpdSession;

/// What this dialog offers the panels. It records and answers; whatever has to call a panel in turn
/// is left to PanelHost, which waits until the panel has returned.
///
/// Ownership: borrows the session and the presenter, both of which outlive the panels.
class HostCallback : public PDEPluginCallback
{
public:
    HostCallback(PpdSession &session, AlertPresenter &presenter);

    bool respondsTo(PDECallbackOperation operation) const override;
    ppd_file_t *ppdFile() override;
    PMPrintSettings printSettings() override;
    PMPageFormat pageFormat() override;
    bool willChangePPDOptionKeyValue_ppdChoice(const QString &keyword,
                                               const QString &choice) override;
    void panelViewDidResize() override;
    AlertPresenter *alertPresenter() override;

private:
    PpdSession &m_session;
    AlertPresenter &m_presenter;
};

} // namespace corvana
