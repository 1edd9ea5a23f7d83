#include <QTest>

#include "dialog/text/CharacterCells.h"
#include "dialog/text/TextFlow.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Ten characters and four lines.
TextFormat smallPage()
{
    TextFormat format;
    format.page = {72, 48};
    return format;
}

// Pages are parted by "==", lines by "/"; the right half of a wide character is left out. Bold is
// "*", underlined "~", before the character.
QString shownPage(const TextPage &page)
{
    QStringList lines;
    for (const TextLine &line : page) {
        QString text;
        for (size_t i = 0; i < line.size(); i += size_t(line[i].cells)) {
            const TextCell &cell = line[i];
            text += (cell.bold ? u"*"_s : QString()) + (cell.underlined ? u"~"_s : QString());
            text += cell.character == 0 ? u" "_s : QString::fromUcs4(&cell.character, 1);
            text += QString::fromStdU32String(cell.marks);
        }
        lines += text;
    }
    return lines.join(u'/');
}

QString laidOut(const QString &text, const TextFormat &format, bool signsAreWide = false)
{
    QStringList pages;
    TextFlow flow(format, signsAreWide, [&](const TextPage &page) {
        pages += shownPage(page);
        return true;
    });
    flow.write(text.toStdU32String());
    flow.finish();
    return pages.join(u"=="_s);
}

struct Layout
{
    const char *name;
    const char16_t *text;
    const char16_t *pages;
    bool wrap = true;
    int columns = 1;
    bool signsAreWide = false;
};
constexpr Layout kLayouts[] = {
    {"lines", u"one\ntwo\n", u"one/two"},
    {"an empty text", u"", u""},
    {"lines of two systems", u"one\r\ntwo\r\n", u"one/two"},
    {"a long line goes on", u"0123456789abc", u"0123456789/abc"},
    {"a line that just fits", u"0123456789\nabc", u"0123456789/abc"},
    {"a long line is cut", u"0123456789abc\nd", u"0123456789/d", false},
    {"a full page", u"1\n2\n3\n4\n5", u"1/2/3/4==5"},
    {"a page that is just full", u"1\n2\n3\n4\n", u"1/2/3/4"},
    {"a form feed", u"1\f2", u"1==2"},
    {"tabulators", u"a\tb", u"a       b"},
    {"a tabulator beyond the end", u"abcdefghi\tb", u"abcdefghi/b"},
    {"bold by writing twice", u"b\bbo\bo", u"*b*o"},
    {"underlined", u"_\bu", u"~u"},
    {"underlined afterwards", u"u\b_", u"~u"},
    {"a line that is written over", u"xxx\ryy", u"yyx"},
    {"blanks write nothing over", u"abc\r   d", u"abcd"},
    {"two columns of text", u"1\n2\n3\n4\n5\f6", u"1      5/2/3/4==6", true, 2},
    {"wide characters", u"漢字abc", u"漢字abc"},
    {"five wide characters in a line", u"一二三四五六", u"一二三四五/六"},
    {"a wide one that fits no more", u"012345678漢", u"012345678/漢"},
    {"half a wide one is written over", u"漢\bx", u" x"},
    {"a wide one is underlined", u"漢\b\b_", u"~漢"},
    {"signs of one column", u"±±±±±±", u"±±±±±±"},
    {"signs of two columns", u"±±±±±±", u"±±±±±/±", true, 1, true},
    {"half-width kana in two bytes", u"ｱｱｱｱｱｱ", u"ｱｱｱｱｱｱ", true, 1, true},
    {"a mark that makes one character", u"か\u3099", u"が"},
    {"a mark that does not", u"x\u0305y", u"x\u0305y"},
    {"marks without end", u"x\u0305\u0305\u0305\u0305\u0305\u0305y", u"x\u0305\u0305\u0305\u0305y"},
    {"an escape sequence does nothing", u"\x1B[2J", u"␛[2J"},
    {"other control characters are seen", u"\a\x7F\u0090", u"␇␡\uFFFD"},
    {"a change of direction does nothing", u"a\u202Eb", u"ab"},
};

struct Cells
{
    const char *name;
    char32_t character;
    int cells;
};
constexpr Cells kCells[] = {
    {"a letter", U'a', 1},           {"a letter with an accent", U'é', 1},
    {"half-width kana", U'ｱ', 1},    {"kana", U'ア', 2},
    {"an ideograph", U'漢', 2},      {"a rare ideograph", U'𠮷', 2},
    {"a full letter", U'Ａ', 2},     {"the full blank", 0x3000, 2},
    {"a Korean syllable", U'한', 2}, {"a smiling face", U'😀', 2},
    {"a mark", 0x3099, 0},           {"an invisible joint", 0x200D, 0},
    {"a soft hyphen", 0xAD, 1},
};

} // namespace

/// Characters on lines and pages.
class TextFlowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsLaidOut_data() { addRows(kLayouts); }
    void aTextIsLaidOut()
    {
        const Layout &row = currentRow(kLayouts);
        TextFormat format = smallPage();
        format.wrap = row.wrap;
        format.columns = row.columns;
        QCOMPARE(laidOut(QString::fromUtf16(row.text), format, row.signsAreWide),
                 QString::fromUtf16(row.pages));
    }

    void aCharacterTakesItsColumns_data() { addRows(kCells); }
    void aCharacterTakesItsColumns()
    {
        const Cells &row = currentRow(kCells);
        QCOMPARE(cellsOf(row.character), row.cells);
    }

    void aLineWithoutEndHoldsOnePageAtATime()
    {
        int pages = 0;
        size_t most = 0;
        TextFlow flow(smallPage(), false, [&](const TextPage &page) {
            ++pages;
            for (const TextLine &line : page)
                most = std::max(most, line.size());
            return true;
        });
        const std::u32string piece(1000, U'x');
        for (int i = 0; i < 1000; ++i)
            QVERIFY(flow.write(piece));
        QVERIFY(flow.finish());
        QCOMPARE(pages, 1'000'000 / 40);
        QCOMPARE(most, size_t(10));
    }

    void nothingIsLaidOutForATakerThatHasEnough()
    {
        int pages = 0;
        TextFlow flow(smallPage(), false, [&](const TextPage &) { return ++pages < 2; });
        QVERIFY(!flow.write(std::u32string(1000, U'\f')));
        QCOMPARE(pages, 2);
    }
};

QTEST_GUILESS_MAIN(TextFlowTest)
#include "text_flow_test.moc"
