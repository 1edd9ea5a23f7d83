#include "dialog/terminal/TerminalAlertPresenter.h"

#include <QTextStream>

#include "platform/foundation/ForeignText.h"

namespace corvana {

AlertAnswer TerminalAlertPresenter::runModal(const Alert &alert, QWidget *)
{
    m_shown = true;
    QTextStream(stderr) << terminalText(alert.messageText) << "\n\n"
                        << terminalText(alert.informativeText) << "\n\n";
    AlertAnswer answer;
    if (m_policy != AlertPolicy::Print && !jobCanWait())
        answer.button = static_cast<int>(alert.buttons.size()) - 1;
    return answer;
}

} // namespace corvana
