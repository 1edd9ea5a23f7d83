#include <algorithm>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/PanelHost.h"
#include "dialog/session/RequestedOptions.h"
#include "fuzz/support/Sessions.h"
#include "fuzz/support/Target.h"
#include "platform/toolkit/Alert.h"
#include "plugin/QXJobValues.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// There are no panels, so that nobody shows any.
class NoAlerts : public AlertPresenter
{
public:
    AlertAnswer runModal(const Alert &alert, QWidget *) override
    {
        require(false, "there is nobody who shows an alert", alert.messageText);
        return {};
    }
};

// Sorted: what a panel keeps stands behind what is marked.
QList<JobOption> ticketOf(const PpdSession &session, const PDEJobValues *values,
                          const OptionOutcome &outcome)
{
    QList<JobOption> ticket = jobOptions(session, values, outcome.attributes);
    std::stable_sort(ticket.begin(), ticket.end(),
                     [](const JobOption &a, const JobOption &b) { return a.name < b.name; });
    return ticket;
}

QString textOf(const QList<JobOption> &ticket)
{
    QStringList texts;
    for (const JobOption &option : ticket)
        texts += option.name + u'=' + option.value;
    return texts.join(u' ');
}

// What is described by several values is refused by the name of the one that cannot be had.
bool isMember(const QString &problem, const JobOption &option)
{
    const QString name = problem.section(u'=', 0, 0);
    return option.name.compare("media-col"_L1, Qt::CaseInsensitive) == 0 && !name.isEmpty() &&
           option.value.contains(name, Qt::CaseInsensitive);
}

// By the name that was given, or by that of the printer's option that it stands for.
bool isNamed(const QStringList &problems, const QList<JobOption> &asked, PpdSession &session,
             const PDEJobValues *values)
{
    const RequestedOptions request(asked, session, values);
    const auto namesChoice = [&](const QString &problem) {
        return std::any_of(
            request.choices.cbegin(), request.choices.cend(),
            [&](const OptionChoice &choice) { return problem.contains(choice.keyword); });
    };
    return std::all_of(problems.cbegin(), problems.cend(), [&](const QString &problem) {
        return namesChoice(problem) ||
               std::any_of(asked.cbegin(), asked.cend(), [&](const JobOption &option) {
                   const QString name = nameInOneCase(option.name, session.ppd());
                   return problem.contains(name) ||
                          problem.contains(inOneSpelling({name, option.value}).name) ||
                          problem.contains(u"PageSize"_s) || // what "media" is called by the PPD
                          isMember(problem, option);
               });
    });
}

// Whether an option, said by itself, stands for anything that is in the ticket.
bool standsInTicket(const JobOption &option, const QList<JobOption> &ticket, PpdSession &session,
                    const PDEJobValues *values)
{
    const RequestedOptions alone({option}, session, values);
    QStringList names;
    for (const OptionChoice &choice : alone.choices)
        names += choice.keyword;
    for (const JobOption &one : alone.panelValues + alone.attributes)
        names += one.name;
    return alone.copies || std::any_of(ticket.cbegin(), ticket.cend(), [&](const JobOption &one) {
               return names.contains(one.name);
           });
}

// What is in the ticket is what was asked for, by its own name or by what that stands for.
void requireAllTaken(const QList<JobOption> &asked, const QList<JobOption> &ticket,
                     const OptionOutcome &outcome, PpdSession &session, const PDEJobValues *values)
{
    for (const JobOption &option : asked) {
        const JobOption known =
            inOneSpelling({nameInOneCase(option.name, session.ppd()), option.value});
        const bool isInTicket =
            std::any_of(ticket.cbegin(), ticket.cend(),
                        [&](const JobOption &one) { return one.name == known.name; });
        const bool isCopies = known.name == "copies"_L1 && outcome.copies;
        require(isInTicket || isCopies || standsInTicket(known, ticket, session, values),
                "what is accepted is in the ticket", option.name + u'=' + option.value);
    }
}

// A job says the same to a person as to its printer.
void requireWords(const QList<JobOption> &ticket, const PpdSession &session)
{
    for (const JobOption &option : ticket) {
        const JobAttributeText text = textOfJobAttribute(option);
        require(!text.title.isEmpty() && (!text.value.isEmpty() || option.value.isEmpty()),
                "an attribute has a title and a value", option.name);
        if (const JobAttribute *attribute = jobAttribute(option.name))
            require(!allowedText(attribute->allowed).isEmpty(), "what is allowed has words",
                    option.name);
        require(!asksForNothing(option) || jobAttribute(option.name),
                "only an attribute can ask for nothing", option.name);
        isAppliedTo(JobAttribute::AppliedTo::Pages, option);
    }
    require(withoutSecrets(textOf(ticket), secretsOf(session)).count(u' ') <=
                textOf(ticket).count(u' '),
            "dots in the place of secrets are no further words");
}

// What keeps a session from being printed is named; and an option that became another is told.
void requireFit(const QList<JobOption> &asked, const PpdSession &session,
                const PDEJobValues *values)
{
    for (const QString &problem : jobProblems(session, values))
        require(!problem.isEmpty(), "what keeps a job from being printed has words");
    for (const OptionDifference &difference : optionDifferences(asked, session, values))
        require(difference.now != difference.asked.value, "a difference is one",
                difference.asked.name);
}

/// A printer that is asked for options, with everything that it keeps from one input to the next.
class AskedPrinter
{
public:
    AskedPrinter(const QByteArray &ppd, const PDEJobValues *values)
        : m_session(sessionOf(ppd)), m_start(m_session->snapshot()), m_values(values),
          m_panels(*m_session, nullptr, m_alerts)
    {
    }

    void ask(const QList<JobOption> &asked)
    {
        PpdSession &session = *m_session;
        session.restore(m_start);
        const OptionOutcome outcome = applyOptions(asked, session, m_values, m_panels);
        requireMarksAreEntries(session);
        if (!outcome.ok()) {
            require(isNamed(outcome.problems, asked, session, m_values), "what is refused is named",
                    outcome.problems.join(u'\n'));
            require(session.snapshot() == m_start, "what is refused changes nothing",
                    outcome.problems.join(u'\n'));
            require(outcome.attributes.isEmpty() && !outcome.copies,
                    "what is refused is not half taken");
            return;
        }
        const QList<JobOption> ticket = ticketOf(session, m_values, outcome);
        requireAllTaken(asked, ticket, outcome, session, m_values);
        requireWords(ticket, session);
        requireFit(asked, session, m_values);
        const OptionOutcome again = applyOptions(ticket, session, m_values, m_panels);
        require(again.ok(), "a ticket is accepted when it is asked for",
                again.problems.join(u'\n'));
        require(ticketOf(session, m_values, again) == ticket,
                "a ticket that is asked for is itself",
                textOf(ticket) + u'\n' + textOf(ticketOf(session, m_values, again)));
    }

private:
    std::unique_ptr<PpdSession> m_session;
    SessionSnapshot m_start;
    const PDEJobValues *m_values;
    NoAlerts m_alerts;
    PanelHost m_panels;
};

/// Input: values of -o, a line each; behind a line "office" for a printer without panels, else for
/// one with the panels' own values. What is accepted is in the ticket, and has words; saying the
/// ticket again gives the same ticket; what is refused is named, and leaves everything as it was.
void run(const QByteArray &input)
{
    static const QXJobValues values;
    static AskedPrinter sample(samplePpd(), &values);
    static AskedPrinter office(officePpd(), nullptr);

    QStringList arguments = QString::fromUtf8(input).split(u'\n');
    const bool isOffice = arguments.constFirst() == "office"_L1;
    if (isOffice)
        arguments.removeFirst();
    const QList<JobOption> asked = parseOptions(arguments);
    for (const QString &argument : arguments)
        isWellFormed(argument);
    (isOffice ? office : sample).ask(asked);
}

const Target target("job_options", run);

} // namespace

} // namespace corvana::fuzz
