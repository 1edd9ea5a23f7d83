#pragma once

#include <optional>

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
    /// `mayBeEmpty`: nobody could count the pages of the job.
    explicit HandoverOutcomes(const Printer &printer, bool mayBeEmpty = false)
        : m_printer(printer), m_mayBeEmpty(mayBeEmpty)
    {
    }

    /// The number of the job at its server, once it has one.
    void setJob(int job) { m_job = job; }
    int job() const { return m_job; }
    /// The job is in another queue by now: it is called by that from here on. `isRaw`: that queue
    /// passes documents on as they are, which nobody has laid out for it; null where it did not
    /// say.
    void moveTo(const Printer &queue, std::optional<bool> isRaw);
    /// What its server says of it, the last time.
    void see(const JobStatus &status);
    void see(const JobProgress &progress);

    // Nothing was sent

    /// `why` is a sentence.
    JobOutcome nothingPrinted(const QString &why) const;
    JobOutcome cannotBeRead(const QString &document, const QString &why) const;
    JobOutcome noCredentials() const;
    /// `why` is the problem in words; `reason` what a queue that takes no jobs says of that.
    JobOutcome notCreated(const ServerProblem &problem, const QString &why,
                          const QString &reason) const;
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
    /// Why nothing is known of a job whose state its server calls something of its own.
    static QString unknownState(const JobStatus &status, const QString &job);
    /// Nobody wanted to know more, and its server has forgotten it already.
    JobOutcome handedOver() const;
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
    JobOutcome refused(const QString &text) const;
    QString name() const { return jobName(m_printer, m_job); }

    Printer m_printer;
    QString m_movedFrom;                    // the name of the queue; empty where it still is there
    std::optional<bool> m_isRawNow = false; // after it was moved
    bool m_mayBeEmpty = false;
    int m_job = 0;
    QStringList m_reasons;
    int m_pages = 0;
};

} // namespace corvana
