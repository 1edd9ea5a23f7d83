#include "dialog/server/AnswerReader.h"

#include <algorithm>
#include <cstring>

namespace corvana {

namespace {
constexpr qsizetype kBlock = 65536; // bytes
// The end of an answer in chunks comes with its last bytes, or a packet later.
constexpr int kMomentForEnd = 100; // milliseconds
// The message is here; what a server keeps adding to it is not worth waiting for.
constexpr std::chrono::seconds kMostTimeForRest{2};
} // namespace

ServerWait::Clock::time_point AnswerPace::deadline(qint64 received,
                                                   ServerWait::Clock::time_point now) const
{
    const std::chrono::milliseconds earned(received * 1000 / kSlowest);
    return std::min(now + m_patience, m_begin + m_patience + earned);
}

AnswerReader::AnswerReader(http_t *connection, ServerWait &wait, qint64 most)
    : m_connection(connection), m_wait(wait), m_most(most),
      m_pace(ServerWait::Clock::now(), wait.patience())
{
}

// Gets the next bytes in the place of the last ones.
bool AnswerReader::readBlock()
{
    m_wait.startUntil(m_pace.deadline(m_received, ServerWait::Clock::now()));
    m_taken = 0;
    m_block.resize(kBlock);
    // While bytes come there is no wait, and libcups asks nobody.
    const ssize_t length = m_wait.isOver() ? -1 : httpRead2(m_connection, m_block.data(), kBlock);
    m_block.resize(std::max<qsizetype>(0, length));
    m_received += m_block.size();
    if (length < 0 || (length == 0 && httpError(m_connection) != 0))
        m_end = End::Broken;
    else if (length == 0)
        m_end = End::Whole;
    else if (m_received > m_most)
        m_end = End::TooLarge;
    return m_end == End::None;
}

std::optional<QByteArray> AnswerReader::readAll()
{
    QByteArray content;
    while (readBlock())
        content += m_block;
    return m_end == End::Whole ? std::optional(content) : std::nullopt;
}

ssize_t AnswerReader::take(ipp_uchar_t *to, size_t bytes)
{
    size_t done = 0;
    while (done < bytes) {
        if (m_taken == m_block.size() && (m_end != End::None || !readBlock()))
            break;
        const size_t length = std::min(bytes - done, static_cast<size_t>(m_block.size() - m_taken));
        std::memcpy(to + done, m_block.constData() + m_taken, length);
        m_taken += static_cast<qsizetype>(length);
        done += length;
    }
    if (done < bytes)
        return -1;
    if (!m_gate.pass(to, bytes)) {
        m_end = End::TooLarge;
        return -1;
    }
    return static_cast<ssize_t>(bytes);
}

IppMessage AnswerReader::readIpp()
{
    const auto read = [](void *self, ipp_uchar_t *buffer, size_t bytes) {
        return static_cast<AnswerReader *>(self)->take(buffer, bytes);
    };
    IppMessage message(ippNew());
    ipp_state_t state = IPP_STATE_IDLE;
    do
        state = ippReadIO(this, read, 1, nullptr, message.get());
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR && m_end == End::None);
    return state == IPP_STATE_DATA ? std::move(message) : nullptr;
}

bool AnswerReader::skipRest()
{
    const auto enough = ServerWait::Clock::now() + kMostTimeForRest;
    while (m_end == End::None && ServerWait::Clock::now() < enough &&
           httpGetState(m_connection) != HTTP_STATE_WAITING) {
        if (!httpWait(m_connection, kMomentForEnd) || !readBlock())
            break;
    }
    return m_end == End::Whole || httpGetState(m_connection) == HTTP_STATE_WAITING;
}

} // namespace corvana
