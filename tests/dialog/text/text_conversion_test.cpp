#include <algorithm>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/text/TextCheck.h"
#include "dialog/text/TextConversion.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Lines without a blank, so that each is one word for whoever reads the PDF.
QByteArray ruler(int lines)
{
    QByteArray text;
    for (int i = 0; i < lines; ++i)
        text += "line-" + QByteArray::number(i) + '-' +
                QByteArray("0123456789").repeated(i % 2 ? 20 : 4) + '\n';
    return text;
}

struct Layout
{
    const char *name;
    QStringList options; // "name=value"
};
const Layout kLayouts[] = {
    {"as usual", {}},
    {"on another paper", {u"PageSize=Letter"_s}},
    {"landscape", {u"orientation-requested=4"_s}},
    {"reverse landscape", {u"orientation-requested=5"_s}},
    {"upside down", {u"orientation-requested=6"_s}},
    {"with margins",
     {u"page-left=100"_s, u"page-right=50"_s, u"page-top=80"_s, u"page-bottom=90"_s}},
    {"landscape with margins",
     {u"orientation-requested=4"_s, u"page-left=100"_s, u"page-top=80"_s}},
    {"small letters", {u"cpi=17"_s, u"lpi=8"_s}},
    {"fractions", {u"cpi=16.67"_s, u"lpi=7.5"_s}},
    {"large letters", {u"cpi=5"_s, u"lpi=3"_s}},
    {"two columns", {u"columns=2"_s}},
    {"three columns of small letters", {u"columns=3"_s, u"cpi=15"_s}},
    {"long lines are cut", {u"wrap=false"_s}},
};

// Where the words of a PDF's first page are: "xMin yMin xMax yMax" of each.
struct Words
{
    int pages = 0;
    QSizeF page;
    QList<QRectF> places; // from the top, then from the left
};

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60000);
    return process.readAllStandardOutput();
}

Words wordsOf(const QString &pdf)
{
    Words words;
    static const QRegularExpression page(u"<page width=\"([0-9.]+)\" height=\"([0-9.]+)\""_s);
    static const QRegularExpression word(
        u"<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\""_s);
    const QStringList lines =
        QString::fromUtf8(output(u"pdftotext"_s, {u"-bbox"_s, pdf, u"-"_s})).split(u'\n');
    for (const QString &line : lines) {
        if (const auto match = page.match(line); match.hasMatch()) {
            ++words.pages;
            words.page = {match.captured(1).toDouble(), match.captured(2).toDouble()};
        }
        if (const auto match = word.match(line); match.hasMatch() && words.pages == 1)
            words.places +=
                QRectF(QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()),
                       QPointF(match.captured(3).toDouble(), match.captured(4).toDouble()));
    }
    std::sort(words.places.begin(), words.places.end(), [](const QRectF &one, const QRectF &other) {
        return std::pair(qRound(one.top()), one.left()) <
               std::pair(qRound(other.top()), other.left());
    });
    return words;
}

QList<JobOption> optionsOf(const QStringList &texts)
{
    QList<JobOption> options;
    for (const QString &text : texts)
        options += JobOption{text.section(u'=', 0, 0), text.section(u'=', 1)};
    return options;
}

} // namespace

/// Texts become pages.
class TextConversionTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }

    // What is said when a text of some pages is written there.
    static QString problemOfWriting(const QString &pdf)
    {
        QString problem;
        TextConversion conversion(sourceFile("tests/data/page.txt"_L1),
                                  textFormat(samplePpdPath(), {}, {}, &problem), pdf);
        QSignalSpy finished(&conversion, &TextConversion::finished);
        conversion.start();
        return finished.wait(60000) ? finished.at(0).at(0).toString() : u"nothing"_s;
    }

    // The PDF of a text, or an empty name; `problem` is what was said.
    QString converted(const QByteArray &text, const QStringList &options, QString *problem)
    {
        writeFile(path(u"notes.txt"_s), text);
        const TextFormat format =
            textFormat(samplePpdPath(), optionsOf(options), u"notes.txt"_s, problem);
        if (!problem->isEmpty())
            return {};
        TextConversion conversion(path(u"notes.txt"_s), format, path(u"notes.pdf"_s));
        QSignalSpy finished(&conversion, &TextConversion::finished);
        conversion.start();
        if (!finished.wait(60000))
            *problem = u"no end"_s;
        else
            *problem = finished.at(0).at(0).toString();
        return problem->isEmpty() ? path(u"notes.pdf"_s) : QString();
    }

    QString textOf(const QString &pdf, const QStringList &more = {}) const
    {
        return QString::fromUtf8(output(u"pdftotext"_s, QStringList{u"-layout"_s} + more +
                                                            QStringList{pdf, u"-"_s}))
            .remove(u'\f')
            .trimmed();
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    // The text filter of CUPS lays texts of ASCII out as administrators know them.
    void asciiStandsWhereTheTextFilterOfCupsPutsIt_data() { addRows(kLayouts); }
    void asciiStandsWhereTheTextFilterOfCupsPutsIt()
    {
        const Layout &row = currentRow(kLayouts);
        QString problem;
        const QString ours = converted(ruler(60), row.options, &problem);
        QCOMPARE(problem, QString());
        QProcess filter;
        filter.setStandardOutputFile(path(u"filter.pdf"_s));
        QStringList arguments{u"-p"_s,         samplePpdPath(), u"-i"_s,
                              u"text/plain"_s, u"-m"_s,         u"application/pdf"_s};
        for (const QString &option : row.options)
            arguments << u"-o"_s << option;
        filter.start(u"/usr/sbin/cupsfilter"_s, arguments << path(u"notes.txt"_s));
        QVERIFY(filter.waitForFinished(60000));
        const Words expected = wordsOf(path(u"filter.pdf"_s));
        const Words found = wordsOf(ours);
        QVERIFY(expected.pages > 0);
        QCOMPARE(found.pages, expected.pages);
        QCOMPARE(found.page.toSize(), expected.page.toSize());
        QCOMPARE(found.places.size(), expected.places.size());
        for (qsizetype i = 0; i < expected.places.size(); ++i) {
            const QRectF &one = found.places.at(i);
            const QRectF &other = expected.places.at(i);
            // A third of a column; the edge of a glyph is not that of its column.
            QVERIFY2(qAbs(one.left() - other.left()) < 2.5 && qAbs(one.right() - other.right()) < 5,
                     qPrintable(u"word %1: %2 to %3, not %4 to %5"_s.arg(i)
                                    .arg(one.left())
                                    .arg(one.right())
                                    .arg(other.left())
                                    .arg(other.right())));
            QVERIFY2(qAbs(one.center().y() - other.center().y()) < 4,
                     qPrintable(u"word %1: at %2, not %3"_s.arg(i)
                                    .arg(one.center().y())
                                    .arg(other.center().y())));
        }
    }

    void theTextCanBeReadBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("Japanese") << u"日本語の文書。一二三 人大小見言語 ABC ｱｲｳ"_s;
        QTest::newRow("Chinese") << u"简体中文，你好世界。繁體中文：臺灣 abc"_s;
        QTest::newRow("beyond the first plane") << u"𠮷野家"_s;
        QTest::newRow("Western") << u"Größe, déjà, ½ €"_s;
        QTest::newRow("Greek and frames") << u"α β ┌──┐"_s;
    }
    void theTextCanBeReadBack()
    {
        QFETCH(QString, text);
        QString problem;
        const QString pdf = converted(text.toUtf8() + '\n', {}, &problem);
        QCOMPARE(problem, QString());
        QCOMPARE(textOf(pdf), text);
    }

    void wideCharactersKeepTheColumns()
    {
        QString problem;
        const QString pdf = converted("日本語|\nabcdef|\n", {}, &problem);
        const QList<QRectF> places = wordsOf(pdf).places;
        QCOMPARE(places.size(), 2);
        QVERIFY(qAbs(places.at(0).right() - places.at(1).right()) < 0.1);
    }

    // A frame around nothing has less ink than the character.
    void everyCharacterHasItsShape()
    {
        QString problem;
        const QString pdf = converted("語龍鬱議\n", {}, &problem);
        output(u"pdftoppm"_s, {u"-r"_s, u"100"_s, u"-gray"_s, u"-x"_s, u"0"_s, u"-y"_s, u"0"_s,
                               u"-W"_s, u"200"_s, u"-H"_s, u"60"_s, pdf, path(u"picture"_s)});
        QFile picture(path(u"picture-1.pgm"_s));
        QVERIFY(picture.open(QIODevice::ReadOnly));
        const QByteArray pixels = picture.readAll().mid(15);
        const auto dark =
            std::count_if(pixels.cbegin(), pixels.cend(), [](char c) { return uchar(c) < 128; });
        QVERIFY2(dark > 250, qPrintable(QString::number(dark)));
    }

    void aHeaderNamesTitleAndPage()
    {
        QString problem;
        const QString pdf = converted(ruler(200), {u"prettyprint=true"_s}, &problem);
        const QString second = textOf(pdf, {u"-f"_s, u"2"_s, u"-l"_s, u"2"_s});
        QVERIFY2(second.startsWith(u"notes.txt"_s), qPrintable(second.left(200)));
        QVERIFY(second.section(u'\n', 0, 0).trimmed().endsWith(u" 2"_s));
    }

    void whatLeavesNoRoomIsRefused_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("margins") << QStringList{u"page-left=400"_s, u"page-right=300"_s};
        QTest::newRow("columns") << QStringList{u"cpi=1"_s, u"columns=50"_s};
        QTest::newRow("heights") << QStringList{u"page-top=900"_s};
    }
    void whatLeavesNoRoomIsRefused()
    {
        QFETCH(QStringList, options);
        QString problem;
        converted("text\n", options, &problem);
        QVERIFY2(problem.contains(u"leave no room"_s), qPrintable(problem));
    }

    void aTextWithoutEndIsRefused()
    {
        QString problem;
        converted(QByteArray(kMostPagesOfText + 10, '\f'), {}, &problem);
        QVERIFY2(problem.contains(QString::number(kMostPagesOfText)), qPrintable(problem));
    }

    void aConversionIsCanceledAtOnce()
    {
        QFile text(path(u"long.txt"_s));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.resize(200'000'000));
        QString problem;
        TextConversion conversion(text.fileName(), textFormat(samplePpdPath(), {}, {}, &problem),
                                  path(u"long.pdf"_s));
        QSignalSpy finished(&conversion, &TextConversion::finished);
        conversion.start();
        QTest::qWait(100);
        QElapsedTimer timer;
        timer.start();
        conversion.cancel();
        QVERIFY(finished.wait(5000));
        QCOMPARE(finished.at(0).at(0).toString(), u"Printing was canceled."_s);
        QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
    }

    void whatNoFontHasIsNamed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("named");
        QTest::newRow("nothing") << QByteArray("日本語 Größe ｱ ─\t\f\x1B[0m\n") << QString();
        // A character that Unicode does not have.
        QTest::newRow("one, twice") << QByteArray("a\u0378b\u0378\n") << u"\u0378 (U+0378)"_s;
        QTest::newRow("behind a megabyte")
            << QByteArray("x\n").repeated(500'000) + "\u0378" << u"\u0378 (U+0378)"_s;
    }
    void whatNoFontHasIsNamed()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, named);
        const TextCheck check({writeFile(path(u"notes.txt"_s), text)});
        QTRY_VERIFY_WITH_TIMEOUT(check.finding(), 20000);
        QCOMPARE(check.finding()->missing, named);
        QVERIFY(check.finding()->isWhole);
    }

    void noMoreThanAFewAreNamed()
    {
        QByteArray text;
        for (const char32_t c :
             {0x378, 0x379, 0x380, 0x381, 0x382, 0x383, 0x38B, 0x38D, 0x3A2, 0x530})
            text += QString::fromUcs4(&c, 1).toUtf8();
        const TextCheck check({writeFile(path(u"notes.txt"_s), text)});
        QTRY_VERIFY_WITH_TIMEOUT(check.finding(), 20000);
        const QString named = check.finding()->missing;
        QCOMPARE(named.count(u"U+"_s), 8);
        QVERIFY(named.endsWith(u'…'));
    }

    void aCheckOfALongTextIsLeftAtOnce()
    {
        writeFile(path(u"notes.txt"_s), QByteArray("日本語の文書\n").repeated(2'000'000));
        QElapsedTimer timer;
        timer.start();
        {
            const TextCheck check({path(u"notes.txt"_s)});
            QVERIFY(!check.finding());
        }
        QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
    }

    // Some thousands of pages: nobody waits until the rest has been looked at.
    void aTextThatIsTooLongToBeLookedThroughIsNotCalledWhole()
    {
        const TextCheck check({writeFile(path(u"notes.txt"_s), QByteArray(33 << 20, 'x'))});
        QTRY_VERIFY_WITH_TIMEOUT(check.finding(), 20000);
        QCOMPARE(check.finding()->missing, QString());
        QVERIFY(!check.finding()->isWhole);
    }

    void aFullDiskIsNoticed()
    {
        const QString problem = problemOfWriting(u"/dev/full"_s);
        QCOMPARE(problem, u"/dev/full cannot be written: No space left on device"_s);
    }

    // A file of a limited size takes a part of what is written, as a disk does that is just full.
    void whatIsWrongIsSaidWhereAPartIsWritten()
    {
        const FileSizeLimit limit(10'000);
        const QString pdf = path(u"out.pdf"_s);
        QCOMPARE(problemOfWriting(pdf), u"%1 cannot be written: File too large"_s.arg(pdf));
        QCOMPARE(QFileInfo(pdf).size(), 10'000);
    }
};

QTEST_MAIN(TextConversionTest)
#include "text_conversion_test.moc"
