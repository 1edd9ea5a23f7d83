#include "dialog/task/OrderOfPages.h"

#include <ranges>

#include "dialog/job/PageChoice.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionLocks.h"
#include "dialog/session/OptionNames.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/ByHand.h"
#include "dialog/task/JobSettings.h"
#include "dialog/task/OfferedAttributes.h"
#include "dialog/task/OpenedPrinter.h"

namespace corvana {

namespace {

enum class Order { OfTheDocument, Repeated, Folded };

Order orderOf(const QList<JobOption> &attributes)
{
    const PageChoice choice = pageChoiceOf(attributes);
    if (choice.booklet != PageChoice::Booklet::No)
        return Order::Folded;
    return choice.repetitions > 1 ? Order::Repeated : Order::OfTheDocument;
}

void setAttribute(JobSettings &settings, const QString &name, const QString &value,
                  const OpenedPrinter &printer)
{
    settings.setAttribute(name, value, usualValueOf(name, settings.attributes(), printer));
}

// The sides of a booklet, whoever turns its sheets over.
QList<OptionChoice> fold(JobSettings &settings, const OpenedPrinter &printer)
{
    const std::optional<OptionChoice> folding = choiceForBooklet(printer);
    if (canTurnByHand(printer)) {
        const QString before = settings.attribute(kSidesByHandAttribute);
        if (before == kByHandShortEdge)
            return {};
        settings.setAttribute(kSidesByHandAttribute, kByHandShortEdge);
        settings.noteTakenAlong({kSidesByHandAttribute, before, kByHandShortEdge});
        return {};
    }
    const QString before = folding ? printer.session->markedChoice(folding->keyword) : QString();
    if (!folding || before == folding->choice)
        return {};
    settings.noteTakenAlong({folding->keyword, before, folding->choice});
    return {*folding};
}

void makeRoom(JobSettings &settings, const OpenedPrinter &printer)
{
    const QStringList excluded = excludedByOrder(settings.attributes());
    for (const QString &name : excluded) {
        const QString before = settings.attribute(name);
        const QString usual = jobAttribute(name)->usual;
        setAttribute(settings, name, usual, printer);
        settings.noteTakenAlong({name, before, usual});
    }
}

// The last one first, as each was set on top of those before.
QList<OptionChoice> giveBack(JobSettings &settings, const OpenedPrinter &printer)
{
    QList<OptionChoice> choices;
    const QList<TakenAlong> taken = settings.takeBackTakenAlong();
    for (const TakenAlong &one : taken | std::views::reverse) {
        const bool isChoice = ppdOption(printer.session->ppd(), one.name);
        // A step back may lead to what was taken along on other options than the printer has now.
        const JobAttribute *attribute = jobAttribute(one.name);
        if (!isChoice && !attribute)
            continue;
        const QString now =
            isChoice ? printer.session->markedChoice(one.name) : settings.attribute(one.name);
        // What is usual may be there without being said.
        const bool isStill =
            now == one.now || (!isChoice && now.isNull() && one.now == attribute->usual);
        if (isStill && isChoice && !one.former.isNull())
            choices += OptionChoice{one.name, one.former};
        else if (isStill && !isChoice)
            setAttribute(settings, one.name, one.former, printer);
    }
    return choices;
}

} // namespace

QList<OptionChoice> takeOrderAlong(const QList<JobOption> &former, JobSettings &settings,
                                   const OpenedPrinter &printer)
{
    const Order before = orderOf(former);
    const Order now = orderOf(settings.attributes());
    QList<OptionChoice> choices;
    if (before != now)
        choices += giveBack(settings, printer);
    if (before != now && now == Order::Folded)
        choices += fold(settings, printer);
    const bool isNews = before != now || pageChoiceOf(former).repetitions !=
                                             pageChoiceOf(settings.attributes()).repetitions;
    if (isNews)
        makeRoom(settings, printer);
    return choices;
}

QStringList problemsOfOrder(const JobSettings &settings, const PpdSession &session)
{
    QStringList problems = problemsOfOrder(settings.attributes());
    if (problems.isEmpty())
        return {};
    const QStringList names =
        QStringList{kBookletAttribute, kRepeatAttribute} + excludedByOrder(settings.attributes());
    QStringList said;
    for (const QString &name : names) {
        const QString value = settings.attribute(name);
        // What is locked to nothing excludes nothing.
        const bool isNamed = said.contains(name) || value.isNull() || asksForNothing({name, value});
        if (isNamed || session.lockedBy(name).isNull())
            continue;
        said += name;
        problems += lockedText(name, session);
    }
    return problems;
}

} // namespace corvana
