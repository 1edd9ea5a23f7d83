#include "dialog/session/JobTicket.h"

#include <QLoggingCategory>

#include "dialog/session/PpdSession.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcTicket, "corvana.dialog.ticket", QtWarningMsg)

QList<JobOption> jobOptions(const PpdSession &session, const PDEJobValues *jobValues,
                            const QList<JobOption> &attributes)
{
    QList<JobOption> own;
    if (jobValues)
        own = jobValues->jobOptions(session.printSettings(), session.ppd());
    const auto replaced = [&own](const QString &keyword) {
        return std::any_of(own.cbegin(), own.cend(),
                           [&](const JobOption &option) { return option.name == keyword; });
    };
    QList<JobOption> options;
    for (const ppd_option_t *option : session.options()) {
        const QString keyword = ppdKeyword(option->keyword);
        const QString marked = session.markedChoice(keyword);
        if (marked.isNull() || replaced(keyword))
            continue;
        const QString custom = session.customValue(keyword);
        if (marked == QLatin1StringView("Custom") && custom.isNull()) {
            // Without its number the choice would reach the printer as some number of chance.
            qCWarning(lcTicket) << keyword << "is custom, but nobody gave it a value";
            continue;
        }
        options += JobOption{keyword, custom.isNull() ? marked : custom};
    }
    return options + own + attributes;
}

} // namespace corvana
