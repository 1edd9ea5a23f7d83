#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "dialog/printers/OwnInstances.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/task/JobSettings.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

struct OpenedPrinter;

/// The settings of a job as an instance of its queue, by which other programs print with them
/// (`lp -d lobby/reports`): what would be written into lpoptions.
struct InstanceDraft
{
    QString name{}; ///< "lobby/reports"; empty where no such name can be made
    QList<JobOption> options{};
    /// What other programs cannot have of the settings, a sentence each.
    QStringList leftOut{};
    /// Why there can be no such instance, for the user; empty when there can.
    QString problem{};

    bool operator==(const InstanceDraft &) const = default;
};

/// What an instance is called for which a person has found a name: small ASCII letters, digits,
/// and "-" for what lies between words ("Monthly Reports" is "monthly-reports"). Letters of other
/// scripts are left out. Empty where nothing is left.
QString instanceNameOf(const QString &name);

/// What stands in lpoptions, and whose it is.
struct KnownInstances
{
    UserQueues queues{};
    /// Which of the instances may be replaced, and of which settings they are; the others are
    /// somebody else's, such as those that were written here and changed by another program since.
    QMap<QString, OwnInstance> own{};
    QMap<QString, OwnInstance> changedByOthers{}; ///< the latter

    /// As the files have it now.
    static KnownInstances read();
    /// The instance of a queue that is of these settings; null when there is none.
    QString ofSettings(const QString &settings, const QString &queue) const;
};

/// The name of such an instance, without its options, and why there can be none. `of`: the name
/// that its settings have for people, such as a preset's, where that is another one.
InstanceDraft nameInstance(const QString &name, const OpenedPrinter &printer,
                           const JobSettings &settings, const KnownInstances &known,
                           const QString &of = {});

/// What a job says as it is set now, and an answer to whatever the instance would be given
/// otherwise: by the queue, and by the user's line for the queue without an instance, which some
/// programs add to it. No pages, copies and secrets are in it; a booklet, which only this program
/// can make, is left out and said. `withDevice`: with what sets up the device, too.
InstanceDraft draftInstance(const QString &name, const OpenedPrinter &printer,
                            const JobSettings &settings, const KnownInstances &known,
                            bool withDevice, const QString &of = {});

/// The same for an instance that another queue of the same model has already of these settings:
/// what stands there is answered, too.
InstanceDraft draftForOther(const QString &instance, const OpenedPrinter &printer,
                            const JobSettings &settings, const KnownInstances &known,
                            bool withDevice);

/// The options of an instance that was written here, as their job means them: in lpoptions stands
/// what filters have to be told, which some turn round.
QList<JobOption> asInstanceMeansIt(const QList<JobOption> &options, const OwnInstance &own,
                                   ppd_file_t *ppd);

/// Writes an instance and notes whose settings it has. Thread: any; waits for other programs.
/// Errors: answers a sentence for the user; above all where somebody else's instance has the name.
QString writeInstance(const InstanceDraft &draft, const OwnInstance &of);
/// Removes instances that were written here, as far as nobody has changed them, and forgets them.
/// Thread and errors: as for writing one.
QStringList removeInstances(const QStringList &instances);

} // namespace corvana
