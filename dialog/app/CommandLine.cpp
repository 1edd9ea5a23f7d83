#include "dialog/app/CommandLine.h"

#include <QCommandLineParser>

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

// The command line is read before there is an application, whose translations would be needed for
// anything but English.
struct Options
{
    QCommandLineOption printer{{u"d"_s, u"printer"_s},
                               u"Print to the printer NAME: a queue, an instance "
                               "NAME/INSTANCE, or an IPP printer ipp://HOST/PATH."_s,
                               u"NAME"_s};
    QCommandLineOption server{
        {u"h"_s, u"server"_s},
        u"Use the queues of the print server HOST instead of the usual one."_s,
        u"HOST[:PORT]"_s};
    QCommandLineOption encrypt{u"E"_s, u"Speak to the print server with encryption only."_s};
    QCommandLineOption user{u"U"_s, u"Print as the user USER."_s, u"USER"_s};
    QCommandLineOption passwordFile{
        u"password-file"_s,
        u"Take the password from the first line of FILE, which nobody but its owner may read; "
        "nobody is asked."_s,
        u"FILE"_s};
    QCommandLineOption passwordDescriptor{
        u"password-fd"_s, u"The same from the open file descriptor N (0 is standard input)."_s,
        u"N"_s};
    QCommandLineOption documentPasswordFile{
        u"document-password-file"_s,
        u"Open protected PDF documents with the password in the first line of FILE, which nobody "
        "but its owner may read."_s,
        u"FILE"_s};
    QCommandLineOption ppd{u"ppd"_s, u"Print for the printer that the PPD FILE describes."_s,
                           u"FILE"_s};
    QCommandLineOption output{
        u"output"_s, u"Write the printer-ready data to FILE; - is standard output."_s, u"FILE"_s};
    QCommandLineOption demo{u"demo"_s, u"Offer the sample printers."_s};
    QCommandLineOption listPrinters{u"list-printers"_s, u"List the printers and exit."_s};
    QCommandLineOption checkPolicy{
        u"check-policy"_s,
        u"Say what the administrator's policy decides, and where, for the printer that is named "
        "behind it or by -d; as root with -U for another user. Exit with status 1 when something "
        "of "
        "it is not used."_s};
    QCommandLineOption yes{u"yes"_s, u"Print a job of many sheets without being asked."_s};
    QCommandLineOption option{{u"o"_s, u"option"_s},
                              u"Set an option of the printer or of the job; may be repeated."_s,
                              u"KEY=VALUE"_s};
    QCommandLineOption copies{
        {u"n"_s, u"copies"_s}, u"Print N copies (1 to %1)."_s.arg(kMostCopies), u"N"_s};
    QCommandLineOption pages{u"P"_s, u"Print these pages (1-4,7,9-), as -o page-ranges= does."_s,
                             u"LIST"_s};
    QCommandLineOption priority{
        u"q"_s, u"Give the job this priority (1 to 100), as -o job-priority= does."_s,
        u"PRIORITY"_s};
    QCommandLineOption hold{
        u"H"_s,
        u"When to print: hold, immediate, a time HH:MM (UTC), or what -o job-hold-until= "
        "takes."_s,
        u"WHEN"_s};
    QCommandLineOption quiet{u"s"_s, u"Do not say which job was printed, only what went wrong."_s};
    QCommandLineOption copy{u"c"_s, u"Does nothing: the document is always copied to the queue."_s};
    QCommandLineOption mail{u"m"_s, u"Is refused: no mail is sent."_s};
    QCommandLineOption title{{u"t"_s, u"title"_s}, u"Name the job TEXT."_s, u"TEXT"_s};
    QCommandLineOption noDialog{u"no-dialog"_s, u"Print without a window."_s};
    QCommandLineOption summary{u"summary"_s,
                               u"Write the settings of the job to standard output."_s};
    QCommandLineOption onAlert{
        u"on-alert"_s,
        u"Without a window: what to do when the printer's settings "
        "show instructions: print, hold or refuse. Usually a queue holds the job, "
        "and a file is printed."_s,
        u"POLICY"_s};
    QCommandLineOption noWait{u"no-wait"_s,
                              u"Without a window: end when the queue has the job, not when it is "
                              "printed."_s};
    QCommandLineOption wait{
        u"wait"_s,
        u"Without a window: follow the job for SECONDS at most once its queue has it, then leave "
        "it there."_s,
        u"SECONDS"_s};
    QCommandLineOption format{
        u"format"_s,
        u"Without a window: json writes what became of the job to standard output, as one line "
        "that a program can read; text is what people read."_s,
        u"FORMAT"_s};
    QCommandLineOption bundleRoot{u"bundle-root"_s,
                                  u"Also trust the plug-in bundles in the folder DIR."_s, u"DIR"_s};
    QCommandLineOption checkDisplay{
        u"check-display"_s, u"Exit with status 0 when a window can be shown, with 1 when not."_s};
    QCommandLineOption help{u"help"_s, u"Show this help."_s};
    QCommandLineOption version{u"version"_s, u"Show the version."_s};

    void addTo(QCommandLineParser &parser) const
    {
        parser.addOptions({printer,
                           server,
                           encrypt,
                           user,
                           passwordFile,
                           passwordDescriptor,
                           documentPasswordFile,
                           ppd,
                           output,
                           demo,
                           listPrinters,
                           checkPolicy,
                           yes,
                           option,
                           copies,
                           pages,
                           priority,
                           hold,
                           title,
                           quiet,
                           copy,
                           mail,
                           noDialog,
                           summary,
                           onAlert,
                           wait,
                           noWait,
                           format,
                           bundleRoot,
                           checkDisplay,
                           help,
                           version});
    }
};

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
    *problem = u"%1 %2: a number from %3 to %4 was expected."_s
                   .arg((name.size() == 1 ? u"-"_s : u"--"_s) + name, parser.value(option))
                   .arg(least)
                   .arg(most);
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
QList<JobOption> readSwitches(const QCommandLineParser &parser, const Options &options,
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
std::optional<CommandLine> readValues(const QCommandLineParser &parser, const Options &options,
                                      QString *problem)
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
    line.checkPolicy = parser.isSet(options.checkPolicy);
    line.yes = parser.isSet(options.yes);
    line.noDialog = parser.isSet(options.noDialog);
    line.noWait = parser.isSet(options.noWait);
    line.summary = parser.isSet(options.summary);
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
QString emptyName(const QCommandLineParser &parser, const Options &options)
{
    for (const QCommandLineOption *option :
         {&options.printer, &options.ppd, &options.output, &options.user, &options.passwordFile,
          &options.documentPasswordFile, &options.bundleRoot}) {
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
    if (line.json && !line.noDialog)
        return u"--format=json is for runs without a window (--no-dialog)."_s;
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
    return !line.listPrinters && !line.checkPolicy && !line.checkDisplay && !line.summary;
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
    const Options options;
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
