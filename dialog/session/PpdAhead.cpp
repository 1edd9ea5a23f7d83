#include "dialog/session/PpdAhead.h"

#include <system_error>
#include <utility>

namespace corvana {

void PpdAhead::begin(const QString &path)
{
    m_path = path;
    m_opened = {};
    try {
        m_opened = std::async(std::launch::async, [path] {
            Opened opened;
            opened.ppd = openPpdFile(path, &opened.error);
            return opened;
        });
    } catch (const std::system_error &) {
        // There are as many threads already as this user may have.
    }
}

PpdFile PpdAhead::open(const QString &path, QString *error)
{
    if (!m_opened.valid() || path != m_path) {
        m_opened = {}; // waits for it
        return openPpdFile(path, error);
    }
    Opened opened = m_opened.get();
    if (!opened.ppd)
        *error = opened.error;
    return std::move(opened.ppd);
}

} // namespace corvana
