#include "tests/support/cups/HttpRequestReader.h"

#include <algorithm>

#include <QtEndian>

#include <cups/ipp.h>

namespace corvana::test {

namespace {

constexpr qsizetype ippHeadSize = 8; // version, operation, request number

/// Where the attributes end, or -1 when more must arrive.
qsizetype endOfAttributes(const QByteArray &ipp)
{
    const auto shortAt = [&](qsizetype at) {
        return qFromBigEndian<quint16>(ipp.constData() + at);
    };
    for (qsizetype at = ippHeadSize; at < ipp.size();) {
        const int tag = static_cast<unsigned char>(ipp[at++]);
        if (tag == IPP_TAG_END)
            return at;
        // A tag that begins a group stands alone; others have a name and a value.
        if (tag < IPP_TAG_UNSUPPORTED_VALUE)
            continue;
        for (int part = 0; part < 2; ++part) {
            if (at + 2 > ipp.size())
                return -1;
            at += 2 + shortAt(at);
        }
    }
    return -1;
}

} // namespace

QByteArray HttpHead::field(const QByteArray &name) const
{
    for (const QByteArray &line : bytes.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && line.left(colon).compare(name, Qt::CaseInsensitive) == 0)
            return line.mid(colon + 1).trimmed();
    }
    return {};
}

bool HttpHead::isIpp() const
{
    return method == "POST" && field("Content-Type").startsWith("application/ipp");
}

bool HttpHead::expectsContinue() const
{
    return field("Expect") == "100-continue";
}

bool HttpHead::asksForTls() const
{
    return field("Upgrade").contains("TLS");
}

QByteArray HttpHead::credentials() const
{
    const QByteArray value = field("Authorization");
    const QByteArray scheme = "Basic ";
    return value.startsWith(scheme) ? QByteArray::fromBase64(value.mid(scheme.size()))
                                    : QByteArray();
}

QByteArray HttpHead::without(const QByteArray &name) const
{
    QByteArray result;
    for (const QByteArray &line : bytes.chopped(1).split('\n')) {
        if (!line.toLower().startsWith(name.toLower() + ':'))
            result += line + '\n';
    }
    return result;
}

std::optional<HttpHead> HttpRequestReader::takeHead()
{
    const QByteArray end = "\r\n\r\n";
    const qsizetype at = m_buffer.indexOf(end);
    if (at < 0)
        return std::nullopt;
    HttpHead head;
    head.bytes = m_buffer.left(at + end.size());
    m_buffer.remove(0, head.bytes.size());
    const QList<QByteArray> request = head.bytes.left(head.bytes.indexOf('\r')).split(' ');
    head.method = request.value(0);
    head.path = request.value(1);
    m_left = head.field("Content-Length").toLongLong();
    if (head.field("Transfer-Encoding").toLower() == "chunked")
        m_framing = Framing::ChunkHead;
    else if (m_left > 0)
        m_framing = Framing::Length;
    return head;
}

HttpRequestReader::Piece HttpRequestReader::taken(qsizetype size, bool isContent)
{
    Piece piece{m_buffer.left(size), isContent};
    m_buffer.remove(0, size);
    return piece;
}

std::optional<HttpRequestReader::Piece> HttpRequestReader::takePiece()
{
    if (m_buffer.isEmpty() || m_framing == Framing::None)
        return std::nullopt;
    if (m_framing == Framing::Length || m_framing == Framing::ChunkData) {
        const Piece piece = taken(std::min<qint64>(m_left, m_buffer.size()), true);
        m_left -= piece.bytes.size();
        if (m_left == 0)
            m_framing = m_framing == Framing::Length ? Framing::None : Framing::ChunkEnd;
        return piece;
    }
    const qsizetype end = m_buffer.indexOf('\n');
    if (end < 0)
        return std::nullopt;
    const Piece line = taken(end + 1, false);
    switch (m_framing) {
    case Framing::ChunkHead:
        m_left = line.bytes.trimmed().toLongLong(nullptr, 16);
        m_framing = m_left > 0 ? Framing::ChunkData : Framing::LastEnd;
        break;
    case Framing::ChunkEnd:
        m_framing = Framing::ChunkHead;
        break;
    default:
        // Fields may follow the last chunk; an empty line ends them.
        if (line.bytes.trimmed().isEmpty())
            m_framing = Framing::None;
        break;
    }
    return line;
}

QByteArray HttpRequestReader::takeRest()
{
    return std::exchange(m_buffer, {});
}

void IppHeadReader::append(const QByteArray &content)
{
    if (m_attributesEnded) {
        m_documentBytes += content.size();
        return;
    }
    m_attributes += content;
    if (m_attributes.size() < ippHeadSize)
        return;
    m_known = true;
    m_operation = qFromBigEndian<quint16>(m_attributes.constData() + 2);
    m_requestId = qFromBigEndian<qint32>(m_attributes.constData() + 4);
    const qsizetype end = endOfAttributes(m_attributes);
    if (end < 0)
        return;
    m_attributesEnded = true;
    m_documentBytes = m_attributes.size() - end;
    m_attributes.clear();
}

} // namespace corvana::test
