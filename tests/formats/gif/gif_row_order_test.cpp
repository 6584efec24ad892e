#include "formats/gif/gif_row_order.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace kirto::test {
namespace {

std::vector<int32> RowsOf(int32 height, bool interlaced) {
    std::vector<int32> rows;
    for (GifRowOrder order(height, interlaced); !order.Done(); order.Next())
        rows.push_back(order.Row());
    return rows;
}

TEST(GifRowOrder, RunsFromTheTopWithoutInterlacing) {
    EXPECT_EQ(RowsOf(5, false), (std::vector<int32>{0, 1, 2, 3, 4}));
}

TEST(GifRowOrder, InterlacedVisitsEveryEighthThenFourthThenSecondThenOddRows) {
    EXPECT_EQ(RowsOf(18, true), (std::vector<int32>{0, 8, 16, 4, 12, 2, 6, 10, 14,  //
                                                    1, 3, 5, 7, 9, 11, 13, 15, 17}));
}

TEST(GifRowOrder, PassesThatStartBelowALowImageAreLeftOut) {
    EXPECT_EQ(RowsOf(1, true), (std::vector<int32>{0}));
    EXPECT_EQ(RowsOf(2, true), (std::vector<int32>{0, 1}));
    EXPECT_EQ(RowsOf(3, true), (std::vector<int32>{0, 2, 1}));
    EXPECT_EQ(RowsOf(4, true), (std::vector<int32>{0, 2, 1, 3}));
    EXPECT_EQ(RowsOf(5, true), (std::vector<int32>{0, 4, 2, 1, 3}));
}

TEST(GifRowOrder, AnImageWithoutRowsIsDoneAtOnce) {
    EXPECT_TRUE(GifRowOrder(0, false).Done());
    EXPECT_TRUE(GifRowOrder(0, true).Done());
}

TEST(GifRowOrder, StaysDoneWhenAskedToGoOn) {
    for (const bool interlaced : {false, true}) {
        GifRowOrder order(1, interlaced);
        for (int i = 0; i < 10; ++i)
            order.Next();
        EXPECT_TRUE(order.Done());
    }
}

TEST(GifRowOrder, InterlacedVisitsEveryRowOnceAtAnyHeight) {
    for (int32 height = 0; height <= 100; ++height) {
        std::vector<int32> rows = RowsOf(height, true);
        std::sort(rows.begin(), rows.end());
        EXPECT_EQ(rows, RowsOf(height, false)) << height;
    }
}

}  // namespace
}  // namespace kirto::test
