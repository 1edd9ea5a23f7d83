#include "tests/support/cups/IppEvePrinter.h"

#include <algorithm>
#include <stdexcept>

#include <QDir>
#include <QFile>

namespace corvana::test {

namespace {

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

IppEvePrinter::IppEvePrinter(const QString &name, const QStringList &formats)
{
    const QString bus = m_folder.filePath(QStringLiteral("bus"));
    const QString spool = m_folder.filePath(QStringLiteral("spool"));
    const QString logFile = m_folder.filePath(QStringLiteral("log"));
    if (!m_folder.isValid() || !QDir().mkpath(spool))
        throw std::runtime_error("no temporary folder");
    // It ends without a system bus, and goes on when nobody there knows DNS-SD.
    m_bus.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"),
                 QStringLiteral("--nopidfile"), QStringLiteral("--nosyslog"),
                 QStringLiteral("--address=unix:path=") + bus},
                logFile);
    if (!m_bus.waitUntil([&] { return QFile::exists(bus); }))
        throw std::runtime_error("no message bus for ippeveprinter: " +
                                 content(logFile).toStdString());
    m_printer.start(
        QStringLiteral("ippeveprinter"),
        // The name has an address of both kinds; it wants to listen on both.
        {QStringLiteral("-n"), QStringLiteral("localhost"), QStringLiteral("-p"),
         QString::number(port()), QStringLiteral("-r"), QStringLiteral("off"), QStringLiteral("-k"),
         QStringLiteral("-d"), spool, QStringLiteral("-f"),
         formats.join(u','), // Without a command it would be busy with each job for seconds.
         QStringLiteral("-c"), systemProgram(QStringLiteral("true")), QStringLiteral("-v"), name},
        logFile,
        {QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS=unix:path=") + bus,
         // Its certificates would go to the home of whoever runs the test.
         QStringLiteral("HOME=") + m_folder.path()});
    if (!m_printer.waitUntil([this] { return m_port.answers(); }))
        throw std::runtime_error("ippeveprinter does not start: " + content(logFile).toStdString());
}

IppEvePrinter::~IppEvePrinter()
{
    stop();
}

bool IppEvePrinter::isAvailable()
{
    return !systemProgram(QStringLiteral("ippeveprinter")).isEmpty() &&
           !systemProgram(QStringLiteral("dbus-daemon")).isEmpty();
}

QString IppEvePrinter::uri() const
{
    return QStringLiteral("ipp://localhost:%1/ipp/print").arg(port());
}

void IppEvePrinter::stop()
{
    m_printer.stop();
}

QList<QByteArray> IppEvePrinter::documents() const
{
    const QDir spool(m_folder.filePath(QStringLiteral("spool")));
    QFileInfoList files = spool.entryInfoList(QDir::Files);
    // The output of the command lies beside "1-name.pdf".
    files.removeIf([](const QFileInfo &file) { return file.suffix() == u"prn"; });
    std::sort(files.begin(), files.end(), [](const QFileInfo &left, const QFileInfo &right) {
        return left.fileName().section(u'-', 0, 0).toInt() <
               right.fileName().section(u'-', 0, 0).toInt();
    });
    QList<QByteArray> result;
    for (const QFileInfo &file : files)
        result.append(content(file.filePath()));
    return result;
}

QString IppEvePrinter::log() const
{
    return QString::fromUtf8(content(m_folder.filePath(QStringLiteral("log"))));
}

} // namespace corvana::test
