#pragma once

#include <array>
#include <cstdint>
#include <variant>
#include <vector>

namespace corvana::test {

/// The published arithmetic of the filters, one step after the other, in double precision and
/// without any of the product's code.
struct Controls
{
    double saturation = 1;
    double brightness = 0;
    double contrast = 1;
};
/// A gain for each component.
struct Gains
{
    double red = 1;
    double green = 1;
    double blue = 1;
};
/// White, full intensity.
struct Monochrome
{
};
/// Any affine map, rows as in ColorTransform.
struct Affine
{
    std::array<std::array<double, 4>, 3> rows;
};
using Step = std::variant<Controls, Gains, Monochrome, Affine>;
using Steps = std::vector<Step>;

using Pixels = std::vector<std::uint32_t>;

/// What the pixels after all steps should be; alpha stays.
struct Reference
{
    Pixels strict;   ///< rounded half up
    Pixels promised; ///< the same, and what is below a half by less than 2^-14 goes up as well
};

/// Every colour once, or every so many, each with an alpha that says nothing about it.
const Pixels &everyColor();

/// Computes the reference; its memory is used again.
void computeReference(const Steps &steps, const Pixels &source, Reference &reference);

/// How two runs of pixels differ.
struct Difference
{
    int largest = 0;         ///< of any red, green or blue
    std::int64_t values = 0; ///< how many of red, green and blue differ
    std::int64_t alphas = 0; ///< how many alphas differ
};
Difference difference(const Pixels &left, const Pixels &right);

} // namespace corvana::test
