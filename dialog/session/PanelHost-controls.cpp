#include "dialog/session/PanelHost-call.h"

#include <algorithm>

namespace corvana {

QList<PanelControl> PanelHost::controls(int panel)
{
    if (m_controls.isEmpty() && m_broughtUp && !isBusy()) {
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

QString PanelHost::keywordOf(int panel, const QString &title)
{
    QStringList keywords;
    const QList<PanelControl> shown = controls(panel);
    for (const PanelControl &control : shown) {
        const ppd_option_t *option = ppdOption(m_session.ppd(), control.keyword);
        const bool isCalledSo =
            control.text == title || (option && ppdText(option->text).value_or(QString()) == title);
        if (isCalledSo && !keywords.contains(control.keyword))
            keywords += control.keyword;
    }
    // Of its options the panel may have no control for some, and tells of them all the same.
    const QStringList supported =
        keywords.isEmpty() && panel < m_panels.size()
            ? m_panels.at(panel)->supportedPPDOptionKeys().value_or(QStringList())
            : QStringList();
    for (const QString &keyword : supported) {
        const ppd_option_t *option = ppdOption(m_session.ppd(), keyword);
        if (option && ppdText(option->text).value_or(QString()) == title)
            keywords += keyword;
    }
    return keywords.size() == 1 ? keywords.constFirst() : QString();
}

void PanelHost::disclose(const QString &keyword)
{
    const int panel = panelOf(keyword);
    if (panel < 0 || isBusy())
        return;
    const Call call(*this, *m_panels.at(panel));
    m_panels.at(panel)->disclose(keyword);
}

} // namespace corvana
