#include "dialog/app/PrintRequest.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "dialog/app/OpenedPrinter.h"
#include "dialog/queues/SamplePrinters.h"
#include "dialog/session/OptionRequest.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PrintRequest)
};

// Beside the program, in the build folder and in an installation alike.
QString besideProgram(const QString &relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + relative);
}

// A name in the current folder that nothing has yet.
QString freeOutputName(const QString &title)
{
    const QString base = QFileInfo(title).completeBaseName();
    QString name = QDir::current().absoluteFilePath(base + QStringLiteral(".ps"));
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = QDir::current().absoluteFilePath(QStringLiteral("%1-%2.ps").arg(base).arg(i));
    return name;
}

QString titleOf(const QList<Document> &documents)
{
    if (documents.isEmpty())
        return {};
    const QString first = documents.constFirst().title;
    const int others = static_cast<int>(documents.size()) - 1;
    return others == 0 ? first : Texts::tr("%1 and %n more", nullptr, others).arg(first);
}

int indexOfPrinter(const QList<Printer> &printers, const QString &name)
{
    for (int i = 0; i < printers.size(); ++i) {
        if (name.isEmpty() || printers.at(i).name == name)
            return i;
    }
    return -1;
}

QString printerProblem(const QList<Printer> &printers, const QString &name)
{
    if (printers.isEmpty())
        return Texts::tr(
            "There is no printer. Name one with --ppd FILE, or try the sample printers with "
            "--demo.");
    QStringList names;
    for (const Printer &printer : printers)
        names += printer.name;
    return Texts::tr("There is no printer \"%1\". Printers: %2.")
        .arg(name, names.join(QStringLiteral(", ")));
}

} // namespace

QList<Printer> offeredPrinters(const CommandLine &line)
{
    QList<Printer> printers;
    // A PPD that cannot be read is reported when its printer is opened.
    QString error;
    if (!line.ppd.isEmpty())
        printers += printerOfPpd(line.ppd, &error);
    if (line.demo)
        printers += samplePrinters(besideProgram(QStringLiteral("../share/corvana-print/ppd")));
    return printers;
}

QStringList trustedBundleRoots(const CommandLine &line)
{
    return line.bundleRoots +
           QStringList{besideProgram(QStringLiteral("../lib/corvana-print/plugins"))};
}

PrintRequest preparePrintRequest(const CommandLine &line, QString *error)
{
    PrintRequest request;
    for (const QString &name : line.documents) {
        const Document document = name == QLatin1StringView("-")
                                      ? readStandardInput(&request.standardInput, error)
                                      : inspectDocument(name, error);
        if (document.path.isEmpty())
            return {};
        request.documents += document;
    }
    const QList<Printer> printers = offeredPrinters(line);
    request.chosenPrinter = indexOfPrinter(printers, line.printer);
    if (request.chosenPrinter < 0) {
        *error = printerProblem(printers, line.printer);
        return {};
    }
    request.printers = printers;
    request.options = parseOptions(line.options);
    request.bundleRoots = trustedBundleRoots(line);
    request.title = line.title.isEmpty() ? titleOf(request.documents) : line.title;
    request.output = line.output.isEmpty() && !request.documents.isEmpty()
                         ? freeOutputName(request.documents.constFirst().title)
                         : line.output;
    request.onAlert = line.onAlert;
    request.copies = line.copies;
    request.summary = line.summary;
    return request;
}

JobTicket makeTicket(const OpenedPrinter &printer, const QList<JobOption> &attributes,
                     const QString &title, int copies)
{
    return {title, copies, jobOptions(*printer.session, printer.jobValues, attributes)};
}

} // namespace corvana
