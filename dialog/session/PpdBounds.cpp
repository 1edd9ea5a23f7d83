#include "dialog/session/PpdBounds.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>

#include <cups/cups.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include "dialog/session/PpdLines.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PpdBounds)
};

// What libcups keeps of a keyword. Units: bytes.
constexpr qsizetype kLongestKeyword = 40;

// Lines that are looked up in all papers.
constexpr QByteArrayView kSizeKeywords[] = {"pagesize", "pageregion", "imageablearea",
                                            "paperdimension"};
// Those of CUPS' own are attributes to libcups, which puts each behind all that are there.
constexpr QByteArrayView kConstraints[] = {"uiconstraints", "nonuiconstraints"};
constexpr QByteArrayView kConstraintOfCups = "cupsuiconstraints";
constexpr QByteArrayView kResolver = "cupsuiresolver";
constexpr QByteArrayView kOpeningOfOption[] = {"openui", "jclopenui"};
constexpr QByteArrayView kOpeningOfGroup[] = {"opengroup", "opensubgroup"};

template <typename Keywords> bool isIn(const Keywords &keywords, QByteArrayView keyword)
{
    return std::find(std::begin(keywords), std::end(keywords), keyword) != std::end(keywords);
}

/// A keyword as libcups compares it: without regard to case.
class Keyword
{
public:
    explicit Keyword(QByteArrayView text)
    {
        for (const char c : text.first(std::min(text.size(), kLongestKeyword))) {
            if (isEnd(c)) {
                m_isEnded = true;
                break;
            }
            m_text[m_length++] = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
    }

    QByteArrayView view() const { return {m_text.data(), static_cast<qsizetype>(m_length)}; }

    /// How many bytes of the text say which keyword it is: with the one behind it. 0 where it is
    /// not known to end there.
    qsizetype written() const { return m_isEnded ? static_cast<qsizetype>(m_length) + 1 : 0; }

private:
    static constexpr bool isEnd(char c)
    {
        return c == ' ' || c == '\t' || c == '\f' || c == '\v' || c == '/' || c == ':';
    }

    std::array<char, kLongestKeyword> m_text{};
    std::size_t m_length = 0;
    bool m_isEnded = false;
};

// "de" of "de.pagesize" and of "de_at.pagesize"; empty where a keyword is of no language, which
// libcups would read whatever the language is.
QByteArrayView languageOf(QByteArrayView keyword)
{
    const auto areLetters = [&](qsizetype i) {
        return keyword.at(i) >= 'a' && keyword.at(i) <= 'z' && keyword.at(i + 1) >= 'a' &&
               keyword.at(i + 1) <= 'z';
    };
    const qsizetype dot = keyword.indexOf('.');
    const bool isLanguage = (dot == 2 && areLetters(0)) ||
                            (dot == 5 && areLetters(0) && keyword.at(2) == '_' && areLetters(3));
    return isLanguage ? keyword.first(2) : QByteArrayView();
}

// Comments, and the ends of texts of several lines: libcups keeps nothing of them. Some PPDs end
// with thousands.
bool saysNothing(QByteArrayView line)
{
    const char second = line.size() > 1 ? line.at(1) : '\0';
    return second == '%' || (second == 'E' && line == QByteArrayView("*End"));
}

/// Counts the lines that say something, each by its keyword.
class LineCount
{
public:
    explicit LineCount(const PpdBounds &bounds) : m_bounds(bounds) {}

    // The next line of the file. False when it is one too many.
    bool add(const PpdLines::Line &whole)
    {
        if (!whole.begin.startsWith('*') || saysNothing(whole.begin))
            return true;
        const QByteArrayView line = whole.begin.sliced(1);
        // Most lines begin as the one before them does, letter by letter.
        if (m_written.isEmpty() || !line.startsWith(m_written)) {
            const Keyword keyword(line);
            if (!m_count || keyword.view() != m_keyword)
                turnTo(keyword.view());
            m_written = line.first(keyword.written()).toByteArray();
        }
        if (m_kind == Kind::Opening) {
            // "OpenUI *KEYWORD/TEXT: PickOne"
            const qsizetype name = line.indexOf('*');
            m_options.insert(name < 0 ? QByteArray()
                                      : Keyword(line.sliced(name + 1)).view().toByteArray());
        }
        const int lines = ++*m_count;
        if (!addTerms(whole.stars - 1))
            return false;
        if (m_lines.size() > m_bounds.keywords)
            return refuse(Texts::tr("There is too much in it: more than %1 different keywords.")
                              .arg(QString::number(m_bounds.keywords)));
        switch (m_kind) {
        case Kind::Choice:
            return addChoice(m_keyword, lines);
        case Kind::Language:
            return addText(m_keyword, lines);
        case Kind::Attribute:
            return addAttribute(m_keyword, lines);
        default:
            return lines <= boundOf(m_kind) || refuseLines(m_keyword, boundOf(m_kind));
        }
    }

    // Behind the last line. False when it is all together too much.
    bool end()
    {
        const qint64 asked = m_lines.value("openui") + m_lines.value("jclopenui") + mostChoices();
        const qint64 allowed = m_bounds.questions / std::max<qint64>(1, asked);
        return m_terms <= allowed ||
               refuse(Texts::tr("There is too much in it: its constraints name %1 choices. Beside "
                                "as many options and choices as it has, %2 are allowed.")
                          .arg(QString::number(m_terms), QString::number(allowed)));
    }

    QString excess() const { return m_excess; }

private:
    // Choices, attributes and the texts of a language have a bound together, too; each other
    // keyword one for itself.
    enum class Kind { Opening, Group, Size, Constraint, Language, Choice, Attribute };

    Kind kindOf(const QByteArray &keyword) const
    {
        if (isIn(kOpeningOfOption, keyword))
            return Kind::Opening;
        if (isIn(kOpeningOfGroup, keyword))
            return Kind::Group;
        if (isIn(kSizeKeywords, keyword))
            return Kind::Size;
        if (isIn(kConstraints, keyword))
            return Kind::Constraint;
        if (!languageOf(keyword).isEmpty())
            return Kind::Language;
        return m_options.contains(keyword) ? Kind::Choice : Kind::Attribute;
    }

    int boundOf(Kind kind) const
    {
        switch (kind) {
        case Kind::Opening:
            return m_bounds.options;
        case Kind::Group:
            return m_bounds.groups;
        case Kind::Size:
            return m_bounds.sizes;
        case Kind::Constraint:
            return m_bounds.constraints;
        default:
            return m_bounds.attributes;
        }
    }

    void turnTo(QByteArrayView keyword)
    {
        m_keyword = keyword.toByteArray();
        m_count = &m_lines[m_keyword];
        m_kind = kindOf(m_keyword);
        m_isResolver = m_keyword == kResolver;
        m_namesChoices =
            m_isResolver || m_kind == Kind::Constraint || m_keyword == kConstraintOfCups;
        m_texts =
            m_kind == Kind::Language ? &m_languages[languageOf(m_keyword).toByteArray()] : nullptr;
    }

    bool addChoice(const QByteArray &keyword, int lines)
    {
        if (lines > m_bounds.choices)
            return refuseLines(keyword, m_bounds.choices);
        return ++m_choices <= m_bounds.allChoices ||
               refuse(Texts::tr("There is too much in it: more than %1 choices of all options "
                                "together. “%2” has the most.")
                          .arg(QString::number(m_bounds.allChoices), mostFrequent(Kind::Choice)));
    }

    // Of several languages only one is read.
    bool addText(const QByteArray &keyword, int lines)
    {
        if (lines > m_bounds.sameAttributes)
            return refuseLines(keyword, m_bounds.sameAttributes);
        return ++*m_texts <= m_bounds.attributes ||
               refuseLines(languageOf(keyword).toByteArray() + '.', m_bounds.attributes);
    }

    bool addAttribute(const QByteArray &keyword, int lines)
    {
        if (lines > m_bounds.sameAttributes)
            return refuseLines(keyword, m_bounds.sameAttributes);
        return ++m_attributes <= m_bounds.attributes ||
               refuse(
                   Texts::tr("There is too much in it: more than %1 lines that belong to no "
                             "option. The most frequent is “%2”.")
                       .arg(QString::number(m_bounds.attributes), mostFrequent(Kind::Attribute)));
    }

    // What a constraint or the way out of one names, in the line that was read last.
    bool addTerms(int terms)
    {
        if (!m_namesChoices)
            return true;
        if (terms > m_bounds.termsOfLine)
            return refuse(Texts::tr("There is too much in it: more than %1 choices in one line "
                                    "that begins with “%2”.")
                              .arg(QString::number(m_bounds.termsOfLine), shown(m_keyword)));
        const int bound = m_isResolver ? m_bounds.resolverTerms : m_bounds.terms;
        int &all = m_isResolver ? m_resolverTerms : m_terms;
        all += terms;
        return all <= bound ||
               refuse(Texts::tr("There is too much in it: more than %1 choices in lines that begin "
                                "with “%2”.")
                          .arg(QString::number(bound), shown(m_keyword)));
    }

    int mostChoices() const
    {
        int most = 0;
        for (auto one = m_lines.cbegin(); one != m_lines.cend(); ++one) {
            if (*one > most && m_options.contains(one.key()))
                most = *one;
        }
        return most;
    }

    // The keyword with the most lines, of options or of what belongs to none; the first by name.
    QString mostFrequent(Kind kind) const
    {
        QByteArray most;
        int lines = 0;
        for (auto one = m_lines.cbegin(); one != m_lines.cend(); ++one) {
            if (kindOf(one.key()) == kind &&
                (*one > lines || (*one == lines && one.key() < most))) {
                most = one.key();
                lines = *one;
            }
        }
        return shown(most);
    }

    static QString shown(const QByteArray &keyword)
    {
        return terminalLine(u'*' + QString::fromUtf8(keyword));
    }

    bool refuseLines(const QByteArray &keyword, int allowed)
    {
        return refuse(Texts::tr("There is too much in it: more than %1 lines that begin with “%2”.")
                          .arg(QString::number(allowed), shown(keyword)));
    }

    bool refuse(const QString &excess)
    {
        m_excess = excess;
        return false;
    }

    const PpdBounds m_bounds;
    QHash<QByteArray, int> m_lines;
    QHash<QByteArray, int> m_languages; ///< the lines of each
    QSet<QByteArray> m_options;         ///< those that have been opened
    QByteArray m_keyword;               ///< of the last line
    QByteArray m_written;               ///< the same as it stands there, with what ends it
    int *m_count = nullptr;             ///< its lines so far
    int *m_texts = nullptr;             ///< those of its language, where it is of one
    Kind m_kind = Kind::Attribute;
    bool m_isResolver = false;
    bool m_namesChoices = false;
    int m_choices = 0;
    int m_attributes = 0;
    int m_terms = 0;         ///< of all constraints
    int m_resolverTerms = 0; ///< of all ways out of them
    QString m_excess;
};

struct FileCloser
{
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

} // namespace

QString excessOfPpd(const QString &path, const PpdBounds &bounds)
{
    // Whoever opens a pipe waits, and what it yields can be read once.
    if (const QFileInfo info(path); info.exists() && !info.isFile() && !info.isDir())
        return Texts::tr("It is no ordinary file.");
    // libcups unpacks what is compressed, and so must who counts.
    const std::unique_ptr<cups_file_t, FileCloser> file(
        cupsFileOpen(QFile::encodeName(path).constData(), "r"));
    LineCount count(bounds);
    PpdLines lines([&](const PpdLines::Line &line) { return count.add(line); });
    qint64 size = 0;
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t length =
            file ? cupsFileRead(file.get(), block.data(), block.size()) : ssize_t(-1);
        if (length <= 0)
            break;
        size += length;
        if (size > bounds.bytes)
            return Texts::tr("It is larger than %1 MB.")
                .arg(QString::number(bounds.bytes / (1024 * 1024)));
        if (!lines.read({block.data(), length}))
            return count.excess();
    }
    return lines.end() && count.end() ? QString() : count.excess();
}

} // namespace corvana
