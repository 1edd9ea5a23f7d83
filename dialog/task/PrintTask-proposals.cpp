#include "dialog/task/PrintTask.h"

#include <QPointer>

#include "dialog/job/PageChoice.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/OptionValues.h"
#include "dialog/session/RequestedOptions.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/OrderOfPages.h"
#include "dialog/task/RefusalText.h"
#include "dialog/task/SettingsValues.h"
#include "dialog/task/StartValues.h"
#include "dialog/task/TaskHistory.h"

namespace corvana {

namespace {

// Of what a panel has a control for, the panel's rules decide as well: it may show a box that
// cannot be ticked beside what is set already. What is refused for another reason is left to those
// who have a way out of it.
bool isForPanelsToJudge(const OptionChoice &choice, OpenedPrinter &printer)
{
    return printer.panels->panelOf(choice.keyword) >= 0 &&
           !printer.session->locks().contains(choice.keyword) &&
           ppdChoice(ppdOption(printer.session->ppd(), choice.keyword), choice.choice) &&
           printer.session->conflictsOf(choice).isEmpty();
}

} // namespace

void PrintTask::propose(const QString &keyword, const QString &choice)
{
    bringUp();
    Q_EMIT unsaid();
    m_settings.keepTakenAlong(keyword);
    if (isValueOfPanels({keyword, choice}, *m_opened->session, m_opened->jobValues) ||
        isForPanelsToJudge({keyword, choice}, *m_opened))
        return proposeToPanels({keyword, choice});
    const ChangeResult result =
        m_opened->session->change(keyword, choice, PpdSession::Origin::Dialog);
    if (result.outcome == ChangeResult::Outcome::Accepted ||
        result.outcome == ChangeResult::Outcome::UnknownOption ||
        result.outcome == ChangeResult::Outcome::UnknownChoice)
        return; // taken; or no choice of this printer, which the session has logged
    sayRefusal({{keyword, choice}, result.conflicting, result.locked});
    showSettings(); // the page shows what the user picked
}

void PrintTask::setCopies(int copies)
{
    m_settings.askForCopies(copies, JobSettings::By::User);
    m_history->noteTouched(kCopiesSetting);
}

void PrintTask::setPageRanges(const QString &ranges)
{
    m_settings.setPageRanges(ranges);
    m_history->noteTouched(kPageRangesAttribute);
}

// A value that the panels keep themselves: the mark of the PPD would be nothing that they print.
void PrintTask::proposeToPanels(const JobOption &option)
{
    const OptionOutcome outcome =
        applyOptions({option}, *m_opened->session, m_opened->jobValues, *m_opened->panels);
    if (!outcome.ok() && isForPanelsToJudge({option.name, option.value}, *m_opened)) {
        TaskMessage message{TaskMessage::Kind::Problem,
                            refusalText({{option.name, option.value}, {}, {}}, *m_opened->session)};
        message.details = outcome.problems.join(u'\n');
        Q_EMIT said(message);
    } else if (!outcome.ok()) {
        say(TaskMessage::Kind::Problem, outcome.problems.join(u'\n'));
    }
    m_history->noteTouched(option.name);
    showSettings();
}

QList<OfferedAttribute> PrintTask::attributes() const
{
    QList<OfferedAttribute> offered = offeredAttributes(m_settings, *m_opened, printsTo());
    offered.removeIf([&](const OfferedAttribute &one) {
        return !passesFilesOn() && !hasEffectOn(m_request.documents, {one.name, one.value});
    });
    return offered;
}

QString PrintTask::setAttribute(const QString &name, const QString &value)
{
    bringUp();
    const JobAttribute *attribute = jobAttribute(name);
    if (!attribute)
        return tr("There is no job attribute of the name %1.").arg(name);
    const std::optional<QString> taken =
        value.isNull() ? QString() : attribute->allowed.inOneSpelling(value);
    if (const QString by = m_settings.lockedBy(name); !by.isNull()) {
        showSettings(); // the page shows what the user picked
        return taken == m_settings.attribute(name) ? QString() : lockedText(by);
    }
    const PrinterChoices own = choicesOfPrinter(name, taken.value_or(value), *m_opened);
    if (!own.choices.isEmpty()) {
        for (const OptionChoice &choice : own.choices)
            propose(choice.keyword, choice.choice);
        return {};
    }
    if (value.isNull() && !canBeNone(name, *m_opened))
        return tr("The queue “%1” sets this for every job that does not name it. Allowed: %2.")
            .arg(m_chosen.printer.name, allowedText(attribute->allowed));
    if (!taken)
        return tr("“%1” is not allowed. Allowed: %2.").arg(value, allowedText(attribute->allowed));
    if (own.isRefused)
        return tr("“%1” is not allowed. Allowed: %2.").arg(*taken, own.allowed);
    if (*taken == m_settings.attribute(name))
        return {};
    Q_EMIT unsaid();
    const JobSettings before = m_settings;
    m_settings.keepTakenAlong(name);
    m_settings.setAttribute(name, *taken, usualValueOf(name, m_settings.attributes(), *m_opened));
    const QList<OptionChoice> along = takeOrderAlong(before.attributes(), m_settings, *m_opened);
    // What is locked makes no room.
    const bool isOrder = name == kBookletAttribute || name == kRepeatAttribute;
    if (const QStringList problems = problemsOfOrder(m_settings, *m_opened->session);
        isOrder && !problems.isEmpty()) {
        m_settings = before;
        return problems.join(u'\n');
    }
    m_history->noteTouched(name);
    const JobSettings now = m_settings;
    for (const OptionChoice &choice : along)
        propose(choice.keyword, choice.choice);
    m_settings = now; // which of them nobody chose himself
    showSettings();
    return {};
}

void PrintTask::sayRefusal(const Refusal &refusal)
{
    TaskMessage message{TaskMessage::Kind::Problem, refusalText(refusal, *m_opened->session)};
    const QList<OptionChoice> wayOut = m_opened->session->wayOut(refusal.proposed);
    if (!wayOut.isEmpty()) {
        message.offer = wayOutText(wayOut, *m_opened->session);
        // The offer may outlive the printer that it was made for.
        const QPointer<PpdSession> session = m_opened->session.get();
        message.take = [this, session, wayOut, proposed = refusal.proposed] {
            if (session)
                takeWayOut(wayOut, proposed);
        };
    }
    Q_EMIT said(message);
}

// Does what the user would have done: makes room, then picks again what was refused, so that the
// panel's rules and instructions run as they do for any pick.
void PrintTask::takeWayOut(const QList<OptionChoice> &wayOut, const OptionChoice &proposed)
{
    Q_EMIT unsaid();
    PanelHost &panels = *m_opened->panels;
    m_opened->session->changeTogether(wayOut);
    panels.deliverPending();
    if (!panels.pick(proposed.keyword, proposed.choice))
        m_opened->session->changeTogether({proposed});
    panels.deliverPending();
    showSettings();
}

} // namespace corvana
