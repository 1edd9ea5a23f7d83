#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// What a user has chosen for queues with lpoptions: a default, options, and instances (a queue
/// under a second name, with options of its own).
struct UserQueues
{
    QString defaultName; ///< "NAME" or "NAME/INSTANCE"; empty when none was chosen
    /// "NAME" or "NAME/INSTANCE" to its options, in the order of the files.
    QMap<QString, QList<JobOption>> options;

    bool operator==(const UserQueues &) const = default;

    /// What was set for "NAME" or "NAME/INSTANCE", in whatever spelling of the name.
    QList<JobOption> optionsOf(const QString &name) const;
    /// Whether there is an instance of that name; every queue is one without a name.
    bool hasInstance(const QString &name) const;
    /// The instances of a queue, by their whole names.
    QStringList instancesOf(const QString &queue) const;
};

/// Reads the system's and the user's lpoptions, the latter in front, and LPDEST and PRINTER of the
/// environment, in front of both.
UserQueues readUserQueues();

/// What a file adds to the ones before, by its content.
UserQueues userQueuesIn(const QByteArray &content, const UserQueues &before = {});

/// Reads lpoptions files, each of which adds to the ones before. A missing file is none.
UserQueues readUserQueues(const QStringList &files);

/// "NAME" of "NAME/INSTANCE".
QString queueOfInstance(const QString &name);

} // namespace corvana
