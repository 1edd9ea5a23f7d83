#include <QTest>

#include "tests/dialog/sheets/TurnedByHand.h"
#include "tests/dialog/task/ByHandScene.h"
#include "tests/dialog/task/SidePictures.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using JobKind = JobOutcome::Kind;
using Printed = HandFeed::Printed;

namespace {

// Ghostscript draws both. What was turned by half a turn is drawn from other corners of the points,
// so that edges of letters differ; another page is beyond that, see anotherOrderWouldBeNoticed().
constexpr PictureDifference kSameSide{0, 1, 2.5, 100.0};

// Of the printers.
constexpr auto kFaceDown = "";
constexpr auto kFaceUp = "*DefaultOutputOrder: Reverse\n";
constexpr auto kRearBin = "*DefaultOutputOrder: Normal\n"
                          "*OpenUI *OutputBin: PickOne\n*OrderDependency: 30 AnySetup *OutputBin\n"
                          "*DefaultOutputBin: Top\n*OutputBin Top: \"\"\n*OutputBin Rear: \"\"\n"
                          "*CloseUI: *OutputBin\n*PageStackOrder Top: Normal\n"
                          "*PageStackOrder Rear: Reverse\n";

// Takes PDF; any other printer takes PostScript.
constexpr auto kPdfFaceUp = "*% PDF\n*DefaultOutputOrder: Reverse\n";

struct HandJob
{
    const char *name;
    const char *printer;
    Kind kind;
    QString options;
    HandFeed::Printed inBin;
    int copies = 1;
};
const HandJob kHandJobs[] = {
    {"out face down", kFaceDown, Kind::A4, u"sides-by-hand=long-edge"_s, Printed::Down},
    {"out face up", kFaceUp, Kind::A4, u"sides-by-hand=long-edge"_s, Printed::Up},
    {"out face down, short edge", kFaceDown, Kind::A4, u"sides-by-hand=short-edge"_s,
     Printed::Down},
    {"out face up, short edge", kFaceUp, Kind::A4, u"sides-by-hand=short-edge"_s, Printed::Up},
    {"out face down, back face up", kFaceDown, Kind::A4,
     u"sides-by-hand=long-edge put-back=face-up"_s, Printed::Down},
    {"out face up, back face up", kFaceUp, Kind::A4, u"sides-by-hand=short-edge put-back=face-up"_s,
     Printed::Up},
    {"a printer of PDF, out face up", kPdfFaceUp, Kind::A4, u"sides-by-hand=short-edge"_s,
     Printed::Up},
    {"into the rear bin", kRearBin, Kind::A4, u"sides-by-hand=long-edge OutputBin=Rear"_s,
     Printed::Up},
    {"two copies", kFaceDown, Kind::A4, u"sides-by-hand=long-edge"_s, Printed::Down, 2},
    {"two copies, out face up", kFaceUp, Kind::A4, u"sides-by-hand=long-edge"_s, Printed::Up, 2},
    {"two copies of each side", kFaceDown, Kind::A4, u"sides-by-hand=long-edge collate=false"_s,
     Printed::Down, 2},
    {"several documents", kFaceDown, Kind::Several, u"sides-by-hand=long-edge"_s, Printed::Down},
    {"several documents, out face up", kFaceUp, Kind::Several, u"sides-by-hand=short-edge"_s,
     Printed::Up},
    {"two copies of several documents", kFaceDown, Kind::Several, u"sides-by-hand=long-edge"_s,
     Printed::Down, 2},
    {"a booklet", kFaceDown, Kind::A4, u"booklet=left"_s, Printed::Down},
    {"a booklet, out face up", kFaceUp, Kind::Several, u"booklet=right"_s, Printed::Up},
    {"two on a side", kFaceDown, Kind::Long, u"sides-by-hand=long-edge number-up=2"_s,
     Printed::Down},
    {"four on a side", kFaceUp, Kind::Mixed,
     u"sides-by-hand=short-edge number-up=4 page-border=single"_s, Printed::Up},
    {"the last page first", kFaceDown, Kind::A4, u"sides-by-hand=long-edge outputorder=reverse"_s,
     Printed::Down},
    {"the last page first, out face up", kFaceUp, Kind::A4,
     u"sides-by-hand=long-edge outputorder=reverse"_s, Printed::Up},
    {"some pages", kFaceDown, Kind::Mixed, u"sides-by-hand=long-edge page-ranges=2-4"_s,
     Printed::Down},
    {"odd pages", kFaceDown, Kind::Mixed, u"sides-by-hand=long-edge page-set=odd"_s, Printed::Down},
    {"landscape", kFaceDown, Kind::Landscape, u"sides-by-hand=short-edge"_s, Printed::Down},
    {"rotated", kFaceDown, Kind::Rotated, u"sides-by-hand=long-edge"_s, Printed::Down},
    {"mirrored", kFaceUp, Kind::A4, u"sides-by-hand=short-edge mirror=true"_s, Printed::Up},
    {"a text", kFaceDown, Kind::Text, u"sides-by-hand=long-edge"_s, Printed::Down},
    {"PostScript", kFaceDown, Kind::PostScript, u"sides-by-hand=short-edge"_s, Printed::Down},
    {"on another paper", kFaceDown, Kind::A4,
     u"sides-by-hand=short-edge PageSize=B5 print-scaling=fit"_s, Printed::Down},
};

QImage turnedByHalf(const QImage &picture)
{
    return picture.transformed(QTransform().rotate(180));
}

bool isSameSide(const QImage &one, const QImage &other)
{
    const PictureDifference difference = differenceOf(one, other);
    return difference.size <= kSameSide.size && difference.edges <= kSameSide.edges &&
           difference.mean <= kSameSide.mean && difference.worst <= kSameSide.worst;
}

QString differenceText(const QImage &one, const QImage &other)
{
    const PictureDifference difference = differenceOf(one, other);
    return u"size %1, edges %2, mean %3, worst %4"_s.arg(difference.size)
        .arg(difference.edges)
        .arg(difference.mean, 0, 'f', 2)
        .arg(difference.worst, 0, 'f', 1);
}

} // namespace

/// What a person holds after both passes, beside what the preview showed.
class ByHandTest : public ByHandScene
{
    Q_OBJECT

private:
    QList<QImage> picturesOf(const CapturedJob &job) const
    {
        return picturesOfStream(writeFile(m_home->filePath(u"stream.ps"_s), job.data));
    }

    // The pictures of the laid-out sides that a preview shows, before they are turned to be read.
    static QList<QList<QImage>> picturesOf(const SheetPreview &preview)
    {
        QList<QList<QImage>> pictures;
        for (const auto &file : preview.files)
            pictures += file ? picturesOfStream(file->path()) : QList<QImage>();
        return pictures;
    }
    static QImage shown(const std::optional<PlannedSide> &side,
                        const QList<QList<QImage>> &pictures, QSize size)
    {
        if (side && side->laidOutPage >= 0)
            return pictures.at(side->document).value(side->laidOutPage);
        QImage empty(size, QImage::Format_RGB32);
        empty.fill(Qt::white);
        return empty;
    }
    // The sheets of all copies, as the job wants their order.
    static QList<PlannedSheet> sheetsOf(const SheetPlan &plan, int copies, bool inSets)
    {
        QList<PlannedSheet> sheets;
        if (inSets) {
            for (int i = 0; i < copies; ++i)
                sheets += plan.sheets;
            return sheets;
        }
        for (const PlannedSheet &sheet : plan.sheets)
            sheets += QList<PlannedSheet>(copies, sheet);
        return sheets;
    }

private Q_SLOTS:
    // Both streams are put together as a person does it, with sheets that are things, and beside
    // what was shown: each sheet in its place, front and back, held as it is bound.
    void whatAPersonHoldsIsWhatWasShown_data() { addRows(kHandJobs); }
    void whatAPersonHoldsIsWhatWasShown()
    {
        const HandJob &row = currentRow(kHandJobs);
        addQueue(row.printer);
        PrintRequest asked = request(row.kind, row.options);
        asked.copies = row.copies;
        open(asked);
        QVERIFY2(face().messages.isEmpty(), qPrintable(face().message()));
        const SheetPreview before = preview();
        QCOMPARE(before.state, SheetPreview::State::Known);
        face().turnAnswers = {true};
        task().print();
        QVERIFY(waitForTheEnd());
        QVERIFY2(face().refusals.isEmpty(), qPrintable(face().problems().join(u' ')));
        QCOMPARE(task().outcome().kind, JobKind::Printed);
        QCOMPARE(face().turns.size(), 1);
        QCOMPARE(jobs().size(), 2);

        const QList<QImage> first = picturesOf(jobs().at(0));
        const QList<QImage> second = picturesOf(jobs().at(1));
        const auto printedOn = [&](const PrintedFace &side) {
            return (side.pass == 1 ? first : second).at(side.side);
        };
        const bool inSets = !row.options.contains(u"collate=false"_s);
        const QList<PlannedSheet> sheets = sheetsOf(before.plan, row.copies, inSets);
        QCOMPARE(first.size(), sheets.size());
        QCOMPARE(second.size(), sheets.size());
        const bool putBackUp = row.options.contains(u"put-back=face-up"_s);
        const Stack stack = printedTwice(
            int(sheets.size()), {row.inBin, putBackUp ? Printed::Up : Printed::Down, false});
        const QList<QList<QImage>> pictures = picturesOf(before);
        const bool atShortEdge =
            row.options.contains(u"short-edge"_s) || row.options.contains(u"booklet"_s);
        for (qsizetype i = 0; i < sheets.size(); ++i) {
            const QString where = u"sheet %1: "_s.arg(i + 1);
            QImage front = printedOn(stack.at(i).up);
            QImage back = printedOn(stack.at(i).down);
            // The papers of these printers are upright, so a sheet that is bound at its long edge
            // is turned over around an upright line: what is above stays above.
            if (atShortEdge)
                back = turnedByHalf(back);
            const QImage shownFront = shown(sheets.at(i).front, pictures, front.size());
            const QImage shownBack = shown(sheets.at(i).back, pictures, back.size());
            // The whole sheet may have to be held the other way round.
            if (!isSameSide(front, shownFront)) {
                front = turnedByHalf(front);
                back = turnedByHalf(back);
            }
            QVERIFY2(isSameSide(front, shownFront),
                     qPrintable(where + u"its front, "_s + differenceText(front, shownFront)));
            QVERIFY2(isSameSide(back, shownBack),
                     qPrintable(where + u"its back, "_s + differenceText(back, shownBack)));
        }
        for (const CapturedJob &job : jobs()) {
            for (const char *ours : {"sides-by-hand", "put-back", "booklet"})
                QVERIFY2(!job.options.contains(QString::fromLatin1(ours)), qPrintable(job.options));
        }
    }

    void anotherOrderWouldBeNoticed()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        const QList<QList<QImage>> pictures = picturesOf(preview());
        QVERIFY(!isSameSide(pictures.at(0).at(0), pictures.at(0).at(2)));
        QVERIFY(!isSameSide(pictures.at(0).at(0), turnedByHalf(pictures.at(0).at(0))));
    }
};

QTEST_MAIN(ByHandTest)
#include "by_hand_test.moc"
