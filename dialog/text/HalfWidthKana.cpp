#include "dialog/text/HalfWidthKana.h"

namespace corvana {

namespace {

constexpr uchar kFirst = 0xA1;
constexpr uchar kLastSign = 0xA5;
constexpr uchar kVoiced = 0xDE;
constexpr uchar kHalfVoiced = 0xDF;

bool isHalfWidth(uchar byte)
{
    return byte >= kFirst && byte <= kHalfVoiced;
}

// The first byte of two.
bool isLead(uchar byte)
{
    return byte >= 0x80 && !isHalfWidth(byte);
}

bool isHa(uchar syllable)
{
    return syllable >= 0xCA && syllable <= 0xCE;
}

bool canBeVoiced(uchar syllable)
{
    return syllable == 0xB3 || (syllable >= 0xB6 && syllable <= 0xC4) || isHa(syllable);
}

bool isMisplaced(uchar byte, uchar before)
{
    return (byte == kVoiced && !canBeVoiced(before)) || (byte == kHalfVoiced && !isHa(before));
}

} // namespace

bool hasHalfWidthWords(QByteArrayView text)
{
    int all = 0;
    int signs = 0;
    int alone = 0;
    for (qsizetype i = 0; i < text.size();) {
        if (isLead(uchar(text.at(i)))) {
            i += 2;
            continue;
        }
        const qsizetype begin = i;
        uchar before = 0;
        for (; i < text.size() && isHalfWidth(uchar(text.at(i))); ++i) {
            const auto byte = uchar(text.at(i));
            if (isMisplaced(byte, before))
                return false;
            if (byte <= kLastSign)
                ++signs;
            before = byte;
        }
        all += int(i - begin);
        if (i - begin == 1)
            ++alone;
        else if (i == begin)
            ++i;
    }
    return all > 0 && signs * 4 <= all && alone * 10 <= all;
}

} // namespace corvana
