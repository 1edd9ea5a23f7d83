#pragma once

#include <vector>

#include <QByteArray>

#include "dialog/text/TextGlyphs.h"

namespace corvana {

/// A font that a PDF of text is written with (Type 3): up to 256 characters, whichever font of the
/// system they come from, each with a glyph of its own.
struct TextFont
{
    struct Character
    {
        char32_t character = 0; ///< 0: the place is free
        int cells = 1;
    };

    bool bold = false;
    std::vector<Character> characters; ///< by their codes
};

/// A glyph is made in a space of its own, where two columns are so wide, and the height of the font
/// is the same: then every glyph of a line follows the one before without being placed.
inline constexpr double kGlyphSpace = 1000;

/// A number as PDF has it.
QByteArray pdfNumber(double value);

/// By its name a glyph is known again in PostScript, which has no other table for that.
QByteArray glyphName(char32_t character, int cells);

/// What draws a glyph in that space, and how wide it is: so many columns. `proportion` is the width
/// of the glyph space of a font that nobody stretches. Where there is no glyph, it is an empty
/// frame.
QByteArray glyphProgram(int cells, const TextGlyph &glyph, double proportion);

/// What the codes of a font mean, for whoever searches or copies the text.
QByteArray meaningsOf(const TextFont &font);

} // namespace corvana
