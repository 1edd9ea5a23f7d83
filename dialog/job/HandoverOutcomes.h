#pragma once

#include <QString>

#include "dialog/job/JobOutcome.h"
#include "dialog/job/JobProgress.h"
#include "dialog/job/JobRequests.h"
#include "dialog/printers/Printer.h"

namespace corvana {

/// What can become of a job that is handed to a print server, each with the words for it. It knows
/// nothing but what it is told.
class HandoverOutcomes
{
public:
    /// Ownership: the printer is borrowed.
    explicit HandoverOutcomes(const Printer &printer) : m_printer(printer) {}

    /// The number of the job at its server, once it has one.
    void setJob(int job) { m_job = job; }
    int job() const { return m_job; }

    // Nothing was sent

    /// `why` is a sentence.
    JobOutcome nothingPrinted(const QString &why) const;
    JobOutcome cannotBeRead(const QString &document, const QString &why) const;
    JobOutcome noCredentials() const;
    /// `why` is the problem in words.
    JobOutcome notCreated(const ServerProblem &problem, const QString &why) const;
    JobOutcome printerChanged() const;
    JobOutcome canceledBefore() const;
    /// Whether the job of an earlier try was printed could not be found out.
    JobOutcome earlierJobUnknown(const QString &why, int earlierJob) const;
    JobOutcome earlierJobIsThere(const JobStatus &status, int earlierJob) const;
    /// It has, or prints, some of its documents only: the others never came.
    JobOutcome earlierJobIsThereInPart(const JobStatus &status, int earlierJob,
                                       int documents) const;

    // It may have been made, or it was taken back: `why` is a sentence about what made that
    // necessary, `whyNot` the one about what stood in the way

    JobOutcome mayBeThereWithoutNumber(JobOutcome::Kind kind, const QString &why,
                                       const QString &whyNot) const;
    JobOutcome withdrawn(JobOutcome::Kind kind, const QString &why, bool mayHavePrinted) const;
    /// `isWhole`: the server may have all of the document.
    JobOutcome notWithdrawn(JobOutcome::Kind kind, const QString &why, const QString &whyNot,
                            bool isWhole) const;
    /// The server may have some of the documents, and will print them although the rest never came.
    JobOutcome partNotWithdrawn(const QString &why, const QString &whyNot) const;
    /// A reason to take a job back.
    QString credentialsRefused() const;

    // It was sent

    JobOutcome notKnownAnyMore(const QString &why) const;
    JobOutcome mayBePrinted(const QString &why) const;
    JobOutcome lostSight(const ServerProblem &problem, const QString &why) const;
    JobOutcome stopped(const JobStatus &status) const;
    JobOutcome held(const JobStatus &status) const;
    JobOutcome inQueue(const JobProgress &progress) const;
    /// `canceledHere`: by the user, rather than at the printer or its server.
    JobOutcome ended(const JobStatus &status, bool canceledHere) const;
    /// It was printed without some of its documents.
    JobOutcome endedInPart(const JobStatus &status, int documents) const;

private:
    JobOutcome outcome(JobOutcome::Kind kind, const QString &text) const;
    JobOutcome failed(const QString &text) const;
    QString name() const { return jobName(m_printer, m_job); }

    const Printer &m_printer;
    int m_job = 0;
};

} // namespace corvana
