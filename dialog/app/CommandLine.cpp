#include "dialog/app/CommandLine.h"

#include <QCommandLineParser>

#include "dialog/printers/DevicePrinter.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionRequest.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// The command line is read before there is an application, whose translations would be needed for
// anything but English.
struct Options
{
    QCommandLineOption printer{{u"d"_s, u"printer"_s},
                               u"Print to the printer NAME: a queue, an instance "
                               "NAME/INSTANCE, or an IPP printer ipp://HOST/PATH."_s,
                               u"NAME"_s};
    QCommandLineOption server{
        u"server"_s, u"Use the queues of the print server HOST instead of the usual one."_s,
        u"HOST[:PORT]"_s};
    QCommandLineOption ppd{u"ppd"_s, u"Print for the printer that the PPD FILE describes."_s,
                           u"FILE"_s};
    QCommandLineOption output{u"output"_s, u"Write the printer-ready data to FILE."_s, u"FILE"_s};
    QCommandLineOption demo{u"demo"_s, u"Offer the sample printers."_s};
    QCommandLineOption listPrinters{u"list-printers"_s, u"List the printers and exit."_s};
    QCommandLineOption option{{u"o"_s, u"option"_s},
                              u"Set an option of the printer or of the job; may be repeated."_s,
                              u"KEY=VALUE"_s};
    QCommandLineOption copies{
        {u"n"_s, u"copies"_s}, u"Print N copies (1 to %1)."_s.arg(kMostCopies), u"N"_s};
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
    QCommandLineOption bundleRoot{u"bundle-root"_s,
                                  u"Also trust the plug-in bundles in the folder DIR."_s, u"DIR"_s};
    QCommandLineOption checkDisplay{
        u"check-display"_s, u"Exit with status 0 when a window can be shown, with 1 when not."_s};
    QCommandLineOption help{{u"h"_s, u"help"_s}, u"Show this help."_s};
    QCommandLineOption version{u"version"_s, u"Show the version."_s};

    void addTo(QCommandLineParser &parser) const
    {
        parser.addOptions({printer, server, ppd, output, demo, listPrinters, option, copies, title,
                           noDialog, summary, onAlert, noWait, bundleRoot, checkDisplay, help,
                           version});
    }
};

ParsedCommandLine notUnderstood(const QString &what)
{
    return {std::nullopt,
            u"corvana-print: %1\n%2\n"_s.arg(terminalText(what),
                                             u"\"corvana-print --help\" lists what can be said."_s),
            2};
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
    line.noDialog = parser.isSet(options.noDialog);
    line.noWait = parser.isSet(options.noWait);
    line.summary = parser.isSet(options.summary);
    line.checkDisplay = parser.isSet(options.checkDisplay);
    line.documents = parser.positionalArguments();
    if (parser.isSet(options.server) && !ServerAddress::parse(line.server))
        *problem = u"--server \"%1\": HOST, HOST:PORT or the path of a socket was expected."_s.arg(
            line.server);
    if (parser.isSet(options.copies)) {
        bool isNumber = false;
        line.copies = parser.value(options.copies).toInt(&isNumber);
        if (!isNumber || *line.copies < 1 || *line.copies > kMostCopies)
            *problem =
                u"-n %1: a number from 1 to %2 was expected."_s.arg(parser.value(options.copies))
                    .arg(kMostCopies);
    }
    if (parser.isSet(options.onAlert)) {
        line.onAlert = alertPolicy(parser.value(options.onAlert));
        if (!line.onAlert)
            *problem = u"--on-alert %1: print, hold or refuse was expected."_s.arg(
                parser.value(options.onAlert));
    }
    return problem->isEmpty() ? std::optional(line) : std::nullopt;
}

bool needsDocument(const CommandLine &line)
{
    return !line.listPrinters && !line.checkDisplay && !line.summary;
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
    if ((line.documents.isEmpty() && needsDocument(line)) || line.documents.contains(QString()))
        return u"the name of a document is missing."_s;
    return {};
}

} // namespace

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
        return {std::nullopt, parser.helpText().replace(u"<executable_name>"_s, u"corvana-print"_s),
                0};
    if (parser.isSet(options.version))
        return {std::nullopt, u"corvana-print %1\n"_s.arg(QLatin1StringView(CORVANA_VERSION)), 0};

    QString problem;
    std::optional<CommandLine> line = readValues(parser, options, &problem);
    if (line && inputIsGiven && line->documents.isEmpty() && needsDocument(*line))
        line->documents = QStringList{u"-"_s};
    if (line)
        problem = problemOf(*line);
    if (!problem.isEmpty())
        return notUnderstood(problem);
    return {line, {}, 0};
}

} // namespace corvana
