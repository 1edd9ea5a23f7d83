#include "dialog/session/OptionTexts.h"

#include <QCoreApplication>
#include <QStringList>

#include "dialog/session/CustomValue.h"
#include "dialog/session/OptionNames.h"

namespace corvana {

using namespace Qt::StringLiterals;

QString optionText(ppd_file_t *ppd, const QString &name, const QString &value)
{
    const bool secret = ppdChoice(ppdOption(ppd, name), value) ? isSecretChoice(ppd, name, value)
                                                               : isSecret(ppd, name);
    return u"%1=%2"_s.arg(name, secret ? QString(kHiddenLength, u'•') : value);
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

QString groupTitle(const ppd_group_t &group)
{
    const QString name = ppdKeyword(group.name);
    const QString title = ppdText(group.text).value_or(name);
    if (title == "General"_L1)
        return QCoreApplication::translate("corvana::OptionsModel", "General");
    if (title == "Installable Options"_L1)
        return QCoreApplication::translate("corvana::OptionsModel", "Installable Options");
    return title;
}

QString choiceText(const ppd_choice_t &choice)
{
    return ppdText(choice.text).value_or(ppdKeyword(choice.choice));
}

} // namespace corvana
