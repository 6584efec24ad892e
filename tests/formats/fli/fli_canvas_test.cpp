#include "formats/fli/fli_canvas.h"

#include <gtest/gtest.h>
#include <random>

#include "base/allocation.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

PixelTable RandomTable(std::mt19937& random) {
    PixelTable table;
    for (uint32& pixel : table.pixels)
        pixel = static_cast<uint32>(random()) | 0xFF000000;
    return table;
}

}  // namespace

TEST(FliCanvas, KeepsTheColorsOfWhatIsDrawnWhateverIndicesMeanLater) {
    std::mt19937 random(3);
    const Work work;
    for (int32 round = 0; round < 40; ++round) {
        FliCanvas canvas(90, 150, nullptr);
        std::vector<uint32> plain(90 * 150);
        PixelTable table = RandomTable(random);
        // Black is an index in some tables only.
        if (round % 2 == 0) table.pixels[9] = 0xFF000000;
        canvas.SetTable(table);
        canvas.Blacken();
        plain.assign(plain.size(), 0xFF000000);
        for (int32 frame = 0; frame < 8; ++frame) {
            if (round % 3 > 0 && random() % 4 == 0) table = RandomTable(random);
            canvas.SetTable(table);
            if (random() % 4 == 0) {
                canvas.Clear();
                plain.assign(plain.size(), table.pixels[0]);
            } else if (random() % 4 == 0) {
                canvas.Blacken();
                plain.assign(plain.size(), 0xFF000000);
            }
            for (auto run = random() % 9; run > 0; --run) {
                const size_t position = random() % plain.size();
                const size_t count = std::min(random() % 200, plain.size() - position);
                std::vector<uint8> indices(count);
                const bool literal = random() % 2 == 0;
                for (size_t i = 0; i < count; ++i) {
                    indices[i] = literal ? static_cast<uint8>(random()) : static_cast<uint8>(i % 2);
                    plain[position + i] = table.pixels[indices[i]];
                }
                const int64 start = static_cast<int64>(position);
                if (literal) {
                    canvas.Put(start, indices);
                } else {
                    canvas.RepeatPair(start, 0, 1, static_cast<int64>(count));
                }
            }
            const auto picture = canvas.MakePicture(work);
            ASSERT_TRUE(picture);
            ASSERT_EQ(PixelsOf(*picture), plain) << round << ", frame " << frame;
        }
    }
}

TEST(FliCanvas, SharesTheStripsWithoutAChange) {
    std::mt19937 random(4);
    const Work work;
    for (const bool pixels : {false, true}) {
        FliCanvas canvas(100, 200, nullptr);
        canvas.SetTable(RandomTable(random));
        std::vector<uint8> indices(100 * 200);
        for (uint8& index : indices)
            index = static_cast<uint8>(random());
        canvas.Put(0, indices);
        if (pixels) canvas.SetTable(RandomTable(random));
        const auto first = canvas.MakePicture(work);
        canvas.Put(100 * 70, std::vector<uint8>{1, 2, 3});
        const auto second = canvas.MakePicture(work);

        ASSERT_EQ(second->AllStrips().size(), 4U);
        for (size_t strip = 0; strip < 4; ++strip)
            EXPECT_EQ(second->AllStrips()[strip] == first->AllStrips()[strip], strip != 1);
    }
}

TEST(FliCanvas, RepeatsThePictureWhereNothingHasChanged) {
    std::mt19937 random(6);
    const Work work;
    for (const bool pixels : {false, true}) {
        FliCanvas canvas(100, 200, nullptr);
        canvas.SetTable(RandomTable(random));
        canvas.Put(0, std::vector<uint8>{1, 2, 3});
        if (pixels) canvas.SetTable(RandomTable(random));
        const auto drawn = canvas.MakePicture(work);
        EXPECT_TRUE(canvas.MakePicture(work)->Repeats(*drawn));

        canvas.Blacken();
        const auto black = canvas.MakePicture(work);
        EXPECT_FALSE(black->Repeats(*drawn));
        canvas.Blacken();
        EXPECT_TRUE(canvas.MakePicture(work)->Repeats(*black));
    }
}

TEST(FliCanvas, RecoloredPicturesKeepTheirIndices) {
    std::mt19937 random(7);
    const Work work;
    FliCanvas canvas(100, 200, nullptr);
    std::vector<uint8> indices(100 * 200);
    for (size_t i = 0; i < indices.size(); ++i)
        indices[i] = i < 10000 ? static_cast<uint8>(random()) : 5;
    canvas.Put(0, indices);
    for (int32 round = 0; round < 3; ++round) {
        const PixelTable table = RandomTable(random);
        canvas.Recolor(table);
        std::vector<uint32> expected(indices.size());
        for (size_t i = 0; i < indices.size(); ++i)
            expected[i] = table.pixels[indices[i]];
        EXPECT_EQ(PixelsOf(*canvas.MakePicture(work)), expected);
    }
}

TEST(FliCanvas, TakesAPictureOfAnotherSizeWithoutRegardToItsRows) {
    const Work work;
    FliCanvas canvas(3, 2, nullptr);
    EXPECT_TRUE(canvas.Take(FramePictureOf(2, 2, {1, 2, 3, 4}), work));
    EXPECT_EQ(PixelsOf(*canvas.MakePicture(work)), (std::vector<uint32>{1, 2, 3, 4, 0, 0}));
}

TEST(FliCanvas, GivesNothingWithoutMemory) {
    const Work work;
    {
        const AllocationFault fault(1);
        FliCanvas canvas(3, 2, nullptr);
        EXPECT_FALSE(canvas.Ready());
    }
    FliCanvas canvas(3, 2, nullptr);
    canvas.Put(0, std::vector<uint8>{1, 2, 3});
    const AllocationFault fault(1);
    std::mt19937 random(5);
    canvas.SetTable(RandomTable(random));
    canvas.Put(0, std::vector<uint8>{1});
    EXPECT_FALSE(canvas.Ready());
    EXPECT_EQ(canvas.MakePicture(work), nullptr);
}

TEST(FliCanvas, GivesNothingOnceTheWorkIsStopped) {
    FliCanvas canvas(3, 2, nullptr);
    Work work;
    work.StopAll();
    EXPECT_EQ(canvas.MakePicture(work), nullptr);
}

}  // namespace kirto::test
