#include "color/nearest_color_kernels.h"

#ifdef __x86_64__

#include <bit>
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

// min(all 32 bytes), in the lowest byte: the lower bytes of pairs against the upper ones, then the
// instruction for the least of 8 pairs.
KIRTO_AVX2 inline __m128i LeastOf(__m256i bytes) {
    const __m128i half =
        _mm_min_epu8(_mm256_castsi256_si128(bytes), _mm256_extracti128_si256(bytes, 1));
    return _mm_minpos_epu16(_mm_min_epu8(half, _mm_srli_epi16(half, 8)));
}

}  // namespace

KIRTO_AVX2 uint8 NearestColorAvx2(const ColorColumns& columns, uint8 red, uint8 green, uint8 blue) {
    const __m256i reds = _mm256_set1_epi8(static_cast<char>(red));
    const __m256i greens = _mm256_set1_epi8(static_cast<char>(green));
    const __m256i blues = _mm256_set1_epi8(static_cast<char>(blue));
    const size_t count = columns.blocks * ColorColumns::kBlock;
    __m256i distances[256 / kLanes];
    // least[lane] = min(least[lane], distance), where distances past 255 count as 255
    __m256i least = _mm256_set1_epi8(-1);
    for (size_t i = 0; i < count; i += kLanes) {
        const __m256i distance =
            _mm256_adds_epu8(_mm256_adds_epu8(Difference(&columns.red[i], reds),
                                              Difference(&columns.green[i], greens)),
                             Difference(&columns.blue[i], blues));
        distances[i / kLanes] = distance;
        least = _mm256_min_epu8(least, distance);
    }
    const __m128i minimum = LeastOf(least);
    if (_mm_cvtsi128_si32(minimum) == 255) return NearestColorPlain(columns, red, green, blue);

    // The first entry at that distance. Going backwards over all of them has no branch to guess.
    const __m256i nearest = _mm256_broadcastb_epi8(minimum);
    uint32 found = 0;
    size_t first = 0;
    for (size_t i = count; i > 0;) {
        i -= kLanes;
        const __m256i equal = _mm256_cmpeq_epi8(distances[i / kLanes], nearest);
        const uint32 entries = static_cast<uint32>(_mm256_movemask_epi8(equal));
        first = entries != 0 ? i : first;
        found = entries != 0 ? entries : found;
    }
    return static_cast<uint8>(first + static_cast<size_t>(std::countr_zero(found)));
}

}  // namespace kirto

#endif
