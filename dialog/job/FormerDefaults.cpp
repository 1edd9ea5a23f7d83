#include "dialog/job/FormerDefaults.h"

#include <algorithm>

#include "dialog/job/Handover.h"
#include "dialog/printers/QueueRequests.h"
#include "dialog/session/JobAttributes.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

const JobOption *find(const QString &name, const QList<JobOption> &options)
{
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [&](const JobOption &option) { return option.name == name; });
    return found == options.cend() ? nullptr : &*found;
}

QString usualValueOf(const QString &name)
{
    if (const QString nothing = valueThatAsksForNothing(name); !nothing.isNull())
        return nothing;
    const JobAttribute *attribute = jobAttribute(name);
    return attribute ? QString(attribute->usual) : QString();
}

} // namespace

QString valueThatAsksForNothing(const QString &name)
{
    static constexpr struct
    {
        QLatin1StringView name;
        QLatin1StringView value;
    } kNothing[] = {
        {"page-ranges"_L1, "1-"_L1},
        {"print-color-mode"_L1, "color"_L1},
        {"print-quality"_L1, "4"_L1},
    };
    for (const auto &nothing : kNothing) {
        if (name == nothing.name)
            return nothing.value;
    }
    return {};
}

QList<JobOption> answersOfBefore(const QList<JobOption> &now, const QList<JobOption> &before,
                                 const QList<JobOption> &options)
{
    QList<JobOption> answers;
    for (const JobOption &option : now) {
        if (find(option.name, options) || before.contains(option))
            continue;
        const JobOption *former = find(option.name, before);
        const QString value = former ? former->value : usualValueOf(option.name);
        if (!value.isEmpty())
            answers += JobOption{option.name, value};
    }
    return answers;
}

JobTicket ticketToSend(const ServerJobRequest &request, ServerConnection &connection)
{
    JobTicket ticket = request.ticket;
    if (!request.goesOn || request.printer.origin != PrinterOrigin::Queue)
        return ticket;
    // A server that does not say is asked for the job next, and says then what is wrong.
    const QList<JobOption> now =
        fetchDefaults(connection, request.printer).value_or(QList<JobOption>());
    ticket.options +=
        answersOfBefore(now, request.defaults.value_or(QList<JobOption>()), ticket.options);
    return ticket;
}

} // namespace corvana
