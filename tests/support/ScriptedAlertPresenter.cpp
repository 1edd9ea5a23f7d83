#include "tests/support/ScriptedAlertPresenter.h"

#include <QTest>

namespace corvana::test {

AlertAnswer ScriptedAlertPresenter::runModal(const Alert &alert, QWidget *parent)
{
    m_shown += ShownAlert{alert, parent};
    const bool expected = !m_script.isEmpty();
    const AlertAnswer answer = expected ? m_script.takeFirst() : AlertAnswer();
    if (whenShown)
        whenShown(alert);
    if (!expected) {
        QTest::qVerify(false, "the alert was expected", qUtf8Printable(alert.messageText), __FILE__,
                       __LINE__);
    }
    return answer;
}

} // namespace corvana::test
