#include "dialog/session/PpdLines.h"

#include <utility>

namespace corvana {

bool PpdLines::read(QByteArrayView bytes)
{
    for (const char c : bytes) {
        // To libcups this sign, of what once was the end of a file, is not there.
        if (c == '\x1a')
            continue;
        if ((c == '\n' || c == '\r') && !m_isQuoted) {
            if (!endLine())
                return false;
            continue;
        }
        if (m_begin.size() < kLongest)
            m_begin += c;
        if (c == '*')
            ++m_stars;
        else if (c == ':' && !m_begin.startsWith("*%"))
            m_hasColon = true;
        else if (c == '"' && m_hasColon)
            m_isQuoted = !m_isQuoted;
    }
    return true;
}

bool PpdLines::endLine()
{
    const bool goesOn = m_begin.isEmpty() || m_take({m_begin, m_stars});
    m_begin.resize(0); // keeps its memory
    m_stars = 0;
    m_hasColon = false;
    m_isQuoted = false;
    return goesOn;
}

} // namespace corvana
