#include "tests/dialog/task/TruthSamples.h"

#include <QImage>
#include <QPainter>

#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

QByteArray textOfLines(int lines)
{
    QByteArray text;
    for (int line = 1; line <= lines; ++line)
        text += "line " + QByteArray::number(line) + " of a text that is printed\n";
    return text;
}

QByteArray postScriptOfPages(int pages)
{
    QByteArray data =
        "%!PS-Adobe-3.0\n%%BoundingBox: 0 0 595 842\n%%Pages: " + QByteArray::number(pages) +
        "\n%%EndComments\n";
    for (int page = 1; page <= pages; ++page) {
        const QByteArray number = QByteArray::number(page);
        data += "%%Page: " + number + ' ' + number +
                "\n2 setlinewidth 50 50 495 742 rectstroke 1 0 0 setrgbcolor 58 744 60 40 rectfill "
                "0 0 1 setrgbcolor 497 764 40 20 rectfill 0 setgray /Helvetica 48 selectfont 100 "
                "421 moveto (a " +
                number + ") show showpage\n";
    }
    return data + "%%Trailer\n%%EOF\n";
}

// Pages that are as large as each says of itself.
QByteArray mixedPostScript(const QList<QSizeF> &sizes)
{
    QByteArray data = "%!PS-Adobe-3.0\n%%Pages: " + QByteArray::number(sizes.size()) +
                      "\n%%EndComments\n/w 0 def /h 0 def\n";
    for (qsizetype page = 1; page <= sizes.size(); ++page) {
        const QByteArray number = QByteArray::number(page);
        const QSizeF size = sizes.at(page - 1);
        data += "%%Page: " + number + ' ' + number + "\n/w " + QByteArray::number(size.width()) +
                " def /h " + QByteArray::number(size.height()) +
                " def << /PageSize [w h] >> setpagedevice\n2 setlinewidth 50 50 w 100 sub h 100 "
                "sub rectstroke 1 0 0 setrgbcolor 58 h 98 sub 60 40 rectfill 0 0 1 setrgbcolor w "
                "98 sub h 78 sub 40 20 rectfill 0 setgray /Helvetica 48 selectfont 100 h 2 div "
                "moveto (a " +
                number + ") show showpage\n";
    }
    return data + "%%Trailer\n%%EOF\n";
}

QString inFolder(const QString &folder, const QString &name)
{
    return folder + u'/' + name;
}

Document pdf(const QString &folder, const QString &name, const QByteArray &content)
{
    return {writeFile(inFolder(folder, name + u".pdf"_s), content), u"application/pdf"_s, name};
}

Document picture(const QString &folder, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    // Nothing thin: that would be lost, or not, when the picture is made smaller.
    QPainter painter(&image);
    painter.fillRect(image.rect().adjusted(0, size.height() - 30, 0, 0), Qt::darkGray);
    painter.fillRect(20, 20, 120, 80, Qt::red);
    painter.fillRect(size.width() - 100, 20, 80, 40, Qt::blue);
    painter.fillRect(size.width() / 3, size.height() / 2, 100, 60, Qt::black);
    painter.end();
    const QString path = inFolder(folder, u"picture.png"_s);
    image.save(path);
    return {path, u"image/png"_s, u"picture.png"_s};
}

} // namespace

QList<Document> documentsOf(Kind kind, const QString &folder)
{
    const QSizeF wide = kA4.transposed();
    switch (kind) {
    case Kind::A4:
        return {pdf(folder, u"a"_s, numberedPdf("a", 3))};
    case Kind::Single:
        return {pdf(folder, u"a"_s, numberedPdf("a", 1))};
    case Kind::Letter:
        return {pdf(folder, u"a"_s, numberedPdf("a", QList<QSizeF>{kLetter, kLetter, kLetter}))};
    case Kind::Landscape:
        return {pdf(folder, u"a"_s, numberedPdf("a", QList<QSizeF>{wide, wide, wide}))};
    case Kind::Mixed:
        return {pdf(folder, u"a"_s, numberedPdf("a", QList<QSizeF>{kA4, kLetter, wide, kA5, kA3}))};
    case Kind::Rotated:
        return {pdf(
            folder, u"a"_s,
            numberedPdf("a", QList<NumberedPage>{{kA4, 90}, {kA4, 270}, {kA4, 180}, {wide, 90}}))};
    case Kind::Cropped:
        return {pdf(folder, u"a"_s,
                    numberedPdf("a", QList<NumberedPage>{{kA4, 0, {40, 100, 500, 700}},
                                                         {kA3, 0, {30, 500, 595, 650}},
                                                         {kA4, 90, {40, 40, 400, 700}}}))};
    case Kind::Portrait:
        return {picture(folder, {600, 800})};
    case Kind::Wide:
        return {picture(folder, {1000, 600})};
    case Kind::Text:
        return {{writeFile(inFolder(folder, u"a.txt"_s), textOfLines(150)), u"text/plain"_s,
                 u"a.txt"_s}};
    case Kind::PostScript:
        return {{writeFile(inFolder(folder, u"a.ps"_s), postScriptOfPages(3)),
                 u"application/postscript"_s, u"a.ps"_s}};
    case Kind::MixedPostScript:
        return {{writeFile(inFolder(folder, u"a.ps"_s),
                           mixedPostScript({kA4, kLetter, wide, kA5, kA3})),
                 u"application/postscript"_s, u"a.ps"_s}};
    case Kind::Several:
        return {pdf(folder, u"a"_s, numberedPdf("a", 3)),
                pdf(folder, u"b"_s, numberedPdf("b", QList<QSizeF>{wide, wide})),
                pdf(folder, u"c"_s, numberedPdf("c", QList<QSizeF>{kLetter, kLetter, kLetter}))};
    case Kind::Long:
        return {pdf(folder, u"a"_s, numberedPdf("a", 60))};
    case Kind::VeryLong:
        return {pdf(folder, u"a"_s, numberedPdf("a", 500))};
    }
    return {};
}

NamedLayout layout(const char *name, const char *value)
{
    const JobOption option{QString::fromLatin1(name), QString::fromLatin1(value)};
    return {option.name + u'=' + option.value, {option}};
}

NamedLayout operator+(const NamedLayout &one, const NamedLayout &other)
{
    return {one.name + u", "_s + other.name, one.options + other.options};
}

QList<QList<NamedLayout>> controls()
{
    const auto values = [](const char *name, const QList<const char *> &texts) {
        QList<NamedLayout> layouts;
        for (const char *value : texts)
            layouts += layout(name, value);
        return layouts;
    };
    QList<NamedLayout> orders;
    for (const char *order : {"lrbt", "rltb", "rlbt", "tblr", "tbrl", "btlr", "btrl"})
        orders += layout("number-up", "6") + layout("number-up-layout", order);
    return {
        values("number-up", {"2", "4", "6", "9"}) + orders,
        values("page-border", {"single", "double-thick"}),
        values("orientation-requested", {"3", "4", "5", "6"}),
        values("print-scaling", {"auto", "auto-fit", "fit", "fill", "none"}),
        values("mirror", {"true"}),
        values("page-ranges", {"2-3", "1,3-"}),
        values("page-set", {"odd", "even"}),
        values("outputorder", {"reverse"}),
        values("Duplex", {"DuplexNoTumble", "DuplexTumble"}),
        values("PageSize", {"Letter", "A5", "Executive"}),
    };
}

} // namespace corvana::test
