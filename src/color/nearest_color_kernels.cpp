#include "color/nearest_color_kernels.h"

#include <algorithm>
#include <cstdlib>

namespace kirto {

void ColorColumns::Set(const ColorTable& table, int32 size) {
    const size_t count = static_cast<size_t>(std::clamp(size, 0, 256));
    for (size_t i = 0; i < table.size(); ++i) {
        const rgb_color& color = table[i < count ? i : 0];
        red[i] = color.red;
        green[i] = color.green;
        blue[i] = color.blue;
        SetGroup(i);
    }
    blocks = std::max<size_t>((count + kBlock - 1) / kBlock, 1);
}

void ColorColumns::SetGroup(size_t entry) {
    const size_t place = entry % 4;
    const bool outer = place == 0 || place == 3;
    const size_t four = entry % kBlock / 4;
    uint8* const group = &groups[(entry / kBlock * 4 * kBlock) + (outer ? 0 : 2 * kBlock) +
                                 four * 8 + (place < 2 ? 0 : 4)];
    const uint8 components[4] = {red[entry], green[entry], blue[entry], 0};
    for (size_t i = 0; i < 4; ++i)
        group[i] = components[(i + place) % 4];
}

uint8 NearestColorPlain(const ColorColumns& columns, uint8 red, uint8 green, uint8 blue) {
    int32 best_distance = 3 * 255 + 1;
    size_t best_index = 0;
    for (size_t i = 0; i < columns.blocks * ColorColumns::kBlock; ++i) {
        const int32 distance = std::abs(columns.red[i] - red) + std::abs(columns.green[i] - green) +
                               std::abs(columns.blue[i] - blue);
        if (distance < best_distance) {
            best_distance = distance;
            best_index = i;
        }
    }
    return static_cast<uint8>(best_index);
}

NearestColorSearch FastestNearestColorSearch() {
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw"))
        return NearestColorAvx512;
    if (__builtin_cpu_supports("avx2")) return NearestColorAvx2;
#endif
#ifdef __SSE2__
    return NearestColorSse2;
#else
    return NearestColorPlain;
#endif
}

}  // namespace kirto
