#include "dialog/app/UnattendedRun.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QEventLoop>
#include <QRegularExpression>
#include <QTextStream>
#include <QTimer>

#include "dialog/app/AlertPresenters.h"
#include "dialog/app/OpenedPrinter.h"
#include "dialog/app/QueueOpening.h"
#include "dialog/app/TerminalQuestions.h"
#include "dialog/app/TerminationSignals.h"
#include "dialog/job/FileQueue.h"
#include "dialog/job/ServerJob.h"
#include "dialog/printers/PrinterFetching.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "platform/toolkit/InterfaceLoader.h"

namespace corvana {

namespace {

int refused(const QStringList &problems)
{
    QTextStream err(stderr);
    for (const QString &problem : problems)
        err << "corvana-print: " << problem << "\n";
    err << QCoreApplication::translate("UnattendedRun", "Nothing was printed.") << "\n";
    return 1;
}

// A panel without its controls would print other choices than one with them.
QStringList panelProblems(const OpenedPrinter &printer)
{
    QStringList problems = takeInterfaceProblems();
    if (!printer.panelProblem.isEmpty())
        problems += printer.panelProblem;
    return problems;
}

// Attributes, with others in place of those of the same name.
QList<JobOption> replaced(QList<JobOption> attributes, const QList<JobOption> &others)
{
    attributes.removeIf([&](const JobOption &attribute) {
        return std::any_of(others.cbegin(), others.cend(),
                           [&](const JobOption &other) { return other.name == attribute.name; });
    });
    return attributes + others;
}

QStringList refusalMessages(PpdSession &session)
{
    QStringList messages;
    const QList<Refusal> refusals = session.takeRefusals();
    for (const Refusal &refusal : refusals)
        messages += conflictMessage(refusal, session.ppd());
    return messages;
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UnattendedRun)
};

// How long a server may take to let go of a program that was told to end.
constexpr std::chrono::milliseconds kPatienceAtEnd{1000};

// Runs a question to a server on its thread while the event loop turns, so that signals end it.
template <class Answer>
Answer askServer(const ServerContext &server, const TerminationSignals &termination,
                 const std::function<Answer(ServerConnection &)> &question)
{
    QEventLoop loop;
    Answer answer;
    ServerWork work(server, [&loop, &answer, question](ServerWorker &worker) {
        Answer said = question(worker.connection());
        worker.post([&loop, &answer, said = std::move(said)] {
            answer = said;
            loop.quit();
        });
    });
    const auto end = [&] {
        work.cancel();
        // A name that is being looked up cannot be interrupted.
        QTimer::singleShot(kPatienceAtEnd, &loop, &QEventLoop::quit);
    };
    QObject::connect(&termination, &TerminationSignals::received, &loop, end);
    if (termination.caught())
        end();
    loop.exec();
    return answer;
}

// The queue that a run without a name prints to.
struct FoundDefault
{
    QString name;
    ServerProblem problem;
};

// For somebody who has mistyped the name of one that needs no server.
QString withOtherPrinters(const QString &problem, const PrintRequest &request)
{
    QStringList names;
    for (const Printer &printer : request.printers)
        names += printer.name;
    return names.isEmpty() ? problem
                           : Texts::tr("%1 Printers that need no print server: %2.")
                                 .arg(problem, names.join(QStringLiteral(", ")));
}

// Whole texts, because not every language has a blank between two sentences.
QString noDefaultPrinter(const ServerProblem &problem, const ServerAddress &server)
{
    const bool away = problem && problem.kind != ServerProblem::Kind::NotFound;
    return away ? Texts::tr("There is no default printer. %1 Name a printer with -d, or a PPD with "
                            "--ppd FILE, or try the sample printers with --demo.")
                      .arg(problem.text(server))
                : Texts::tr("There is no default printer. Name a printer with -d, or a PPD with "
                            "--ppd FILE, or try the sample printers with --demo.");
}

// Finds the queue that is wanted and fetches its PPD. Errors: no PPD.
FetchedPrinter readyQueue(const PrintRequest &request, ServerContext *server,
                          const TerminationSignals &termination, QString *error)
{
    QString name =
        request.wantedPrinter.isEmpty() ? readUserQueues().defaultName : request.wantedPrinter;
    if (name.isEmpty()) {
        const auto found =
            askServer<FoundDefault>(*server, termination, [](ServerConnection &connection) {
                const QString queue = defaultQueue(connection);
                return FoundDefault{queue, connection.problem()};
            });
        if (termination.caught()) {
            *error = Texts::tr("Interrupted.");
            return {};
        }
        if (found.name.isEmpty()) {
            *error = noDefaultPrinter(found.problem, server->address);
            return {};
        }
        name = found.name;
    }
    const Printer printer = queueNamed(name, &server->address);
    const PpdCache cache;
    const auto cached = cache.find(server->address.argument(), name);
    const auto details = askServer<QueueDetails>(
        *server, termination,
        [printer, since = cached ? cached->ppd->lastModified : 0](ServerConnection &connection) {
            return inspectQueue(connection, printer, since);
        });
    if (termination.caught()) {
        *error = Texts::tr("Interrupted.");
        return {};
    }
    if (details.state == QueueDetails::Ppd::Unknown) {
        *error = withOtherPrinters(
            details.problem.kind == ServerProblem::Kind::NotFound
                ? Texts::tr("There is no printer \"%1\" at the print server \"%2\".")
                      .arg(name, server->address.text())
                : Texts::tr("%1 So the printer \"%2\" could not be asked for.")
                      .arg(details.problem.text(server->address), name),
            request);
        return {};
    }
    return fetchedPrinter(details, cached ? cached->ppd : nullptr, cache, server->address, error);
}

int printToFile(const PrintRequest &request, const OpenedPrinter &printer, const JobTicket &ticket,
                const TerminationSignals &termination)
{
    FileQueue queue;
    QString problem;
    QObject::connect(&queue, &FileQueue::finished, [&problem](const QString &p) { problem = p; });
    QObject::connect(&termination, &TerminationSignals::received, &queue, &FileQueue::cancel);
    queue.print(request.documents, ticket, printer.fetched.ppd->path, request.output);
    if (termination.caught())
        queue.cancel(); // while the printer was being opened
    if (!queue.wait()) {
        const int status = refused({problem});
        return termination.caught() ? termination.exitStatus() : status;
    }
    QTextStream(stdout) << Texts::tr("Printed to %1").arg(request.output) << "\n";
    return 0;
}

// A name as a shell takes it: queues may be called almost anything.
QString shellWord(QString text)
{
    static const QRegularExpression plain(
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9_.:/-]+")));
    if (plain.match(text).hasMatch())
        return text;
    return u'\'' + text.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

// How a held job is let go, for whoever follows its instructions.
QString releaseCommand(const PrintRequest &request, const Printer &printer, int job)
{
    const QString server = request.serverWasNamed
                               ? QStringLiteral("-h %1 ").arg(shellWord(request.server.argument()))
                               : QString();
    const QString name = jobName(printer, job);
    return QStringLiteral("lp %1-i %2 -H resume").arg(server, shellWord(name));
}

int printToServer(const PrintRequest &request, const OpenedPrinter &printer,
                  const JobTicket &ticket, const ServerContext &server, bool held,
                  const TerminationSignals &termination)
{
    ServerJob job;
    QObject::connect(&termination, &TerminationSignals::received, &job, &ServerJob::cancel);
    // Whoever waits is told what for.
    QObject::connect(&job, &ServerJob::progressed,
                     [told = JobProgress::Stage::Sending](const JobProgress &progress) mutable {
                         if (std::exchange(told, progress.stage) != progress.stage &&
                             progress.stage == JobProgress::Stage::Stopped)
                             QTextStream(stderr) << progress.text() << "\n";
                     });
    job.print(serverJobRequest(printer, server, request, ticket));
    if (termination.caught())
        job.cancel();
    const JobOutcome outcome = job.wait();
    QTextStream(outcome.isDone() ? stdout : stderr)
        << (outcome.isDone() ? QString() : QStringLiteral("corvana-print: ")) << outcome.text
        << "\n";
    if (outcome.isDone() && held)
        QTextStream(stdout) << Texts::tr(
                                   "It waits until the instructions have been followed. Release it "
                                   "with: %1")
                                   .arg(releaseCommand(request, printer.fetched.printer,
                                                       outcome.job))
                            << "\n";
    if (outcome.isDone())
        return 0;
    return termination.caught() ? termination.exitStatus() : 1;
}

// Who is asked for a password is whoever reads the terminal.
ServerContext contextWithTerminal(const PrintRequest &request,
                                  const TerminationSignals &termination)
{
    ServerContext server{request.server, CredentialStore::create()};
    server.credentials->setQuestioner(
        terminalQuestioner([&termination] { return termination.caught() != 0; }));
    server.mayAsk = true;
    return server;
}

} // namespace

int runUnattended(const PrintRequest &request)
{
    const TerminationSignals termination;
    ServerContext server = contextWithTerminal(request, termination);

    QString error;
    const int file = wantedAmongFiles(request);
    const FetchedPrinter ready = file >= 0 ? printerWithItsFile(request.printers.at(file))
                                           : readyQueue(request, &server, termination, &error);
    if (!ready.ppd) {
        const int status = refused({error});
        return termination.caught() ? termination.exitStatus() : status;
    }
    const bool toFile = request.outputWasNamed || ready.printer.origin == PrinterOrigin::PpdFile;
    TerminalAlertPresenter presenter(
        request.onAlert.value_or(toFile ? AlertPolicy::Print : AlertPolicy::Hold), !toFile);
    const auto printer = openPrinter(ready, request.bundleRoots, presenter, &error);
    if (!printer)
        return refused({error});
    printer->panels->bringUp();
    if (const QStringList problems = panelProblems(*printer); !problems.isEmpty())
        return refused(problems);
    FittedOptions fitted;
    if (ready.printer.origin == PrinterOrigin::Queue) {
        // A choice of long ago does not stop a job; what this command line says does.
        fitted = applyWhatFits(readUserQueues().optionsOf(ready.printer.name), *printer);
        for (const QString &problem : std::as_const(fitted.problems))
            QTextStream(stderr) << "corvana-print: lpoptions: " << problem << "\n";
    }
    const OptionOutcome options =
        applyOptions(request.options, *printer->session, printer->jobValues, *printer->panels);
    if (!options.ok())
        return refused(options.problems);
    QList<JobOption> attributes = replaced(fitted.attributes, options.attributes);
    const std::optional<int> named =
        request.copiesWereNamed ? std::optional(request.copies) : options.copies;
    const int mostCopies =
        printer->fetched.capabilities ? printer->fetched.capabilities->maximumCopies : 0;
    int copies = named.value_or(fitted.copies.value_or(request.copies));
    if (mostCopies > 0 && copies > mostCopies) {
        const QString problem = Texts::tr("The printer prints at most %1 copies at once, not %2.")
                                    .arg(mostCopies)
                                    .arg(copies);
        if (named)
            return refused({problem});
        QTextStream(stderr) << "corvana-print: lpoptions: " << problem << "\n";
        copies = mostCopies;
    }

    const bool printing = !request.documents.isEmpty();
    const bool allowed = !printing || printer->panels->shouldPrint();
    const bool held = presenter.jobMustWait() && presenter.jobCanWait();
    if (presenter.jobMustWait() && !held) {
        return refused(
            {presenter.policy() == AlertPolicy::Hold
                 ? Texts::tr("The job would have to wait for these instructions, and a file "
                             "cannot wait. Follow them and print with --on-alert=print.")
                 : Texts::tr("The printer's settings show instructions.")});
    }
    if (!allowed)
        return refused({Texts::tr("The printer's settings hold the job back.")});
    if (held)
        attributes = replaced(attributes, {{kJobHoldUntilAttribute, kHeldIndefinitely}});
    // Before the ticket: the panels restore and save on the way.
    if (request.summary)
        QTextStream(stdout) << summaryText(
            sessionSummary(*printer->session, *printer->panels, copies, attributes));
    const QStringList problems =
        refusalMessages(*printer->session) + jobProblems(*printer->session, printer->jobValues);
    if (!problems.isEmpty())
        return refused(problems);
    if (!printing)
        return 0;
    const JobTicket ticket = makeTicket(*printer, attributes, request.title, copies);
    return toFile ? printToFile(request, *printer, ticket, termination)
                  : printToServer(request, *printer, ticket, server, held, termination);
}

int listPrinters(const PrintRequest &request)
{
    const TerminationSignals termination;
    QTextStream out(stdout);
    for (const Printer &printer : request.printers)
        out << printer.name << "\t" << printer.description << "\n";
    struct Listed
    {
        QList<Printer> queues;
        ServerProblem problem;
    };
    const ServerContext server = contextWithTerminal(request, termination);
    const auto listed = askServer<Listed>(server, termination, [](ServerConnection &connection) {
        Listed all;
        if (!listQueues(connection, [&](const QList<Printer> &page) { all.queues += page; }))
            all.problem = connection.problem();
        return all;
    });
    const UserQueues user = readUserQueues();
    for (const Printer &printer : listed.queues) {
        out << printer.name << "\t" << printer.description << "\n";
        for (const QString &instance : user.instancesOf(printer.name))
            out << instance << "\t" << printer.description << "\n";
    }
    if (termination.caught())
        return termination.exitStatus();
    if (!listed.problem)
        return 0;
    QTextStream(stderr) << "corvana-print: " << listed.problem.text(request.server) << "\n";
    return request.printers.isEmpty() ? 1 : 0;
}

} // namespace corvana
