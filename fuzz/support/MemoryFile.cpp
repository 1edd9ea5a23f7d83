#include "fuzz/support/MemoryFile.h"

#include <cstdio>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

MemoryFile::MemoryFile(const QByteArray &content)
    : m_descriptor(::memfd_create("input", MFD_CLOEXEC | MFD_ALLOW_SEALING))
{
    const char *bytes = content.constData();
    qsizetype left = content.size();
    while (left > 0) {
        const ssize_t written = ::write(m_descriptor, bytes, static_cast<std::size_t>(left));
        if (written <= 0) {
            std::perror("a file in memory");
            std::exit(2); // the machine's fault, and no find
        }
        bytes += written;
        left -= written;
    }
    ::lseek(m_descriptor, 0, SEEK_SET);
}

MemoryFile::~MemoryFile()
{
    ::close(m_descriptor);
}

QString MemoryFile::path() const
{
    return u"/proc/self/fd/%1"_s.arg(m_descriptor);
}

} // namespace corvana::fuzz
