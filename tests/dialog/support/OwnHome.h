#pragma once

#include <QString>
#include <QTemporaryDir>

#include "tests/dialog/job/Variable.h"

namespace corvana::test {

/// An empty home, with all that a user keeps in it, while this object lives.
class OwnHome
{
public:
    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    Variable m_home{"HOME", m_folder.path().toUtf8()};
    Variable m_config{"XDG_CONFIG_HOME", m_folder.path().toUtf8()};
    Variable m_cache{"XDG_CACHE_HOME", m_folder.path().toUtf8()};
    Variable m_data{"XDG_DATA_HOME", m_folder.path().toUtf8()};
};

} // namespace corvana::test
