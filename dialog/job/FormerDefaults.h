#pragma once

#include <QList>
#include <QString>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

class ServerConnection;
struct JobTicket;
struct ServerJobRequest;

/// What an attribute of a job says that asks for nothing, where its own usual value would not do
/// because a queue's default asks for something; null where that does.
QString valueThatAsksForNothing(const QString &name);

/// What a job says so that defaults of its queue, `now`, change nothing of what it was with those
/// of `before`. What `options` name already counts anyway; what has no such answer is left out.
QList<JobOption> answersOfBefore(const QList<JobOption> &now, const QList<JobOption> &before,
                                 const QList<JobOption> &options);

/// The ticket of a job as it is sent: of one that goes on with another one, with those answers.
JobTicket ticketToSend(const ServerJobRequest &request, ServerConnection &connection);

} // namespace corvana
