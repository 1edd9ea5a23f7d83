#include <algorithm>
#include <optional>
#include <random>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/OrderTrials.h"
#include "tests/dialog/task/SidePictures.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/dialog/task/TruthSamples.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// What a preview shows beside what is printed: pictures of each side in the plan, drawn by Poppler
// from the laid-out document, and pictures of the sides of the job's PostScript, drawn by
// Ghostscript, which knows nothing of either. The whole job is printed, by a task, into a file.
//
// Each control is tried alone and with another one, on documents of all kinds. A part of these is
// tried in each run, chosen by a seed: all with CORVANA_TRUTH=all, those of another seed with
// CORVANA_TRUTH=SEED. CORVANA_TRUTH_PICTURES=FOLDER keeps the first two pictures that differ.

namespace {

constexpr int kTruthPatience = 120000; // milliseconds that a chain may take on a busy machine
constexpr unsigned kSeed = 14;
constexpr int kPairs = 12; // that are tried in each run

// The sides of the preview are drawn twice. Ghostscript draws them as it draws the stream, so that
// hardly anything may differ: letters that are scaled have other edges by a shade.
constexpr PictureDifference kBySameProgram{0, 1, 2.0, 40.0};
// Pictures have been enlarged by it in the PostScript otherwise than in the PDF: by a pixel, where
// they stand in a corner of the side.
constexpr PictureDifference kOfPictures{0, 1, 2.0, 90.0};
// Poppler, which draws what a user sees, rounds the size of the paper up, puts lines on whole
// points, and has letters of other weight. What is moved by two millimetres or turned, or is
// another page, is far beyond that: see aPictureOfSomethingElseIsFarBeyondTheTolerance().
constexpr PictureDifference kByAnother{1, 2, 9.0, 100.0};

bool isWithin(const PictureDifference &difference, const PictureDifference &tolerance)
{
    return difference.size <= tolerance.size && difference.edges <= tolerance.edges &&
           difference.mean <= tolerance.mean && difference.worst <= tolerance.worst;
}

QString text(const PictureDifference &difference)
{
    return u"size %1, edges %2, mean %3, worst %4"_s.arg(difference.size)
        .arg(difference.edges)
        .arg(difference.mean, 0, 'f', 2)
        .arg(difference.worst, 0, 'f', 1);
}

// Where pictures go that are not alike, for whoever wants to see them.
constexpr const char *kKeepVariable = "CORVANA_TRUTH_PICTURES";

const JobOption kMirror{u"mirror"_s, u"true"_s};

// What the chain turns, of documents whose pages are all alike.
struct Turned
{
    const char *name;
    Kind kind;
    QList<JobOption> options;
    bool isWide; // as it is read
};
const JobOption kTwoUp{u"number-up"_s, u"2"_s};
const JobOption kFourUp{u"number-up"_s, u"4"_s};
const Turned kTurned[] = {
    {"upright", Kind::A4, {}, false},
    {"upright, mirrored", Kind::A4, {kMirror}, false},
    {"upright, two on a side", Kind::A4, {kTwoUp}, true},
    {"upright, two on a side, mirrored", Kind::A4, {kTwoUp, kMirror}, true},
    {"upright, four on a side", Kind::A4, {kFourUp}, false},
    {"upright, asked to be landscape", Kind::A4, {{u"orientation-requested"_s, u"4"_s}}, false},
    {"upright, upside down", Kind::A4, {{u"orientation-requested"_s, u"6"_s}}, false},
    {"landscape", Kind::Landscape, {}, true},
    {"landscape, mirrored", Kind::Landscape, {kMirror}, true},
    {"landscape, two on a side", Kind::Landscape, {kTwoUp}, false},
    {"landscape, two on a side, mirrored", Kind::Landscape, {kTwoUp, kMirror}, false},
    {"landscape, the other way, mirrored",
     Kind::Landscape,
     {{u"orientation-requested"_s, u"5"_s}, kMirror},
     true},
    {"landscape, four on a side", Kind::Landscape, {kFourUp}, true},
    {"landscape, the other way", Kind::Landscape, {{u"orientation-requested"_s, u"5"_s}}, true},
    {"a picture", Kind::Portrait, {}, false},
    {"a wide picture", Kind::Wide, {}, true},
    {"a wide picture, mirrored", Kind::Wide, {kMirror}, true},
    {"a wide picture, two on a side", Kind::Wide, {kTwoUp}, false},
    {"a wide picture, upside down", Kind::Wide, {{u"orientation-requested"_s, u"6"_s}}, false},
    {"a wide picture, asked to be upright",
     Kind::Wide,
     {{u"orientation-requested"_s, u"3"_s}},
     false},
};

} // namespace

class PreviewTruthTest : public QObject
{
    Q_OBJECT

private:
    struct Trial
    {
        Kind kind;
        NamedLayout layout;
        const Stacking *stacking = nullptr;
    };
    QList<Trial> m_trials;
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's

    // Each control with each kind of document, or with those that chance has chosen; then pairs.
    void chooseTrials()
    {
        const QByteArray asked = qgetenv("CORVANA_TRUTH");
        const bool all = asked == "all";
        std::mt19937 chance(asked.isEmpty() || all ? kSeed : asked.toUInt());
        const auto below = [&](qsizetype end) { return qsizetype(chance() % size_t(end)); };
        QList<Kind> kinds;
        for (const NamedKind &kind : kKinds) {
            if (kind.kind == Kind::Single) // is tried with orders
                continue;
            if (kind.kind != Kind::VeryLong)
                m_trials += Trial{kind.kind, {u"as it is"_s, {}}};
            // One long document more is enough where only a part is tried.
            if (kind.kind != Kind::VeryLong && (all || kind.kind != Kind::Long))
                kinds += kind.kind;
        }
        m_trials +=
            Trial{Kind::Long, layout("number-up", "4") + layout("Duplex", "DuplexNoTumble") +
                                  layout("outputorder", "reverse")};
        // All of them are drawn in turn, so that each document meets several controls.
        const QList<QList<NamedLayout>> groups = controls();
        qsizetype turn = 0;
        for (const QList<NamedLayout> &group : groups) {
            for (const NamedLayout &one : group) {
                if (all) {
                    for (const Kind kind : kinds)
                        m_trials += Trial{kind, one};
                } else {
                    m_trials += Trial{kinds.at(turn++ % kinds.size()), one};
                }
            }
        }
        const int pairs = all ? 10 * kPairs : kPairs;
        for (int pair = 0; pair < pairs; ++pair) {
            const qsizetype first = below(groups.size());
            const qsizetype second = (first + 1 + below(groups.size() - 1)) % groups.size();
            m_trials += Trial{kinds.at(below(kinds.size())),
                              groups.at(first).at(below(groups.at(first).size())) +
                                  groups.at(second).at(below(groups.at(second).size()))};
        }
        if (all)
            m_trials += Trial{Kind::VeryLong,
                              layout("number-up", "2") + layout("Duplex", "DuplexNoTumble")};
    }

    static NamedLayout namedLayout(const QList<JobOption> &options)
    {
        NamedLayout all{u"as it is"_s, {}};
        for (const JobOption &option : options) {
            const NamedLayout one{option.name + u'=' + option.value, {option}};
            all = all.options.isEmpty() ? one : all + one;
        }
        return all;
    }

    void chooseOrders()
    {
        for (const Stacking &stacking : kStackings) {
            for (const OrderedJob &job : kOrderedJobs) {
                if (&stacking == &faceUp || job.isForAll)
                    m_trials += Trial{job.kind, namedLayout(job.options), &stacking};
            }
        }
        m_trials += Trial{Kind::A4, layout("OutputBin", "Rear"), &ofABin};
        m_trials +=
            Trial{Kind::A4, layout("OutputBin", "Rear") + layout("outputorder", "normal"), &ofABin};
    }

    static QByteArray ppdOf(const Trial &trial)
    {
        QByteArray ppd = samplePpd(5);
        if (!trial.stacking)
            return ppd;
        if (trial.stacking->stream)
            ppd.replace("application/vnd.cups-postscript application/postscript 0 -",
                        trial.stacking->stream);
        return ppd + trial.stacking->lines;
    }

    struct Result
    {
        SheetPreview preview;
        bool isRefused = false; // nothing would be printed
        QString stream;         // path of what was printed
    };

    // What is shown of a job, and what is printed of it. Errors: nothing.
    std::optional<Result> printed(const Trial &trial)
    {
        PrintRequest request = m_scene->request({m_scene->printer(u"laser"_s, ppdOf(trial))});
        request.documents = documentsOf(trial.kind, QFileInfo(m_scene->filter.output()).path());
        request.options = trial.layout.options;
        PrintTask &task = m_scene->open(request);
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        task.countSheets();
        // The first sheets of a long document are known before the whole of it.
        const bool isKnown = QTest::qWaitFor(
            [&] {
                return !counted.isEmpty() &&
                       task.sheetPreview().state != SheetPreview::State::Counting &&
                       task.sheetPreview().state != SheetPreview::State::Begun;
            },
            kTruthPatience);
        if (!isKnown)
            return std::nullopt;
        Result result;
        result.preview = task.sheetPreview();
        task.print();
        const ScriptedFace &face = m_scene->face;
        const bool isOver = QTest::qWaitFor(
            [&] { return !face.outcomes.isEmpty() || !face.refusals.isEmpty(); }, kTruthPatience);
        result.isRefused = !face.refusals.isEmpty();
        result.stream = task.outcome().file;
        const bool isPrinted = task.outcome().kind == JobOutcome::Kind::Printed;
        return isOver && (result.isRefused || isPrinted) ? std::optional(result) : std::nullopt;
    }

    static QList<PlannedSide> sidesOf(const SheetPlan &plan)
    {
        QList<PlannedSide> sides;
        for (const PlannedSheet &sheet : plan.sheets) {
            sides += sheet.front;
            if (sheet.back)
                sides += *sheet.back;
        }
        return sides;
    }

    // The picture of a side before it is turned; an empty one of that size where nothing is drawn.
    static QImage shownSide(const PlannedSide &side, const QList<QList<QImage>> &files, QSize size)
    {
        if (side.laidOutPage >= 0)
            return files.at(side.document).value(side.laidOutPage);
        QImage empty(size, QImage::Format_RGB32);
        empty.fill(Qt::white);
        return empty;
    }

    void compare(const QString &where, const QImage &drawn, const PlannedSide &side,
                 const QImage &printed, const PictureDifference &tolerance)
    {
        // As it is shown: turned to be read, on paper of that size.
        const QImage shown = drawn.transformed(QTransform().rotate(side.turn));
        const QSizeF paper = side.paper * kPicturesResolution / 72;
        QVERIFY2(qAbs(shown.width() - paper.width()) < 2 &&
                     qAbs(shown.height() - paper.height()) < 2,
                 qPrintable(where + u" has paper of another size"_s));
        const QImage turnedBack = shown.transformed(QTransform().rotate(-side.turn));
        const PictureDifference difference = differenceOf(turnedBack, printed);
        if (isWithin(difference, tolerance))
            return;
        if (const QString folder = qEnvironmentVariable(kKeepVariable); !folder.isEmpty()) {
            turnedBack.save(folder + u"/shown.png"_s);
            printed.save(folder + u"/printed.png"_s);
        }
        QFAIL(qPrintable(where + u" differs: "_s + text(difference)));
    }

    static bool isEmpty(const QImage &side)
    {
        QImage empty(side.size(), side.format());
        empty.fill(Qt::white);
        return side == empty;
    }

    // What is drawn on a side, in one size, wherever it lies there.
    static QImage drawnPart(const QImage &side)
    {
        QRect part;
        for (int y = 0; y < side.height(); ++y) {
            for (int x = 0; x < side.width(); ++x) {
                if (qGray(side.pixel(x, y)) < 128)
                    part |= QRect(x, y, 1, 1);
            }
        }
        return side.copy(part).scaled(400, 600, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

    // Raster data is drawn coarsely and moved, so that only the page can be told.
    static int mostLike(const QList<QImage> &pages, const QImage &printed)
    {
        const QImage part = drawnPart(printed);
        const auto unlike = [&](const QImage &page) {
            return differenceOf(drawnPart(page), part).mean;
        };
        const auto nearest =
            std::min_element(pages.cbegin(), pages.cend(), [&](const QImage &a, const QImage &b) {
                return unlike(a) < unlike(b);
            });
        return int(nearest - pages.cbegin());
    }

    // The pages that the plan says are on a side are those whose texts the stream has there.
    void comparePages(const QList<PlannedSide> &sides, const Trial &tried, const QString &stream)
    {
        // Texts are not numbered by pages, and pictures have no text.
        if (tried.kind == Kind::Text || tried.kind == Kind::Portrait || tried.kind == Kind::Wide)
            return;
        // Neither have raster data.
        if (tried.stacking && tried.stacking->stream == kRasterStream)
            return;
        // Mirrored letters are read in another order.
        if (tried.layout.options.contains(kMirror))
            return;
        QFile file(stream);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList texts = printedSides(file.readAll());
        QCOMPARE(texts.size(), sides.size());
        for (qsizetype i = 0; i < sides.size(); ++i) {
            QList<int> found;
            static const QRegularExpression page(u"\\b[abc] ([0-9]+)\\b"_s);
            auto match = page.globalMatch(texts.at(i));
            while (match.hasNext())
                found += match.next().captured(1).toInt();
            std::sort(found.begin(), found.end());
            // Which of them is drawn first, and how often a page stands there, is not asked.
            found.erase(std::unique(found.begin(), found.end()), found.end());
            QList<int> planned = sides.at(i).pages;
            std::sort(planned.begin(), planned.end());
            QCOMPARE(found, planned);
        }
    }

    QString nameOf(const Trial &trial) const
    {
        const auto *kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                        [&](const NamedKind &k) { return k.kind == trial.kind; });
        const QString name = QString::fromLatin1(kind->name) + u": "_s + trial.layout.name;
        return trial.stacking ? QString::fromLatin1(trial.stacking->name) + u": "_s + name : name;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(u"gs"_s).isEmpty())
            QSKIP("Ghostscript is not installed");
    }
    void init()
    {
        m_scene = std::make_unique<TaskScene>();
        m_filter = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", "");
    }
    void cleanup()
    {
        m_filter.reset();
        m_scene.reset();
    }

    void thePreviewShowsWhatIsPrinted_data()
    {
        chooseTrials();
        nameTrials();
    }
    void thePreviewShowsWhatIsPrinted() { compareTrial(); }

    void theOrderIsThatOfTheStream_data()
    {
        chooseOrders();
        nameTrials();
    }
    void theOrderIsThatOfTheStream() { compareTrial(); }

private:
    void nameTrials()
    {
        QTest::addColumn<int>("trial");
        for (int i = 0; i < m_trials.size(); ++i)
            QTest::newRow(qPrintable(nameOf(m_trials.at(i)))) << i;
    }
    void compareTrial()
    {
        QFETCH(int, trial);
        const Trial &tried = m_trials.at(trial);
        const std::optional<Result> result = printed(tried);
        QVERIFY(result);
        if (result->isRefused) {
            // Nothing would be printed, so there is nothing to be shown.
            QCOMPARE(result->preview.state, SheetPreview::State::None);
            QVERIFY(!result->preview.reason.isEmpty());
            return;
        }
        QCOMPARE(result->preview.state, SheetPreview::State::Known);
        const QList<PlannedSide> sides = sidesOf(result->preview.plan);
        const QList<QImage> stream = picturesOfStream(result->stream);
        QCOMPARE(sides.size(), stream.size());
        const bool isOfPictures = tried.kind == Kind::Portrait || tried.kind == Kind::Wide;
        QList<QList<QImage>> same;
        QList<QList<QImage>> other;
        for (const auto &file : result->preview.files) {
            same += picturesOfStream(file->path());
            other += picturesOfPdf(file->path());
        }
        for (qsizetype i = 0; i < sides.size(); ++i) {
            const PlannedSide &side = sides.at(i);
            const QString where = u"side %1"_s.arg(i + 1);
            // An empty side that the chain adds lies on the paper of the others, or across it.
            if (side.kind == PlannedSide::Kind::Blank) {
                QVERIFY2(isEmpty(stream.at(i)), qPrintable(where + u" is not empty"_s));
                continue;
            }
            if (tried.stacking && tried.stacking->stream == kRasterStream) {
                QCOMPARE(mostLike(same.at(side.document), stream.at(i)), side.laidOutPage);
                continue;
            }
            compare(where, shownSide(side, same, stream.at(i).size()), side, stream.at(i),
                    isOfPictures ? kOfPictures : kBySameProgram);
            compare(where, shownSide(side, other, stream.at(i).size()), side, stream.at(i),
                    kByAnother);
            if (QTest::currentTestFailed())
                return;
        }
        comparePages(sides, tried, result->stream);
    }

private Q_SLOTS:

    // A page that is read upright has its marks above its text: red at the left, blue at the right.
    void whatIsTurnedBackIsReadUpright_data() { addRows(kTurned); }
    void whatIsTurnedBackIsReadUpright()
    {
        const Turned &row = currentRow(kTurned);
        const std::optional<Result> result = printed({row.kind, {{}, row.options}});
        QVERIFY(result && !result->isRefused);
        QList<QList<QImage>> files;
        for (const auto &file : result->preview.files)
            files += picturesOfPdf(file->path());
        const QList<PlannedSide> sides = sidesOf(result->preview.plan);
        QVERIFY(!sides.isEmpty());
        for (const PlannedSide &side : sides) {
            const QImage shown =
                shownSide(side, files, {}).transformed(QTransform().rotate(side.turn));
            QCOMPARE(shown.width() > shown.height(), row.isWide);
            const auto red = middleOf(shown, Qt::red);
            const auto blue = middleOf(shown, Qt::blue);
            const auto black = middleOf(shown, Qt::black);
            QVERIFY(red && blue && black);
            QVERIFY2(qAbs(red->y() - blue->y()) < 0.05, "marks lie beside each other");
            QVERIFY2(red->y() < black->y(), "marks lie above the text");
            QCOMPARE(red->x() < blue->x(), !row.options.contains(kMirror));
        }
    }

    // The tolerance would be none if faults were within it.
    void aPictureOfSomethingElseIsFarBeyondTheTolerance()
    {
        const QTemporaryDir folder;
        const QList<QImage> pages =
            picturesOfPdf(writeFile(folder.filePath(u"a.pdf"_s), numberedPdf("a", 2)));
        QCOMPARE(pages.size(), 2);
        const QImage &page = pages.constFirst();
        QVERIFY(isWithin(differenceOf(page, page), kBySameProgram));
        QVERIFY(!isWithin(differenceOf(page, pages.at(1)), kByAnother));
        QVERIFY(!isWithin(differenceOf(page, page.mirrored(true, false)), kByAnother));
        QVERIFY(!isWithin(differenceOf(page, page.mirrored(true, true)), kByAnother));
        const auto moved = [&](int points) { return page.copy(page.rect().translated(points, 0)); };
        QVERIFY(!isWithin(differenceOf(page, moved(1)), kBySameProgram));
        QVERIFY(!isWithin(differenceOf(page, moved(4)), kByAnother));
        QImage empty(page.size(), QImage::Format_RGB32);
        empty.fill(Qt::white);
        QVERIFY(!isWithin(differenceOf(page, empty), kByAnother));
    }
};

QTEST_MAIN(PreviewTruthTest)

#include "preview_truth_test.moc"
