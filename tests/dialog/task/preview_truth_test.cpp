#include <algorithm>
#include <optional>
#include <random>

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/SidePictures.h"
#include "tests/dialog/task/TaskScene.h"
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
// Pictures have been enlarged by it in the PostScript otherwise than in the PDF.
constexpr PictureDifference kOfPictures{0, 1, 2.0, 70.0};
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

struct NamedLayout
{
    QString name;
    QList<JobOption> options;
};

NamedLayout operator+(const NamedLayout &one, const NamedLayout &other)
{
    return {one.name + u", "_s + other.name, one.options + other.options};
}

NamedLayout layout(const char *name, const char *value)
{
    const JobOption option{QString::fromLatin1(name), QString::fromLatin1(value)};
    return {option.name + u'=' + option.value, {option}};
}

// Each control. Values of one control stand in a list of their own: a pair has two controls.
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

enum class Kind {
    A4,
    Letter,
    Landscape,
    Mixed,
    Rotated,
    Cropped,
    Portrait, // a picture
    Wide,     // a picture
    Text,
    PostScript,
    Several,
    Long,
    VeryLong,
};

struct NamedKind
{
    const char *name;
    Kind kind;
};
const NamedKind kKinds[] = {
    {"A4", Kind::A4},
    {"Letter", Kind::Letter},
    {"landscape", Kind::Landscape},
    {"mixed", Kind::Mixed},
    {"rotated", Kind::Rotated},
    {"cropped", Kind::Cropped},
    {"picture", Kind::Portrait},
    {"wide picture", Kind::Wide},
    {"text", Kind::Text},
    {"PostScript", Kind::PostScript},
    {"several", Kind::Several},
    {"60 pages", Kind::Long},
    {"500 pages", Kind::VeryLong},
};

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

} // namespace

class PreviewTruthTest : public QObject
{
    Q_OBJECT

private:
    struct Trial
    {
        Kind kind;
        NamedLayout layout;
    };
    QList<Trial> m_trials;
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's

    Document pdf(const QString &name, const QByteArray &content)
    {
        return {writeFile(m_scene->filter.path(name + u".pdf"_s), content), u"application/pdf"_s,
                name};
    }

    Document picture(QSize size)
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
        const QString path = m_scene->filter.path(u"picture.png"_s);
        image.save(path);
        return {path, u"image/png"_s, u"picture.png"_s};
    }

    QList<Document> documents(Kind kind)
    {
        const QSizeF wide = kA4.transposed();
        switch (kind) {
        case Kind::A4:
            return {pdf(u"a"_s, numberedPdf("a", 3))};
        case Kind::Letter:
            return {pdf(u"a"_s, numberedPdf("a", QList<QSizeF>{kLetter, kLetter, kLetter}))};
        case Kind::Landscape:
            return {pdf(u"a"_s, numberedPdf("a", QList<QSizeF>{wide, wide, wide}))};
        case Kind::Mixed:
            return {pdf(u"a"_s, numberedPdf("a", QList<QSizeF>{kA4, kLetter, wide, kA5, kA3}))};
        case Kind::Rotated:
            return {
                pdf(u"a"_s, numberedPdf("a", QList<NumberedPage>{
                                                 {kA4, 90}, {kA4, 270}, {kA4, 180}, {wide, 90}}))};
        case Kind::Cropped:
            return {
                pdf(u"a"_s, numberedPdf("a", QList<NumberedPage>{{kA4, 0, {40, 100, 500, 700}},
                                                                 {kA3, 0, {30, 500, 595, 650}},
                                                                 {kA4, 90, {40, 40, 400, 700}}}))};
        case Kind::Portrait:
            return {picture({600, 800})};
        case Kind::Wide:
            return {picture({1000, 600})};
        case Kind::Text:
            return {{writeFile(m_scene->filter.path(u"a.txt"_s), textOfLines(150)), u"text/plain"_s,
                     u"a.txt"_s}};
        case Kind::PostScript:
            return {{writeFile(m_scene->filter.path(u"a.ps"_s), postScriptOfPages(3)),
                     u"application/postscript"_s, u"a.ps"_s}};
        case Kind::Several:
            return {pdf(u"a"_s, numberedPdf("a", 3)),
                    pdf(u"b"_s, numberedPdf("b", QList<QSizeF>{wide, wide})),
                    pdf(u"c"_s, numberedPdf("c", QList<QSizeF>{kLetter, kLetter, kLetter}))};
        case Kind::Long:
            return {pdf(u"a"_s, numberedPdf("a", 60))};
        case Kind::VeryLong:
            return {pdf(u"a"_s, numberedPdf("a", 500))};
        }
        return {};
    }

    // Each control with each kind of document, or with those that chance has chosen; then pairs.
    void chooseTrials()
    {
        const QByteArray asked = qgetenv("CORVANA_TRUTH");
        const bool all = asked == "all";
        std::mt19937 chance(asked.isEmpty() || all ? kSeed : asked.toUInt());
        const auto below = [&](qsizetype end) { return qsizetype(chance() % size_t(end)); };
        QList<Kind> kinds;
        for (const NamedKind &kind : kKinds) {
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

    struct Result
    {
        SheetPreview preview;
        bool isRefused = false; // nothing would be printed
        QString stream;         // path of what was printed
    };

    // What is shown of a job, and what is printed of it. Errors: nothing.
    std::optional<Result> printed(const Trial &trial)
    {
        PrintRequest request = m_scene->request({m_scene->printer(u"laser"_s, samplePpd(5))});
        request.documents = documents(trial.kind);
        request.options = trial.layout.options;
        PrintTask &task = m_scene->open(request);
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        task.countSheets();
        if (counted.isEmpty() && !counted.wait(kTruthPatience))
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

    // The pages that the plan says are on a side are those whose texts the stream has there.
    void comparePages(const QList<PlannedSide> &sides, const Trial &tried, const QString &stream)
    {
        // Texts are not numbered by pages, and pictures have no text.
        if (tried.kind == Kind::Text || tried.kind == Kind::Portrait || tried.kind == Kind::Wide)
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
            QCOMPARE(found, sides.at(i).pages);
        }
    }

    QString nameOf(const Trial &trial) const
    {
        const auto *kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                        [&](const NamedKind &k) { return k.kind == trial.kind; });
        return QString::fromLatin1(kind->name) + u": "_s + trial.layout.name;
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
        QTest::addColumn<int>("trial");
        for (int i = 0; i < m_trials.size(); ++i)
            QTest::newRow(qPrintable(nameOf(m_trials.at(i)))) << i;
    }
    void thePreviewShowsWhatIsPrinted()
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
            compare(where, shownSide(side, same, stream.at(i).size()), side, stream.at(i),
                    isOfPictures ? kOfPictures : kBySameProgram);
            compare(where, shownSide(side, other, stream.at(i).size()), side, stream.at(i),
                    kByAnother);
            if (QTest::currentTestFailed())
                return;
        }
        comparePages(sides, tried, result->stream);
    }

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
