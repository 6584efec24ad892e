#include "effects/fade_kernels.h"

#include <cmath>
#include <gtest/gtest.h>

#include "support/random_document.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr color_space kSpaces[] = {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG};

using Bytes = std::vector<uint8>;

Bytes RandomPixels(ChoiceSource& choices, int32 width, int32 height) {
    Bytes bytes(static_cast<size_t>(width * height) * 4);
    for (uint8& byte : bytes)
        byte = static_cast<uint8>(choices.Below(256));
    return bytes;
}

// Where a component of a pixel lies, with the components counted blue, green, red, alpha.
size_t OffsetOf(size_t component, color_space space) {
    return space == B_RGB32 || space == B_RGBA32 ? component : 3 - component;
}

uint8 ComponentOf(const Bytes& pixels, size_t pixel, size_t component, color_space space) {
    return pixels[pixel * 4 + OffsetOf(component, space)];
}

uint8 PlainBlend(float share, uint8 a, uint8 b) {
    const long double f = share;
    return static_cast<uint8>(std::trunc(f * a + (1 - f) * b));
}

Bytes PlainFadeToRGB(const Bytes& source, color_space space, float f, bool to_color,
                     rgb_color color) {
    const uint8 wanted[3] = {color.blue, color.green, color.red};
    Bytes target(source.size());
    for (size_t pixel = 0; pixel < source.size() / 4; ++pixel) {
        for (size_t component = 0; component < 3; ++component) {
            const uint8 from = ComponentOf(source, pixel, component, space);
            target[pixel * 4 + component] = to_color ? PlainBlend(f, wanted[component], from)
                                                     : PlainBlend(f, from, wanted[component]);
        }
        target[pixel * 4 + 3] = ComponentOf(source, pixel, 3, space);
    }
    return target;
}

Bytes PlainFadeToFrame(const Bytes& first, color_space first_space, const Bytes& second,
                       color_space second_space, float f) {
    Bytes target(first.size());
    for (size_t pixel = 0; pixel < first.size() / 4; ++pixel) {
        for (size_t component = 0; component < 3; ++component) {
            target[pixel * 4 + component] =
                PlainBlend(f, ComponentOf(first, pixel, component, first_space),
                           ComponentOf(second, pixel, component, second_space));
        }
        target[pixel * 4 + 3] = ComponentOf(first, pixel, 3, first_space);
    }
    return target;
}

// Every share that a fade of up to 100 frames gives a kernel is a fraction of this kind.
float RandomShare(ChoiceSource& choices) {
    const uint32 count = 1 + choices.Below(101);
    return static_cast<float>(choices.Below(count + 1)) / static_cast<float>(count);
}

FadeShare ShareOfSource(float f, bool to_color) {
    return FadeShare(to_color ? 1 - static_cast<double>(f) : static_cast<double>(f));
}

TEST(FadeToRGB, AgreesWithAPlainOneInEveryColourSpace) {
    SeededChoices choices(1);
    for (int round = 0; round < 200; ++round) {
        const int32 width = choices.Between(0, 19);
        const int32 height = choices.Between(0, 19);
        const Bytes source = RandomPixels(choices, width, height);
        const uint32 number = choices.Below(1 << 24);
        const rgb_color color{static_cast<uint8>(number), static_cast<uint8>(number >> 8),
                              static_cast<uint8>(number >> 16), 255};
        const float f = RandomShare(choices);
        for (const color_space space : kSpaces) {
            for (const bool to_color : {false, true}) {
                Bytes target(source.size());
                FadeToRGB(source.data(), space, target.data(), width, height,
                          ShareOfSource(f, to_color), color);
                ASSERT_EQ(target, PlainFadeToRGB(source, space, f, to_color, color))
                    << "share " << f << ", colour space " << space;
            }
        }
    }
}

TEST(FadeToFrame, AgreesWithAPlainOneInEveryMixOfColourSpaces) {
    SeededChoices choices(2);
    for (int round = 0; round < 100; ++round) {
        const int32 width = choices.Between(0, 19);
        const int32 height = choices.Between(0, 19);
        const Bytes first = RandomPixels(choices, width, height);
        const Bytes second = RandomPixels(choices, width, height);
        const float f = RandomShare(choices);
        for (const color_space first_space : kSpaces) {
            for (const color_space second_space : kSpaces) {
                Bytes target(first.size());
                FadeToFrame(first.data(), first_space, second.data(), second_space, target.data(),
                            width, height, FadeShare(f));
                ASSERT_EQ(target, PlainFadeToFrame(first, first_space, second, second_space, f))
                    << "share " << f << ", colour spaces " << first_space << " and "
                    << second_space;
            }
        }
    }
}

TEST(FadeToRGB, AgreesWithAPlainOneOnEveryPairOfComponents) {
    Bytes source(256 * 4);
    for (size_t i = 0; i < source.size(); ++i)
        source[i] = static_cast<uint8>(i / 4);
    for (int32 value = 0; value < 256; ++value) {
        const uint8 component = static_cast<uint8>(value);
        const rgb_color color{component, component, component, 255};
        for (const float f : {0.0f, 0.01f, 1 / 3.0f, 0.5f, 0.99f, 1.0f}) {
            Bytes target(source.size());
            FadeToRGB(source.data(), B_RGB32, target.data(), 256, 1, ShareOfSource(f, true), color);
            ASSERT_EQ(target, PlainFadeToRGB(source, B_RGB32, f, true, color)) << f;
        }
    }
}

// All pairs of bytes, by shares of long fades and by ones that no whole number stands for.
TEST(FadeToFrame, AgreesWithAPlainOneOnEveryPairOfComponents) {
    Bytes first;
    Bytes second;
    for (size_t pair = 0; pair < size_t{256} * 256; ++pair) {
        first.insert(first.end(), 4, static_cast<uint8>(pair));
        second.insert(second.end(), 4, static_cast<uint8>(pair >> 8));
    }
    Bytes target(first.size());
    for (const float f : {0.0f, 1 / 3.0f, 2 / 3.0f, 13 / 21.0f, 1 - 13 / 21.0f, 999 / 1000.0f,
                          16000 / 16001.0f, 1e-6f, 1e-12f, 1.0f}) {
        FadeToFrame(first.data(), B_RGB32, second.data(), B_RGB32, target.data(), 256, 256,
                    FadeShare(f));
        ASSERT_EQ(target, PlainFadeToFrame(first, B_RGB32, second, B_RGB32, f)) << f;
    }
}

TEST(FadeShare, IsAWholeNumberInFadesOfAsManyFramesAsAreAskedFor) {
    for (int32 count = 1; count <= 500; ++count) {
        for (int32 i = 0; i < count; ++i) {
            ASSERT_GE(FadeShare(static_cast<float>(i) / static_cast<float>(count)).Fixed(), 0);
        }
    }
    EXPECT_LT(FadeShare(1e-20).Fixed(), 0);
}

TEST(FadeToRGB, CutsOffFractions) {
    const Bytes source = {255, 255, 255, 77};
    Bytes target(4);

    FadeToRGB(source.data(), B_RGB32, target.data(), 1, 1, FadeShare(0.5), {0, 0, 0, 255});

    EXPECT_EQ(target, (Bytes{127, 127, 127, 77}));
}

TEST(FadeToRGB, EndsInTheColourWithTheSourcesAlpha) {
    const Bytes source = {1, 2, 3, 77};
    Bytes target(4);

    FadeToRGB(source.data(), B_RGBA32, target.data(), 1, 1, FadeShare(0), {30, 20, 10, 255});

    EXPECT_EQ(target, (Bytes{10, 20, 30, 77}));
}

TEST(FadeToRGB, StartsWithTheColourWhenItFadesFromIt) {
    const Bytes source = {1, 2, 3, 77};
    Bytes target(4);

    FadeToRGB(source.data(), B_RGBA32, target.data(), 1, 1, FadeShare(0), {30, 20, 10, 255});

    EXPECT_EQ(target, (Bytes{10, 20, 30, 77}));
}

TEST(FadeToRGB, ReadsAnUnknownColourSpaceAsBigEndian) {
    const Bytes source = {77, 3, 2, 1};
    Bytes target(4);

    FadeToRGB(source.data(), B_NO_COLOR_SPACE, target.data(), 1, 1, FadeShare(1), {9, 9, 9, 255});

    EXPECT_EQ(target, (Bytes{1, 2, 3, 77}));
}

TEST(FadeToFrame, TakesTheAlphaOfTheFirstSource) {
    const Bytes first = {77, 0, 0, 0};
    const Bytes second = {255, 255, 255, 255};
    Bytes target(4);

    FadeToFrame(first.data(), B_RGBA32_BIG, second.data(), B_RGB32, target.data(), 1, 1,
                FadeShare(0.5));

    EXPECT_EQ(target, (Bytes{127, 127, 127, 77}));
}

TEST(FadeToFrame, WritesOnlyThePixelsOfTheArea) {
    const Bytes source(16, 200);
    Bytes target(16, 1);

    FadeToFrame(source.data(), B_RGB32, source.data(), B_RGB32, target.data(), 3, 1,
                FadeShare(0.5));
    FadeToFrame(source.data(), B_RGB32, source.data(), B_RGB32, target.data() + 12, 0, 5,
                FadeShare(0.5));
    FadeToFrame(source.data(), B_RGB32, source.data(), B_RGB32, target.data() + 12, 5, 0,
                FadeShare(0.5));

    EXPECT_EQ(Bytes(target.begin(), target.begin() + 12), Bytes(12, 200));
    EXPECT_EQ(Bytes(target.begin() + 12, target.end()), Bytes(4, 1));
}

}  // namespace

}  // namespace kirto::test
