#include <algorithm>

#include "dialog/app/CommandLine.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/session/JobAttributes.h"
#include "fuzz/support/Target.h"
#include "platform/foundation/ForeignText.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

void requireShownPlainly(const QString &text)
{
    for (const QString &line : text.split(u'\n'))
        require(line == terminalLine(line), "what is written to a terminal does not command it",
                line);
    require(text.endsWith(u'\n'), "what is written ends its line", text);
}

void requireWithinBounds(const CommandLine &line)
{
    require(!line.copies || (*line.copies >= 1 && *line.copies <= kMostCopies),
            "a number of copies is one that can be made");
    require(!line.wait || *line.wait >= 1, "a time to wait is one");
    require(!line.passwordDescriptor || *line.passwordDescriptor >= 0, "a descriptor is one");
    require(line.server.isEmpty() || ServerAddress::parse(line.server), "a server is an address",
            line.server);
    for (const JobOption &option : line.switches) {
        const JobAttribute *attribute = jobAttribute(option.name);
        require(attribute && attribute->accepts(option.value),
                "a switch stands for an attribute that is taken",
                option.name + u'=' + option.value);
    }
    require(!(line.wait && line.noWait), "what contradicts itself is refused");
}

// What an address is called on a command line is that address.
void requireAddressComesBack(const QString &text)
{
    const std::optional<ServerAddress> address = ServerAddress::parse(text);
    if (!address)
        return;
    const std::optional<ServerAddress> again = ServerAddress::parse(address->argument());
    require(again && again->host == address->host && again->port == address->port,
            "an address that is written is read as itself", address->argument());
    require(address->port > 0 && address->port < 65536 && !address->host.isEmpty(),
            "an address has a host and a port", text);
}

/// Input: the arguments of the program, a line each. There is a command line whose values are all
/// within their bounds, or a text for the terminal that commands nothing of it; never both, and
/// the same each time.
void run(const QByteArray &input)
{
    const QStringList arguments =
        QStringList{u"corvana-print"_s} + QString::fromUtf8(input).split(u'\n');
    const ParsedCommandLine parsed = parseCommandLine(arguments);
    require(parsed.commandLine.has_value() == parsed.text.isEmpty(),
            "a command line is understood, or is answered with a text", parsed.text);
    if (parsed.commandLine)
        requireWithinBounds(*parsed.commandLine);
    else if (parsed.exitStatus != ExitStatus::Done)
        requireShownPlainly(parsed.text);
    require(parseCommandLine(arguments).commandLine == parsed.commandLine,
            "a command line means the same each time");
    for (const QString &argument : arguments)
        requireAddressComesBack(argument);
}

const Target target("command_line", run);

} // namespace

} // namespace corvana::fuzz
