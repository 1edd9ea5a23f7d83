#pragma once

#include <QList>
#include <QStringList>

#include "dialog/session/PanelHost.h"

namespace corvana {

/// The options of the PPD that the General page offers, in its order, as far as a printer has them.
QStringList generalOptionKeywords();

/// Title and value of one option's mark, in the PPD's words; both empty when the PPD lacks it.
SummaryLine optionLine(const PpdSession &session, const QString &keyword);

/// The whole summary in display order: copies, the options of the General page, the panels.
QList<SummaryLine> sessionSummary(const PpdSession &session, PanelHost &panels, int copies);

/// The summary as "Title: Value" lines.
QString summaryText(const QList<SummaryLine> &lines);

} // namespace corvana
