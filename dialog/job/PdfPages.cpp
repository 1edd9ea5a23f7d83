#include "dialog/job/PdfPages.h"

#include <QMap>
#include <QRegularExpression>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostPages = 10000000;

// "Page    3 rot:   90", "Page    3 TrimBox:   0.00   0.00   595.00   842.00"
struct PageLine
{
    int page = 0;
    QString what;
    QList<double> numbers;
};

// Errors: page 0.
PageLine readPageLine(const QString &line)
{
    static const QRegularExpression form(
        u"^Page +([0-9]{1,8}) (rot|MediaBox|CropBox|TrimBox):((?: +-?[0-9]{1,9}(?:[.][0-9]+)?)+)$"_s);
    const QRegularExpressionMatch match = form.match(line);
    if (!match.hasMatch())
        return {};
    PageLine read{match.captured(1).toInt(), match.captured(2), {}};
    const QStringList numbers = match.captured(3).split(u' ', Qt::SkipEmptyParts);
    for (const QString &number : numbers)
        read.numbers += number.toDouble();
    return read;
}

QRectF boxOf(const QList<double> &corners)
{
    return corners.size() == 4
               ? QRectF(QPointF(corners[0], corners[1]), QPointF(corners[2], corners[3]))
               : QRectF();
}

void take(const PageLine &line, PdfPage &page)
{
    if (line.what == "rot"_L1)
        page.rotation = ((static_cast<int>(line.numbers.constFirst()) % 360) + 360) % 360;
    else if (line.what == "MediaBox"_L1)
        page.media = boxOf(line.numbers);
    else if (line.what == "CropBox"_L1)
        page.crop = boxOf(line.numbers);
    else
        page.trim = boxOf(line.numbers);
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
    const QStringList lines = QString::fromLatin1(answer.mid(begin)).split(u'\n');
    const QRegularExpressionMatch match = pages.match(lines.constFirst());
    if (!match.hasMatch() || match.captured(1).toInt() > kMostPages)
        return std::nullopt;
    PdfPages read{match.captured(1).toInt(), {}};
    for (const QString &line : lines) {
        const PageLine part = readPageLine(line);
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
