#include "dialog/task/RefusalText.h"

#include <QCoreApplication>

#include "dialog/session/ChoiceCodes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/Summary.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RefusalText)
};

QString textOf(const OptionChoice &choice, const PpdSession &session)
{
    ppd_option_t *option = ppdOption(session.ppd(), choice.keyword);
    // A marked choice is "Custom" and nothing else; what is proposed says its value itself.
    const QString marked = session.customValue(choice.keyword);
    const QString custom =
        choice.choice == kCustomChoice && !marked.isNull() ? marked : choice.choice;
    const ppd_choice_t *found = ppdChoice(option, choice.choice);
    QString value = found ? ppdText(found->text).value_or(choice.choice) : choice.choice;
    if (custom.startsWith(kCustomPrefix))
        value = customText(session, choice.keyword, custom);
    return Texts::tr("“%1: %2”")
        .arg(option ? ppdText(option->text).value_or(choice.keyword) : choice.keyword, value);
}

QString textOf(const QList<OptionChoice> &choices, const PpdSession &session)
{
    QStringList texts;
    for (const OptionChoice &choice : choices)
        texts += textOf(choice, session);
    return texts.join(Texts::tr(" and "));
}

} // namespace

QString choiceText(const OptionChoice &choice, const PpdSession &session)
{
    return textOf(choice, session);
}

QString refusalText(const Refusal &refusal, const PpdSession &session)
{
    if (!refusal.locked.keyword.isNull())
        return lockedText(refusal.locked.keyword, session);
    if (const OptionChoice &choice = refusal.proposed;
        refusal.conflicting.isEmpty() && !canBeSent(session.ppd(), choice.keyword, choice.choice))
        return notSentText(textOf(choice, session));
    if (refusal.conflicting.isEmpty())
        return Texts::tr("The printer's options cannot be set to %1.")
            .arg(textOf(refusal.proposed, session));
    QString text =
        Texts::tr("%1 cannot be combined with %2.")
            .arg(textOf(refusal.proposed, session), textOf(refusal.conflicting, session));
    for (const OptionChoice &other : refusal.conflicting) {
        if (session.locks().contains(other.keyword))
            text += u'\n' + lockedText(other.keyword, session);
    }
    return text;
}

QString wayOutText(const QList<OptionChoice> &wayOut, const PpdSession &session)
{
    return Texts::tr("Change to %1").arg(textOf(wayOut, session));
}

QString lostText(const QStringList &lost)
{
    return QCoreApplication::translate("corvana::PrintTask",
                                       "Not everything could be set as before:\n%1")
        .arg(lost.join(u'\n'));
}

QString noPagesText(const QString &typed)
{
    return QCoreApplication::translate("corvana::PrintTask",
                                       "“%1” are no pages. Pages and ranges in ascending order "
                                       "were expected, such as 1-4, 7, 9-.")
        .arg(typed);
}

} // namespace corvana
