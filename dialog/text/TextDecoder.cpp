#include "dialog/text/TextDecoder.h"

#include <array>
#include <cerrno>

#include <iconv.h>

namespace corvana {

namespace {

// What iconv_open() answers when it does not know an encoding.
const iconv_t kNone = reinterpret_cast<iconv_t>(-1);

// "WCHAR_T" is what a system's own characters are, without a byte order mark.
static_assert(sizeof(wchar_t) == sizeof(char32_t));

} // namespace

TextDecoder::TextDecoder(const QByteArray &encoding)
    : m_converter(::iconv_open("WCHAR_T", encoding.constData()))
{
}

TextDecoder::~TextDecoder()
{
    if (isValid())
        ::iconv_close(m_converter);
}

bool TextDecoder::isValid() const
{
    return m_converter != kNone;
}

std::u32string TextDecoder::decode(const QByteArray &bytes, bool last)
{
    std::u32string characters;
    if (!isValid())
        return characters;
    QByteArray input = m_rest + bytes;
    m_rest.clear();
    char *from = input.data();
    auto left = static_cast<size_t>(input.size());
    std::array<char32_t, 4096> block{};
    while (left > 0) {
        auto *to = reinterpret_cast<char *>(block.data());
        size_t room = sizeof block;
        const size_t result = ::iconv(m_converter, &from, &left, &to, &room);
        const int problem = result == static_cast<size_t>(-1) ? errno : 0;
        characters.append(block.data(), block.size() - room / sizeof(char32_t));
        if (problem == EINVAL && !last) {
            m_rest = QByteArray(from, static_cast<qsizetype>(left));
            break;
        }
        if (problem == EILSEQ || problem == EINVAL) {
            characters += kBroken;
            ++m_broken;
            ++from;
            --left;
        }
    }
    return characters;
}

} // namespace corvana
