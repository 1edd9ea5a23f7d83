#include "dialog/job/EarlierJob.h"

#include "dialog/job/HandoverOutcomes.h"
#include "dialog/job/JobRequests.h"

namespace corvana {

std::optional<JobOutcome> whatBecameOfEarlierJob(ServerWorker &worker,
                                                 const ServerJobRequest &request)
{
    const int job = request.earlierJob;
    if (job <= 0)
        return std::nullopt;
    const HandoverOutcomes outcomes(request.printer);
    ServerConnection &connection = worker.connection();
    const auto whatIsWrong = [&] { return connection.problem().text(worker.context().address); };
    const auto status = lookUpJob(connection, request.printer, job);
    if (!status && connection.problem().kind != ServerProblem::Kind::NotFound)
        return outcomes.earlierJobUnknown(whatIsWrong(), job);
    if (!status)
        return std::nullopt;
    if (!status->isKnown())
        return outcomes.earlierJobUnknown(
            HandoverOutcomes::unknownState(*status, QString::number(job)), job);
    const bool isPrinted = status->state == IPP_JSTATE_COMPLETED;
    if (status->documents > 0 && status->lacksDocuments(request.earlierDocuments)) {
        if (isPrinted || (!status->isOver() && status->begun))
            return outcomes.earlierJobIsThereInPart(*status, job, request.earlierDocuments);
        if (status->isOver() || cancelJob(connection, request.printer, job))
            return std::nullopt;
        return outcomes.earlierJobUnknown(whatIsWrong(), job);
    }
    if (isPrinted || (!status->isOver() && status->documents != 0))
        return outcomes.earlierJobIsThere(*status, job);
    return std::nullopt;
}

} // namespace corvana
