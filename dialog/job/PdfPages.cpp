#include "dialog/job/PdfPages.h"

#include <QByteArrayView>
#include <QRegularExpression>
#include <QVarLengthArray>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostPages = 10000000;

// "Page    3 rot:   90", "Page    3 TrimBox:   0.00   0.00   595.00   842.00"
struct PageLine
{
    int page = 0;
    QByteArrayView what;
    QVarLengthArray<double, 4> numbers;
};

// At least one.
bool takeBlanks(QByteArrayView &rest)
{
    const qsizetype before = rest.size();
    while (rest.startsWith(' '))
        rest = rest.sliced(1);
    return rest.size() < before;
}

QByteArrayView takeDigits(QByteArrayView &rest)
{
    const QByteArrayView all = rest;
    while (!rest.isEmpty() && rest.front() >= '0' && rest.front() <= '9')
        rest = rest.sliced(1);
    return all.first(all.size() - rest.size());
}

std::optional<double> takeNumber(QByteArrayView &rest)
{
    constexpr qsizetype kMostDigits = 9;
    const QByteArrayView all = rest;
    if (rest.startsWith('-'))
        rest = rest.sliced(1);
    const QByteArrayView whole = takeDigits(rest);
    if (whole.isEmpty() || whole.size() > kMostDigits)
        return std::nullopt;
    if (rest.startsWith('.')) {
        rest = rest.sliced(1);
        if (takeDigits(rest).isEmpty())
            return std::nullopt;
    }
    return all.first(all.size() - rest.size()).toDouble();
}

// By hand: a long document has ten thousands of such lines, and nobody's window stands still for a
// regular expression on each. Errors: page 0.
PageLine readPageLine(QByteArrayView rest)
{
    constexpr qsizetype kMostDigits = 8;
    if (!rest.startsWith("Page"))
        return {};
    rest = rest.sliced(4);
    if (!takeBlanks(rest))
        return {};
    const QByteArrayView page = takeDigits(rest);
    const qsizetype colon = rest.indexOf(':');
    if (page.isEmpty() || page.size() > kMostDigits || !rest.startsWith(' ') || colon < 0)
        return {};
    PageLine read{page.toInt(), rest.sliced(1, colon - 1), {}};
    if (read.what != "rot" && read.what != "MediaBox" && read.what != "CropBox" &&
        read.what != "TrimBox")
        return {};
    rest = rest.sliced(colon + 1);
    while (!rest.isEmpty()) {
        const bool isApart = takeBlanks(rest);
        const std::optional<double> number = takeNumber(rest);
        if (!isApart || !number)
            return {};
        read.numbers += *number;
    }
    return read.numbers.isEmpty() ? PageLine() : read;
}

QRectF boxOf(const PageLine &line)
{
    const auto &corners = line.numbers;
    return corners.size() == 4
               ? QRectF(QPointF(corners[0], corners[1]), QPointF(corners[2], corners[3]))
               : QRectF();
}

void take(const PageLine &line, PdfPage &page)
{
    if (line.what == "rot")
        page.rotation = ((static_cast<int>(line.numbers.front()) % 360) + 360) % 360;
    else if (line.what == "MediaBox")
        page.media = boxOf(line);
    else if (line.what == "CropBox")
        page.crop = boxOf(line);
    else
        page.trim = boxOf(line);
}

} // namespace

QStringList pdfPagesArguments(const QString &path, int described)
{
    if (described <= 0)
        return {path};
    return {u"-f"_s, u"1"_s, u"-l"_s, QString::number(described), u"-box"_s, path};
}

std::optional<PdfPages> readPdfPages(const QByteArray &answer)
{
    // Title, author and the rest of what a document says of itself come first.
    const qsizetype begin = answer.lastIndexOf("\nPages:") + 1;
    if (begin == 0 && !answer.startsWith("Pages:"))
        return std::nullopt;
    static const QRegularExpression pages(u"^Pages: +([0-9]{1,8})$"_s);
    const QByteArrayView lines = QByteArrayView(answer).sliced(begin);
    const auto endOfLine = [lines](qsizetype at) {
        const qsizetype end = lines.indexOf('\n', at);
        return end < 0 ? lines.size() : end;
    };
    const QRegularExpressionMatch match =
        pages.match(QString::fromLatin1(lines.first(endOfLine(0))));
    if (!match.hasMatch() || match.captured(1).toInt() > kMostPages)
        return std::nullopt;
    PdfPages read{match.captured(1).toInt(), {}};
    for (qsizetype at = 0; at < lines.size(); at = endOfLine(at) + 1) {
        const PageLine part = readPageLine(lines.sliced(at, endOfLine(at) - at));
        if (part.page < 1 || part.page > read.count)
            continue;
        // Each page in its turn: there are no gaps in what is asked for.
        if (part.page == read.pages.size() + 1)
            read.pages += PdfPage();
        // First come the rotations of all pages, then their boxes.
        if (part.page <= read.pages.size())
            take(part, read.pages[part.page - 1]);
    }
    return read;
}

} // namespace corvana
