#include "dialog/app/RequestFromCommandLine.h"

#include <chrono>
#include <future>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "dialog/app/Language.h"
#include "dialog/job/FileBytes.h"
#include "dialog/job/TemporaryFolder.h"
#include "dialog/policy/Policy.h"
#include "dialog/presets/LastUsed.h"
#include "dialog/printers/SamplePrinters.h"
#include "dialog/server/ClientFiles.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/JobNames.h"
#include "dialog/task/PassedOn.h"
#include "dialog/terminal/PasswordFile.h"
#include "platform/foundation/Bundle.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RequestFromCommandLine)
};

// Beside the program, in the build folder and in an installation alike.
QString besideProgram(const QString &relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + relative);
}

// The dialog's own help, in the localisation that suits the user best; empty when there is none.
QString dialogHelpPage()
{
    const QString localization = Bundle::preferredLocalizations(dialogLocalizations()).value(0);
    const QFileInfo page(
        besideProgram(u"../share/corvana-print/help/%1/index.html"_s.arg(localization)));
    return page.isFile() ? page.canonicalFilePath() : QString();
}

// Errors: false.
bool takeCredentials(const CommandLine &line, PrintRequest *request, QString *error)
{
    if (line.passwordFile.isEmpty() && !line.passwordDescriptor)
        return true;
    const std::optional<QString> password =
        line.passwordDescriptor ? passwordFromDescriptor(*line.passwordDescriptor, error)
                                : passwordInFile(line.passwordFile, error);
    if (password)
        request->credentials = Credentials{QString::fromUtf8(cupsUser()), *password};
    return password.has_value();
}

// Errors: false.
bool takeDocumentPassword(const CommandLine &line, PrintRequest *request, QString *error)
{
    if (line.documentPasswordFile.isEmpty())
        return true;
    request->documentPassword = passwordInFile(line.documentPasswordFile, error);
    return request->documentPassword.has_value();
}

// Errors: false.
bool takeOutput(const CommandLine &line, PrintRequest *request, QString *error)
{
    request->outputWasNamed = !line.output.isEmpty();
    request->output = line.output;
    if (line.output == kStandardStream) {
        request->standardOutput = std::make_shared<QTemporaryDir>();
        request->output = request->standardOutput->filePath(u"result"_s);
        *error = problemOf(*request->standardOutput);
        return error->isEmpty();
    }
    if (line.output.isEmpty())
        request->output = proposedOutput(request->documents);
    return true;
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
        printers += samplePrinters(besideProgram(u"../share/corvana-print/ppd"_s));
    return printers;
}

QStringList trustedBundleRoots(const CommandLine &line)
{
    return line.bundleRoots + QStringList{besideProgram(u"../lib/corvana-print/plugins"_s)};
}

bool isUnattended(const CommandLine &line)
{
    return line.noDialog || line.listPrinters || line.listPresets || line.checkPolicy ||
           !line.savePreset.isEmpty() ||
           (line.documents.isEmpty() && (line.summary || !line.instance.isEmpty()));
}

namespace {

// How soon it is noticed that nobody wants the document any more.
constexpr std::chrono::milliseconds kLook{50};

// What is read to its end takes as long as somebody writes.
Document readDocument(const QString &name, DocumentKinds kinds, QString *error,
                      const std::function<bool()> &isStopped)
{
    if (name != kStandardInput && !isReadToItsEnd(name))
        return inspectDocument(name, error, kinds);
    std::stop_source stop;
    std::future<Document> reading = std::async(
        std::launch::async, [&] { return inspectDocument(name, error, kinds, stop.get_token()); });
    while (reading.wait_for(kLook) != std::future_status::ready) {
        if (isStopped && isStopped())
            stop.request_stop();
    }
    return reading.get();
}

bool takeDocuments(const CommandLine &line, PrintRequest *request, QString *error,
                   const std::function<bool()> &isStopped)
{
    const auto kinds = asksForRaw(request->options) ? DocumentKinds::Any : DocumentKinds::Known;
    // A window does not wait for whoever writes into a pipe.
    const bool mayBeLater = !isUnattended(line) && kinds == DocumentKinds::Known;
    for (const QString &name : line.documents) {
        if (mayBeLater && (!request->toRead.isEmpty() || isReadToItsEnd(name))) {
            request->toRead += name;
            continue;
        }
        const Document document = readDocument(name, kinds, error, isStopped);
        if (document.path.isEmpty())
            return false;
        request->documents += document;
    }
    return true;
}

} // namespace

std::optional<PrintRequest> preparePrintRequest(const CommandLine &line, QString *error,
                                                const std::function<bool()> &isStopped)
{
    PrintRequest request;
    if (*error = problemOfClientFiles(); !error->isEmpty())
        return std::nullopt;
    // Only documents are found by any name; a result under another name than the one that was
    // given would be lost.
    for (const QString &name : {line.output, line.ppd}) {
        if (hasStrayBytes(name)) {
            *error = Texts::tr("%1: the name is not written in UTF-8.").arg(shownName(name));
            return std::nullopt;
        }
    }
    request.options = parseOptions(line.options) + line.switches;
    if (!takeDocuments(line, &request, error, isStopped))
        return std::nullopt;
    request.printers = offeredPrinters(line);
    request.wantedPrinter = line.printer;
    request.serverWasNamed = !line.server.isEmpty();
    request.server = request.serverWasNamed
                         ? ServerAddress::parse(line.server).value_or(ServerAddress::configured())
                         : ServerAddress::configured();
    if (line.encrypt && request.server.encryption != HTTP_ENCRYPTION_ALWAYS)
        request.server.encryption = HTTP_ENCRYPTION_REQUIRED;
    if (!takeCredentials(line, &request, error) || !takeDocumentPassword(line, &request, error) ||
        !takeOutput(line, &request, error))
        return std::nullopt;
    request.bundleRoots = trustedBundleRoots(line);
    request.titleWasNamed = !line.title.isEmpty();
    request.title = request.titleWasNamed ? line.title : titleOfDocuments(request.documents);
    request.onAlert = line.onAlert;
    request.noWait = line.noWait;
    if (line.wait)
        request.wait = std::chrono::seconds(*line.wait);
    request.quiet = line.quiet;
    request.json = line.json;
    request.copies = line.copies.value_or(1);
    request.copiesWereNamed = line.copies.has_value();
    request.summary = line.summary;
    request.instance = line.instance;
    request.alsoOn = line.alsoOn;
    request.followedModel = line.followedModel;
    if (!isUnattended(line))
        request.program = QCoreApplication::applicationFilePath();
    request.policy = Policy::ofThisComputer();
    request.manySheetsAreMeant = line.yes;
    request.helpPage = dialogHelpPage();
    request.presetPlaces = PresetPlaces::ofUser();
    request.preset = line.preset;
    request.presetToSave = line.savePreset;
    request.remembersLastUsed = !isUnattended(line) && remembersLastUsed();
    return request;
}

} // namespace corvana
