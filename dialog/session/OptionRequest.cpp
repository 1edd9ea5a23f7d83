#include "dialog/session/OptionRequest.h"

#include <algorithm>
#include <optional>

#include <cups/cups.h>

#include <QCoreApplication>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PanelHost.h"
#include "dialog/session/PaperSize.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OptionRequest)
};

// "Tray=Lower"; a password is one, whatever has become of it.
QString said(ppd_file_t *ppd, const QString &name, const QString &value)
{
    const bool secret = isSecret(ppd, name) && !ppdChoice(ppdOption(ppd, name), value);
    return u"%1=%2"_s.arg(name, secret ? QString(kHiddenLength, u'•') : value);
}

QString asked(const JobOption &option, ppd_file_t *ppd)
{
    return said(ppd, option.name, option.value);
}

QString named(const OptionChoice &choice, ppd_file_t *ppd)
{
    return said(ppd, choice.keyword, choice.choice);
}

QString allowedChoices(ppd_file_t *ppd, const ppd_option_t *option)
{
    QStringList allowed;
    for (int i = 0; i < option->num_choices; ++i) {
        if (const QString choice = ppdKeyword(option->choices[i].choice); choice != kCustomChoice)
            allowed += choice;
    }
    const QString custom = allowedCustomValues(ppd, ppdKeyword(option->keyword));
    if (!custom.isEmpty())
        allowed += custom;
    return allowed.join(u", "_s);
}

// Names of lp's for what the printer, or the dialog, has another one.
constexpr QLatin1StringView kMediaOption{"media"};
constexpr QLatin1StringView kSidesOption{"sides"};
constexpr QLatin1StringView kCopiesOption{"copies"};

QStringList translatedOptions()
{
    return {kMediaOption, kSidesOption, kCopiesOption};
}

// Sorts the requested options by who takes them, and collects what nobody does.
class Request
{
public:
    Request(PpdSession &session, const PDEJobValues *jobValues)
        : m_session(session), m_jobValues(jobValues)
    {
    }

    QStringList problems;
    QList<OptionChoice> choices;  // for the PPD
    QList<JobOption> panelValues; // for the plug-in
    QList<JobOption> attributes;  // for CUPS
    std::optional<int> copies;

    void add(const JobOption &given)
    {
        const JobOption option = inOneSpelling(given);
        if (option.name == kMediaOption)
            addMedia(option);
        else if (option.name == kSidesOption)
            addSides(option);
        else if (option.name == kCopiesOption)
            addCopies(option);
        else if (addPanelValue(option) || addChoice(option, option.name) || addAttribute(option))
            return;
        else
            refuse(option,
                   Texts::tr("this printer has no such option. Options: %1. Job attributes: %2.")
                       .arg(optionNames(), attributeNames()));
    }

private:
    void refuse(const JobOption &option, const QString &why)
    {
        problems += u"%1: %2"_s.arg(asked(option, m_session.ppd()), why);
    }

    void refuseValue(const JobOption &option, const QString &allowed)
    {
        refuse(option, Texts::tr("this value is not allowed. Allowed: %1.").arg(allowed));
    }

    QString optionNames() const
    {
        QStringList names;
        for (const ppd_option_t *option : m_session.options())
            names += ppdKeyword(option->keyword);
        return names.join(u", "_s);
    }

    static QString attributeNames()
    {
        return (translatedOptions() + jobAttributeNames()).join(u", "_s);
    }

    void addMedia(const JobOption &option)
    {
        const QString size = pageSizeOfMedia(m_session.ppd(), option.value);
        if (!size.isNull())
            choices += OptionChoice{kPageSizeOption, size};
        else if (option.value.startsWith(kCustomPrefix) && addChoice(option, kPageSizeOption))
            return;
        else if (const ppd_option_t *sizes = ppdOption(m_session.ppd(), kPageSizeOption))
            refuseValue(option, allowedChoices(m_session.ppd(), sizes));
        else
            refuse(option, Texts::tr("this printer has no paper sizes to choose from."));
    }

    void addSides(const JobOption &option)
    {
        struct Side
        {
            QLatin1StringView sides;
            QLatin1StringView duplex; // empty: the one-sided choice, which is the default
        };
        static constexpr Side kSides[] = {
            {"one-sided"_L1, QLatin1StringView()},
            {"two-sided-long-edge"_L1, kDuplexLongEdge},
            {"two-sided-short-edge"_L1, kDuplexShortEdge},
        };
        const QString keyword = kDuplexOption;
        ppd_option_t *duplex = ppdOption(m_session.ppd(), keyword);
        QStringList allowed;
        for (const Side &side : kSides) {
            const QString choice = side.duplex.isEmpty() && duplex ? ppdKeyword(duplex->defchoice)
                                                                   : QString(side.duplex);
            const bool possible =
                duplex ? ppdChoice(duplex, choice) != nullptr : side.duplex.isEmpty();
            if (!possible)
                continue;
            allowed += side.sides;
            if (option.value != side.sides)
                continue;
            if (duplex)
                choices += OptionChoice{keyword, choice};
            return;
        }
        refuseValue(option, allowed.join(u", "_s));
    }

    void addCopies(const JobOption &option)
    {
        bool isNumber = false;
        const int number = option.value.toInt(&isNumber);
        if (isNumber && number >= 1 && number <= kMostCopies)
            copies = number;
        else
            refuseValue(option, Texts::tr("1 to %1").arg(kMostCopies));
    }

    // A trial on a copy of the entries: nothing is written before everything has been checked.
    bool addPanelValue(const JobOption &option)
    {
        if (!m_jobValues)
            return false;
        PrintSettings trial;
        trial.setEntries(m_session.printSettings().entries());
        const JobValueClaim claim = m_jobValues->takeJobOption(option, trial, m_session.ppd());
        if (claim.outcome == JobValueClaim::Outcome::NotMine)
            return false;
        if (claim.outcome == JobValueClaim::Outcome::Refused)
            refuseValue(option, claim.allowed);
        else
            panelValues += option;
        return true;
    }

    bool addChoice(const JobOption &option, const QString &keyword)
    {
        ppd_option_t *found = ppdOption(m_session.ppd(), keyword);
        if (!m_session.options().contains(found))
            return false;
        if (option.value.startsWith(kCustomPrefix)) {
            const CustomValueCheck check = checkCustomValue(m_session.ppd(), keyword, option.value);
            if (check.value)
                choices += OptionChoice{keyword, *check.value};
            else
                refuseValue(option, allowedChoices(m_session.ppd(), found));
        } else if (ppdChoice(found, option.value) && option.value != kCustomChoice) {
            choices += OptionChoice{keyword, option.value};
        } else {
            refuseValue(option, allowedChoices(m_session.ppd(), found));
        }
        return true;
    }

    bool addAttribute(const JobOption &option)
    {
        const JobAttribute *attribute = jobAttribute(option.name);
        if (!attribute)
            return false;
        if (attribute->accepts(option.value))
            attributes += option;
        else
            refuseValue(option, attribute->allowed.text());
        return true;
    }

    PpdSession &m_session;
    const PDEJobValues *m_jobValues;
};

bool isNamed(const QList<OptionChoice> &choices, const QString &keyword)
{
    return std::any_of(choices.cbegin(), choices.cend(),
                       [&](const OptionChoice &choice) { return choice.keyword == keyword; });
}

// What the panels made of that which was asked for, where it is something else.
QStringList differences(const QList<JobOption> &expected, const PpdSession &session,
                        const PDEJobValues *jobValues)
{
    QStringList problems;
    const QList<JobOption> job = jobOptions(session, jobValues, {});
    for (const JobOption &option : expected) {
        const auto now = std::find_if(job.cbegin(), job.cend(), [&](const JobOption &candidate) {
            return candidate.name == option.name;
        });
        if (now == job.cend() || now->value != option.value) {
            problems +=
                Texts::tr("%1: the printer's settings do not allow this here; it became %2.")
                    .arg(asked(option, session.ppd()),
                         now == job.cend() ? QString()
                                           : withoutSecrets(now->value, secretsOf(session)));
        }
    }
    return problems;
}

} // namespace

QString conflictMessage(const Refusal &refusal, ppd_file_t *ppd)
{
    QStringList others;
    for (const OptionChoice &other : refusal.conflicting)
        others += named(other, ppd);
    return Texts::tr("%1: this cannot be combined with %2.")
        .arg(named(refusal.proposed, ppd), others.join(u", "_s));
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
            problems +=
                conflictMessage({{mark.name, mark.value}, result.conflicting}, session.ppd());
    }
    return problems;
}

bool isKnownOption(const QString &name, const PpdSession &session)
{
    return ppdOption(session.ppd(), name) || translatedOptions().contains(name) ||
           jobAttribute(inOneSpelling({name, u"true"_s}).name);
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
        if (found && !option.value.startsWith(kCustomPrefix) && !ppdChoice(found, option.value)) {
            problems +=
                Texts::tr("%1: this value is not allowed. Allowed: %2.")
                    .arg(asked(option, session.ppd()), allowedChoices(session.ppd(), found));
            continue;
        }
        const QList<OptionChoice> conflicting = session.conflictsOf(choice);
        if (!conflicting.isEmpty())
            problems += conflictMessage({choice, conflicting}, session.ppd());
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

    Request request(session, jobValues);
    for (const JobOption &option : requested)
        request.add(option);
    if (!request.problems.isEmpty())
        return {request.problems, {}, {}};

    OptionOutcome outcome{{}, request.attributes, request.copies};
    for (const Refusal &conflict : session.changeTogether(request.choices))
        outcome.problems += conflictMessage(conflict, session.ppd());
    if (!outcome.ok())
        return {outcome.problems, {}, {}};
    // A new paper makes the panels propose a medium for it; what was asked for comes after that.
    panels.deliverPending();
    for (const Refusal &conflict : session.changeTogether(request.choices))
        outcome.problems += conflictMessage(conflict, session.ppd());

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
            outcome.problems += conflictMessage(refusal, session.ppd());
    }
    outcome.problems += jobProblems(session, jobValues);
    if (outcome.ok())
        outcome.problems = differences(expected, session, jobValues);
    if (!outcome.ok()) {
        outcome.attributes.clear();
        outcome.copies.reset();
        session.restore(before);
        panels.deliverPending(); // the former paper is judged again, and a medium proposed for it
        session.restore(before);
        panels.restoreAll();
        session.restore(before); // panels write entries of their own while they restore
    }
    return outcome;
}

} // namespace corvana
