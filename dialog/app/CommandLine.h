#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "dialog/task/AlertPolicy.h"
#include "dialog/terminal/ExitStatus.h"
#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// The document, or the result, that has no name but is standard input or output.
inline constexpr QLatin1StringView kStandardStream{"-"};

/// What the user asked for on the command line.
struct CommandLine
{
    /// As given; "-" is standard input. Without any, documents are chosen in the window.
    QStringList documents;
    QString printer; ///< a name, or the URI of an IPP printer
    QString server;  ///< "HOST", "HOST:PORT" or a socket; empty for the environment's
    QString ppd;
    QString output;
    QString title;
    QStringList options;       ///< each value of -o
    QList<JobOption> switches; ///< what -P, -q and -H stand for; they count more than -o
    std::optional<int> copies; ///< of -n
    QStringList bundleRoots;
    QString preset;     ///< the name of the one that the job starts with
    QString savePreset; ///< the name under which the settings are kept, instead of printing
    bool listPresets = false;
    bool demo = false;
    bool listPrinters = false;
    bool checkPolicy = false; ///< of `printer`; without one, of all
    bool yes = false;         ///< many sheets are meant
    bool noDialog = false;
    bool summary = false;
    QString instance;                     ///< of --save-instance
    QStringList alsoOn;                   ///< of --also-on
    std::optional<QString> followedModel; ///< see PrintRequest; the program asks itself for it
    bool checkDisplay = false;
    bool noWait = false;
    std::optional<int> wait; ///< of --wait, in seconds
    bool quiet = false;
    bool json = false; ///< of --format
    QString user;      ///< of -U; empty for the environment's
    bool encrypt = false;
    QString passwordFile;
    std::optional<int> passwordDescriptor;
    QString documentPasswordFile;
    /// Nothing: what suits where the job goes.
    std::optional<AlertPolicy> onAlert;

    bool operator==(const CommandLine &) const = default;
};

/// A command line, or what to write instead of running it.
struct ParsedCommandLine
{
    std::optional<CommandLine> commandLine;
    QString text{}; ///< the help, the version or the error
    /// `Done` for help and version, `NotUnderstood` for a command line that cannot be understood.
    ExitStatus exitStatus = ExitStatus::Done;
};

/// `arguments` begin with the program's name. `inputIsGiven`: standard input is the document where
/// no file is named.
ParsedCommandLine parseCommandLine(const QStringList &arguments, bool inputIsGiven = false);

/// What a command line without a document gets where no window can be shown.
ParsedCommandLine missingDocument();

} // namespace corvana
