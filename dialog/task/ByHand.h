#pragma once

#include <memory>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/job/JobOutcome.h"
#include "dialog/sheets/HandPasses.h"
#include "dialog/sheets/LaidOutDocument.h"

namespace corvana {

struct OpenedPrinter;

/// What somebody has to do between the two passes of a job, and what is known of it so far.
struct TurnQuestion
{
    QString done{};      ///< a sentence or more: what became of the first sides
    QString problem{};   ///< why the other sides were not printed when that was tried; else empty
    QStringList steps{}; ///< a sentence each
    /// For a drawing: how the sheets lie in the tray, which edge of their pages goes into the
    /// printer first, and whether these are read on their long edge.
    HandFeed::Printed inTray = HandFeed::Printed::Down;
    Qt::Edge leadingEdge = Qt::TopEdge;
    bool isWide = false;
};

/// A job on its way that is printed on both sides by hand.
struct HandRun
{
    HandPasses passes{};
    QList<std::shared_ptr<const LaidOutDocument>> documents{};
    TurnQuestion question{};
    JobOutcome first{}; ///< of the first pass
    bool isSecond = false;
    /// A job of an earlier try of the second pass whose fate is not known, or 0.
    int earlierJob = 0;
    /// Somebody knows that the printer has other options by now, and wants the other sides with
    /// those of the first.
    bool goesOn = false;
};

/// Whether sheets can be put back into a printer by hand for their backs: it does not turn them
/// over itself, somebody stands before it, and its pages are laid out here.
bool canTurnByHand(const OpenedPrinter &printer);

/// Why a job with these attributes cannot be printed on both sides by hand, a sentence each. Empty
/// where nothing is in the way, or where that is not asked for.
QStringList problemsOfByHand(const QList<JobOption> &attributes, const OpenedPrinter &printer,
                             bool printsToFile, bool canAsk);

/// What has to be done with the sheets; `done` and `problem` are left to who knows them. `titles`
/// are those of the documents.
TurnQuestion turnQuestion(const HandPasses &passes, const QStringList &titles, int copies);

} // namespace corvana
