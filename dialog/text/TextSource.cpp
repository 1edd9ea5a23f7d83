#include "dialog/text/TextSource.h"

#include <algorithm>

#include <QCoreApplication>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TextSource)
};

constexpr qint64 kPiece = 64 * 1024;

} // namespace

TextSource::TextSource(const QString &path, const QString &userLanguage, QString *problem)
    : m_file(path)
{
    if (!m_file.open(QIODevice::ReadOnly)) {
        *problem = m_problem = m_file.errorString();
        return;
    }
    m_size = m_file.size();
    m_encoding = recognizeEncoding(m_file, userLanguage);
    m_decoder = std::make_unique<TextDecoder>(m_encoding.name);
    // A system may have come without the tables of the rarer encodings.
    if (!m_decoder->isValid())
        m_decoder = std::make_unique<TextDecoder>("UTF-8");
    m_file.seek(0);
    const QByteArray beginning = m_file.peek(kPiece);
    m_endsLinesWithReturn = beginning.contains('\r') && !beginning.contains('\n');
    m_file.seek(m_encoding.marker);
    m_atEnd = false;
}

std::u32string TextSource::read()
{
    std::u32string characters;
    while (!m_atEnd && characters.empty()) {
        const QByteArray piece = m_file.read(kPiece);
        m_atEnd = piece.isEmpty();
        if (m_atEnd && m_file.error() != QFileDevice::NoError)
            m_problem = m_file.errorString();
        // Whoever writes it anew has emptied it; nobody is to take a part of it for the whole.
        else if (m_atEnd && m_file.pos() < m_size)
            m_problem = Texts::tr("it has become shorter meanwhile");
        characters = m_decoder->decode(piece, m_atEnd);
    }
    if (m_endsLinesWithReturn)
        std::replace(characters.begin(), characters.end(), U'\r', U'\n');
    return characters;
}

QString textLanguageOf(const QString &locale)
{
    const QString language = locale.section(u'_', 0, 0).section(u'-', 0, 0);
    if (language != "zh"_L1)
        return language == "ja"_L1 || language == "ko"_L1 ? language : QString();
    const bool traditional = locale.contains("TW"_L1) || locale.contains("HK"_L1) ||
                             locale.contains("MO"_L1) || locale.contains("Hant"_L1);
    return traditional ? u"zh_TW"_s : u"zh_CN"_s;
}

} // namespace corvana
