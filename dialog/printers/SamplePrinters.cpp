#include "dialog/printers/SamplePrinters.h"

#include <algorithm>
#include <optional>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include "dialog/session/PpdFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcSamples, "corvana.dialog.printers", QtWarningMsg)

namespace {

// Longer than whatever a PPD says of itself before its first option.
constexpr qint64 kHeadSize = 8192;

// What stands behind `keyword` at the beginning of a line; empty when nothing does.
QByteArray valueIn(const QByteArray &head, const QByteArray &keyword)
{
    const qsizetype start = head.indexOf("\n*" + keyword + ": ");
    if (start < 0)
        return {};
    const qsizetype value = start + keyword.size() + 4;
    const qsizetype end = head.indexOf('\n', value);
    return head.sliced(value, (end < 0 ? head.size() : end) - value).trimmed();
}

// A sample as its PPD's first lines describe it. Nothing when they do not say everything in the
// plain way that our own samples do; then the PPD is opened.
std::optional<Printer> printerOfHead(const QString &ppdPath)
{
    QFile file(ppdPath);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray head = file.read(kHeadSize);
    if (!head.startsWith("*PPD-Adobe: \""))
        return std::nullopt;
    head.truncate(std::max<qsizetype>(head.indexOf("\n*Open"), 0));
    const QByteArray name = valueIn(head, "NickName");
    const bool isPlain = name.size() > 2 && name.startsWith('"') && name.endsWith('"') &&
                         std::all_of(name.begin() + 1, name.end() - 1, [](char c) {
                             return c >= ' ' && c <= '~' && c != '"' && c != '<';
                         });
    bool isNumber = false;
    const int modelNumber = valueIn(head, "cupsModelNumber").toInt(&isNumber);
    if (!isPlain || !isNumber)
        return std::nullopt;
    Printer printer;
    printer.name = QFileInfo(ppdPath).completeBaseName();
    printer.description = QString::fromLatin1(name.sliced(1, name.size() - 2));
    printer.ppdPath = ppdPath;
    printer.modelNumber = modelNumber;
    return printer;
}

} // namespace

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
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        if (!file.fileName().endsWith(".ppd"_L1, Qt::CaseInsensitive))
            continue;
        if (const std::optional<Printer> printer = printerOfHead(file.absoluteFilePath())) {
            printers += *printer;
            continue;
        }
        QString error;
        const Printer printer = printerOfPpd(file.absoluteFilePath(), &error);
        if (error.isEmpty())
            printers += printer;
        else
            qCWarning(lcSamples).noquote() << error;
    }
    // The newest model is what most people want to see.
    std::stable_sort(printers.begin(), printers.end(), [](const Printer &a, const Printer &b) {
        return a.modelNumber > b.modelNumber;
    });
    return printers;
}

} // namespace corvana
