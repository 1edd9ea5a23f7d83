#pragma once

#include <string>

#include <QByteArray>

#include "dialog/text/TextEncoding.h"

namespace corvana {

/// Turns bytes into characters, piece by piece. A piece may end anywhere in a character.
class TextDecoder
{
public:
    /// What stands for bytes that are no character in this encoding.
    static constexpr char32_t kBroken = 0xFFFD;

    explicit TextDecoder(const QByteArray &encoding);
    ~TextDecoder();
    TextDecoder(const TextDecoder &) = delete;
    TextDecoder &operator=(const TextDecoder &) = delete;

    /// Whether the system knows the encoding; else nothing comes out.
    bool isValid() const;
    /// The characters that are complete by now. `last`: nothing follows.
    std::u32string decode(const QByteArray &bytes, bool last = false);
    /// How many characters were broken so far.
    qint64 broken() const { return m_broken; }

private:
    void *m_converter;
    QByteArray m_rest; // an incomplete character
    qint64 m_broken = 0;
};

} // namespace corvana
