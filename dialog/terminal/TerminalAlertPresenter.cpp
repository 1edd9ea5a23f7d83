#include "dialog/terminal/TerminalAlertPresenter.h"

#include <QTextStream>

namespace corvana {

AlertAnswer TerminalAlertPresenter::runModal(const Alert &alert, QWidget *)
{
    m_shown = true;
    QTextStream(stderr) << alert.messageText << "\n\n" << alert.informativeText << "\n\n";
    AlertAnswer answer;
    if (m_policy != AlertPolicy::Print && !jobCanWait())
        answer.button = static_cast<int>(alert.buttons.size()) - 1;
    return answer;
}

} // namespace corvana
