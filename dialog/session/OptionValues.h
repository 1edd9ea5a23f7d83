#pragma once

#include <QString>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

class PpdSession;

/// What the options of a printer are at in the job as it stands: the marks of the PPD, and where
/// the panels keep a value of their own for an option, that value.
///
/// Borrows the session, and the plug-in's values, which may be null.
class OptionValues
{
public:
    OptionValues(const PpdSession &session, const PDEJobValues *jobValues);

    struct Value
    {
        QString choice{}; ///< the keyword of a choice of the option; null where it is at none
        QString custom{}; ///< "Custom.…", where the choice stands for a value of the user's own

        bool operator==(const Value &) const = default;
    };
    Value of(const QString &keyword) const;
    /// The value as the user reads it; a password as dots. Null where there is none.
    QString text(const QString &keyword) const;
    bool differsFromDefault(const QString &keyword) const;

    /// Reads the panels' own values anew; the marks are read when they are asked for.
    void refresh();

private:
    /// Null where the panels have no value of their own.
    QString own(const QString &keyword) const;

    const PpdSession *m_session;
    const PDEJobValues *m_jobValues;
    QList<JobOption> m_own;
};

/// Whether the panels keep that option, or would refuse that value of it, as one of their own.
bool isValueOfPanels(const JobOption &option, const PpdSession &session,
                     const PDEJobValues *jobValues);

} // namespace corvana
