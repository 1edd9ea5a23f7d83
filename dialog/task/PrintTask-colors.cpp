#include "dialog/task/PrintTask.h"

namespace corvana {

// Something is set otherwise: the job may have become black and white.
void PrintTask::settingsAffectColors()
{
    m_colors.isBlack = m_opened && isBlackAndWhite(*m_opened, m_settings.attributes());
    showColors();
}

void PrintTask::showColors()
{
    PageColors colors;
    QString text;
    // Nobody knows what becomes of the colours of what is passed on as it is.
    if (m_opened && !passesFilesOn()) {
        colors = shownColors(*m_opened, m_colors.isBlack);
        text = colorsText(colors, *m_opened);
    }
    if (colors == m_colors.shown && text == m_colors.text)
        return;
    m_colors.shown = colors;
    m_colors.text = text;
    Q_EMIT pageColorsChanged();
}

} // namespace corvana
