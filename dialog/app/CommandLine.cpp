#include "dialog/app/CommandLine.h"

#include "dialog/app/CommandLineOptions.h"
#include "dialog/printers/DevicePrinter.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// A year: more would be no limit. Units: seconds.
constexpr int kLongestWait = 365 * 24 * 60 * 60;
// No shell opens more.
constexpr int kHighestDescriptor = 1023;

constexpr QStringView kMissingDocument = u"the name of a document is missing.";

ParsedCommandLine notUnderstood(const QString &what)
{
    return {std::nullopt,
            u"corvana-print: %1\n%2\n"_s.arg(terminalText(what),
                                             u"\"corvana-print --help\" lists what can be said."_s),
            ExitStatus::NotUnderstood};
}

// A number that was given. Errors: nothing; `problem` says what was expected.
std::optional<int> readNumber(const QCommandLineParser &parser, const QCommandLineOption &option,
                              int least, int most, QString *problem)
{
    if (!parser.isSet(option))
        return std::nullopt;
    bool isNumber = false;
    const int number = parser.value(option).toInt(&isNumber);
    if (isNumber && number >= least && number <= most)
        return number;
    const QString name = option.names().constFirst();
    *problem = u"%1 %2: a number from %3 to %4 was expected."_s.arg(
        (name.size() == 1 ? u"-"_s : u"--"_s) + name, parser.value(option), QString::number(least),
        QString::number(most));
    return std::nullopt;
}

// What lp calls the time at which a job is printed. Errors: nothing.
std::optional<QList<JobOption>> readHold(const QString &when)
{
    const QString attribute = kJobHoldUntilAttribute;
    if (when == "hold"_L1)
        return QList<JobOption>{{attribute, kHeldIndefinitely}};
    if (when == "immediate"_L1)
        return QList<JobOption>{{attribute, u"no-hold"_s}, {u"job-priority"_s, u"100"_s}};
    if (!jobAttribute(attribute)->accepts(when))
        return std::nullopt;
    return QList<JobOption>{{attribute, when}};
}

// The switches of lp that stand for an attribute of the job. Errors: `problem` says which one
// cannot be taken.
QList<JobOption> readSwitches(const QCommandLineParser &parser, const CommandLineOptions &options,
                              QString *problem)
{
    QList<JobOption> switches;
    if (parser.isSet(options.pages)) {
        const QString pages = parser.value(options.pages).remove(u' ');
        if (!jobAttribute(kPageRangesAttribute)->accepts(pages))
            *problem = u"-P \"%1\": pages and ranges in ascending order were expected, such as "
                       "1-4,7,9-."_s.arg(parser.value(options.pages));
        switches += {kPageRangesAttribute, pages};
    }
    if (parser.isSet(options.hold)) {
        const QString when = parser.value(options.hold);
        const auto hold = readHold(when);
        if (when == "resume"_L1 || when == "restart"_L1)
            *problem =
                u"-H %1 is for a job that is in a queue already: use lp -i JOB -H %1."_s.arg(when);
        else if (!hold)
            *problem = u"-H \"%1\": hold, immediate, %2 was expected."_s.arg(
                when, jobAttribute(kJobHoldUntilAttribute)->allowed.text());
        else
            switches += *hold;
    }
    // Behind -H, whose "immediate" is a priority as well.
    if (const auto priority = readNumber(parser, options.priority, 1, 100, problem)) {
        switches.removeIf([](const JobOption &option) { return option.name == "job-priority"_L1; });
        switches += {u"job-priority"_s, QString::number(*priority)};
    }
    return switches;
}

// What the values say. Errors: nothing; `problem` says which one cannot be understood.
std::optional<CommandLine> readValues(const QCommandLineParser &parser,
                                      const CommandLineOptions &options, QString *problem)
{
    CommandLine line;
    line.printer = parser.value(options.printer);
    line.ppd = parser.value(options.ppd);
    line.server = parser.value(options.server);
    line.output = parser.value(options.output);
    line.title = parser.value(options.title);
    line.options = parser.values(options.option);
    line.bundleRoots = parser.values(options.bundleRoot);
    line.demo = parser.isSet(options.demo);
    line.listPrinters = parser.isSet(options.listPrinters);
    line.preset = parser.value(options.preset);
    line.savePreset = parser.value(options.savePreset);
    line.listPresets = parser.isSet(options.listPresets);
    line.checkPolicy = parser.isSet(options.checkPolicy);
    line.yes = parser.isSet(options.yes);
    line.noDialog = parser.isSet(options.noDialog);
    line.noWait = parser.isSet(options.noWait);
    line.summary = parser.isSet(options.summary);
    line.instance = parser.value(options.saveInstance);
    line.checkDisplay = parser.isSet(options.checkDisplay);
    line.quiet = parser.isSet(options.quiet);
    line.encrypt = parser.isSet(options.encrypt);
    line.user = parser.value(options.user);
    line.passwordFile = parser.value(options.passwordFile);
    line.documentPasswordFile = parser.value(options.documentPasswordFile);
    line.json = parser.value(options.format) == "json"_L1;
    line.documents = parser.positionalArguments();
    // What stands behind it is a printer.
    if (line.checkPolicy && !line.documents.isEmpty() && line.printer.isEmpty())
        line.printer = line.documents.takeFirst();
    if (line.checkPolicy && !line.documents.isEmpty())
        *problem = u"--check-policy takes one printer and no document."_s;
    if (parser.isSet(options.server) && !ServerAddress::parse(line.server))
        *problem = u"--server \"%1\": HOST, HOST:PORT or the path of a socket was expected."_s.arg(
            line.server);
    line.copies = readNumber(parser, options.copies, 1, kMostCopies, problem);
    line.switches = readSwitches(parser, options, problem);
    line.wait = readNumber(parser, options.wait, 1, kLongestWait, problem);
    line.passwordDescriptor =
        readNumber(parser, options.passwordDescriptor, 0, kHighestDescriptor, problem);
    if (parser.isSet(options.onAlert)) {
        line.onAlert = alertPolicy(parser.value(options.onAlert));
        if (!line.onAlert)
            *problem = u"--on-alert %1: print, hold or refuse was expected."_s.arg(
                parser.value(options.onAlert));
    }
    if (parser.isSet(options.format) && !line.json && parser.value(options.format) != "text"_L1)
        *problem = u"--format %1: json or text was expected."_s.arg(parser.value(options.format));
    if (parser.isSet(options.mail))
        *problem = u"-m: no mail is sent. What became of the job is said at the end, and by the "
                   "exit status."_s;
    return problem->isEmpty() ? std::optional(line) : std::nullopt;
}

// A name that is empty, as when the variable of a script is: the usual value is not what was meant.
QString emptyName(const QCommandLineParser &parser, const CommandLineOptions &options)
{
    for (const QCommandLineOption *option :
         {&options.printer, &options.ppd, &options.output, &options.user, &options.passwordFile,
          &options.documentPasswordFile, &options.bundleRoot, &options.preset, &options.savePreset,
          &options.saveInstance}) {
        const QString name = option->names().constFirst();
        if (parser.isSet(*option) && parser.values(*option).contains(QString()))
            return u"%1 \"\": %2 is missing."_s.arg((name.size() == 1 ? u"-"_s : u"--"_s) + name,
                                                    option->valueName());
    }
    return {};
}

// Two switches of which the one says the opposite of the other.
QString contradictionIn(const CommandLine &line)
{
    if (line.wait && line.noWait)
        return u"--wait and --no-wait cannot be combined."_s;
    if (!line.passwordFile.isEmpty() && line.passwordDescriptor)
        return u"--password-file and --password-fd cannot be combined."_s;
    if (line.passwordDescriptor == 0 && line.documents.contains(kStandardStream))
        return u"standard input cannot be the document and the password."_s;
    if (!line.savePreset.isEmpty() && !line.documents.isEmpty())
        return u"--save-preset prints nothing: no document can be named."_s;
    if (line.json && !line.noDialog)
        return u"--format=json is for runs without a window (--no-dialog)."_s;
    if (!line.instance.isEmpty() && !line.documents.isEmpty() && !line.noDialog)
        return u"--save-instance is for runs without a window (--no-dialog)."_s;
    if (line.output != kStandardStream)
        return {};
    if (line.json)
        return u"--format=json and --output - cannot be combined: both write to standard "
               "output."_s;
    if (!line.noDialog)
        return u"--output - is for runs without a window (--no-dialog)."_s;
    return {};
}

bool takesDocument(const CommandLine &line)
{
    return !line.listPrinters && !line.listPresets && line.savePreset.isEmpty() &&
           !line.checkPolicy && !line.checkDisplay && !line.summary && line.instance.isEmpty();
}

// In a window documents can be chosen.
bool needsDocument(const CommandLine &line)
{
    return line.noDialog && takesDocument(line);
}

// Why a command line cannot be understood although each of its values can be read; empty when it
// can.
QString problemOf(const CommandLine &line)
{
    if (isDeviceUri(line.printer) && !deviceOfUri(line.printer))
        return u"-d \"%1\": a URI like ipp://HOST/ipp/print was expected."_s.arg(line.printer);
    for (const QString &option : line.options) {
        if (!isWellFormed(option))
            return u"-o \"%1\": KEY=VALUE was expected."_s.arg(option);
    }
    if (line.documents.count(u"-"_s) > 1)
        return u"standard input (-) can be read once only."_s;
    if (const QString contradiction = contradictionIn(line); !contradiction.isEmpty())
        return contradiction;
    if ((line.documents.isEmpty() && needsDocument(line)) || line.documents.contains(QString()))
        return kMissingDocument.toString();
    return {};
}

} // namespace

ParsedCommandLine missingDocument()
{
    return notUnderstood(kMissingDocument.toString());
}

ParsedCommandLine parseCommandLine(const QStringList &arguments, bool inputIsGiven)
{
    const CommandLineOptions options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Prints a document with the settings of its printer, in a dialog or without one."_s);
    options.addTo(parser);
    parser.addPositionalArgument(
        u"FILE"_s,
        u"The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several "
        "are one job."_s,
        u"FILE..."_s);
    if (!parser.parse(arguments))
        return notUnderstood(parser.errorText());
    if (parser.isSet(options.help))
        return {std::nullopt,
                parser.helpText().replace(u"<executable_name>"_s, u"corvana-print"_s) +
                    exitStatusHelp()};
    if (parser.isSet(options.version))
        return {std::nullopt, u"corvana-print %1\n"_s.arg(QLatin1StringView(CORVANA_VERSION))};

    QString problem = emptyName(parser, options);
    if (!problem.isEmpty())
        return notUnderstood(problem);
    std::optional<CommandLine> line = readValues(parser, options, &problem);
    if (line && inputIsGiven && line->passwordDescriptor != 0 && line->documents.isEmpty() &&
        takesDocument(*line))
        line->documents = QStringList{kStandardStream};
    if (line)
        problem = problemOf(*line);
    if (!problem.isEmpty())
        return notUnderstood(problem);
    return {line};
}

} // namespace corvana
