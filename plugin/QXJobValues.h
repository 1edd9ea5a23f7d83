#pragma once

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// The values that the panels keep in print settings entries of their own: the sleep time, the
/// density and the six colour effects. The one place that knows both their entries and their forms
/// as job options.
class QXJobValues : public PDEJobValues
{
public:
    QList<JobOption> jobOptions(const PrintSettings &settings, ppd_file_t *ppd) const override;
    JobValueClaim takeJobOption(const JobOption &option, PrintSettings &settings,
                                ppd_file_t *ppd) const override;
    QList<JobOption> impliedMarks(const PrintSettings &settings, ppd_file_t *ppd) const override;
    QList<JobOption> companions(const JobOption &marked, const PrintSettings &settings,
                                ppd_file_t *ppd) const override;
    QList<JobOption> choicesFor(const JobOption &attribute, ppd_file_t *ppd) const override;
    QList<PanelEntry> entries(const PrintSettings &settings, ppd_file_t *ppd) const override;
    QStringList deviceOptions() const override;
    QString colorOption(ppd_file_t *ppd) const override;
};

} // namespace corvana
