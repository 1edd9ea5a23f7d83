#pragma once

#include <QByteArray>
#include <QString>

namespace corvana::fuzz {

/// A file that lies in memory only, for what is read by its path. Ownership: closes it.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &content);
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    QString path() const;
    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace corvana::fuzz
