#include "dialog/sheets/PictureTurn.h"

#include <cmath>

#include <QFile>
#include <QPointF>
#include <QRegularExpression>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// The content of the first page comes before the data of the picture.
constexpr qint64 kBegin = 4096;

struct Matrix
{
    double a = 1, b = 0, c = 0, d = 1; // as PDF names them; where it moves to is of no interest
};

// The content of a page, which nothing else in the file looks like.
QByteArray contentIn(const QByteArray &begin)
{
    const qsizetype end = begin.indexOf("/Im Do");
    const qsizetype start = end < 0 ? -1 : begin.lastIndexOf("stream", end);
    return start < 0 ? QByteArray() : begin.mid(start, end - start);
}

QList<Matrix> matricesIn(const QByteArray &content)
{
    static const QRegularExpression form(
        u"(-?[0-9.]+) (-?[0-9.]+) (-?[0-9.]+) (-?[0-9.]+) -?[0-9.]+ -?[0-9.]+ cm"_s);
    QList<Matrix> matrices;
    auto match = form.globalMatch(QString::fromLatin1(content));
    while (match.hasNext()) {
        const auto found = match.next();
        matrices += Matrix{found.captured(1).toDouble(), found.captured(2).toDouble(),
                           found.captured(3).toDouble(), found.captured(4).toDouble()};
    }
    return matrices;
}

} // namespace

int turnOfPicture(const QByteArray &begin)
{
    // Where the top of the picture comes to lie. What stands last in the content is applied first.
    QPointF up(0, 1);
    const QList<Matrix> matrices = matricesIn(contentIn(begin));
    for (auto matrix = matrices.crbegin(); matrix != matrices.crend(); ++matrix)
        up = {matrix->a * up.x() + matrix->c * up.y(), matrix->b * up.x() + matrix->d * up.y()};
    if (std::abs(up.x()) > std::abs(up.y()))
        return up.x() > 0 ? 270 : 90;
    return up.y() < 0 ? 180 : 0;
}

int turnOfPicture(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? turnOfPicture(file.read(kBegin)) : 0;
}

} // namespace corvana
