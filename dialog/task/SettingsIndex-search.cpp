#include <algorithm>
#include <array>
#include <optional>
#include <tuple>
#include <vector>

#include <QVarLengthArray>

#include "dialog/session/SearchForm.h"
#include "dialog/task/SettingsIndex.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostFound = 100;
constexpr qsizetype kMostChoices = 3; // of one setting: its page shows them all

// How a word is found in a text, best first.
enum class Match { Start, WordStart, Infix, None };

// What a letter may be written beside without a new word beginning.
enum class Script { None, Letters, Digits, Kana, Ideographs };

Script scriptOf(QChar c)
{
    const char16_t unit = c.unicode();
    if (unit >= 0x3041 && unit <= 0x30ff)
        return Script::Kana; // with the marks that change its sound
    if (c.isDigit())
        return Script::Digits;
    if ((unit >= 0x3400 && unit <= 0x9fff) || c.isSurrogate())
        return Script::Ideographs;
    return c.isLetter() || c.isMark() ? Script::Letters : Script::None;
}

// Japanese and Chinese put no blanks between words; where the script changes, one begins.
bool beginsWord(const QString &text, qsizetype at)
{
    const Script before = scriptOf(text.at(at - 1));
    return before == Script::None || before != scriptOf(text.at(at));
}

Match matchOf(const QString &text, const QString &word)
{
    qsizetype at = text.indexOf(word);
    if (at <= 0)
        return at == 0 ? Match::Start : Match::None;
    for (; at > 0; at = text.indexOf(word, at + 1)) {
        if (beginsWord(text, at))
            return Match::WordStart;
    }
    return Match::Infix;
}

// How many letters have to be put in, left out, changed or swapped; more than `most` as that plus
// one.
int distanceOf(const QString &one, const QString &other, int most)
{
    if (qAbs(one.size() - other.size()) > most)
        return most + 1;
    const auto width = static_cast<size_t>(other.size()) + 1;
    std::array<std::vector<int>, 3> rows{std::vector<int>(width), std::vector<int>(width),
                                         std::vector<int>(width)};
    for (size_t j = 0; j < width; ++j)
        rows[1][j] = static_cast<int>(j);
    for (qsizetype i = 1; i <= one.size(); ++i) {
        auto &[before, last, now] = rows;
        now[0] = static_cast<int>(i);
        for (size_t j = 1; j < width; ++j) {
            const auto k = static_cast<qsizetype>(j);
            const bool same = one.at(i - 1) == other.at(k - 1);
            now[j] = std::min({last[j] + 1, now[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
            const bool swapped = i > 1 && k > 1 && one.at(i - 1) == other.at(k - 2) &&
                                 one.at(i - 2) == other.at(k - 1);
            if (swapped)
                now[j] = std::min(now[j], before[j - 2] + 1);
        }
        std::rotate(rows.begin(), rows.begin() + 1, rows.end());
    }
    return std::min(rows[1].back(), most + 1);
}

} // namespace

// Looks for some words.
class SettingsIndex::Search
{
public:
    explicit Search(const QStringList &words) : m_words(words), m_whole(words.join(u' ')) {}

    /// What is found, by which it is put in order: smaller is better.
    struct Hit
    {
        bool isInfix = false;
        int field = 0; ///< name, choice, keyword
        int quality =
            0; ///< the whole text, its beginning, the beginning of a word, the midst of one
        bool isForeign = false;
        qsizetype entry = 0;
        qsizetype choice = -1;

        auto rank() const { return std::tie(isInfix, field, quality, isForeign, entry, choice); }
    };

    void look(const Entry &entry, qsizetype index)
    {
        const bool hasAll = std::all_of(m_words.cbegin(), m_words.cend(), [&](const QString &word) {
            return entry.all.contains(word);
        });
        if (!hasAll)
            return;
        m_byName.clear();
        m_byKeyword.clear();
        for (const QString &word : m_words) {
            const Found name = best(entry.names, word);
            const Match context =
                matchOf(entry.context, word) == Match::None ? Match::None : Match::WordStart;
            m_byName += Found{name.match, context, name.isForeign};
            m_byKeyword += matchOf(entry.keyword, word);
        }
        if (const auto hit = nameHit(entry)) {
            add(*hit, index, -1);
            return;
        }
        if (addChoices(entry, index, Field::Choice))
            return;
        if (const auto hit = keywordHit())
            add(*hit, index, -1);
        else
            addChoices(entry, index, Field::ChoiceKeyword);
    }

    QList<Hit> takeInOrder()
    {
        std::sort(m_hits.begin(), m_hits.end(),
                  [](const Hit &one, const Hit &other) { return one.rank() < other.rank(); });
        return m_hits;
    }

private:
    enum class Field { Choice, ChoiceKeyword };

    struct Found
    {
        Match match = Match::None;
        Match context = Match::None;
        bool isForeign = true;
    };

    static Found best(const QList<Text> &texts, const QString &word)
    {
        Found found;
        for (const Text &text : texts) {
            const Match match = matchOf(text.form, word);
            if (match < found.match)
                found = {match, Match::None, text.isForeign};
        }
        return found;
    }

    bool isWhole(const QList<Text> &texts) const
    {
        return std::any_of(texts.cbegin(), texts.cend(),
                           [this](const Text &text) { return text.form == m_whole; });
    }

    static Hit hit(Match worst, int field, bool whole, bool foreign)
    {
        return {worst == Match::Infix, field, whole ? 0 : static_cast<int>(worst) + 1, foreign};
    }

    // A word may also say where the setting is, beside one that names it.
    std::optional<Hit> nameHit(const Entry &entry) const
    {
        Match worst = Match::Start;
        bool isNamed = false;
        bool foreign = false;
        for (const Found &found : m_byName) {
            const Match match = std::min(found.match, found.context);
            if (match == Match::None)
                return std::nullopt;
            worst = std::max(worst, match);
            isNamed = isNamed || found.match != Match::None;
            foreign = foreign || (found.match != Match::None && found.isForeign);
        }
        return isNamed ? std::optional(hit(worst, 0, isWhole(entry.names), foreign)) : std::nullopt;
    }

    std::optional<Hit> keywordHit() const
    {
        Match worst = Match::Start;
        bool isNamed = false;
        for (qsizetype i = 0; i < m_byName.size(); ++i) {
            const Match match = std::min({m_byName[i].match, m_byName[i].context, m_byKeyword[i]});
            if (match == Match::None)
                return std::nullopt;
            worst = std::max(worst, match);
            isNamed = isNamed || m_byKeyword[i] != Match::None;
        }
        return isNamed ? std::optional(hit(worst, 2, false, false)) : std::nullopt;
    }

    std::optional<Hit> choiceHit(const Choice &choice, Field field) const
    {
        Match worst = Match::Start;
        bool isNamed = false;
        bool foreign = false;
        for (qsizetype i = 0; i < m_words.size(); ++i) {
            Found found = best(choice.names, m_words.at(i));
            if (field == Field::ChoiceKeyword)
                found.match =
                    std::min({found.match, matchOf(choice.keyword, m_words.at(i)), m_byKeyword[i]});
            const Match other = std::min(m_byName[i].match, m_byName[i].context);
            const Match match = std::min(found.match, other);
            if (match == Match::None)
                return std::nullopt;
            worst = std::max(worst, match);
            isNamed = isNamed || found.match != Match::None;
            foreign = foreign || (found.match <= other && found.isForeign);
        }
        if (!isNamed)
            return std::nullopt;
        return hit(worst, field == Field::Choice ? 1 : 2, isWhole(choice.names), foreign);
    }

    bool addChoices(const Entry &entry, qsizetype index, Field field)
    {
        QList<Hit> found;
        for (qsizetype i = 0; i < entry.choices.size(); ++i) {
            if (auto one = choiceHit(entry.choices.at(i), field)) {
                one->choice = i;
                found += *one;
            }
        }
        const auto least = std::min(kMostChoices, found.size());
        std::partial_sort(
            found.begin(), found.begin() + least, found.end(),
            [](const Hit &one, const Hit &other) { return one.rank() < other.rank(); });
        for (qsizetype i = 0; i < least; ++i)
            add(found.at(i), index, found.at(i).choice);
        return !found.isEmpty();
    }

    void add(Hit hit, qsizetype entry, qsizetype choice)
    {
        hit.entry = entry;
        hit.choice = choice;
        m_hits += hit;
    }

    const QStringList &m_words;
    QString m_whole;
    QVarLengthArray<Found, 8> m_byName;    // a word each, of the setting that is looked at
    QVarLengthArray<Match, 8> m_byKeyword; // likewise
    QList<Hit> m_hits;
};

QList<FoundSetting> SettingsIndex::find(const QString &typed) const
{
    const QStringList words = searchWords(typed);
    if (words.isEmpty())
        return {};
    Search search(words);
    for (qsizetype i = 0; i < m_entries.size(); ++i)
        search.look(m_entries.at(i), i);
    QList<FoundSetting> found;
    for (const Search::Hit &hit : search.takeInOrder()) {
        if (found.size() == kMostFound)
            break;
        const Entry &entry = m_entries.at(hit.entry);
        found += FoundSetting{entry.setting,
                              hit.choice < 0 ? QString() : entry.choices.at(hit.choice).text};
    }
    return found;
}

QString SettingsIndex::suggestionFor(const QString &typed) const
{
    constexpr qsizetype kShortest = 3; // of two letters, everything is near to everything
    constexpr qsizetype kLong = 6;
    QStringList better;
    for (const QString &word : searchWords(typed)) {
        const int most = word.size() >= kLong ? 2 : 1;
        int least = word.size() < kShortest ? 0 : most + 1;
        QString nearest = word;
        for (const Entry &entry : m_entries) {
            if (entry.all.contains(word)) {
                nearest = word;
                break;
            }
            const QStringList words = entry.setting.name.simplified().split(u' ');
            for (const QString &one : words) {
                const int distance = least == 0 ? 1 : distanceOf(word, searchForm(one), most);
                if (distance < least) {
                    least = distance;
                    nearest = one;
                }
            }
        }
        better += nearest;
    }
    const QString text = better.join(u' ');
    return find(text).isEmpty() ? QString() : text;
}

} // namespace corvana
