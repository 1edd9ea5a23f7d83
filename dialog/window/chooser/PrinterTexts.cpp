#include "dialog/window/chooser/PrinterTexts.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QCoreApplication>

#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct PrinterTexts
{
    Q_DECLARE_TR_FUNCTIONS(PrinterTexts)
};

constexpr qsizetype kLongestLine = 200; // UTF-16 code units

// How bad a reason is, worst first. A keyword without a severity is an error (RFC 8011, 5.4.12).
enum class Severity { Error, Warning, Report };

struct Reason
{
    QString keyword; // without its severity
    Severity severity = Severity::Error;
};

Reason parseReason(const QString &keyword)
{
    static const std::pair<QLatin1StringView, Severity> suffixes[] = {
        {"-error"_L1, Severity::Error},
        {"-warning"_L1, Severity::Warning},
        {"-report"_L1, Severity::Report}};
    for (const auto &[suffix, severity] : suffixes) {
        if (keyword.endsWith(suffix))
            return {keyword.chopped(suffix.size()), severity};
    }
    return {keyword, Severity::Error};
}

struct ReasonWords
{
    QLatin1StringView keyword;
    const char *words;
};

const ReasonWords kReasonWords[] = {
    {"connecting-to-device"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "connecting")},
    {"cover-open"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "cover open")},
    {"cups-insecure-filter"_L1,
     QT_TRANSLATE_NOOP("PrinterTexts", "driver not trusted by the server")},
    {"cups-missing-filter"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "driver missing on the server")},
    {"deactivated"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "switched off")},
    {"developer-empty"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "developer used up")},
    {"developer-low"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "developer low")},
    {"door-open"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "door open")},
    {"fuser-over-temp"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "fuser too hot")},
    {"fuser-under-temp"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "fuser too cold")},
    {"hold-new-jobs"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "new jobs are held")},
    {"input-tray-missing"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "tray missing")},
    {"interlock-open"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "cover open")},
    {"marker-supply-empty"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "ink or toner used up")},
    {"marker-supply-low"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "ink or toner low")},
    {"marker-waste-almost-full"_L1,
     QT_TRANSLATE_NOOP("PrinterTexts", "waste container almost full")},
    {"marker-waste-full"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "waste container full")},
    {"media-empty"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "out of paper")},
    {"media-jam"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "paper jam")},
    {"media-low"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "paper low")},
    {"media-needed"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "paper needed")},
    {"moving-to-paused"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "pausing")},
    {"offline"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "not connected")},
    {"opc-life-over"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "drum used up")},
    {"opc-near-eol"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "drum nearly used up")},
    {"output-area-almost-full"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "output tray almost full")},
    {"output-area-full"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "output tray full")},
    {"output-tray-missing"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "output tray missing")},
    {"paused"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "paused")},
    {"shutdown"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "switched off")},
    {"spool-area-full"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "print queue full")},
    {"stopped-partly"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "partly stopped")},
    {"stopping"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "stopping")},
    {"timed-out"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "not answering")},
    {"toner-empty"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "toner used up")},
    {"toner-low"_L1, QT_TRANSLATE_NOOP("PrinterTexts", "toner low")},
};

// A printer that needs no queue has no state; what it does with a job is worth the place.
QString idleText(const Printer &printer)
{
    switch (printer.state) {
    case PrinterState::Idle:
        return PrinterTexts::tr("Idle");
    case PrinterState::Processing:
        return PrinterTexts::tr("Printing");
    case PrinterState::Stopped:
        return PrinterTexts::tr("Stopped");
    case PrinterState::Unknown:
        break;
    }
    return printer.origin == PrinterOrigin::File ? PrinterTexts::tr("Prints to a file") : QString();
}

QString joinedWords(QStringList words)
{
    words.removeAll(QString());
    return words.join(PrinterTexts::tr(", ", "between the words of a printer's state"));
}

QString locationText(const Printer &printer)
{
    return plainLine(printer.location);
}

// `format` has a place for each of the two texts; it is not asked where one is missing.
QString both(const QString &first, const QString &second, const QString &format)
{
    if (first.isEmpty() || second.isEmpty())
        return first + second;
    return format.arg(first, second);
}

} // namespace

QString plainLine(const QString &text)
{
    // A server may send megabytes; what is far beyond the end is not even looked at.
    const QString line = text.left(8 * kLongestLine).simplified();
    QString shown;
    shown.reserve(qMin(line.size(), kLongestLine));
    for (const char32_t character : line.toUcs4()) {
        if (!showsItself(character))
            continue;
        const auto units = QChar::fromUcs4(character);
        if (shown.size() + qsizetype(QStringView(units).size()) >= kLongestLine)
            return shown + QChar(0x2026);
        shown += units;
    }
    return shown;
}

QString displayName(const Printer &printer)
{
    const QString description = plainLine(printer.description);
    return description.isEmpty() ? plainLine(printer.name) : description;
}

QString stateReasonText(const QString &keyword)
{
    const QString bare = parseReason(keyword).keyword;
    const auto found =
        std::find_if(std::begin(kReasonWords), std::end(kReasonWords),
                     [&bare](const ReasonWords &row) { return row.keyword == bare; });
    return found == std::end(kReasonWords) ? plainLine(keyword) : PrinterTexts::tr(found->words);
}

QStringList stateReasonTexts(const QStringList &keywords)
{
    // What CUPS notes for itself while it prints.
    const auto isForPeople = [](const QString &keyword) {
        return keyword != "none"_L1 && keyword != "cups-waiting-for-job-completed"_L1 &&
               !keyword.startsWith("cups-remote-"_L1);
    };
    QStringList ordered;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Report}) {
        for (const QString &keyword : keywords) {
            if (isForPeople(keyword) && parseReason(keyword).severity == severity)
                ordered += stateReasonText(keyword);
        }
    }
    ordered.removeAll(QString());
    ordered.removeDuplicates(); // the same of two trays
    return ordered;
}

QString stateText(const Printer &printer, Presence presence)
{
    if (presence == Presence::Gone)
        return PrinterTexts::tr("No longer available");
    QStringList words;
    const bool stopped = printer.state == PrinterState::Stopped;
    const QString message = plainLine(printer.stateMessage);
    // Other states come with messages that say nothing ("Ready to print.") or are out of date.
    if (stopped && !message.isEmpty())
        words += PrinterTexts::tr("Stopped: %1").arg(message);
    else if (stopped || printer.accepting)
        words += idleText(printer);
    if (!printer.accepting)
        words += stopped ? PrinterTexts::tr("takes no jobs") : PrinterTexts::tr("Takes no jobs");
    QStringList reasons = printer.stateReasons;
    if (stopped)
        reasons.removeIf(
            [](const QString &keyword) { return parseReason(keyword).keyword == "paused"_L1; });
    return plainLine(joinedWords(words + stateReasonTexts(reasons)));
}

QString detailText(const Printer &printer, Presence presence)
{
    return both(locationText(printer), stateText(printer, presence),
                PrinterTexts::tr("%1 — %2", "location, state"));
}

QString statusText(const Printer &printer, Presence presence)
{
    return both(locationText(printer), stateText(printer, presence),
                PrinterTexts::tr("%1 · %2", "location, state"));
}

QString accessibleText(const Printer &printer, Presence presence)
{
    return joinedWords({displayName(printer), locationText(printer), stateText(printer, presence)});
}

QString printerToolTip(const Printer &printer, Presence presence)
{
    QStringList lines;
    const auto add = [&lines](const QString &format, const QString &text) {
        if (!text.isEmpty())
            lines += format.arg(text).toHtmlEscaped();
    };
    if (displayName(printer) != plainLine(printer.name))
        add(PrinterTexts::tr("Name: %1"), plainLine(printer.name));
    add(PrinterTexts::tr("Location: %1"), locationText(printer));
    add(PrinterTexts::tr("Model: %1"), plainLine(printer.makeAndModel));
    add(PrinterTexts::tr("State: %1"), stateText(printer, presence));
    if (printer.state != PrinterState::Stopped || presence == Presence::Gone)
        add(PrinterTexts::tr("Message: %1"), plainLine(printer.stateMessage));
    add(PrinterTexts::tr("Address: %1"), plainLine(printer.uri));
    return u"<qt><b>%1</b>%2%3</qt>"_s.arg(displayName(printer).toHtmlEscaped(),
                                           lines.isEmpty() ? QString() : u"<br>"_s,
                                           lines.join(u"<br>"_s));
}

} // namespace corvana
