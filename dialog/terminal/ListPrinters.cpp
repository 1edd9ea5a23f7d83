#include "dialog/terminal/ListPrinters.h"

#include <chrono>
#include <functional>

#include <QEventLoop>
#include <QTextStream>
#include <QTimer>

#include "dialog/printers/QueueRequests.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/server/ServerWork.h"
#include "dialog/terminal/TerminalQuestions.h"
#include "dialog/terminal/TerminationSignals.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

namespace {

// How long a server may take to let go of a program that was told to end.
constexpr std::chrono::milliseconds kPatienceAtEnd{1000};

struct Listed
{
    QList<Printer> queues;
    ServerProblem problem;
};

// Asks a server on a thread of its own while the event loop turns, so that signals end it.
Listed listQueuesOf(const ServerContext &server, const TerminationSignals &termination)
{
    QEventLoop loop;
    Listed answer;
    ServerWork work(server, [&loop, &answer](ServerWorker &worker) {
        Listed all;
        ServerConnection &connection = worker.connection();
        if (!listQueues(connection, [&](const QList<Printer> &page) { all.queues += page; }))
            all.problem = connection.problem();
        worker.post([&loop, &answer, all = std::move(all)] {
            answer = all;
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

void write(const QList<Printer> &printers, const UserQueues &user,
           const std::function<QString(const Printer &)> &refusal)
{
    // Names and descriptions are a server's or a PPD's: one line for each printer, whatever they
    // say.
    QTextStream out(stdout);
    const auto list = [&out](const QString &name, const QString &description) {
        out << terminalLine(name) << "\t" << terminalLine(description) << "\n";
    };
    const auto isOffered = [&refusal](const Printer &printer) {
        return !refusal || refusal(printer).isEmpty();
    };
    for (const Printer &printer : printers) {
        if (!isOffered(printer))
            continue;
        list(printer.name, printer.description);
        for (const QString &name : user.instancesOf(printer.name)) {
            Printer instance = printer;
            instance.name = name;
            if (isOffered(instance))
                list(name, printer.description);
        }
    }
}

} // namespace

int listPrinters(const PrintRequest &request)
{
    const TerminationSignals termination;
    const auto refusal = whyNotOffered(request);
    write(request.printers, {}, refusal);
    // Who is asked for a password is whoever reads the terminal.
    ServerContext server{request.server, CredentialStore::create()};
    server.credentials->setQuestioner(
        terminalQuestioner([&termination] { return termination.caught() != 0; }));
    if (request.credentials)
        server.credentials->giveInAdvance(*request.credentials);
    server.mayAsk = true;
    const Listed listed = listQueuesOf(server, termination);
    write(listed.queues, readUserQueues(), refusal);
    if (termination.caught())
        return termination.exitStatus();
    if (!listed.problem)
        return 0;
    QTextStream(stderr) << "corvana-print: " << terminalText(listed.problem.text(request.server))
                        << "\n";
    return request.printers.isEmpty() ? 1 : 0;
}

} // namespace corvana
