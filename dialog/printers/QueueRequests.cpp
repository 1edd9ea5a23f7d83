#include "dialog/printers/QueueRequests.h"

#include <array>

#include <QCoreApplication>
#include <QSet>

#include "dialog/driverless/QueueDefaults.h"
#include "dialog/printers/PpdCopy.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/printers/UserQueues.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(QueueRequests)
};

// Queues in one answer: few enough to come soon, enough that thousands need few round trips.
constexpr int kPage = 200;

const QList<const char *> kListed{"printer-name",
                                  "printer-info",
                                  "printer-location",
                                  "printer-make-and-model",
                                  "printer-state",
                                  "printer-state-message",
                                  "printer-state-reasons",
                                  "printer-is-accepting-jobs",
                                  "printer-type",
                                  "printer-uri-supported",
                                  "device-uri",
                                  "printer-config-change-time",
                                  "auth-info-required"};

// Without a PPD; sizes and margins of papers come only by their name.
const QList<const char *> kWhatAPrinterCan{"all", "media-col-database"};
// With any other name beside it, cupsd leaves out the defaults that an administrator has made up.
const QList<const char *> kEverythingOfAQueue{"all"};

PrinterState stateOf(int value)
{
    switch (value) {
    case IPP_PSTATE_IDLE:
        return PrinterState::Idle;
    case IPP_PSTATE_PROCESSING:
        return PrinterState::Processing;
    case IPP_PSTATE_STOPPED:
        return PrinterState::Stopped;
    default:
        return PrinterState::Unknown;
    }
}

QStringList withoutNone(QStringList keywords)
{
    keywords.removeAll("none"_L1);
    return keywords;
}

// The length of all texts of a printer, with what each takes beside that.
qsizetype lengthOf(const Printer &printer)
{
    constexpr qsizetype kBeside = 24;
    qsizetype length = 0;
    for (const QString &text :
         {printer.name, printer.description, printer.location, printer.makeAndModel,
          printer.stateMessage, printer.uri, printer.deviceUri})
        length += text.size() + kBeside;
    for (const QStringList &texts : {printer.stateReasons, printer.authInfo}) {
        for (const QString &text : texts)
            length += text.size() + kBeside;
    }
    return length;
}

// libcups escapes what a path must not have.
QByteArray ppdResource(const QString &queue)
{
    return "/printers/" + queue.toUtf8() + ".ppd";
}

IppMessage askPrinter(ServerConnection &connection, const Printer &printer,
                      const QList<const char *> &attributes)
{
    IppMessage request = newIppRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, printer.uri);
    addIppKeywords(request.get(), IPP_TAG_OPERATION, "requested-attributes", attributes);
    return connection.request(std::move(request), resourceOf(printer));
}

// A class prints with the options of its first member.
QString firstMember(ipp_t *response)
{
    return ippText(ippFindAttribute(response, "member-names", IPP_TAG_NAME));
}

// Always the whole one: whether it is the one that is here is known by its digest, and not by what
// a server says of dates.
void fetchPpd(ServerConnection &connection, const QString &owner, QueueDetails *details)
{
    const ServerConnection::File file = connection.get(ppdResource(owner));
    switch (file.state) {
    case ServerConnection::File::State::Failed:
        details->state = QueueDetails::Ppd::Unknown;
        details->problem = connection.problem();
        break;
    case ServerConnection::File::State::Missing:
        details->state = QueueDetails::Ppd::None;
        break;
    case ServerConnection::File::State::Read:
        details->state = QueueDetails::Ppd::Read;
        details->ppd = file.content;
        details->ppdHash = hashOfPpd(file.content);
        break;
    }
}

} // namespace

Printer printerOfAttributes(ipp_t *response, ipp_attribute_t **next)
{
    Printer printer;
    printer.origin = PrinterOrigin::Queue;
    ipp_attribute_t *attribute = *next;
    for (; attribute && ippGetGroupTag(attribute) == IPP_TAG_PRINTER;
         attribute = ippNextAttribute(response)) {
        const QLatin1StringView name(ippGetName(attribute));
        if (name == "printer-name"_L1)
            printer.name = ippText(attribute);
        else if (name == "printer-info"_L1)
            printer.description = ippText(attribute);
        else if (name == "printer-location"_L1)
            printer.location = ippText(attribute);
        else if (name == "printer-make-and-model"_L1)
            printer.makeAndModel = ippText(attribute);
        else if (name == "printer-state"_L1)
            printer.state = stateOf(ippNumber(attribute));
        else if (name == "printer-state-message"_L1)
            printer.stateMessage = ippText(attribute);
        else if (name == "printer-state-reasons"_L1)
            printer.stateReasons = withoutNone(ippTexts(attribute));
        else if (name == "printer-is-accepting-jobs"_L1)
            printer.accepting = ippTruth(attribute, true);
        else if (name == "printer-type"_L1)
            printer.isClass =
                (static_cast<unsigned>(ippNumber(attribute)) & CUPS_PRINTER_CLASS) != 0;
        else if (name == "printer-config-change-time"_L1)
            printer.configured = ippNumber(attribute);
        else if (name == "device-uri"_L1)
            printer.deviceUri = ippText(attribute);
        else if (name == "auth-info-required"_L1)
            printer.authInfo = withoutNone(ippTexts(attribute));
    }
    *next = attribute;
    // The URI that a server gives may lead to a name that only it knows.
    printer.uri = queueUri(printer.name, printer.isClass);
    if (printer.description.isEmpty())
        printer.description = printer.name;
    return printer;
}

bool listQueues(ServerConnection &connection,
                const std::function<void(const QList<Printer> &)> &found, const QueueBounds &bounds)
{
    QSet<QString> known;
    QString last;
    qsizetype length = 0;
    for (;;) {
        IppMessage request = newIppRequest(IPP_OP_CUPS_GET_PRINTERS);
        ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "limit", kPage);
        if (!last.isEmpty())
            addIppString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "first-printer-name",
                         last);
        addIppKeywords(request.get(), IPP_TAG_OPERATION, "requested-attributes", kListed);
        const IppMessage response = connection.request(std::move(request));
        if (!response) {
            // A server without a single queue says that it has found nothing.
            if (connection.problem().kind == ServerProblem::Kind::NotFound && known.isEmpty()) {
                found({});
                return true;
            }
            return false;
        }
        QList<Printer> page;
        int answered = 0;
        for (ipp_attribute_t *next = ippFirstAttribute(response.get()); next;) {
            if (ippGetGroupTag(next) != IPP_TAG_PRINTER) {
                next = ippNextAttribute(response.get());
                continue;
            }
            const Printer printer = printerOfAttributes(response.get(), &next);
            ++answered;
            // A page begins with the last queue of the one before.
            if (!printer.name.isEmpty() && !known.contains(printer.name)) {
                known += printer.name;
                page += printer;
                length += lengthOf(printer);
            }
        }
        if (!page.isEmpty() || last.isEmpty())
            found(page);
        if (answered < kPage || page.isEmpty())
            return true;
        const bool areTooMany = known.size() >= bounds.queues;
        if (areTooMany || length > bounds.texts) {
            connection.restore(
                {ServerProblem::Kind::TooLarge,
                 areTooMany ? Texts::tr("more than %L1 printers").arg(bounds.queues)
                            : Texts::tr("printers with more than %L1 characters in their texts")
                                  .arg(bounds.texts)});
            return false;
        }
        last = page.constLast().name;
    }
}

QString defaultQueue(ServerConnection &connection)
{
    IppMessage request = newIppRequest(IPP_OP_CUPS_GET_DEFAULT);
    addIppKeywords(request.get(), IPP_TAG_OPERATION, "requested-attributes", {"printer-name"});
    const IppMessage response = connection.request(std::move(request));
    return response ? ippText(ippFindAttribute(response.get(), "printer-name", IPP_TAG_NAME))
                    : QString();
}

QueueDetails inspectQueue(ServerConnection &connection, const Printer &printer)
{
    QueueDetails details;
    details.printer = printer;
    const bool isDevice = printer.origin == PrinterOrigin::Device;
    IppMessage response =
        askPrinter(connection, printer, isDevice ? kWhatAPrinterCan : kEverythingOfAQueue);
    if (!response) {
        details.problem = connection.problem();
        return details;
    }
    ipp_attribute_t *next = ippFirstAttribute(response.get());
    while (next && ippGetGroupTag(next) != IPP_TAG_PRINTER)
        next = ippNextAttribute(response.get());
    Printer now = printerOfAttributes(response.get(), &next);
    // What the dialog knows it by: an instance, or a printer's own address; in the spelling that
    // the server's answers about jobs have, whatever somebody typed.
    if (printer.origin == PrinterOrigin::Queue &&
        isSameQueue(queueOfInstance(printer.name), now.name))
        now.name += printer.name.mid(now.name.size());
    else
        now.name = printer.name;
    now.uri = printer.uri;
    now.origin = printer.origin;
    now.isDefault = printer.isDefault;
    now.modelNumber = printer.modelNumber;
    if (now.description.isEmpty())
        now.description = printer.description.isEmpty() ? printer.name : printer.description;
    details.printer = now;
    // Here, not where it is used: an answer may be so long that reading it, and letting go of it,
    // would be seen in a window.
    const auto readCapabilities = [&] {
        details.capabilities =
            std::make_shared<const PrinterCapabilities>(capabilitiesOf(response.get()));
    };
    if (isDevice) {
        details.state = QueueDetails::Ppd::None;
        readCapabilities();
        return details;
    }
    details.defaults = queueDefaults(response.get());
    fetchPpd(connection, now.isClass ? firstMember(response.get()) : queueOfInstance(printer.name),
             &details);
    if (details.state != QueueDetails::Ppd::None)
        return details;
    if (!isRawQueue(response.get()))
        response = askPrinter(connection, printer, kWhatAPrinterCan);
    if (response) {
        readCapabilities();
    } else {
        details.state = QueueDetails::Ppd::Unknown;
        details.problem = connection.problem();
    }
    return details;
}

QueueDetails fetchPpdOnly(ServerConnection &connection, const Printer &printer)
{
    QueueDetails details;
    details.printer = printer;
    if (!printer.isClass) {
        fetchPpd(connection, queueOfInstance(printer.name), &details);
        if (details.state != QueueDetails::Ppd::None)
            return details;
    }
    // A class, which nobody may have known it to be, or a queue that is not there.
    const IppMessage response = askPrinter(connection, printer, {"printer-name", "member-names"});
    if (!response) {
        details.state = QueueDetails::Ppd::Unknown;
        details.problem = connection.problem();
        return details;
    }
    details.state = QueueDetails::Ppd::None;
    if (const QString member = firstMember(response.get()); !member.isEmpty())
        fetchPpd(connection, member, &details);
    return details;
}

std::optional<QList<JobOption>> fetchDefaults(ServerConnection &connection, const Printer &printer)
{
    const IppMessage response = askPrinter(connection, printer, kEverythingOfAQueue);
    return response ? std::optional(queueDefaults(response.get())) : std::nullopt;
}

std::optional<bool> fetchWhetherRaw(ServerConnection &connection, const Printer &printer)
{
    const ServerConnection::Aside aside(connection);
    const IppMessage response =
        askPrinter(connection, printer, {"printer-type", "printer-make-and-model"});
    return response ? std::optional(isRawQueue(response.get())) : std::nullopt;
}

QByteArray resourceOf(const Printer &printer)
{
    std::array<char, HTTP_MAX_URI> scheme{};
    std::array<char, HTTP_MAX_URI> user{};
    std::array<char, HTTP_MAX_URI> host{};
    std::array<char, HTTP_MAX_URI> resource{};
    int port = 0;
    if (httpSeparateURI(HTTP_URI_CODING_ALL, printer.uri.toUtf8().constData(), scheme.data(),
                        static_cast<int>(scheme.size()), user.data(), static_cast<int>(user.size()),
                        host.data(), static_cast<int>(host.size()), &port, resource.data(),
                        static_cast<int>(resource.size())) < HTTP_URI_STATUS_OK)
        return "/";
    return resource.data();
}

} // namespace corvana
