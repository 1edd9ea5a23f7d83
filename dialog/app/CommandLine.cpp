#include "dialog/app/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace corvana {

namespace {

constexpr int kMostCopies = 9999;

QString tr(const char *text)
{
    return QCoreApplication::translate("CommandLine", text);
}

struct Options {
    QCommandLineOption printer{{QStringLiteral("d"), QStringLiteral("printer")},
                               tr("Print to the printer NAME."), QStringLiteral("NAME")};
    QCommandLineOption ppd{QStringLiteral("ppd"), tr("Print for the printer that the PPD FILE describes."),
                           QStringLiteral("FILE")};
    QCommandLineOption output{QStringLiteral("output"), tr("Write the printer-ready data to FILE."),
                              QStringLiteral("FILE")};
    QCommandLineOption demo{QStringLiteral("demo"), tr("Offer the sample printers.")};
    QCommandLineOption listPrinters{QStringLiteral("list-printers"), tr("List the printers and exit.")};
    QCommandLineOption option{{QStringLiteral("o"), QStringLiteral("option")},
                              tr("Set an option of the printer or of the job; may be repeated."),
                              QStringLiteral("KEY=VALUE")};
    QCommandLineOption copies{{QStringLiteral("n"), QStringLiteral("copies")},
                              tr("Print N copies (1 to %1).").arg(kMostCopies),
                              QStringLiteral("N")};
    QCommandLineOption title{{QStringLiteral("t"), QStringLiteral("title")},
                             tr("Name the job TEXT."), QStringLiteral("TEXT")};
    QCommandLineOption noDialog{QStringLiteral("no-dialog"), tr("Print without a window.")};
    QCommandLineOption summary{QStringLiteral("summary"),
                               tr("Write the settings of the job to standard output.")};
    QCommandLineOption bundleRoot{QStringLiteral("bundle-root"),
                                  tr("Also trust the plug-in bundles in the folder DIR."),
                                  QStringLiteral("DIR")};
    QCommandLineOption checkDisplay{
        QStringLiteral("check-display"),
        tr("Exit with status 0 when a window can be shown, with 1 when not.")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, tr("Show this help.")};
    QCommandLineOption version{QStringLiteral("version"), tr("Show the version.")};

    void addTo(QCommandLineParser &parser) const
    {
        parser.addOptions({printer, ppd, output, demo, listPrinters, option, copies, title, noDialog,
                           summary, bundleRoot, checkDisplay, help, version});
    }
};

ParsedCommandLine notUnderstood(const QString &what)
{
    return {std::nullopt,
            QStringLiteral("corvana-print: %1\n%2\n")
                .arg(what, tr("\"corvana-print --help\" lists what can be said.")),
            2};
}

} // namespace

ParsedCommandLine parseCommandLine(const QStringList &arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Prints a document with the settings of its printer, in a dialog or without one."));
    options.addTo(parser);
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 tr("The document: PDF, PostScript, text, PNG or JPEG."));
    if (!parser.parse(arguments))
        return notUnderstood(parser.errorText());
    if (parser.isSet(options.help))
        return {std::nullopt, parser.helpText(), 0};
    if (parser.isSet(options.version))
        return {std::nullopt, QStringLiteral("corvana-print %1\n").arg(QLatin1StringView(CORVANA_VERSION)), 0};

    CommandLine line;
    line.printer = parser.value(options.printer);
    line.ppd = parser.value(options.ppd);
    line.output = parser.value(options.output);
    line.title = parser.value(options.title);
    line.options = parser.values(options.option);
    line.bundleRoots = parser.values(options.bundleRoot);
    line.demo = parser.isSet(options.demo);
    line.listPrinters = parser.isSet(options.listPrinters);
    line.noDialog = parser.isSet(options.noDialog);
    line.summary = parser.isSet(options.summary);
    line.checkDisplay = parser.isSet(options.checkDisplay);
    if (parser.isSet(options.copies)) {
        bool isNumber = false;
        line.copies = parser.value(options.copies).toInt(&isNumber);
        if (!isNumber || line.copies < 1 || line.copies > kMostCopies) {
            return notUnderstood(tr("-n %1: a number from 1 to %2 was expected.")
                                     .arg(parser.value(options.copies))
                                     .arg(kMostCopies));
        }
    }
    const QStringList documents = parser.positionalArguments();
    if (documents.size() > 1)
        return notUnderstood(tr("one document was expected, not %1: %2")
                                 .arg(documents.size())
                                 .arg(documents.join(u' ')));
    line.document = documents.value(0);
    const bool needsDocument = !line.listPrinters && !line.checkDisplay && !line.summary;
    if (line.document.isEmpty() && needsDocument)
        return notUnderstood(tr("the name of a document is missing."));
    return {line, {}, 0};
}

} // namespace corvana
