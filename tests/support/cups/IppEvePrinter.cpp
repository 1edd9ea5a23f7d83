#include "tests/support/cups/IppEvePrinter.h"

#include <algorithm>
#include <stdexcept>

#include <QDir>
#include <QFile>

#include "tests/support/cups/ServerFiles.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

IppEvePrinter::IppEvePrinter(const QString &name, const QStringList &formats,
                             const QStringList &arguments)
{
    const QString bus = m_folder.filePath(u"bus"_s);
    const QString spool = m_folder.filePath(u"spool"_s);
    const QString logFile = m_folder.filePath(u"log"_s);
    if (!m_folder.isValid() || !QDir().mkpath(spool))
        throw std::runtime_error("no temporary folder");
    // It ends without a system bus, and goes on when nobody there knows DNS-SD.
    m_bus.start(u"dbus-daemon"_s,
                {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s, u"--nosyslog"_s,
                 u"--print-address"_s, u"--address=unix:path="_s + bus},
                logFile);
    // The bus says its address when it listens; its socket is there before that.
    if (!m_bus.waitUntil(
            [&] { return QFile::exists(bus) && serverFile(logFile).contains("unix:path="); }))
        throw std::runtime_error("no message bus for ippeveprinter: " +
                                 serverFile(logFile).toStdString());
    m_printer.start(
        u"ippeveprinter"_s,
        // The name has an address of both kinds; it wants to listen on both.
        QStringList{
            u"-n"_s, u"localhost"_s, u"-p"_s, QString::number(port()), u"-r"_s, u"off"_s, u"-k"_s,
            u"-d"_s, spool, u"-f"_s,
            formats.join(u','), // Without a command it would be busy with each job for seconds.
            u"-c"_s, systemProgram(u"true"_s), u"-v"_s} +
            arguments + QStringList{name},
        logFile,
        {u"DBUS_SYSTEM_BUS_ADDRESS=unix:path="_s + bus,
         // Its certificates would go to the home of whoever runs the test.
         u"HOME="_s + m_folder.path()});
    if (!m_printer.waitUntil([this] { return m_port.answers(); }))
        throw std::runtime_error("ippeveprinter does not start: " +
                                 serverFile(logFile).toStdString());
}

IppEvePrinter::~IppEvePrinter()
{
    stop();
}

bool IppEvePrinter::isAvailable()
{
    return !systemProgram(u"ippeveprinter"_s).isEmpty() &&
           !systemProgram(u"dbus-daemon"_s).isEmpty();
}

QString IppEvePrinter::uri() const
{
    return u"ipp://localhost:%1/ipp/print"_s.arg(port());
}

void IppEvePrinter::stop()
{
    m_printer.stop();
}

QList<QByteArray> IppEvePrinter::documents() const
{
    const QDir spool(m_folder.filePath(u"spool"_s));
    QFileInfoList files = spool.entryInfoList(QDir::Files);
    // The output of the command lies beside "1-name.pdf".
    files.removeIf([](const QFileInfo &file) { return file.suffix() == u"prn"; });
    std::sort(files.begin(), files.end(), [](const QFileInfo &left, const QFileInfo &right) {
        return left.fileName().section(u'-', 0, 0).toInt() <
               right.fileName().section(u'-', 0, 0).toInt();
    });
    QList<QByteArray> result;
    for (const QFileInfo &file : files)
        result.append(serverFile(file.filePath()));
    return result;
}

QString IppEvePrinter::log() const
{
    return QString::fromUtf8(serverFile(m_folder.filePath(u"log"_s)));
}

} // namespace corvana::test
