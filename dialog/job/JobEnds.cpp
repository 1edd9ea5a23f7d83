#include "dialog/job/JobEnds.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// All queues of it.
constexpr auto kServer = "ipp://localhost/"_L1;
// A program that crashes leaves its subscription behind for this long.
constexpr std::chrono::seconds kLease = 300s;

// One event of the answer. They stand one behind the other, without anything between them that
// every server sends.
struct Event
{
    int job = 0;
    JobStatus status;
};

void readInto(Event *event, ipp_attribute_t *attribute)
{
    const QLatin1StringView name(ippGetName(attribute));
    if (name == "notify-job-id"_L1)
        event->job = ippNumber(attribute);
    else if (name == "job-state"_L1)
        event->status.state = ippNumber(attribute);
    else if (name == "job-state-reasons"_L1)
        event->status.reasons = ippTexts(attribute);
    else if (name == "job-impressions-completed"_L1)
        event->status.pages = ippNumber(attribute);
    else if (name == "notify-printer-uri"_L1)
        event->status.queueUri = ippText(attribute);
    else if (name == "notify-text"_L1)
        event->status.message = ippText(attribute);
}

} // namespace

void JobEnds::remember(ServerConnection &connection)
{
    IppMessage request = newRequest(IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS);
    addIppKeywords(request.get(), IPP_TAG_SUBSCRIPTION, "notify-events", {"job-completed"});
    ippAddString(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-pull-method",
                 nullptr, "ippget");
    ippAddInteger(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-lease-duration",
                  static_cast<int>(kLease.count()));
    const ServerConnection::Aside aside(connection);
    const IppMessage response = connection.request(std::move(request));
    if (response)
        m_subscription =
            ippNumber(ippFindAttribute(response.get(), "notify-subscription-id", IPP_TAG_INTEGER));
    m_renewal = Clock::now() + kLease / 2;
}

void JobEnds::keepRemembering(ServerConnection &connection)
{
    if (m_subscription <= 0 || Clock::now() < m_renewal)
        return;
    m_renewal = Clock::now() + kLease / 2;
    IppMessage request = newRequest(IPP_OP_RENEW_SUBSCRIPTION);
    ippAddInteger(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-lease-duration",
                  static_cast<int>(kLease.count()));
    const ServerConnection::Aside aside(connection);
    connection.request(std::move(request));
}

std::optional<JobStatus> JobEnds::endOf(ServerConnection &connection, int job)
{
    if (m_subscription <= 0)
        return std::nullopt;
    IppMessage request = newIppRequest(IPP_OP_GET_NOTIFICATIONS, kServer);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-ids",
                  m_subscription);
    const ServerConnection::Aside aside(connection);
    const IppMessage response = connection.request(std::move(request));
    if (!response)
        return std::nullopt;
    Event event;
    std::optional<JobStatus> end;
    const auto take = [&] {
        if (event.job == job && event.status.isOver())
            end = event.status;
        event = {};
    };
    for (ipp_attribute_t *attribute = ippFirstAttribute(response.get()); attribute;
         attribute = ippNextAttribute(response.get())) {
        // Each event begins with this one.
        if (QLatin1StringView(ippGetName(attribute)) == "notify-subscription-id"_L1)
            take();
        readInto(&event, attribute);
    }
    take();
    // "Job completed." tells a person nothing, and a printer says nothing when all went well.
    if (end && end->state == IPP_JSTATE_COMPLETED)
        end->message.clear();
    return end;
}

void JobEnds::forget(ServerConnection &connection)
{
    if (m_subscription <= 0)
        return;
    const ServerConnection::Aside aside(connection);
    connection.request(newRequest(IPP_OP_CANCEL_SUBSCRIPTION));
    m_subscription = 0;
}

IppMessage JobEnds::newRequest(ipp_op_t operation) const
{
    IppMessage request = newIppRequest(operation, kServer);
    if (m_subscription > 0)
        ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-id",
                      m_subscription);
    return request;
}

} // namespace corvana
