#include "dialog/policy/Policy.h"

#include <algorithm>

#include <fnmatch.h>

#include <QLoggingCategory>
#include <QUrl>

#include "dialog/printers/UserQueues.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPolicy, "corvana.dialog.policy", QtWarningMsg)

namespace {

// Names of queues are the same in capital and small letters.
bool fits(const QString &pattern, const QString &name)
{
    return ::fnmatch(foldedQueueName(pattern).toUtf8().constData(),
                     foldedQueueName(name).toUtf8().constData(), 0) == 0;
}

} // namespace

QStringList policyNamesOf(const Printer &printer)
{
    QStringList names{printer.name};
    switch (printer.origin) {
    case PrinterOrigin::Queue:
        names += queueOfInstance(printer.name);
        break;
    case PrinterOrigin::Device: {
        names += printer.uri;
        // A queue is the same printer by whatever way it is reached.
        const QStringList path = QUrl(printer.uri).path().split(u'/', Qt::SkipEmptyParts);
        if (path.size() == 2 && (path.at(0).compare("printers"_L1, Qt::CaseInsensitive) == 0 ||
                                 path.at(0).compare("classes"_L1, Qt::CaseInsensitive) == 0))
            names += path.at(1);
        break;
    }
    case PrinterOrigin::File:
        break;
    }
    names.removeDuplicates();
    return names;
}

Policy::Policy(const PolicyReading &reading, const PolicyUser &user)
    : m_reading(reading), m_user(user)
{
}

std::shared_ptr<const Policy> Policy::ofThisComputer()
{
    const PolicyReading reading = readPolicyFolder(policyPlace());
    for (const PolicyProblem &problem : reading.problems)
        qCWarning(lcPolicy).noquote() << terminalLine(problem.text());
    const bool needsGroups =
        std::any_of(reading.entries.cbegin(), reading.entries.cend(),
                    [](const PolicyEntry &entry) { return !entry.scope.groups.isEmpty(); });
    return std::make_shared<const Policy>(reading, needsGroups ? userWithGroups() : currentUser());
}

bool Policy::appliesToUser(const PolicyScope &scope) const
{
    return scope.groups.isEmpty() ||
           std::any_of(scope.groups.cbegin(), scope.groups.cend(),
                       [&](const QString &group) { return m_user.groups.contains(group); });
}

bool Policy::applies(const PolicyScope &scope, const Printer &printer) const
{
    if (!appliesToUser(scope))
        return false;
    if (scope.printers.isEmpty())
        return true;
    const QStringList names = policyNamesOf(printer);
    return std::any_of(scope.printers.cbegin(), scope.printers.cend(), [&](const QString &pattern) {
        return std::any_of(names.cbegin(), names.cend(),
                           [&](const QString &name) { return fits(pattern, name); });
    });
}

std::optional<PolicyEntry> Policy::entryOf(PolicyKey key, const Printer &printer) const
{
    const PolicyEntry *found = nullptr;
    for (const PolicyEntry &entry : m_reading.entries) {
        if (entry.key == key && (!found || countsMore(entry, *found)) &&
            applies(entry.scope, printer))
            found = &entry;
    }
    // An empty value takes back what was said before.
    return found && !found->value.isEmpty() ? std::optional(*found) : std::nullopt;
}

QList<PolicyEntry> Policy::settings(PolicyKey key, const Printer &printer) const
{
    QList<PolicyEntry> counting;
    for (const PolicyEntry &entry : m_reading.entries) {
        if (entry.key != key || !applies(entry.scope, printer))
            continue;
        const auto former =
            std::find_if(counting.begin(), counting.end(), [&](const PolicyEntry &one) {
                return one.keyword.compare(entry.keyword, Qt::CaseInsensitive) == 0;
            });
        if (former == counting.end())
            counting += entry;
        else if (countsMore(entry, *former))
            *former = entry;
    }
    counting.removeIf([](const PolicyEntry &entry) { return entry.value.isEmpty(); });
    return counting;
}

QList<PolicyEntry> Policy::defaultsOf(const Printer &printer) const
{
    QList<PolicyEntry> defaults = settings(PolicyKey::Default, printer);
    std::stable_sort(
        defaults.begin(), defaults.end(),
        [](const PolicyEntry &one, const PolicyEntry &other) { return countsMore(other, one); });
    return defaults;
}

QList<PolicyEntry> Policy::locksOf(const Printer &printer) const
{
    QList<PolicyEntry> locks = settings(PolicyKey::Lock, printer);
    std::stable_sort(locks.begin(), locks.end(), countsMore);
    return locks;
}

bool Policy::says(PolicyKey key, const Printer &printer, bool otherwise) const
{
    const std::optional<PolicyEntry> entry = entryOf(key, printer);
    return entry ? entry->isYes() : otherwise;
}

std::optional<PolicyEntry> Policy::whatHides(const Printer &printer) const
{
    if (const auto hidden = entryOf(PolicyKey::Hide, printer); hidden && hidden->isYes())
        return hidden;
    // There is no other way to print to it.
    return printer.origin == PrinterOrigin::File ? whatForbidsFiles(printer) : std::nullopt;
}

std::optional<PolicyEntry> Policy::whatForbidsFiles(const Printer &printer) const
{
    const auto entry = entryOf(PolicyKey::FileOutput, printer);
    return entry && !entry->isYes() ? entry : std::nullopt;
}

bool Policy::bringsLastUsedBack(const Printer &printer) const
{
    return says(PolicyKey::LastUsed, printer, true);
}

QString Policy::presetsFolder(const Printer &printer) const
{
    const auto entry = entryOf(PolicyKey::Presets, printer);
    return entry ? entry->value : QString();
}

bool Policy::writesJournal(const Printer &printer) const
{
    return says(PolicyKey::Journal, printer, false);
}

bool Policy::journalHasTitles(const Printer &printer) const
{
    return says(PolicyKey::JournalTitle, printer, false);
}

std::optional<int> Policy::confirmSheets(const Printer &printer) const
{
    const auto entry = entryOf(PolicyKey::ConfirmSheets, printer);
    return entry ? std::optional(entry->value.toInt()) : std::nullopt;
}

} // namespace corvana
