#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

namespace corvana {

/// Where a printer comes from, and so how it is printed to.
enum class PrinterOrigin {
    File,   ///< a PPD file of the user's or a sample: prints to a file
    Queue,  ///< a queue of a print server
    Device, ///< an IPP printer that is spoken to directly
};

/// What a queue is doing, as its server says.
enum class PrinterState { Unknown, Idle, Processing, Stopped };

/// A printer that a user can choose: a value, as complete as what is known of the printer.
struct Printer
{
    QString name;        ///< what -d takes; "NAME/INSTANCE" for an instance of the user's
    QString description; ///< for people: what the administrator calls it, or make and model
    QString ppdPath;     ///< of a PPD file that is offered as a printer; empty for any other
    int modelNumber = 0; ///< as the PPD states it; newer models have higher ones

    PrinterOrigin origin = PrinterOrigin::File;
    QString location{};     ///< where it stands, in the administrator's words
    QString makeAndModel{}; ///< as the server names it
    PrinterState state = PrinterState::Unknown;
    bool accepting = true;      ///< whether jobs are taken
    QString stateMessage{};     ///< why it is in that state, in the server's words
    QStringList stateReasons{}; ///< IPP keywords, such as "media-empty-warning"
    QString uri{};              ///< "ipp://…" by which jobs are sent; empty for PPD files
    QString deviceUri{};        ///< the device behind a queue: two queues may have the same
    QStringList authInfo{};     ///< what the device wants to know ("username", "password")
    int configured = 0;         ///< when its administrator changed it last, in the server's count
    bool isClass = false;       ///< several printers behind one name
    bool isDefault = false;     ///< the user's default

    bool operator==(const Printer &) const = default;
};

/// What -d calls the printer that saves documents as PDF. A queue of that name goes before it.
inline constexpr QLatin1StringView kPdfPrinterName{"pdf"};

/// Whether a printer is that one: it has no device, and its PPD is ours.
inline bool savesPdf(const Printer &printer)
{
    return printer.origin == PrinterOrigin::File && printer.ppdPath.isEmpty() &&
           printer.name == kPdfPrinterName;
}

} // namespace corvana
