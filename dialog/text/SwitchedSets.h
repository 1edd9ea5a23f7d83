#pragma once

#include <QByteArray>

namespace corvana {

/// What a text is written in that switches between sets of characters and needs no byte beyond
/// ASCII for it, as mails in Japanese, Korean and Chinese did: "ISO-2022-JP", "ISO-2022-KR" or
/// "ISO-2022-CN"; empty where it does not.
QByteArray encodingBySwitches(const QByteArray &text);

/// The language of a text in such an encoding, as TextEncoding names languages.
const char *languageOfSwitches(const QByteArray &encoding, const QByteArray &text);

} // namespace corvana
