#include "dialog/sheets/ScaleProbe.h"

#include <algorithm>
#include <cmath>

#include <QHash>
#include <QRegularExpression>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Marks lie on a grid. Most of a page may be cropped; its middle stays, and so do enough of them.
constexpr int kMarksAcross = 7;
constexpr int kMarks = kMarksAcross * kMarksAcross;
// Of the shorter edge of a page.
constexpr double kMarkHeight = 1 / 60.0;

// "4000207": page 2, mark 7. All marks have equally many digits, and so are equally wide.
constexpr int kPageFactor = 100;
constexpr int kFirstMark = 4000000;
// Poppler reads 50,000 tiny characters of a page at most.
constexpr int kMostKinds = 100;
static_assert(kMarks < kPageFactor && kMostKinds * kMarks * 7 < 50000);

QPointF placeOf(int mark, const QRectF &box)
{
    const auto part = [](int index) { return (index + 1.0) / (kMarksAcross + 1.0); };
    return {box.left() + box.width() * part(mark % kMarksAcross),
            box.top() + box.height() * part(mark / kMarksAcross)};
}

QByteArray number(double value)
{
    return QByteArray::number(value, 'f', 3);
}

QByteArray textOfBox(const char *name, const QRectF &box)
{
    return QByteArray("/") + name + " [" + number(box.left()) + ' ' + number(box.top()) + ' ' +
           number(box.right()) + ' ' + number(box.bottom()) + "] ";
}

QRectF visibleBox(const PdfPage &page)
{
    return page.trim.isEmpty() ? page.media : page.trim;
}

QByteArray marksOf(int kind, const PdfPage &page)
{
    const QRectF box = visibleBox(page);
    const double height = std::min(box.width(), box.height()) * kMarkHeight;
    QByteArray content = "BT /F " + number(height) + " Tf ";
    for (int mark = 0; mark < kMarks; ++mark) {
        const QPointF place = placeOf(mark, box);
        content += "1 0 0 1 " + number(place.x()) + ' ' + number(place.y()) + " Tm (" +
                   QByteArray::number(kFirstMark + kind * kPageFactor + mark) + ") Tj ";
    }
    return content + "ET";
}

// A PDF of objects that are numbered from 1 on.
QByteArray pdfOf(const QList<QByteArray> &objects)
{
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray table = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    return pdf + "xref\n0 " + count + '\n' + table + "trailer << /Size " + count +
           " /Root 1 0 R >>\nstartxref\n" + QByteArray::number(pdf.size()) + "\n%%EOF\n";
}

struct Mark
{
    int number = 0;
    QPointF place;
};

// In the middle, where turning and mirroring do not move it.
QList<QList<Mark>> marksIn(const QByteArray &answer, qsizetype kinds)
{
    static const QRegularExpression form(
        u"<word xMin=\"(-?[0-9.]+)\" yMin=\"(-?[0-9.]+)\" xMax=\"(-?[0-9.]+)\" "
        "yMax=\"(-?[0-9.]+)\">([0-9]{7})</word>"_s);
    QList<QList<Mark>> marks(kinds);
    auto match = form.globalMatch(QString::fromLatin1(answer));
    while (match.hasNext()) {
        const QRegularExpressionMatch word = match.next();
        const int number = word.captured(5).toInt() - kFirstMark;
        const int kind = number / kPageFactor;
        if (number < 0 || kind >= kinds || number % kPageFactor >= kMarks)
            continue;
        marks[kind] += Mark{number % kPageFactor,
                            {(word.captured(1).toDouble() + word.captured(3).toDouble()) / 2,
                             (word.captured(2).toDouble() + word.captured(4).toDouble()) / 2}};
    }
    return marks;
}

double distance(QPointF one, QPointF other)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y());
}

// Of the two marks that are farthest from each other on the page: so the least is lost by rounding.
double scaleOf(const QList<Mark> &marks, const QRectF &box)
{
    double farthest = 0;
    double scale = 0;
    for (const Mark &one : marks) {
        for (const Mark &other : marks) {
            const double before = distance(placeOf(one.number, box), placeOf(other.number, box));
            if (before > farthest) {
                farthest = before;
                scale = distance(one.place, other.place) / before;
            }
        }
    }
    return scale;
}

// Which way is up on a page as a reader sees it, in the page's own coordinates.
QPointF upOf(const PdfPage &page)
{
    switch (page.rotation) {
    case 90:
        return {-1, 0};
    case 180:
        return {0, -1};
    case 270:
        return {1, 0};
    default:
        return {0, 1};
    }
}

// Of the two marks that are farthest from each other from the bottom to the top of the page. A page
// that is mirrored has its top where it would be without that.
int turnOf(const QList<Mark> &marks, const PdfPage &page)
{
    const QRectF box = visibleBox(page);
    const QPointF up = upOf(page);
    double farthest = 0;
    int turn = 0;
    for (const Mark &one : marks) {
        for (const Mark &other : marks) {
            const QPointF before = placeOf(other.number, box) - placeOf(one.number, box);
            const double along = QPointF::dotProduct(before, up);
            const bool isStraight = std::abs(before.x() * up.y() - before.y() * up.x()) < 0.01;
            if (!isStraight || along <= farthest)
                continue;
            farthest = along;
            // pdftotext measures downwards.
            const QPointF after = other.place - one.place;
            if (std::abs(after.x()) > std::abs(after.y()))
                turn = after.x() > 0 ? 270 : 90;
            else
                turn = after.y() > 0 ? 180 : 0;
        }
    }
    return turn;
}

} // namespace

QList<PdfPage> kindsOfPages(const QList<PdfPage> &pages)
{
    QList<PdfPage> kinds;
    for (const PdfPage &page : pages) {
        if (kinds.isEmpty() || (page != kinds.constLast() && !kinds.contains(page)))
            kinds += page;
        if (kinds.size() > kMostKinds)
            return {};
    }
    return kinds;
}

QSizeF sizeOfPage(const PdfPage &page)
{
    const QSizeF size = visibleBox(page).size();
    return page.rotation % 180 == 0 ? size : size.transposed();
}

QByteArray probeDocument(const QList<PdfPage> &kinds)
{
    constexpr int kBeforePages = 3;
    QList<QByteArray> objects{"<< /Type /Catalog /Pages 2 0 R >>",
                              {},
                              "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"};
    QByteArray pages;
    for (int kind = 0; kind < kinds.size(); ++kind) {
        const PdfPage &page = kinds.at(kind);
        const QByteArray content = marksOf(kind, page);
        const int own = kBeforePages + 1 + 2 * kind;
        pages += QByteArray::number(own) + " 0 R ";
        objects += "<< /Type /Page /Parent 2 0 R " + textOfBox("MediaBox", page.media) +
                   textOfBox("CropBox", page.crop.isEmpty() ? page.media : page.crop) +
                   textOfBox("TrimBox", visibleBox(page)) + "/Rotate " +
                   QByteArray::number(page.rotation) + " /Contents " + QByteArray::number(own + 1) +
                   " 0 R /Resources << /Font << /F 3 0 R >> >> >>";
        objects += "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content +
                   "\nendstream";
    }
    objects[1] =
        "<< /Type /Pages /Kids [" + pages + "] /Count " + QByteArray::number(kinds.size()) + " >>";
    return pdfOf(objects);
}

QStringList probeReadingArguments(const QString &path)
{
    return {u"-bbox"_s, path, u"-"_s};
}

QList<double> scalesOfProbe(const QByteArray &answer, const QList<PdfPage> &kinds)
{
    const QList<QList<Mark>> marks = marksIn(answer, kinds.size());
    QList<double> scales;
    for (qsizetype kind = 0; kind < kinds.size(); ++kind)
        scales += scaleOf(marks.at(kind), visibleBox(kinds.at(kind)));
    return scales;
}

QList<int> turnsOfProbe(const QByteArray &answer, const QList<PdfPage> &kinds)
{
    const QList<QList<Mark>> marks = marksIn(answer, kinds.size());
    QList<int> turns;
    for (qsizetype kind = 0; kind < kinds.size(); ++kind)
        turns += turnOf(marks.at(kind), kinds.at(kind));
    return turns;
}

} // namespace corvana
