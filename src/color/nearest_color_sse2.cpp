#include "color/nearest_color_kernels.h"

#ifdef __SSE2__

#include <bit>
#include <emmintrin.h>

namespace kirto {

namespace {

constexpr size_t kLanes = 16;

// |row[i] - color| for each of 16 entries: one of the two differences is 0, as they stop there.
__m128i Difference(const uint8* row, __m128i color) {
    const __m128i entries = _mm_load_si128(reinterpret_cast<const __m128i*>(row));
    return _mm_or_si128(_mm_subs_epu8(entries, color), _mm_subs_epu8(color, entries));
}

// min(all 16 bytes), in the lowest byte.
__m128i LeastOf(__m128i bytes) {
    bytes = _mm_min_epu8(bytes, _mm_srli_si128(bytes, 8));
    bytes = _mm_min_epu8(bytes, _mm_srli_si128(bytes, 4));
    bytes = _mm_min_epu8(bytes, _mm_srli_si128(bytes, 2));
    return _mm_min_epu8(bytes, _mm_srli_si128(bytes, 1));
}

}  // namespace

uint8 NearestColorSse2(const ColorColumns& columns, uint8 red, uint8 green, uint8 blue) {
    const __m128i reds = _mm_set1_epi8(static_cast<char>(red));
    const __m128i greens = _mm_set1_epi8(static_cast<char>(green));
    const __m128i blues = _mm_set1_epi8(static_cast<char>(blue));
    const size_t count = columns.blocks * ColorColumns::kBlock;
    __m128i distances[256 / kLanes];
    // least[lane] = min(least[lane], distance), where distances past 255 count as 255
    __m128i least = _mm_set1_epi8(-1);
    for (size_t i = 0; i < count; i += kLanes) {
        const __m128i distance = _mm_adds_epu8(
            _mm_adds_epu8(Difference(&columns.red[i], reds), Difference(&columns.green[i], greens)),
            Difference(&columns.blue[i], blues));
        distances[i / kLanes] = distance;
        least = _mm_min_epu8(least, distance);
    }
    const int32 minimum = _mm_cvtsi128_si32(LeastOf(least)) & 255;
    if (minimum == 255) return NearestColorPlain(columns, red, green, blue);

    // The first entry at that distance. Going backwards over all of them has no branch to guess.
    const __m128i nearest = _mm_set1_epi8(static_cast<char>(minimum));
    uint32 found = 0;
    size_t first = 0;
    for (size_t i = count; i > 0;) {
        i -= kLanes;
        const __m128i equal = _mm_cmpeq_epi8(distances[i / kLanes], nearest);
        const uint32 entries = static_cast<uint32>(_mm_movemask_epi8(equal));
        first = entries != 0 ? i : first;
        found = entries != 0 ? entries : found;
    }
    return static_cast<uint8>(first + static_cast<size_t>(std::countr_zero(found)));
}

}  // namespace kirto

#endif
