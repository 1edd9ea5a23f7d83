#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/sheets/TurnedByHand.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/SidePictures.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/dialog/task/TruthSamples.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using JobKind = JobOutcome::Kind;
using Phase = PrintTask::Phase;
using Printed = HandFeed::Printed;

namespace {

constexpr int kHandPatience = 60000; // milliseconds that a queue may take on a busy machine

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

struct Refused
{
    const char *name;
    QString options;
    bool toFile;
    bool canAsk;
    QStringList says;
};
const Refused kRefused[] = {
    {"into a file", u"sides-by-hand=long-edge"_s, true, true, {u"sides-by-hand=long-edge"_s}},
    {"with cover pages",
     u"sides-by-hand=short-edge job-sheets=standard"_s,
     false,
     true,
     {u"sides-by-hand=short-edge"_s, u"job-sheets=standard"_s}},
    {"where nobody is",
     u"sides-by-hand=long-edge"_s,
     false,
     false,
     {u"sides-by-hand=long-edge"_s, u"sides-by-hand=no"_s}},
    {"a booklet where nobody is", u"booklet=left"_s, false, false, {u"sides-by-hand=no"_s}},
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

/// Jobs on a queue whose printer turns no sheets over, with a person who does.
class ByHandTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;
    std::vector<std::unique_ptr<Variable>> m_variables;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's

    PrintTask &task() { return *m_scene->task; }
    ScriptedFace &face() { return m_scene->face; }

    // The sample printer without a duplexer, with further lines.
    void addQueue(const QByteArray &lines = {})
    {
        QFile sample(sourceFile(u"resources/ppd/corvana-cl2.ppd"_s));
        QVERIFY(sample.open(QIODevice::ReadOnly));
        QByteArray ppd = sample.readAll() + lines;
        if (lines.contains("PDF"))
            ppd.replace("application/vnd.cups-postscript application/postscript",
                        "application/vnd.cups-pdf application/pdf");
        m_cups->addQueue(u"office"_s, writeFile(m_home->filePath(u"office.ppd"_s), ppd));
    }
    PrintRequest request(Kind kind, const QString &options)
    {
        PrintRequest request = m_scene->request(QList<Printer>());
        request.documents = documentsOf(kind, m_home->path());
        request.server = *ServerAddress::parse(m_cups->server());
        request.serverWasNamed = true;
        request.wantedPrinter = u"office"_s;
        request.options = parseOptions({options});
        return request;
    }
    void open(const PrintRequest &request)
    {
        m_scene->make(request).start();
        QVERIFY2(m_scene->reaches(Phase::Opened), qPrintable(task().problem().text));
        task().bringUp();
        QCOMPARE(task().phase(), Phase::Ready);
    }
    SheetPreview preview()
    {
        task().countSheets();
        // The first sheets of a long document are known before the whole of it.
        const auto isKnown = [&] {
            return task().sheetPreview().state == SheetPreview::State::Known;
        };
        return QTest::qWaitFor(isKnown, kHandPatience) ? task().sheetPreview() : SheetPreview();
    }
    bool waitForTheEnd()
    {
        return QTest::qWaitFor(
            [&] { return !face().outcomes.isEmpty() || !face().refusals.isEmpty(); },
            kHandPatience);
    }
    bool waitForTheQuestion(qsizetype number = 1)
    {
        return QTest::qWaitFor([&] { return face().turns.size() >= number; }, kHandPatience);
    }
    QList<CapturedJob> jobs() const { return m_cups->capture(u"office"_s).jobs(); }
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
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        if (QStandardPaths::findExecutable(u"gs"_s).isEmpty())
            QSKIP("Ghostscript is not installed");
    }
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            m_variables.push_back(std::make_unique<Variable>(name, m_home->path().toUtf8()));
        m_variables.push_back(std::make_unique<Variable>("CUPS_SERVERROOT", "/nonexistent"));
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_scene = std::make_unique<TaskScene>();
        m_filter = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", "");
    }
    void cleanup()
    {
        m_filter.reset();
        m_scene.reset();
        m_cups.reset();
        m_variables.clear();
        m_home.reset();
    }

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

    void oneSideNeedsNoHands()
    {
        addQueue();
        open(request(Kind::Portrait, u"sides-by-hand=long-edge"_s));
        task().print();
        QVERIFY(waitForTheEnd());
        QCOMPARE(task().outcome().kind, JobKind::Printed);
        QVERIFY(face().turns.isEmpty());
        QCOMPARE(jobs().size(), 1);
        QVERIFY(!jobs().constFirst().title.contains(u"sides"_s));
    }

    void eachHalfIsAJobAndTheLastSentenceNamesBoth()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        face().turnAnswers = {true};
        task().print();
        QVERIFY(waitForTheEnd());
        const QString text = task().outcome().text;
        QVERIFY2(text.contains(u"First sides: Printed on “office” as job office-1."_s) &&
                     text.contains(u"Other sides: Printed on “office” as job office-2."_s),
                 qPrintable(text));
        QCOMPARE(task().phase(), Phase::Ended);
        QCOMPARE(jobs().at(0).title, u"Job (first sides)"_s);
        QCOMPARE(jobs().at(1).title, u"Job (other sides)"_s);
        const TurnQuestion &question = face().turns.constFirst();
        QVERIFY2(question.done.startsWith(u"First sides: Printed on"_s), qPrintable(question.done));
        QCOMPARE(
            question.steps,
            QStringList({u"Take the 2 printed sheets out of the printer, as one stack."_s,
                         u"Put them back into the tray with the printed side down, so that the "
                         "top edge of the pages goes into the printer first."_s,
                         u"The last sheet, with page 3, lies uppermost."_s}));
    }

    void cancelBetweenThePassesSaysWhatIsPrinted()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        face().turnAnswers = {false};
        task().print();
        QVERIFY(waitForTheEnd());
        QCOMPARE(task().outcome().kind, JobKind::Canceled);
        QCOMPARE(task().outcome().text,
                 u"First sides: Printed on “office” as job office-1. Other sides: Not printed."_s);
        QCOMPARE(task().phase(), Phase::Ready);
        QCOMPARE(jobs().size(), 1);
    }

    void anInterruptionBetweenThePassesSaysTheSame()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        task().print();
        QVERIFY(waitForTheQuestion());
        QCOMPARE(task().phase(), Phase::Turning);
        QVERIFY(task().isBetweenPasses());
        QVERIFY(!task().canChangeDocuments());
        task().interrupt(PrintTask::OnInterrupt::LeaveJob);
        QCOMPARE(task().phase(), Phase::Ended);
        QCOMPARE(task().outcome().kind, JobKind::Canceled);
        QVERIFY(task().outcome().text.contains(u"Other sides: Not printed."_s));
        // The answer comes too late.
        face().turnAnswer(true);
        QTest::qWait(200);
        QCOMPARE(jobs().size(), 1);
    }

    void aFailedSecondPassIsRepeatedWithoutTheFirst()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        task().print();
        QVERIFY(waitForTheQuestion());
        QVERIFY(face().turns.constFirst().problem.isEmpty());
        m_cups->rejectJobs(u"office"_s, u"Toner is being changed"_s);
        face().turnAnswer(true);
        QVERIFY(waitForTheQuestion(2));
        QVERIFY(face().outcomes.isEmpty());
        QVERIFY2(face().turns.at(1).problem.startsWith(u"Other sides: "_s),
                 qPrintable(face().turns.at(1).problem));
        QCOMPARE(face().turns.at(1).done, face().turns.at(0).done);
        m_cups->acceptJobs(u"office"_s);
        face().turnAnswer(true);
        QVERIFY(waitForTheEnd());
        QCOMPARE(task().outcome().kind, JobKind::Printed);
        QCOMPARE(jobs().size(), 2);
        QCOMPARE(jobs().at(1).title, u"Job (other sides)"_s);
    }

    void aFailedFirstPassIsNoReasonToTurnAnything()
    {
        addQueue();
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        m_cups->rejectJobs(u"office"_s);
        task().print();
        QVERIFY(waitForTheEnd());
        QVERIFY(face().turns.isEmpty());
        QCOMPARE(task().outcome().kind, JobKind::Refused);
        QVERIFY(task().outcome().text.startsWith(u"First sides: "_s));
        QCOMPARE(task().phase(), Phase::Ready);
    }

    void whatCannotBeDoneIsRefusedByItsName_data() { addRows(kRefused); }
    void whatCannotBeDoneIsRefusedByItsName()
    {
        const Refused &row = currentRow(kRefused);
        addQueue();
        face().canBeAsked = row.canAsk;
        open(request(Kind::A4, row.options));
        task().setPrintsToFile(row.toFile);
        task().print();
        QVERIFY(waitForTheEnd());
        QCOMPARE(face().refusals.size(), 1);
        const QString said = face().problems().join(u' ');
        for (const QString &part : row.says)
            QVERIFY2(said.contains(part), qPrintable(said));
        QVERIFY(m_cups->jobs().isEmpty());
    }

    void twoSidesOfThePrintersOwnNameTheWayByHand()
    {
        addQueue();
        open(request(Kind::A4, u"sides=two-sided-long-edge"_s));
        QVERIFY2(face().message().contains(u"sides-by-hand=long-edge"_s),
                 qPrintable(face().message()));
    }

    void aPrinterThatTurnsSheetsOverIsNotTurnedByHand()
    {
        m_cups->addQueue(u"office"_s, samplePpdPath());
        open(request(Kind::A4, u"sides-by-hand=long-edge"_s));
        QVERIFY2(face().message().contains(u"turns sheets over itself"_s),
                 qPrintable(face().message()));
        const QList<OfferedAttribute> offered = task().attributes();
        for (const OfferedAttribute &one : offered)
            QVERIFY(one.name != kSidesByHandAttribute && one.name != kPutBackAttribute);
    }

    void whatIsChosenIsSaidInTheSummary()
    {
        addQueue();
        open(request(Kind::A4, {}));
        QCOMPARE(task().setAttribute(kSidesByHandAttribute, kByHandLongEdge), QString());
        QCOMPARE(preview().counts, u"3 pages = 2 sheets, two-sided by hand"_s);
        QCOMPARE(preview().plan.binding, SheetPlan::Binding::LongEdge);
        const QList<SummaryLine> lines = task().summary();
        QVERIFY(std::any_of(lines.cbegin(), lines.cend(), [](const SummaryLine &line) {
            return line.title == u"Two-Sided"_s && line.value == u"Long Edge (by Hand)"_s;
        }));
    }

    void aBookletIsTurnedOverAtTheShortEdge()
    {
        addQueue();
        open(request(Kind::A4, {}));
        QCOMPARE(task().setAttribute(u"booklet"_s, u"left"_s), QString());
        QCOMPARE(task().settings().attribute(kSidesByHandAttribute), kByHandShortEdge);
        QCOMPARE(task().setAttribute(kSidesByHandAttribute, u"no"_s), QString());
        QVERIFY(!preview().plan.sheets.constFirst().back);
    }
};

QTEST_MAIN(ByHandTest)
#include "by_hand_test.moc"
