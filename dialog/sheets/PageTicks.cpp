#include "dialog/sheets/PageTicks.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include <QStringList>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kOpenEnd = std::numeric_limits<int>::max();
constexpr int kMostDigits = 9;

// A number of a page; nothing for a text that is none. Digits of any width, as keyboards of East
// Asian languages write them, have become ASCII by then.
std::optional<int> pageOf(const QString &text)
{
    const bool isNumber =
        !text.isEmpty() && text.size() <= kMostDigits &&
        std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    const int page = isNumber ? text.toInt() : 0;
    return page >= 1 ? std::optional(page) : std::nullopt;
}

std::optional<PageRange> rangeOf(const QString &part)
{
    const qsizetype dash = part.indexOf(u'-');
    if (dash < 0) {
        const std::optional<int> page = pageOf(part);
        return page ? std::optional(PageRange{*page, *page}) : std::nullopt;
    }
    const QString before = part.first(dash);
    const QString behind = part.mid(dash + 1);
    if (before.isEmpty() && behind.isEmpty())
        return std::nullopt;
    const std::optional<int> first = before.isEmpty() ? 1 : pageOf(before);
    const std::optional<int> last = behind.isEmpty() ? kOpenEnd : pageOf(behind);
    return first && last ? std::optional(PageRange{*first, *last}) : std::nullopt;
}

// One spelling of what people type and paste: digits and commas of full width, dashes of any
// length, separators of other scripts.
QString inAscii(const QString &text)
{
    QString ascii;
    const QString compatible = text.normalized(QString::NormalizationForm_KC);
    for (const QChar c : compatible) {
        switch (c.unicode()) {
        case u'\u2010': // hyphen
        case u'\u2013': // en dash
        case u'\u2014': // em dash
        case u'\u2212': // minus sign
        case u'\u301c': // wave dash
        case u'~':
            ascii += u'-';
            break;
        case u';':
        case u'\u3001': // ideographic comma
        case u'\u060c': // Arabic comma
            ascii += u',';
            break;
        default:
            if (!c.isSpace())
                ascii += c.isDigit() ? QChar(u'0' + c.digitValue()) : c;
        }
    }
    return ascii;
}

QString joinedRanges(const QList<PageRange> &ranges, QLatin1StringView separator)
{
    QStringList parts;
    for (const PageRange &range : ranges) {
        if (range.last == range.first)
            parts += QString::number(range.first);
        else if (range.last == kOpenEnd)
            parts += QString::number(range.first) + u'-';
        else
            parts += QString::number(range.first) + u'-' + QString::number(range.last);
    }
    return parts.join(separator);
}

} // namespace

PageTicks::PageTicks(const QList<PageRange> &ranges, int pages) : m_ticked(pages, false)
{
    for (const auto &[first, last] : rangesWithin(ranges, pages))
        tickRun(first, last, true);
}

void PageTicks::tickRun(int one, int other, bool ticked)
{
    const int first = std::max(1, std::min(one, other));
    const int last = std::min(pages(), std::max(one, other));
    for (int page = first; page <= last; ++page)
        m_ticked[page - 1] = ticked;
}

void PageTicks::tickOnly(Which which)
{
    for (int page = 1; page <= pages(); ++page) {
        const bool isOdd = page % 2 == 1;
        m_ticked[page - 1] = which == Which::All || (which == Which::Odd && isOdd) ||
                             (which == Which::Even && !isOdd);
    }
}

void PageTicks::invert()
{
    for (bool &ticked : m_ticked)
        ticked = !ticked;
}

QList<PageRange> PageTicks::ranges() const
{
    QList<PageRange> ranges;
    for (int page = 1; page <= pages(); ++page) {
        if (!isTicked(page))
            continue;
        if (!ranges.isEmpty() && ranges.constLast().last == page - 1)
            ranges.last().last = page;
        else
            ranges += PageRange{page, page};
    }
    return ranges;
}

TypedPages typedPages(const QString &text)
{
    const QString ascii = inAscii(text);
    QList<PageRange> ranges;
    // What somebody is about to type ends with a comma.
    const QStringList parts = ascii.split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const std::optional<PageRange> range = rangeOf(part);
        if (!range)
            return {{}, TypedPages::Problem::NoPages, part};
        if (range->last < range->first)
            return {{}, TypedPages::Problem::Backwards, part};
        ranges += *range;
    }
    if (ranges.isEmpty() && !ascii.isEmpty())
        return {{}, TypedPages::Problem::NoPages, ascii};
    return {unitedRanges(ranges), TypedPages::Problem::None, {}};
}

QList<PageRange> unitedRanges(QList<PageRange> ranges)
{
    std::sort(ranges.begin(), ranges.end(),
              [](const PageRange &one, const PageRange &other) { return one.first < other.first; });
    QList<PageRange> apart;
    for (const PageRange &range : std::as_const(ranges)) {
        // A range that begins right behind another one goes on with it.
        const bool goesOn = !apart.isEmpty() && (apart.constLast().last == kOpenEnd ||
                                                 range.first <= apart.constLast().last + 1);
        if (goesOn)
            apart.last().last = std::max(apart.constLast().last, range.last);
        else
            apart += range;
    }
    return apart;
}

QString rangesText(const QList<PageRange> &ranges)
{
    return joinedRanges(ranges, ","_L1);
}

QString readableRanges(const QList<PageRange> &ranges)
{
    return joinedRanges(ranges, ", "_L1);
}

} // namespace corvana
