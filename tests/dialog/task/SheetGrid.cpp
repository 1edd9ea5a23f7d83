#include "tests/dialog/task/SheetGrid.h"

#include <algorithm>

#include <QMap>
#include <QProcess>
#include <QRegularExpression>

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 60000;
// Farther than two words of one cell are from each other, nearer than two cells. Units: points.
constexpr double kApart = 70;

struct Cell
{
    int page = 0;
    QPointF place; // of its number
};

// A point of a side, as the side is seen turned clockwise. Where it begins does not matter.
QPointF turned(QPointF point, int quarters)
{
    for (int i = 0; i < quarters; ++i)
        point = {-point.y(), point.x()};
    return point;
}

// By how many quarters a side is turned to read words that run that way (down is positive).
int quartersOf(QPointF direction)
{
    if (std::abs(direction.x()) > std::abs(direction.y()))
        return direction.x() > 0 ? 0 : 2;
    return direction.y() > 0 ? 3 : 1;
}

QString gridOf(QList<Cell> cells)
{
    std::sort(cells.begin(), cells.end(), [](const Cell &one, const Cell &other) {
        const double below = other.place.y() - one.place.y();
        return std::abs(below) > kApart ? below > 0 : one.place.x() < other.place.x();
    });
    QString grid;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const bool isNewRow = i > 0 && cells.at(i).place.y() - cells.at(i - 1).place.y() > kApart;
        grid += (i == 0 ? u""_s : isNewRow ? u" / "_s : u" "_s) + QString::number(cells.at(i).page);
    }
    return grid;
}

// Each number follows the name of its document.
QString gridOfSide(const QString &side, int rotation)
{
    static const QRegularExpression form(
        u"xMin=\"(-?[0-9.]+)\" yMin=\"(-?[0-9.]+)\" xMax=\"(-?[0-9.]+)\" yMax=\"(-?[0-9.]+)\">"
        "([a-z]+|[0-9]+)</word>"_s);
    QList<QPointF> names;
    QList<Cell> cells;
    auto match = form.globalMatch(side);
    while (match.hasNext()) {
        const auto word = match.next();
        const auto at = [&](int one, int other) {
            return (word.captured(one).toDouble() + word.captured(other).toDouble()) / 2;
        };
        const QPointF place(at(1, 3), at(2, 4));
        bool isNumber = false;
        const int number = word.captured(5).toInt(&isNumber);
        if (isNumber)
            cells += Cell{number, place};
        else
            names += place;
    }
    if (cells.isEmpty() || names.isEmpty())
        return {};
    const auto lengthTo = [&](QPointF name) {
        return QPointF(name - cells.constFirst().place).manhattanLength();
    };
    const QPointF nearest =
        *std::min_element(names.cbegin(), names.cend(), [&](QPointF one, QPointF other) {
            return lengthTo(one) < lengthTo(other);
        });
    // Where a reader turns the page, its words do not run to the right.
    const int quarters = (quartersOf(cells.constFirst().place - nearest) + rotation / 90) % 4;
    for (Cell &cell : cells)
        cell.place = turned(cell.place, quarters);
    return gridOf(cells);
}

} // namespace

QStringList gridsAsRead(const QByteArray &pdf, int rotation)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-bbox"_s, u"-"_s, u"-"_s});
    reader.write(pdf);
    reader.closeWriteChannel();
    if (!reader.waitForFinished(kPatience))
        return {};
    QStringList grids;
    const QStringList sides =
        QString::fromUtf8(reader.readAllStandardOutput()).split(u"<page "_s).sliced(1);
    for (const QString &side : sides)
        grids += gridOfSide(side, rotation);
    return grids;
}

QString gridOf(const QString &order, int columns, int rows, int first)
{
    const bool isByRows = order.startsWith(u'l') || order.startsWith(u'r');
    QStringList lines;
    for (int row = 0; row < rows; ++row) {
        QStringList line;
        for (int column = 0; column < columns; ++column) {
            const int x = order.contains("lr"_L1) ? column : columns - 1 - column;
            const int y = order.contains("tb"_L1) ? row : rows - 1 - row;
            line += QString::number(first + (isByRows ? y * columns + x : x * rows + y));
        }
        lines += line.join(u' ');
    }
    return lines.join(u" / "_s);
}

} // namespace corvana::test
