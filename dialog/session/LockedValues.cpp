#include "dialog/session/LockedValues.h"

#include <algorithm>

#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

namespace {

// Null where there is none of that name.
QString valueOf(const QString &name, const QList<JobOption> &options)
{
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [&](const JobOption &option) { return option.name == name; });
    return found == options.cend() ? QString() : found->value;
}

} // namespace

QStringList putBackLockedValues(PpdSession &session, const PDEJobValues *jobValues)
{
    if (!jobValues || session.locks().isEmpty())
        return {};
    QStringList moved;
    PrintSettings &settings = session.printSettings();
    ppd_file_t *ppd = session.ppd();
    const OptionLocks &locks = session.locks();
    for (auto lock = locks.cbegin(); lock != locks.cend(); ++lock) {
        if (lock->kind == OptionLock::Kind::Attribute)
            continue;
        const QList<JobOption> now = jobValues->jobOptions(settings, ppd);
        // A choice of the PPD's is not the panels' business, unless they say something else of it.
        if (lock->kind == OptionLock::Kind::Choice && valueOf(lock.key(), now).isNull())
            continue;
        PrintSettings trial;
        trial.setEntries(settings.entries());
        const JobValueClaim claim = jobValues->takeJobOption(lock->asked, trial, ppd);
        if (claim.outcome != JobValueClaim::Outcome::Accepted)
            continue;
        const QString &name = claim.standsFor.name;
        // One that is not in force has another value whatever its entries say.
        if (valueOf(name, now) == valueOf(name, jobValues->jobOptions(trial, ppd)))
            continue;
        settings.setEntries(trial.entries());
        moved += lock.key();
    }
    if (!moved.isEmpty())
        markImplied(session, jobValues);
    return moved;
}

QStringList brokenLocks(const OptionLocks &locks, const QList<JobOption> &job, int copies)
{
    QStringList broken;
    for (auto lock = locks.cbegin(); lock != locks.cend(); ++lock) {
        const bool isCopies = lock.key() == kCopiesAttribute;
        const QString value = isCopies ? QString::number(copies) : valueOf(lock.key(), job);
        bool isKept = value == lock->value;
        if (lock->kind == OptionLock::Kind::Choice)
            isKept = isKept || lock->isKeptBy(lock.key(), value);
        else if (lock->kind == OptionLock::Kind::Attribute && !isKept)
            isKept = lock->allowsAttribute({lock.key(), value});
        // The value of a panel that is not in force says its default.
        if (lock->kind != OptionLock::Kind::PanelValue && !isKept)
            broken += lock.key();
    }
    return broken;
}

} // namespace corvana
