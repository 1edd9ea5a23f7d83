#include "dialog/text/TextEncoding.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include <QIODevice>
#include <QList>

#include "dialog/text/HalfWidthKana.h"
#include "dialog/text/SwitchedSets.h"
#include "dialog/text/TextDecoder.h"
#include "dialog/text/UnmarkedUtf16.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kUtf8 = "UTF-8";
constexpr auto kWestern = "CP1252";

// How much of a text is looked at. What is plain ASCII says nothing and does not count.
constexpr qsizetype kPiece = 4096;
constexpr qsizetype kEnough = 128 * 1024;
// A text that is plain ASCII for so long is taken for that. Units: bytes.
constexpr qint64 kBlock = 1 << 20;
constexpr qint64 kMostLookedAt = 64 * kBlock;
// More than this share of broken characters is another encoding; less is damage.
constexpr double kMostBroken = 0.01;
// What the user's language adds to a score.
constexpr double kOwnLanguage = 0.05;

struct Marker
{
    QByteArrayView bytes;
    const char *encoding;
};
constexpr Marker kMarkers[] = {
    {"\xEF\xBB\xBF", kUtf8},
    // Before those of UTF-16, of which the first begins alike.
    {QByteArrayView("\xFF\xFE\0\0", 4), "UTF-32LE"},
    {QByteArrayView("\0\0\xFE\xFF", 4), "UTF-32BE"},
    {"\xFF\xFE", "UTF-16LE"},
    {"\xFE\xFF", "UTF-16BE"},
};

bool isIn(char32_t character, char32_t first, char32_t last)
{
    return character >= first && character <= last;
}

bool isHigh(char c)
{
    return static_cast<uchar>(c) >= 0x80;
}

bool isKana(char32_t c)
{
    return isIn(c, 0x3041, 0x30FE) || isIn(c, 0xFF66, 0xFF9F);
}

bool isHangul(char32_t c)
{
    return isIn(c, 0xAC00, 0xD7A3);
}

bool isIdeograph(char32_t c)
{
    return isIn(c, 0x3400, 0x9FFF);
}

// The share of two-byte characters whose first byte is in a range: where an encoding has its
// frequent ideographs.
struct Frequent
{
    uchar first;
    uchar last;
};

struct Legacy
{
    const char *name;
    const char *language;
    Frequent frequent; // the first bytes of the ideographs or syllables that are used most
    Frequent kana;     // of the Japanese syllables; none where its texts have them as guests only
    bool pairsOfHigh;  // both bytes of a frequent character are beyond ASCII
};

// The ideographs of these standards are in order of their frequency: half of them, the first half,
// is nearly everything that a text has.
constexpr Legacy kLegacy[] = {
    {"CP932", "ja", {0x88, 0x97}, {0x82, 0x83}, false},
    {"EUC-JP-MS", "ja", {0xB0, 0xCF}, {0xA4, 0xA5}, true},
    {"GB18030", "zh_CN", {0xB0, 0xD7}, {0, 0}, true},
    {"BIG5-HKSCS", "zh_TW", {0xA4, 0xC6}, {0, 0}, false},
    {"UHC", "ko", {0xB0, 0xC8}, {0, 0}, true},
};

struct Counts
{
    int characters = 0; // of two bytes or more
    int frequent = 0;
    int kana = 0;
    int halfWidth = 0; // syllables
    int odd = 0;       // what such a text hardly has: halves of syllables, private characters
    int blanks = 0;    // between two characters of two bytes
};

bool contains(const Frequent &range, uchar byte)
{
    return byte >= range.first && byte <= range.last && range.last != 0;
}

// Reads pairs of bytes as the encoding does. The decoder has said already that they are characters.
Counts countPairs(const Legacy &legacy, const QByteArray &sample)
{
    const bool isShiftJis = QLatin1StringView(legacy.name) == "CP932"_L1;
    Counts counts;
    for (qsizetype i = 0; i < sample.size(); ++i) {
        const auto byte = static_cast<uchar>(sample.at(i));
        if (byte < 0x80) {
            if (byte == ' ' && i > 0 && i + 1 < sample.size() && isHigh(sample.at(i - 1)) &&
                isHigh(sample.at(i + 1)))
                ++counts.blanks;
            continue;
        }
        if (isShiftJis && byte >= 0xA1 && byte <= 0xDF) {
            ++counts.characters;
            ++counts.halfWidth;
            continue;
        }
        const uchar next = i + 1 < sample.size() ? static_cast<uchar>(sample.at(i + 1)) : 0;
        ++i;
        // Signs say nothing, since each of these encodings has them in one row.
        const bool isSign = isShiftJis ? byte == 0x81 : byte == 0xA1 || byte == 0xA3;
        if (isSign && next >= 0x40)
            continue;
        ++counts.characters;
        const bool asUsual = !legacy.pairsOfHigh || next >= 0xA1;
        if (contains(legacy.kana, byte))
            ++counts.kana;
        else if (asUsual && contains(legacy.frequent, byte))
            ++counts.frequent;
        else
            ++counts.odd;
    }
    return counts;
}

// A text of Korean syllables with some rarer ones or some ideographs between them. Korean words
// have blanks between them, Chinese ones have none.
bool hasKoreanWords(const Counts &counts)
{
    return counts.frequent * 4 >= counts.characters * 3 && counts.blanks * 8 >= counts.characters;
}

// How much a sample looks like a text in an encoding. Range: 0 to 1.
double scoreOf(const Legacy &legacy, const QByteArray &sample)
{
    TextDecoder decoder(legacy.name);
    const std::u32string text = decoder.decode(sample);
    if (!decoder.isValid() || text.empty())
        return 0;
    const auto beyond =
        std::count_if(text.cbegin(), text.cend(), [](char32_t c) { return c >= 0x80; });
    if (beyond == 0 || double(decoder.broken()) > kMostBroken * double(beyond))
        return 0;
    const Counts counts = countPairs(legacy, sample);
    if (counts.characters == 0)
        return 0.5; // nothing but signs
    // Narrow syllables in pairs could be ideographs of another encoding, which go first.
    constexpr double kPerhaps = 0.9;
    const int narrow = hasHalfWidthWords(sample) ? counts.halfWidth : 0;
    double share = (counts.frequent + counts.kana + kPerhaps * narrow) / counts.characters;
    // A few words say nothing of their language; the user's decides.
    constexpr int kSentence = 20;
    if (counts.characters < kSentence)
        return share;
    // A Japanese text has syllables between its ideographs, or is no sentence.
    const bool isJapanese = QLatin1StringView(legacy.language) == "ja"_L1;
    if (isJapanese && (counts.kana + narrow) * 20 < counts.characters)
        share *= 0.8;
    // Korean syllables fill a part of the rows that Chinese ideographs are in: all of a text in
    // that part is no chance.
    const bool isKorean = QLatin1StringView(legacy.language) == "ko"_L1;
    if (isKorean && share >= 0.95)
        share += 2 * kOwnLanguage;
    else if (isKorean && hasKoreanWords(counts))
        share = 1;
    else if (isKorean)
        share *= 0.5;
    return share;
}

// Single letters between others: "Müller". Two bytes of an ideograph stand beside each other, or
// one stands before a letter or a sign that no word goes on with.
double scoreOfWestern(const QByteArray &sample)
{
    int letters = 0;
    int all = 0;
    for (qsizetype i = 0; i < sample.size();) {
        if (!isHigh(sample.at(i))) {
            ++i;
            continue;
        }
        qsizetype end = i;
        while (end < sample.size() && isHigh(sample.at(end)))
            ++end;
        const char before = i > 0 ? sample.at(i - 1) : ' ';
        const char after = end < sample.size() ? sample.at(end) : ' ';
        const auto isWordly = [](char c) {
            return QChar::isLetter(uchar(c)) || QByteArrayView(" \n\r\t,.;:!?'\"()-").contains(c);
        };
        const auto first = static_cast<uchar>(sample.at(i));
        const bool isKnown = first >= 0xA0 || QByteArrayView("\x80\x84\x85\x8A\x8C\x8E\x91\x92\x93"
                                                             "\x94\x96\x97\x9A\x9C\x9E\x9F")
                                                  .contains(char(first));
        ++all;
        if (end - i == 1 && isKnown && isWordly(before) && isWordly(after))
            ++letters;
        i = end;
    }
    return all == 0 ? 0 : 0.97 * letters / all;
}

// Asked for each byte of a text, which nobody wants to wait for.
bool saysSomething(char c)
{
    return isHigh(c) || c == '\x0E' || c == '\x0F' || c == '\x1B';
}

// What is worth looking at: lines that are no plain ASCII.
QByteArray sampleOf(QIODevice &text)
{
    QByteArray sample;
    qint64 lookedAt = 0;
    while (lookedAt < kMostLookedAt && sample.size() < kEnough) {
        QByteArray block = text.read(kBlock);
        if (block.isEmpty())
            break;
        block += text.readLine(kPiece); // so that it ends where a line ends
        lookedAt += block.size();
        if (std::none_of(block.cbegin(), block.cend(), saysSomething))
            continue;
        for (qsizetype begin = 0; begin < block.size() && sample.size() < kEnough;) {
            const qsizetype newline = block.indexOf('\n', begin);
            const qsizetype end = newline < 0 ? block.size() : newline + 1;
            const QByteArray line = block.mid(begin, std::min(end - begin, kEnough));
            if (std::any_of(line.cbegin(), line.cend(), saysSomething))
                sample += line;
            begin = end;
        }
    }
    return sample;
}

bool isUtf8(const QByteArray &sample)
{
    TextDecoder decoder(kUtf8);
    const std::u32string text = decoder.decode(sample);
    const auto beyond =
        std::count_if(text.cbegin(), text.cend(), [](char32_t c) { return c >= 0x80; });
    // A text of another encoding is broken at nearly every character.
    return double(decoder.broken()) <= 0.1 * double(beyond);
}

// Frequent ideographs that the Chinese of one region write so, in the same order. Of words that
// both write alike there is nothing to be learned.
constexpr std::u32string_view kTraditional =
    U"們個這來時會國說為對學過還種從動點問開關無樣當與發經頁紙張設選擇雙邊單請檢";
constexpr std::u32string_view kSimplified =
    U"们个这来时会国说为对学过还种从动点问开关无样当与发经页纸张设选择双边单请检";

// `fallback` where the text does not say whose Chinese it is.
QString languageOfChinese(const std::u32string &text, const QString &fallback)
{
    const auto count = [&](std::u32string_view characters) {
        return std::count_if(text.cbegin(), text.cend(), [&](char32_t c) {
            return characters.find(c) != std::u32string_view::npos;
        });
    };
    const auto traditional = count(kTraditional);
    const auto simplified = count(kSimplified);
    if (traditional == simplified)
        return fallback;
    return traditional > simplified ? u"zh_TW"_s : u"zh_CN"_s;
}

// The language whose shapes of the ideographs a Unicode text wants.
QString languageOfUnicode(const QByteArray &sample, const QString &userLanguage,
                          const QByteArray &encoding = kUtf8)
{
    TextDecoder decoder(encoding);
    const std::u32string text = decoder.decode(sample);
    const auto count = [&](bool (*is)(char32_t)) {
        return std::count_if(text.cbegin(), text.cend(), is);
    };
    const auto ideographs = count(isIdeograph);
    if (count(isKana) * 20 > ideographs && count(isKana) > 0)
        return u"ja"_s;
    if (count(isHangul) > ideographs)
        return u"ko"_s;
    // Ideographs alone: Chinese, unless the user reads something else that is written so.
    if (ideographs == 0 || userLanguage == "ja"_L1 || userLanguage == "ko"_L1)
        return userLanguage;
    return languageOfChinese(text, userLanguage.isEmpty() ? u"zh_CN"_s : userLanguage);
}

} // namespace

TextEncoding recognizeEncoding(QIODevice &text, const QString &userLanguage)
{
    text.seek(0);
    const QByteArray beginning = text.peek(kPiece);
    for (const Marker &marker : kMarkers) {
        if (beginning.startsWith(marker.bytes)) {
            const auto length = static_cast<int>(marker.bytes.size());
            text.seek(length);
            const bool eight = marker.encoding == kUtf8;
            return {marker.encoding,
                    eight ? languageOfUnicode(sampleOf(text), userLanguage) : userLanguage, length};
        }
    }
    if (const QByteArray wide = unmarkedUtf16(beginning); !wide.isEmpty())
        return {wide, languageOfUnicode(beginning, userLanguage, wide)};
    const QByteArray sample = sampleOf(text);
    if (const QByteArray switched = encodingBySwitches(sample); !switched.isEmpty())
        return {switched, QString::fromLatin1(languageOfSwitches(switched, sample)), 0, true};
    if (isUtf8(sample))
        return {kUtf8, languageOfUnicode(sample, userLanguage)};
    TextEncoding best{kWestern, userLanguage};
    double bestScore = scoreOfWestern(sample);
    for (const Legacy &legacy : kLegacy) {
        double score = scoreOf(legacy, sample);
        if (score > 0 && userLanguage == QLatin1StringView(legacy.language))
            score += kOwnLanguage;
        if (score > bestScore) {
            bestScore = score;
            best = {legacy.name, QString::fromLatin1(legacy.language), 0, true};
        }
    }
    return best;
}

bool looksLikeText(const QByteArray &beginning)
{
    for (const Marker &marker : kMarkers) {
        if (beginning.startsWith(marker.bytes))
            return true;
    }
    if (!unmarkedUtf16(beginning).isEmpty())
        return true;
    const QByteArrayView controls =
        encodingBySwitches(beginning).isEmpty() ? "\b\t\n\v\f\r\x1B" : "\b\t\n\v\f\r\x1B\x0E\x0F";
    return std::all_of(beginning.cbegin(), beginning.cend(), [&](char c) {
        return static_cast<uchar>(c) >= 0x20 || controls.contains(c);
    });
}

} // namespace corvana
