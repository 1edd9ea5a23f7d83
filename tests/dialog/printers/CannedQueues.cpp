#include "tests/dialog/printers/CannedQueues.h"

#include <algorithm>

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

void addText(ipp_t *answer, ipp_tag_t type, const char *name, const QString &value)
{
    ippAddString(answer, IPP_TAG_PRINTER, type, name, nullptr, value.toUtf8().constData());
}

void addQueue(ipp_t *answer, const Printer &queue)
{
    addText(answer, IPP_TAG_NAME, "printer-name", queue.name);
    addText(answer, IPP_TAG_TEXT, "printer-info", queue.description);
    addText(answer, IPP_TAG_TEXT, "printer-location", queue.location);
    ippAddInteger(answer, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state",
                  queue.state == PrinterState::Stopped ? IPP_PSTATE_STOPPED : IPP_PSTATE_IDLE);
    ippAddBoolean(answer, IPP_TAG_PRINTER, "printer-is-accepting-jobs", queue.accepting ? 1 : 0);
    ippAddSeparator(answer);
}

} // namespace

CannedQueues::CannedQueues()
    : m_server(std::make_unique<CannedServer>(
          [this](const CannedRequest &request) { return answer(request); }))
{
}

void CannedQueues::setQueues(const QList<Printer> &queues)
{
    const std::scoped_lock lock(m_mutex);
    m_queues = queues;
}

void CannedQueues::setDefault(const QString &name)
{
    const std::scoped_lock lock(m_mutex);
    m_default = name;
}

void CannedQueues::failAfter(int pages, ipp_status_t status)
{
    const std::scoped_lock lock(m_mutex);
    m_pagesUntilFailure = pages;
    m_failure = status;
}

void CannedQueues::ignoreLimits()
{
    const std::scoped_lock lock(m_mutex);
    m_ignoresLimits = true;
}

CannedAnswer CannedQueues::answer(const CannedRequest &request)
{
    const std::scoped_lock lock(m_mutex);
    if (request.operation == IPP_OP_CUPS_GET_DEFAULT) {
        if (m_default.isEmpty())
            return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_FOUND));
        ipp_t *answer = newIppAnswer();
        addText(answer, IPP_TAG_NAME, "printer-name", m_default);
        return ippAnswer(answer);
    }
    if (request.operation != IPP_OP_CUPS_GET_PRINTERS)
        return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_OPERATION_NOT_SUPPORTED));
    if (m_failure != IPP_STATUS_OK && m_pagesUntilFailure-- <= 0)
        return ippAnswer(newIppAnswer(m_failure));
    if (m_queues.isEmpty())
        return ippAnswer(newIppAnswer(IPP_STATUS_ERROR_NOT_FOUND));
    const QString from = request.value("first-printer-name");
    auto next = m_queues.cbegin();
    if (!m_ignoresLimits && !from.isEmpty())
        next = std::find_if(next, m_queues.cend(),
                            [&](const Printer &queue) { return queue.name == from; });
    const auto limit = m_ignoresLimits ? m_queues.size() : request.value("limit").toLongLong();
    ipp_t *answer = newIppAnswer();
    ippAddSeparator(answer);
    for (qsizetype i = 0; i < limit && next != m_queues.cend(); ++i)
        addQueue(answer, *next++);
    return ippAnswer(answer);
}

QList<Printer> manyQueues(int count)
{
    QList<Printer> queues;
    for (int i = 1; i <= count; ++i) {
        Printer queue;
        queue.name = u"queue%1"_s.arg(i);
        queue.description = u"Printer %1"_s.arg(i);
        queues += queue;
    }
    return queues;
}

} // namespace corvana::test
