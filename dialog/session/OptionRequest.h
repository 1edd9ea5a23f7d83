#pragma once

#include <optional>

#include <QList>
#include <QString>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

class PanelHost;
class PpdSession;
struct Refusal;

/// Reads the values of `-o`: several options may stand in one, as cupsParseOptions() reads them.
/// A later value of the same option replaces the earlier one.
QList<JobOption> parseOptions(const QStringList &arguments);

/// What became of a set of options.
struct OptionOutcome
{
    /// One message for each option that was not taken, with its name and what is allowed. When
    /// there is any, the session is as it was before.
    QStringList problems;
    /// Those that are no option of the printer's and go into the job as they are; none when there
    /// are problems.
    QList<JobOption> attributes;
    /// How many copies were asked for by an option; nothing when there are problems.
    std::optional<int> copies{};

    bool ok() const { return problems.isEmpty(); }
};

/// Brings several options into a session at once: all names and values are checked first; the paper
/// size and the other choices are marked and checked for conflicts as one set; the panels' own
/// values follow, with the marks they imply; the panels are told and restore; and the result is
/// compared with what was asked.
///
/// `jobValues` may be null, for a printer without panels.
OptionOutcome applyOptions(const QList<JobOption> &requested, PpdSession &session,
                           const PDEJobValues *jobValues, PanelHost &panels);

/// Whether the printer, its panels or CUPS know an option of that name at all.
bool isKnownOption(const QString &name, const PpdSession &session);

/// Whether an argument of `-o` can be read to its end; one without any option can.
bool isWellFormed(const QString &argument);

/// Marks the choices that the stored entries imply. Answers what refused them.
QStringList markImplied(PpdSession &session, const PDEJobValues *jobValues);

/// What keeps a session from being printed as it stands: a value of the panels' own that collides
/// with a marked choice, or a custom choice without its value.
QStringList jobProblems(const PpdSession &session, const PDEJobValues *jobValues);

/// What a refusal says in a terminal: the options by their keywords, passwords by dots.
QString conflictMessage(const Refusal &refusal, const PpdSession &session);

} // namespace corvana
