// The searches behind NearestColor: all find the same entry, each with other instructions.
#pragma once

#include <array>

#include "base/types.h"
#include "color/builtin_palettes.h"

namespace kirto {

// A color table with each component in a row of its own. The entries past the last one repeat the
// first one, which then wins as the lower index.
struct ColorColumns {
    static constexpr size_t kBlock = 32;  // entries that a search may look at together
    using Column = std::array<uint8, 256>;

    alignas(32) Column red;
    alignas(32) Column green;
    alignas(32) Column blue;
    // The same once more, four bytes an entry: 0 beside red, green and blue, which begin at byte 0
    // of the first entry of four, 3, 2 and 1 of the next ones. Of 32 entries, those at place 0 and
    // 3 of each four come first, then those at 1 and 2.
    alignas(64) std::array<uint8, size_t{256} * 4> groups;
    size_t blocks = 1;  // with the last one in use, 1 to 8

    // Takes over the entries below size, 0 to 256; other sizes count as the nearest of these.
    void Set(const ColorTable& table, int32 size);

  private:
    void SetGroup(size_t entry);
};

using NearestColorSearch = uint8 (*)(const ColorColumns& columns, uint8 red, uint8 green,
                                     uint8 blue);

// Without special instructions.
uint8 NearestColorPlain(const ColorColumns& columns, uint8 red, uint8 green, uint8 blue);
#ifdef __SSE2__
uint8 NearestColorSse2(const ColorColumns& columns, uint8 red, uint8 green, uint8 blue);
#endif
#ifdef __x86_64__
// Only on processors with AVX2.
uint8 NearestColorAvx2(const ColorColumns& columns, uint8 red, uint8 green, uint8 blue);
// Only on processors with AVX-512F and AVX-512BW.
uint8 NearestColorAvx512(const ColorColumns& columns, uint8 red, uint8 green, uint8 blue);
#endif

// The fastest of them on this processor.
NearestColorSearch FastestNearestColorSearch();

}  // namespace kirto
