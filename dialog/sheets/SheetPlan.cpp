#include "dialog/sheets/SheetPlan.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "dialog/session/OptionNames.h"
#include "dialog/sheets/LaidOutDocument.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// The choices of two-sided options that bind at the short edge.
constexpr QLatin1StringView kShortEdges[] = {kDuplexShortEdge, "ShortEdge"_L1,
                                             "two-sided-short-edge"_L1, kByHandShortEdge};
constexpr auto kNoCover = "none"_L1;

bool bindsAtShortEdge(const QList<JobOption> &options)
{
    return std::any_of(options.cbegin(), options.cend(), [](const JobOption &option) {
        const bool isTwoSided = option.name.endsWith(kDuplexOption) || option.name == "sides"_L1 ||
                                option.name == kSidesByHandAttribute;
        return isTwoSided && std::find(std::begin(kShortEdges), std::end(kShortEdges),
                                       option.value) != std::end(kShortEdges);
    });
}

QString valueOf(const QList<JobOption> &options, QLatin1StringView name)
{
    QString value;
    for (const JobOption &option : options) {
        if (option.name == name)
            value = option.value;
    }
    return value;
}

// The turn of most pages; of the first ones where as many are turned otherwise.
int turnOf(const QList<int> &pages, const QList<int> &turns)
{
    std::array<int, 4> votes{};
    for (const int page : pages)
        ++votes[turns.value(page - 1) / 90 % 4];
    const int first = pages.isEmpty() ? 0 : turns.value(pages.constFirst() - 1) / 90 % 4;
    const auto most = std::max_element(votes.cbegin(), votes.cend());
    return 90 * (votes[first] == *most ? first : int(most - votes.cbegin()));
}

QSizeF turned(QSizeF size, int degrees)
{
    return degrees % 180 == 0 ? size : size.transposed();
}

// The sides of one document, in the order of printing.
class DocumentSides
{
public:
    DocumentSides(int index, const DocumentSheets &document, const SheetArrangement &arrangement,
                  bool isTwoSided)
        : m_index(index), m_document(document), m_arrangement(arrangement),
          m_isTwoSided(isTwoSided),
          m_pages(pagesInOrder(arrangement.choice, document.pages.value_or(0)))
    {
    }

    QList<PlannedSide> sides() const
    {
        const int count = m_document.sides.value_or(0);
        const int perSide = std::max(1, m_arrangement.pagesPerSide);
        const int withPages = (int(m_pages.size()) + perSide - 1) / perSide;
        // The chain adds at most one blank side, behind the last page. Where there is another
        // number of sides than that, nobody knows what is on them.
        const bool isKnown = count == withPages || count == withPages + 1;
        QList<PlannedSide> sides;
        for (int i = 0; i < count; ++i) {
            const int place = m_arrangement.isReversed ? count - 1 - i : i;
            const QList<int> pages = isKnown ? pagesAt(place * perSide, perSide) : QList<int>();
            sides += isKnown && pages.isEmpty() ? blank() : side(i, pages);
        }
        return m_arrangement.isTurnedRound ? turnedRound(sides) : sides;
    }

    PlannedSide blank() const
    {
        PlannedSide side;
        side.kind = PlannedSide::Kind::Blank;
        side.document = m_index;
        side.paper = m_arrangement.paper;
        return side;
    }

private:
    int m_index;
    const DocumentSheets &m_document;
    const SheetArrangement &m_arrangement;
    bool m_isTwoSided;
    QList<int> m_pages;

    // A filter that turns the sides of whole sheets round fills up the last sheet before that. What
    // has one side only it prints on one.
    QList<PlannedSide> turnedRound(QList<PlannedSide> sides) const
    {
        const bool fills = m_isTwoSided && sides.size() > 1 && sides.size() % 2 == 1;
        if (fills)
            sides += blank();
        std::reverse(sides.begin(), sides.end());
        return sides;
    }

    // What a person reads there: without the blank pages of a booklet, and a page that is repeated
    // once.
    QList<int> pagesAt(qsizetype first, qsizetype number) const
    {
        QList<int> pages = m_pages.mid(first, number);
        pages.removeAll(0);
        pages.erase(std::unique(pages.begin(), pages.end()), pages.end());
        return pages;
    }

    PlannedSide side(int laidOutPage, const QList<int> &pages) const
    {
        PlannedSide side;
        side.document = m_index;
        side.laidOutPage = laidOutPage;
        side.pages = pages;
        side.turn = turnOf(pages, m_document.turns);
        const QSizeF size = m_document.laidOut ? m_document.laidOut->size(laidOutPage) : QSizeF();
        side.paper = turned(size.isEmpty() ? m_arrangement.paper : size, side.turn);
        return side;
    }
};

// A blank side is held as the other side of its sheet.
void turnLike(const PlannedSide &other, PlannedSide &blank)
{
    blank.turn = other.turn;
    blank.paper = other.paper;
}

PlannedSheet sheetOf(const PlannedSide &front, const std::optional<PlannedSide> &back)
{
    PlannedSheet sheet{front, back};
    if (sheet.back && sheet.back->kind == PlannedSide::Kind::Blank)
        turnLike(sheet.front, *sheet.back);
    else if (sheet.back && sheet.front.kind == PlannedSide::Kind::Blank)
        turnLike(*sheet.back, sheet.front);
    return sheet;
}

// Each document begins on a sheet of its own.
QList<PlannedSheet> sheetsOf(const QList<PlannedSide> &sides, bool isTwoSided)
{
    QList<PlannedSheet> sheets;
    const qsizetype step = isTwoSided ? 2 : 1;
    for (qsizetype i = 0; i < sides.size(); i += step) {
        const bool hasBack = isTwoSided && i + 1 < sides.size();
        sheets += sheetOf(sides.at(i), hasBack ? std::optional(sides.at(i + 1)) : std::nullopt);
    }
    return sheets;
}

QList<PlannedSheet> coverSheet(const QString &name, QSizeF paper)
{
    if (name.isEmpty())
        return {};
    PlannedSide side;
    side.kind = PlannedSide::Kind::Cover;
    side.document = -1;
    side.paper = paper;
    side.cover = name;
    return {PlannedSheet{side}};
}

} // namespace

SheetArrangement sheetArrangement(const QList<JobOption> &options, const LayoutTraits &traits,
                                  bool printsCovers)
{
    SheetArrangement arrangement;
    arrangement.choice = pageChoiceOf(options);
    arrangement.pagesPerSide =
        std::max(1, valueOf(withPagesOfOrder(options), "number-up"_L1).toInt());
    arrangement.isReversed = traits.isReversed;
    arrangement.isTurnedRound = traits.isTurnedRound;
    arrangement.paper = traits.paper;
    // A booklet is bound where it is folded, at no edge.
    if (traits.isTwoSided && arrangement.choice.booklet == PageChoice::Booklet::No)
        arrangement.binding = bindsAtShortEdge(options) ? SheetPlan::Binding::ShortEdge
                                                        : SheetPlan::Binding::LongEdge;
    if (printsCovers) {
        const QString covers = valueOf(options, "job-sheets"_L1);
        const auto named = [](const QString &name) { return name == kNoCover ? QString() : name; };
        arrangement.coverBefore = named(covers.section(u',', 0, 0));
        arrangement.coverBehind = named(covers.section(u',', 1, 1));
    }
    return arrangement;
}

int coverSheets(const SheetArrangement &arrangement)
{
    return (arrangement.coverBefore.isEmpty() ? 0 : 1) +
           (arrangement.coverBehind.isEmpty() ? 0 : 1);
}

SheetPlan planSheets(const JobSheets &sheets, const SheetArrangement &arrangement)
{
    SheetPlan plan;
    plan.binding = arrangement.binding;
    plan.sheets = coverSheet(arrangement.coverBefore, arrangement.paper);
    for (int i = 0; i < sheets.documents.size(); ++i) {
        const DocumentSides sides(i, sheets.documents.at(i), arrangement, sheets.isTwoSided);
        plan.sheets += sheetsOf(sides.sides(), sheets.isTwoSided);
    }
    plan.sheets += coverSheet(arrangement.coverBehind, arrangement.paper);
    return plan;
}

std::optional<Qt::Edge> bindingEdge(SheetPlan::Binding binding, const PlannedSide &side,
                                    SheetSide which)
{
    using Binding = SheetPlan::Binding;
    if (binding == Binding::None)
        return std::nullopt;
    // Of the paper as it goes through the printer, before a side is turned to be read.
    const QSizeF paper = turned(side.paper, side.turn);
    const bool isUpright = paper.height() >= paper.width();
    const bool isAtSide = (binding == Binding::LongEdge) == isUpright;
    // Clockwise, so that turning a side is going on in the list.
    constexpr std::array kEdges{Qt::TopEdge, Qt::RightEdge, Qt::BottomEdge, Qt::LeftEdge};
    // Whoever turns over a sheet that is bound at the left finds the binding at the right of its
    // back. Where it is bound at the top, as a notepad is, the back has the binding at the bottom.
    const int front = isAtSide ? 3 : 0;
    const int edge = which == SheetSide::Front ? front : front + 2;
    return kEdges.at((edge + side.turn / 90) % 4);
}

} // namespace corvana
