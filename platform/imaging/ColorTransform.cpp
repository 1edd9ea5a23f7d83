#include "platform/imaging/ColorTransform.h"

namespace corvana {

ColorTransform ColorTransform::grey()
{
    ColorTransform grey;
    for (auto &row : grey.rows)
        row = {kLumaWeights[0], kLumaWeights[1], kLumaWeights[2], 0};
    return grey;
}

ColorTransform ColorTransform::then(const ColorTransform &next) const
{
    ColorTransform both;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            double sum = column == 3 ? next.rows[row][3] : 0;
            for (std::size_t k = 0; k < 3; ++k)
                sum += next.rows[row][k] * rows[k][column];
            both.rows[row][column] = sum;
        }
    }
    return both;
}

} // namespace corvana
