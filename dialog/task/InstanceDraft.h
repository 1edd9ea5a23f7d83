#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/printers/KnownInstances.h"
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

/// The name of such an instance, without its options, and why there can be none. `preset`: whose
/// settings it has; null for one that is kept by itself.
InstanceDraft nameInstance(const QString &name, const OpenedPrinter &printer,
                           const JobSettings &settings, const KnownInstances &known,
                           const QString &preset = {});

/// The same for a queue of which nothing but its name is known.
InstanceDraft nameInstanceOn(const QString &queue, const QString &name, const KnownInstances &known,
                             const QString &preset = {});

/// What a job says as it is set now, and an answer to whatever the instance would be given
/// otherwise: by the queue, and by the user's line for the queue without an instance, which some
/// programs add to it. No pages, copies and secrets are in it; a booklet, which only this program
/// can make, is left out and said. `withDevice`: with what sets up the device, too.
InstanceDraft draftInstance(const QString &name, const OpenedPrinter &printer,
                            const JobSettings &settings, const KnownInstances &known,
                            bool withDevice, const QString &preset = {});

/// The same for an instance that another queue of the same model has already of these settings:
/// what stands there is answered, too.
InstanceDraft draftForOther(const QString &instance, const OpenedPrinter &printer,
                            const JobSettings &settings, const KnownInstances &known,
                            bool withDevice);

/// The options of an instance that was written here, as their job means them: in lpoptions stands
/// what filters have to be told, which some turn round.
QList<JobOption> asInstanceMeansIt(const QList<JobOption> &options, const OwnInstance &own,
                                   ppd_file_t *ppd);

} // namespace corvana
