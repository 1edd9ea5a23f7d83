#include "dialog/printers/PrinterSource.h"

#include <algorithm>
#include <utility>

#include <QTemporaryFile>
#include <QUrl>

#include "dialog/printers/DevicePrinter.h"
#include "dialog/printers/LastPrinter.h"
#include "dialog/printers/PanelRecognition.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/session/PpdFile.h"

namespace corvana {

namespace {

const Printer *find(const QList<Printer> &printers, const QString &name)
{
    const auto found =
        std::find_if(printers.cbegin(), printers.cend(),
                     [&](const Printer &printer) { return isCalled(printer, name); });
    return found == printers.cend() ? nullptr : &*found;
}

// What two URIs of one device have in common. A queue on a printer that is spoken to directly has
// its URI as its device.
QString deviceOf(const Printer &printer)
{
    const QUrl url(printer.origin == PrinterOrigin::Device ? printer.uri : printer.deviceUri);
    const bool isNamed = !url.host().isEmpty();
    // Files and pipes are no devices, however equal they look.
    if (!isNamed || url.scheme() == QLatin1StringView("file"))
        return {};
    return (url.host() + u':' + QString::number(url.port(0)) + url.path()).toLower();
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

bool hasPanels(const QueueDetails &details, const QStringList &bundleRoots)
{
    QTemporaryFile file;
    QString error;
    if (!file.open() || file.write(details.ppd) != details.ppd.size() || !file.flush())
        return false;
    const PpdFile ppd = openPpdFile(file.fileName(), &error);
    return ppd && decidePanels(ppd.get(), details.printer, bundleRoots).panels;
}

} // namespace

PrinterSource::PrinterSource(const PrinterWish &wish, ServerContext server, QObject *parent)
    : QObject(parent), m_files(wish.files), m_wanted(wish.name), m_userQueues(readUserQueues()),
      m_queues(std::move(server), m_userQueues), m_deviceServer(m_queues.context())
{
    m_bundleRoots = wish.bundleRoots;
    connect(&m_queues, &QueueList::changed, this, [this] {
        follow();
        lookForBetterQueue();
        Q_EMIT listChanged();
    });
    if (!m_files.isEmpty())
        return;
    // Where it cannot be written, there is none; the printers of the list are not touched by that.
    QString error;
    m_filePrinter = filePrinter(&error);
}

void PrinterSource::start()
{
    m_queues.start();
}

QList<Printer> PrinterSource::printers() const
{
    QList<Printer> all = m_files + m_queues.printers();
    // What was named is there to be seen while nobody knows whether it is one of the list.
    const bool unlisted =
        m_open.origin == PrinterOrigin::Device ||
        (m_open.origin == PrinterOrigin::Queue && m_queues.state() != QueueList::State::Known &&
         !find(m_queues.printers(), m_open.name));
    if (unlisted)
        all.prepend(m_open);
    if (!m_filePrinter.printer.ppdPath.isEmpty())
        all += m_filePrinter.printer;
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

Printer PrinterSource::first()
{
    m_provisional = false;
    if (const Printer *file = m_wanted.isEmpty() ? nullptr : find(m_files, m_wanted))
        return *file;
    if (m_wanted.isEmpty() && !m_files.isEmpty())
        return m_files.constFirst();
    QString name = m_wanted.isEmpty() ? m_userQueues.defaultName : m_wanted;
    if (name.isEmpty())
        name = lastPrinter(m_queues.context().address.argument());
    if (name.isEmpty()) {
        m_provisional = true;
        return m_filePrinter.printer;
    }
    Printer printer = queueNamed(name, &m_deviceServer.address);
    if (printer.origin == PrinterOrigin::Device)
        return printer;
    const auto cached = m_cache.find(m_queues.context().address.argument(), name);
    return cached ? cached->printer : printer;
}

const ServerContext &PrinterSource::serverOf(const Printer &printer) const
{
    return printer.origin == PrinterOrigin::Device ? m_deviceServer : m_queues.context();
}

void PrinterSource::openWanted()
{
    const Printer *file = m_wanted.isEmpty() ? nullptr : find(m_files, m_wanted);
    if (m_wanted.isEmpty() && !m_files.isEmpty())
        file = &m_files.constFirst();
    if (file)
        return open(Printer(*file));
    const QString name = m_wanted.isEmpty() ? m_userQueues.defaultName : m_wanted;
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

// What is in the cache only spares the way of options that have not changed.
void PrinterSource::openFresh(const QString &name)
{
    reset(queueNamed(name, &m_deviceServer.address));
    if (const auto cached = m_cache.find(m_queues.context().address.argument(), name)) {
        m_open.ppdPath = cached->printer.ppdPath;
        m_openModified = cached->lastModified;
        m_openHash = cached->hash;
    }
    inspect(true);
}

// Forgets what is known of the printer that was open.
void PrinterSource::reset(const Printer &printer)
{
    m_inspection = {};
    m_open = printer;
    m_openModified = 0;
    m_openHash.clear();
    m_openIsReady = false;
    m_inspecting = false;
    m_inspectionFailed = false;
    m_configured = 0;
    m_comparison = {};
    m_lacksPpd = false;
}

void PrinterSource::open(const Printer &printer)
{
    reset(printer);
    if (printer.origin == PrinterOrigin::File) {
        m_openIsReady = true;
        const bool isFilePrinter = printer.ppdPath == m_filePrinter.printer.ppdPath;
        Q_EMIT ready(isFilePrinter ? m_filePrinter : ReadyPrinter{printer});
        return;
    }
    if (printer.origin == PrinterOrigin::Queue) {
        const QString server = m_queues.context().address.argument();
        if (const auto cached = m_cache.find(server, printer.name)) {
            ReadyPrinter known{printer, cached->lastModified, cached->hash};
            known.printer.ppdPath = cached->printer.ppdPath;
            m_open.ppdPath = known.printer.ppdPath;
            m_openModified = cached->lastModified;
            m_openHash = cached->hash;
            m_openIsReady = true;
            Q_EMIT ready(known);
        }
    }
    inspect(false);
}

void PrinterSource::retry()
{
    if (m_open.origin != PrinterOrigin::File)
        inspect(true);
}

void PrinterSource::inspect(bool mayAsk)
{
    ServerContext server = serverOf(m_open);
    server.mayAsk = mayAsk;
    m_inspecting = true;
    m_inspection =
        ServerWork(server, [this, printer = m_open, since = m_openModified](ServerWorker &worker) {
            const QueueDetails details = inspectQueue(worker.connection(), printer, since);
            worker.post([this, details] { inspected(details); });
        });
}

void PrinterSource::inspected(const QueueDetails &details)
{
    m_inspecting = false;
    m_inspectionFailed = details.state == QueueDetails::Ppd::Unknown;
    if (details.state == QueueDetails::Ppd::Unknown) {
        const ServerAddress &server = serverOf(m_open).address;
        if (details.problem.kind == ServerProblem::Kind::NotFound) {
            const QString problem =
                tr("There is no printer “%1” at “%2”.").arg(m_open.name, server.text());
            Q_EMIT failed(problem, problem);
        } else {
            Q_EMIT failed(details.problem.text(server), details.problem.brief(server));
        }
        return;
    }
    QString error;
    ReadyPrinter now = readyPrinter(details, m_cache, serverOf(m_open).address, &error);
    if (details.state == QueueDetails::Ppd::Unchanged) {
        now.printer.ppdPath = m_open.ppdPath;
        now.ppdHash = m_openHash;
    }
    if (now.printer.ppdPath.isEmpty()) {
        Q_EMIT failed(error, error);
        return;
    }
    const bool same = m_openIsReady && now.ppdHash == m_openHash;
    if (same) // written anew or not, it is open where it was
        now.printer.ppdPath = m_open.ppdPath;
    m_open = now.printer;
    m_openModified = details.lastModified;
    m_openHash = now.ppdHash;
    m_configured = details.printer.configured;
    m_openIsReady = true;
    m_lacksPpd = details.state == QueueDetails::Ppd::None;
    if (m_lacksPpd) // any more: it would be opened with the one that it had
        m_cache.remove(m_queues.context().address.argument(), m_open.name);
    if (same)
        Q_EMIT checked(now.printer, m_openModified);
    else
        Q_EMIT ready(now);
    lookForBetterQueue();
}

// Under whatever instance.
bool PrinterSource::isOpenQueue(const Printer &printer) const
{
    return m_open.origin == PrinterOrigin::Queue &&
           isSameQueue(queueOfInstance(printer.name), queueOfInstance(m_open.name));
}

void PrinterSource::lookForBetterQueue()
{
    const QString device = deviceOf(m_open);
    if (!m_lacksPpd || device.isEmpty() || m_queues.state() != QueueList::State::Known)
        return;
    QList<Printer> twins;
    for (const Printer &queue : m_queues.printers()) {
        if (deviceOf(queue) == device && !isOpenQueue(queue) && !queue.isClass)
            twins += queue;
    }
    if (twins.isEmpty())
        return;
    m_lacksPpd = false; // once is enough
    m_comparison = ServerWork(m_queues.context(), [this, twins](ServerWorker &worker) {
        for (const Printer &twin : twins) {
            const QueueDetails details = inspectQueue(worker.connection(), twin, 0);
            if (details.state == QueueDetails::Ppd::New)
                worker.post([this, details] { compareWith(details); });
        }
    });
}

void PrinterSource::compareWith(const QueueDetails &details)
{
    if (!hasPanels(details, m_bundleRoots))
        return;
    m_comparison = {}; // the first one will do
    Q_EMIT betterQueueFound(details.printer);
}

// The list is looked at every few seconds; what it says of the open queue is news as well.
void PrinterSource::follow()
{
    if (m_open.origin != PrinterOrigin::Queue || m_queues.state() == QueueList::State::Failed)
        return;
    const Printer *now = find(m_queues.printers(), m_open.name);
    if (!now) {
        if (m_openIsReady && m_queues.state() == QueueList::State::Known) {
            const QString problem = tr("There is no printer “%1” at “%2” any more.")
                                        .arg(m_open.name, m_queues.context().address.text());
            Q_EMIT failed(problem, problem);
        }
        return;
    }
    if (m_openIsReady) {
        Printer printer = *now;
        printer.ppdPath = m_open.ppdPath;
        m_open = printer;
        Q_EMIT checked(printer, m_openModified);
    }
    // The server is back, or an administrator has been at it: the options may be others.
    const bool changed = m_openIsReady && m_configured != 0 && m_configured != now->configured;
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
