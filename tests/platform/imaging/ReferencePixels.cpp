#include "tests/platform/imaging/ReferencePixels.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace corvana::test {

namespace {

using Color = std::array<double, 3>;

double grey(const Color &color)
{
    return 0.2126 * color[0] + 0.7152 * color[1] + 0.0722 * color[2];
}

Color applied(const Controls &controls, const Color &color)
{
    const double middle = grey(color);
    Color result;
    for (std::size_t i = 0; i < 3; ++i) {
        const double saturated = middle + (color[i] - middle) * controls.saturation;
        const double brightened = saturated + controls.brightness;
        result[i] = (brightened - 0.5) * controls.contrast + 0.5;
    }
    return result;
}

Color applied(const Gains &gains, const Color &color)
{
    return {color[0] * gains.red, color[1] * gains.green, color[2] * gains.blue};
}

Color applied(const Monochrome &, const Color &color)
{
    return {grey(color), grey(color), grey(color)};
}

Color applied(const Affine &affine, const Color &color)
{
    Color result;
    for (std::size_t i = 0; i < 3; ++i) {
        const auto &row = affine.rows[i];
        result[i] = row[0] * color[0] + row[1] * color[1] + row[2] * color[2] + row[3];
    }
    return result;
}

const double kPromisedHalf = 0.5 + std::ldexp(1.0, -14);

std::uint32_t rounded(const Color &color, double half)
{
    std::uint32_t pixel = 0;
    for (const double part : color) {
        const double value = part * 255 + half;
        // What is no number is not greater than 0 either.
        pixel = pixel << 8 | (value > 0 ? static_cast<std::uint32_t>(std::min(value, 255.0)) : 0);
    }
    return pixel;
}

double component(std::uint32_t pixel, int shift)
{
    return (pixel >> shift & 0xff) / 255.0;
}

} // namespace

const Pixels &everyColor()
{
    static const Pixels all = [] {
        Pixels pixels((1 << 24) / CORVANA_STEP_OF_COLORS);
        for (std::uint32_t i = 0; i < pixels.size(); ++i)
            pixels[i] = i * CORVANA_STEP_OF_COLORS | (i * 2654435761U & 0xff000000);
        return pixels;
    }();
    return all;
}

void computeReference(const Steps &steps, const Pixels &source, Reference &reference)
{
    reference.strict.resize(source.size());
    reference.promised.resize(source.size());
    for (std::size_t i = 0; i < source.size(); ++i) {
        const std::uint32_t pixel = source[i];
        Color color{component(pixel, 16), component(pixel, 8), component(pixel, 0)};
        for (const Step &step : steps)
            color = std::visit([&](const auto &one) { return applied(one, color); }, step);
        reference.strict[i] = (pixel & 0xff000000) | rounded(color, 0.5);
        reference.promised[i] = (pixel & 0xff000000) | rounded(color, kPromisedHalf);
    }
}

Difference difference(const Pixels &left, const Pixels &right)
{
    Difference result;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (left[i] == right[i])
            continue;
        result.alphas += left[i] >> 24 != right[i] >> 24;
        for (const int shift : {16, 8, 0}) {
            const int step = std::abs(static_cast<int>(left[i] >> shift & 0xff) -
                                      static_cast<int>(right[i] >> shift & 0xff));
            result.largest = std::max(result.largest, step);
            result.values += step != 0;
        }
    }
    return result;
}

} // namespace corvana::test
