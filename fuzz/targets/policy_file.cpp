#include <algorithm>

#include "dialog/policy/Policy.h"
#include "dialog/policy/PolicyFile.h"
#include "dialog/policy/PolicyLocks.h"
#include "dialog/printers/Printer.h"
#include "fuzz/support/Sessions.h"
#include "fuzz/support/Target.h"
#include "plugin/QXJobValues.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// Each takes a while on a printer with many options.
constexpr qsizetype kMostLocks = 8;

QByteArray written(const QList<PolicyEntry> &entries)
{
    QString text;
    for (const PolicyEntry &entry : entries)
        text += entry.scope.text() + u'\n' + entry.name() + u" = "_s + entry.value + u'\n';
    return text.toUtf8();
}

bool isSaid(const PolicyEntry &entry, const PolicyEntry &other)
{
    return entry.key == other.key && entry.keyword == other.keyword && entry.value == other.value &&
           entry.scope == other.scope;
}

void requireReadAgain(const QList<PolicyEntry> &entries)
{
    const QByteArray text = written(entries);
    if (entries.size() > 200)
        return; // it would have more sections than a file may have
    const PolicyFile again = parsePolicyFile(text, u"again.conf"_s);
    require(again.problems.isEmpty() && again.entries.size() == entries.size() &&
                std::equal(entries.cbegin(), entries.cend(), again.entries.cbegin(), isSaid),
            "a policy that is written is read as itself", QString::fromUtf8(text));
}

// A start value that a printer lacks is named with its line.
void requireDefaultsAreNamed(const QList<PolicyEntry> &entries)
{
    static const std::unique_ptr<PpdSession> session = sessionOf(samplePpd());
    const QXJobValues values;
    const SessionSnapshot before = session->snapshot();
    for (const PolicyProblem &problem : voidDefaults(entries, *session, &values))
        require(!problem.what.isEmpty() && problem.origin.line > 0, "a void value has a reason",
                problem.text());
    require(session->snapshot() == before, "looking at start values changes nothing");
}

// A lock is in force or void, with the line that says so; and what is locked stays.
void requireLocks(const QList<PolicyEntry> &locks)
{
    static const QByteArray ppd = samplePpd();
    const std::unique_ptr<PpdSession> session = sessionOf(ppd);
    const QXJobValues values;
    const QList<PolicyProblem> voids = lockSettings(locks, *session, &values);
    requireMarksAreEntries(*session);
    require(!session->locks().isEmpty() || !voids.isEmpty() || locks.isEmpty(),
            "a lock is in force, or void and named");
    for (const PolicyProblem &problem : voids)
        require(!problem.what.isEmpty() && problem.origin.line > 0, "a void lock has a reason",
                problem.text());
    const OptionLocks kept = session->locks();
    for (auto lock = kept.cbegin(); lock != kept.cend(); ++lock) {
        const ppd_option_t *option = ppdOption(session->ppd(), lock.key());
        if (lock->choice.isNull() || !option)
            continue;
        for (int i = 0; i < option->num_choices; ++i)
            session->change(lock.key(), ppdKeyword(option->choices[i].choice),
                            PpdSession::Origin::Dialog);
        const QString custom = session->customValue(lock.key());
        require((custom.isNull() ? session->markedChoice(lock.key()) : custom) == lock->choice,
                "what is locked stays", lock.key());
    }
}

/// Input: a file of an administrator's policy. Each of its entries can be written and read again;
/// each problem has a line and words; a policy of it answers for any printer; and each of its locks
/// is in force on a printer and stays, or is named as void.
void run(const QByteArray &input)
{
    const PolicyFile file = parsePolicyFile(input, u"/etc/corvana-print/policy.d/a.conf"_s);
    for (const PolicyProblem &problem : file.problems)
        require(!problem.what.isEmpty() && problem.origin.line >= 0, "a problem has words",
                problem.text());
    for (const PolicyEntry &entry : file.entries)
        require(entry.origin.line > 0 && problemOfValue(formOf(entry.key), entry.value).isEmpty(),
                "an entry has a value that its key takes", entry.name() + u'=' + entry.value);
    requireReadAgain(file.entries);
    PolicyReading reading;
    reading.entries = file.entries;
    const Policy policy(reading, {u"user"_s, {u"students"_s}});
    Printer printer;
    printer.origin = PrinterOrigin::Queue;
    printer.name = u"lobby-1"_s;
    policy.whatHides(printer);
    policy.whatForbidsFiles(printer);
    policy.confirmSheets(printer);
    requireDefaultsAreNamed(file.entries.mid(0, kMostLocks));
    requireLocks(policy.locksOf(printer).mid(0, kMostLocks));
}

const Target target("policy_file", run);

} // namespace

} // namespace corvana::fuzz
