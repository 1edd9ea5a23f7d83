#pragma once

#include <optional>

#include <QByteArray>
#include <QList>
#include <QStringList>

#include "dialog/session/PpdSession.h"
#include "dialog/task/JobSettings.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// The settings of a printer that the user has left for another one, or whose options were changed
/// at its server. They are a snapshot rather than a list of job options: what is not in force now
/// (the colours, while the job is black and white) and what is disclosed belong to it, and no job
/// would carry them.
struct LeftSession
{
    SessionSnapshot opened;      ///< as the printer was opened
    SessionSnapshot left;        ///< as the user left it
    QByteArray ppdHash;          ///< of the options that it was set with
    QList<JobOption> attributes; ///< of the job, but for its pages
    std::optional<int> copies{}; ///< where the printer's own options asked for them
    QList<JobOption> chosen{};   ///< attributes, as JobSettings::chosenAttributes() has them
    /// What an order of pages has taken along, to be given back when it is not wanted any more.
    QList<TakenAlong> takenAlong{};
};

/// Brings a session that was just opened to where it was left, before any panel is built on it.
/// With the same options everything is as it was; with others, what the user had changed is set
/// again as far as it is still there.
/// Answers a sentence for each change that could not be made.
QStringList restoreLeft(const LeftSession &left, const QByteArray &ppdHash, PpdSession &session);

} // namespace corvana
