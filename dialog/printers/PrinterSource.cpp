#include "dialog/printers/PrinterSource.h"

#include <algorithm>
#include <utility>

#include "dialog/printers/DevicePrinter.h"
#include "dialog/printers/LastPrinter.h"
#include "dialog/printers/PrinterId.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

const Printer *find(const QList<Printer> &printers, const QString &name)
{
    const auto found =
        std::find_if(printers.cbegin(), printers.cend(),
                     [&](const Printer &printer) { return isCalled(printer, name); });
    return found == printers.cend() ? nullptr : &*found;
}

// Whole texts, because not every language has a blank between two sentences.
QString noDefaultPrinter(const ServerProblem &problem, const ServerAddress &server)
{
    const bool away = problem && problem.kind != ServerProblem::Kind::NotFound;
    return away ? PrinterSource::tr("There is no default printer. %1 Name a printer with -d, or a "
                                    "PPD with --ppd FILE, or try the sample printers with --demo.")
                      .arg(problem.text(server))
                : PrinterSource::tr("There is no default printer. Name a printer with -d, or a PPD "
                                    "with --ppd FILE, or try the sample printers with --demo.");
}

} // namespace

PrinterSource::PrinterSource(const PrinterWish &wish, ServerContext server, QObject *parent)
    : QObject(parent), m_wish(wish), m_userQueues(readUserQueues()),
      m_queues(std::move(server), m_userQueues,
               [this](const Printer &printer) { return isOffered(printer); }),
      m_deviceServer(m_queues.context())
{
    connect(&m_queues, &QueueList::changed, this, [this] {
        follow();
        lookForBetterQueue();
        Q_EMIT listChanged();
    });
    if (const Printer pdf = pdfPrinter(); isOffered(pdf))
        m_pdfPrinter = FetchedPrinter{pdf};
    const bool isAnyOffered =
        std::any_of(m_wish.files.cbegin(), m_wish.files.cend(),
                    [this](const Printer &printer) { return isOffered(printer); });
    m_wish.files.removeIf([this, isAnyOffered](const Printer &printer) {
        // What was asked for is opened, and refused, by its name: no other printer stands in for
        // it.
        const bool isWanted =
            m_wish.name.isEmpty() ? !isAnyOffered : isCalled(printer, m_wish.name);
        return !isOffered(printer) && !isWanted;
    });
}

bool PrinterSource::isOffered(const Printer &printer) const
{
    return !m_wish.refusal || m_wish.refusal(printer).isEmpty();
}

// Whether the printer that is to be opened is offered to nobody; failed() says why then.
bool PrinterSource::isRefused()
{
    const QString problem = m_wish.refusal ? m_wish.refusal(m_open.printer) : QString();
    if (problem.isEmpty())
        return false;
    Q_EMIT failed(problem, problem);
    return true;
}

void PrinterSource::start()
{
    m_queues.start();
}

QList<Printer> PrinterSource::printers() const
{
    QList<Printer> all = m_wish.files + m_queues.printers();
    // What was named is there to be seen while nobody knows whether it is one of the list.
    all.removeIf([this](const Printer &printer) { return !isOffered(printer); });
    const bool unlisted = m_open.printer.origin == PrinterOrigin::Device ||
                          (m_open.printer.origin == PrinterOrigin::Queue &&
                           m_queues.state() != QueueList::State::Known &&
                           !find(m_queues.printers(), m_open.printer.name));
    if (unlisted && isOffered(m_open.printer))
        all.prepend(m_open.printer);
    if (m_pdfPrinter)
        all += m_pdfPrinter->printer;
    return all;
}

std::optional<Printer> PrinterSource::expected() const
{
    const QList<Printer> &queues = m_queues.printers();
    if (queues.isEmpty())
        return std::nullopt;
    const Printer *byDefault = find(queues, m_queues.defaultName());
    return byDefault ? *byDefault : queues.constFirst();
}

void PrinterSource::readAhead()
{
    m_ahead.first = first();
    const QString path = m_first ? m_first->ppd->path : m_ahead.first->ppdPath;
    if (!path.isEmpty())
        m_ahead.ppd.begin(path);
}

Printer PrinterSource::first()
{
    if (m_ahead.first)
        return *std::exchange(m_ahead.first, std::nullopt);
    m_provisional = false;
    if (const Printer *file = m_wish.name.isEmpty() ? nullptr : find(m_wish.files, m_wish.name))
        return *file;
    if (m_wish.name.isEmpty() && !m_wish.files.isEmpty())
        return m_wish.files.constFirst();
    QString name = m_wish.name.isEmpty() ? usersDefault() : m_wish.name;
    if (name.isEmpty()) {
        // Nobody asks for the instance now; where it is gone, its queue is the next best.
        name = lastPrinter(m_queues.context().address.argument());
        if (!m_userQueues.hasInstance(name))
            name = queueOfInstance(name);
        if (!name.isEmpty() && !isOffered(queueNamed(name, &m_deviceServer.address)))
            name.clear();
    }
    if (name.isEmpty()) {
        m_provisional = true;
        return pdfPrinter();
    }
    Printer printer = queueNamed(name, &m_deviceServer.address);
    if (printer.origin == PrinterOrigin::Device)
        return printer;
    m_first = m_cache.find(m_queues.context().address.argument(), name);
    return m_first ? m_first->printer : printer;
}

const ServerContext &PrinterSource::serverOf(const Printer &printer) const
{
    return printer.origin == PrinterOrigin::Device ? m_deviceServer : m_queues.context();
}

// One that is offered to nobody is no default.
QString PrinterSource::usersDefault()
{
    const QString &name = m_userQueues.defaultName;
    return name.isEmpty() || isOffered(queueNamed(name, &m_deviceServer.address)) ? name
                                                                                  : QString();
}

void PrinterSource::openWanted()
{
    const Printer *file = m_wish.name.isEmpty() ? nullptr : find(m_wish.files, m_wish.name);
    if (m_wish.name.isEmpty() && !m_wish.files.isEmpty())
        file = &m_wish.files.constFirst();
    if (file)
        return open(Printer(*file));
    const QString name = m_wish.name.isEmpty() ? usersDefault() : m_wish.name;
    if (!name.isEmpty())
        return openFresh(name);
    ServerContext server = m_queues.context();
    server.mayAsk = true;
    m_inspection = ServerWork(server, [this](ServerWorker &worker) {
        const QString queue = defaultQueue(worker.connection());
        const ServerProblem problem = worker.connection().problem();
        worker.post([this, queue, problem] {
            if (!queue.isEmpty())
                return openFresh(queue);
            const QString text = noDefaultPrinter(problem, m_queues.context().address);
            Q_EMIT failed(text, text);
        });
    });
}

void PrinterSource::openFresh(const QString &name)
{
    reset(queueNamed(name, &m_deviceServer.address));
    if (!isRefused() && !lacksInstance())
        inspect(true);
}

// Forgets what is known of the printer that was open.
void PrinterSource::reset(const Printer &printer)
{
    m_inspection = {};
    m_open = {printer};
    m_inspecting = false;
    m_inspectionFailed = false;
    m_configured = 0;
    m_comparison = {};
    m_lacksPpd = false;
}

void PrinterSource::open(const Printer &printer)
{
    reset(printer);
    if (isRefused())
        return;
    if (printer.origin == PrinterOrigin::File)
        return openFile(printer);
    if (lacksInstance())
        return;
    if (printer.origin == PrinterOrigin::Queue) {
        if (const auto cached = kept(printer)) {
            m_open.ppd = cached->ppd;
            m_open.defaults = cached->defaults;
            Q_EMIT ready(FetchedPrinter(m_open));
        }
    }
    inspect(false);
}

void PrinterSource::openFile(const Printer &printer)
{
    QString error;
    const bool isPdfPrinter = m_pdfPrinter && savesPdf(printer);
    if (isPdfPrinter && !m_pdfPrinter->ppd)
        m_pdfPrinter = fetchedPdfPrinter(&error);
    m_open = isPdfPrinter ? *m_pdfPrinter : printerWithItsFile(printer);
    if (!m_open.ppd)
        return Q_EMIT failed(error, error);
    Q_EMIT ready(FetchedPrinter(m_open));
}

// An instance that nobody has made would be its queue without the options that were meant.
bool PrinterSource::lacksInstance()
{
    const QString &name = m_open.printer.name;
    if (m_open.printer.origin != PrinterOrigin::Queue || m_userQueues.hasInstance(name))
        return false;
    const QString queue = queueOfInstance(name);
    const QStringList instances = m_userQueues.instancesOf(queue);
    const QString problem =
        instances.isEmpty() ? tr("There is no instance “%1”: lpoptions has none of the queue “%2”.")
                                  .arg(name, queue)
                            : tr("There is no instance “%1”. The queue “%2” has: %3.")
                                  .arg(name, queue, instances.join(u", "_s));
    Q_EMIT failed(problem, problem);
    return true;
}

// As the printer was when it was used last. The one that first() has found is not read once more.
std::optional<FetchedPrinter> PrinterSource::kept(const Printer &printer)
{
    const auto first = std::exchange(m_first, std::nullopt);
    if (first && first->printer.name == printer.name)
        return first;
    return m_cache.find(m_queues.context().address.argument(), printer.name);
}

void PrinterSource::retry()
{
    if (!isRefused() && m_open.printer.origin != PrinterOrigin::File && !lacksInstance())
        inspect(true);
}

void PrinterSource::inspect(bool mayAsk)
{
    ServerContext server = serverOf(m_open.printer);
    server.mayAsk = mayAsk;
    m_inspecting = true;
    m_inspection = ServerWork(server, [this, printer = m_open.printer](ServerWorker &worker) {
        const QueueDetails details = inspectQueue(worker.connection(), printer);
        worker.post([this, details] { inspected(details); });
    });
}

// Whether the name that was asked for is that of no queue, as far as anybody can say: the printer
// that needs no server does not wait for one.
bool PrinterSource::meansPdfPrinter(const ServerProblem &problem) const
{
    using Kind = ServerProblem::Kind;
    // Where nobody may have it, a server that is away may yet have a queue of that name.
    const bool isAway = problem.kind == Kind::Unreachable || problem.kind == Kind::NoAnswer;
    const bool isNoQueue = problem.kind == Kind::NotFound || (m_pdfPrinter && isAway);
    return isNoQueue && !m_open.ppd && m_open.printer.origin == PrinterOrigin::Queue &&
           m_open.printer.name == kPdfPrinterName;
}

void PrinterSource::inspected(const QueueDetails &details)
{
    m_inspecting = false;
    m_inspectionFailed = details.state == QueueDetails::Ppd::Unknown;
    if (details.state == QueueDetails::Ppd::Unknown) {
        if (meansPdfPrinter(details.problem))
            return open(pdfPrinter());
        const ServerAddress &server = serverOf(m_open.printer).address;
        if (details.problem.kind == ServerProblem::Kind::NotFound) {
            const QString problem =
                tr("There is no printer “%1” at “%2”.").arg(m_open.printer.name, server.text());
            Q_EMIT failed(problem, problem);
        } else {
            Q_EMIT failed(details.problem.text(server), details.problem.brief(server));
        }
        return;
    }
    QString error;
    FetchedPrinter now = fetchedPrinter(details, m_cache, serverOf(m_open.printer).address, &error);
    if (!now.ppd) {
        Q_EMIT failed(error, error);
        return;
    }
    const bool same = m_open.ppd && now.ppd->hash == m_open.ppd->hash;
    if (same) // written anew or not, it is open where it was
        now.ppd = m_open.ppd;
    // Where a task starts from is another place, if nobody has gone on from there.
    const bool startsAsBefore = same && now.defaults == m_open.defaults;
    m_open = now;
    m_configured = details.printer.configured;
    m_lacksPpd = details.state == QueueDetails::Ppd::None;
    if (m_lacksPpd) // any more: it would be opened with the one that it had
        m_cache.remove(m_queues.context().address.argument(), m_open.printer.name);
    if (startsAsBefore)
        Q_EMIT checked(now);
    else
        Q_EMIT ready(now);
    lookForBetterQueue();
}

// The list is looked at every few seconds; what it says of the open queue is news as well.
void PrinterSource::follow()
{
    if (m_open.printer.origin != PrinterOrigin::Queue ||
        m_queues.state() == QueueList::State::Failed)
        return;
    const Printer *now = find(m_queues.printers(), m_open.printer.name);
    if (!now) {
        if (m_open.ppd && m_queues.state() == QueueList::State::Known) {
            const QString problem =
                tr("There is no printer “%1” at “%2” any more.")
                    .arg(m_open.printer.name, m_queues.context().address.text());
            Q_EMIT failed(problem, problem);
        }
        return;
    }
    if (m_open.ppd) {
        m_open.printer = *now;
        Q_EMIT checked(FetchedPrinter(m_open));
    }
    // The server is back, or an administrator has been at it: the options may be others.
    const bool changed = m_open.ppd && m_configured != 0 && m_configured != now->configured;
    m_configured = now->configured;
    if (!m_inspecting && (m_inspectionFailed || changed))
        inspect(false);
}

void PrinterSource::rememberUse(const Printer &printer) const
{
    if (printer.origin == PrinterOrigin::Queue)
        rememberPrinter(m_queues.context().address.argument(), printer.name);
}

} // namespace corvana
