#include "dialog/app/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include "dialog/app/CommandLineHelp.h"
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

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

// What Qt's parser says. It looks these texts up in a context of its own, where it finds ours
// whether Qt's translations are installed or not.
[[maybe_unused]] constexpr const char *kTextsOfParser[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown options: %1."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'."),
};

QString documentIsMissing()
{
    return Texts::tr("the name of a document is missing.");
}

ParsedCommandLine notUnderstood(const QString &what)
{
    return {std::nullopt,
            u"corvana-print: %1\n%2\n"_s.arg(
                terminalText(what),
                Texts::tr("\"%1\" lists what can be said.").arg(u"corvana-print --help"_s)),
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
    *problem = Texts::tr("%1 %2: a number from %3 to %4 was expected.")
                   .arg((name.size() == 1 ? u"-"_s : u"--"_s) + name, parser.value(option),
                        QString::number(least), QString::number(most));
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
            *problem = Texts::tr("-P \"%1\": pages and ranges in ascending order were expected, "
                                 "such as 1-4,7,9-.")
                           .arg(parser.value(options.pages));
        switches += {kPageRangesAttribute, pages};
    }
    if (parser.isSet(options.hold)) {
        const QString when = parser.value(options.hold);
        const auto hold = readHold(when);
        if (when == "resume"_L1 || when == "restart"_L1)
            *problem = Texts::tr("-H %1 is for a job that is in a queue already: use %2.")
                           .arg(when, u"lp -i JOB -H "_s + when);
        else if (!hold)
            *problem = Texts::tr("-H \"%1\": hold, immediate, %2 was expected.")
                           .arg(when, jobAttribute(kJobHoldUntilAttribute)->allowed.text());
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
    line.alsoOn = parser.value(options.alsoOn).split(u',', Qt::SkipEmptyParts);
    if (parser.isSet(options.followPreset))
        line.followedModel = parser.value(options.followPreset);
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
        *problem = Texts::tr("--check-policy takes one printer and no document.");
    if (parser.isSet(options.server) && !ServerAddress::parse(line.server))
        *problem =
            Texts::tr("--server \"%1\": HOST, HOST:PORT or the path of a socket was expected.")
                .arg(line.server);
    line.copies = readNumber(parser, options.copies, 1, kMostCopies, problem);
    line.switches = readSwitches(parser, options, problem);
    line.wait = readNumber(parser, options.wait, 1, kLongestWait, problem);
    line.passwordDescriptor =
        readNumber(parser, options.passwordDescriptor, 0, kHighestDescriptor, problem);
    if (parser.isSet(options.onAlert)) {
        line.onAlert = alertPolicy(parser.value(options.onAlert));
        if (!line.onAlert)
            *problem = Texts::tr("--on-alert %1: print, hold or refuse was expected.")
                           .arg(parser.value(options.onAlert));
    }
    if (parser.isSet(options.format) && !line.json && parser.value(options.format) != "text"_L1)
        *problem =
            Texts::tr("--format %1: json or text was expected.").arg(parser.value(options.format));
    if (parser.isSet(options.mail))
        *problem = Texts::tr("-m: no mail is sent. What became of the job is said at the end, and "
                             "by the exit status.");
    return problem->isEmpty() ? std::optional(line) : std::nullopt;
}

// A name that is empty, as when the variable of a script is: the usual value is not what was meant.
QString emptyName(const QCommandLineParser &parser, const CommandLineOptions &options)
{
    for (const QCommandLineOption *option :
         {&options.printer, &options.ppd, &options.output, &options.user, &options.passwordFile,
          &options.documentPasswordFile, &options.bundleRoot, &options.preset, &options.savePreset,
          &options.saveInstance, &options.alsoOn}) {
        const QString name = option->names().constFirst();
        if (parser.isSet(*option) && parser.values(*option).contains(QString()))
            return Texts::tr("%1 \"\": %2 is missing.")
                .arg((name.size() == 1 ? u"-"_s : u"--"_s) + name, option->valueName());
    }
    return {};
}

QString cannotBeCombined(const QString &one, const QString &other)
{
    return Texts::tr("%1 and %2 cannot be combined.").arg(one, other);
}

QString onlyWithoutWindow(const QString &option)
{
    return Texts::tr("%1 is for runs without a window (--no-dialog).").arg(option);
}

// Two switches of which the one says the opposite of the other.
QString contradictionIn(const CommandLine &line)
{
    if (line.wait && line.noWait)
        return cannotBeCombined(u"--wait"_s, u"--no-wait"_s);
    if (!line.passwordFile.isEmpty() && line.passwordDescriptor)
        return cannotBeCombined(u"--password-file"_s, u"--password-fd"_s);
    if (line.passwordDescriptor == 0 && line.documents.contains(kStandardStream))
        return Texts::tr("standard input cannot be the document and the password.");
    if (!line.savePreset.isEmpty() && !line.documents.isEmpty())
        return Texts::tr("--save-preset prints nothing: no document can be named.");
    if (line.json && !line.noDialog)
        return onlyWithoutWindow(u"--format=json"_s);
    if (!line.alsoOn.isEmpty() && line.instance.isEmpty())
        return Texts::tr("--also-on: the name of the instance is missing, as in --save-instance "
                         "reports.");
    if (!line.instance.isEmpty() && !line.documents.isEmpty() && !line.noDialog)
        return onlyWithoutWindow(u"--save-instance"_s);
    if (line.output != kStandardStream)
        return {};
    if (line.json)
        return Texts::tr("%1 and %2 cannot be combined: both write to standard output.")
            .arg(u"--format=json"_s, u"--output -"_s);
    if (!line.noDialog)
        return onlyWithoutWindow(u"--output -"_s);
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
        return Texts::tr("-d \"%1\": a URI like ipp://HOST/ipp/print was expected.")
            .arg(line.printer);
    for (const QString &option : line.options) {
        if (!isWellFormed(option))
            return Texts::tr("-o \"%1\": KEY=VALUE was expected.").arg(option);
    }
    if (line.documents.count(u"-"_s) > 1)
        return Texts::tr("standard input (-) can be read once only.");
    if (const QString contradiction = contradictionIn(line); !contradiction.isEmpty())
        return contradiction;
    if ((line.documents.isEmpty() && needsDocument(line)) || line.documents.contains(QString()))
        return documentIsMissing();
    return {};
}

} // namespace

ParsedCommandLine missingDocument()
{
    return notUnderstood(documentIsMissing());
}

ParsedCommandLine parseCommandLine(const QStringList &arguments, bool inputIsGiven)
{
    const CommandLineOptions options;
    QCommandLineParser parser;
    parser.addOptions(options.all());
    parser.addOption(options.followPreset);
    if (!parser.parse(arguments))
        return notUnderstood(parser.errorText());
    if (parser.isSet(options.help))
        return {std::nullopt, commandLineHelp(options)};
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
