#include "dialog/job/HandoverOutcomes.h"

#include <QCoreApplication>

#include "dialog/printers/UserQueues.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ServerJob)
};

QString withMessage(const QString &text, const QString &message)
{
    return message.isEmpty() ? text : Texts::tr("%1 The printer says: %2").arg(text, message);
}

// What others write may end its sentence or not.
QString withoutFullStop(QString text)
{
    while (text.endsWith(u'.') || text.endsWith(u'。'))
        text.chop(1);
    return text;
}

// The server has answered, and will not take the job from this user as it is.
bool saysNo(const ServerProblem &problem)
{
    using Problem = ServerProblem::Kind;
    return problem.kind == Problem::Refused || problem.kind == Problem::Forbidden ||
           problem.kind == Problem::PasswordNeeded || problem.kind == Problem::PasswordRefused ||
           problem.kind == Problem::PasswordCanceled;
}

QString whereTheEarlierJobIs(const JobStatus &job)
{
    if (job.state == IPP_JSTATE_COMPLETED)
        return Texts::tr("Job %1 of the earlier try has been printed.");
    if (job.state == IPP_JSTATE_HELD)
        return Texts::tr("Job %1 of the earlier try is held in the queue.");
    if (job.state == IPP_JSTATE_STOPPED)
        return Texts::tr("Job %1 of the earlier try is stopped in the queue.");
    return Texts::tr("Job %1 of the earlier try is in the queue and will be printed.");
}

} // namespace

void HandoverOutcomes::moveTo(const Printer &queue, std::optional<bool> isRaw)
{
    m_isRawNow = isRaw;
    if (m_movedFrom.isEmpty())
        m_movedFrom = queueOfInstance(m_printer.name);
    m_printer = queue;
}

void HandoverOutcomes::see(const JobStatus &status)
{
    m_reasons = status.reasons;
    m_pages = status.pages;
    // CUPS leaves it with most jobs that are done, of which it says nothing.
    if (status.state == IPP_JSTATE_COMPLETED)
        m_reasons.removeAll(u"processing-to-stop-point"_s);
}

void HandoverOutcomes::see(const JobProgress &progress)
{
    m_reasons = progress.reasons;
    m_pages = progress.page;
}

JobOutcome HandoverOutcomes::outcome(Kind kind, const QString &text) const
{
    JobOutcome outcome{kind, m_job, text};
    outcome.queue = queueOfInstance(m_printer.name);
    outcome.reasons = m_reasons;
    outcome.pages = m_pages;
    // Whoever looks for it where it was sent to would not find it.
    if (!m_movedFrom.isEmpty())
        outcome.text = Texts::tr("%1 The job had been moved from the queue “%2” to “%3”.")
                           .arg(text, m_movedFrom, m_printer.name);
    return outcome;
}

JobOutcome HandoverOutcomes::failed(const QString &text) const
{
    return outcome(Kind::Failed, text);
}

JobOutcome HandoverOutcomes::refused(const QString &text) const
{
    return outcome(Kind::Refused, text);
}

JobOutcome HandoverOutcomes::nothingPrinted(const QString &why) const
{
    return failed(Texts::tr("%1 Nothing was printed.").arg(why));
}

JobOutcome HandoverOutcomes::cannotBeRead(const QString &document, const QString &why) const
{
    return nothingPrinted(Texts::tr("%1 cannot be read: %2.").arg(document, why));
}

JobOutcome HandoverOutcomes::noCredentials() const
{
    return refused(Texts::tr("The printer “%1” wants a user and a password; none was given. "
                             "Nothing was printed.")
                       .arg(m_printer.name));
}

JobOutcome HandoverOutcomes::notCreated(const ServerProblem &problem, const QString &why,
                                        const QString &reason) const
{
    if (problem.kind == ServerProblem::Kind::NotFound)
        return refused(Texts::tr("The queue “%1” is not there any more. Nothing was printed.")
                           .arg(m_printer.name));
    if (problem.status == IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS)
        return refused(
            reason.isEmpty()
                ? Texts::tr("The queue “%1” takes no jobs at the moment. Nothing was printed.")
                      .arg(m_printer.name)
                : Texts::tr("The queue “%1” takes no jobs at the moment: %2. Nothing was printed.")
                      .arg(m_printer.name, withoutFullStop(reason)));
    return saysNo(problem) ? refused(Texts::tr("%1 Nothing was printed.").arg(why))
                           : nothingPrinted(why);
}

JobOutcome HandoverOutcomes::printerChanged() const
{
    return outcome(Kind::PrinterChanged,
                   Texts::tr("The options of the printer “%1” have changed at its server. "
                             "Nothing was printed.")
                       .arg(m_printer.name));
}

JobOutcome HandoverOutcomes::canceledBefore() const
{
    return outcome(Kind::Canceled, Texts::tr("Printing was canceled."));
}

JobOutcome HandoverOutcomes::earlierJobUnknown(const QString &why, int earlierJob) const
{
    return failed(Texts::tr("%1 Whether job %2 of the earlier try was printed is not known yet, so "
                            "nothing was sent again.")
                      .arg(why, QString::number(earlierJob)));
}

JobOutcome HandoverOutcomes::earlierJobIsThere(const JobStatus &status, int earlierJob) const
{
    return {Kind::AlreadyThere, earlierJob, whereTheEarlierJobIs(status).arg(earlierJob)};
}

JobOutcome HandoverOutcomes::earlierJobIsThereInPart(const JobStatus &status, int earlierJob,
                                                     int documents) const
{
    return {Kind::AlreadyThere, earlierJob,
            Texts::tr("Job %1 of the earlier try has got %2 of its %3 documents to the printer. "
                      "Print the others by themselves, or everything once more.")
                .arg(QString::number(earlierJob), QString::number(status.documents),
                     QString::number(documents))};
}

JobOutcome HandoverOutcomes::mayBeThereWithoutNumber(Kind kind, const QString &why,
                                                     const QString &whyNot) const
{
    return outcome(kind, Texts::tr("%1 Nothing was printed, but a job without a document may be at "
                                   "the print server. It could not be looked for: %2")
                             .arg(why, whyNot));
}

JobOutcome HandoverOutcomes::withdrawn(Kind kind, const QString &why, bool mayHavePrinted) const
{
    const QString text =
        mayHavePrinted ? Texts::tr("%1 Job %2 was canceled; pages that the printer has already may "
                                   "still come out.")
                       : Texts::tr("%1 Job %2 was canceled; nothing was printed.");
    return outcome(kind, text.arg(why, name()));
}

JobOutcome HandoverOutcomes::notWithdrawn(Kind kind, const QString &why, const QString &whyNot,
                                          bool isWhole) const
{
    if (isWhole && kind == Kind::Canceled) // it would be said to be, and not to be
        return outcome(Kind::Unknown,
                       Texts::tr("Job %1 could not be canceled and may still be printed. %2")
                           .arg(name(), whyNot));
    if (isWhole)
        return outcome(Kind::Unknown,
                       Texts::tr("%1 Job %2 could not be canceled and may still be printed. %3")
                           .arg(why, name(), whyNot));
    return failed(Texts::tr("%1 Job %2 may still be at the print server, without its whole "
                            "document. It could not be canceled: %3")
                      .arg(why, name(), whyNot));
}

JobOutcome HandoverOutcomes::partNotWithdrawn(const QString &why, const QString &whyNot) const
{
    return outcome(Kind::Unknown,
                   Texts::tr("%1 Job %2 may still be at the print server with some of its "
                             "documents, and may print these. It could not be canceled: %3 "
                             "Printing again looks for it first.")
                       .arg(why, name(), whyNot));
}

QString HandoverOutcomes::credentialsRefused() const
{
    return Texts::tr("The printer “%1” does not accept this user and password.")
        .arg(m_printer.name);
}

JobOutcome HandoverOutcomes::notKnownAnyMore(const QString &why) const
{
    return failed(
        Texts::tr("%1 The print server does not know job %2 any more. It was probably not "
                  "printed.")
            .arg(why, name()));
}

JobOutcome HandoverOutcomes::mayBePrinted(const QString &why) const
{
    return outcome(Kind::Unknown,
                   Texts::tr("%1 The document had been sent, so job %2 may be printed or not. "
                             "Printing again looks for it first.")
                       .arg(why, name()));
}

JobOutcome HandoverOutcomes::lostSight(const ServerProblem &problem, const QString &why) const
{
    if (problem.kind == ServerProblem::Kind::NotFound)
        return outcome(Kind::Unknown,
                       Texts::tr("Job %1 has left the queue “%2”, whose server keeps no record of "
                                 "it. So whether it has been printed is not known.")
                           .arg(name(), m_printer.name));
    return outcome(Kind::Unknown, Texts::tr("Job %1 was handed over completely. %2 So whether it "
                                            "has been printed is not known.")
                                      .arg(name(), why));
}

JobOutcome HandoverOutcomes::handedOver() const
{
    return outcome(
        Kind::InQueue,
        Texts::tr("Job %1 was handed over to the queue “%2”.").arg(name(), m_printer.name));
}

JobOutcome HandoverOutcomes::stopped(const JobStatus &status) const
{
    return outcome(Kind::Stopped,
                   withMessage(Texts::tr("Job %1 was stopped. It is still in the queue, where it "
                                         "can be released or canceled.")
                                   .arg(name()),
                               status.message));
}

JobOutcome HandoverOutcomes::held(const JobStatus &status) const
{
    return outcome(
        Kind::InQueue,
        withMessage(Texts::tr("Job %1 is held in the queue “%2”.").arg(name(), m_printer.name),
                    status.message));
}

JobOutcome HandoverOutcomes::inQueue(const JobProgress &progress) const
{
    if (progress.stage == JobProgress::Stage::Stopped)
        return outcome(Kind::InQueue,
                       withMessage(Texts::tr("Job %1 waits in the queue “%2”, which is stopped.")
                                       .arg(name(), m_printer.name),
                                   progress.message));
    return outcome(Kind::InQueue,
                   Texts::tr("Job %1 is in the queue “%2”.").arg(name(), m_printer.name));
}

QString HandoverOutcomes::unknownState(const JobStatus &status, const QString &job)
{
    return Texts::tr("The print server gives job %1 the state %2, which is not known.")
        .arg(job, QString::number(status.state));
}

JobOutcome HandoverOutcomes::ended(const JobStatus &status, bool canceledHere) const
{
    if (!status.isKnown())
        return lostSight({}, unknownState(status, name()));
    if (status.state == IPP_JSTATE_COMPLETED && m_isRawNow.value_or(false))
        return outcome(Kind::Sent,
                       Texts::tr("Sent to “%1” as job %2. That queue passes files on as they are: "
                                 "what was set for the printer or the pages had no effect there.")
                           .arg(m_printer.name, name()));
    if (status.state == IPP_JSTATE_COMPLETED && (m_mayBeEmpty || !m_isRawNow))
        return outcome(Kind::Sent,
                       Texts::tr("Sent to “%1” as job %2. Whether anything was on its pages is not "
                                 "known.")
                           .arg(m_printer.name, name()));
    if (status.state == IPP_JSTATE_COMPLETED)
        return outcome(Kind::Printed,
                       Texts::tr("Printed on “%1” as job %2.").arg(m_printer.name, name()));
    if (status.state != IPP_JSTATE_CANCELED)
        return failed(withMessage(
            Texts::tr("Job %1 failed: the printer or its server gave it up.").arg(name()),
            status.message));
    if (canceledHere)
        return canceledBefore();
    return outcome(Kind::Canceled,
                   Texts::tr("Job %1 was canceled at the printer or its server.").arg(name()));
}

JobOutcome HandoverOutcomes::endedInPart(const JobStatus &status, int documents) const
{
    return failed(Texts::tr("Job %1 was printed with %2 of its %3 documents only.")
                      .arg(name(), QString::number(status.documents), QString::number(documents)));
}

} // namespace corvana
