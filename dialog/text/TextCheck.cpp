#include "dialog/text/TextCheck.h"

#include <unordered_set>

#include <QGuiApplication>
#include <QLocale>
#include <QThread>

#include "dialog/text/CharacterCells.h"
#include "dialog/text/TextGlyphs.h"
#include "dialog/text/TextSource.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 32 * 1024 * 1024;
// More than these are not named.
constexpr size_t kMostNamed = 8;

QString named(char32_t character)
{
    const QString code = QString::number(uint(character), 16).toUpper().rightJustified(4, u'0');
    return u"%1 (U+%2)"_s.arg(QString::fromUcs4(&character, 1), code);
}

} // namespace

TextCheck::TextCheck(const QStringList &paths)
{
    if (paths.isEmpty() || !qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return;
    m_thread.reset(QThread::create([this, paths] {
        for (const QString &path : paths)
            look(path);
    }));
    m_thread->start(QThread::LowPriority);
}

TextCheck::~TextCheck()
{
    m_canceled = true;
    if (m_thread)
        m_thread->wait();
}

void TextCheck::look(const QString &path)
{
    QString problem;
    TextSource source(path, textLanguageOf(QLocale().name()), &problem);
    if (!problem.isEmpty())
        return; // said by whoever prints it
    TextGlyphs glyphs(source.encoding().language);
    std::unordered_set<char32_t> seen;
    while (!m_canceled && !source.atEnd() && source.position() < kMostBytes &&
           m_missing.size() <= kMostNamed) {
        for (const char32_t character : source.read()) {
            // Control characters are printed as signs of others.
            const bool isPrinted = character >= 0xA0 && cellsOf(character) > 0;
            if (isPrinted && !m_canceled && m_missing.size() <= kMostNamed &&
                seen.insert(character).second && !glyphs.has(character))
                m_missing += character;
        }
    }
}

QString TextCheck::missing(std::chrono::milliseconds patience) const
{
    if (!m_thread || !m_thread->wait(QDeadlineTimer(patience)))
        return {};
    QStringList names;
    for (size_t i = 0; i < m_missing.size() && i < kMostNamed; ++i)
        names += named(m_missing[i]);
    if (m_missing.size() > kMostNamed)
        names += u"…"_s;
    return names.join(u", "_s);
}

} // namespace corvana
