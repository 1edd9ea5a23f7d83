#include "dialog/session/OptionRequest.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <cups/cups.h>

#include <QCoreApplication>
#include <QHash>

#include "dialog/session/ChoiceCodes.h"
#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionTexts.h"
#include "dialog/session/PanelHost.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/RequestedOptions.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OptionRequest)
};

QString asked(const JobOption &option, ppd_file_t *ppd)
{
    return optionText(ppd, option.name, option.value);
}

QString named(const OptionChoice &choice, ppd_file_t *ppd)
{
    return optionText(ppd, choice.keyword, choice.choice);
}

bool isNamed(const QList<OptionChoice> &choices, const QString &keyword)
{
    return std::any_of(choices.cbegin(), choices.cend(),
                       [&](const OptionChoice &choice) { return choice.keyword == keyword; });
}

// libcups takes a tray and the feeding by hand for two forms of one choice: marking the one takes
// the mark of the other away, whatever the PPD says (ppdMarkOption). Answers the other one.
QList<OptionChoice> takenInstead(const JobOption &option, const QList<JobOption> &expected)
{
    constexpr QLatin1StringView kForms[] = {"InputSlot"_L1, "ManualFeed"_L1};
    QList<OptionChoice> others;
    for (const JobOption &other : expected) {
        const bool isForm =
            std::find(std::begin(kForms), std::end(kForms), other.name) != std::end(kForms);
        if (isForm && other.name != option.name)
            others += OptionChoice{other.name, other.value};
    }
    return others;
}

QStringList differences(const QList<JobOption> &expected, const PpdSession &session,
                        const PDEJobValues *jobValues)
{
    QStringList problems;
    const QList<OptionDifference> all = optionDifferences(expected, session, jobValues);
    for (const OptionDifference &one : all) {
        const JobOption &option = one.asked;
        if (one.now.isNull())
            problems += conflictMessage(
                {{option.name, option.value}, takenInstead(option, expected)}, session);
        else
            problems +=
                Texts::tr("%1: the printer's settings do not allow this here; it became %2.")
                    .arg(asked(option, session.ppd()), withoutSecrets(one.now, secretsOf(session)));
    }
    return problems;
}

} // namespace

QString conflictMessage(const Refusal &refusal, const PpdSession &session)
{
    ppd_file_t *ppd = session.ppd();
    if (!refusal.locked.keyword.isNull())
        return u"%1: %2"_s.arg(named(refusal.proposed, ppd),
                               lockedText(refusal.locked.keyword, session));
    if (const OptionChoice &choice = refusal.proposed;
        refusal.conflicting.isEmpty() && !canBeSent(ppd, choice.keyword, choice.choice))
        return notSentText(named(choice, ppd));
    if (refusal.conflicting.isEmpty())
        return Texts::tr("%1: the printer's options cannot be set to this value.")
            .arg(named(refusal.proposed, ppd));
    QStringList others;
    for (const OptionChoice &other : refusal.conflicting)
        others += named(other, ppd);
    QString text = Texts::tr("%1: this cannot be combined with %2.")
                       .arg(named(refusal.proposed, ppd), others.join(u", "_s));
    for (const OptionChoice &other : refusal.conflicting) {
        if (session.locks().contains(other.keyword))
            text += u'\n' + lockedText(other.keyword, session);
    }
    return text;
}

QList<OptionDifference> optionDifferences(const QList<JobOption> &asked, const PpdSession &session,
                                          const PDEJobValues *jobValues)
{
    QHash<QString, QString> job;
    const QList<JobOption> options = jobOptions(session, jobValues, {});
    for (const JobOption &option : options)
        job.insert(option.name, option.value);
    QList<OptionDifference> differences;
    for (const JobOption &option : asked) {
        if (const QString now = job.value(option.name); now != option.value)
            differences += OptionDifference{option, now};
    }
    return differences;
}

QStringList markImplied(PpdSession &session, const PDEJobValues *jobValues)
{
    if (!jobValues)
        return {};
    QStringList problems;
    const QList<JobOption> marks = jobValues->impliedMarks(session.printSettings(), session.ppd());
    for (const JobOption &mark : marks) {
        const ChangeResult result =
            session.change(mark.name, mark.value, PpdSession::Origin::Dialog);
        if (!result.accepted())
            problems += conflictMessage(
                {{mark.name, mark.value}, result.conflicting, result.locked}, session);
    }
    return problems;
}

bool isKnownOption(const QString &name, const PpdSession &session)
{
    const QString known = nameInOneCase(name, session.ppd());
    return ppdOption(session.ppd(), known) ||
           RequestedOptions::translatedOptions().contains(known) ||
           jobAttribute(inOneSpelling({known, u"true"_s}).name);
}

bool isWellFormed(const QString &argument)
{
    // cupsParseOptions() stops silently where it understands no more; then it never comes to an
    // option that is put at the end.
    const QString end = u"corvana-end-of-options"_s;
    const QList<JobOption> parsed = parseOptions({argument + u" %1=1"_s.arg(end)});
    return std::any_of(parsed.cbegin(), parsed.cend(), [&](const JobOption &option) {
        return option == JobOption{end, u"1"_s};
    });
}

QStringList jobProblems(const PpdSession &session, const PDEJobValues *jobValues)
{
    QStringList problems;
    const QList<JobOption> own = jobValues
                                     ? jobValues->jobOptions(session.printSettings(), session.ppd())
                                     : QList<JobOption>();
    for (const JobOption &option : own) {
        const OptionChoice choice{option.name, option.value};
        ppd_option_t *found = ppdOption(session.ppd(), option.name);
        // A panel may write a number for which the PPD has lost the choice.
        const bool isTaken =
            option.value.startsWith(kCustomPrefix)
                ? checkCustomValue(session.ppd(), option.name, option.value).value.has_value()
                : ppdChoice(found, option.value) != nullptr;
        if (found && !isTaken) {
            problems +=
                Texts::tr("%1: this value is not allowed. Allowed: %2.")
                    .arg(asked(option, session.ppd()), allowedChoices(session.ppd(), found));
            continue;
        }
        const QList<OptionChoice> conflicting = session.conflictsOf(choice);
        if (!conflicting.isEmpty() || !canBeSent(session.ppd(), option.name, option.value))
            problems += conflictMessage({choice, conflicting}, session);
    }
    for (const QString &keyword : optionsWithoutValue(session, jobValues)) {
        problems += Texts::tr("%1=Custom: a value is missing. Allowed: %2.")
                        .arg(keyword, allowedCustomValues(session.ppd(), keyword));
    }
    return problems;
}

QList<JobOption> parseOptions(const QStringList &arguments)
{
    cups_option_t *parsed = nullptr;
    int count = 0;
    for (const QString &argument : arguments)
        count = cupsParseOptions(argument.toUtf8().constData(), count, &parsed);
    QList<JobOption> options;
    for (int i = 0; i < count; ++i)
        options += JobOption{QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value)};
    cupsFreeOptions(count, parsed);
    return options;
}

OptionOutcome applyOptions(const QList<JobOption> &requested, PpdSession &session,
                           const PDEJobValues *jobValues, PanelHost &panels)
{
    panels.bringUp();
    const SessionSnapshot before = session.snapshot();

    const RequestedOptions request(requested, session, jobValues);
    if (!request.problems.isEmpty())
        return {request.problems, {}, {}};

    OptionOutcome outcome{{}, request.attributes, request.copies};
    for (const Refusal &conflict : session.changeTogether(request.choices))
        outcome.problems += conflictMessage(conflict, session);
    if (!outcome.ok())
        return {outcome.problems, {}, {}};
    // A new paper makes the panels propose a medium for it, which counts where none was asked for.
    panels.tellPaper(request.choices);
    panels.deliverPending();
    for (const Refusal &conflict : session.changeTogether(request.choices))
        outcome.problems += conflictMessage(conflict, session);

    QList<JobOption> expected;
    for (const OptionChoice &choice : std::as_const(request.choices))
        expected += JobOption{choice.keyword, choice.choice};
    for (const JobOption &option : std::as_const(request.panelValues)) {
        const JobValueClaim claim =
            jobValues->takeJobOption(option, session.printSettings(), session.ppd());
        expected += claim.standsFor;
    }
    outcome.problems += markImplied(session, jobValues);
    panels.deliverPending();
    panels.restoreAll();

    for (const Refusal &refusal : session.takeRefusals()) {
        // What a panel proposes for the new paper, beside a choice that was named, nobody wishes.
        if (!isNamed(request.choices, refusal.proposed.keyword))
            outcome.problems += conflictMessage(refusal, session);
    }
    outcome.problems += jobProblems(session, jobValues);
    if (outcome.ok())
        outcome.problems = differences(expected, session, jobValues);
    if (!outcome.ok()) {
        outcome.attributes.clear();
        outcome.copies.reset();
        panels.restoreTo(before);
    }
    return outcome;
}

} // namespace corvana
