// How long the Color Setting panel takes from the report of a slider until its preview is painted,
// against two baselines in the same run: copying a picture of 3840 x 2160 with memcpy, and what one
// would write first, which is to filter the whole picture and scale it to the view.
//
//   slider_benchmark           measures and prints the ratios
//   slider_benchmark --check   the same, and fails when a step costs more than it should, or when
//                              it takes memory that would hold pixels
//
// The panel is the real one with the interface file that is shipped, on the platform "offscreen".
// Other arguments are those of Google Benchmark. Exit status: 0; 1 when the preview does not show
// what it should or --check fails; 2 for a wrong argument.

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBackingStore>
#include <QDeadlineTimer>
#include <QEvent>
#include <QSlider>

#include "benchmarks/support/BestTimes.h"
#include "colorsetting/QXLaserColorSettingPDE.h"
#include "platform/toolkit/FilterImageView.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"

// The program's own malloc goes before that of the C library for every library that it loads, so
// that no allocation of Qt's is missed. Sanitizers bring their own instead.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#define CORVANA_COUNTS_ALLOCATIONS 1
extern "C" {
void *__libc_malloc(std::size_t);
void *__libc_calloc(std::size_t, std::size_t);
void *__libc_realloc(void *, std::size_t);
void *__libc_memalign(std::size_t, std::size_t);
}
#else
#define CORVANA_COUNTS_ALLOCATIONS 0
#endif

namespace {

/// Bytes. Less than a quarter of the smallest preview measured, more than any text or event needs.
constexpr std::size_t kPixelBuffer = 64 * 1024;

std::atomic<long> pixelBuffers = 0;

[[maybe_unused]] void countAllocation(std::size_t bytes)
{
    if (bytes >= kPixelBuffer)
        pixelBuffers.fetch_add(1, std::memory_order_relaxed);
}

} // namespace

#if CORVANA_COUNTS_ALLOCATIONS
extern "C" {
void *malloc(std::size_t bytes)
{
    countAllocation(bytes);
    return __libc_malloc(bytes);
}
void *calloc(std::size_t count, std::size_t bytes)
{
    countAllocation(count * bytes);
    return __libc_calloc(count, bytes);
}
void *realloc(void *memory, std::size_t bytes)
{
    countAllocation(bytes);
    return __libc_realloc(memory, bytes);
}
void *memalign(std::size_t alignment, std::size_t bytes)
{
    countAllocation(bytes);
    return __libc_memalign(alignment, bytes);
}
void *aligned_alloc(std::size_t alignment, std::size_t bytes)
{
    return memalign(alignment, bytes);
}
int posix_memalign(void **memory, std::size_t alignment, std::size_t bytes)
{
    void *block = memalign(alignment, bytes);
    if (!block)
        return ENOMEM;
    *memory = block;
    return 0;
}
}
#endif

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

constexpr int kRepetitions = 15;
constexpr int kPatience = 5000;   // milliseconds
constexpr int kScales[] = {1, 2}; // device pixels per pixel

const QSize kViewSize(300, 200);
const QSize kCopied(3840, 2160);
const QSize kPictures[] = {{320, 240}, {1920, 1080}, {3840, 2160}, {8000, 6000}};

/// What a step may cost of the time that copying a picture of 3840 x 2160 takes.
constexpr double kMostOfMemcpy = 0.1;

const std::string kMemcpy = "memcpy";

std::string nameOf(QSize picture, const char *subject)
{
    return std::to_string(picture.width()) + "x" + std::to_string(picture.height()) + " " + subject;
}

/// Colours from the middle of their range only: where no filter clamps, it does not matter whether
/// a picture is scaled before or after.
QImage gradient(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        const int down = 80 * y / size.height();
        for (int x = 0; x < size.width(); ++x)
            line[x] = qRgb(88 + 80 * x / size.width(), 88 + down, 168 - down);
    }
    return picture;
}

/// What one would write first.
QImage wholePicture(const FilterImage &image, QSize pixels)
{
    return image.rendered().scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The panel in a window, with its effects disclosed.
class Preview : public QObject
{
public:
    Preview()
    {
        if (!m_panel.initWithCallback(test::RecordingHost::forSamplePrinter()))
            return;
        m_window = m_panel.panelView();
        if (!m_window)
            return;
        m_panel.willShow();
        auto *disclosure = m_window->findChild<QAbstractButton *>(u"optionButton"_s);
        m_view = m_window->findChild<FilterImageView *>(u"effectImageView"_s);
        m_slider = m_window->findChild<QSlider *>(u"brightnessSlider"_s);
        if (!disclosure || !m_view || !m_slider)
            return;
        if (!disclosure->isChecked())
            disclosure->click();
        m_view->setFixedSize(kViewSize);
        m_view->installEventFilter(this);
        m_window->show();
        waitForPaint(0);
    }

    bool isUp() const
    {
        return m_view && m_slider && m_view->isVisible() && m_slider->isVisible() &&
               m_slider->isEnabled() && m_view->size() == kViewSize;
    }

    /// Other pictures are forgotten.
    void showPicture(QSize size)
    {
        if (m_panel.refImage().extent() != size)
            m_panel.setRefImage(FilterImage(gradient(size)));
    }

    /// Moves the slider as a user does, and comes back when the preview is painted.
    void step()
    {
        const int painted = m_paints;
        m_slider->setValue(m_slider->value() == 3 ? -3 : 3);
        waitForPaint(painted);
    }

    const FilterImage &image() const { return m_view->image(); }

    /// Device pixels of the picture in the view.
    QSize pixels() const
    {
        return image().extent().scaled(kViewSize, Qt::KeepAspectRatio) * scale();
    }

    double scale() const { return m_view->devicePixelRatioF(); }

    /// What was painted last into the window, where the preview has its picture; null when that
    /// cannot be read.
    QImage painted() const
    {
        const auto *window = dynamic_cast<QImage *>(m_window->backingStore()->paintDevice());
        if (!window)
            return {};
        const QSize fitting = pixels() / scale();
        const QPoint corner =
            m_view->mapTo(m_window, QPoint((kViewSize.width() - fitting.width()) / 2, 0));
        QImage copy = window->copy(QRect(corner * scale(), pixels()));
        copy.setDevicePixelRatio(1);
        return copy;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_paints;
        return QObject::eventFilter(watched, event);
    }

private:
    // A preview that is never painted must not hang; comparing the answers tells of it.
    void waitForPaint(int painted)
    {
        const QDeadlineTimer patience(kPatience);
        while (m_paints == painted && !patience.hasExpired())
            QCoreApplication::processEvents();
    }

    test::TestBundle m_bundle = test::TestBundle::built();
    QXLaserColorSettingPDE m_panel;
    QWidget *m_window = nullptr;
    FilterImageView *m_view = nullptr;
    QSlider *m_slider = nullptr;
    int m_paints = 0;
};

/// Whether the window shows what the whole picture, filtered and then scaled, looks like; after
/// each of two steps, of which one alone might have been there before.
bool answersAgree(Preview &preview, QSize size)
{
    preview.showPicture(size);
    QImage last;
    for (int round = 0; round < 2; ++round) {
        preview.step();
        const QImage shown = preview.painted();
        const QImage expected = wholePicture(preview.image(), preview.pixels());
        if (shown == last || shown.size() != expected.size()) {
            std::fprintf(stderr, "%d x %d: the preview does not change\n", size.width(),
                         size.height());
            return false;
        }
        last = shown;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                const QRgb left = shown.pixel(x, y);
                const QRgb right = expected.pixel(x, y);
                if (std::abs(qRed(left) - qRed(right)) > 2 ||
                    std::abs(qGreen(left) - qGreen(right)) > 2 ||
                    std::abs(qBlue(left) - qBlue(right)) > 2) {
                    std::fprintf(stderr, "%d x %d: the answers differ at pixel %d, %d\n",
                                 size.width(), size.height(), x, y);
                    return false;
                }
            }
        }
    }
    return true;
}

/// Allocations that would hold pixels, in a hundred steps that follow a first one.
long pixelBuffersOfSteps(Preview &preview, QSize size)
{
    preview.showPicture(size);
    preview.step();
    const long before = pixelBuffers;
    for (int i = 0; i < 100; ++i)
        preview.step();
    return pixelBuffers - before;
}

void registerBenchmarks(Preview &preview)
{
    benchmark::RegisterBenchmark(kMemcpy.c_str(),
                                 [](benchmark::State &state) {
                                     const QImage source = gradient(kCopied);
                                     QImage copy(kCopied, source.format());
                                     copy.fill(Qt::black); // so that its pages exist
                                     for (auto _ : state) {
                                         std::memcpy(copy.bits(), source.constBits(),
                                                     static_cast<std::size_t>(copy.sizeInBytes()));
                                         benchmark::ClobberMemory();
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(kRepetitions)
        ->MinTime(0.05);
    for (const QSize size : kPictures) {
        benchmark::RegisterBenchmark(nameOf(size, "step").c_str(),
                                     [&preview, size](benchmark::State &state) {
                                         preview.showPicture(size);
                                         preview.step();
                                         for (auto _ : state)
                                             preview.step();
                                     })
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(kRepetitions)
            ->MinTime(0.05);
        benchmark::RegisterBenchmark(nameOf(size, "whole picture").c_str(),
                                     [&preview, size](benchmark::State &state) {
                                         preview.showPicture(size);
                                         preview.step();
                                         for (auto _ : state)
                                             benchmark::DoNotOptimize(
                                                 wholePicture(preview.image(), preview.pixels()));
                                     })
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(3);
    }
}

/// Prints the ratios; false when one is too high.
bool judge(const benchmarks::BestTimes &times, Preview &preview)
{
    bool good = true;
    const double copying = times.best(kMemcpy);
    std::printf(
        "\nfrom slider to paint, view of %d x %d at scale %g, best of %d; memcpy of %d x %d "
        "takes %.3f ms\n",
        kViewSize.width(), kViewSize.height(), preview.scale(), kRepetitions, kCopied.width(),
        kCopied.height(), copying * 1e3);
    std::printf("%-13s %9s %12s %18s %15s\n", "picture", "ms", "of memcpy", "of whole picture",
                "pixel buffers");
    for (const QSize size : kPictures) {
        const double step = times.best(nameOf(size, "step"));
        const long buffers = pixelBuffersOfSteps(preview, size);
        const bool enough = step <= kMostOfMemcpy * copying && buffers == 0;
        std::printf("%5d x %-5d %9.3f %12.3f %18.4f %15ld%s\n", size.width(), size.height(),
                    step * 1e3, step / copying, step / times.best(nameOf(size, "whole picture")),
                    buffers, enough ? "" : "  too much");
        good = good && enough;
    }
    return good;
}

int measure(int scale, bool check)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    int argc = 1;
    char program[] = "slider_benchmark";
    char *argv[] = {program, nullptr};
    const QApplication application(argc, argv);
    const test::UserPreferences preferences;

    Preview preview;
    if (!preview.isUp() || preview.scale() != scale) {
        std::fprintf(stderr, "the panel does not come up at scale %d\n", scale);
        return 1;
    }
    for (const QSize size : kPictures) {
        if (!answersAgree(preview, size))
            return 1;
    }
    registerBenchmarks(preview);
    benchmarks::BestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    if (!CORVANA_COUNTS_ALLOCATIONS)
        std::printf("\nAllocations are not counted in this build.\n");
    return judge(times, preview) || !check ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    bool check = false;
    if (!benchmarks::takeArguments(argc, argv, &check))
        return 2;
    bool good = true;
    for (const int scale : kScales)
        good = benchmarks::inOwnProcess([&] { return measure(scale, check); }) == 0 && good;
    return good ? 0 : 1;
}
