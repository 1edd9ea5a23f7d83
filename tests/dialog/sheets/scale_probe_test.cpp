#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/sheets/ScaleProbe.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

PdfPage page(QSizeF size, int rotation = 0)
{
    const QRectF box({0, 0}, size);
    return {box, box, box, rotation};
}

// What pdftotext says of marks that were moved, turned and scaled.
QByteArray answerFor(double scale, QPointF moved, bool turned)
{
    // Marks 0 and 8 of kA4 lie at 1/8 and at 2/8 of its edges.
    const auto word = [&](int mark, double part) {
        const QPointF place(595 * part * scale, 842 * part * scale);
        const QPointF seen = (turned ? QPointF(place.y(), place.x()) : place) + moved;
        const auto text = [](double value) { return QByteArray::number(value, 'f', 6); };
        return "<word xMin=\"" + text(seen.x()) + "\" yMin=\"" + text(seen.y()) + "\" xMax=\"" +
               text(seen.x() + 9) + "\" yMax=\"" + text(seen.y() + 3) + "\">" +
               QByteArray::number(4000000 + mark) + "</word>\n";
    };
    return word(0, 1 / 8.0) + word(8, 2 / 8.0) + "<word xMin=\"x\">4000003</word>\n";
}

struct Seen
{
    const char *name;
    double scale;
    QPointF moved;
    bool turned;
};
const Seen kSeen[] = {
    {"as it is", 1, {}, false},
    {"moved", 1, {17, -30}, false},
    {"smaller", 0.71, {3, 4}, false},
    {"larger and turned", 1.36, {3, 4}, true},
};

} // namespace

class ScaleProbeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesThatLookAlikeAreOneKind()
    {
        const PdfPage a4 = page(kA4);
        const PdfPage letter = page(kLetter);
        QCOMPARE(kindsOfPages({a4, a4, letter, a4, page(kA4, 90)}),
                 (QList<PdfPage>{a4, letter, page(kA4, 90)}));
        QList<PdfPage> many;
        for (int i = 0; i < 101; ++i)
            many += page(QSizeF(100 + i, 100));
        QCOMPARE(kindsOfPages(many), QList<PdfPage>());
        many.removeLast();
        QCOMPARE(kindsOfPages(many).size(), 100);
    }

    void aTurnedPageIsSeenTurned()
    {
        QCOMPARE(sizeOfPage(page(kA4)), kA4);
        QCOMPARE(sizeOfPage(page(kA4, 270)), kA4.transposed());
        PdfPage trimmed = page(kA3);
        trimmed.trim = QRectF(10, 10, 420, 595);
        QCOMPARE(sizeOfPage(trimmed), kA5);
    }

    void marksTellTheScale_data() { addRows(kSeen); }
    void marksTellTheScale()
    {
        const Seen &row = currentRow(kSeen);
        const QList<double> scales =
            scalesOfProbe(answerFor(row.scale, row.moved, row.turned), {page(kA4)});
        QCOMPARE(scales.size(), 1);
        QVERIFY2(qAbs(scales.constFirst() - row.scale) < 0.0001,
                 qPrintable(QString::number(scales.constFirst())));
    }

    void aKindOfWhichNothingIsLeftHasNoScale()
    {
        QCOMPARE(scalesOfProbe(answerFor(1, {}, false), {page(kA4), page(kA5)}).at(1), 0.0);
        QCOMPARE(scalesOfProbe({}, {page(kA4)}), QList<double>{0});
    }

    // Poppler reads the probe as it was meant: every kind has its boxes, and its actual size.
    void theProbeIsAProperDocument()
    {
        PdfPage trimmed = page(kA3);
        trimmed.media.translate(-20, 35);
        trimmed.crop = trimmed.trim = trimmed.media.adjusted(50, 50, -50, -50);
        const QList<PdfPage> kinds{page(kA4), page(kA4, 90), trimmed, page(QSizeF(20, 20))};
        const QTemporaryDir folder;
        const QString path = writeFile(folder.filePath(u"p.pdf"_s), probeDocument(kinds));
        QProcess info;
        info.start(QString::fromLatin1(kPdfInfoProgram), pdfPagesArguments(path, 100));
        QVERIFY(info.waitForFinished());
        QCOMPARE(info.readAllStandardError(), QByteArray());
        const auto pages = readPdfPages(info.readAllStandardOutput());
        QVERIFY(pages);
        QCOMPARE(pages->pages, kinds);
        QProcess text;
        text.start(QString::fromLatin1(kPdfTextProgram), probeReadingArguments(path));
        QVERIFY(text.waitForFinished());
        for (const double scale : scalesOfProbe(text.readAllStandardOutput(), kinds))
            QVERIFY2(qAbs(scale - 1) < 0.001, qPrintable(QString::number(scale)));
    }
};

QTEST_APPLESS_MAIN(ScaleProbeTest)

#include "scale_probe_test.moc"
