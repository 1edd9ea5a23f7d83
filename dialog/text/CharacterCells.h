#pragma once

namespace corvana {

/// How many columns of a fixed-width text a character takes: 2 for ideographs, kana and other full
/// characters, 0 for marks that stand on the character before them and for what is invisible, else
/// 1. Source: Unicode 14, East_Asian_Width (W and F) and General_Category (Mn, Me, Cf).
int cellsOf(char32_t character);

/// Whether a character is a mark on the one before it.
bool isMark(char32_t character);

} // namespace corvana
