#include "effects/pictures/weigh_pixels.h"

#ifdef __x86_64__

#include <immintrin.h>

#define KIRTO_AVX2 __attribute__((target("avx2")))

namespace kirto {

namespace {

// Two taps at a time: the even one's numbers in the lower half, the odd one's in the upper.
KIRTO_AVX2 void WeighAcrossAvx2(const float* source, const FilterAxis& axis, float* target) {
    const __m256i halves = _mm256_setr_epi32(0, 0, 0, 0, 1, 1, 1, 1);
    for (int32 x = 0; x < axis.Target(); ++x, target += kNumbersAPixel) {
        const float* pixel = source + static_cast<size_t>(axis.First(x)) * kNumbersAPixel;
        const float* weight = axis.Weights(x);
        int32 left = axis.End(x) - axis.First(x);
        __m256 sums = _mm256_setzero_ps();
        for (; left >= 2; left -= 2, weight += 2, pixel += 2 * kNumbersAPixel) {
            const __m256d both = _mm256_broadcast_sd(reinterpret_cast<const double*>(weight));
            const __m256 weights = _mm256_permutevar8x32_ps(_mm256_castpd_ps(both), halves);
            sums = _mm256_add_ps(sums, _mm256_mul_ps(_mm256_loadu_ps(pixel), weights));
        }
        __m128 even = _mm256_castps256_ps128(sums);
        if (left > 0)
            even = _mm_add_ps(even, _mm_mul_ps(_mm_loadu_ps(pixel), _mm_set1_ps(*weight)));
        _mm_storeu_ps(target, _mm_add_ps(even, _mm256_extractf128_ps(sums, 1)));
    }
    // Compilers that do not optimize leave it out, and what follows takes ten times as long.
    _mm256_zeroupper();
}

// Eight numbers of each row at a time, so many times.
template <size_t kTimes>
KIRTO_AVX2 void WeighSome(const std::vector<const float*>& rows, const float* weights, size_t i,
                          float* target) {
    __m256 sums[kTimes];
    for (__m256& sum : sums)
        sum = _mm256_setzero_ps();
    for (size_t row = 0; row < rows.size(); ++row) {
        const __m256 weight = _mm256_broadcast_ss(weights + row);
        for (size_t k = 0; k < kTimes; ++k) {
            const __m256 numbers = _mm256_loadu_ps(rows[row] + i + k * 8);
            sums[k] = _mm256_add_ps(sums[k], _mm256_mul_ps(numbers, weight));
        }
    }
    for (size_t k = 0; k < kTimes; ++k)
        _mm256_storeu_ps(target + i + k * 8, sums[k]);
}

KIRTO_AVX2 void WeighRowsAvx2(const std::vector<const float*>& rows, const float* weights,
                              std::vector<float>& target) {
    size_t i = 0;
    for (; i + 32 <= target.size(); i += 32)
        WeighSome<4>(rows, weights, i, target.data());
    for (; i + 8 <= target.size(); i += 8)
        WeighSome<1>(rows, weights, i, target.data());
    for (; i < target.size(); i += kNumbersAPixel) {
        __m128 sum = _mm_setzero_ps();
        for (size_t row = 0; row < rows.size(); ++row) {
            const __m128 numbers = _mm_loadu_ps(rows[row] + i);
            sum = _mm_add_ps(sum, _mm_mul_ps(numbers, _mm_set1_ps(weights[row])));
        }
        _mm_storeu_ps(&target[i], sum);
    }
    _mm256_zeroupper();
}

}  // namespace

PixelSums Avx2PixelSums() {
    return {WeighAcrossAvx2, WeighRowsAvx2};
}

}  // namespace kirto

#endif
