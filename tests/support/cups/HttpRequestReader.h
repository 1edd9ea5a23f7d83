#pragma once

#include <optional>

#include <QByteArray>

namespace corvana::test {

/// What stands before the body of an HTTP request.
struct HttpHead
{
    /// As it came, with the empty line at its end.
    QByteArray bytes{};
    QByteArray method{};
    QByteArray path{};

    /// A field's value; null without it.
    QByteArray field(const QByteArray &name) const;
    bool isIpp() const;
    bool expectsContinue() const;
    /// Whether it asks to go on in TLS.
    bool asksForTls() const;
    /// "user:password" of Basic authentication; null without.
    QByteArray credentials() const;
    /// The same head without one field.
    QByteArray without(const QByteArray &name) const;
};

/// Reads the requests of one connection, one after the other, from bytes as they arrive, and keeps
/// the bytes as they were, so that they can be passed on. A head is taken first, then the pieces of
/// its body.
class HttpRequestReader
{
public:
    struct Piece
    {
        QByteArray bytes;
        bool isContent = false; ///< else what frames the content, such as the length of a chunk
    };

    void append(const QByteArray &bytes) { m_buffer += bytes; }
    /// Whether the connection begins with TLS instead of a request.
    bool beginsWithTls() const { return m_buffer.startsWith('\x16'); }
    bool isInBody() const { return m_framing != Framing::None; }

    std::optional<HttpHead> takeHead();
    /// The next piece of the body, nothing when more must arrive or the body has ended.
    std::optional<Piece> takePiece();
    /// Everything that has arrived and was not taken.
    QByteArray takeRest();

private:
    enum class Framing { None, Length, ChunkHead, ChunkData, ChunkEnd, LastEnd };

    Piece taken(qsizetype size, bool isContent);

    QByteArray m_buffer;
    Framing m_framing = Framing::None;
    qint64 m_left = 0; ///< bytes of the body, or of the chunk
};

/// What a test wants to know of an IPP request, read from its first bytes as they arrive.
class IppHeadReader
{
public:
    void append(const QByteArray &content);
    bool isKnown() const { return m_known; }
    int operation() const { return m_operation; }
    int requestId() const { return m_requestId; }
    /// How much of the content so far stands behind the attributes. Units: bytes.
    qint64 documentBytes() const { return m_documentBytes; }

private:
    QByteArray m_attributes;
    bool m_known = false;
    bool m_attributesEnded = false;
    int m_operation = 0;
    int m_requestId = 0;
    qint64 m_documentBytes = 0;
};

} // namespace corvana::test
