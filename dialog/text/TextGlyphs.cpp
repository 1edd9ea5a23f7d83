#include "dialog/text/TextGlyphs.h"

#include <iterator>

#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QTextLayout>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Size of the fonts that outlines are taken from. Units: pixels.
constexpr int kSize = 1000;
// A search through all fonts takes milliseconds. Whatever is left of a text that was made to have
// every character that there is counts as not there.
constexpr int kMostSearches = 4000;

struct LanguageFonts
{
    QLatin1StringView language;
    const char *families[6];
};

// Fixed-width ones first; the first that is installed is used. None of them: any font.
constexpr LanguageFonts kFonts[] = {
    {"ja"_L1,
     {"Noto Sans Mono CJK JP", "Noto Sans CJK JP", "IPAGothic", "IPAexGothic", "TakaoGothic",
      "VL Gothic"}},
    {"zh_CN"_L1,
     {"Noto Sans Mono CJK SC", "Noto Sans CJK SC", "WenQuanYi Zen Hei Mono",
      "WenQuanYi Micro Hei Mono", "AR PL UMing CN", "Droid Sans Fallback"}},
    {"zh_TW"_L1,
     {"Noto Sans Mono CJK TC", "Noto Sans CJK TC", "AR PL UMing TW", "WenQuanYi Zen Hei Mono",
      "WenQuanYi Micro Hei Mono", "Droid Sans Fallback"}},
    {"ko"_L1,
     {"Noto Sans Mono CJK KR", "Noto Sans CJK KR", "NanumGothicCoding", "NanumGothic",
      "Baekmuk Gulim", "UnDotum"}},
};

QFont fixedWidth(bool bold)
{
    QFont font(u"monospace"_s);
    font.setStyleHint(QFont::Monospace);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(kSize);
    font.setBold(bold);
    return font;
}

QStringList familiesOf(const QString &language)
{
    QStringList families;
    for (const LanguageFonts &fonts : kFonts) {
        if (fonts.language == language) {
            for (const char *family : fonts.families)
                families += QString::fromLatin1(family);
        }
    }
    return families;
}

QList<QRawFont> fontsFor(const QString &language, bool bold)
{
    QFont font = fixedWidth(bold);
    QList<QRawFont> fonts{QRawFont::fromFont(font)};
    const QStringList families = familiesOf(language);
    for (const QString &family : families) {
        if (!QFontDatabase::hasFamily(family))
            continue;
        font.setFamilies({family});
        fonts += QRawFont::fromFont(font);
    }
    return fonts;
}

} // namespace

TextGlyphs::TextGlyphs(const QString &language)
    : m_language(language), m_fonts{fontsFor(language, false), {}}
{
}

TextGlyph TextGlyphs::glyph(char32_t character, bool bold)
{
    const Found found = find(character, bold);
    if (found.index == 0)
        return {};
    const QList<QPointF> advances =
        QRawFont(found.font).advancesForGlyphIndexes(QList<quint32>{found.index});
    TextGlyph glyph{found.font.pathForGlyph(found.index), advances.constFirst().x(), true};
    // A picture instead of an outline, as of a coloured sign, cannot be printed in the text's ink.
    glyph.isThere = !glyph.outline.isEmpty() || QChar::isSpace(character);
    return glyph;
}

bool TextGlyphs::has(char32_t character)
{
    return glyph(character, false).isThere;
}

TextGlyphs::Found TextGlyphs::find(char32_t character, bool bold)
{
    QList<QRawFont> &fonts = m_fonts[bold ? 1 : 0];
    if (fonts.isEmpty())
        fonts = fontsFor(m_language, bold);
    for (const QRawFont &font : fonts) {
        if (!font.isValid() || !font.supportsCharacter(character))
            continue;
        const QList<quint32> indexes = font.glyphIndexesForString(QString::fromUcs4(&character, 1));
        if (!indexes.isEmpty() && indexes.constFirst() != 0)
            return {font, indexes.constFirst()};
    }
    return findAnywhere(character, bold);
}

TextGlyphs::Found TextGlyphs::findAnywhere(char32_t character, bool bold)
{
    if (++m_searches > kMostSearches)
        return {};
    QTextLayout layout(QString::fromUcs4(&character, 1), fixedWidth(bold));
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    for (const QGlyphRun &run : runs) {
        const QList<quint32> indexes = run.glyphIndexes();
        if (!indexes.isEmpty() && indexes.constFirst() != 0)
            return {run.rawFont(), indexes.constFirst()};
    }
    return {};
}

} // namespace corvana
