#pragma once

#include <algorithm>
#include <array>
#include <cmath>

#include <QColor>
#include <QImage>

/// What the three filters of the preview do to one pixel, written out once more and straight from
/// their published definitions, so that tests have something to compare the panel's preview with.
namespace corvana::test {

/// Red, green and blue. Units: 0..1, not clamped.
using Pixel = std::array<double, 3>;

inline Pixel pixelOf(QRgb color)
{
    return {qRed(color) / 255.0, qGreen(color) / 255.0, qBlue(color) / 255.0};
}

inline QRgb colorOf(const Pixel &pixel)
{
    const auto component = [](double value) {
        return static_cast<int>(std::floor(std::clamp(value, 0.0, 1.0) * 255.0 + 0.5));
    };
    return qRgb(component(pixel[0]), component(pixel[1]), component(pixel[2]));
}

inline double lumaOf(const Pixel &pixel)
{
    return 0.2126 * pixel[0] + 0.7152 * pixel[1] + 0.0722 * pixel[2];
}

/// The six effects in steps, -20..20.
struct EffectSteps
{
    int brightness = 0;
    int contrast = 0;
    int red = 0;
    int green = 0;
    int blue = 0;
    int saturation = 0;
};

inline Pixel controlled(const Pixel &pixel, const EffectSteps &steps)
{
    const double luma = lumaOf(pixel);
    Pixel result;
    for (size_t i = 0; i < pixel.size(); ++i) {
        const double saturated = luma + (pixel[i] - luma) * (1 + steps.saturation / 80.0);
        const double brighter = saturated + steps.brightness / 200.0;
        result[i] = (brighter - 0.5) * (1 + steps.contrast / 160.0) + 0.5;
    }
    return result;
}

inline Pixel gained(const Pixel &pixel, const EffectSteps &steps)
{
    return {pixel[0] * (1 + steps.red / 35.0), pixel[1] * (1 + steps.green / 35.0),
            pixel[2] * (1 + steps.blue / 35.0)};
}

inline Pixel grey(const Pixel &pixel)
{
    const double luma = lumaOf(pixel);
    return {luma, luma, luma};
}

/// Every pixel of a picture changed by `change`, which takes and answers a Pixel.
template <typename Change> QImage changed(const QImage &picture, Change change)
{
    QImage result(picture.size(), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            result.setPixel(x, y, colorOf(change(pixelOf(picture.pixel(x, y)))));
    }
    return result;
}

/// The largest difference of any component; 256 for pictures of different sizes.
inline int largestDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(p) - qRed(q)),
                                std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return largest;
}

/// A picture in which every component takes many values, none so near its ends that a single
/// effect of ten steps or less clamps it.
inline QImage manyColors()
{
    QImage picture(7, 5, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(60 + 19 * x, 170 - 23 * y, 70 + 11 * x + 5 * y));
    }
    return picture;
}

} // namespace corvana::test
