#pragma once

#include <QHash>
#include <QPainterPath>
#include <QRawFont>
#include <QString>

namespace corvana {

/// What a character looks like, whichever of the system's fonts has it.
struct TextGlyph
{
    QPainterPath outline; ///< Units: thousandths of the font's size; y grows downwards
    double advance = 0;   ///< Units: as the outline
    bool isThere = false; ///< whether any font has it
};

/// The glyphs of a text of fixed width: those of the system's usual fixed-width font, then those of
/// the fonts that suit the text's language, since one ideograph has other shapes in Japanese than
/// in Chinese, then those of any font.
///
/// Needs a QGuiApplication. Thread: any, but only the one that made it.
class TextGlyphs
{
public:
    explicit TextGlyphs(const QString &language);

    TextGlyph glyph(char32_t character, bool bold);
    /// Whether any font has it.
    bool has(char32_t character);

private:
    struct Found
    {
        QRawFont font;
        quint32 index = 0; // 0: there is none
    };
    Found find(char32_t character, bool bold);
    Found findAnywhere(char32_t character, bool bold);

    QString m_language;
    QList<QRawFont> m_fonts[2]; // regular and bold, best first
    int m_searches = 0;
};

} // namespace corvana
