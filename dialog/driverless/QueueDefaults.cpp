#include "dialog/driverless/QueueDefaults.h"

#include <algorithm>
#include <iterator>

#include <cups/cups.h>

#include <QHash>
#include <QLoggingCategory>

#include "dialog/driverless/AttributeReading.h"

namespace corvana {

using namespace Qt::StringLiterals;
using namespace attribute;

Q_LOGGING_CATEGORY(lcQueueDefaults, "corvana.dialog.queues.defaults", QtWarningMsg)

namespace {

constexpr auto kSuffix = "-default"_L1;

// What a server says of any queue, and what that means for its jobs.
struct SaidOfAnyQueue
{
    QLatin1StringView name;
    QLatin1StringView value; // as long as nobody has set another one; null: it is nothing on paper
};
constexpr SaidOfAnyQueue kSaidOfAnyQueue[] = {
    {"copies"_L1, "1"_L1},
    {"document-format"_L1, {}},
    {"job-cancel-after"_L1, "10800"_L1}, // three hours, as CUPS comes
    {"job-cancel-after"_L1, "0"_L1},     // never
    {"job-hold-until"_L1, "no-hold"_L1},
    {"job-priority"_L1, "50"_L1},
    {"job-sheets"_L1, "none,none"_L1},
    {"notify-events"_L1, {}},
    {"notify-lease-duration"_L1, {}},
    {"number-up"_L1, "1"_L1},
    {"print-quality"_L1, "4"_L1},
};

// What mirrors the PPD. An administrator's own default of that name stands beside it, in front.
constexpr QLatin1StringView kMirrors[] = {
    "finishings"_L1, "finishings-col"_L1,     "media"_L1, "media-col"_L1,
    "output-bin"_L1, "printer-resolution"_L1, "sides"_L1,
};

bool isMirror(const QString &name)
{
    return std::any_of(std::begin(kMirrors), std::end(kMirrors),
                       [&](QLatin1StringView mirror) { return name == mirror; });
}

// A name with a blank or a "=" would become other options on a command line of the filters.
bool isNameOfOption(const QString &name)
{
    static constexpr QLatin1StringView kSigns{"-._+*"};
    return !name.isEmpty() && std::all_of(name.cbegin(), name.cend(), [](QChar c) {
        return (c.unicode() < 0x80 && c.isLetterOrNumber()) || kSigns.contains(c);
    });
}

bool isColorPrinter(ipp_t *attributes)
{
    const QList<int> type = numbersOf(attributes, "printer-type");
    return !type.isEmpty() && (static_cast<unsigned>(type.constFirst()) & CUPS_PRINTER_COLOR) != 0;
}

bool isSaidOfAnyQueue(const JobOption &option, ipp_t *attributes)
{
    if (option.name == "print-color-mode"_L1)
        return option.value == (isColorPrinter(attributes) ? "color"_L1 : "monochrome"_L1);
    return std::any_of(
        std::begin(kSaidOfAnyQueue), std::end(kSaidOfAnyQueue), [&](const SaidOfAnyQueue &said) {
            return option.name == said.name && (said.value.isNull() || option.value == said.value);
        });
}

bool isAdministrators(const QString &name, const QStringList &said, ipp_t *attributes)
{
    if (!isMirror(name))
        return true;
    // The server adds its own also where the PPD says the same, and a job on one side has to
    // answer.
    if (said.size() > 1)
        return said.constFirst() != said.constLast() ||
               (name == "sides"_L1 && said.constFirst() != "one-sided"_L1);
    // Where there is a PPD to mirror, what it allows is said, too.
    return !find(attributes, (name.toLatin1() + "-supported").constData());
}

// A default of a queue, with its values in the order in which they were said.
struct SaidDefault
{
    QString name;
    QStringList said;
};

// More of them no job could carry.
constexpr qsizetype kMostDefaults = 1000;

// All defaults in the order of their names' first. One walk, since searching for a name takes one
// each, and moves the place of this one.
QList<SaidDefault> saidDefaults(ipp_t *attributes)
{
    QList<SaidDefault> defaults;
    QHash<QString, qsizetype> places;
    for (ipp_attribute_t *next = ippFirstAttribute(attributes); next;
         next = ippNextAttribute(attributes)) {
        const QLatin1StringView full(ippGetName(next));
        const ipp_tag_t tag = ippGetValueTag(next);
        const bool isUnknown = tag == IPP_TAG_NOVALUE || tag == IPP_TAG_UNKNOWN;
        if (!full.endsWith(kSuffix))
            continue;
        const QString name = full.chopped(kSuffix.size());
        auto place = places.constFind(name);
        if (place == places.cend()) {
            if (ippGetGroupTag(next) != IPP_TAG_PRINTER || isUnknown)
                continue;
            if (defaults.size() == kMostDefaults) {
                qCWarning(lcQueueDefaults) << "the queue has too many defaults; from here on they "
                                              "are not looked at:"
                                           << name;
                break;
            }
            place = places.insert(name, defaults.size());
            defaults += SaidDefault{name, {}};
        }
        defaults[*place].said += optionValuesOf(next).join(u',');
    }
    return defaults;
}

} // namespace

QList<JobOption> queueDefaults(ipp_t *attributes)
{
    QList<JobOption> defaults;
    if (!attributes)
        return defaults;
    const QList<SaidDefault> all = saidDefaults(attributes);
    for (const auto &[name, said] : all) {
        const JobOption option{name, said.value(0)};
        if (isSaidOfAnyQueue(option, attributes) || !isAdministrators(name, said, attributes))
            continue;
        if (!isNameOfOption(name) || option.value.isEmpty())
            qCWarning(lcQueueDefaults) << "a default of the queue is no job option:" << name;
        else
            defaults += option;
    }
    return defaults;
}

bool isRawQueue(ipp_t *attributes)
{
    // cupsd says so of a queue without a PPD, in these words and in no other language. One that
    // leads to another server's queue has no PPD either; that server does what a job asks for.
    return attributes && find(attributes, "printer-type") &&
           textOf(attributes, "printer-make-and-model") == "Local Raw Printer"_L1;
}

} // namespace corvana
