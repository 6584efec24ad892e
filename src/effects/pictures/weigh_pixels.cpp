#include "effects/pictures/weigh_pixels.h"

#include <cstring>

namespace kirto {

namespace {

// One instruction for four numbers, where the processor has it.
using Numbers = float __attribute__((vector_size(16)));

Numbers Load(const float* source) {
    Numbers numbers;
    std::memcpy(&numbers, source, sizeof(numbers));
    return numbers;
}

void Store(Numbers numbers, float* target) {
    std::memcpy(target, &numbers, sizeof(numbers));
}

}  // namespace

void WeighAcross(const float* source, const FilterAxis& axis, float* target) {
    for (int32 x = 0; x < axis.Target(); ++x, target += kNumbersAPixel) {
        const float* pixel = source + static_cast<size_t>(axis.First(x)) * kNumbersAPixel;
        const float* weights = axis.Weights(x);
        const size_t count = static_cast<size_t>(axis.End(x) - axis.First(x));
        Numbers sum{};
        for (size_t tap = 0; tap < count; ++tap, pixel += kNumbersAPixel)
            sum += Load(pixel) * weights[tap];
        Store(sum, target);
    }
}

// Sixteen numbers at a time stay in registers while the rows are gone through.
void WeighRows(const std::vector<const float*>& rows, const float* weights,
               std::vector<float>& target) {
    constexpr size_t kStep = 4 * kNumbersAPixel;
    size_t i = 0;
    for (; i + kStep <= target.size(); i += kStep) {
        Numbers sums[4] = {};
        for (size_t row = 0; row < rows.size(); ++row) {
            const float* numbers = rows[row] + i;
            const float weight = weights[row];
            for (size_t k = 0; k < 4; ++k)
                sums[k] += Load(numbers + k * kNumbersAPixel) * weight;
        }
        for (size_t k = 0; k < 4; ++k)
            Store(sums[k], &target[i + k * kNumbersAPixel]);
    }
    for (; i < target.size(); i += kNumbersAPixel) {
        Numbers sum{};
        for (size_t row = 0; row < rows.size(); ++row)
            sum += Load(rows[row] + i) * weights[row];
        Store(sum, &target[i]);
    }
}

}  // namespace kirto
