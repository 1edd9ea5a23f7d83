#include "dialog/task/Collation.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/TwoSided.h"
#include "dialog/task/OpenedPrinter.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Collation)
};

const JobOption kNotCollated{kCollateAttribute, u"false"_s};

bool isTwoSided(const PpdSession &session)
{
    const QList<ppd_option_t *> options = session.options();
    return std::any_of(options.cbegin(), options.cend(), [&](const ppd_option_t *option) {
        const QString keyword = ppdKeyword(option->keyword);
        return isTwoSidedChoice({keyword, session.markedChoice(keyword)});
    });
}

} // namespace

bool isNameOfCollation(const QString &name)
{
    return name.compare(kCollateAttribute, Qt::CaseInsensitive) == 0 || name == kHandlingAttribute;
}

JobOption collationUnderNameOf(const JobOption &byQueue, const QList<JobOption> &attributes,
                               const PpdSession &session)
{
    const bool collated = isCollated(session, attributes);
    if (byQueue.name == kHandlingAttribute)
        return {byQueue.name, collated ? kCollated : kUncollated};
    return {byQueue.name, collated ? u"true"_s : u"false"_s};
}

bool areCopiesAlwaysCollated(const OpenedPrinter &printer, PrintsTo to)
{
    const bool passesFilters = to == PrintsTo::File || !printer.fetched.capabilities;
    return passesFilters && printer.session->ppd()->manual_copies && isTwoSided(*printer.session);
}

QList<JobOption> asCopiesComeOut(QList<JobOption> attributes, const OpenedPrinter &printer,
                                 PrintsTo to)
{
    if (!areCopiesAlwaysCollated(printer, to))
        return attributes;
    for (JobOption &attribute : attributes) {
        if (attribute == kNotCollated)
            attribute.value = u"true"_s;
    }
    return attributes;
}

QHash<QString, QString> remarksOnCopies(const QList<JobOption> &asked, const OpenedPrinter &printer,
                                        PrintsTo to)
{
    if (!asked.contains(kNotCollated) || !areCopiesAlwaysCollated(printer, to))
        return {};
    return {{kCollateAttribute, Texts::tr("two-sided copies are always collated on this printer")}};
}

} // namespace corvana
