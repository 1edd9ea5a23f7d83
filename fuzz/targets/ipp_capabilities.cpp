#include <cups/cups.h>

#include "dialog/driverless/CapabilityOptions.h"
#include "dialog/driverless/CapabilityPpd.h"
#include "dialog/driverless/QueueDefaults.h"
#include "dialog/driverless/StandardJobOptions.h"
#include "dialog/printers/QueueRequests.h"
#include "dialog/session/JobTicket.h"
#include "fuzz/support/IppInput.h"
#include "fuzz/support/Sessions.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

bool isInMediaDetails(const QList<JobOption> &options, const QString &value)
{
    for (const JobOption &option : options) {
        if (option.name == "media-col"_L1 && option.value.contains(value))
            return true;
    }
    return false;
}

// A choice of the PPD is said in the printer's own words, or not at all.
void requireWayBack(const PrinterCapabilities &printer, const CapabilityOption &option,
                    const CapabilityChoice &choice)
{
    const QString keyword = QString::fromLatin1(option.keyword);
    const QString name = QString::fromLatin1(option.attribute);
    const QList<JobOption> job =
        standardJobOptions({{keyword, QString::fromLatin1(choice.keyword)}}, printer);
    for (const JobOption &said : job) {
        require(said.name != keyword, "no option of the PPD reaches a printer that has none",
                keyword);
        require(!said.value.isEmpty(), "an attribute has a value", said.name);
    }
    if (choice.value.isEmpty() || job.isEmpty())
        return;
    require(job.contains(JobOption{name, choice.value}) || isInMediaDetails(job, choice.value) ||
                isInMediaDetails(job, u"media-size"_s),
            "a choice is said as the printer lists it", name + u'=' + choice.value);
}

void requirePpdSays(const PrinterCapabilities &printer, const PpdSession &session)
{
    for (const CapabilityOption &option : capabilityOptions(printer)) {
        const QString keyword = QString::fromLatin1(option.keyword);
        ppd_option_t *found = ppdOption(session.ppd(), keyword);
        require(found, "each option is in the PPD", keyword);
        for (const CapabilityChoice &choice : option.choices) {
            const QString name = QString::fromLatin1(choice.keyword);
            require(choice.keyword.size() <= 40 && ppdChoice(found, name),
                    "each choice is in the PPD", keyword + u'=' + name);
            requireWayBack(printer, option, choice);
        }
        require(session.markedChoice(keyword) ==
                    QString::fromLatin1(option.choices.at(option.usual).keyword),
                "what is usual is marked", keyword);
    }
}

// A whole job, and one on a paper of its own size, is said without an option of the PPD.
void requireJobIsStandard(const PrinterCapabilities &printer, const PpdSession &session)
{
    QList<JobOption> job = jobOptions(session, nullptr, {{u"number-up"_s, u"2"_s}});
    for (int i = 0; i < 2; ++i) {
        const QList<JobOption> said = standardJobOptions(job, printer);
        require(said.contains(JobOption{u"number-up"_s, u"2"_s}),
                "what is no option of the PPD's stays");
        int papers = 0;
        for (const JobOption &option : said) {
            require(!ppdOption(session.ppd(), option.name), "no option of the PPD is said",
                    option.name);
            papers += option.name == "media"_L1 || option.name == "media-col"_L1;
        }
        require(papers <= 1, "a job has one paper");
        job.prepend({u"PageSize"_s, u"Custom.300x500"_s});
    }
}

// Whatever a server adds, a job can say as well.
void requireDefaultsAreOptions(ipp_t *message)
{
    for (const JobOption &option : queueDefaults(message)) {
        require(!option.name.isEmpty() && !option.name.contains(u' ') &&
                    !option.name.contains(u'='),
                "the default of a queue is an option of a job", option.name);
    }
    isRawQueue(message);
}

void requireListed(ipp_t *message)
{
    ipp_attribute_t *next = ippFirstAttribute(message);
    while (next) {
        const Printer printer = printerOfAttributes(message, &next);
        const QStringList texts{printer.name, printer.description, printer.location,
                                printer.makeAndModel, printer.stateMessage};
        for (const QString &text : texts + printer.stateReasons + printer.authInfo)
            require(!text.contains(u'\n') && !text.contains(QChar(0x1b)),
                    "a text of a printer's is one line without control characters", text);
        if (next)
            next = ippNextAttribute(message);
    }
}

/// Input: an IPP answer, its bytes. What passes the bounds and libcups becomes capabilities; those
/// become the same PPD each time, which opens, has every choice, and has its usual choices marked;
/// each choice goes back to the printer in the printer's own words; and the session of that PPD
/// keeps the promises of all sessions.
void run(const QByteArray &input)
{
    const IppMessage message = ippMessageOf(input);
    if (!message)
        return;
    requireDefaultsAreOptions(message.get());
    requireListed(message.get());
    const PrinterCapabilities printer = capabilitiesOf(message.get());
    const QByteArray ppd = ppdOfCapabilities(printer);
    require(ppd == ppdOfCapabilities(printer), "a printer has the same PPD each time");
    const std::unique_ptr<PpdSession> session = sessionOf(ppd);
    require(session != nullptr, "the PPD that was written opens", QString::fromUtf8(ppd));
    requirePpdSays(printer, *session);
    requireJobIsStandard(printer, *session);
    requireMarksAreEntries(*session);
    requireChoicesArePrintable(*session, input);
}

const Target target("ipp_capabilities", run);

} // namespace

} // namespace corvana::fuzz
