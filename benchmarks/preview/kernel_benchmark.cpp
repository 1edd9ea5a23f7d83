// How fast a picture is filtered for the preview, against two baselines in the same run: copying
// the picture with memcpy, which no filter can be expected to beat, and the loop over scan lines
// that one would write first.
//
//   preview_benchmark           measures and prints the ratios
//   preview_benchmark --check   the same, and fails when a ratio is lower than it should be
//
// Other arguments are those of Google Benchmark. Exit status: 0; 1 when the answers do not agree or
// a ratio is too low; 2 for a wrong argument.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <random>
#include <string>

#include <benchmark/benchmark.h>
#include <hwy/highway.h>

#include <QImage>

#include "benchmarks/support/BestTimes.h"
#include "platform/imaging/FilterImage.h"
#include "platform/imaging/ImageFilter.h"

using namespace corvana;

namespace {

/// Enough to find an undisturbed one on a machine that has other things to do.
constexpr int kRepetitions = 15;

enum class Subject { Memcpy, ScanLines, Kernel };

constexpr Subject kSubjects[] = {Subject::Memcpy, Subject::ScanLines, Subject::Kernel};

const char *nameOf(Subject subject)
{
    switch (subject) {
    case Subject::Memcpy:
        return "memcpy";
    case Subject::ScanLines:
        return "scan lines";
    case Subject::Kernel:
        return "kernel";
    }
    return "";
}

/// A size, and the ratios that --check demands of it with AVX2 or better; 0 for none.
struct Case
{
    QSize size;
    double memcpyRatio;
    double scanLineRatio;
};

const Case kCases[] = {
    {{320, 240}, 0, 12},
    {{1920, 1080}, 0, 12},
    {{3840, 2160}, 0.9, 12},
    {{8000, 6000}, 1.0, 12},
};

std::string benchmarkName(const Case &one, Subject subject)
{
    return std::to_string(one.size.width()) + "x" + std::to_string(one.size.height()) + " " +
           nameOf(subject);
}

/// A picture without any pattern that a branch predictor could learn.
QImage noise(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    std::minstd_rand random(1);
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        std::generate_n(line, picture.width(), [&] { return 0xff000000 | random(); });
    }
    return picture;
}

/// Both filters with every effect set.
ColorTransform bothFilters()
{
    const auto controls = ImageFilter::filterWithName(kCIColorControls);
    controls->setValue_forKey(FilterImage(QImage(1, 1, QImage::Format_RGB32)), kCIInputImageKey);
    controls->setValue_forKey(0.05f, kCIInputBrightnessKey);
    controls->setValue_forKey(1.1f, kCIInputContrastKey);
    controls->setValue_forKey(1.2f, kCIInputSaturationKey);
    const auto matrix = ImageFilter::filterWithName(kCIColorMatrix);
    matrix->setValue_forKey(controls->outputImage(), kCIInputImageKey);
    matrix->setValue_forKey(FilterVector{0.9, 0, 0}, kCIInputRVectorKey);
    matrix->setValue_forKey(FilterVector{0, 1.1, 0}, kCIInputGVectorKey);
    return matrix->outputImage().transform();
}

int component(const std::array<double, 4> &row, QRgb pixel)
{
    const double value =
        row[0] * qRed(pixel) + row[1] * qGreen(pixel) + row[2] * qBlue(pixel) + row[3] * 255;
    return qBound(0, qRound(value), 255);
}

/// The loop that one would write first.
void filterScanLines(const ColorTransform &transform, const QImage &source, QImage &destination)
{
    for (int y = 0; y < source.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(source.constScanLine(y));
        auto *to = reinterpret_cast<QRgb *>(destination.scanLine(y));
        for (int x = 0; x < source.width(); ++x) {
            const QRgb pixel = from[x];
            to[x] = qRgba(component(transform.rows[0], pixel), component(transform.rows[1], pixel),
                          component(transform.rows[2], pixel), qAlpha(pixel));
        }
    }
}

/// A source, and a destination that was written to, so that its pages exist.
struct Pictures
{
    FilterImage source;
    QImage destination;

    explicit Pictures(QSize size)
        : source(FilterImage(noise(size)).filtered(bothFilters())),
          destination(size, QImage::Format_RGB32)
    {
        destination.fill(Qt::black);
    }

    void run(Subject subject)
    {
        switch (subject) {
        case Subject::Memcpy:
            std::memcpy(destination.bits(), source.picture().constBits(),
                        static_cast<std::size_t>(source.picture().sizeInBytes()));
            break;
        case Subject::ScanLines:
            filterScanLines(source.transform(), source.picture(), destination);
            break;
        case Subject::Kernel:
            source.renderInto(destination);
            break;
        }
        benchmark::DoNotOptimize(destination.constBits());
        benchmark::ClobberMemory();
    }
};

/// The pictures of one size at a time; two of the largest would be a gigabyte.
Pictures &picturesOf(QSize size)
{
    static std::optional<Pictures> pictures;
    if (!pictures || pictures->source.extent() != size) {
        pictures.reset();
        pictures.emplace(size);
    }
    return *pictures;
}

/// Whether the kernel gives what the scan lines give, to one step.
bool answersAgree(QSize size)
{
    Pictures pictures(size);
    pictures.run(Subject::Kernel);
    const QImage answer = pictures.destination.copy();
    pictures.run(Subject::ScanLines);
    for (int y = 0; y < size.height(); ++y) {
        const uchar *left = answer.constScanLine(y);
        const uchar *right = pictures.destination.constScanLine(y);
        for (int x = 0; x < 4 * size.width(); ++x) {
            if (std::abs(left[x] - right[x]) > 1) {
                std::fprintf(stderr, "%d x %d: the answers differ at pixel %d, %d\n", size.width(),
                             size.height(), x / 4, y);
                return false;
            }
        }
    }
    return true;
}

/// Prints the ratios; false when one is too low.
bool judge(const benchmarks::BestTimes &times, const char *target, bool demanding)
{
    bool good = true;
    std::printf("\nkernel with %s, best of %d\n", target, kRepetitions);
    std::printf("%-12s %10s %10s %14s %16s\n", "size", "ms", "GB/s", "of memcpy", "of scan lines");
    for (const Case &one : kCases) {
        const double kernel = times.best(benchmarkName(one, Subject::Kernel));
        const double ofMemcpy = times.best(benchmarkName(one, Subject::Memcpy)) / kernel;
        const double ofScanLines = times.best(benchmarkName(one, Subject::ScanLines)) / kernel;
        const double bytes = 8.0 * one.size.width() * one.size.height(); // read and written
        const bool enough = ofMemcpy >= one.memcpyRatio && ofScanLines >= one.scanLineRatio;
        std::printf("%5d x %-5d %9.3f %10.1f %13.2fx %15.1fx%s\n", one.size.width(),
                    one.size.height(), kernel * 1e3, bytes / kernel / 1e9, ofMemcpy, ofScanLines,
                    demanding && !enough ? "  too low" : "");
        good = good && enough;
    }
    return good || !demanding;
}

} // namespace

int main(int argc, char **argv)
{
    bool check = false;
    if (!benchmarks::takeArguments(argc, argv, &check))
        return 2;

    for (const Case &one : kCases) {
        if (!answersAgree(one.size))
            return 1;
    }
    for (const Case &one : kCases) {
        for (const Subject subject : kSubjects) {
            benchmark::RegisterBenchmark(benchmarkName(one, subject).c_str(),
                                         [&one, subject](benchmark::State &state) {
                                             Pictures &pictures = picturesOf(one.size);
                                             for (auto _ : state)
                                                 pictures.run(subject);
                                         })
                ->Unit(benchmark::kMillisecond)
                ->Repetitions(kRepetitions)
                ->MinTime(0.05);
        }
    }
    benchmarks::BestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);

    // Lower numbers are better targets; the processor may know some that the kernel was not built
    // for.
    const std::int64_t usable = hwy::SupportedTargets() & HWY_TARGETS;
    const std::int64_t target = usable & -usable;
#if defined(Q_PROCESSOR_X86_64)
    const bool demanding = check && target <= HWY_AVX2;
#else
    const bool demanding = false;
#endif
    if (check && !demanding)
        std::printf("\nWithout AVX2 no ratio is demanded.\n");
    return judge(times, hwy::TargetName(target), demanding) ? 0 : 1;
}
