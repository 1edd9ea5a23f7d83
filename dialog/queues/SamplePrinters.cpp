#include "dialog/queues/SamplePrinters.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include "dialog/session/PpdFile.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcQueues, "corvana.dialog.queues", QtWarningMsg)

Printer printerOfPpd(const QString &ppdPath)
{
    Printer printer{QFileInfo(ppdPath).completeBaseName(), {}, ppdPath};
    QString error;
    if (const PpdFile ppd = openPpdFile(ppdPath, &error))
        printer.description = ppdText(ppd->nickname).value_or(printer.name);
    else
        qCWarning(lcQueues).noquote() << error;
    return printer;
}

QList<Printer> samplePrinters(const QString &folder)
{
    QList<Printer> printers;
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("*.ppd")}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        const Printer printer = printerOfPpd(file.canonicalFilePath());
        if (!printer.description.isEmpty())
            printers += printer;
    }
    return printers;
}

} // namespace corvana
