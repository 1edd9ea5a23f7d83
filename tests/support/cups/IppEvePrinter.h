#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "tests/support/cups/ServerProcess.h"

namespace corvana::test {

/// An IPP Everywhere printer on the network: `ippeveprinter` on a free port of the loopback, not
/// announced to anyone. Works where no service of DNS-SD runs.
class IppEvePrinter
{
public:
    /// `formats` are the document formats that it takes; it keeps every document. `arguments` are
    /// further ones of ippeveprinter ("-2" for a printer that prints on both sides).
    /// Errors: throws std::runtime_error with the printer's log.
    explicit IppEvePrinter(const QString &name = QStringLiteral("Everywhere"),
                           const QStringList &formats = {QStringLiteral("application/pdf"),
                                                         QStringLiteral("image/pwg-raster"),
                                                         QStringLiteral("image/urf"),
                                                         QStringLiteral("image/jpeg")},
                           const QStringList &arguments = {});
    ~IppEvePrinter();
    IppEvePrinter(const IppEvePrinter &) = delete;
    IppEvePrinter &operator=(const IppEvePrinter &) = delete;

    /// Whether this machine has ippeveprinter and what it needs.
    static bool isAvailable();

    /// "ipp://localhost:PORT/ipp/print"; it listens on the name "localhost" only.
    QString uri() const;
    quint16 port() const { return m_port.number(); }
    void stop();
    /// What it was sent, one a job, in the order of the jobs.
    QList<QByteArray> documents() const;
    QString log() const;

private:
    QTemporaryDir m_folder;
    LoopbackPort m_port;
    ServerProcess m_bus;
    ServerProcess m_printer;
};

} // namespace corvana::test
