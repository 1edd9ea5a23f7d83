#include "dialog/server/IppGate.h"

#include <algorithm>

#include <cups/ipp.h>

#include <QRandomGenerator>

namespace corvana {

namespace {

// Measured with libcups 2.4, beside the bytes of a name or a value themselves. Units: bytes.
constexpr qint64 kBuiltOfAttribute = 96;
constexpr qint64 kBuiltOfValue = 48;
constexpr qint64 kBuiltOfCollection = 96;

// Digests begin with a number of this process, so that nobody can make up many texts of one digest.
std::uint64_t firstDigest()
{
    static const std::uint64_t first = QRandomGenerator::system()->generate64();
    return first;
}

// FNV-1a
std::uint64_t digested(std::uint64_t digest, unsigned char byte)
{
    return (digest ^ byte) * 0x100000001b3;
}

} // namespace

IppGate::IppGate(const IppBounds &bounds) : m_bounds(bounds), m_text(firstDigest()) {}

bool IppGate::pass(const unsigned char *bytes, size_t length)
{
    for (size_t at = 0; at < length && !m_isRefused;) {
        if (m_field == Field::Nothing)
            return true;
        const size_t part = std::min(length - at, static_cast<size_t>(m_missing));
        for (size_t i = at + part - std::min<size_t>(part, 2); i < at + part; ++i)
            m_number = (m_number << 8 | bytes[i]) & 0xffff;
        if (m_field == Field::Name || m_field == Field::Value) {
            for (size_t i = at; i < at + part; ++i)
                m_text = digested(m_text, bytes[i]);
        }
        at += part;
        m_missing -= static_cast<qint64>(part);
        // A field without a byte is complete at once.
        while (m_missing == 0 && m_field != Field::Nothing && !m_isRefused)
            m_isRefused = !completed();
    }
    return !m_isRefused;
}

void IppGate::expect(Field field, qint64 length)
{
    m_field = field;
    m_missing = length;
    m_text = firstDigest();
}

// The field is complete; false when it is one too many.
bool IppGate::completed()
{
    switch (m_field) {
    case Field::Head:
        expect(Field::Tag, 1);
        return true;
    case Field::Value: {
        // Numbers and the like are no texts; names of members are.
        const bool isAdded = m_tag < IPP_TAG_TEXTLANG || addText();
        expect(Field::Tag, 1);
        return isAdded;
    }
    case Field::Tag:
        return tagRead();
    case Field::NameLength:
        m_nameLength = m_number;
        expect(Field::Name, m_nameLength);
        // These two have none. libcups would look for it in another place than this class.
        return m_nameLength == 0 ||
               (m_tag != IPP_TAG_END_COLLECTION && m_tag != IPP_TAG_MEMBERNAME);
    case Field::Name: {
        const bool isAdded = m_nameLength == 0 || addText();
        expect(Field::ValueLength, 2);
        return isAdded;
    }
    case Field::ValueLength:
        expect(Field::Value, m_number);
        return valueRead();
    case Field::Nothing:
        break;
    }
    return true;
}

bool IppGate::tagRead()
{
    m_tag = m_number & 0xff;
    // libcups takes the four bytes behind it for another tag, the standard takes them for a value.
    // Nobody sends it.
    if (m_tag == IPP_TAG_EXTENSION)
        return false;
    if (m_tag >= IPP_TAG_UNSUPPORTED_VALUE) {
        expect(Field::NameLength, 2);
        return true;
    }
    // A group within a collection, or the end of the message there, is no IPP, and where libcups
    // goes on behind it is its own affair.
    if (m_nesting > 0)
        return false;
    if (m_tag == IPP_TAG_END) {
        expect(Field::Nothing, 0);
        return true;
    }
    expect(Field::Tag, 1);
    return addAttribute(0);
}

// The lengths of name and value are known, and nothing of the value has been let through.
bool IppGate::valueRead()
{
    const int length = m_number;
    if (m_tag == IPP_TAG_END_COLLECTION)
        return --m_nesting >= 0;
    if (m_tag == IPP_TAG_MEMBERNAME)
        return addAttribute(length);
    if (m_nameLength > 0 && !addAttribute(m_nameLength))
        return false;
    m_built += kBuiltOfValue + length;
    if (m_tag == IPP_TAG_BEGIN_COLLECTION) {
        m_built += kBuiltOfCollection;
        if (++m_nesting > m_bounds.nesting)
            return false;
    }
    return ++m_values <= m_bounds.values && m_built <= m_bounds.built;
}

// The bytes of the field have been let through already, which is one text more than there may be.
bool IppGate::addText()
{
    m_texts.insert(m_text);
    return m_texts.size() <= static_cast<size_t>(m_bounds.texts);
}

bool IppGate::addAttribute(int nameLength)
{
    m_built += kBuiltOfAttribute + nameLength;
    return ++m_attributes <= m_bounds.attributes && m_built <= m_bounds.built;
}

} // namespace corvana
