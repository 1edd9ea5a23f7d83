#include "dialog/job/JobRequests.h"

#include <algorithm>

#include <QCoreApplication>
#include <QIODevice>
#include <QUrl>
#include <QUuid>

#include "dialog/printers/PrinterId.h"
#include "dialog/printers/QueueRequests.h"
#include "dialog/printers/UserQueues.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// IPP's limit for names and keywords, which CUPS applies to options of printers. Units: bytes.
constexpr qsizetype kLongestValue = 255;

// Servers keep attributes that they do not know, and printers ignore them. A URI is none of the
// options that CUPS hands to filters, so that what is printed does not depend on it.
constexpr auto kTokenAttribute = "corvana-job-token";
constexpr ipp_tag_t kTokenType = IPP_TAG_URI;

// As many bytes as a name may have, without a character cut in two.
QString withinLimit(QString text)
{
    while (text.toUtf8().size() > kLongestValue)
        text.chop(text.back().isLowSurrogate() ? 2 : 1);
    return text;
}

bool hasControlCharacter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c.category() == QChar::Other_Control; });
}

void addJob(ipp_t *request, int job)
{
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
}

// In the order in which the device wants them.
void addAuthInfo(ipp_t *request, const Printer &printer, const Credentials &forDevice)
{
    QList<QByteArray> values;
    for (const QString &wanted : printer.authInfo) {
        if (wanted == "username"_L1)
            values += forDevice.user.toUtf8();
        else if (wanted == "password"_L1)
            values += forDevice.password.toUtf8();
        else
            values += QByteArray();
    }
    QList<const char *> pointers;
    for (const QByteArray &value : std::as_const(values))
        pointers += value.constData();
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_TEXT, "auth-info",
                  static_cast<int>(pointers.size()), nullptr, pointers.constData());
}

// A job that comes to a queue which is stopped already says nothing of it.
void noteStoppedPrinter(ServerConnection &connection, const Printer &printer, JobStatus *status)
{
    IppMessage request = newIppRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, printer.uri);
    addIppKeywords(request.get(), IPP_TAG_OPERATION, "requested-attributes",
                   {"printer-state", "printer-state-message"});
    const IppMessage response = connection.request(std::move(request), resourceOf(printer));
    if (!response || ippNumber(ippFindAttribute(response.get(), "printer-state", IPP_TAG_ZERO)) !=
                         IPP_PSTATE_STOPPED)
        return;
    status->printerStopped = true;
    status->reasons.removeAll("none"_L1);
    if (!status->reasons.contains("printer-stopped"_L1))
        status->reasons += u"printer-stopped"_s;
    if (status->message.isEmpty())
        status->message =
            ippText(ippFindAttribute(response.get(), "printer-state-message", IPP_TAG_ZERO));
}

class Options
{
public:
    ~Options() { cupsFreeOptions(m_count, m_options); }
    Options() = default;
    Options(const Options &) = delete;
    Options &operator=(const Options &) = delete;
    void add(const QString &name, const QString &value)
    {
        m_count = cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), m_count,
                                &m_options);
    }
    void encode(ipp_t *request, ipp_tag_t group) const
    {
        cupsEncodeOptions2(request, m_count, m_options, group);
    }

private:
    int m_count = 0;
    cups_option_t *m_options = nullptr;
};

} // namespace

QString unsendableOption(const JobTicket &ticket)
{
    for (const JobOption &option : ticket.options) {
        const bool fits = option.name.toUtf8().size() <= kLongestValue &&
                          option.value.toUtf8().size() <= kLongestValue;
        // The only value in braces that is sent as a collection, not as a text.
        const bool isCollection = option.name == "media-col"_L1;
        const bool clean = !hasControlCharacter(option.name + option.value) &&
                           (isCollection || !option.value.startsWith(u'{'));
        if (!fits)
            return QCoreApplication::translate("JobRequests",
                                               "The value of “%1” is too long for a print server; "
                                               "at most %2 bytes can be sent.")
                .arg(option.name, QString::number(kLongestValue));
        if (!clean)
            return QCoreApplication::translate(
                       "JobRequests", "The value of “%1” has characters that a print server would "
                                      "drop: no line breaks, no “{” in front.")
                .arg(option.name);
    }
    return {};
}

QString newJobToken()
{
    return u"urn:uuid:"_s + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

std::optional<int> createJob(ServerConnection &connection, const Printer &printer,
                             const JobTicket &ticket, const QString &token,
                             const std::optional<Credentials> &forDevice)
{
    IppMessage request = newIppRequest(IPP_OP_CREATE_JOB, printer.uri);
    addIppString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name",
                 withinLimit(shownText(ticket.title.toUtf8().constData())));
    Options options;
    for (const JobOption &option : ticket.options)
        options.add(option.name, option.value);
    options.add(u"copies"_s, QString::number(ticket.copies));
    options.encode(request.get(), IPP_TAG_OPERATION);
    if (forDevice)
        addAuthInfo(request.get(), printer, *forDevice);
    options.encode(request.get(), IPP_TAG_JOB);
    addIppString(request.get(), IPP_TAG_JOB, kTokenType, kTokenAttribute, token);
    const IppMessage response = connection.request(std::move(request), resourceOf(printer));
    if (!response)
        return std::nullopt;
    const int job = ippNumber(ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER));
    return job > 0 ? std::optional(job) : std::nullopt;
}

std::optional<int> findJob(ServerConnection &connection, const Printer &printer,
                           const QString &token)
{
    IppMessage request = newIppRequest(IPP_OP_GET_JOBS, printer.uri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr,
                 "not-completed");
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
    addIppKeywords(request.get(), IPP_TAG_OPERATION, "requested-attributes",
                   {"job-id", kTokenAttribute});
    const IppMessage response = connection.request(std::move(request), resourceOf(printer));
    if (!response)
        return std::nullopt;
    int job = 0;
    bool isOurs = false;
    for (ipp_attribute_t *attribute = ippFirstAttribute(response.get()); attribute;
         attribute = ippNextAttribute(response.get())) {
        // What has no name stands between two jobs.
        const QLatin1StringView name(ippGetName(attribute));
        if (name.isEmpty()) {
            job = 0;
            isOurs = false;
        } else if (name == "job-id"_L1) {
            job = ippNumber(attribute);
        } else if (name == QLatin1StringView(kTokenAttribute)) {
            isOurs = ippText(attribute) == token;
        }
        if (isOurs && job > 0)
            return job;
    }
    return 0;
}

bool sendDocument(ServerConnection &connection, const Printer &printer, int job,
                  const DocumentToSend &document, const std::function<void(qint64 sent)> &progress)
{
    IppMessage request = newIppRequest(IPP_OP_SEND_DOCUMENT, printer.uri);
    addJob(request.get(), job);
    addIppString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name",
                 withinLimit(shownText(document.title.toUtf8().constData())));
    addIppString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format",
                 document.format);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", document.isLast ? 1 : 0);
    return connection.request(std::move(request), resourceOf(printer), document.content,
                              progress) != nullptr;
}

std::optional<JobStatus> lookUpJob(ServerConnection &connection, const Printer &printer, int job)
{
    IppMessage request = newIppRequest(IPP_OP_GET_JOB_ATTRIBUTES, printer.uri);
    addJob(request.get(), job);
    addIppKeywords(request.get(), IPP_TAG_OPERATION, "requested-attributes",
                   {"job-id", "job-state", "job-state-reasons", "job-printer-state-message",
                    "job-printer-state-reasons", "job-state-message", "job-media-sheets-completed",
                    "job-impressions-completed", "number-of-documents", "time-at-processing",
                    "job-printer-uri"});
    const IppMessage response = connection.request(std::move(request), resourceOf(printer));
    if (!response)
        return std::nullopt;
    const auto find = [&](const char *name) {
        return ippFindAttribute(response.get(), name, IPP_TAG_ZERO);
    };
    JobStatus status;
    status.state = ippNumber(find("job-state"));
    status.pages = std::max(ippNumber(find("job-impressions-completed")),
                            ippNumber(find("job-media-sheets-completed")));
    // A time that has not come is said with a type of its own.
    ipp_attribute_t *processing = find("time-at-processing");
    status.begun = !processing || ippGetValueTag(processing) == IPP_TAG_INTEGER;
    status.documents = ippNumber(find("number-of-documents"), -1);
    status.reasons = ippTexts(find("job-state-reasons"));
    status.queueUri = ippText(find("job-printer-uri"));
    status.message = ippText(find("job-printer-state-message"));
    if (status.message.isEmpty())
        status.message = ippText(find("job-state-message"));
    status.printerStopped = status.reasons.contains("printer-stopped"_L1);
    if (status.state == IPP_JSTATE_PENDING)
        noteStoppedPrinter(connection, printer, &status);
    return status;
}

std::optional<Printer> movedTo(const JobStatus &status, const Printer &printer)
{
    // "…/printers/NAME" or "…/classes/NAME", with what the name needs escaped.
    const QString path = QUrl(status.queueUri).path(QUrl::FullyDecoded);
    const QString name = path.section(u'/', -1);
    const bool isClass = path.startsWith("/classes/"_L1);
    if (printer.origin != PrinterOrigin::Queue || name.isEmpty() ||
        (!isClass && !path.startsWith("/printers/"_L1)) ||
        isSameQueue(name, queueOfInstance(printer.name)))
        return std::nullopt;
    Printer other;
    other.origin = PrinterOrigin::Queue;
    other.name = name;
    other.isClass = isClass;
    other.uri = queueUri(name, isClass);
    return other;
}

QString whyNotAccepting(ServerConnection &connection, const Printer &printer)
{
    IppMessage request = newIppRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, printer.uri);
    addIppKeywords(request.get(), IPP_TAG_OPERATION, "requested-attributes",
                   {"printer-state-message"});
    const ServerConnection::Aside aside(connection);
    const IppMessage response = connection.request(std::move(request), resourceOf(printer));
    if (!response)
        return {};
    const QString reason =
        ippText(ippFindAttribute(response.get(), "printer-state-message", IPP_TAG_ZERO));
    // What CUPS says where its administrator has said nothing.
    return reason == "Rejecting Jobs"_L1 ? QString() : reason;
}

bool authenticateJob(ServerConnection &connection, const Printer &printer, int job,
                     const Credentials &forDevice)
{
    IppMessage request = newIppRequest(IPP_OP_CUPS_AUTHENTICATE_JOB, printer.uri);
    addJob(request.get(), job);
    addAuthInfo(request.get(), printer, forDevice);
    return connection.request(std::move(request), "/jobs/") != nullptr;
}

bool cancelJob(ServerConnection &connection, const Printer &printer, int job)
{
    IppMessage request = newIppRequest(IPP_OP_CANCEL_JOB, printer.uri);
    addJob(request.get(), job);
    return connection.request(std::move(request), "/jobs/") != nullptr;
}

} // namespace corvana
