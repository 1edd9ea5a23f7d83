#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace corvana {

/// How the characters of a text are written down.
struct TextEncoding
{
    QByteArray name;    ///< as iconv(3) knows it
    QString language{}; ///< "ja", "zh_CN", "zh_TW" or "ko" where it is one language's; else empty
    int marker = 0;     ///< bytes of a byte order mark at the beginning
    /// Signs and letters of two bytes take two columns, as in all texts of such an encoding.
    bool signsAreWide = false;

    bool operator==(const TextEncoding &) const = default;
};

/// Finds out how a text is written down: by its byte order mark, else by what its bytes can be and
/// what they would say. UTF-8, UTF-16 of both orders, the usual encodings of Japanese, Chinese and
/// Korean, and Windows-1252 (which has Latin-1 in it) are known. Of several that fit alike, the one
/// of the user's language counts.
///
/// `text` is read from its beginning until enough of it is no plain ASCII, and left anywhere.
/// Errors: none; what is nothing else is Windows-1252.
TextEncoding recognizeEncoding(QIODevice &text, const QString &userLanguage);

/// Whether the beginning of a file can be a text: control characters are those that texts hold.
bool looksLikeText(const QByteArray &beginning);

} // namespace corvana
