#include "dialog/session/OptionValues.h"

#include <algorithm>

#include "dialog/session/CustomValue.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/Summary.h"

namespace corvana {

OptionValues::OptionValues(const PpdSession &session, const PDEJobValues *jobValues)
    : m_session(&session), m_jobValues(jobValues)
{
    refresh();
}

void OptionValues::refresh()
{
    if (m_jobValues)
        m_own = m_jobValues->jobOptions(m_session->printSettings(), m_session->ppd());
}

QString OptionValues::own(const QString &keyword) const
{
    const auto found = std::find_if(m_own.cbegin(), m_own.cend(), [&](const JobOption &option) {
        return option.name == keyword;
    });
    return found == m_own.cend() ? QString() : found->value;
}

OptionValues::Value OptionValues::of(const QString &keyword) const
{
    const QString own = this->own(keyword);
    if (own.isNull())
        return {m_session->markedChoice(keyword), m_session->customValue(keyword)};
    if (ppdChoice(ppdOption(m_session->ppd(), keyword), own))
        return {own, {}};
    return {kCustomChoice, own.startsWith(kCustomPrefix) ? own : kCustomPrefix + own};
}

QString OptionValues::text(const QString &keyword) const
{
    if (own(keyword).isNull())
        return optionLine(*m_session, keyword).value;
    const Value value = of(keyword);
    if (!value.custom.isNull())
        return customText(*m_session, keyword, value.custom);
    const ppd_choice_t *choice = ppdChoice(ppdOption(m_session->ppd(), keyword), value.choice);
    return choice ? ppdText(choice->text).value_or(value.choice) : value.choice;
}

bool OptionValues::differsFromDefault(const QString &keyword) const
{
    if (own(keyword).isNull())
        return m_session->differsFromDefault(keyword);
    const ppd_option_t *option = ppdOption(m_session->ppd(), keyword);
    const Value value = of(keyword);
    return option &&
           (value.custom.isNull() ? value.choice : value.custom) != ppdKeyword(option->defchoice);
}

bool isValueOfPanels(const JobOption &option, const PpdSession &session,
                     const PDEJobValues *jobValues)
{
    if (!jobValues)
        return false;
    PrintSettings tried;
    tried.setEntries(session.printSettings().entries());
    return jobValues->takeJobOption(option, tried, session.ppd()).outcome !=
           JobValueClaim::Outcome::NotMine;
}

} // namespace corvana
