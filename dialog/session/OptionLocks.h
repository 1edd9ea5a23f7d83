#pragma once

#include <QMap>
#include <QString>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

class PpdSession;

/// What an administrator keeps an option, a value of the panels' own or an attribute of the job at.
struct OptionLock
{
    enum class Kind {
        Choice,     ///< of the PPD
        PanelValue, ///< stored among the panels' own entries
        Attribute,  ///< of the job, the number of copies among them
    };

    Kind kind = Kind::Choice;
    /// The mark of the PPD's option, custom values as "Custom.…"; null where nothing is marked.
    QString choice{};
    /// As the job carries it; null for an attribute that no job may have.
    QString value{};
    /// The same as an administrator wrote it, for whoever has to write it again; of an attribute
    /// that no job may have, the one that says the same thing by another name.
    JobOption asked{};
    QString by{}; ///< the place where it is decided: a file and a line

    bool operator==(const OptionLock &) const = default;

    /// Whether the option may be marked so.
    bool allows(const QString &mark) const;
    /// Whether a mark, a null one too, is what the option of this name is locked at.
    bool isKeptBy(const QString &keyword, const QString &mark) const;
    /// Whether a job may be asked for a value of the attribute.
    bool allowsAttribute(const JobOption &attribute) const;
};

/// By the keyword of the option, or the name of the attribute.
using OptionLocks = QMap<QString, OptionLock>;

/// "“Two-Sided” is set by your administrator (/etc/…/50-duplex.conf:12)."
QString lockedText(const QString &title, const QString &by);
/// The same of an option that is locked in a session, by what the PPD calls it.
QString lockedText(const QString &keyword, const PpdSession &session);
/// The same for a place beside what it is about.
QString lockedText(const QString &by);

} // namespace corvana
