#include "dialog/task/PassedOn.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/RequestedOptions.h"
#include "dialog/session/Summary.h"
#include "dialog/task/OpenedPrinter.h"

namespace corvana {

using namespace Qt::StringLiterals;

const JobOption kRaw{kRawOption, u"true"_s};

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PassedOn)
};

// What a server does with a job whatever is in its documents. A device gets a document as often as
// there are copies.
constexpr QLatin1StringView kDone[] = {
    "copies"_L1, "job-billing"_L1, "job-cancel-after"_L1, "job-hold-until"_L1, "job-priority"_L1,
};
constexpr auto kSheets = "job-sheets"_L1;

bool isRaw(const JobOption &option)
{
    return option.name == kRaw.name;
}

QString cannotBeDone(const QList<JobOption> &options, const OpenedPrinter &printer)
{
    QStringList named;
    for (const JobOption &option : options)
        named += u"%1=%2"_s.arg(option.name, option.value);
    return passesFilesOn(printer)
               ? Texts::tr("The queue “%1” passes files on as they are: %2 cannot be done.")
                     .arg(printer.fetched.printer.name, named.join(u", "_s))
               : Texts::tr("With “raw” files are passed on as they are: %1 cannot be done.")
                     .arg(named.join(u", "_s));
}

} // namespace

bool isDoneWhenPassedOn(const QString &name, const OpenedPrinter &printer)
{
    // A queue without filters would print what cover sheets are made of, rather than these.
    if (name == kSheets)
        return !passesFilesOn(printer);
    return std::any_of(std::begin(kDone), std::end(kDone),
                       [&](QLatin1StringView done) { return name == done; });
}

bool passesFilesOn(const OpenedPrinter &printer)
{
    return printer.fetched.capabilities && printer.fetched.capabilities->passesFilesOn;
}

bool passesFilesOn(const OpenedPrinter &printer, const QList<JobOption> &attributes)
{
    return passesFilesOn(printer) || attributes.contains(kRaw);
}

bool asksForRaw(const QList<JobOption> &options)
{
    bool raw = false;
    for (const JobOption &option : options) {
        if (isRaw(option))
            raw = option.value != "false"_L1;
    }
    return raw;
}

bool takeRaw(QList<QList<JobOption>> &sets, const OpenedPrinter &printer)
{
    bool raw = false;
    // Nobody but a print server has filters to go past; any other printer has no such option.
    if (printer.fetched.printer.origin != PrinterOrigin::Queue)
        return raw;
    // Files that are passed on as they are go past everything that is locked. Each such wish is
    // refused where it is taken.
    const bool isLocked = printer.session->locks().contains(kRaw.name) && !passesFilesOn(printer);
    for (QList<JobOption> &options : sets) {
        const bool isAskedFor = asksForRaw(options);
        if (std::any_of(options.cbegin(), options.cend(), isRaw))
            raw = isAskedFor && !isLocked;
        if (!isLocked || !isAskedFor)
            options.removeIf(isRaw);
    }
    return raw || passesFilesOn(printer);
}

QStringList takeLockedRaw(QList<JobOption> &options, const OpenedPrinter &printer)
{
    if (!printer.session->locks().contains(kRaw.name) || !asksForRaw(options))
        return {};
    options.removeIf(isRaw);
    return {lockedText(kRaw.name, *printer.session)};
}

QList<PolicyProblem> takeWhatCannotBeDone(QList<PolicyEntry> &entries, const OpenedPrinter &printer)
{
    QList<PolicyProblem> voids;
    if (!passesFilesOn(printer))
        return voids;
    entries.removeIf([&](const PolicyEntry &entry) {
        const QString name = nameInOneCase(entry.keyword, printer.session->ppd());
        QList<JobOption> options{{name, entry.value}};
        QStringList problems = takeWhatCannotBeDone(options, printer);
        // The one thing that is done there, and that nobody can keep from being done.
        const bool isToPass = asksForRaw(options);
        if (!isToPass && std::any_of(options.cbegin(), options.cend(), isRaw))
            problems += cannotBeDone({options.constFirst()}, printer);
        for (const QString &problem : std::as_const(problems))
            voids += PolicyProblem{entry.origin, problem};
        return options.isEmpty() || isToPass || !problems.isEmpty();
    });
    return voids;
}

QStringList takeWhatCannotBeDone(QList<JobOption> &options, const OpenedPrinter &printer)
{
    QList<JobOption> undone;
    options.removeIf([&](const JobOption &option) {
        if (isDoneWhenPassedOn(inOneSpelling(option).name, printer) || isRaw(option))
            return false;
        if (!asksForNothing(inOneSpelling(option)))
            undone += option;
        return true;
    });
    return undone.isEmpty() ? QStringList() : QStringList{cannotBeDone(undone, printer)};
}

JobTicket ticketOfPassedOn(const QList<JobOption> &attributes, const QString &title, int copies)
{
    JobTicket ticket{title, copies, attributes, {}};
    ticket.options.removeIf(isRaw);
    return ticket;
}

QList<SummaryLine> summaryOfPassedOn(const QList<JobOption> &attributes, int copies)
{
    QList<SummaryLine> lines{
        {QCoreApplication::translate("Summary", "Copies"), QString::number(copies)},
        {Texts::tr("Document"), Texts::tr("Passed on as it is")}};
    for (const JobOption &attribute : attributes) {
        if (isRaw(attribute))
            continue;
        const JobAttributeText text = textOfJobAttribute(attribute);
        lines += SummaryLine{text.title, text.value};
    }
    return lines;
}

} // namespace corvana
