#include "formats/faithful/gif_table.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

std::vector<uint32> Keys(uint32 first, uint32 count) {
    std::vector<uint32> keys;
    for (uint32 i = 0; i < count; ++i)
        keys.push_back(first + i);
    return keys;
}

FramePlan PlanOf(const std::vector<uint32>& keys, bool skips = false) {
    FramePlan plan;
    for (const uint32 key : keys)
        plan.colors.push_back({key, 1});
    plan.skips = skips;
    return plan;
}

}  // namespace

TEST(GifTable, FindsEachColorAndNoOther) {
    const GifTable table(Keys(1000, 256));
    for (uint32 i = 0; i < 256; ++i)
        EXPECT_EQ(table.IndexOf(1000 + i), static_cast<int32>(i));
    EXPECT_EQ(table.IndexOf(999), GifTable::kNone);
    EXPECT_EQ(table.IndexOf(kNothing), GifTable::kNone);
    EXPECT_EQ(table.Bits(), 8);
}

TEST(GifTable, OfEqualColorsTheFirstIsFound) {
    const GifTable table(std::vector<uint32>{5, 7, 5, 7});
    EXPECT_EQ(table.IndexOf(7), 1);
    EXPECT_EQ(table.Size(), 4u);
}

TEST(GifTable, IsWrittenWithAsManyEntriesAsItsBitsCount) {
    ByteWriter bytes;
    GifTable(std::vector<uint32>{0x010203, 0x040506, 0x070809}).Write(&bytes);
    EXPECT_EQ(bytes.Written(), (std::vector<uint8>{1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0}));
}

TEST(GifTable, ServesWhereItHasTheColorsAndAnIndexToSkipWith) {
    const GifTable full(Keys(0, 4));
    EXPECT_TRUE(Serves(full, PlanOf(Keys(0, 4))));
    EXPECT_FALSE(Serves(full, PlanOf(Keys(0, 4), true)));
    EXPECT_TRUE(Serves(full, PlanOf(Keys(0, 3), true)));
    EXPECT_FALSE(Serves(full, PlanOf(Keys(1, 4))));
    // The entry that fills it up has no color.
    EXPECT_TRUE(Serves(GifTable(Keys(0, 3)), PlanOf(Keys(0, 3), true)));
}

TEST(GlobalTable, HasTheColorsOfAllImagesTheCommonestFirst) {
    const GifTable table =
        ChooseGlobalTable({PlanOf({1, 2, 3}), PlanOf({3, 4}), PlanOf({3, 4})}, {});
    EXPECT_EQ(table.IndexOf(3), 0);
    EXPECT_EQ(table.IndexOf(4), 1);
    EXPECT_EQ(table.IndexOf(1), 2);
    EXPECT_EQ(table.IndexOf(2), 3);
}

TEST(GlobalTable, LeavesOutImagesThatItHasNoRoomFor) {
    const GifTable table = ChooseGlobalTable(
        {PlanOf(Keys(0, 200)), PlanOf(Keys(1000, 100)), PlanOf(Keys(2000, 56))}, {});
    EXPECT_EQ(table.Size(), 256u);
    EXPECT_EQ(table.IndexOf(1000), GifTable::kNone);
    EXPECT_NE(table.IndexOf(2000), GifTable::kNone);
}

TEST(GlobalTable, HasTheColorsOfSmallImagesFirstWhereThatTakesFewerBits) {
    // Nothing is common but to the large ones.
    const GifTable table =
        ChooseGlobalTable({PlanOf(Keys(0, 200)), PlanOf(Keys(0, 200)), PlanOf(Keys(500, 4))}, {});
    for (uint32 i = 0; i < 4; ++i)
        EXPECT_LT(table.IndexOf(500 + i), 4);
}

TEST(GlobalTable, LeavesOutThoseWhoseOwnTablesTakeLeast) {
    const GifTable table =
        ChooseGlobalTable({PlanOf(Keys(0, 200)), PlanOf(Keys(1000, 70)), PlanOf(Keys(2000, 70)),
                           PlanOf(Keys(3000, 70)), PlanOf(Keys(4000, 40))},
                          {});
    EXPECT_EQ(table.IndexOf(0), GifTable::kNone);
    for (const uint32 first : {1000U, 2000U, 3000U, 4000U})
        EXPECT_NE(table.IndexOf(first), GifTable::kNone) << first;
}

TEST(GlobalTable, IsTheGivenOneWhereThereIsOne) {
    const std::vector<rgb_color> given = {{1, 2, 3, 255}, {4, 5, 6, 255}};
    const GifTable table = ChooseGlobalTable({PlanOf({9})}, given);
    EXPECT_EQ(table.IndexOf(0x010203), 0);
    EXPECT_EQ(table.IndexOf(9), GifTable::kNone);
}

}  // namespace kirto::test
