#include "formats/gif/gif_index_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace kirto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Indices = std::vector<uint8>;

// An image of index 99 after 1, 2, 3, ... were written into it.
Indices Written(int32 width, int32 height, uint8 count, bool interlaced = false) {
    Indices image(static_cast<size_t>(width * height), 99);
    GifIndexWriter writer(image.data(), width, height, interlaced);
    for (uint8 index = 1; index <= count; ++index)
        writer.Write(&index, 1);
    return image;
}

TEST(GifIndexWriter, FillsTheImageRowByRow) {
    EXPECT_THAT(Written(2, 2, 4), ElementsAre(1, 2, 3, 4));
}

TEST(GifIndexWriter, FollowsTheInterlacedOrder) {
    EXPECT_THAT(Written(1, 5, 5, true), ElementsAre(1, 4, 3, 5, 2));
}

TEST(GifIndexWriter, LeavesWhatNoIndexCameFor) {
    EXPECT_THAT(Written(3, 2, 4), ElementsAre(1, 2, 3, 4, 99, 99));
}

TEST(GifIndexWriter, DropsIndicesPastTheLastRow) {
    EXPECT_THAT(Written(3, 1, 9), ElementsAre(1, 2, 3));
    EXPECT_THAT(Written(3, 1, 9, true), ElementsAre(1, 2, 3));
}

TEST(GifIndexWriter, IsFullOnceEveryRowIsWritten) {
    Indices image(2);
    GifIndexWriter writer(image.data(), 2, 1, false);
    const uint8 indices[] = {1, 2};

    writer.Write(indices, 1);
    EXPECT_FALSE(writer.Full());
    writer.Write(indices + 1, 1);
    EXPECT_TRUE(writer.Full());
}

TEST(GifIndexWriter, AnImageWithoutColumnsOrRowsTakesNothing) {
    for (const auto& [width, height] : {std::pair{0, 2}, {3, 0}}) {
        GifIndexWriter writer(nullptr, width, height, false);
        const uint8 index = 1;
        writer.Write(&index, 1);
        EXPECT_TRUE(writer.Full());
    }
}

TEST(GifIndexWriter, TellsHowFarEachRowWasWritten) {
    Indices image(15);
    GifIndexWriter plain(image.data(), 3, 5, false);
    const Indices seven(7);
    plain.Write(seven.data(), 7);
    EXPECT_THAT(plain.RowLengths(), ElementsAre(3, 3, 1, 0, 0));

    GifIndexWriter interlaced(image.data(), 3, 5, true);
    interlaced.Write(seven.data(), 7);
    EXPECT_THAT(interlaced.RowLengths(), ElementsAre(3, 0, 1, 0, 3));
    interlaced.Write(seven.data(), 7);
    interlaced.Write(seven.data(), 1);
    EXPECT_THAT(interlaced.RowLengths(), IsEmpty());
}

// The image after the indices were written into it one by one.
Indices PlainlyWritten(Indices image, int32 width, int32 height, bool interlaced,
                       const Indices& indices) {
    GifRowOrder rows(height, interlaced);
    int32 column = 0;
    for (const uint8 index : indices) {
        if (rows.Done()) break;
        image[static_cast<size_t>(rows.Row() * width + column)] = index;
        column = (column + 1) % width;
        if (column == 0) rows.Next();
    }
    return image;
}

TEST(GifIndexWriter, EqualsWritingOneByOneHoweverTheIndicesArrive) {
    std::mt19937 engine(11);
    const auto random = [&engine](uint32 least, uint32 most) {
        return static_cast<int32>(least + engine() % (most - least + 1));
    };
    for (int32 round = 0; round < 3000; ++round) {
        const int32 width = random(1, 70);
        const int32 height = random(1, 14);
        const bool interlaced = random(0, 1) == 1;
        Indices indices(static_cast<size_t>(width * random(0, static_cast<uint32>(height + 1))));
        for (uint8& index : indices)
            index = static_cast<uint8>(engine());
        const Indices before(static_cast<size_t>(width * height), 7);

        Indices image = before;
        GifIndexWriter writer(image.data(), width, height, interlaced);
        for (size_t done = 0; done < indices.size();) {
            const size_t step = std::min(indices.size() - done, static_cast<size_t>(random(0, 99)));
            writer.Write(indices.data() + done, step);
            done += step;
        }

        ASSERT_EQ(image, PlainlyWritten(before, width, height, interlaced, indices))
            << "round " << round;
    }
}

}  // namespace
}  // namespace kirto::test
