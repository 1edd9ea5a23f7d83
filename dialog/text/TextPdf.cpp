#include "dialog/text/TextPdf.h"

#include <algorithm>

#include <QDateTime>
#include <QLocale>

#include "dialog/text/CharacterCells.h"
#include "dialog/text/WholeWrite.h"

namespace corvana {

namespace {

constexpr int kPlacesInFont = 256;
// Objects that are named before they are written.
constexpr int kCatalog = 1;
constexpr int kPageTree = 2;
constexpr int kResources = 3;

// The text filter of CUPS fills so many of the 72 points of an inch with its lines.
constexpr double kFontHeightPerInch = 68;
// Where the baseline lies between the top of a line and its end, of the height of the font.
constexpr double kAscent = 0.8;

QByteArray reference(int object)
{
    return QByteArray::number(object) + " 0 R";
}

// A zlib stream, without the length that Qt puts before it.
QByteArray deflated(const QByteArray &content)
{
    constexpr int kFast = 3;
    return qCompress(content, kFast).mid(4);
}

} // namespace

TextPdf::TextPdf(QIODevice &file, const TextFormat &format, TextGlyphs &glyphs)
    : m_file(file), m_format(format), m_glyphs(glyphs), m_places(kResources + 1),
      m_date(QLocale::c().toString(QDateTime::currentDateTime(), u"yyyy-MM-dd HH:mm").toLatin1())
{
    TextFont latin;
    latin.characters.resize(kPlacesInFont);
    m_fonts.push_back(latin);
    write("%PDF-1.5\n%\xE2\xE3\xCF\xD3\n");
}

void TextPdf::write(const QByteArray &bytes)
{
    m_isWhole = m_isWhole && writeWhole(m_file, bytes);
    m_written += bytes.size();
}

int TextPdf::reserve()
{
    m_places.push_back(0);
    return static_cast<int>(m_places.size()) - 1;
}

void TextPdf::beginObject(int object)
{
    m_places[static_cast<size_t>(object)] = m_written;
    write(QByteArray::number(object) + " 0 obj\n");
}

void TextPdf::writeObject(int object, const QByteArray &content)
{
    beginObject(object);
    write(content + "\nendobj\n");
}

void TextPdf::writeStream(int object, const QByteArray &content)
{
    const QByteArray packed = deflated(content);
    beginObject(object);
    write("<</Filter/FlateDecode/Length " + QByteArray::number(packed.size()) + ">>\nstream\n");
    write(packed + "\nendstream\nendobj\n");
}

bool TextPdf::addPage(const TextPage &page)
{
    const int content = reserve();
    const int object = reserve();
    m_pages.push_back(object);
    writeStream(content, contentOf(page));
    writeObject(object, "<</Type/Page/Parent " + reference(kPageTree) + "/MediaBox[0 0 " +
                            pdfNumber(m_format.page.width()) + ' ' +
                            pdfNumber(m_format.page.height()) + "]/Resources " +
                            reference(kResources) + "/Contents " + reference(content) + ">>");
    return m_isWhole;
}

// The place of a character among the fonts; a new one takes the next that is free.
TextPdf::Place TextPdf::placeOf(char32_t character, int cells, bool bold)
{
    const quint64 key = (quint64(character) << 8) | quint64(cells << 1) | quint64(bold);
    if (const auto known = m_known.constFind(key); known != m_known.constEnd())
        return *known;
    Place place;
    if (!bold && cells == 1 && character < kPlacesInFont) {
        place.code = static_cast<uchar>(character);
    } else {
        const auto hasRoom = [&](const TextFont &font) {
            return font.bold == bold && font.characters.size() < kPlacesInFont;
        };
        auto font = std::find_if(m_fonts.begin() + 1, m_fonts.end(), hasRoom);
        if (font == m_fonts.end())
            font = m_fonts.insert(m_fonts.end(), TextFont{bold, {}});
        place.font = static_cast<int>(font - m_fonts.begin());
        place.code = static_cast<uchar>(font->characters.size());
        font->characters.emplace_back();
    }
    m_fonts[static_cast<size_t>(place.font)].characters[place.code] = {character, cells};
    m_known.insert(key, place);
    return place;
}

double TextPdf::baselineOf(int line) const
{
    const double top = m_format.page.height() - m_format.margins.top() - m_format.headerHeight();
    const double fontHeight = kFontHeightPerInch / m_format.linesPerInch;
    return top - line * m_format.lineHeight() - kAscent * fontHeight -
           (m_format.lineHeight() - fontHeight) / 2;
}

QByteArray TextPdf::textMatrix(double x, double y) const
{
    return pdfNumber(2 * m_format.cellWidth()) + " 0 0 " +
           pdfNumber(kFontHeightPerInch / m_format.linesPerInch) + ' ' + pdfNumber(x) + ' ' +
           pdfNumber(y) + " Tm\n";
}

QByteArray TextPdf::contentOf(const TextPage &page)
{
    QByteArray content = "BT\n" + (m_format.header ? header() : QByteArray());
    QByteArray marks;
    for (size_t line = 0; line < page.size(); ++line) {
        const double baseline = baselineOf(static_cast<int>(line));
        content += contentOfLine(page[line], baseline);
        marks += contentOfMarks(page[line], baseline);
    }
    return content + "ET\n" + marks;
}

QByteArray TextPdf::contentOfLine(const TextLine &line, double baseline)
{
    QByteArray content;
    QByteArray codes;
    int font = -1;
    const auto show = [&] {
        if (!codes.isEmpty())
            content += '<' + codes.toHex() + "> Tj\n";
        codes.clear();
    };
    for (size_t i = 0; i < line.size();) {
        const TextCell &cell = line[i];
        const char32_t character = cell.character == 0 ? U' ' : cell.character;
        const Place place = placeOf(character, cell.cells, cell.bold);
        if (place.font != font) {
            show();
            font = place.font;
            content += "/F" + QByteArray::number(font) + " 1 Tf\n";
        }
        codes += static_cast<char>(place.code);
        i += static_cast<size_t>(cell.cells);
    }
    show();
    return content.isEmpty() ? content : textMatrix(m_format.margins.left(), baseline) + content;
}

// What stands on characters, and lines below them.
QByteArray TextPdf::contentOfMarks(const TextLine &line, double baseline)
{
    QByteArray content;
    for (size_t i = 0; i < line.size(); ++i) {
        const TextCell &cell = line[i];
        const double x = m_format.margins.left() + double(i) * m_format.cellWidth();
        for (const char32_t mark : cell.marks) {
            const Place place = placeOf(mark, 1, cell.bold);
            content += "BT /F" + QByteArray::number(place.font) + " 1 Tf " +
                       textMatrix(x, baseline) + '<' +
                       QByteArray(1, static_cast<char>(place.code)).toHex() + "> Tj ET\n";
        }
        if (cell.underlined)
            content += pdfNumber(x) + ' ' + pdfNumber(baseline - 0.12 * m_format.lineHeight()) +
                       ' ' + pdfNumber(cell.cells * m_format.cellWidth()) + ' ' +
                       pdfNumber(0.05 * m_format.lineHeight()) + " re f\n";
    }
    return content;
}

// Title, date and number of the page, each in bold on a line above the text.
QByteArray TextPdf::header()
{
    const int room = m_format.cellsInLine();
    TextLine line(static_cast<size_t>(room));
    const auto put = [&](const std::u32string &text, int first, int last) {
        for (const char32_t character : text) {
            const int cells = cellsOf(character);
            if (first < 0 || cells == 0 || first + cells > last)
                continue;
            line[static_cast<size_t>(first)] = {character, {}, cells, true, false};
            first += cells;
        }
    };
    const QByteArray page = QByteArray::number(pages());
    const int date = std::max(0, (room - static_cast<int>(m_date.size())) / 2);
    const int end = room - static_cast<int>(page.size());
    put(m_format.title.toStdU32String(), 0, date - 1);
    put(QString::fromLatin1(m_date).toStdU32String(), date, end - 1);
    put(QString::fromLatin1(page).toStdU32String(), end, room);
    const double top = m_format.page.height() - m_format.margins.top();
    const double height = 2 * m_format.lineHeight();
    const double width = m_format.page.width() - m_format.margins.left() - m_format.margins.right();
    const QByteArray band = "ET\nq 0.9 g " + pdfNumber(m_format.margins.left()) + ' ' +
                            pdfNumber(top - height) + ' ' + pdfNumber(width) + ' ' +
                            pdfNumber(height) + " re f Q\nBT\n";
    return band + contentOfLine(line, top - 1.3 * m_format.lineHeight());
}

// Answers its object.
int TextPdf::writeFont(const TextFont &font)
{
    // How wide a column is for a font of this height, against how wide a glyph wants it.
    const double proportion =
        kFontHeightPerInch / m_format.linesPerInch / (2 * m_format.cellWidth());
    QByteArray programs;
    QByteArray names;
    QByteArray widths;
    for (size_t code = 0; code < font.characters.size(); ++code) {
        const TextFont::Character &character = font.characters[code];
        const QByteArray name =
            '/' + (character.character == 0 ? QByteArray(".notdef")
                                            : glyphName(character.character, character.cells));
        widths += QByteArray::number(character.cells * int(kGlyphSpace) / 2) + ' ';
        names += name;
        if (character.character == 0)
            continue;
        const int program = reserve();
        writeStream(program,
                    glyphProgram(character.cells, m_glyphs.glyph(character.character, font.bold),
                                 proportion));
        programs += name + ' ' + reference(program);
    }
    const int meanings = reserve();
    writeStream(meanings, meaningsOf(font));
    const int object = reserve();
    writeObject(object, "<</Type/Font/Subtype/Type3/FontBBox[0 -500 1000 1500]"
                        "/FontMatrix[0.001 0 0 0.001 0 0]/FirstChar 0/LastChar " +
                            QByteArray::number(font.characters.size() - 1) + "/Widths[" + widths +
                            "]/Encoding<</Type/Encoding/Differences[0" + names + "]>>/CharProcs<<" +
                            programs + ">>/Resources<<>>/ToUnicode " + reference(meanings) + ">>");
    return object;
}

bool TextPdf::finish()
{
    QByteArray fonts;
    for (size_t i = 0; i < m_fonts.size(); ++i)
        fonts += "/F" + QByteArray::number(i) + ' ' + reference(writeFont(m_fonts[i]));
    writeObject(kResources, "<</Font<<" + fonts + ">>>>");
    QByteArray pages;
    for (const int page : m_pages)
        pages += reference(page) + '\n';
    writeObject(kPageTree, "<</Type/Pages/Count " + QByteArray::number(m_pages.size()) + "/Kids[" +
                               pages + "]>>");
    writeObject(kCatalog, "<</Type/Catalog/Pages " + reference(kPageTree) + ">>");
    const qint64 table = m_written;
    const QByteArray count = QByteArray::number(m_places.size());
    QByteArray places = "xref\n0 " + count + "\n0000000000 65535 f \n";
    for (size_t i = 1; i < m_places.size(); ++i)
        places += QByteArray::number(m_places[i]).rightJustified(10, '0') + " 00000 n \n";
    write(places + "trailer\n<</Size " + count + "/Root " + reference(kCatalog) +
          ">>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n");
    return m_isWhole;
}

} // namespace corvana
