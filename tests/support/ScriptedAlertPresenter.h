#pragma once

#include <functional>

#include <QList>
#include <QPointer>
#include <QWidget>

#include "platform/toolkit/Alert.h"

namespace corvana::test {

/// One alert that was shown.
struct ShownAlert
{
    Alert alert;
    QPointer<QWidget> parent;
};

/// Answers alerts from a script and remembers them. An alert that the script does not expect fails
/// the test that is running, and is answered with its default button.
class ScriptedAlertPresenter : public AlertPresenter
{
public:
    /// Expects one alert more, after those expected already, and answers it so.
    void expect(const AlertAnswer &answer = {}) { m_script += answer; }
    /// Expected alerts that were not shown yet; a test ends with none.
    qsizetype outstanding() const { return m_script.size(); }

    /// Every alert shown, expected or not, in order.
    const QList<ShownAlert> &shown() const { return m_shown; }

    /// Run when an alert is shown, before it is answered: what a person could see and do then.
    std::function<void(const Alert &)> whenShown;

    AlertAnswer runModal(const Alert &alert, QWidget *parent) override;

private:
    QList<AlertAnswer> m_script;
    QList<ShownAlert> m_shown;
};

} // namespace corvana::test
