#include "dialog/text/TextFlow.h"

#include <algorithm>
#include <utility>

#include <QString>

#include "dialog/text/CharacterCells.h"

namespace corvana {

namespace {

constexpr int kTabulator = 8;
// On one character; more is a joke or an attack.
constexpr size_t kMostMarks = 4;
constexpr char32_t kNextLine = 0x85;

// The sign for a control character, such as "␛".
char32_t shown(char32_t character)
{
    if (character < 0x20)
        return 0x2400 + character;
    if (character == 0x7F)
        return 0x2421;
    return character >= 0x80 && character < 0xA0 ? 0xFFFD : character;
}

// "が" of "か" and a mark, where Unicode has it as one.
char32_t composed(char32_t character, char32_t mark)
{
    const char32_t both[] = {character, mark};
    const std::u32string one =
        QString::fromUcs4(both, 2).normalized(QString::NormalizationForm_C).toStdU32String();
    return one.size() == 1 ? one.front() : 0;
}

} // namespace

TextFlow::TextFlow(const TextFormat &format, bool signsAreWide, Taker taker)
    : m_format(format), m_signsAreWide(signsAreWide), m_taker(std::move(taker))
{
}

bool TextFlow::write(std::u32string_view characters)
{
    for (const char32_t character : characters) {
        if (!m_wanted)
            return false;
        switch (character) {
        case U'\b':
            m_cell = std::max(0, m_cell - 1);
            break;
        case U'\t':
            m_cell = std::min((m_cell / kTabulator + 1) * kTabulator, m_format.cellsInColumn());
            if (m_format.wrap && m_cell >= m_format.cellsInColumn())
                lineFeed();
            break;
        case U'\n':
        case kNextLine:
            lineFeed();
            break;
        case U'\v':
            lineFeed();
            break;
        case U'\f':
            nextColumn();
            break;
        case U'\r':
            m_cell = 0;
            break;
        default:
            put(shown(character));
        }
    }
    return m_wanted;
}

bool TextFlow::finish()
{
    if (m_line > 0 || m_column > 0 || m_cell > 0 || !m_anyPage)
        endPage();
    return m_wanted;
}

int TextFlow::cellsFor(char32_t character) const
{
    const bool isHalfWidth = character >= 0xFF61 && character <= 0xFFDC;
    const int cells = cellsOf(character);
    const bool isWideSign = m_signsAreWide && character > 0xA0 && cells == 1 && !isHalfWidth;
    return std::min(isWideSign ? 2 : cells, m_format.cellsInColumn());
}

void TextFlow::put(char32_t character)
{
    if (isMark(character))
        return putMark(character);
    const int cells = cellsFor(character);
    if (cells == 0)
        return; // invisible, such as a change of direction
    wrapBefore(cells);
    if (!m_wanted || m_cell + cells > m_format.cellsInColumn()) {
        m_cell = m_format.cellsInColumn(); // cut off
        return;
    }
    // A wide character of which one half is written over is gone.
    if (m_cell > 0 && cellAt(m_cell - 1).cells == 2)
        cellAt(m_cell - 1) = TextCell{};
    overstrike(cellAt(m_cell), character, cells);
    if (cellAt(m_cell).cells == 2)
        cellAt(m_cell + 1) = TextCell{};
    m_cell += cells;
}

void TextFlow::overstrike(TextCell &cell, char32_t character, int cells)
{
    const bool isFree = cell.character == 0 || cell.character == U' ';
    if (character == cell.character) {
        cell.bold = character != U' ';
    } else if (cell.character == U'_') {
        cell = {character, {}, cells, cell.bold, true};
    } else if (character == U'_' && !isFree) {
        cell.underlined = true;
    } else if (character != U' ' || isFree) {
        cell = {character, {}, cells, false, false};
    }
}

void TextFlow::putMark(char32_t mark)
{
    const int base = m_column * (m_format.cellsInColumn() + m_format.gapOfColumns());
    if (m_line >= static_cast<int>(m_page.size()))
        return;
    TextLine &line = m_page[static_cast<size_t>(m_line)];
    // The right half of a wide character has none of its own.
    for (int cell = base + m_cell - 1; cell >= base && cell > base + m_cell - 3; --cell) {
        if (cell >= static_cast<int>(line.size()))
            return;
        TextCell &held = line[static_cast<size_t>(cell)];
        if (held.character == 0)
            continue;
        if (const char32_t one = held.marks.empty() ? composed(held.character, mark) : 0)
            held.character = one;
        else if (held.marks.size() < kMostMarks)
            held.marks += mark;
        return;
    }
}

TextCell &TextFlow::cellAt(int cell)
{
    const int place = m_column * (m_format.cellsInColumn() + m_format.gapOfColumns()) + cell;
    if (m_page.size() <= static_cast<size_t>(m_line))
        m_page.resize(static_cast<size_t>(m_line) + 1);
    TextLine &line = m_page[static_cast<size_t>(m_line)];
    if (line.size() <= static_cast<size_t>(place))
        line.resize(static_cast<size_t>(place) + 1);
    return line[static_cast<size_t>(place)];
}

void TextFlow::wrapBefore(int cells)
{
    if (m_format.wrap && m_cell > 0 && m_cell + cells > m_format.cellsInColumn())
        lineFeed();
}

void TextFlow::lineFeed()
{
    m_cell = 0;
    ++m_line;
    if (m_line >= m_format.linesOnPage())
        nextColumn();
}

void TextFlow::nextColumn()
{
    m_cell = 0;
    m_line = 0;
    if (++m_column >= m_format.columns)
        endPage();
}

void TextFlow::endPage()
{
    m_wanted = m_wanted && m_taker(m_page);
    m_anyPage = true;
    m_page.clear();
    m_column = 0;
    m_line = 0;
    m_cell = 0;
}

} // namespace corvana
