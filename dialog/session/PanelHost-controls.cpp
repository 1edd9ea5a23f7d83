#include "dialog/session/PanelHost-call.h"

#include <algorithm>

namespace corvana {

QList<PanelControl> PanelHost::controls(int panel)
{
    if (m_controls.isEmpty() && m_broughtUp && !panelIsBusy()) {
        for (const auto &asked : std::as_const(m_panels)) {
            const Call call(*this, *asked);
            m_controls += asked->controls();
        }
    }
    return m_controls.value(panel);
}

int PanelHost::panelOf(const QString &keyword)
{
    for (int panel = 0; panel < m_panels.size(); ++panel) {
        const QList<PanelControl> shown = controls(panel);
        if (std::any_of(shown.begin(), shown.end(), [&keyword](const PanelControl &control) {
                return control.keyword == keyword;
            }))
            return panel;
    }
    return -1;
}

void PanelHost::disclose(const QString &keyword)
{
    const int panel = panelOf(keyword);
    if (panel < 0 || panelIsBusy())
        return;
    const Call call(*this, *m_panels.at(panel));
    m_panels.at(panel)->disclose(keyword);
}

} // namespace corvana
