#pragma once

#include <QHash>
#include <QList>
#include <QStringList>

#include "dialog/session/PanelHost.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// The options of the PPD that the General page offers and no panel has, in its order, as far as a
/// printer has them.
QStringList generalOptionKeywords();

/// The option for color that the General page offers although a panel has it, because the plug-in
/// names it; null where that names none, or one that this printer has nothing to choose from for.
QString colorOptionOf(const PpdSession &session, const PDEJobValues *jobValues);

/// All options of the PPD that the General page offers for this printer, in its order.
QStringList generalOptionsOf(const PpdSession &session, const PDEJobValues *jobValues);

/// The options of the PPD that have choices and are somebody's to choose for a job, in its order:
/// what is built into the printer ("Options Installed", the group InstallableOptions) is not.
QList<ppd_option_t *> choosableOptions(const PpdSession &session);

/// Those of them that the General page does not offer: what a printer without panels is set with
/// beside that page.
QList<ppd_option_t *> furtherOptions(const PpdSession &session);

/// The options of what is built into the printer.
QStringList installedPartKeywords(const PpdSession &session);

/// What a custom value ("Custom.…") is to a person: a paper size in the units of the user's region,
/// dots for a password, else the value itself.
QString customText(const PpdSession &session, const QString &keyword, const QString &custom);

/// Title and value of one option's mark, in the PPD's words; both empty when the PPD lacks it.
/// Passwords are not shown.
SummaryLine optionLine(const PpdSession &session, const QString &keyword);

/// The whole summary in display order: copies, the options of the General page, the job's
/// attributes, the panels, and those of the options that no panel has and that differ from the
/// printer's defaults; in a group of their own those that a panel has, without a line for them, and
/// that the job carries in another way than one without any choice. `remarks` stand in brackets
/// behind the values of attributes, by whose names they are found.
QList<SummaryLine> sessionSummary(const PpdSession &session, PanelHost &panels, int copies,
                                  const QList<JobOption> &attributes,
                                  const QHash<QString, QString> &remarks = {});

/// The summary as "Title: Value" lines, a heading as "Title:".
QString summaryText(const QList<SummaryLine> &lines);

} // namespace corvana
