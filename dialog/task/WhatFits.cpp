#include "dialog/task/WhatFits.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "dialog/session/RequestedOptions.h"
#include "dialog/task/OpenedPrinter.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// A list of a paper, its source and its type is as many wishes.
QList<JobOption> inParts(const QList<JobOption> &options)
{
    QList<JobOption> parts;
    for (const JobOption &option : options) {
        if (option.name.compare("media"_L1, Qt::CaseInsensitive) != 0) {
            parts += option;
            continue;
        }
        const QStringList words = option.value.split(u',');
        for (const QString &word : words)
            parts += JobOption{option.name, word};
    }
    return parts;
}

OptionOutcome apply(const QList<JobOption> &options, OpenedPrinter &printer)
{
    return applyOptions(options, *printer.session, printer.jobValues, *printer.panels);
}

/// Takes out of a list what the printer does not have, without setting anything.
class Sieve
{
public:
    Sieve(QList<JobOption> options, OpenedPrinter &printer)
        : m_printer(printer), m_left(std::move(options))
    {
        m_left.removeIf([this](const JobOption &one) { return isUnknown(one); });
        while (takeOne())
            continue;
    }

    QStringList problems;
    const QList<JobOption> &left() const { return m_left; }

private:
    RequestedOptions read(const QList<JobOption> &options) const
    {
        return {options, *m_printer.session, m_printer.jobValues};
    }

    bool isUnknown(const JobOption &option)
    {
        const QStringList why = read({option}).problems;
        problems += why;
        return !why.isEmpty();
    }

    // False where nothing is refused, or nothing that is known.
    bool takeOne()
    {
        const QList<OptionChoice> wishes = read(m_left).choices;
        const QList<Refusal> refusals = m_printer.session->refusalsOf(wishes);
        // What collides with something beside the list is refused whatever else goes out.
        const auto isByItself = [&](const Refusal &refusal) {
            return refusal.conflicting.isEmpty() ||
                   std::any_of(refusal.conflicting.cbegin(), refusal.conflicting.cend(),
                               [&](const OptionChoice &other) { return !has(wishes, other); });
        };
        QList<Refusal> alone;
        QList<Refusal> all;
        for (const Refusal &refusal : refusals) {
            if (isByItself(refusal))
                alone += refusal;
            all += refusal;
            // Where one excludes several it is blamed alone, and counts all the same when it is
            // first.
            for (const OptionChoice &other : refusal.conflicting)
                all += Refusal{other, {refusal.proposed}};
        }
        return takeLastOf(alone) || takeLastOf(all);
    }

    bool takeLastOf(const QList<Refusal> &refusals)
    {
        for (auto option = m_left.crbegin(); option != m_left.crend(); ++option) {
            const QList<OptionChoice> choices = read({*option}).choices;
            const auto refusal =
                std::find_if(refusals.cbegin(), refusals.cend(),
                             [&](const Refusal &one) { return has(choices, one.proposed); });
            if (refusal == refusals.cend())
                continue;
            problems += conflictMessage(*refusal, *m_printer.session);
            m_left.removeAt(std::distance(option, m_left.crend()) - 1);
            return true;
        }
        return false;
    }

    // libcups calls each custom value of an option by the same name.
    static bool has(const QList<OptionChoice> &choices, const OptionChoice &wanted)
    {
        return std::any_of(choices.cbegin(), choices.cend(),
                           [&](const OptionChoice &one) { return one.keyword == wanted.keyword; });
    }

    OpenedPrinter &m_printer;
    QList<JobOption> m_left;
};

// One after the other, as far as they go beside those before.
OptionOutcome applyEach(const QList<JobOption> &options, OpenedPrinter &printer)
{
    OptionOutcome all;
    QList<JobOption> taken;
    QStringList problems;
    for (const JobOption &option : options) {
        const OptionOutcome more = apply(taken + QList<JobOption>{option}, printer);
        problems += more.problems;
        if (!more.ok())
            continue;
        taken += option;
        all = more;
    }
    all.problems = problems;
    return all;
}

} // namespace

OptionOutcome applyWhatFits(const QList<JobOption> &options, OpenedPrinter &printer)
{
    if (options.isEmpty())
        return {};
    if (const OptionOutcome all = apply(options, printer); all.ok())
        return all;
    const Sieve sieve(inParts(options), printer);
    OptionOutcome fitted = sieve.left().isEmpty() ? OptionOutcome() : apply(sieve.left(), printer);
    // What a panel refuses it refuses together with others only.
    if (!fitted.ok())
        fitted = applyEach(sieve.left(), printer);
    fitted.problems = sieve.problems + fitted.problems;
    return fitted;
}

} // namespace corvana
