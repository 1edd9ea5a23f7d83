#include <bit>
#include <limits>
#include <numeric>
#include <random>
#include <span>

#include <QColor>
#include <QtTest>

#include <hwy/highway.h>

#include "platform/imaging/ImageFilter.h"
#include "platform/imaging/PixelKernel.h"
#include "tests/platform/imaging/ReferencePixels.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class PixelKernelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void thereIsMoreThanOneTarget();
    void everyColorIsWithinOneStep_data();
    void everyColorIsWithinOneStep();
    void monochromeIsTheRoundedLuma();
    void identityChangesNothing();
    void aTransformBeyondSinglePrecisionIsComputedExactly_data();
    void aTransformBeyondSinglePrecisionIsComputedExactly();
    void whatIsNoNumberIsBlack();
    void aPixelDoesNotDependOnItsPlace_data();
    void aPixelDoesNotDependOnItsPlace();
    void aLongRunGivesWhatItsPartsGive_data();
    void aLongRunGivesWhatItsPartsGive();
    void rowsMayBeTransformedInPlace();
    void premultipliedPixelsAreThoseOfQt();
    void noRowsAreNoWork();

private:
    // Some hundred megabytes, asked for once.
    Reference m_reference;
    Pixels m_result;
};

Q_DECLARE_METATYPE(Steps)
Q_DECLARE_METATYPE(ColorTransform)

namespace {

/// Of all red, green and blue values together: one in ten thousand.
constexpr std::int64_t kMostDifferences = 3 * (1 << 24) / CORVANA_STEP_OF_COLORS / 10000;
/// Against the reference that rounds as the kernel means to, only the error of single precision is
/// left: one in fifty thousand, three times of what was found.
constexpr std::int64_t kMostErrors = 3 * (1 << 24) / CORVANA_STEP_OF_COLORS / 50000;

/// Each kind of vector instructions that this machine has and the kernel was compiled for.
std::vector<std::int64_t> targets()
{
    std::vector<std::int64_t> result;
    hwy::SetSupportedTargetsForTest(0);
    const std::int64_t supported = hwy::SupportedTargets();
    for (std::uint64_t rest = static_cast<std::uint64_t>(supported & HWY_TARGETS); rest != 0;
         rest &= rest - 1)
        result.push_back(std::int64_t{1} << std::countr_zero(rest));
    return result;
}

/// Runs something once with each target.
template <typename Function> void withEachTarget(Function function)
{
    for (const std::int64_t target : targets()) {
        hwy::SetSupportedTargetsForTest(target);
        function(hwy::TargetName(target));
        if (QTest::currentTestFailed())
            return;
    }
}

/// The product's way to the same: a filter for each step.
ColorTransform transformOf(const Steps &steps)
{
    ColorTransform transform;
    const auto add =
        [&transform](const char *name,
                     std::initializer_list<std::pair<QLatin1StringView, QVariant>> set) {
            const auto filter = ImageFilter::filterWithName(QLatin1StringView(name));
            QImage dot(1, 1, QImage::Format_RGB32);
            filter->setValue_forKey(FilterImage(dot), kCIInputImageKey);
            for (const auto &[key, value] : set)
                filter->setValue_forKey(value, key);
            transform = transform.then(filter->outputImage().transform());
        };
    for (const Step &step : steps) {
        if (const auto *controls = std::get_if<Controls>(&step)) {
            add("CIColorControls", {{kCIInputSaturationKey, controls->saturation},
                                    {kCIInputBrightnessKey, controls->brightness},
                                    {kCIInputContrastKey, controls->contrast}});
        } else if (const auto *gains = std::get_if<Gains>(&step)) {
            add("CIColorMatrix", {{kCIInputRVectorKey, FilterVector{gains->red, 0, 0}},
                                  {kCIInputGVectorKey, FilterVector{0, gains->green, 0}},
                                  {kCIInputBVectorKey, FilterVector{0, 0, gains->blue}}});
        } else if (const auto *affine = std::get_if<Affine>(&step)) {
            transform = transform.then({affine->rows});
        } else {
            add("CIColorMonochrome", {{kCIInputColorKey, QColor(Qt::white)}});
        }
    }
    return transform;
}

/// Six effects as the sliders give them, -20..20, with the precision that each has as a parameter.
Controls controls(int brightness, int contrast, int saturation)
{
    return {static_cast<float>(saturation) / 80.0f + 1.0f, static_cast<float>(brightness) / 200.0f,
            static_cast<float>(contrast) / 160.0f + 1.0f};
}

Gains gains(int red, int green, int blue)
{
    return {red / 35.0 + 1, green / 35.0 + 1, blue / 35.0 + 1};
}

/// Transforms pixels as one row into a buffer that is used again.
void transformInto(Pixels &result, const ColorTransform &transform, const Pixels &source,
                   AlphaForm form = AlphaForm::Straight)
{
    result.resize(source.size());
    const auto bytes = static_cast<qsizetype>(source.size() * sizeof(std::uint32_t));
    transformPixels(transform, {reinterpret_cast<const uchar *>(source.data()), bytes},
                    {reinterpret_cast<uchar *>(result.data()), bytes},
                    QSize(static_cast<int>(source.size()), 1), form);
}

Pixels transformed(const ColorTransform &transform, const Pixels &source,
                   AlphaForm form = AlphaForm::Straight)
{
    Pixels result;
    transformInto(result, transform, source, form);
    return result;
}

Pixels randomPixels(std::size_t count)
{
    std::mt19937 random(1);
    Pixels pixels(count);
    std::ranges::generate(pixels, random);
    return pixels;
}

/// A transform in which every coefficient matters; so odd that halves are rare.
const ColorTransform kEveryCoefficient{{{{0.90137, 0.20411, -0.10519, 0.02131},
                                         {-0.15217, 1.30793, 0.05413, -0.03191},
                                         {0.07331, -0.20173, 0.80929, 0.11117}}}};

} // namespace

void PixelKernelTest::cleanup()
{
    hwy::SetSupportedTargetsForTest(0);
}

void PixelKernelTest::thereIsMoreThanOneTarget()
{
    // The other tests loop over them; on the processors that this program is built for there are
    // at least the one that all have and a better one.
#if defined(Q_PROCESSOR_X86_64)
    QVERIFY(targets().size() >= 2);
#endif
    QVERIFY(!targets().empty());
}

void PixelKernelTest::everyColorIsWithinOneStep_data()
{
    QTest::addColumn<Steps>("steps");
    // A darkening of 20 is 25.5 of 255, plus a few millionths, because the parameter is a number of
    // single precision: every value ends just below a half, and which side that is on is decided by
    // this error alone. There, exact rounding is nothing to compare with.
    QTest::addColumn<bool>("halvesAreMeant");
    const auto row = [](const char *name, const Steps &steps, bool halvesAreMeant = true) {
        QTest::newRow(name) << steps << halvesAreMeant;
    };
    row("identity", {controls(0, 0, 0), gains(0, 0, 0)});
    row("brightest", {controls(20, 0, 0)});
    row("darkest", {controls(-20, 0, 0)}, false);
    row("a step brighter", {controls(1, 0, 0)});
    row("most contrast", {controls(0, 20, 0)});
    row("least contrast", {controls(0, -20, 0)});
    row("most saturated", {controls(0, 0, 20)});
    row("least saturated", {controls(0, 0, -20)});
    row("most red, green and blue", {gains(20, 20, 20)});
    row("least red, green and blue", {gains(-20, -20, -20)});
    row("all up, controls first", {controls(20, 20, 20), gains(20, 20, 20)});
    row("all up, matrix first", {gains(20, 20, 20), controls(20, 20, 20)});
    row("all down, controls first", {controls(-20, -20, -20), gains(-20, -20, -20)}, false);
    row("all down, matrix first", {gains(-20, -20, -20), controls(-20, -20, -20)}, false);
    row("mixed, controls first", {controls(7, -13, 11), gains(-5, 17, 3)});
    row("mixed, matrix first", {gains(-5, 17, 3), controls(7, -13, 11)});
    row("monochrome", {Monochrome{}});
    row("monochrome after controls", {controls(9, 20, -20), Monochrome{}});
    row("controls after monochrome", {Monochrome{}, controls(-7, 20, 20)});
    row("every coefficient", {Affine{kEveryCoefficient.rows}});
}

void PixelKernelTest::everyColorIsWithinOneStep()
{
    QFETCH(const Steps, steps);
    QFETCH(const bool, halvesAreMeant);
    const Pixels &source = everyColor();
    computeReference(steps, source, m_reference);
    const ColorTransform transform = transformOf(steps);
    withEachTarget([&](const char *target) {
        transformInto(m_result, transform, source);
        const Difference toPromised = difference(m_result, m_reference.promised);
        QVERIFY2(toPromised.alphas == 0, target);
        QVERIFY2(toPromised.largest <= 1, target);
        QVERIFY2(toPromised.values <= kMostErrors, target);
    });

    // Once is enough: by now every target is known to differ from the promise by next to nothing.
    const Difference toStrict = difference(m_result, m_reference.strict);
    QVERIFY(toStrict.largest <= 1);
    QVERIFY(!halvesAreMeant || toStrict.values <= kMostDifferences);
}

void PixelKernelTest::monochromeIsTheRoundedLuma()
{
    // The weights have four decimals, so this needs no floating point, and halves are exact.
    const Pixels &source = everyColor();
    const ColorTransform transform = transformOf({Monochrome{}});
    withEachTarget([&](const char *target) {
        transformInto(m_result, transform, source);
        std::int64_t different = 0;
        for (std::size_t i = 0; i < source.size(); ++i) {
            const std::uint32_t weighted = 2126 * (source[i] >> 16 & 0xff) +
                                           7152 * (source[i] >> 8 & 0xff) +
                                           722 * (source[i] & 0xff);
            const std::uint32_t grey = (weighted + 5000) / 10000;
            different += (m_result[i] & 0xffffff) != grey * 0x010101;
        }
        QVERIFY2(different == 0, target);
    });
}

void PixelKernelTest::identityChangesNothing()
{
    const Pixels &source = everyColor();
    withEachTarget(
        [&](const char *target) { QVERIFY2(transformed({}, source) == source, target); });
}

void PixelKernelTest::aTransformBeyondSinglePrecisionIsComputedExactly_data()
{
    QTest::addColumn<ColorTransform>("transform");
    const auto row = [](const char *name, const std::array<double, 4> &all) {
        QTest::newRow(name) << ColorTransform{{all, all, all}};
    };
    row("just inside the limit", {4000, -4000, 100, 1});
    row("just outside the limit", {4200, -4200, 1, 0.5});
    row("beyond 32-bit integers", {1e8, -1e8, 1, 0});
    row("beyond single precision", {1e39, -1e39, 1, 0.25});
    row("two terms that cancel", {0.7874e9, -0.7152e9, -0.0722e9, 0.3});
    row("far below", {-1e300, 0, 0, -1e300});
    row("an endless gain", {std::numeric_limits<double>::infinity(), 0, 0, -1});
}

void PixelKernelTest::aTransformBeyondSinglePrecisionIsComputedExactly()
{
    QFETCH(const ColorTransform, transform);
    Pixels source = randomPixels(10000);
    // Pixels in which large terms cancel, too.
    for (std::size_t i = 0; i < 5000; ++i)
        source[i] = (source[i] & 0xff0000ff) | (source[i] & 0xff) * 0x010100;
    Reference expected;
    computeReference({Affine{transform.rows}}, source, expected);
    withEachTarget([&](const char *target) {
        const Difference found = difference(transformed(transform, source), expected.promised);
        QVERIFY2(found.largest <= 1 && found.alphas == 0, target);
    });
}

void PixelKernelTest::whatIsNoNumberIsBlack()
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const ColorTransform transform{{{{kNone, 0, 0, 0}, {0, 1, 0, kNone}, {0, 0, 1, 0}}}};
    withEachTarget([&](const char *target) {
        QVERIFY2(transformed(transform, {0x12345678}) == Pixels{0x12000078}, target);
    });
}

void PixelKernelTest::aPixelDoesNotDependOnItsPlace_data()
{
    QTest::addColumn<AlphaForm>("form");
    QTest::newRow("straight") << AlphaForm::Straight;
    QTest::newRow("premultiplied") << AlphaForm::Premultiplied;
}

void PixelKernelTest::aPixelDoesNotDependOnItsPlace()
{
    QFETCH(const AlphaForm, form);
    // Up to four of the longest vectors and one more, at every alignment of 32-bit pixels to 16
    // bytes, with gaps between the rows that nobody may touch.
    constexpr int kWidest = 65;
    constexpr int kHeight = 3;
    constexpr std::uint32_t kUntouched = 0xdeadbeef;
    const Pixels source = randomPixels(4 + kHeight * (kWidest + 7));
    withEachTarget([&](const char *target) {
        Pixels alone(source.size());
        for (std::size_t i = 0; i < source.size(); ++i)
            alone[i] = transformed(kEveryCoefficient, {source[i]}, form).front();
        for (int width = 1; width <= kWidest; ++width) {
            for (const int start : {0, 1, 2, 3}) {
                for (const auto &[gap, gapOfResult] : {std::pair{0, 0}, {0, 3}, {7, 0}, {1, 7}}) {
                    const int stride = width + gap;
                    const int strideOfResult = width + gapOfResult;
                    Pixels result(source.size(), kUntouched);
                    Pixels expected = result;
                    for (int y = 0; y < kHeight; ++y) {
                        std::copy_n(alone.begin() + start + y * stride, width,
                                    expected.begin() + start + y * strideOfResult);
                    }
                    transformPixels(
                        kEveryCoefficient,
                        {reinterpret_cast<const uchar *>(source.data() + start), 4 * stride},
                        {reinterpret_cast<uchar *>(result.data() + start), 4 * strideOfResult},
                        QSize(width, kHeight), form);
                    QVERIFY2(result == expected,
                             qPrintable(u"%1: %2 wide, from %3, gaps %4 and %5"_s
                                            .arg(QLatin1StringView(target))
                                            .arg(width)
                                            .arg(start)
                                            .arg(gap)
                                            .arg(gapOfResult)));
                }
            }
        }
    });
}

void PixelKernelTest::aLongRunGivesWhatItsPartsGive_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("start");
    // Runs of 2^20 and of 2^24 pixels and more are written in blocks of their own.
    for (const int start : {0, 1, 3}) {
        for (const int count : {(1 << 20) - 1, 1 << 20, (1 << 20) + 1023})
            QTest::addRow("%d from %d", count, start) << count << start;
    }
    QTest::addRow("%d from 1", (1 << 24) + 4095) << (1 << 24) + 4095 << 1;
}

void PixelKernelTest::aLongRunGivesWhatItsPartsGive()
{
    QFETCH(const int, count);
    QFETCH(const int, start);
    constexpr std::uint32_t kUntouched = 0xdeadbeef;
    constexpr int kPart = 1000;
    Pixels source(static_cast<std::size_t>(start + count + 4));
    std::iota(source.begin(), source.end(), 0x80000000);
    withEachTarget([&](const char *target) {
        const auto run = [&source](Pixels &result, int from, int length) {
            transformPixels(kEveryCoefficient,
                            {reinterpret_cast<const uchar *>(source.data() + from), 4 * length},
                            {reinterpret_cast<uchar *>(result.data() + from), 4 * length},
                            QSize(length, 1), AlphaForm::Straight);
        };
        Pixels whole(source.size(), kUntouched);
        run(whole, start, count);
        Pixels parts(source.size(), kUntouched);
        for (int from = 0; from < count; from += kPart)
            run(parts, start + from, std::min(kPart, count - from));
        QVERIFY2(whole == parts, target);
    });
}

void PixelKernelTest::rowsMayBeTransformedInPlace()
{
    const Pixels source = randomPixels(1000);
    withEachTarget([&](const char *target) {
        Pixels pixels = source;
        const auto bits = reinterpret_cast<uchar *>(pixels.data());
        transformPixels(kEveryCoefficient, {bits, 4000}, {bits, 4000}, QSize(1000, 1),
                        AlphaForm::Straight);
        QVERIFY2(pixels == transformed(kEveryCoefficient, source), target);
    });
}

void PixelKernelTest::premultipliedPixelsAreThoseOfQt()
{
    Pixels source;
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        for (std::uint32_t value = 0; value < 256; ++value)
            source.push_back(alpha << 24 | value << 16 | (255 - value) << 8 | (value ^ alpha));
    }
    withEachTarget([&](const char *target) {
        Pixels expected = transformed(kEveryCoefficient, source);
        for (std::uint32_t &pixel : expected)
            pixel = qPremultiply(pixel);
        QVERIFY2(transformed(kEveryCoefficient, source, AlphaForm::Premultiplied) == expected,
                 target);
    });
}

void PixelKernelTest::noRowsAreNoWork()
{
    withEachTarget([](const char *) {
        for (const QSize size : {QSize(0, 5), QSize(5, 0), QSize()})
            transformPixels(kEveryCoefficient, {}, {}, size, AlphaForm::Straight);
    });
}

QTEST_GUILESS_MAIN(PixelKernelTest)

#include "pixel_kernel_test.moc"
