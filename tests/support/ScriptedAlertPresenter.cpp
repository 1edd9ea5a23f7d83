#include "tests/support/ScriptedAlertPresenter.h"

#include <QTest>

namespace corvana::test {

AlertAnswer ScriptedAlertPresenter::runModal(const Alert &alert, QWidget *parent)
{
    m_shown += ShownAlert{alert, parent};
    if (m_script.isEmpty()) {
        QTest::qVerify(false, "the alert was expected", qUtf8Printable(alert.messageText), __FILE__,
                       __LINE__);
        return {};
    }
    return m_script.takeFirst();
}

} // namespace corvana::test
