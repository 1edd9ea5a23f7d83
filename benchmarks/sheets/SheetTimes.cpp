#include "benchmarks/sheets/SheetTimes.h"

#include <algorithm>
#include <chrono>

#include <time.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QTimer>

#include "benchmarks/support/Waiting.h"
#include "tests/support/TestPaths.h"

namespace corvana::benchmarks {

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

double worst = 0;

double timeOfThread()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

template <typename Work> void worked(const Work &work)
{
    const double start = timeOfThread();
    work();
    worst = std::max(worst, timeOfThread() - start);
}

} // namespace

double longestWork()
{
    return worst;
}

QString documentOf(int pages, const QTemporaryDir &folder)
{
    const QString sample = test::sourceFile(u"resources/sample/welcome.pdf"_s);
    const QString result = folder.filePath(u"%1.pdf"_s.arg(pages));
    QStringList arguments{u"--empty"_s, u"--pages"_s};
    for (int page = 0; page < pages; ++page)
        arguments << sample << QString::number(page % 3 + 1);
    arguments << u"--"_s << result;
    return QProcess::execute(u"qpdf"_s, arguments) == 0 ? result : QString();
}

bool watchUntil(const std::function<bool()> &done)
{
    const QDeadlineTimer deadline(kPatience);
    QTimer waker; // so that the deadline is seen
    waker.start(kPatience);
    while (!done()) {
        if (deadline.hasExpired())
            return false;
        worked([] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); });
    }
    return true;
}

std::optional<double> timeOfPicture(PagePictures &pictures, const PageToDraw &page, QImage *drawn)
{
    const Clock::time_point start = Clock::now();
    worked([&] { pictures.want({page}); });
    if (!watchUntil([&] { return !pictures.picture(page).isNull(); }))
        return std::nullopt;
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    *drawn = pictures.picture(page);
    return seconds;
}

std::optional<double> timeOfPdftoppm(const PageToDraw &page, const QString &result)
{
    const QString number = QString::number(page.page + 1);
    const QStringList arguments{u"-q"_s,
                                u"-cropbox"_s,
                                u"-f"_s,
                                number,
                                u"-l"_s,
                                number,
                                u"-singlefile"_s,
                                u"-scale-to-x"_s,
                                QString::number(page.size.width()),
                                u"-scale-to-y"_s,
                                QString::number(page.size.height()),
                                page.file,
                                result};
    const Clock::time_point start = Clock::now();
    QProcess program;
    program.start(u"pdftoppm"_s, arguments);
    if (!program.waitForFinished(kPatience) || program.exitCode() != 0)
        return std::nullopt;
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void add(const std::string &name, const Measure &measure, int repetitions)
{
    ::benchmark::RegisterBenchmark(name.c_str(),
                                   [measure](::benchmark::State &state) {
                                       for (auto _ : state) {
                                           if (const std::optional<double> seconds = measure())
                                               state.SetIterationTime(*seconds);
                                           else
                                               state.SkipWithError("no picture");
                                       }
                                   })
        ->Unit(::benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(repetitions)
        ->UseManualTime();
}

} // namespace corvana::benchmarks
