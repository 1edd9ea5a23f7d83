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
    if (paths.isEmpty() || !qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        m_finding = Finding{};
        return;
    }
    m_thread.reset(QThread::create([this, paths] { look(paths); }));
    connect(m_thread.get(), &QThread::finished, this, &TextCheck::finished);
    m_thread->start(QThread::LowPriority);
}

TextCheck::~TextCheck()
{
    m_canceled = true;
    if (m_thread)
        m_thread->wait();
}

std::optional<TextCheck::Finding> TextCheck::finding() const
{
    const std::scoped_lock lock(m_mutex);
    return m_finding;
}

// Runs on the other thread.
void TextCheck::look(const QStringList &paths)
{
    Finding found;
    std::u32string missing;
    for (const QString &path : paths)
        found.isWhole = lookInto(path, missing) && found.isWhole;
    QStringList names;
    for (size_t i = 0; i < missing.size() && i < kMostNamed; ++i)
        names += named(missing[i]);
    if (missing.size() > kMostNamed)
        names += u"…"_s;
    found.missing = names.join(u", "_s);
    const std::scoped_lock lock(m_mutex);
    m_finding = found;
}

// Answers whether nothing is left of the text that could lack more. Ends where enough is missing.
bool TextCheck::lookInto(const QString &path, std::u32string &missing) const
{
    QString problem;
    TextSource source(path, textLanguageOf(QLocale().name()), &problem);
    if (!problem.isEmpty())
        return true; // said by whoever prints it
    TextGlyphs glyphs(source.encoding().language);
    std::unordered_set<char32_t> seen;
    while (!m_canceled && !source.atEnd() && source.position() < kMostBytes &&
           missing.size() <= kMostNamed) {
        for (const char32_t character : source.read()) {
            // Control characters are printed as signs of others.
            const bool isPrinted = character >= 0xA0 && cellsOf(character) > 0;
            if (isPrinted && !m_canceled && missing.size() <= kMostNamed &&
                seen.insert(character).second && !glyphs.has(character))
                missing += character;
        }
    }
    return source.atEnd() || missing.size() > kMostNamed;
}

} // namespace corvana
