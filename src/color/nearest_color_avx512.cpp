#include "color/nearest_color_kernels.h"

#ifdef __x86_64__

#include <bit>
#include <immintrin.h>

#define KIRTO_AVX512 __attribute__((target("avx512f,avx512bw,bmi")))

namespace kirto {

namespace {

constexpr size_t kLanes = 32;
static_assert(kLanes == ColorColumns::kBlock);

// min(all 32 numbers), in the lowest place. The forms with masks of ones are those in which the
// compiler sees nothing that is not set.
KIRTO_AVX512 inline __m128i LeastOf(__m512i numbers) {
    const __m256i half = _mm256_min_epu16(_mm512_maskz_extracti64x4_epi64(0xF, numbers, 0),
                                          _mm512_maskz_extracti64x4_epi64(0xF, numbers, 1));
    return _mm_minpos_epu16(
        _mm_min_epu16(_mm256_castsi256_si128(half), _mm256_extracti128_si256(half, 1)));
}

}  // namespace

// One instruction sums the absolute differences of 32 groups of four bytes. The groups that it
// takes of the color, red, green, blue and 0 again and again, begin at byte 0, 1, 2 and 3 of eight:
// each entry of ColorColumns::groups is turned to match. It takes entries 0 and 3 of four from one
// register, 1 and 2 from another.
KIRTO_AVX512 uint8 NearestColorAvx512(const ColorColumns& columns, uint8 red, uint8 green,
                                      uint8 blue) {
    constexpr __mmask32 kInner = 0x66666666;  // places 1 and 2 of each four
    const __m512i color = _mm512_set1_epi32(red | green << 8 | blue << 16);
    __m512i least = _mm512_set1_epi16(-1);
    __m512i number = _mm512_setzero_si512();
    // least[lane] = min(least[lane], distance << 3 | block): among equal ones the lowest block is
    // the least.
    for (size_t block = 0; block < columns.blocks; ++block) {
        const uint8* const groups = &columns.groups[block * 4 * kLanes];
        const __m512i outer = _mm512_dbsad_epu8(_mm512_load_si512(groups), color, 0);
        const __m512i distance =
            _mm512_mask_dbsad_epu8(outer, kInner, _mm512_load_si512(groups + 64), color, 0);
        least = _mm512_min_epu16(least, _mm512_or_si512(_mm512_slli_epi16(distance, 3), number));
        number = _mm512_add_epi16(number, _mm512_set1_epi16(1));
    }
    const __m128i minimum = LeastOf(least);
    const uint32 lanes =
        _mm512_cmpeq_epi16_mask(least, _mm512_maskz_broadcastw_epi16(~__mmask32{0}, minimum));
    const uint32 block = static_cast<uint32>(_mm_cvtsi128_si32(minimum)) & 7;
    return static_cast<uint8>(block * kLanes + static_cast<uint32>(std::countr_zero(lanes)));
}

}  // namespace kirto

#endif
