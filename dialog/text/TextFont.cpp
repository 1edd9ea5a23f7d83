#include "dialog/text/TextFont.h"

#include <algorithm>
#include <cmath>

#include <QPainterPath>
#include <QTransform>

#include "dialog/text/CharacterCells.h"

namespace corvana {

namespace {

// A glyph of another proportion is stretched or narrowed so far and no further.
constexpr double kMostStretch = 1.1;

QByteArray utf16(char32_t character)
{
    QByteArray hex;
    const QString text = QString::fromUcs4(&character, 1);
    for (const QChar unit : text)
        hex += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
    return hex;
}

QByteArray pathProgram(const QPainterPath &path)
{
    QByteArray program;
    const auto point = [&](int i) {
        const QPainterPath::Element element = path.elementAt(i);
        program += QByteArray::number(qRound(element.x)) + ' ' +
                   QByteArray::number(qRound(element.y)) + ' ';
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        switch (path.elementAt(i).type) {
        case QPainterPath::MoveToElement:
            point(i);
            program += "m\n";
            break;
        case QPainterPath::LineToElement:
            point(i);
            program += "l\n";
            break;
        case QPainterPath::CurveToElement:
            point(i);
            point(i + 1);
            point(i + 2);
            program += "c\n";
            i += 2;
            break;
        case QPainterPath::CurveToDataElement:
            break;
        }
    }
    return program + "f\n";
}

// What stands for a character that no font has: an empty frame, so that something is missed. The
// inner rectangle goes the other way round, which makes it a hole.
QPainterPath frame(double width)
{
    constexpr double kHeight = 0.7 * kGlyphSpace;
    constexpr double kLine = 50;
    const double left = 0.1 * width;
    const double right = 0.9 * width;
    QPainterPath path;
    path.addRect(left, 0, right - left, kHeight);
    path.moveTo(left + kLine, kLine);
    path.lineTo(left + kLine, kHeight - kLine);
    path.lineTo(right - kLine, kHeight - kLine);
    path.lineTo(right - kLine, kLine);
    path.closeSubpath();
    return path;
}

} // namespace

QByteArray pdfNumber(double value)
{
    QByteArray text = QByteArray::number(value, 'f', 3);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text == "-0" ? QByteArray("0") : text;
}

QByteArray glyphName(char32_t character, int cells)
{
    const QByteArray hex = QByteArray::number(uint(character), 16).toUpper();
    const QByteArray name = character > 0xFFFF ? "u" + hex : "uni" + hex.rightJustified(4, '0');
    return cells == cellsOf(character) ? name : name + ".alt";
}

QByteArray glyphProgram(int cells, const TextGlyph &glyph, double proportion)
{
    const double width = cells * kGlyphSpace / 2;
    QPainterPath path = frame(width);
    if (glyph.isThere) {
        const double toFit = glyph.advance > 0 ? width / glyph.advance : proportion;
        // A glyph that is as narrow as its columns fills them, as in any text of fixed width.
        const double scale = std::min(toFit, kMostStretch * proportion);
        const double indent = std::max(0.0, (width - scale * glyph.advance) / 2);
        path = QTransform(scale, 0, 0, -1, indent, 0).map(glyph.outline);
    }
    const QRectF bounds = path.boundingRect();
    return pdfNumber(width) + " 0 " + pdfNumber(std::floor(bounds.left()) - 1) + ' ' +
           pdfNumber(std::floor(bounds.top()) - 1) + ' ' +
           pdfNumber(std::ceil(bounds.right()) + 1) + ' ' +
           pdfNumber(std::ceil(bounds.bottom()) + 1) + " d1\n" +
           (path.isEmpty() ? QByteArray() : pathProgram(path));
}

QByteArray meaningsOf(const TextFont &font)
{
    constexpr qsizetype kMostInList = 100;
    QByteArrayList meanings;
    for (size_t code = 0; code < font.characters.size(); ++code) {
        const char32_t character = font.characters[code].character;
        if (character != 0)
            meanings += '<' + QByteArray::number(code, 16).rightJustified(2, '0') + "> <" +
                        utf16(character) + ">\n";
    }
    QByteArray lists;
    for (qsizetype done = 0; done < meanings.size(); done += kMostInList) {
        const QByteArrayList list = meanings.mid(done, kMostInList);
        lists += QByteArray::number(list.size()) + " beginbfchar\n" + list.join() + "endbfchar\n";
    }
    return "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"
           "/CMapName /Text def\n/CMapType 2 def\n"
           "1 begincodespacerange\n<00> <FF>\nendcodespacerange\n" +
           lists + "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
}

} // namespace corvana
