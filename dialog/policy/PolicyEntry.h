#pragma once

#include <compare>
#include <optional>
#include <span>

#include <QList>
#include <QString>
#include <QStringList>

namespace corvana {

/// Where something of an administrator's policy stands.
struct PolicyOrigin
{
    QString file{}; ///< its whole path
    int line = 0;   ///< Range: 1 and more; 0: the file as a whole

    /// "/etc/corvana-print/policy.d/50-duplex.conf:12"
    QString text() const;

    bool operator==(const PolicyOrigin &) const = default;
};

/// What cannot be taken of a policy, and why.
struct PolicyProblem
{
    PolicyOrigin origin{};
    QString what{};

    QString text() const;

    bool operator==(const PolicyProblem &) const = default;
};

/// What an entry decides.
enum class PolicyKey {
    Default,      ///< default.KEYWORD: where an option or an attribute of jobs starts
    Lock,         ///< lock.KEYWORD: what it stays at
    Hide,         ///< whether the printer is offered
    FileOutput,   ///< whether anything goes into a file rather than to the printer
    LastUsed,     ///< whether what the user had in the last job comes back
    Presets,      ///< a folder of presets for everybody
    Journal,      ///< whether jobs are noted in the system's journal
    JournalTitle, ///< whether their titles are noted as well
    ConfirmSheets ///< jobs of more sheets than that are asked for; 0: none is
};

/// What may stand behind a key.
struct PolicyKeyForm
{
    enum class Value { Any, YesNo, Folder, Number };

    PolicyKey key;
    QLatin1StringView name; ///< one that ends with a dot has a keyword behind it
    Value value;

    bool takesKeyword() const { return name.endsWith(u'.'); }
};

/// All keys, in the order of the manual.
std::span<const PolicyKeyForm> policyKeyForms();
const PolicyKeyForm &formOf(PolicyKey key);
/// For a message: "default.KEYWORD, lock.KEYWORD, hide".
QString policyKeyNames();
/// Why a value is not taken, with what is; empty when it is.
QString problemOfValue(const PolicyKeyForm &form, const QString &value);

/// To which printers and to whom a section applies: to those of which one pattern fits, where it
/// has any, and to users who are in one of its groups, where it has any.
struct PolicyScope
{
    QStringList printers{};
    QStringList groups{};

    /// As it stands in a file: "[printer lobby-*, group students]".
    QString text() const;

    bool operator==(const PolicyScope &) const = default;
};

/// How close a section is to somebody at a printer: of two sections of one file the closer one
/// counts, wherever they stand. This is the one table of it.
struct PolicyRank
{
    bool namesPrinters;
    bool namesGroups;
    int rank;
};
std::span<const PolicyRank> policyRanks();
int rankOf(const PolicyScope &scope);

/// One line of a policy.
struct PolicyEntry
{
    PolicyKey key = PolicyKey::Default;
    QString keyword{}; ///< of an option or attribute; empty for a key without one
    QString value{};   ///< empty: what was said before is taken back
    PolicyScope scope{};
    PolicyOrigin origin{};
    int file = 0; ///< the place of its file in the order of reading

    /// "lock.Duplex"
    QString name() const;
    bool isYes() const { return value == QLatin1StringView("yes"); }

    bool operator==(const PolicyEntry &) const = default;
};

/// Whether an entry counts more than another one that decides the same: that of the later file;
/// within a file that of the closer section; within that the later line.
bool countsMore(const PolicyEntry &entry, const PolicyEntry &other);

} // namespace corvana
