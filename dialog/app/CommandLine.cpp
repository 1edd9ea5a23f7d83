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
    QCommandLineOption printer{{QStringLiteral("d"), QStringLiteral("printer")},
                               QStringLiteral("Print to the printer NAME: a queue, an instance "
                                              "NAME/INSTANCE, or an IPP printer ipp://HOST/PATH."),
                               QStringLiteral("NAME")};
    QCommandLineOption server{
        QStringLiteral("server"),
        QStringLiteral("Use the queues of the print server HOST instead of the usual one."),
        QStringLiteral("HOST[:PORT]")};
    QCommandLineOption ppd{QStringLiteral("ppd"),
                           QStringLiteral("Print for the printer that the PPD FILE describes."),
                           QStringLiteral("FILE")};
    QCommandLineOption output{QStringLiteral("output"),
                              QStringLiteral("Write the printer-ready data to FILE."),
                              QStringLiteral("FILE")};
    QCommandLineOption demo{QStringLiteral("demo"), QStringLiteral("Offer the sample printers.")};
    QCommandLineOption listPrinters{QStringLiteral("list-printers"),
                                    QStringLiteral("List the printers and exit.")};
    QCommandLineOption option{
        {QStringLiteral("o"), QStringLiteral("option")},
        QStringLiteral("Set an option of the printer or of the job; may be repeated."),
        QStringLiteral("KEY=VALUE")};
    QCommandLineOption copies{{QStringLiteral("n"), QStringLiteral("copies")},
                              QStringLiteral("Print N copies (1 to %1).").arg(kMostCopies),
                              QStringLiteral("N")};
    QCommandLineOption title{{QStringLiteral("t"), QStringLiteral("title")},
                             QStringLiteral("Name the job TEXT."),
                             QStringLiteral("TEXT")};
    QCommandLineOption noDialog{QStringLiteral("no-dialog"),
                                QStringLiteral("Print without a window.")};
    QCommandLineOption summary{QStringLiteral("summary"),
                               QStringLiteral("Write the settings of the job to standard output.")};
    QCommandLineOption onAlert{
        QStringLiteral("on-alert"),
        QStringLiteral("Without a window: what to do when the printer's settings "
                       "show instructions: print, hold or refuse. Usually a queue holds the job, "
                       "and a file is printed."),
        QStringLiteral("POLICY")};
    QCommandLineOption noWait{
        QStringLiteral("no-wait"),
        QStringLiteral("Without a window: end when the queue has the job, not when it is "
                       "printed.")};
    QCommandLineOption bundleRoot{
        QStringLiteral("bundle-root"),
        QStringLiteral("Also trust the plug-in bundles in the folder DIR."), QStringLiteral("DIR")};
    QCommandLineOption checkDisplay{
        QStringLiteral("check-display"),
        QStringLiteral("Exit with status 0 when a window can be shown, with 1 when not.")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Show this help.")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("Show the version.")};

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
            QStringLiteral("corvana-print: %1\n%2\n")
                .arg(terminalText(what),
                     QStringLiteral("\"corvana-print --help\" lists what can be said.")),
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
    const bool needsDocument = !line.listPrinters && !line.checkDisplay && !line.summary;
    if ((line.documents.isEmpty() && needsDocument) || line.documents.contains(QString()))
        return u"the name of a document is missing."_s;
    return {};
}

} // namespace

ParsedCommandLine parseCommandLine(const QStringList &arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Prints a document with the settings of its printer, in a dialog or without one."));
    options.addTo(parser);
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QStringLiteral(
            "The document: PDF, PostScript, text, PNG or JPEG; - is standard input. Several "
            "are one job."),
        QStringLiteral("FILE..."));
    if (!parser.parse(arguments))
        return notUnderstood(parser.errorText());
    if (parser.isSet(options.help))
        return {std::nullopt,
                parser.helpText().replace(QStringLiteral("<executable_name>"),
                                          QStringLiteral("corvana-print")),
                0};
    if (parser.isSet(options.version))
        return {std::nullopt,
                QStringLiteral("corvana-print %1\n").arg(QLatin1StringView(CORVANA_VERSION)), 0};

    QString problem;
    const std::optional<CommandLine> line = readValues(parser, options, &problem);
    if (line)
        problem = problemOf(*line);
    if (!problem.isEmpty())
        return notUnderstood(problem);
    return {line, {}, 0};
}

} // namespace corvana
