#include "dialog/text/TextFormat.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TextFormat)
};

// What the text filter of CUPS takes where a header is asked for and nothing else.
constexpr double kCharactersPerInchBelowHeader = 12;
constexpr double kLinesPerInchBelowHeader = 8;

QString valueOf(const QList<JobOption> &options, QLatin1StringView name)
{
    const auto found = std::find_if(options.crbegin(), options.crend(),
                                    [&](const JobOption &option) { return option.name == name; });
    return found == options.crend() ? QString() : found->value;
}

bool isTrue(const QString &value)
{
    return value == "true"_L1 || value == "yes"_L1 || value == "on"_L1;
}

// `number` is left alone where nothing, or no number, was asked for.
void readNumber(const QList<JobOption> &options, QLatin1StringView name, double *number)
{
    bool isNumber = false;
    const double value = valueOf(options, name).toDouble(&isNumber);
    if (isNumber && value >= 0)
        *number = value;
}

// The margins of a paper that is read turned by quarters of a circle.
QMarginsF turned(const QMarginsF &m, const QString &orientation)
{
    if (orientation == "4"_L1) // landscape
        return {m.bottom(), m.left(), m.top(), m.right()};
    if (orientation == "5"_L1) // reverse landscape
        return {m.top(), m.right(), m.bottom(), m.left()};
    if (orientation == "6"_L1) // upside down
        return {m.right(), m.bottom(), m.left(), m.top()};
    return m;
}

void takePaper(const QString &ppdPath, const QList<JobOption> &options, TextFormat *format,
               QString *problem)
{
    const PpdFile ppd = openPpdFile(ppdPath, problem);
    if (!ppd)
        return;
    const QString name = valueOf(options, QLatin1StringView("PageSize"));
    if (!name.isEmpty())
        ppdMarkOption(ppd.get(), "PageSize", name.toUtf8().constData());
    const ppd_size_t *paper = ppdPageSize(ppd.get(), nullptr);
    // A letter, with the margins of the text filter.
    QMarginsF margins(18, 36, 18, 36);
    format->page = {612, 792};
    if (paper && paper->width > 0 && paper->length > 0) {
        format->page = {paper->width, paper->length};
        margins = {paper->left, paper->length - paper->top, paper->width - paper->right,
                   paper->bottom};
    }
    const QString orientation = valueOf(options, "orientation-requested"_L1);
    format->margins = turned(margins, orientation);
    if (orientation == "4"_L1 || orientation == "5"_L1)
        format->page.transpose();
}

} // namespace

int TextFormat::linesOnPage() const
{
    const double height = page.height() - margins.top() - margins.bottom() - headerHeight();
    return std::clamp(static_cast<int>(height / 72 * linesPerInch), 1, kMostCellsOfPage);
}

int TextFormat::cellsInLine() const
{
    const double width = page.width() - margins.left() - margins.right();
    return std::clamp(static_cast<int>(width / 72 * charactersPerInch), 1, kMostCellsOfPage);
}

int TextFormat::gapOfColumns() const
{
    return columns > 1 ? static_cast<int>(charactersPerInch / 2) : 0;
}

int TextFormat::cellsInColumn() const
{
    return std::max(1, (cellsInLine() - gapOfColumns() * (columns - 1)) / columns);
}

TextFormat textFormat(const QString &ppdPath, const QList<JobOption> &options, const QString &title,
                      QString *problem)
{
    TextFormat format;
    takePaper(ppdPath, options, &format, problem);
    if (!problem->isEmpty())
        return {};
    format.title = title;
    format.header = isTrue(valueOf(options, "prettyprint"_L1));
    if (format.header) {
        format.charactersPerInch = kCharactersPerInchBelowHeader;
        format.linesPerInch = kLinesPerInchBelowHeader;
    }
    readNumber(options, "cpi"_L1, &format.charactersPerInch);
    readNumber(options, "lpi"_L1, &format.linesPerInch);
    double columns = 1;
    readNumber(options, "columns"_L1, &columns);
    format.columns = std::max(1, static_cast<int>(columns));
    const QString wrap = valueOf(options, "wrap"_L1);
    format.wrap = wrap.isEmpty() || isTrue(wrap);
    double left = format.margins.left();
    double top = format.margins.top();
    double right = format.margins.right();
    double bottom = format.margins.bottom();
    readNumber(options, "page-left"_L1, &left);
    readNumber(options, "page-top"_L1, &top);
    readNumber(options, "page-right"_L1, &right);
    readNumber(options, "page-bottom"_L1, &bottom);
    format.margins = {left, top, right, bottom};
    const bool fits =
        format.charactersPerInch > 0 && format.linesPerInch > 0 &&
        left + right + format.cellWidth() * format.columns <= format.page.width() &&
        top + bottom + format.headerHeight() + format.lineHeight() <= format.page.height();
    if (!fits || qint64(format.cellsInLine()) * format.linesOnPage() > kMostCellsOfPage) {
        *problem =
            Texts::tr("The margins, columns and characters per inch that were asked for "
                      "leave no room for a text on this paper (%1 × %2 points).")
                .arg(QString::number(format.page.width()), QString::number(format.page.height()));
        return {};
    }
    return format;
}

} // namespace corvana
