#include "tests/support/cups/Client.h"

namespace corvana::test {

namespace {

constexpr int timeOut = 10; // seconds

/// The connection of one waiting for an answer is given up, so that a test ends.
int giveUp(http_t *, void *)
{
    return 0;
}

/// A request about a queue. Classes are found under this name as well.
ipp_t *queueRequest(ipp_op_t operation, const QString &queue)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 ("ipp://localhost/printers/" + queue.toUtf8()).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

} // namespace

Client::Client(const QString &server, http_encryption_t encryption)
    : m_http(httpConnect2(server.section(u':', 0, 0).toUtf8().constData(),
                          server.section(u':', 1).toInt(), nullptr, AF_UNSPEC, encryption, 1,
                          timeOut * 1000, nullptr),
             httpClose)
{
    if (m_http)
        httpSetTimeout(m_http.get(), timeOut, giveUp, nullptr);
}

int Client::print(const QString &queue, const QByteArray &document, const QByteArray &format,
                  const Options &options)
{
    ipp_t *creation = queueRequest(IPP_OP_CREATE_JOB, queue);
    ippAddString(creation, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, "A job");
    cups_option_t *list = nullptr;
    int count = 0;
    for (const auto &[name, value] : options)
        count = cupsAddOption(name.constData(), value.constData(), count, &list);
    cupsEncodeOptions2(creation, count, list, IPP_TAG_JOB);
    cupsFreeOptions(count, list);
    const QByteArray resource = "/printers/" + queue.toUtf8();
    const Answer created = answerTo(creation, resource);
    ipp_attribute_t *number = ippFindAttribute(created.get(), "job-id", IPP_TAG_INTEGER);
    if (!number)
        return 0;
    const int job = ippGetInteger(number, 0);

    const Answer sending(queueRequest(IPP_OP_SEND_DOCUMENT, queue), ippDelete);
    ippAddInteger(sending.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
    ippAddString(sending.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 format.constData());
    ippAddBoolean(sending.get(), IPP_TAG_OPERATION, "last-document", 1);
    m_httpStatus =
        cupsSendRequest(m_http.get(), sending.get(), resource.constData(), CUPS_LENGTH_VARIABLE);
    if (m_httpStatus == HTTP_STATUS_CONTINUE)
        m_httpStatus = cupsWriteRequestData(m_http.get(), document.constData(),
                                            static_cast<size_t>(document.size()));
    const Answer sent(cupsGetResponse(m_http.get(), resource.constData()), ippDelete);
    m_status = cupsLastError();
    m_httpStatus = httpGetStatus(m_http.get());
    return sent && m_status <= IPP_STATUS_OK_CONFLICTING ? job : 0;
}

QString Client::queueValue(const QString &queue, const char *attribute)
{
    return value(queueRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), attribute);
}

QString Client::jobValue(int id, const char *attribute)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                 ("ipp://localhost/jobs/" + QByteArray::number(id)).constData());
    return value(request, attribute);
}

QString Client::value(ipp_t *request, const char *attribute)
{
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 attribute);
    const Answer answer = answerTo(request, "/");
    ipp_attribute_t *found = ippFindAttribute(answer.get(), attribute, IPP_TAG_ZERO);
    if (!found)
        return {};
    QByteArray text(static_cast<int>(ippAttributeString(found, nullptr, 0)) + 1, '\0');
    ippAttributeString(found, text.data(), static_cast<size_t>(text.size()));
    text.chop(1);
    return QString::fromUtf8(text);
}

ipp_status_t Client::ask(ipp_op_t operation, const QString &queue)
{
    answerTo(queueRequest(operation, queue), "/");
    return m_status;
}

Client::Answer Client::answerTo(ipp_t *request, const QByteArray &resource)
{
    Answer answer(cupsDoRequest(m_http.get(), request, resource.constData()), ippDelete);
    m_status = cupsLastError();
    m_httpStatus = httpGetStatus(m_http.get());
    return answer;
}

} // namespace corvana::test
