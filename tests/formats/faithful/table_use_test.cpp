#include "formats/faithful/table_use.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

// Colors 1 to so many.
std::vector<uint32> Keys(uint32 count) {
    std::vector<uint32> keys;
    for (uint32 key = 1; key <= count; ++key)
        keys.push_back(key);
    return keys;
}

// An area that shows these colors one after the other, of which the first are new.
struct Drawn {
    Drawn(const std::vector<uint32>& shown, size_t changed) {
        area.keys = shown;
        area.skippable.assign(shown.size(), 1);
        for (size_t i = 0; i < changed; ++i) {
            area.skippable[i] = 0;
            plan.colors.push_back({shown[i], 1});
        }
        plan.skips = changed < shown.size();
    }

    FramePlan plan;
    ImageArea area;
};

}  // namespace

TEST(TableUse, SkippingTakesAnIndexThatNoNewColorHas) {
    const Drawn drawn(Keys(8), 7);
    const auto uses = GlobalUses(GifTable(Keys(8)), drawn.plan, drawn.area);
    ASSERT_EQ(uses.size(), 2u);
    EXPECT_EQ(uses[0].transparent_index, 7);
    EXPECT_EQ(uses[0].bits, 3);
}

TEST(TableUse, DrawingAllNeedsNoIndexForSkippedPixels) {
    // All eight are new somewhere: a ninth index would take another bit.
    std::vector<uint32> shown = Keys(8);
    shown.push_back(1);
    const Drawn drawn(shown, 8);
    const auto uses = GlobalUses(GifTable(Keys(8)), drawn.plan, drawn.area);
    // An index beyond the table is none that it can have.
    ASSERT_EQ(uses.size(), 1u);
    EXPECT_EQ(uses[0].transparent_index, GifTable::kNone);
    const auto wide = GlobalUses(GifTable(Keys(9)), drawn.plan, drawn.area);
    ASSERT_EQ(wide.size(), 2u);
    EXPECT_EQ(wide[0].bits, 4);
    EXPECT_EQ(wide[1].transparent_index, GifTable::kNone);
    EXPECT_EQ(wide[1].bits, 3);
}

TEST(TableUse, ATableOfTheImagesOwnIsThereWhereFewerBitsDo) {
    const Drawn drawn(Keys(6), 3);
    EXPECT_TRUE(LocalUses(drawn.plan, drawn.area, 2).empty());
    const auto uses = LocalUses(drawn.plan, drawn.area, 3);
    ASSERT_EQ(uses.size(), 1u);
    EXPECT_TRUE(uses[0].local);
    EXPECT_EQ(uses[0].bits, 2);
    EXPECT_EQ(LocalUses(drawn.plan, drawn.area, 9).size(), 2u);
}

TEST(TableUse, PixelsThatShowNothingAreOnlySkipped) {
    std::vector<uint32> shown = Keys(3);
    shown.push_back(kNothing);
    const Drawn drawn(shown, 3);
    const auto uses = GlobalUses(GifTable(Keys(3)), drawn.plan, drawn.area);
    ASSERT_EQ(uses.size(), 1u);
    EXPECT_EQ(uses[0].transparent_index, 3);
    for (const Drawing& drawing : DrawingsOf(drawn.area, uses[0]))
        EXPECT_EQ(drawing.indices[3], 3);
}

}  // namespace kirto::test
