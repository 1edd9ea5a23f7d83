#include "dialog/text/UnmarkedUtf16.h"

#include <algorithm>
#include <string>

#include "dialog/text/TextDecoder.h"

namespace corvana {

namespace {

struct Block
{
    char32_t first;
    char32_t last;
};
// What texts in Japanese, Chinese and Korean consist of. Read in the wrong order of bytes they are
// spread over all that there is, half of it beyond these.
constexpr Block kEastAsian[] = {
    {0x0020, 0x007E}, {0x00A0, 0x00FF}, {0x2010, 0x203B}, {0x2190, 0x2193},
    {0x2460, 0x24FF}, {0x2500, 0x25FF}, {0x3000, 0x30FF}, {0x3131, 0x318E},
    {0x3200, 0x33FF}, {0x4E00, 0x9FFF}, {0xAC00, 0xD7A3}, {0xFF01, 0xFFEF},
};

bool isBlank(char32_t c)
{
    return c == '\n' || c == '\r' || c == '\t' || c == '\f';
}

bool isSound(char32_t c)
{
    return c != TextDecoder::kBroken && (c >= 0x20 || isBlank(c));
}

bool isEastAsian(char32_t c)
{
    return isBlank(c) || std::any_of(std::begin(kEastAsian), std::end(kEastAsian),
                                     [=](const Block &b) { return c >= b.first && c <= b.last; });
}

std::u32string decoded(const QByteArray &text, const char *encoding)
{
    TextDecoder decoder(encoding);
    return decoder.decode(text);
}

// Half of the bytes of ASCII characters are zero, always the same half. A fifth of all bytes has to
// be, or it could be anything.
QByteArray byAscii(const QByteArray &beginning)
{
    qsizetype zeros[2] = {0, 0};
    for (qsizetype i = 0; i < beginning.size(); ++i) {
        if (beginning.at(i) == 0)
            ++zeros[i % 2];
    }
    const qsizetype most = std::max(zeros[0], zeros[1]);
    const qsizetype least = std::min(zeros[0], zeros[1]);
    if (most == 0 || most * 5 < beginning.size() || least * 10 > most)
        return {};
    const QByteArray encoding = zeros[0] > zeros[1] ? "UTF-16BE" : "UTF-16LE";
    const std::u32string text = decoded(beginning, encoding.constData());
    return std::all_of(text.cbegin(), text.cend(), isSound) ? encoding : QByteArray();
}

// Which share of the characters such texts have. Range: 0 to 1.
double eastAsianShare(const QByteArray &beginning, const char *encoding)
{
    const std::u32string text = decoded(beginning, encoding);
    if (text.empty() || !std::all_of(text.cbegin(), text.cend(), isSound))
        return 0;
    return double(std::count_if(text.cbegin(), text.cend(), isEastAsian)) / double(text.size());
}

// No text of another encoding has a zero byte, which every line ends with here.
QByteArray byEastAsian(const QByteArray &beginning)
{
    constexpr qsizetype kFewest = 16; // bytes
    constexpr double kLeast = 0.97;
    if (beginning.size() < kFewest || !beginning.contains('\0'))
        return {};
    const double little = eastAsianShare(beginning, "UTF-16LE");
    const double big = eastAsianShare(beginning, "UTF-16BE");
    if (std::max(little, big) < kLeast || little == big)
        return {};
    return little > big ? "UTF-16LE" : "UTF-16BE";
}

} // namespace

QByteArray unmarkedUtf16(const QByteArray &beginning)
{
    const QByteArray encoding = byAscii(beginning);
    return encoding.isEmpty() ? byEastAsian(beginning) : encoding;
}

} // namespace corvana
