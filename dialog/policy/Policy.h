#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QHash>
#include <QList>
#include <QString>

#include "dialog/policy/PolicyFolder.h"
#include "dialog/policy/PolicyUser.h"
#include "dialog/printers/PrinterId.h"

namespace corvana {

/// How many sheets a job may have before somebody who sits in front of it is asked, where no policy
/// says otherwise.
inline constexpr int kUsualConfirmSheets = 200;

/// What an administrator has decided for one user, and for each printer. It shapes what the dialog
/// offers and does; what must be enforced is enforced by the print server.
///
/// A value that never changes; knows no session. An empty one decides nothing.
/// Thread: any.
class Policy
{
public:
    Policy() = default;
    Policy(const PolicyReading &reading, const PolicyUser &user);

    /// The policy of this computer for the user of this program. Name services are asked for groups
    /// only where the policy has any.
    static std::shared_ptr<const Policy> ofThisComputer();

    const PolicyReading &reading() const { return m_reading; }
    const PolicyUser &user() const { return m_user; }
    bool isEmpty() const { return m_reading.entries.isEmpty(); }

    /// Where options and attributes of jobs start on a printer: for each keyword the entry that
    /// counts; what counts more comes later.
    QList<PolicyEntry> defaultsOf(const Printer &printer) const;
    /// What they stay at; what counts more comes first. One option may have several names, so that
    /// two entries can still be about the same.
    QList<PolicyEntry> locksOf(const Printer &printer) const;
    /// The entry that decides something about a printer; nothing where none does.
    std::optional<PolicyEntry> entryOf(PolicyKey key, const Printer &printer) const;

    /// The entry that keeps a printer from being offered: it is hidden, or is a file, which nobody
    /// may print to; nothing for one that is offered.
    std::optional<PolicyEntry> whatHides(const Printer &printer) const;
    /// The entry that keeps jobs of a printer from going into files; nothing where they may.
    std::optional<PolicyEntry> whatForbidsFiles(const Printer &printer) const;
    bool bringsLastUsedBack(const Printer &printer) const;
    /// A folder of presets for everybody, which nobody writes; empty where there is none.
    QString presetsFolder(const Printer &printer) const;
    bool writesJournal(const Printer &printer) const;
    bool journalHasTitles(const Printer &printer) const;
    /// Jobs of more sheets than that are asked for; 0: none. Nothing where nobody has decided.
    std::optional<int> confirmSheets(const Printer &printer) const;

    /// Whether a section applies to this user at this printer.
    bool applies(const PolicyScope &scope, const Printer &printer) const;
    /// Whether it applies to this user, at whatever printer.
    bool appliesToUser(const PolicyScope &scope) const;

private:
    QList<PolicyEntry> settings(PolicyKey key, const Printer &printer) const;
    bool says(PolicyKey key, const Printer &printer, bool otherwise) const;

    PolicyReading m_reading;
    PolicyUser m_user;
};

/// The names by which a policy may speak of a printer: those of its queue, with and without the
/// user's instance; the URI of a device, and the queue that a URI of a print server leads to; the
/// name of one that prints to a file.
QStringList policyNamesOf(const Printer &printer);

} // namespace corvana
