#include "formats/faithful/screen_difference.h"

#include <gtest/gtest.h>
#include <map>

#include "support/random_document.h"

namespace kirto::test {

namespace {

// Few colors, so that much is the same; the second is often what the first is.
struct TwoScreens {
    TwoScreens(int32 width, int32 height, uint32 seed) : screen(width, height, AlphaMatte()) {
        SeededChoices random(seed);
        const uint32 sameness = random.Below(40) + 1;
        const bool transparent = random.OneIn(2);
        const auto any = [&] {
            return transparent && random.OneIn(4) ? kNothing : random.Below(3);
        };
        for (size_t i = 0; i < screen.At(0, height); ++i) {
            below.push_back(any());
            shown.push_back(random.OneIn(sameness) ? any() : below.back());
        }
    }

    Screen screen;
    ScreenPixels below;
    ScreenPixels shown;
};

// Pixel by pixel.
ScreenDifference PlainDifference(const TwoScreens& two) {
    ScreenDifference difference;
    for (int32 y = 0; y < two.screen.Height(); ++y) {
        uint32 last = ~uint32{0};
        for (int32 x = 0; x < two.screen.Width(); ++x) {
            const uint32 key = two.shown[two.screen.At(x, y)];
            difference.transparent |= key == kNothing;
            if (two.below[two.screen.At(x, y)] == key) continue;
            difference.changed = Around(difference.changed, {x, y, 1, 1});
            if (key == kNothing) difference.lost = Around(difference.lost, {x, y, 1, 1});
            ++difference.pixels;
            if (key != last) ++difference.runs;
            last = key;
        }
    }
    return difference;
}

std::map<uint32, uint32> PlainColors(const TwoScreens& two, const PixelRect& rect) {
    std::map<uint32, uint32> colors;
    for (int32 y = rect.top; y < rect.top + rect.height; ++y) {
        for (int32 x = rect.left; x < rect.left + rect.width; ++x) {
            const uint32 key = two.shown[two.screen.At(x, y)];
            if (key != kNothing && key != two.below[two.screen.At(x, y)]) ++colors[key];
        }
    }
    return colors;
}

void ExpectSame(const PixelRect& a, const PixelRect& b) {
    // Of no pixels, it may be anywhere.
    ASSERT_EQ(a.width, b.width);
    ASSERT_EQ(a.height, b.height);
    if (a.width == 0) return;
    EXPECT_EQ(a.left, b.left);
    EXPECT_EQ(a.top, b.top);
}

TEST(ScreenDifference, IsWhatComparingPixelByPixelFinds) {
    for (int32 width = 1; width < 70; ++width) {
        for (uint32 seed = 0; seed < 20; ++seed) {
            const TwoScreens two(width, 3, seed * 100 + static_cast<uint32>(width));
            const auto fast = ScreenDifference::Between(two.screen, two.below, two.shown);
            const ScreenDifference plain = PlainDifference(two);
            ExpectSame(fast.changed, plain.changed);
            ExpectSame(fast.lost, plain.lost);
            EXPECT_EQ(fast.transparent, plain.transparent);
            EXPECT_EQ(fast.pixels, plain.pixels);
            EXPECT_EQ(fast.runs, plain.runs);
        }
    }
}

TEST(ScreenDifference, HasTheColorsThatCountingPixelByPixelFinds) {
    for (int32 width = 1; width < 70; ++width) {
        for (uint32 seed = 0; seed < 20; ++seed) {
            const TwoScreens two(width, 3, seed * 100 + static_cast<uint32>(width));
            const PixelRect rect{width / 3, 0, width - width / 2, 2};
            const auto colors = ColorsToDraw(two.screen, rect, two.below, two.shown, 256);
            std::map<uint32, uint32> found;
            for (const ColorValues::Item& item : colors.value())
                found[item.key] = item.value;
            EXPECT_EQ(found, PlainColors(two, rect));
        }
    }
}

}  // namespace

}  // namespace kirto::test
