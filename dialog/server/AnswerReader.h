#pragma once

#include <optional>

#include <QByteArray>

#include "dialog/server/IppGate.h"
#include "dialog/server/IppMessage.h"
#include "dialog/server/ServerWait.h"

namespace corvana {

/// How slowly a server's answer may come. Silence ends a wait after a while; a server that says a
/// byte now and then is never silent, and would be listened to for days. So an answer has to keep
/// up a pace as well, one that any line keeps up which somebody prints over: the longer it is, the
/// longer it may take.
class AnswerPace
{
public:
    /// Units: bytes a second. Half of what a telephone line carries.
    static constexpr qint64 kSlowest = 4096;

    /// `patience`: how long a silence is borne, and the head start that an answer gets.
    AnswerPace(ServerWait::Clock::time_point begin, std::chrono::milliseconds patience)
        : m_begin(begin), m_patience(patience)
    {
    }

    /// Until when the next byte has to be there, when `received` bytes are there `now`.
    ServerWait::Clock::time_point deadline(qint64 received,
                                           ServerWait::Clock::time_point now) const;

private:
    ServerWait::Clock::time_point m_begin;
    std::chrono::milliseconds m_patience;
};

/// Reads what stands behind the head of an answer, up to a size and at a bearable pace, and for as
/// long as it is wanted. Thread: that of the connection.
class AnswerReader
{
public:
    enum class End {
        None,     ///< there is more
        Whole,    ///< all of it was read
        Broken,   ///< it stopped too early: the connection is gone, or the wait is over
        TooLarge, ///< it is longer than anything that is meant, or would become too much here
    };

    /// Both are borrowed. `most`: units bytes.
    AnswerReader(http_t *connection, ServerWait &wait, qint64 most);

    /// The whole of it. Errors: nothing; end() says why.
    std::optional<QByteArray> readAll();

    /// The IPP message with which it begins, unless that is more than IppBounds allow. What may
    /// stand behind it is not waited for.
    /// Errors: null; end() says why, `Whole` or `None` when it is no IPP.
    IppMessage readIpp();

    End end() const { return m_end; }
    /// Passes over what little may stand behind a message. False when that is not its end, and
    /// the connection cannot be used any more.
    bool skipRest();

private:
    bool readBlock();
    ssize_t take(ipp_uchar_t *to, size_t bytes);

    http_t *m_connection;
    ServerWait &m_wait;
    qint64 m_most;
    AnswerPace m_pace;
    IppGate m_gate;
    QByteArray m_block;
    qsizetype m_taken = 0; ///< of the block
    qint64 m_received = 0;
    End m_end = End::None;
};

} // namespace corvana
