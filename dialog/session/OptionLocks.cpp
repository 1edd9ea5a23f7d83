#include "dialog/session/OptionLocks.h"

#include <QCoreApplication>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/SameMeaning.h"

namespace corvana {

using namespace Qt::StringLiterals;

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

bool OptionLock::isKeptBy(const QString &keyword, const QString &mark) const
{
    // libcups takes this mark away with each tray, and pages are not fed by hand then either.
    const bool isOffAnyway = keyword == kManualFeedOption && mark.isNull() &&
                             choice.compare("False"_L1, Qt::CaseInsensitive) == 0;
    return choice.isNull() || mark == choice || isOffAnyway;
}

bool OptionLock::allowsAttribute(const JobOption &attribute) const
{
    return value == attribute.value || (value.isNull() && leavesAsItIs(attribute, asked));
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
