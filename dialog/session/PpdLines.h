#pragma once

#include <array>
#include <functional>
#include <utility>

#include <QByteArrayView>

namespace corvana {

/// Puts the lines of a PPD together as libcups does: a text between quotes goes on over the ends of
/// lines, and what stands there begins none, whatever it looks like.
class PpdLines
{
public:
    struct Line
    {
        QByteArrayView begin; ///< at most kLongest bytes; valid during the call
        int stars = 0;        ///< in all of it: each begins an option in a constraint
    };
    /// What is called with each; false: no more is wanted.
    using Take = std::function<bool(const Line &)>;

    explicit PpdLines(Take take) : m_take(std::move(take)) {}

    /// The next bytes of the file. False where no more is wanted.
    bool read(QByteArrayView bytes);
    /// Behind the last ones.
    bool end() { return endLine(); }

private:
    static constexpr qsizetype kLongest = 512; ///< as much of a line as says what it is

    void keep(QByteArrayView bytes);
    bool endLine();

    Take m_take;
    std::array<char, kLongest> m_begin{};
    qsizetype m_length = 0; ///< of what is kept
    int m_stars = 0;
    bool m_hasColon = false;
    bool m_isQuoted = false;
};

} // namespace corvana
