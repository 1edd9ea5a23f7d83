#pragma once

#include <csignal>

#include <sys/resource.h>

namespace corvana::test {

/// The size that a file may have at most, for this process and those that it starts, while this
/// lives. As on a full disk, a write fails, and the one before it takes a part; other than there,
/// without a file system of the test's own. Units: bytes.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    void (*m_handler)(int);
    rlimit m_former = {};
};

} // namespace corvana::test
