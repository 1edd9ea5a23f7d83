#include "dialog/session/OptionLocks.h"

#include <QCoreApplication>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OptionLocks)
};

} // namespace

bool OptionLock::allows(const QString &mark) const
{
    // Panels say "Custom" of every custom value, and mean the one that is marked.
    return choice.isNull() || mark == choice ||
           (mark == kCustomChoice && choice.startsWith(kCustomPrefix));
}

QString lockedText(const QString &title, const QString &by)
{
    return Texts::tr("“%1” is set by your administrator (%2).").arg(title, by);
}

QString lockedText(const QString &keyword, const PpdSession &session)
{
    const ppd_option_t *option = ppdOption(session.ppd(), keyword);
    QString title = option ? ppdText(option->text).value_or(keyword) : keyword;
    if (keyword == kCopiesAttribute)
        title = QCoreApplication::translate("Summary", "Copies");
    else if (!option && jobAttribute(keyword))
        title = textOfJobAttribute({keyword, {}}).title;
    return lockedText(title, session.lockedBy(keyword));
}

QString lockedText(const QString &by)
{
    return Texts::tr("Set by your administrator (%1).").arg(by);
}

} // namespace corvana
