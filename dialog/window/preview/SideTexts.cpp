#include "dialog/window/preview/SideTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SheetView)
};

// Sheets of a booklet have backs and are bound at no edge.
bool isTwoSided(const SheetPlan &plan, SideIndex side)
{
    return plan.binding != SheetPlan::Binding::None ||
           (side.sheet >= 0 && side.sheet < plan.sheets.size() &&
            plan.sheets.at(side.sheet).back.has_value());
}

// What is on a side.
QString contentsText(const PlannedSide &side)
{
    if (side.kind == PlannedSide::Kind::Cover)
        return Texts::tr("cover sheet");
    if (side.kind == PlannedSide::Kind::Blank)
        return Texts::tr("blank");
    QStringList numbers;
    for (const int page : side.pages)
        numbers += QString::number(page);
    if (numbers.isEmpty()) // nobody knows which
        return Texts::tr("printed");
    if (numbers.size() == 1)
        return Texts::tr("page %1").arg(numbers.constFirst());
    return Texts::tr("pages %1").arg(QLocale().createSeparatedList(numbers));
}

} // namespace

const PlannedSide *sideOf(const SheetPlan &plan, SideIndex side)
{
    if (side.sheet < 0 || side.sheet >= plan.sheets.size())
        return nullptr;
    const PlannedSheet &sheet = plan.sheets.at(side.sheet);
    if (!side.isBack)
        return &sheet.front;
    return sheet.back ? &*sheet.back : nullptr;
}

std::optional<Qt::Edge> boundEdge(const SheetPlan &plan, SideIndex side)
{
    const PlannedSide *planned = sideOf(plan, side);
    if (!planned)
        return std::nullopt;
    return bindingEdge(plan.binding, *planned, side.isBack ? SheetSide::Back : SheetSide::Front);
}

QString sideLabel(const SheetPlan &plan, SideIndex side)
{
    const int number = side.sheet + 1;
    if (!isTwoSided(plan, side))
        return QLocale().toString(number);
    return side.isBack ? Texts::tr("%L1 back").arg(number) : Texts::tr("%L1 front").arg(number);
}

QString sideDescription(const SheetPlan &plan, const QStringList &titles, SideIndex side)
{
    const PlannedSide *planned = sideOf(plan, side);
    if (!planned)
        return {};
    QString pages = contentsText(*planned);
    if (titles.size() > 1 && !planned->pages.isEmpty())
        pages = Texts::tr("%1 of %2").arg(pages, titles.value(planned->document));
    const QString number = QLocale().toString(side.sheet + 1);
    const bool isLandscape = planned->paper.width() > planned->paper.height();
    QString text;
    if (!isTwoSided(plan, side))
        text = Texts::tr("Sheet %L1: %2").arg(number, pages);
    else if (side.isBack)
        text = Texts::tr("Sheet %L1, back: %2").arg(number, pages);
    else
        text = Texts::tr("Sheet %L1, front: %2").arg(number, pages);
    return isLandscape ? Texts::tr("%1, landscape").arg(text) : text;
}

QString boundEdgeText(const SheetPlan &plan, SideIndex side)
{
    const std::optional<Qt::Edge> edge = boundEdge(plan, side);
    if (!edge)
        return {};
    switch (*edge) {
    case Qt::LeftEdge:
        return Texts::tr("Bound at the left edge");
    case Qt::TopEdge:
        return Texts::tr("Bound at the top edge");
    case Qt::RightEdge:
        return Texts::tr("Bound at the right edge");
    case Qt::BottomEdge:
        return Texts::tr("Bound at the bottom edge");
    }
    return {};
}

} // namespace corvana
