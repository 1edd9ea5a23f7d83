#include "dialog/job/ResultFormat.h"

#include <algorithm>
#include <climits>
#include <iterator>
#include <optional>
#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kUnknown = "prn"_L1;
constexpr auto kPostScript = "ps"_L1;
constexpr auto kNoProgram = "-"_L1;

struct Suffix
{
    QLatin1StringView of;
    QLatin1StringView suffix;
};

constexpr Suffix kFormats[] = {
    {"application/vnd.cups-postscript"_L1, kPostScript},
    {"application/postscript"_L1, kPostScript},
    {"application/vnd.cups-pdf"_L1, "pdf"_L1},
    {"application/pdf"_L1, "pdf"_L1},
    {"image/pwg-raster"_L1, "pwg"_L1},
    {"image/urf"_L1, "urf"_L1},
    {"application/pclm"_L1, "pclm"_L1},
    {"application/vnd.hp-pcl"_L1, "pcl"_L1},
    {"application/vnd.hp-pclxl"_L1, "pcl"_L1},
};

// The filters that are on their way to a printer's own language.
constexpr Suffix kPrograms[] = {
    {"gstopxl"_L1, "pcl"_L1},     {"rastertohp"_L1, "pcl"_L1},    {"rastertopclx"_L1, "pcl"_L1},
    {"hpcups"_L1, "pcl"_L1},      {"rastertopclm"_L1, "pclm"_L1}, {"rastertopdf"_L1, "pdf"_L1},
    {"rastertops"_L1, "ps"_L1},   {"pdftops"_L1, "ps"_L1},        {"pstops"_L1, "ps"_L1},
    {"rastertopwg"_L1, "pwg"_L1},
};

// What CUPS' own conversions need to come from a PDF to where a filter of the PPD begins. Other
// beginnings are no way of a document.
struct Beginning
{
    QLatin1StringView format;
    int cost;
};
constexpr Beginning kBeginnings[] = {
    {"application/pdf"_L1, 0},
    {"application/vnd.cups-pdf"_L1, 66},
    {"application/vnd.cups-raster"_L1, 165},
    {"image/pwg-raster"_L1, 165},
    {"application/vnd.cups-postscript"_L1, 166},
    {"image/urf"_L1, 265},
};

struct FilterLine
{
    QString source;
    QString destination; // empty where the line names none
    int cost = 0;
    QString program;
};

template <class Table>
auto suffixIn(const Table &table, const QString &what) -> std::optional<QString>
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [&](const Suffix &row) { return row.of == what; });
    return found == std::end(table) ? std::nullopt : std::optional(QString(found->suffix));
}

bool isBlank(QChar c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

// The next word of a line, which is taken from it.
QStringView takeWord(QStringView *line)
{
    const auto *begin = std::find_if_not(line->begin(), line->end(), isBlank);
    const auto *end = std::find_if(begin, line->end(), isBlank);
    const QStringView word(begin, end);
    *line = QStringView(end, line->end());
    return word;
}

// "application/pdf"
bool isFormat(QStringView word)
{
    const qsizetype slash = word.indexOf(u'/', 1);
    return slash > 0 && slash < word.size() - 1;
}

bool isNumber(QStringView word)
{
    return !word.isEmpty() &&
           std::all_of(word.begin(), word.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

// "maxsize(1000)", which may stand in front of the program.
QStringView withoutLimit(QStringView program)
{
    constexpr auto kLimit = "maxsize("_L1;
    const qsizetype end = program.indexOf(u')');
    if (!program.startsWith(kLimit) || end < 0 ||
        !isNumber(program.first(end).sliced(kLimit.size())))
        return program;
    const QStringView behind = program.sliced(end + 1).trimmed();
    return behind.isEmpty() ? program : behind;
}

// Read without a pattern: each window would wait for one to be compiled.
std::optional<FilterLine> readLine(const QByteArray &line)
{
    constexpr qsizetype kMostDigits = 9;
    const QString text = QString::fromLatin1(line);
    QStringView rest(text);
    const QStringView source = takeWord(&rest);
    QStringView destination;
    QStringView cost = takeWord(&rest);
    if (isFormat(cost))
        destination = std::exchange(cost, takeWord(&rest));
    const QStringView program = withoutLimit(rest.trimmed());
    if (!isFormat(source) || !isNumber(cost) || cost.size() > kMostDigits || program.isEmpty())
        return std::nullopt;
    return FilterLine{source.toString().toLower(), destination.toString().toLower(), cost.toInt(),
                      QFileInfo(program.toString()).fileName()};
}

QString suffixOf(const FilterLine &line)
{
    if (const auto told = suffixIn(kFormats, line.destination))
        return *told;
    const auto known = line.program == kNoProgram ? suffixIn(kFormats, line.source)
                                                  : suffixIn(kPrograms, line.program);
    return known.value_or(QString(kUnknown));
}

// A name as long as file systems take one: of a longer one the end before the ending is left out.
QString fittingName(QString base, const QString &ending)
{
    constexpr qsizetype kLongest = 255; // bytes
    while (!base.isEmpty() && QFile::encodeName(base + ending).size() > kLongest)
        base.chop(base.size() > 1 && base.back().isLowSurrogate() ? 2 : 1);
    return base + ending;
}

} // namespace

QString resultSuffix(ppd_file_t *ppd)
{
    QList<QByteArray> lines;
    for (const ppd_attr_t *line = ppdFindAttr(ppd, "cupsFilter2", nullptr); line;
         line = ppdFindNextAttr(ppd, "cupsFilter2", nullptr))
        lines += QByteArray(line->value);
    if (lines.isEmpty()) {
        for (int i = 0; i < ppd->num_filters; ++i)
            lines += QByteArray(ppd->filters[i]);
    }
    // Without a filter CUPS makes PostScript.
    QString suffix = lines.isEmpty() ? QString(kPostScript) : QString(kUnknown);
    int least = INT_MAX;
    for (const QByteArray &text : lines) {
        const std::optional<FilterLine> line = readLine(text);
        const auto *begin = line ? std::find_if(std::begin(kBeginnings), std::end(kBeginnings),
                                                [&](const Beginning &beginning) {
                                                    return beginning.format == line->source;
                                                })
                                 : std::end(kBeginnings);
        if (begin == std::end(kBeginnings) || begin->cost + line->cost >= least)
            continue;
        least = begin->cost + line->cost;
        suffix = suffixOf(*line);
    }
    return suffix;
}

QString freeResultName(const QString &folder, const QString &base, const QString &suffix)
{
    // Of ".bashrc" the part before the ending is nothing, and a file without one is hidden.
    const QString given = base.isEmpty() ? u"document"_s : base;
    const QDir place(folder);
    QString name = place.absoluteFilePath(fittingName(given, u'.' + suffix));
    for (int i = 2; QFileInfo::exists(name); ++i)
        name =
            place.absoluteFilePath(fittingName(given, u"-%1.%2"_s.arg(QString::number(i), suffix)));
    return name;
}

} // namespace corvana
