#include "effects/pictures/weigh_pixels.h"

#include <cstring>

namespace kirto {

namespace {

// One instruction for four numbers, where the processor has it.
using FourNumbers = float __attribute__((vector_size(16)));

FourNumbers Load(const float* source) {
    FourNumbers numbers;
    std::memcpy(&numbers, source, sizeof(numbers));
    return numbers;
}

void Store(FourNumbers numbers, float* target) {
    std::memcpy(target, &numbers, sizeof(numbers));
}

void WeighAcross(const float* source, const FilterAxis& axis, float* target) {
    for (int32 x = 0; x < axis.Target(); ++x, target += kNumbersAPixel) {
        const float* pixel = source + static_cast<size_t>(axis.First(x)) * kNumbersAPixel;
        const float* weights = axis.Weights(x);
        const size_t count = static_cast<size_t>(axis.End(x) - axis.First(x));
        FourNumbers even{};
        FourNumbers odd{};
        size_t tap = 0;
        for (; tap + 2 <= count; tap += 2, pixel += 2 * kNumbersAPixel) {
            even += Load(pixel) * weights[tap];
            odd += Load(pixel + kNumbersAPixel) * weights[tap + 1];
        }
        if (tap < count) even += Load(pixel) * weights[tap];
        Store(even + odd, target);
    }
}

// Sixteen numbers at a time stay in registers while the rows are gone through.
void WeighRows(const std::vector<const float*>& rows, const float* weights,
               std::vector<float>& target) {
    constexpr size_t kStep = 4 * kNumbersAPixel;
    size_t i = 0;
    for (; i + kStep <= target.size(); i += kStep) {
        FourNumbers sums[4] = {};
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
        FourNumbers sum{};
        for (size_t row = 0; row < rows.size(); ++row)
            sum += Load(rows[row] + i) * weights[row];
        Store(sum, &target[i]);
    }
}

PixelSums Fastest() {
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx2")) return Avx2PixelSums();
#endif
    return PlainPixelSums();
}

}  // namespace

PixelSums PlainPixelSums() {
    return {WeighAcross, WeighRows};
}

const PixelSums& FastestPixelSums() {
    static const PixelSums fastest = Fastest();
    return fastest;
}

}  // namespace kirto
