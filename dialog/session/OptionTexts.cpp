#include "dialog/session/OptionTexts.h"

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

} // namespace corvana
