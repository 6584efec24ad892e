#include "color/nearest_color.h"

#include <gtest/gtest.h>
#include <random>

#include "color/reference_palette.h"

namespace kirto::test {

namespace {

// Every search that this processor can do.
std::vector<NearestColorSearch> Searches() {
    std::vector<NearestColorSearch> searches{NearestColorPlain};
#ifdef __SSE2__
    searches.push_back(NearestColorSse2);
#endif
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx2")) searches.push_back(NearestColorAvx2);
#endif
    if (FastestNearestColorSearch() != searches.back())
        searches.push_back(FastestNearestColorSearch());
    return searches;
}

class RandomColors {
  public:
    // mask: the bits of each component that vary. Few of them make equal distances frequent.
    explicit RandomColors(uint32 seed, uint32 mask) : random_(seed), mask_(mask) {}

    rgb_color Next() { return {Component(), Component(), Component(), 255}; }
    ColorTable Table() {
        ColorTable table;
        for (rgb_color& entry : table) {
            entry = Next();
            entry.alpha = Component();
        }
        return table;
    }

  private:
    uint8 Component() { return static_cast<uint8>(random_() & mask_); }

    std::mt19937 random_;
    const uint32 mask_;
};

void ExpectNearest(const ColorTable& table, int32 size, rgb_color color) {
    ColorColumns columns;
    columns.Set(table, size);
    const uint8 expected = ReferenceNearest(table, size, color);
    for (const NearestColorSearch search : Searches()) {
        ASSERT_EQ(search(columns, color.red, color.green, color.blue), expected)
            << "size " << size << ", color " << int{color.red} << " " << int{color.green} << " "
            << int{color.blue};
    }
}

}  // namespace

TEST(NearestColor, EqualsAnExhaustiveSearchInTablesOfEverySize) {
    for (const uint32 mask : {0xFFU, 0xC0U, 0x80U}) {
        RandomColors entries(41, mask);
        RandomColors colors(42, 0xFF);
        for (int32 size = 0; size <= 256; ++size) {
            const ColorTable table = entries.Table();
            for (int i = 0; i < 20; ++i)
                ExpectNearest(table, size, colors.Next());
            for (int i = 0; i < 5; ++i)
                ExpectNearest(table, size, entries.Next());
        }
    }
}

TEST(NearestColor, EqualsAnExhaustiveSearchFarFromEveryEntry) {
    // Distances around 255, where a byte ends, and up to 765.
    RandomColors dark(43, 0x3F);
    for (const int32 size : {1, 31, 32, 33, 255, 256}) {
        const ColorTable table = dark.Table();
        for (int32 level = 0; level < 256; ++level) {
            const uint8 component = static_cast<uint8>(level);
            ExpectNearest(table, size, {component, component, component, 255});
            ExpectNearest(table, size, {component, 255, 0, 255});
        }
    }
}

TEST(NearestColor, FindsTheLowestOfEqualEntriesInEveryPlace) {
    ColorTable table;
    table.fill({200, 200, 200, 255});
    for (size_t i = 255; i > 0; --i) {
        table[i] = {9, 8, 7, 255};
        ExpectNearest(table, 256, {9, 8, 7, 255});
        ExpectNearest(table, 256, {9, 8, 8, 255});
    }
}

TEST(NearestColor, EqualsAnExhaustiveSearchAmongGreys) {
    ColorTable table;
    for (size_t i = 0; i < table.size(); ++i) {
        const uint8 level = static_cast<uint8>(i);
        table[i] = {level, level, level, 255};
    }
    RandomColors colors(44, 0xFF);
    for (int i = 0; i < 3000; ++i)
        ExpectNearest(table, 256, colors.Next());
}

TEST(NearestColor, SearchesTheTableThatWasSetLast) {
    RandomColors entries(45, 0xFF);
    NearestColor nearest;
    for (const int32 size : {256, 3, 100}) {
        const ColorTable table = entries.Table();
        nearest.SetTable(table, size);
        for (int i = 0; i < 100; ++i) {
            const rgb_color color = entries.Next();
            ASSERT_EQ(nearest.IndexOf(color.red, color.green, color.blue),
                      ReferenceNearest(table, size, color));
        }
    }
}

TEST(NearestColor, TakesOtherSizesAsTheNearestPossible) {
    RandomColors entries(46, 0xFF);
    const ColorTable table = entries.Table();
    NearestColor nearest;

    nearest.SetTable(table, 1000);
    EXPECT_EQ(nearest.IndexOf(table[255].red, table[255].green, table[255].blue),
              ReferenceNearest(table, 256, table[255]));
    nearest.SetTable(table, -1);
    EXPECT_EQ(nearest.IndexOf(table[255].red, table[255].green, table[255].blue), 0);
}

}  // namespace kirto::test
