#include <pwd.h>
#include <unistd.h>

#include <cups/cups.h>

#include <QApplication>
#include <QMessageBox>
#include <QTextStream>

#include "dialog/app/CommandLine.h"
#include "dialog/app/Language.h"
#include "dialog/app/RequestFromCommandLine.h"
#include "dialog/app/Translations.h"
#include "dialog/job/Document.h"
#include "dialog/job/FileBytes.h"
#include "dialog/terminal/CheckPolicy.h"
#include "dialog/terminal/ListPresets.h"
#include "dialog/terminal/ListPrinters.h"
#include "dialog/terminal/OutcomeLine.h"
#include "dialog/terminal/TerminationSignals.h"
#include "dialog/terminal/UnattendedRun.h"
#include "dialog/window/PrintWindow.h"
#include "dialog/window/ReadableTexts.h"
#include "platform/foundation/ForeignText.h"
#include "platform/toolkit/PlainText.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

int fail(const QString &problem)
{
    QTextStream(stderr) << "corvana-print: " << terminalText(problem) << "\n";
    return 1;
}

// Whoever opened a document from the desktop reads no terminal.
int failInWindow(const QString &problem)
{
    QMessageBox box(QMessageBox::Critical, QCoreApplication::translate("main", "Print"), problem,
                    QMessageBox::Close);
    makePlain(&box);
    box.exec();
    return fail(problem);
}

constexpr auto kPlatforms = "QT_QPA_PLATFORM";
constexpr auto kNoDisplay = "offscreen"; // works always

// Qt ends the program when none of its platforms works. With one more that always does, the program
// lives to tell its user; whether a window can be shown is then known from the platform in use.
// Those that a profile names for all programs are no other: it counts far from its desktop, too.
void choosePlatform(bool needsWindow)
{
    if (!needsWindow) {
        qputenv(kPlatforms, kNoDisplay);
        return;
    }
    if (const QByteArray wanted = qgetenv(kPlatforms); !wanted.isEmpty()) {
        qputenv(kPlatforms, wanted + ';' + kNoDisplay);
        return;
    }
    // What there is no sign of is not tried: the libraries below Qt would complain of it, too.
    const bool x11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    const QString socket = qEnvironmentVariable("WAYLAND_DISPLAY");
    const bool wayland = !socket.isEmpty() && (socket.startsWith(u'/') ||
                                               !qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"));
    QByteArrayList platforms;
    if (wayland)
        platforms += "wayland";
    if (x11)
        platforms += "xcb";
    platforms += kNoDisplay;
    qputenv(kPlatforms, platforms.join(';'));
}

// Whatever has no HOME, such as a job of the system's, would keep its files in "/".
void findHome()
{
    if (!qEnvironmentVariableIsEmpty("HOME"))
        return;
    if (const passwd *user = ::getpwuid(::geteuid()); user && user->pw_dir)
        qputenv("HOME", user->pw_dir);
}

bool ignoresMissingRuntimeFolder = false;

// While Qt looks for a platform that works, what it says of the others is left out: when none does,
// our own sentence says so, and when one does, nobody needs to know.
bool looksForPlatform = false;

// What is logged is read in a terminal as well, and quotes PPDs and servers. Qt complains of a
// missing folder that a program without a window has no use for; cron would send that to its user
// as a mail, each time.
void logForTerminals(bool unattended)
{
    static QtMessageHandler others = nullptr;
    ignoresMissingRuntimeFolder = unattended;
    others = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
            const bool isOfPlatforms = QByteArrayView(context.category).startsWith("qt.qpa") ||
                                       text.startsWith("QStandardPaths:"_L1);
            const bool isRemark = type != QtCriticalMsg && type != QtFatalMsg;
            // That no compositor is there is more than a remark to Qt.
            if (looksForPlatform && text.startsWith("Failed to create wl_display"_L1))
                return;
            if (looksForPlatform && isRemark && isOfPlatforms)
                return;
            // Qt says it of each font that it tries a text with; what no font has is said by us.
            if (text.trimmed().startsWith("OpenType support missing"_L1))
                return;
            if (!ignoresMissingRuntimeFolder ||
                !text.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set"_L1))
                others(type, context, terminalText(text));
        });
}

// What was left to be deleted by an event loop is deleted although none runs any more: jobs have
// folders of the user's documents.
struct LeftForLater
{
    LeftForLater() = default;
    LeftForLater(const LeftForLater &) = delete;
    LeftForLater &operator=(const LeftForLater &) = delete;
    ~LeftForLater() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
};

bool hasWindows()
{
    return QGuiApplication::platformName() != QLatin1StringView(kNoDisplay);
}

void installOwnTranslations(QCoreApplication &application)
{
    installTranslations(application, QCoreApplication::applicationDirPath() +
                                         u"/../share/corvana-print/translations"_s);
}

// What a command line asks for that prints nothing, or why it cannot be understood.
int writeInstead(const ParsedCommandLine &parsed)
{
    QTextStream(parsed.exitStatus == ExitStatus::Done ? stdout : stderr) << parsed.text;
    return int(parsed.exitStatus);
}

// The same where there is no application yet: translations need one, and it needs no display. Who
// prints does not wait for it.
int writeInstead(int argc, char **argv, const QStringList &arguments, bool inputIsGiven)
{
    QCoreApplication application(argc, argv);
    installOwnTranslations(application);
    return writeInstead(parseCommandLine(arguments, inputIsGiven));
}

// Copies of documents are the user's, and go also where a signal ends the program while they are
// made. `endedBySignal` is the exit status then.
std::optional<PrintRequest> prepare(const CommandLine &line, QString *error, int *endedBySignal)
{
    const TerminationSignals termination;
    std::optional<PrintRequest> request =
        preparePrintRequest(line, error, [&] { return termination.caught() != 0; });
    if (!termination.caught())
        return request;
    *endedBySignal = termination.exitStatus();
    return std::nullopt;
}

int runDialog(const PrintRequest &request)
{
    const TerminationSignals termination;
    PrintWindow dialog(request);
    QObject::connect(&termination, &TerminationSignals::received, &dialog, &PrintWindow::interrupt);
    dialog.show();
    dialog.exec();
    if (dialog.report().isEmpty())
        return termination.caught() ? termination.exitStatus() : 1;
    QTextStream(stdout) << terminalText(dialog.report()) << "\n";
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    speakOneLanguage();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += nameOfBytes(argv[i]);
    const bool inputIsGiven = isStandardInputGiven();
    const ParsedCommandLine parsed = parseCommandLine(arguments, inputIsGiven);
    if (!parsed.commandLine)
        return writeInstead(argc, argv, arguments, inputIsGiven);
    const CommandLine &line = *parsed.commandLine;

    // Before there is a second thread: libcups reads it in each, and has done so in this one.
    if (!line.user.isEmpty()) {
        qputenv("CUPS_USER", line.user.toLocal8Bit());
        cupsSetUser(line.user.toUtf8().constData());
    }
    findHome();
    // Tests have windows that nobody sees.
    const bool wantsNoDisplay = qgetenv(kPlatforms).startsWith(kNoDisplay);
    const bool unattended = isUnattended(line);
    choosePlatform(!unattended || line.checkDisplay);
    logForTerminals(unattended);
    looksForPlatform = !wantsNoDisplay;
    QApplication application(argc, argv);
    const LeftForLater leftForLater;
    looksForPlatform = false;
    keepTextsReadable(application);
    QApplication::setApplicationName(u"corvana-print"_s);
    QApplication::setApplicationVersion(QStringLiteral(CORVANA_VERSION));

    installOwnTranslations(application);

    if (line.checkDisplay)
        return hasWindows() ? 0 : 1;
    if (!unattended && !hasWindows() && line.documents.isEmpty())
        return writeInstead(missingDocument());
    if (!unattended && !wantsNoDisplay && !hasWindows())
        return fail(QCoreApplication::translate(
            "main", "no display can be reached. Print without a window with --no-dialog."));

    QString error;
    int endedBySignal = 0;
    const std::optional<PrintRequest> request = prepare(line, &error, &endedBySignal);
    if (endedBySignal)
        return endedBySignal;
    if (!request && line.json)
        writeLine(refusalLine({}, {error}));
    if (!request)
        return unattended || !hasWindows() ? fail(error) : failInWindow(error);
    if (line.listPrinters)
        return listPrinters(*request);
    if (line.listPresets)
        return listPresets(*request);
    if (line.checkPolicy)
        return checkPolicy(*request, line.user);
    return unattended ? runUnattended(*request) : runDialog(*request);
}
