#pragma once

#include <QByteArray>

#include <cups/ipp.h>

namespace corvana::test {

// IPP messages byte by byte, for those that no library writes.

inline QByteArray twoBytes(qsizetype number)
{
    return {QByteArray(1, static_cast<char>(number >> 8)) + static_cast<char>(number)};
}

/// An attribute with its first value; without a name one more value, or a part of a collection.
inline QByteArray ippField(int tag, const QByteArray &name, const QByteArray &value)
{
    return QByteArray(1, static_cast<char>(tag)) + twoBytes(name.size()) + name +
           twoBytes(value.size()) + value;
}

inline QByteArray ippNumberField(const QByteArray &name)
{
    return ippField(IPP_TAG_INTEGER, name, QByteArray(4, '\1'));
}

/// The beginning of a collection.
inline QByteArray ippBegin(const QByteArray &name = {})
{
    return ippField(IPP_TAG_BEGIN_COLLECTION, name, {});
}

/// The end of a collection.
inline QByteArray ippEnd()
{
    return ippField(IPP_TAG_END_COLLECTION, {}, {});
}

inline QByteArray ippMember(const QByteArray &name)
{
    return ippField(IPP_TAG_MEMBERNAME, {}, name);
}

/// An attribute whose collection holds a collection, and so on.
inline QByteArray ippNested(int levels)
{
    return ippBegin("a") + (ippMember("m") + ippBegin()).repeated(levels - 1) +
           ippEnd().repeated(levels);
}

/// An answer with these bytes in its group about printers.
inline QByteArray ippAnswerBytes(const QByteArray &printer)
{
    return QByteArray::fromHex("0200000000000001") + static_cast<char>(IPP_TAG_PRINTER) + printer +
           static_cast<char>(IPP_TAG_END);
}

} // namespace corvana::test
