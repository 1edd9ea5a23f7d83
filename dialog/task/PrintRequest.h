#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/job/Document.h"
#include "dialog/presets/PresetStore.h"
#include "dialog/printers/Printer.h"
#include "dialog/server/CredentialStore.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/task/AlertPolicy.h"
#include "platform/pde/PDEJobValues.h"

class QTemporaryDir;

namespace corvana {

class Policy;
struct PolicyEntry;

/// What is to be printed and how, as it was asked for: documents that were looked into, printers
/// that were found, options that nobody has checked yet.
struct PrintRequest
{
    QList<Document> documents; ///< printed one after the other, as one job
    QStringList toRead{};      ///< behind them; a window is there before they are complete
    /// Those that no server is needed for: PPD files and samples.
    QList<Printer> printers;
    /// A printer by its name, a queue or a URI; empty for the usual one.
    QString wantedPrinter;
    ServerAddress server;
    bool serverWasNamed = false; ///< on the command line
    QList<JobOption> options;
    QStringList bundleRoots;
    /// What an administrator has decided; null: nothing.
    std::shared_ptr<const Policy> policy{};
    QString title;
    bool titleWasNamed = false;  ///< so other documents do not change it
    QString output;              ///< never empty where there is a document
    bool outputWasNamed = false; ///< so a file is wanted, whatever the printer
    /// Holds the result until it is complete and can go to standard output; null for other results.
    std::shared_ptr<QTemporaryDir> standardOutput;
    int copies = 1;
    bool copiesWereNamed = false; ///< by -n, which counts more than any option
    bool summary = false;
    /// The name under which the settings become an instance of the queue; empty: they do not.
    QString instance{};
    /// Queues beside the printer that get such an instance of their own.
    QStringList alsoOn{};
    /// The instance is one of the preset that the job starts with, and follows it: the model of
    /// printers that this is for; empty for one that is for all. Nothing: it is kept by itself.
    std::optional<QString> followedModel{};
    /// Run for queues that are not open, which get the instances of a preset; empty where whoever
    /// has made the request does that.
    QString program{};
    std::optional<AlertPolicy> onAlert; ///< nothing: as suits where the job goes
    bool noWait = false;
    /// How long a job that its queue has is followed at most; nothing: to its end.
    std::optional<std::chrono::seconds> wait;
    bool manySheetsAreMeant = false; ///< so that nobody has to be asked
    /// Where lines for the system's journal go, which a policy may ask for; null: there.
    std::function<void(const QByteArray &)> journal{};
    bool quiet = false; ///< what was asked for and was done needs no word
    bool json = false;  ///< what became of the job is said for a program, too
    /// Where presets are kept; nowhere: there are none.
    PresetPlaces presetPlaces{};
    /// The name of the preset that a job starts with; empty for none.
    QString preset{};
    /// The name under which the settings are kept instead of being printed with; empty otherwise.
    QString presetToSave{};
    /// Whether a job starts with what its user changed for the last one, and leaves that to the
    /// next one. Not without a window: what a script prints is the same each time.
    bool remembersLastUsed = false;
    /// A user and a password that were given in advance, so that nobody has to be asked.
    std::optional<Credentials> credentials;
    /// Of documents that are protected, so that nobody has to be asked.
    std::optional<QString> documentPassword;
    /// The page of the dialog's own help, in the user's language; empty when it is not installed.
    QString helpPage;

    /// Whether something is to be done with the settings, so that no document is needed.
    bool isForSettings() const { return summary || !instance.isEmpty(); }
};

/// What an administrator has decided; an empty policy where nobody has.
const Policy &policyOf(const PrintRequest &request);

/// What an entry of a policy says to somebody who wants a printer that it hides, or a file.
QString notOfferedText(const PolicyEntry &entry, const Printer &printer);

/// Why a printer is not offered by an administrator, in a sentence; empty where it is. Null where
/// there is no policy that could say so.
std::function<QString(const Printer &)> whyNotOffered(const PrintRequest &request);

/// The index of the printer that is wanted among those that no server is needed for; -1 when it is
/// a queue or a URI, or there is none.
int wantedAmongFiles(const PrintRequest &request);

} // namespace corvana
