#pragma once

#include <QByteArray>

namespace corvana::test {

/// Sets a variable of the environment while it lives.
class Variable
{
public:
    Variable(const char *name, const QByteArray &value) : m_name(name), m_former(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~Variable()
    {
        if (m_former.isNull())
            qunsetenv(m_name);
        else
            qputenv(m_name, m_former);
    }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;

private:
    const char *m_name;
    QByteArray m_former;
};

} // namespace corvana::test
