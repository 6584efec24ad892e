#include "color/adaptive/nearest_entry.h"

#include <gtest/gtest.h>

#include "base/allocation.h"
#include "color/adaptive/counted_colors.h"

namespace kirto::test {

namespace {

std::vector<rgb_color> RandomEntries(size_t count, uint32 seed, uint32 mask) {
    std::mt19937 random(seed);
    std::vector<rgb_color> entries;
    while (entries.size() < count)
        entries.push_back(ColorOfKey(static_cast<uint32>(random()) & mask));
    return entries;
}

void ExpectPlainAnswers(NearestEntry* nearest, const std::vector<rgb_color>& entries, uint32 seed,
                        size_t colors) {
    std::mt19937 random(seed);
    for (size_t i = 0; i < colors; ++i) {
        const uint32 key = static_cast<uint32>(random()) & 0xFFFFFF;
        ASSERT_EQ(nearest->IndexOf(ComponentsOf(key)), PlainNearest(entries, key))
            << entries.size() << " entries, color " << key;
    }
    for (const rgb_color& entry : entries) {
        const uint32 key = ColorKey(entry.red, entry.green, entry.blue);
        ASSERT_EQ(nearest->IndexOf(ComponentsOf(key)), PlainNearest(entries, key));
    }
}

}  // namespace

TEST(NearestEntry, EqualsAnExhaustiveSearch) {
    // Few bits make equal entries and equal distances frequent.
    for (const uint32 mask : {0xFFFFFFU, 0xC0C0C0U, 0x1F1F1FU, 0x808080U}) {
        for (const size_t count : {1U, 2U, 3U, 16U, 100U, 255U, 256U}) {
            const std::vector<rgb_color> entries = RandomEntries(count, 11, mask);
            NearestEntry nearest(entries);
            ExpectPlainAnswers(&nearest, entries, 12, 3000);
        }
    }
}

TEST(NearestEntry, EqualsAnExhaustiveSearchInEveryCell) {
    const std::vector<rgb_color> entries = RandomEntries(256, 13, 0xFFFFFF);
    NearestEntry nearest(entries);
    for (uint32 key = 0; key < 1 << 24; key += 0x7F) {
        ASSERT_EQ(nearest.IndexOf(ComponentsOf(key)), PlainNearest(entries, key)) << key;
    }
}

TEST(NearestEntry, FindsTheSameWhenItsListsAreFull) {
    // Every entry is equally near to everything, so each of the 32,768 lists would hold all.
    const std::vector<rgb_color> entries(256, rgb_color{7, 7, 7, 255});
    NearestEntry nearest(entries);
    for (uint32 key = 0; key < 1 << 24; key += 0x3FF)
        ASSERT_EQ(nearest.IndexOf(ComponentsOf(key)), 0);
}

TEST(NearestEntry, FindsTheSameWithoutMemory) {
    const std::vector<rgb_color> entries = RandomEntries(200, 14, 0xFFFFFF);
    for (const int64 call : {1, 2, 3}) {
        const AllocationFault fault(call);
        NearestEntry nearest(entries);
        ExpectPlainAnswers(&nearest, entries, 15, 500);
    }
}

TEST(NearestEntry, NeverAnswersTheExcludedEntryUnlessItIsTheOnlyOne) {
    const std::vector<rgb_color> entries = {
        {10, 10, 10, 255}, {20, 20, 20, 255}, {90, 90, 90, 255}};
    NearestEntry nearest(entries, 1);
    EXPECT_EQ(nearest.IndexOf({20, 20, 20}), 0);
    EXPECT_EQ(nearest.IndexOf({60, 60, 60}), 2);
    EXPECT_EQ(NearestEntry(entries, 3).IndexOf({20, 20, 20}), 1);

    const std::vector<rgb_color> single = {{10, 10, 10, 255}};
    EXPECT_EQ(NearestEntry(single, 0).IndexOf({0, 0, 0}), 0);
}

TEST(NearestEntry, LooksAtTheFirst256EntriesAndTakesNoneAsIndex0) {
    std::vector<rgb_color> entries = RandomEntries(300, 16, 0x7F7F7F);
    entries[299] = {255, 255, 255, 255};
    NearestEntry nearest(entries);
    EXPECT_EQ(nearest.IndexOf({255, 255, 255}),
              PlainNearest(std::span(entries).first(256), 0xFFFFFF));
    EXPECT_EQ(NearestEntry({}).IndexOf({1, 2, 3}), 0);
}

}  // namespace kirto::test
