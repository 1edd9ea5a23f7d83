#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "dialog/printers/OwnInstances.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/printers/UserQueuesFile.h"

namespace corvana {

/// What stands in lpoptions, and whose it is.
struct KnownInstances
{
    UserQueues queues{};   ///< of the system's file and the user's
    UserQueues ofSystem{}; ///< of the former only, which nobody changes here
    /// Which of the instances may be replaced, and of which settings they are; the others are
    /// somebody else's, such as those that were written here and changed by another program since.
    QMap<QString, OwnInstance> own{};
    QMap<QString, OwnInstance> changedByOthers{}; ///< the latter

    bool operator==(const KnownInstances &) const = default;

    /// As the files have it now. A home folder on a server that is away keeps whoever asks waiting.
    static KnownInstances read();
    /// The same with another content of the user's lpoptions.
    static KnownInstances with(const QByteArray &lpoptions);
    /// The instance of a queue that is of a preset; null when there is none.
    QString ofPreset(const QString &preset, const QString &queue) const;
};

/// Writes instances and notes whose settings they have; removes others that were written here, as
/// far as nobody has changed them, and forgets them. All in one change of lpoptions. Thread: any;
/// waits for other programs. Errors: answers a sentence for the user for each that was not written
/// or removed, by its name, above all where somebody else's instance has that; without a name where
/// it is of none of them.
QMap<QString, QString> changeInstances(const QList<InstanceLine> &lines, const OwnInstance &of);

} // namespace corvana
