#include "dialog/session/PpdLines.h"

#include <algorithm>

namespace corvana {

namespace {

// What ends a line, or decides whether it ends. To libcups the last of these signs, of what once
// was the end of a file, is not there.
constexpr QByteArrayView kSigns{"\n\r*:\"\x1a"};

// A PPD is opened before its printer's window is painted, and most of its bytes are no such sign.
constexpr std::array<bool, 256> kIsSign = [] {
    std::array<bool, 256> is{};
    for (const char sign : kSigns)
        is[static_cast<unsigned char>(sign)] = true;
    return is;
}();

bool isSign(char c)
{
    return kIsSign[static_cast<unsigned char>(c)];
}

} // namespace

bool PpdLines::read(QByteArrayView bytes)
{
    for (auto at = bytes.begin(); at != bytes.end();) {
        const auto sign = std::find_if(at, bytes.end(), isSign);
        keep({at, sign});
        if (sign == bytes.end())
            break;
        at = sign + 1;
        if (*sign == '\x1a')
            continue;
        if ((*sign == '\n' || *sign == '\r') && !m_isQuoted) {
            if (!endLine())
                return false;
            continue;
        }
        keep({sign, at});
        if (*sign == '*')
            ++m_stars;
        else if (*sign == ':' && !m_hasColon &&
                 !QByteArrayView(m_begin.data(), m_length).startsWith("*%"))
            m_hasColon = true;
        else if (*sign == '"' && m_hasColon)
            m_isQuoted = !m_isQuoted;
    }
    return true;
}

void PpdLines::keep(QByteArrayView bytes)
{
    const qsizetype fits = std::min(bytes.size(), kLongest - m_length);
    std::copy_n(bytes.begin(), fits, m_begin.begin() + m_length);
    m_length += fits;
}

bool PpdLines::endLine()
{
    const bool goesOn = m_length == 0 || m_take({{m_begin.data(), m_length}, m_stars});
    m_length = 0;
    m_stars = 0;
    m_hasColon = false;
    m_isQuoted = false;
    return goesOn;
}

} // namespace corvana
