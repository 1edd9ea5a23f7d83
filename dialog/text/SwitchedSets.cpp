#include "dialog/text/SwitchedSets.h"

namespace corvana {

namespace {

constexpr auto kSimplified = "\x1B$)A";
constexpr auto kTraditional = "\x1B$)G";

// Shift Out and Shift In go to a set that was named at the beginning of its line or text, and back.
bool shifts(const QByteArray &text)
{
    return text.contains('\x0E') && text.contains('\x0F');
}

} // namespace

QByteArray encodingBySwitches(const QByteArray &text)
{
    if ((text.contains("\x1B$B") || text.contains("\x1B$@")) &&
        (text.contains("\x1B(B") || text.contains("\x1B(J")))
        return "ISO-2022-JP";
    if (text.contains("\x1B$)C") && shifts(text))
        return "ISO-2022-KR";
    if ((text.contains(kSimplified) || text.contains(kTraditional)) && shifts(text))
        return "ISO-2022-CN";
    return {};
}

const char *languageOfSwitches(const QByteArray &encoding, const QByteArray &text)
{
    if (encoding.endsWith("-JP"))
        return "ja";
    if (encoding.endsWith("-KR"))
        return "ko";
    return text.contains(kSimplified) ? "zh_CN" : "zh_TW";
}

} // namespace corvana
