#include "color/nearest_color_kernels.h"

#ifdef __x86_64__

#include <immintrin.h>

#define KIRTO_AVX2 __attribute__((target("avx2")))

namespace kirto {

namespace {

constexpr size_t kLanes = 32;

// |row[i] - color| for each of 32 entries: one of the two differences is 0, as they stop there.
KIRTO_AVX2 inline __m256i Difference(const uint8* row, __m256i color) {
    const __m256i entries = _mm256_load_si256(reinterpret_cast<const __m256i*>(row));
    return _mm256_or_si256(_mm256_subs_epu8(entries, color), _mm256_subs_epu8(color, entries));
}

// min(all 16 numbers): the upper half against the lower one, then the instruction for the least
// of 8.
KIRTO_AVX2 inline uint32 LeastOf(__m256i numbers) {
    const __m128i half =
        _mm_min_epu16(_mm256_castsi256_si128(numbers), _mm256_extracti128_si256(numbers, 1));
    return static_cast<uint32>(_mm_cvtsi128_si32(_mm_minpos_epu16(half))) & 0xFFFF;
}

// 0 to 31, each in its lane.
KIRTO_AVX2 inline __m256i LaneNumbers() {
    return _mm256_setr_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19,
                            20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31);
}

}  // namespace

KIRTO_AVX2 uint8 NearestColorAvx2(const ColorColumns& columns, uint8 red, uint8 green, uint8 blue) {
    const __m256i reds = _mm256_set1_epi8(static_cast<char>(red));
    const __m256i greens = _mm256_set1_epi8(static_cast<char>(green));
    const __m256i blues = _mm256_set1_epi8(static_cast<char>(blue));
    const size_t count = columns.blocks * ColorColumns::kBlock;
    // least = min(least, distance << 8 | index), where distances past 255 count as 255: among equal
    // ones the lowest index is the least.
    __m256i indices = LaneNumbers();
    __m256i least_low = _mm256_set1_epi8(-1);
    __m256i least_high = least_low;
    for (size_t i = 0; i < count; i += kLanes) {
        const __m256i distance =
            _mm256_adds_epu8(_mm256_adds_epu8(Difference(&columns.red[i], reds),
                                              Difference(&columns.green[i], greens)),
                             Difference(&columns.blue[i], blues));
        least_low = _mm256_min_epu16(least_low, _mm256_unpacklo_epi8(indices, distance));
        least_high = _mm256_min_epu16(least_high, _mm256_unpackhi_epi8(indices, distance));
        indices = _mm256_add_epi8(indices, _mm256_set1_epi8(kLanes));
    }
    const uint32 least = LeastOf(_mm256_min_epu16(least_low, least_high));
    if (least >> 8 == 255) return NearestColorPlain(columns, red, green, blue);
    return static_cast<uint8>(least);
}

}  // namespace kirto

#endif
