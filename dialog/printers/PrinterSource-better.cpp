#include "dialog/printers/PrinterSource.h"

#include <QUrl>

#include "dialog/printers/PrinterId.h"

// A queue without a driver leads to the same device as another one, which has the panels.

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// What two URIs of one device have in common. A queue on a printer that is spoken to directly has
// its URI as its device.
QString deviceOf(const Printer &printer)
{
    const QUrl url(printer.origin == PrinterOrigin::Device ? printer.uri : printer.deviceUri);
    const bool isNamed = !url.host().isEmpty();
    // Files and pipes are no devices, however equal they look.
    if (!isNamed || url.scheme() == "file"_L1)
        return {};
    return (url.host() + u':' + QString::number(url.port(0)) + url.path()).toLower();
}

} // namespace

// Under whatever instance.
bool PrinterSource::isOpenQueue(const Printer &printer) const
{
    return m_open.printer.origin == PrinterOrigin::Queue &&
           isSameQueue(queueOfInstance(printer.name), queueOfInstance(m_open.printer.name));
}

void PrinterSource::lookForBetterQueue()
{
    const QString device = deviceOf(m_open.printer);
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
            const QueueDetails details = inspectQueue(worker.connection(), twin);
            if (details.state == QueueDetails::Ppd::Read)
                worker.post([this, details] { compareWith(details); });
        }
    });
}

void PrinterSource::compareWith(const QueueDetails &details)
{
    if (!hasPanels(details, m_wish.bundleRoots))
        return;
    m_comparison = {}; // the first one will do
    Q_EMIT betterQueueFound(details.printer);
}

} // namespace corvana
