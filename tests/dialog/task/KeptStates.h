#pragma once

#include <QList>
#include <QString>

#include "dialog/task/TaskSettings.h"

namespace corvana::test {

/// The states that a task can go back to, and forward again, as a test keeps them itself.
class KeptStates
{
public:
    explicit KeptStates(const TaskSettings &first) : m_states{first} {}

    const TaskSettings &present() const { return m_states.at(m_present); }
    bool canGoBack() const { return m_present > 0; }
    bool canGoForward() const { return m_present + 1 < m_states.size(); }
    void goBack() { --m_present; }
    void goForward() { ++m_present; }

    /// Another state, behind which nothing comes.
    void add(const TaskSettings &state);
    /// The present one in another form, which means the same.
    void replace(const TaskSettings &state) { m_states[m_present] = state; }

private:
    QList<TaskSettings> m_states;
    qsizetype m_present = 0;
};

/// In what two states differ, a line each.
QString differenceOf(const TaskSettings &is, const TaskSettings &shouldBe);

/// The number that a variable of the environment holds, or the usual one.
int numberOf(const char *variable, int usual);

} // namespace corvana::test
