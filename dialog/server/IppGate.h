#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_set>

#include <QtGlobal>

namespace corvana {

/// How much an IPP message may become. libcups has no bounds of its own: it reads collections
/// within collections by recursion, makes 64 bytes of memory from a group that is one byte long,
/// and looks up each text among all others that it knows.
struct IppBounds
{
    /// Collections within collections. The standards nest three.
    int nesting = 8;
    /// Groups, attributes and members of collections. More than 2,000 queues say that tell
    /// everything of themselves, or 10,000 of which a list is wanted.
    int attributes = 250'000;
    int values = 250'000;
    /// Names and values that differ. libcups keeps them in one sorted list of the whole process,
    /// which it shifts for each that comes or goes: twice as many take four times as long, half a
    /// second for these. 10,000 queues of a list say fewer.
    int texts = 70'000;
    /// What libcups keeps of all this in memory, roughly. Units: bytes.
    qint64 built = qint64(128) * 1024 * 1024;
};

/// Looks at the bytes of an IPP message on their way to libcups and stops the first one that would
/// take the message past its bounds. Bytes that are no IPP pass; libcups refuses them itself.
class IppGate
{
public:
    explicit IppGate(const IppBounds &bounds = {});

    /// The next bytes of the message, in pieces of any size. False: libcups must not get them, nor
    /// anything behind them.
    bool pass(const unsigned char *bytes, size_t length);

private:
    enum class Field { Head, Tag, NameLength, Name, ValueLength, Value, Nothing };

    void expect(Field field, qint64 length);
    bool completed();
    bool tagRead();
    bool valueRead();
    bool addAttribute(int nameLength);
    bool addText();

    IppBounds m_bounds;
    Field m_field = Field::Head;
    qint64 m_missing = 8; ///< bytes of the field
    int m_number = 0;     ///< the last two bytes of the field, big-endian
    int m_tag = 0;
    int m_nameLength = 0;
    int m_nesting = 0;
    int m_attributes = 0;
    int m_values = 0;
    qint64 m_built = 0;
    std::uint64_t m_text; ///< digest of the field, as far as it is a text
    std::unordered_set<std::uint64_t> m_texts;
    bool m_isRefused = false;
};

} // namespace corvana
