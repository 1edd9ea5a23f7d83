// How long a step of a colour slider takes until four sheets on a screen of 3840 x 2160 are painted
// anew, on one thread: the plug-in says what becomes of colours, each visible page is filtered, and
// the pages are composed with what lies around them into the picture that a window keeps. The
// baseline, in the same run, is a memcpy of that picture.
//
//   page_colors_benchmark           measures and prints the ratio
//   page_colors_benchmark --check   the same, and fails when a step costs more than it should
//
// Other arguments are those of Google Benchmark. Exit status: 0; 1 when what is painted is not what
// it should be or --check fails; 2 for a wrong argument.

#include <array>
#include <cstdio>
#include <cstring>

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>

#include "benchmarks/support/BestTimes.h"
#include "platform/imaging/FilterImage.h"
#include "plugin/QXPageColors.h"
#include "tests/support/EffectEntries.h"
#include "tests/support/RecordingHost.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

constexpr int kRepetitions = 15;
/// What a step may cost of the time that copying the pixels takes.
constexpr double kMostOfMemcpy = 3.0;

const QSize kScreen(3840, 2160);
constexpr int kSheets = 4;
constexpr int kGap = 16;

/// A page as it was drawn: text and a picture on white.
QImage pageOf(QSize size, int number)
{
    QImage page(size, QImage::Format_RGB32);
    page.fill(Qt::white);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(page.scanLine(y));
        for (int x = size.width() / 4; x < size.width() * 3 / 4; ++x)
            line[x] = qRgb(x * 255 / size.width(), y * 255 / size.height(), 60 * number);
    }
    return page;
}

/// Four sheets side by side, in a picture as a window keeps it.
class Sheets
{
public:
    Sheets() : m_host(test::RecordingHost::forSamplePrinter())
    {
        m_host->mark(u"QXMonoColor"_s, u"Color"_s);
        const int width = (kScreen.width() - (kSheets + 1) * kGap) / kSheets;
        for (int i = 0; i < kSheets; ++i) {
            Sheet &sheet = m_sheets[static_cast<std::size_t>(i)];
            sheet.place =
                QRect(kGap + i * (width + kGap), kGap, width, kScreen.height() - 2 * kGap);
            sheet.page = FilterImage(pageOf(sheet.place.size(), i));
        }
        m_window.fill(Qt::black); // so that its pages exist
    }

    void step()
    {
        m_value = m_value == 3 ? -3 : 3;
        m_host->settings().setValue(test::kNormalEffect, QVariantList{m_value, 4, 2, 0, -5, 7});
        const ColorTransform colors =
            m_colors.pageColors(m_host->settings(), m_host->ppd()).transform;
        QPainter painter(&m_window);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        QRegion around(m_window.rect());
        for (Sheet &sheet : m_sheets) {
            sheet.page.filtered(colors).renderInto(sheet.shown);
            painter.drawImage(sheet.place.topLeft(), sheet.shown);
            around -= sheet.place;
        }
        for (const QRect &rect : around)
            painter.fillRect(rect, Qt::darkGray);
    }

    /// Whether every pixel of the pages is what filtering that page alone gives.
    bool isRight()
    {
        const QImage before = m_window.copy();
        step();
        const ColorTransform colors =
            m_colors.pageColors(m_host->settings(), m_host->ppd()).transform;
        for (const Sheet &sheet : m_sheets) {
            if (m_window.copy(sheet.place) != sheet.page.filtered(colors).rendered())
                return false;
        }
        return before != m_window && QColor(m_window.pixel(0, 0)) == QColor(Qt::darkGray);
    }

    const QImage &window() const { return m_window; }

private:
    struct Sheet
    {
        QRect place;
        FilterImage page;
        QImage shown;
    };

    std::shared_ptr<test::RecordingHost> m_host;
    QXPageColors m_colors;
    std::array<Sheet, kSheets> m_sheets;
    QImage m_window{kScreen, QImage::Format_RGB32};
    int m_value = 0;
};

void measure(const char *name, const std::function<void()> &act)
{
    benchmark::RegisterBenchmark(name,
                                 [act](benchmark::State &state) {
                                     for (auto _ : state) {
                                         act();
                                         benchmark::ClobberMemory();
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(kRepetitions)
        ->MinTime(0.05);
}

} // namespace

int main(int argc, char **argv)
{
    bool check = false;
    if (!benchmarks::takeArguments(argc, argv, &check))
        return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    const QGuiApplication application(count, argv);

    Sheets sheets;
    sheets.step();
    if (!sheets.isRight()) {
        std::fprintf(stderr, "the sheets are not painted as they should be\n");
        return 1;
    }
    QImage copy(kScreen, QImage::Format_RGB32);
    copy.fill(Qt::black);
    measure("memcpy", [&] {
        std::memcpy(copy.bits(), sheets.window().constBits(),
                    static_cast<std::size_t>(copy.sizeInBytes()));
    });
    measure("step", [&] { sheets.step(); });
    benchmarks::BestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);

    const double ratio = times.best("step") / times.best("memcpy");
    std::printf(
        "\na step of a slider with %d sheets on %d x %d: %.3f ms, %.2f of memcpy (%.3f ms), "
        "best of %d%s\n",
        kSheets, kScreen.width(), kScreen.height(), times.best("step") * 1e3, ratio,
        times.best("memcpy") * 1e3, kRepetitions, ratio <= kMostOfMemcpy ? "" : "  too much");
    return ratio <= kMostOfMemcpy || !check ? 0 : 1;
}
