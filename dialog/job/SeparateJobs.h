#pragma once

#include "dialog/job/Handover.h"

namespace corvana {

/// Whether documents can stand in a row in one stream: a printer finds the end of most documents
/// only by the end of the job, and one language does not follow another one.
bool canStandInARow(const QList<Document> &documents);

/// Hands documents to a print server as a job each, in their order, for a queue that would send the
/// documents of one job in a single stream, where a printer finds no end of the first. The last job
/// is followed as the request says; the others come before it in the queue, and are looked up when
/// that one is over.
///
/// What comes to nothing in the midst is told with what was sent before it. The next try goes on
/// from there: see `sentDocuments` of the request and of the outcome.
///
/// Waits for a network: for workers. `report` is told how far it is, on the worker's thread.
JobOutcome handOverSeparately(ServerWorker &worker, const ServerJobRequest &request,
                              const QList<Document> &documents,
                              const std::function<void(const JobProgress &)> &report);

} // namespace corvana
