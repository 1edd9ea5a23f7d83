#include <algorithm>

#include <QLoggingCategory>

#include "dialog/session/MarksByCups.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

Q_DECLARE_LOGGING_CATEGORY(lcSession)

namespace {

QList<OptionChoice> takeOptions(int count, cups_option_t *options)
{
    QList<OptionChoice> choices;
    for (int i = 0; i < count; ++i)
        choices += OptionChoice{ppdKeyword(options[i].name), ppdKeyword(options[i].value)};
    cupsFreeOptions(count, options);
    return choices;
}

// What libcups says collides with a choice: every option that takes part in any conflict.
QList<OptionChoice> allConflicts(ppd_file_t *ppd, const QString &keyword, const char *choice)
{
    cups_option_t *conflicting = nullptr;
    const int count = cupsGetConflicts(ppd, keyword.toLatin1().constData(), choice, &conflicting);
    return takeOptions(count, conflicting);
}

// What a constraint calls a choice: all custom values are the one choice "Custom".
QByteArray nameInConstraints(const QString &choice)
{
    return choice.startsWith(kCustomPrefix) ? QByteArray(kCustomChoice.data(), kCustomChoice.size())
                                            : choice.toLatin1();
}

// How many choices all constraints name.
qint64 termsOf(ppd_file_t *ppd)
{
    qint64 terms = 2 * qint64(ppd->num_consts);
    for (const ppd_attr_t *line = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); line;
         line = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr))
        terms += line->value ? QByteArrayView(line->value).count('*') : 0;
    return terms;
}

// libcups tries each choice of whatever is in the way, and for each looks at all constraints; it
// does so for each constraint that is broken, and then up to a hundred times. Nobody can stop it.
bool isSoonResolved(ppd_file_t *ppd, const OptionChoice &proposed)
{
    constexpr qint64 kMost = 5'000'000;
    const KeptMarks kept(ppd);
    ppdMarkOption(ppd, proposed.keyword.toLatin1().constData(),
                  nameInConstraints(proposed.choice).constData());
    const qint64 broken = ppdConflicts(ppd);
    qint64 choices = 0;
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd))
        choices += option->conflicted ? option->num_choices : 0;
    const qint64 steps = broken * choices * termsOf(ppd);
    if (steps > kMost)
        qCInfo(lcSession) << "no way out was looked for:" << broken << "constraints are broken,"
                          << choices << "choices would have to be tried";
    return steps <= kMost;
}

// Whether libcups has said of an option that it takes part in a conflict. A constraint may name the
// paper as "PageRegion" alone: the paper is compared, and that option is the one of which it says
// so.
bool isInConflict(ppd_file_t *ppd, const QString &keyword)
{
    const ppd_option_t *option = ppdOption(ppd, keyword);
    const ppd_option_t *region =
        keyword == kPageSizeOption ? ppdOption(ppd, kPageRegionOption) : nullptr;
    return !option || option->conflicted || (region && region->conflicted);
}

} // namespace

QList<OptionChoice> PpdSession::inOrder(QList<OptionChoice> choices)
{
    std::stable_partition(choices.begin(), choices.end(),
                          [](const OptionChoice &c) { return c.keyword == kPageSizeOption; });
    return choices;
}

QList<Refusal> PpdSession::refusalsOf(const QList<OptionChoice> &choices)
{
    const SessionSnapshot before = snapshot();
    const QList<Refusal> refusals = markTogether(choices);
    restore(before);
    return refusals;
}

// Whoever calls it restores what was marked before, where something is refused.
QList<Refusal> PpdSession::markTogether(const QList<OptionChoice> &choices)
{
    const QList<OptionChoice> ordered = inOrder(choices);
    const int brokenBefore = ppdConflicts(m_ppd.get());
    QList<Refusal> refusals;
    for (const OptionChoice &choice : ordered) {
        if (const OptionChoice locked = lockInTheWay(choice); !locked.keyword.isNull())
            refusals += Refusal{choice, {}, locked};
        else if (!mark(choice.keyword, choice.choice))
            refusals += Refusal{choice, {}};
        else if (const OptionChoice moved = movedLock(); !moved.keyword.isNull())
            refusals += Refusal{choice, {}, moved};
    }
    // Before conflicts are looked for: one with what was not marked would not be there.
    if (!refusals.isEmpty() && !refusals.constFirst().locked.keyword.isNull())
        return refusals;
    // Once for all, which says whom it concerns: asking for each takes long where many are asked.
    const bool areAllMarked = refusals.isEmpty();
    const int broken = ppdConflicts(m_ppd.get());
    const bool areFree = broken == 0 && areAllMarked;
    for (const OptionChoice &choice : ordered) {
        if (areFree || (areAllMarked && !isInConflict(m_ppd.get(), choice.keyword)))
            continue;
        if (const QList<OptionChoice> conflicting = conflictsOf(choice); !conflicting.isEmpty())
            refusals += Refusal{choice, conflicting};
    }
    if (!refusals.isEmpty() || broken <= brokenBefore)
        return refusals;
    // Of three that exclude each other none is to blame alone: the other two collide without it.
    for (const OptionChoice &choice : ordered) {
        QList<OptionChoice> conflicting =
            allConflicts(m_ppd.get(), choice.keyword, nameInConstraints(choice.choice).constData());
        conflicting.removeIf(
            [&](const OptionChoice &other) { return other.keyword == choice.keyword; });
        if (!conflicting.isEmpty() && isInConflict(m_ppd.get(), choice.keyword))
            refusals += Refusal{choice, conflicting};
    }
    return refusals;
}

QList<OptionChoice> PpdSession::wayOut(const OptionChoice &proposed)
{
    if (!isSoonResolved(m_ppd.get(), proposed))
        return {};
    const QByteArray option = proposed.keyword.toLatin1();
    const QByteArray choice = proposed.choice.toLatin1();
    cups_option_t *resolved = nullptr;
    int count = 0;
    if (!cupsResolveConflicts(m_ppd.get(), option.constData(), choice.constData(), &count,
                              &resolved)) {
        cupsFreeOptions(count, resolved);
        return {};
    }
    QList<OptionChoice> others = takeOptions(count, resolved);
    others.removeIf([&](const OptionChoice &other) {
        return other.keyword == proposed.keyword || markedChoice(other.keyword) == other.choice;
    });
    // A way that leads through a lock is none.
    const bool isLocked = std::any_of(others.cbegin(), others.cend(), [&](const OptionChoice &one) {
        return !lockInTheWay(one).keyword.isNull();
    });
    return isLocked || !lockInTheWay(proposed).keyword.isNull() ? QList<OptionChoice>() : others;
}

QList<OptionChoice> PpdSession::conflictsOf(const OptionChoice &choice) const
{
    QList<OptionChoice> conflicting =
        allConflicts(m_ppd.get(), choice.keyword, nameInConstraints(choice.choice).constData());
    if (conflicting.isEmpty())
        return {};
    // A conflict that is there without this option is none of its own. "None" and "False" both mean
    // that an option is off; a PPD may constrain a choice of one of these names, but not of both.
    const QList<OptionChoice> none = allConflicts(m_ppd.get(), choice.keyword, "None");
    const QList<OptionChoice> off = allConflicts(m_ppd.get(), choice.keyword, "False");
    conflicting.removeIf(
        [&](const OptionChoice &other) { return none.contains(other) && off.contains(other); });
    return conflicting;
}

} // namespace corvana
