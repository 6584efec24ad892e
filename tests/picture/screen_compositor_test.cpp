#include "picture/screen_compositor.h"

#include <gtest/gtest.h>
#include <random>

#include "base/allocation.h"
#include "random_picture.h"

namespace kirto::test {

namespace {

// An image of indices with what it needs, and what becomes of it.
struct Drawn {
    std::vector<uint8> indices;
    std::vector<int32> row_lengths;
    IndexImage image;
    Disposal disposal = Disposal::kNone;
};

SharedPixelTable RandomScreenTable(std::mt19937& random) {
    auto table = std::make_shared<PixelTable>();
    for (uint32& pixel : table->pixels)
        pixel = 0xFF000000 | static_cast<uint32>(random());
    return table;
}

Drawn RandomDrawn(int32 width, int32 height, SharedPixelTable table, std::mt19937& random) {
    Drawn drawn;
    IndexImage& image = drawn.image;
    const bool whole = RandomBelow(3, random) == 0;
    image.width = whole ? width : RandomBelow(width + 5, random);
    image.height = whole ? height : RandomBelow(height + 5, random);
    image.left = whole ? 0 : RandomBelow(width + 2, random);
    image.top = whole ? 0 : RandomBelow(height + 2, random);
    image.table = std::move(table);
    const int32 different = 1 << RandomBelow(9, random);
    if (RandomBelow(2, random) == 0) image.skipped = RandomBelow(different, random);
    drawn.indices.resize(static_cast<size_t>(image.width) * static_cast<size_t>(image.height));
    for (uint8& index : drawn.indices)
        index = static_cast<uint8>(RandomBelow(different, random));
    if (RandomBelow(4, random) == 0) {
        for (int32 row = 0; row < image.height; ++row)
            drawn.row_lengths.push_back(RandomBelow(image.width + 1, random));
    }
    image.indices = drawn.indices;
    image.row_lengths = drawn.row_lengths;
    drawn.disposal = static_cast<Disposal>(RandomBelow(4, random));
    return drawn;
}

// A screen of plain pixels, disposed of and drawn on one by one.
class PlainScreen {
  public:
    PlainScreen(int32 width, int32 height)
        : screen_{width, height,
                  std::vector<uint32>(static_cast<size_t>(width) * static_cast<size_t>(height))} {}

    const std::vector<uint32>& Draw(const Drawn& drawn) {
        Dispose();
        before_ = screen_;
        const IndexImage& image = drawn.image;
        ForEachPixel(image, [&](int32 x, int32 y, uint32& pixel) {
            const size_t row = static_cast<size_t>(y);
            if (!image.row_lengths.empty() && x >= image.row_lengths[row]) return;
            const size_t width = static_cast<size_t>(image.width);
            const uint8 index = image.indices[row * width + static_cast<size_t>(x)];
            if (index != image.skipped) pixel = image.table->pixels[index];
        });
        last_ = image;
        disposal_ = drawn.disposal;
        return screen_.pixels;
    }

  private:
    void Dispose() {
        if (disposal_ == Disposal::kPrevious) screen_ = before_;
        if (disposal_ != Disposal::kBackground) return;
        ForEachPixel(last_, [](int32, int32, uint32& pixel) { pixel = 0; });
    }
    // Those of the image that lie on the screen; x and y are the image's.
    template <typename Action>
    void ForEachPixel(const IndexImage& image, const Action& action) {
        for (int32 y = 0; y < image.height; ++y) {
            for (int32 x = 0; x < image.width; ++x) {
                const bool outside =
                    image.left + x >= screen_.width || image.top + y >= screen_.height;
                if (!outside) action(x, y, screen_.At(image.left + x, image.top + y));
            }
        }
    }

    PlainPicture screen_;
    PlainPicture before_;
    IndexImage last_;
    Disposal disposal_ = Disposal::kNone;
};

Drawn OneColor(int32 left, int32 top, int32 width, int32 height, Disposal disposal) {
    std::mt19937 random(3);
    Drawn drawn;
    drawn.indices.resize(static_cast<size_t>(width) * static_cast<size_t>(height), 7);
    drawn.image.left = left;
    drawn.image.top = top;
    drawn.image.width = width;
    drawn.image.height = height;
    drawn.image.indices = drawn.indices;
    drawn.image.table = RandomScreenTable(random);
    drawn.disposal = disposal;
    return drawn;
}

}  // namespace

TEST(ScreenCompositor, ShowsWhatAScreenOfPlainPixelsShows) {
    std::mt19937 random(21);
    for (int32 round = 0; round < 250; ++round) {
        const int32 width = 1 + RandomBelow(round % 10 == 0 ? 400 : 40, random);
        const int32 height = 1 + RandomBelow(round % 10 == 0 ? 200 : 40, random);
        ScreenCompositor compositor(width, height, nullptr);
        PlainScreen plain(width, height);
        SharedPixelTable table = RandomScreenTable(random);
        for (int32 number = 0; number < 16; ++number) {
            if (RandomBelow(4, random) == 0) table = RandomScreenTable(random);
            const Drawn drawn = RandomDrawn(width, height, table, random);
            const auto shown = compositor.Draw(drawn.image, drawn.disposal);
            ASSERT_TRUE(shown);
            ASSERT_EQ(PlainOf(*shown).pixels, plain.Draw(drawn)) << round << ", image " << number;
        }
    }
}

TEST(ScreenCompositor, GoesOnInACopyFromWhereTheOriginalIs) {
    std::mt19937 random(22);
    const SharedPixelTable table = RandomScreenTable(random);
    ScreenCompositor compositor(30, 20, nullptr);
    for (int32 number = 0; number < 40; ++number) {
        const Drawn drawn = RandomDrawn(30, 20, table, random);
        ScreenCompositor copy = compositor;
        const PlainPicture shown = PlainOf(*compositor.Draw(drawn.image, drawn.disposal));
        ASSERT_EQ(PlainOf(*copy.Draw(drawn.image, drawn.disposal)).pixels, shown.pixels);
    }
}

TEST(ScreenCompositor, KeepsIndicesWhenItDisposesOfATransparentImage) {
    ScreenCompositor compositor(100, 100, nullptr);
    Drawn whole = OneColor(0, 0, 100, 100, Disposal::kBackground);
    whole.image.width = 50;
    for (size_t i = 0; i < whole.indices.size(); ++i)
        whole.indices[i] = static_cast<uint8>(i % 5);
    whole.image.skipped = 3;
    compositor.Draw(whole.image, whole.disposal);
    const Drawn next = OneColor(0, 99, 1, 1, Disposal::kNone);
    const auto shown = compositor.Draw(next.image, next.disposal);

    EXPECT_EQ(PlainOf(*shown).At(20, 20), 0u);
    EXPECT_EQ(shown->Row(20).pixels, nullptr);
}

TEST(ScreenCompositor, SharesTheRowsThatAnImageAndItsDisposalLeaveAlone) {
    std::mt19937 random(23);
    ScreenCompositor compositor(64, 640, nullptr);
    Drawn first = RandomDrawn(64, 640, RandomScreenTable(random), random);
    first.indices.assign(64 * 640, 0);
    for (uint8& index : first.indices)
        index = static_cast<uint8>(random());
    first.image.indices = first.indices;
    first.image.left = first.image.top = 0;
    first.image.width = 64;
    first.image.height = 640;
    first.image.row_lengths = {};
    const auto start = compositor.Draw(first.image, Disposal::kKeep);
    for (const Disposal disposal : {Disposal::kBackground, Disposal::kPrevious, Disposal::kKeep}) {
        const Drawn small = OneColor(5, 300, 9, 3, disposal);
        compositor.Draw(small.image, disposal);
    }
    const Drawn last = OneColor(5, 300, 9, 3, Disposal::kKeep);
    const auto shown = compositor.Draw(last.image, last.disposal);

    EXPECT_EQ(shown->AllStrips().front(), start->AllStrips().front());
    EXPECT_EQ(shown->AllStrips().back(), start->AllStrips().back());
}

TEST(ScreenCompositor, StaysAsItWasWhenMemoryIsShort) {
    const auto budget = std::make_shared<PixelBudget>();
    ScreenCompositor compositor(50, 50, budget);
    const Drawn drawn = OneColor(3, 3, 20, 20, Disposal::kBackground);
    compositor.Draw(drawn.image, drawn.disposal);
    budget->SetLimit(0);
    EXPECT_FALSE(compositor.Draw(drawn.image, drawn.disposal));
    budget->SetLimit(PixelBudget::DefaultLimit());

    PlainScreen plain(50, 50);
    plain.Draw(drawn);
    const Drawn next = OneColor(10, 10, 2, 2, Disposal::kNone);
    EXPECT_EQ(PlainOf(*compositor.Draw(next.image, next.disposal)).pixels, plain.Draw(next));
}

}  // namespace kirto::test
