#pragma once

#include <QList>
#include <QString>

#include "platform/pde/PDEJobValues.h"
#include "platform/pde/PDEPageColors.h"

namespace corvana {

struct OpenedPrinter;

/// Whether the job comes out in black and white, whoever says so: the printer has one ink, the job
/// asks for it, or an option of the PPD does.
bool isBlackAndWhite(const OpenedPrinter &printer, const QList<JobOption> &attributes);

/// How colours come out with what the panels show now, saved or not. `isBlack`: what
/// isBlackAndWhite() said; it takes longer to find out than a slider has time for.
PageColors shownColors(const OpenedPrinter &printer, bool isBlack);

/// What a preview shows of the colours and what nobody can show, in words.
QString colorsText(const PageColors &colors, const OpenedPrinter &printer);

} // namespace corvana
