// Whether the sheets of a long document scroll without a jerk in the real window, against an empty
// area of the same size that scrolls in the same way, and how much memory they take, against the
// same window with its preview folded away.
//
//   scrolling_benchmark           measures and prints what it found
//   scrolling_benchmark --check   the same, and fails when there is more of anything than should be
//
// 500 pages; 60 steps a second; runs of both kinds take turns. A gap is the time that the GUI
// thread had for nothing else. "Work" is the worst of all runs, and only what that thread computed.
// "By clock" is what the tests of faulty servers measure, in the run that was disturbed least: what
// the thread waited for a processor is nothing that it did, but what the host of a virtual machine
// took, and what others took from the threads among which Qt shares out the filling of an area, is
// still in it. It says something on an idle machine. Memory is the most that a process ever had. No
// display is needed; with QT_QPA_PLATFORM another one is taken.
//
// Exit status: 0; 1 when something cannot be measured or --check fails; 2 for a wrong argument.

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>

#include <sys/mman.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QProcess>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

#include "benchmarks/support/BestTimes.h"
#include "benchmarks/support/Waiting.h"
#include "benchmarks/support/WatchedApplication.h"
#include "dialog/app/RequestFromCommandLine.h"
#include "dialog/window/PrintWindow.h"
#include "dialog/window/preview/PreviewPane.h"
#include "dialog/window/preview/SheetView.h"
#include "tests/support/Heartbeat.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace Qt::StringLiterals;
using benchmarks::waitFor;
using benchmarks::WatchedApplication;

namespace {

constexpr int kPages = 500;
constexpr int kStepsPerSecond = 60;
constexpr int kRounds = 3;
/// How long one run scrolls. Units: seconds
constexpr int kRun = 6;

/// Units: milliseconds
constexpr double kMostGap = 16;
/// On a screen of so many pixels that moving an empty area takes nearly as long.
constexpr double kMostMore = 8;
/// Units: KiB
constexpr qint64 kMostOfDialog = 64 << 10;
constexpr qint64 kMostOfRenderer = 256 << 10;

/// How fast a user moves.
enum class Pace {
    Wheel,   ///< a step of a wheel each time
    Through, ///< from the first page to the last in one run
};

struct Screen
{
    const char *name;
    QSize window;
    const char *ratio;
    bool isUsual;
};
constexpr Screen kScreens[] = {
    {"1200 x 850", {1200, 850}, "1", true},
    {"1920 x 1080, two pixels each", {1920, 1080}, "2", false},
};

/// The largest gaps of several runs. Units: milliseconds. Errors: -1.
struct Gaps
{
    qint64 byClock = -1; ///< in the run that was disturbed least
    double work = -1;    ///< of any run
    int steps = 0;       ///< that were made, of 60 a second
};

/// What a process has found out; in memory that it shares with the one that judges. Units of
/// memory: KiB. Errors: -1.
struct Findings
{
    Gaps wheel;
    Gaps through;
    Gaps empty;
    qint64 memory = -1;
    qint64 memoryOfRenderer = -1;
};

Findings *sharedFindings(std::size_t number)
{
    void *memory = ::mmap(nullptr, number * sizeof(Findings), PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return nullptr;
    auto *findings = static_cast<Findings *>(memory);
    std::uninitialized_default_construct_n(findings, number);
    return findings;
}

/// The sample document again and again. Null where it cannot be made.
QString longDocument(const QTemporaryDir &folder)
{
    const QString sample = test::sourceFile(u"resources/sample/welcome.pdf"_s);
    QStringList arguments{u"--empty"_s, u"--pages"_s};
    for (int page = 0; page < kPages; ++page)
        arguments << sample << QString::number(page % 3 + 1);
    const QString result = folder.filePath(u"long.pdf"_s);
    arguments << u"--"_s << result;
    return QProcess::execute(u"qpdf"_s, arguments) == 0 ? result : QString();
}

/// The most memory that a process ever had. Units: KiB. Errors: -1.
qint64 mostMemory(qint64 process)
{
    QFile status(u"/proc/%1/status"_s.arg(process));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').constFirst().toLongLong();
    }
    return -1;
}

/// Of the programs that this one has started. Errors: -1.
qint64 memoryOfRenderer()
{
    const QString tasks = u"/proc/self/task"_s;
    qint64 most = -1;
    for (const QString &task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile children(tasks + u'/' + task + u"/children"_s);
        if (!children.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray &child : children.readAll().simplified().split(' ')) {
            const QString program = u"/proc/%1/exe"_s.arg(QString::fromLatin1(child));
            if (QFileInfo(QFile::symLinkTarget(program)).fileName() == "corvana-page-renderer"_L1)
                most = std::max(most, mostMemory(child.toLongLong()));
        }
    }
    return most;
}

/// An area with nothing on it, which moves what it shows as the view of the sheets does.
class EmptyArea : public QAbstractScrollArea
{
public:
    EmptyArea(QSize size, QSize contents)
    {
        viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
        resize(size);
        verticalScrollBar()->setPageStep(size.height());
        verticalScrollBar()->setRange(0, contents.height() - size.height());
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter(viewport()).fillRect(event->rect(), Qt::gray);
    }
    void scrollContentsBy(int dx, int dy) override { viewport()->scroll(dx, dy); }
};

/// Scrolls for the time of a run.
void scroll(QScrollBar &bar, int step, Gaps *gaps)
{
    auto &application = *static_cast<WatchedApplication *>(QCoreApplication::instance());
    bar.setValue(0);
    QElapsedTimer clock;
    QTimer stepping;
    stepping.setTimerType(Qt::PreciseTimer);
    QObject::connect(&stepping, &QTimer::timeout, &stepping, [&] {
        bar.setValue(bar.value() + step);
        ++gaps->steps;
    });
    QTimer beating;
    beating.setTimerType(Qt::PreciseTimer);
    QObject::connect(&beating, &QTimer::timeout, &beating, [&] { application.beat(); });
    test::Heartbeat heart(std::chrono::milliseconds(1));
    clock.start();
    beating.start(1);
    heart.start();
    application.takeMost();
    stepping.start(1000 / kStepsPerSecond);
    waitFor([&] { return clock.hasExpired(kRun * 1000); });
    heart.stop();
    const qint64 gap = heart.takeLargestGap();
    gaps->byClock = gaps->byClock < 0 ? gap : std::min(gaps->byClock, gap);
    gaps->work = std::max(gaps->work, application.takeMost());
}

int stepOf(Pace pace, const QScrollBar &bar)
{
    return pace == Pace::Wheel ? 3 * bar.singleStep() / 2
                               : bar.maximum() / (kRun * kStepsPerSecond);
}

class Run
{
public:
    Run(const Screen &screen, bool hasPreview, const QString &document, Findings &found)
        : m_screen(screen), m_hasPreview(hasPreview), m_document(document), m_found(found)
    {
    }

    bool measure()
    {
        if (!m_folder.isValid())
            return false;
        qputenv("XDG_CONFIG_HOME", m_folder.path().toLocal8Bit());
        qputenv("QT_SCALE_FACTOR", m_screen.ratio);
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screenFile());
        int argc = 1;
        char program[] = "scrolling_benchmark";
        char *argv[] = {program, nullptr};
        const WatchedApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        return measureWindow();
    }

private:
    const Screen &m_screen;
    bool m_hasPreview;
    QString m_document;
    Findings &m_found;
    QTemporaryDir m_folder;

    /// Where the window has room.
    QByteArray screenFile() const
    {
        QFile file(m_folder.filePath(u"screen.json"_s));
        if (file.open(QIODevice::WriteOnly))
            file.write(R"({"screens": [{"name": "desk", "x": 0, "y": 0, "width": 3840, )"
                       R"("height": 2160, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
        return QFile::encodeName(file.fileName());
    }

    std::unique_ptr<PrintWindow> makeWindow() const
    {
        CommandLine line;
        line.documents = {m_document};
        line.ppd = test::sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        line.bundleRoots = {test::bundleRoot()};
        line.output = m_folder.filePath(u"job.ps"_s);
        QString error;
        const std::optional<PrintRequest> request = preparePrintRequest(line, &error);
        return request ? std::make_unique<PrintWindow>(*request) : nullptr;
    }

    bool measureWindow()
    {
        const std::unique_ptr<PrintWindow> window = makeWindow();
        if (!window)
            return false;
        window->show();
        const auto *preview = window->findChild<PreviewPane *>(u"preview"_s);
        if (!m_hasPreview) {
            waitFor([&] { return window->task().phase() == PrintTask::Phase::Ready; });
            Q_EMIT window->findChild<PreviewPane *>(u"preview"_s)->foldPressed(true);
        } else {
            window->resize(m_screen.window);
        }
        const auto *counts = window->findChild<QLabel *>(u"counts"_s);
        if (!waitFor([&] { return counts->text() == u"500 pages = 500 sheets"_s; }))
            return false;
        QElapsedTimer rest;
        rest.start();
        waitFor([&] { return rest.hasExpired(500); });
        m_found.memory = mostMemory(::getpid());
        if (m_hasPreview && !measureScrolling(*preview->sheets()))
            return false;
        m_found.memoryOfRenderer = memoryOfRenderer();
        return m_found.memory > 0;
    }

    bool measureScrolling(SheetView &view)
    {
        QScrollBar &bar = *view.verticalScrollBar();
        if (!waitFor([&] { return memoryOfRenderer() > 0; }) || bar.maximum() == 0)
            return false;
        // Everything that there can be in memory, and nothing of the area to compare with.
        Gaps unused;
        scroll(bar, stepOf(Pace::Through, bar), &unused);
        m_found.memory = mostMemory(::getpid());
        EmptyArea empty(view.size(), view.sheetLayout().contents());
        empty.show();
        for (int round = 0; round < kRounds; ++round) {
            scroll(*empty.verticalScrollBar(), stepOf(Pace::Through, bar), &m_found.empty);
            scroll(bar, stepOf(Pace::Wheel, bar), &m_found.wheel);
            scroll(bar, stepOf(Pace::Through, bar), &m_found.through);
        }
        return true;
    }
};

bool reportGaps(const char *what, const Gaps &gaps, double most, bool isJudgedByClock)
{
    const double worst =
        isJudgedByClock ? std::max(gaps.work, static_cast<double>(gaps.byClock)) : gaps.work;
    const bool enough = gaps.work >= 0 && worst <= most;
    std::printf("  %-40s %8.1f %12lld %8.0f %8.1f%s\n", what, gaps.work,
                static_cast<long long>(gaps.byClock),
                100.0 * gaps.steps / (kRounds * kRun * kStepsPerSecond), most,
                enough ? "" : "  TOO LONG");
    return enough;
}

bool reportMemory(const char *what, qint64 memory, qint64 most)
{
    const bool enough = memory >= 0 && memory <= most;
    std::printf("  %-40s %8.1f, at most %lld%s\n", what, static_cast<double>(memory) / 1024,
                static_cast<long long>(most / 1024), enough ? "" : "  TOO MUCH");
    return enough;
}

bool judge(const Screen &screen, const Findings &with, const Findings &without)
{
    std::printf("\n%d pages in a window of %s, %d runs of %d s\n", kPages, screen.name, kRounds,
                kRun);
    const double most = screen.isUsual ? kMostGap : std::max(kMostGap, with.empty.work + kMostMore);
    std::printf("  %-40s %8s %12s %8s %8s\n", "gaps", "work, ms", "by clock, ms", "steps, %",
                "at most");
    reportGaps("an empty area", with.empty, most, screen.isUsual);
    bool good = reportGaps("a step of the wheel at a time", with.wheel, most, screen.isUsual);
    good =
        reportGaps("from the first page to the last", with.through, most, screen.isUsual) && good;
    std::printf("  memory, MiB\n");
    std::printf("  %-40s %8.1f\n", "the dialog without a preview",
                static_cast<double>(without.memory) / 1024);
    good = reportMemory("with it, more by", with.memory - without.memory, kMostOfDialog) && good;
    return reportMemory("the renderer", with.memoryOfRenderer, kMostOfRenderer) && good;
}

bool measureAll()
{
    const QTemporaryDir folder;
    const QString document = longDocument(folder);
    Findings *found = sharedFindings(2 * std::size(kScreens));
    if (document.isEmpty() || !found)
        return false;
    bool good = true;
    for (const Screen &screen : kScreens) {
        Findings &with = *found++;
        Findings &without = *found++;
        for (const bool hasPreview : {false, true}) {
            Findings &own = hasPreview ? with : without;
            const int status = benchmarks::inOwnProcess(
                [&] { return Run(screen, hasPreview, document, own).measure() ? 0 : 1; });
            if (status != 0) {
                std::printf("%s: nothing could be measured\n", screen.name);
                return false;
            }
        }
        good = judge(screen, with, without) && good;
    }
    return good;
}

} // namespace

int main(int argc, char **argv)
{
    return benchmarks::compare(argc, argv, measureAll);
}
