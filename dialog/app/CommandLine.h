#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "dialog/task/AlertPolicy.h"

namespace corvana {

/// What the user asked for on the command line.
struct CommandLine
{
    QStringList documents; ///< as given; "-" is standard input
    QString printer;       ///< a name, or the URI of an IPP printer
    QString server;        ///< "HOST", "HOST:PORT" or a socket; empty for the environment's
    QString ppd;
    QString output;
    QString title;
    QStringList options;       ///< each value of -o
    std::optional<int> copies; ///< of -n
    QStringList bundleRoots;
    bool demo = false;
    bool listPrinters = false;
    bool noDialog = false;
    bool summary = false;
    bool checkDisplay = false;
    bool noWait = false;
    /// Nothing: what suits where the job goes.
    std::optional<AlertPolicy> onAlert;

    bool operator==(const CommandLine &) const = default;
};

/// A command line, or what to write instead of running it.
struct ParsedCommandLine
{
    std::optional<CommandLine> commandLine;
    QString text;       ///< the help, the version or the error
    int exitStatus = 0; ///< 0 for help and version, 2 for a command line that cannot be understood
};

/// `arguments` begin with the program's name. `inputIsGiven`: standard input is the document where
/// no file is named.
ParsedCommandLine parseCommandLine(const QStringList &arguments, bool inputIsGiven = false);

} // namespace corvana
