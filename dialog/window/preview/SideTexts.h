#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "dialog/window/preview/SheetLayout.h"

namespace corvana {

/// The edge of a side, as it is read, at which its sheet is bound; nothing where none is.
std::optional<Qt::Edge> boundEdge(const SheetPlan &plan, SideIndex side);

/// The side of a plan; null where there is none. Ownership: the plan's.
const PlannedSide *sideOf(const SheetPlan &plan, SideIndex side);

/// What stands below a side: "2 back", and "2" where sheets have one side only.
QString sideLabel(const SheetPlan &plan, SideIndex side);

/// The same for somebody who does not see it: "Sheet 2, back: pages 7 and 8, landscape". `titles`
/// are those of the documents, which are named where there are several.
QString sideDescription(const SheetPlan &plan, const QStringList &titles, SideIndex side);

/// Which edge that is, for a tool tip: "Bound at the left edge"; empty where nothing is bound.
QString boundEdgeText(const SheetPlan &plan, SideIndex side);

} // namespace corvana
