#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/FileJob.h"
#include "dialog/sheets/SheetCounter.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// What is counted beside what the whole filter chain makes for the sample printer: its pages are
// counted, and its words measured, by programs that know nothing of this code.

namespace {

constexpr int kStreamPatience = 60000; // milliseconds that a chain may take on a busy machine

enum class Kind { Two, TwoOfPostScript, Five, One, Mixed, TwoLetters, Small, Text, Picture, Nine };

constexpr char kTwoPagesOfPostScript[] =
    "%!PS-Adobe-3.0\n%%Pages: 2\n%%EndComments\n"
    "%%Page: 1 1\n/Helvetica findfont 40 scalefont setfont 100 500 moveto (one) show showpage\n"
    "%%Page: 2 2\n/Helvetica findfont 40 scalefont setfont 100 500 moveto (two) show showpage\n"
    "%%EOF\n";

struct StreamRow
{
    const char *name;
    QList<Kind> documents;
    QList<JobOption> options;
};

JobOption number(const char *value)
{
    return {u"number-up"_s, QString::fromLatin1(value)};
}
JobOption pages(const char *value)
{
    return {u"page-ranges"_s, QString::fromLatin1(value)};
}
JobOption set(const char *value)
{
    return {u"page-set"_s, QString::fromLatin1(value)};
}
JobOption scaling(const char *value)
{
    return {u"print-scaling"_s, QString::fromLatin1(value)};
}
JobOption paper(const char *value)
{
    return {u"PageSize"_s, QString::fromLatin1(value)};
}
const JobOption kTwoSided{u"Duplex"_s, u"DuplexNoTumble"_s};
const JobOption kReverse{u"outputorder"_s, u"reverse"_s};

const StreamRow kStreamRows[] = {
    {"as it is", {Kind::Five}, {}},
    {"two-sided", {Kind::Five}, {kTwoSided}},
    {"one page, two-sided", {Kind::One}, {kTwoSided}},
    {"two on a side", {Kind::Five}, {number("2")}},
    {"two on a side, two-sided", {Kind::Five}, {number("2"), kTwoSided}},
    {"four on a side", {Kind::Nine}, {number("4")}},
    {"a range", {Kind::Five}, {pages("2-3")}},
    {"a range that ends behind the last page", {Kind::Five}, {pages("4-9")}},
    {"a range behind the last page", {Kind::Five}, {pages("9-12")}},
    {"an open range", {Kind::Nine}, {pages("1,8-"), kTwoSided}},
    {"even pages", {Kind::Five}, {set("even")}},
    // The layout step adds a blank side to an odd number of even pages, also where it is printed on
    // a sheet of its own.
    {"even pages of two", {Kind::Two}, {set("even")}},
    {"even pages of two in PostScript", {Kind::TwoOfPostScript}, {set("even")}},
    {"even pages of two in PostScript, two-sided",
     {Kind::TwoOfPostScript},
     {set("even"), kTwoSided}},
    {"odd pages of two in PostScript", {Kind::TwoOfPostScript}, {set("odd")}},
    {"even pages of one", {Kind::One}, {set("even")}},
    {"odd pages, two-sided", {Kind::Five}, {set("odd"), kTwoSided}},
    {"even pages, two on a side", {Kind::Nine}, {set("even"), number("2")}},
    {"last page first", {Kind::Five}, {kReverse}},
    {"last page first, two-sided", {Kind::Five}, {kReverse, kTwoSided}},
    {"mixed sizes", {Kind::Mixed}, {}},
    {"mixed sizes, one of them printed", {Kind::Mixed}, {pages("1")}},
    {"mixed sizes, even ones printed", {Kind::Mixed}, {set("even")}},
    {"mixed sizes, two on a side", {Kind::Mixed}, {number("2")}},
    {"mixed sizes, fit", {Kind::Mixed}, {scaling("fit")}},
    {"mixed sizes, fill", {Kind::Mixed}, {scaling("fill")}},
    {"mixed sizes as they are", {Kind::Mixed}, {scaling("none")}},
    {"Letter on A4", {Kind::TwoLetters}, {}},
    {"Letter on Letter", {Kind::TwoLetters}, {paper("Letter")}},
    {"A4 on A5", {Kind::Five}, {paper("A5")}},
    {"a small page", {Kind::Small}, {}},
    {"a small page, fit", {Kind::Small}, {scaling("fit")}},
    {"landscape", {Kind::Five}, {{u"orientation-requested"_s, u"4"_s}}},
    {"text", {Kind::Text}, {}},
    {"text, landscape", {Kind::Text}, {{u"orientation-requested"_s, u"4"_s}}},
    {"text, two on a side", {Kind::Text}, {number("2")}},
    {"text with few lines to an inch",
     {Kind::Text},
     {{u"lpi"_s, u"3"_s}, {u"page-top"_s, u"200"_s}, {u"columns"_s, u"2"_s}}},
    {"text, two-sided pages", {Kind::Text}, {kTwoSided, pages("2-")}},
    {"a picture", {Kind::Picture}, {}},
    {"a picture, four on a side", {Kind::Picture}, {number("4"), kTwoSided}},
    {"the second page of a picture", {Kind::Picture}, {pages("2")}},
    {"three documents", {Kind::One, Kind::Five, Kind::Text}, {kTwoSided}},
    {"three documents of which one has the pages",
     {Kind::One, Kind::Five, Kind::Picture},
     {pages("2-3")}},
};

// A run of a program that was looked for on the path. Errors: what it says is nothing.
QByteArray saidBy(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    return process.waitForFinished(kStreamPatience) ? process.readAll() : QByteArray();
}

QByteArray textOf(int lines)
{
    QByteArray text;
    for (int line = 1; line <= lines; ++line)
        text += "line " + QByteArray::number(line) + '\n';
    return text;
}

} // namespace

class SheetStreamsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PpdSession> m_session = sampleSession();

    Document document(Kind kind)
    {
        const auto pdf = [&](const char *name, const QList<QSizeF> &sizes) {
            const QString file = QString::fromLatin1(name);
            return Document{writeFile(m_folder.filePath(file), numberedPdf("page", sizes)),
                            u"application/pdf"_s, file};
        };
        switch (kind) {
        case Kind::One:
            return pdf("one.pdf", {kA4});
        case Kind::Two:
            return pdf("two.pdf", {kA4, kA4});
        case Kind::TwoOfPostScript:
            return {writeFile(m_folder.filePath(u"two.ps"_s), kTwoPagesOfPostScript),
                    u"application/postscript"_s, u"two.ps"_s};
        case Kind::Five:
            return pdf("five.pdf", QList<QSizeF>(5, kA4));
        case Kind::Nine:
            return pdf("nine.pdf", QList<QSizeF>(9, kA4));
        case Kind::Mixed:
            return pdf("mixed.pdf", {kA4, kLetter, kA5, kA3, kA4.transposed()});
        case Kind::TwoLetters:
            return pdf("letters.pdf", {kLetter, kLetter});
        case Kind::Small:
            return pdf("small.pdf", {kA5});
        case Kind::Picture:
            return {sourceFile(u"tests/data/page.png"_s), u"image/png"_s, u"page.png"_s};
        case Kind::Text:
            break;
        }
        return {writeFile(m_folder.filePath(u"text.txt"_s), textOf(200)), u"text/plain"_s,
                u"text.txt"_s};
    }

    JobTicket ticket(const StreamRow &row) const
    {
        JobTicket ticket{u"Job"_s, 1, {{u"PageSize"_s, u"A4"_s}}};
        for (const JobOption &option : row.options) {
            ticket.options.removeIf([&](const JobOption &o) { return o.name == option.name; });
            ticket.options += option;
        }
        return ticket;
    }

    // The sides of what the chain makes of one document.
    int sidesOfStream(const Document &document, const JobTicket &ticket)
    {
        FileJob job({{document}, ticket, samplePpdPath(), m_folder.filePath(u"out.ps"_s)});
        job.start();
        const JobOutcome outcome = job.wait();
        if (outcome.kind != JobOutcome::Kind::Printed)
            return 0;
        const QByteArray boxes =
            saidBy(u"gs"_s, {u"-q"_s, u"-o"_s, u"/dev/null"_s, u"-sDEVICE=bbox"_s, outcome.file});
        return static_cast<int>(boxes.count("%%HiResBoundingBox"));
    }

    std::optional<JobSheets> counted(const SheetRequest &request)
    {
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, SheetCounter::When::Now);
        if (finished.isEmpty() && !finished.wait(kStreamPatience))
            return std::nullopt;
        return *counter.counted(request);
    }

    SheetRequest request(const StreamRow &row)
    {
        SheetRequest request;
        for (const Kind kind : row.documents)
            request.documents += document(kind);
        request.options = ticket(row).options;
        request.traits = layoutTraits(m_session->ppd(), request.options);
        return request;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (saidBy(u"gs"_s, {u"--version"_s}).isEmpty())
            QSKIP("Ghostscript is not installed");
    }

    void asManySidesAreCountedAsTheStreamHas_data() { addRows(kStreamRows); }
    void asManySidesAreCountedAsTheStreamHas()
    {
        const StreamRow &row = currentRow(kStreamRows);
        const SheetRequest asked = request(row);
        const auto sheets = counted(asked);
        QVERIFY(sheets);
        QCOMPARE(sheets->documents.size(), asked.documents.size());
        QCOMPARE(sheets->isTwoSided, row.options.contains(kTwoSided));
        for (qsizetype i = 0; i < asked.documents.size(); ++i) {
            QVERIFY(sheets->documents.at(i).sides);
            QCOMPARE(*sheets->documents.at(i).sides,
                     sidesOfStream(asked.documents.at(i), ticket(row)));
        }
    }

    // Words of the same letters are as wide in the stream as the scale says.
    void theScaleIsThatOfTheStream_data() { addRows(kStreamRows); }
    void theScaleIsThatOfTheStream()
    {
        const StreamRow &row = currentRow(kStreamRows);
        if (row.documents != QList{Kind::Mixed} && row.documents != QList{Kind::Small} &&
            row.documents != QList{Kind::TwoLetters})
            return;
        const SheetRequest asked = request(row);
        const auto sheets = counted(asked);
        QVERIFY(sheets);
        QList<double> widths;
        FileJob job({asked.documents, ticket(row), samplePpdPath(), m_folder.filePath(u"o.ps"_s)});
        job.start();
        const QString pdf = m_folder.filePath(u"o.pdf"_s);
        saidBy(u"gs"_s, {u"-q"_s, u"-o"_s, pdf, u"-sDEVICE=pdfwrite"_s, job.wait().file});
        const QByteArray words = saidBy(u"pdftotext"_s, {u"-bbox"_s, pdf, u"-"_s});
        static const QRegularExpression word(
            u"xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">page"_s);
        auto match = word.globalMatch(QString::fromUtf8(words));
        while (match.hasNext()) {
            const auto found = match.next();
            const double width = found.captured(3).toDouble() - found.captured(1).toDouble();
            const double height = found.captured(4).toDouble() - found.captured(2).toDouble();
            widths += qMax(width, height) / 106.752; // of "page" in 48 points
        }
        QVERIFY(!widths.isEmpty());
        const QList<PageScale> &scales = sheets->documents.constFirst().scales;
        QVERIFY(!scales.isEmpty());
        for (const PageScale &scale : scales) {
            const bool isThere = std::any_of(widths.cbegin(), widths.cend(), [&](double width) {
                return qAbs(width - scale.scale) < 0.005;
            });
            QVERIFY2(isThere, qPrintable(QString::number(scale.scale)));
        }
        for (const double width : widths) {
            const bool isSaid =
                std::any_of(scales.cbegin(), scales.cend(),
                            [&](const PageScale &s) { return qAbs(width - s.scale) < 0.005; });
            QVERIFY2(isSaid, qPrintable(QString::number(width)));
        }
    }
};

QTEST_MAIN(SheetStreamsTest)

#include "sheet_streams_test.moc"
