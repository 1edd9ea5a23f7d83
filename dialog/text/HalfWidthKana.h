#pragma once

#include <QByteArrayView>

namespace corvana {

/// Whether the single bytes 0xA1 to 0xDF of a text in Shift_JIS are words in the narrow Japanese
/// syllables of older machines, and no halves of the characters of another encoding. Marks of voice
/// stand behind syllables that have a voice only, signs are few, and hardly any syllable is alone.
bool hasHalfWidthWords(QByteArrayView text);

} // namespace corvana
