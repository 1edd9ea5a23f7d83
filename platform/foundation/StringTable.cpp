#include "platform/foundation/StringTable.h"

#include <map>
#include <vector>

#include <QByteArrayView>
#include <QtEndian>

namespace corvana {

namespace {

constexpr unsigned char kMagic[] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                    0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};

enum Section : quint8 {
    kContexts = 0x2f,
    kHashes = 0x42,
    kMessages = 0x69,
    kDependencies = 0x96,
};

// Parts of a message that have a length, and those that have not.
enum Part : quint8 {
    kEnd = 1,
    kTranslation = 3,
    kObsolete = 5,
    kSource = 6,
    kContext = 7,
    kComment = 8,
};

constexpr qsizetype kNumber = 4;        // bytes
constexpr qsizetype kHashAndOffset = 8; // bytes

quint32 numberAt(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.data() + at);
}

quint16 shortNumberAt(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint16>(bytes.data() + at);
}

quint8 byteAt(QByteArrayView bytes, qsizetype at)
{
    return static_cast<quint8>(bytes.at(at));
}

// Names in a row, each behind its length; the last has none. `isSound` says of each place whether
// a walk that begins there ends within the names.
std::vector<bool> soundNames(QByteArrayView names)
{
    std::vector<bool> isSound(static_cast<size_t>(names.size()), false);
    for (qsizetype at = names.size() - 1; at >= 0; --at) {
        const qsizetype next = at + 1 + byteAt(names, at);
        const bool isLast = byteAt(names, at) == 0;
        isSound[static_cast<size_t>(at)] =
            isLast || (next < names.size() && isSound[static_cast<size_t>(next)]);
    }
    return isSound;
}

bool areContextsWhole(QByteArrayView contexts)
{
    if (contexts.isEmpty())
        return true;
    if (contexts.size() < 2)
        return false;
    const qsizetype places = shortNumberAt(contexts, 0);
    const qsizetype begin = 2 + 2 * places;
    if (places == 0 || begin > contexts.size())
        return false;
    const std::vector<bool> isSound = soundNames(contexts.sliced(begin));
    for (qsizetype place = 0; place < places; ++place) {
        const qsizetype at = 2 * qsizetype(shortNumberAt(contexts, 2 + 2 * place));
        if (at != 0 && (at >= contexts.size() - begin || !isSound[static_cast<size_t>(at)]))
            return false;
    }
    return true;
}

// Where the part that begins at `at` ends; -1 where that is outside. What is no part ends a
// message.
qsizetype endOfPart(QByteArrayView messages, qsizetype at)
{
    const qsizetype left = messages.size() - at - 1;
    switch (byteAt(messages, at)) {
    case kObsolete:
        return left < kNumber ? -1 : at + 1 + kNumber;
    case kTranslation:
    case kSource:
    case kContext:
    case kComment:
        if (left < kNumber || numberAt(messages, at + 1) > static_cast<quint64>(left - kNumber))
            return -1;
        return at + 1 + kNumber + qsizetype(numberAt(messages, at + 1));
    default:
        return messages.size();
    }
}

bool areMessagesWhole(QByteArrayView hashes, QByteArrayView messages)
{
    if (hashes.size() % kHashAndOffset != 0)
        return false;
    // Messages may lead into each other; no place is looked at twice.
    std::vector<bool> isSeen(static_cast<size_t>(messages.size()), false);
    for (qsizetype entry = 0; entry < hashes.size(); entry += kHashAndOffset) {
        const quint32 offset = numberAt(hashes, entry + kNumber);
        if (offset >= static_cast<quint64>(messages.size()))
            return false;
        qsizetype at = qsizetype(offset);
        while (at < messages.size() && !isSeen[static_cast<size_t>(at)]) {
            isSeen[static_cast<size_t>(at)] = true;
            at = endOfPart(messages, at);
            if (at < 0)
                return false;
        }
    }
    return true;
}

} // namespace

bool isWholeStringTable(const QByteArray &table)
{
    const QByteArrayView magic(reinterpret_cast<const char *>(kMagic), sizeof kMagic);
    if (!table.startsWith(magic))
        return false;
    std::map<quint8, QByteArrayView> sections;
    QByteArrayView rest = QByteArrayView(table).sliced(magic.size());
    while (rest.size() > kNumber) {
        const quint8 tag = byteAt(rest, 0);
        const quint32 length = numberAt(rest, 1);
        rest = rest.sliced(1 + kNumber);
        if (tag == 0 || length == 0)
            break; // nothing behind it is read
        if (length > static_cast<quint64>(rest.size()))
            return false;
        sections[tag] = rest.first(qsizetype(length));
        rest = rest.sliced(qsizetype(length));
    }
    return !sections.contains(kDependencies) && areContextsWhole(sections[kContexts]) &&
           areMessagesWhole(sections[kHashes], sections[kMessages]);
}

} // namespace corvana
