#pragma once

#include <memory>
#include <string>

#include <QFile>

#include "dialog/text/TextDecoder.h"
#include "dialog/text/TextEncoding.h"

namespace corvana {

/// The characters of a text file, whatever it is written in, piece by piece.
class TextSource
{
public:
    /// `userLanguage`: see recognizeEncoding(). Errors: `problem` says why it cannot be read.
    TextSource(const QString &path, const QString &userLanguage, QString *problem);

    const TextEncoding &encoding() const { return m_encoding; }
    bool atEnd() const { return m_atEnd; }
    /// The next characters; none only at the end.
    std::u32string read();
    /// How many bytes were read so far.
    qint64 position() const { return m_file.pos(); }
    /// Why reading ended early; empty when it did not.
    QString problem() const { return m_problem; }

private:
    QFile m_file;
    TextEncoding m_encoding;
    std::unique_ptr<TextDecoder> m_decoder;
    QString m_problem;
    qint64 m_size = 0; // at the beginning
    bool m_endsLinesWithReturn = false;
    bool m_atEnd = true;
};

/// The language of a locale as TextEncoding names languages.
QString textLanguageOf(const QString &locale);

} // namespace corvana
