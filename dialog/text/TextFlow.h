#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "dialog/text/TextFormat.h"

namespace corvana {

/// One column of one line.
struct TextCell
{
    char32_t character = 0; ///< 0: nothing, or the right half of the character before it
    std::u32string marks{}; ///< on the character
    int cells = 1;          ///< that the character takes
    bool bold = false;
    bool underlined = false;

    bool operator==(const TextCell &) const = default;
};

/// A line as far as it was written to.
using TextLine = std::vector<TextCell>;

/// One page: its lines, as far as there are any, over the whole width of the page.
using TextPage = std::vector<TextLine>;

/// Lays the characters of a text out on pages as a line printer does: tabulators to each eighth
/// column, form feeds, carriage returns that write over a line, and backspaces that make a
/// character bold (the same again) or underlined. What is left of control characters is shown as
/// the sign for it, so that no sequence of them does anything.
///
/// Holds one page at a time, whatever the length of the text or of one of its lines.
class TextFlow
{
public:
    /// Takes a page that is complete. False: nothing more is wanted.
    using Taker = std::function<bool(const TextPage &)>;

    /// `signsAreWide`: see TextEncoding.
    TextFlow(const TextFormat &format, bool signsAreWide, Taker taker);

    /// False when the taker wants no more.
    bool write(std::u32string_view characters);
    /// Ends the text; a text has at least one page.
    bool finish();

private:
    void put(char32_t character);
    void putMark(char32_t mark);
    static void overstrike(TextCell &cell, char32_t character, int cells);
    TextCell &cellAt(int cell);
    int cellsFor(char32_t character) const;
    void wrapBefore(int cells);
    void lineFeed();
    void nextColumn();
    void endPage();

    TextFormat m_format;
    bool m_signsAreWide;
    Taker m_taker;
    TextPage m_page;
    int m_line = 0;
    int m_cell = 0;   // in its column of text
    int m_column = 0; // of text
    bool m_wanted = true;
    bool m_anyPage = false;
};

} // namespace corvana
