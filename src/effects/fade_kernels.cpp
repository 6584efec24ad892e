#include "effects/fade_kernels.h"

#include "kit/bitmap.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace kirto {

namespace {

constexpr size_t kPixelBytes = 4;
constexpr size_t kGroup = 4;  // pixels that are blended together

struct Components {
    uint8 blue;
    uint8 green;
    uint8 red;
    uint8 alpha;
};

Components ReadPixel(const uint8* pixel, bool little_endian) {
    if (little_endian) return {pixel[0], pixel[1], pixel[2], pixel[3]};
    return {pixel[3], pixel[2], pixel[1], pixel[0]};
}

void BlendPixel(const Components& a, const Components& b, const FadeShare& share, uint8* target) {
    target[0] = share.Blend(a.blue, b.blue);
    target[1] = share.Blend(a.green, b.green);
    target[2] = share.Blend(a.red, b.red);
    target[3] = a.alpha;
}

size_t Area(int32 width, int32 height) {
    return static_cast<size_t>(width) * static_cast<size_t>(height);
}

#ifdef __SSE2__

// A share in two parts, for numbers of 16 bits: difference * fixed is
// (difference << kLowBits) * high + difference * low.
constexpr int32 kLowBits = 7;

inline __m128i PartsOf(int32 fixed) {
    const int32 high = fixed >> kLowBits;
    const int32 low = fixed & ((1 << kLowBits) - 1);
    return _mm_set1_epi32(low << 16 | high);
}

// floor(difference * fixed / 2^kFixedBits) of 8 differences.
inline __m128i Scale(__m128i differences, __m128i parts) {
    const __m128i shifted = _mm_slli_epi16(differences, kLowBits);
    const __m128i first = _mm_madd_epi16(_mm_unpacklo_epi16(shifted, differences), parts);
    const __m128i second = _mm_madd_epi16(_mm_unpackhi_epi16(shifted, differences), parts);
    return _mm_packs_epi32(_mm_srai_epi32(first, FadeShare::kFixedBits),
                           _mm_srai_epi32(second, FadeShare::kFixedBits));
}

// second + floor((first - second) * fixed / 2^kFixedBits) of 8 numbers.
inline __m128i BlendNumbers(__m128i first, __m128i second, __m128i parts) {
    return _mm_add_epi16(second, Scale(_mm_sub_epi16(first, second), parts));
}

// Four pixels, in the order blue, green, red, alpha.
inline __m128i BlendGroup(__m128i first, __m128i second, __m128i parts) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i low =
        BlendNumbers(_mm_unpacklo_epi8(first, zero), _mm_unpacklo_epi8(second, zero), parts);
    const __m128i high =
        BlendNumbers(_mm_unpackhi_epi8(first, zero), _mm_unpackhi_epi8(second, zero), parts);
    const __m128i colors = _mm_set1_epi32(0xFFFFFF);
    return _mm_or_si128(_mm_and_si128(colors, _mm_packus_epi16(low, high)),
                        _mm_andnot_si128(colors, first));
}

inline __m128i LoadGroup(const uint8* pixels) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels));
}

inline void StoreGroup(__m128i pixels, uint8* target) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(target), pixels);
}

// Blends as many whole groups of pixels in the order blue, green, red, alpha as there are in count.
// Returns how many pixels that is.
size_t BlendGroups(const uint8* first, const uint8* second, uint8* target, size_t count,
                   const FadeShare& share) {
    const __m128i parts = PartsOf(share.Fixed());
    size_t done = 0;
    for (; count - done >= kGroup; done += kGroup) {
        const size_t at = done * kPixelBytes;
        StoreGroup(BlendGroup(LoadGroup(first + at), LoadGroup(second + at), parts), target + at);
    }
    return done;
}

// The same with one color in the place of the second pixels.
size_t BlendGroups(const uint8* first, rgb_color second, uint8* target, size_t count,
                   const FadeShare& share) {
    const __m128i parts = PartsOf(share.Fixed());
    const __m128i color = _mm_set1_epi32(second.red << 16 | second.green << 8 | second.blue);
    size_t done = 0;
    for (; count - done >= kGroup; done += kGroup) {
        const size_t at = done * kPixelBytes;
        StoreGroup(BlendGroup(LoadGroup(first + at), color, parts), target + at);
    }
    return done;
}

#else

template <typename Second>
size_t BlendGroups(const uint8*, Second, uint8*, size_t, const FadeShare&) {
    return 0;
}

#endif

}  // namespace

void FadeToRGB(const uint8* source, color_space source_space, uint8* target, int32 width,
               int32 height, const FadeShare& share, rgb_color color) {
    const size_t count = Area(width, height);
    const bool little_endian = IsLittleEndian(source_space);
    const bool grouped = little_endian && share.Fixed() >= 0;
    const Components wanted{color.blue, color.green, color.red, color.alpha};
    for (size_t i = grouped ? BlendGroups(source, color, target, count, share) : 0; i < count; ++i)
        BlendPixel(ReadPixel(source + i * kPixelBytes, little_endian), wanted, share,
                   target + i * kPixelBytes);
}

void FadeToFrame(const uint8* first, color_space first_space, const uint8* second,
                 color_space second_space, uint8* target, int32 width, int32 height,
                 const FadeShare& share) {
    const size_t count = Area(width, height);
    const bool first_little = IsLittleEndian(first_space);
    const bool second_little = IsLittleEndian(second_space);
    const bool grouped = first_little && second_little && share.Fixed() >= 0;
    for (size_t i = grouped ? BlendGroups(first, second, target, count, share) : 0; i < count; ++i)
        BlendPixel(ReadPixel(first + i * kPixelBytes, first_little),
                   ReadPixel(second + i * kPixelBytes, second_little), share,
                   target + i * kPixelBytes);
}

}  // namespace kirto
