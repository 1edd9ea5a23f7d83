#include "dialog/printers/SamplePrinters.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include "dialog/session/PpdFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcQueues, "corvana.dialog.queues", QtWarningMsg)

Printer printerOfPpd(const QString &ppdPath, QString *error)
{
    const QString name = QFileInfo(ppdPath).completeBaseName();
    Printer printer;
    printer.name = name;
    printer.description = name;
    printer.ppdPath = ppdPath;
    if (const PpdFile ppd = openPpdFile(ppdPath, error)) {
        printer.description = ppdText(ppd->nickname).value_or(name);
        printer.modelNumber = ppd->model_number;
    }
    return printer;
}

QList<Printer> samplePrinters(const QString &folder)
{
    QList<Printer> printers;
    const QFileInfoList files = QDir(folder).entryInfoList({u"*.ppd"_s}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        QString error;
        const Printer printer = printerOfPpd(file.absoluteFilePath(), &error);
        if (error.isEmpty())
            printers += printer;
        else
            qCWarning(lcQueues).noquote() << error;
    }
    // The newest model is what most people want to see.
    std::stable_sort(printers.begin(), printers.end(), [](const Printer &a, const Printer &b) {
        return a.modelNumber > b.modelNumber;
    });
    return printers;
}

} // namespace corvana
