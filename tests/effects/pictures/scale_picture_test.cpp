#include "effects/pictures/scale_picture.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "support/random_document.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Pixels = std::vector<uint32>;

double Lanczos(double x) {
    if (std::abs(x) >= 3) return 0;
    if (x == 0) return 1;
    const double angle = std::numbers::pi * x;
    return 3 * std::sin(angle) * std::sin(angle / 3) / (angle * angle);
}

double Triangle(double x) {
    return std::max(0.0, 1 - std::abs(x));
}

double Light(double component) {
    const double v = component / 255;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double Component(double light) {
    const double v = std::clamp(light, 0.0, 1.0);
    return 255 * (v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1 / 2.4) - 0.055);
}

// The weight of each of the source's pixels in target pixel i, by the definition of the filters.
std::vector<double> WeightsOf(const AxisPlan& plan, ScaleFilter filter, int32 i) {
    const double middle =
        std::clamp(plan.start + (i + 0.5) * plan.step, 0.0, static_cast<double>(plan.source));
    const double spread = std::max(1.0, plan.step);
    std::vector<double> weights;
    double sum = 0;
    for (int32 s = 0; s < plan.source; ++s) {
        const double x = (s + 0.5 - middle) / spread;
        weights.push_back(filter == ScaleFilter::kLanczos ? Lanczos(x) : Triangle(x));
        sum += weights.back();
    }
    for (double& weight : weights)
        weight /= sum;
    return weights;
}

// A pixel of the scaled picture as four components, 0 to 255, unrounded; by the definition.
std::array<double, 4> Meant(const Pixels& pixels, const std::vector<double>& across,
                            const std::vector<double>& down) {
    std::array<double, 4> sum{};
    for (size_t sy = 0; sy < down.size(); ++sy) {
        for (size_t sx = 0; sx < across.size(); ++sx) {
            const uint32 pixel = pixels[sy * across.size() + sx];
            const double weight = down[sy] * across[sx];
            const double alpha = (pixel >> 24) / 255.0;
            for (size_t k = 0; k < 3; ++k)
                sum[k] += weight * alpha * Light(pixel >> (8 * k) & 255);
            sum[3] += weight * alpha;
        }
    }
    if (sum[3] * 255 < 0.5) return {};
    for (size_t k = 0; k < 3; ++k)
        sum[k] = Component(sum[k] / sum[3]);
    sum[3] = std::min(sum[3], 1.0) * 255;
    return sum;
}

// Each component within so much of what is meant.
void ExpectNearMeant(const Pixels& scaled, const Pixels& pixels, const ScalePlan& plan) {
    // Half a level of rounding, and what the steps of light make of the darkest.
    constexpr double kWithin = 0.53;
    std::vector<std::vector<double>> across;
    for (int32 x = 0; x < plan.across.target; ++x)
        across.push_back(WeightsOf(plan.across, plan.filter, x));
    for (int32 y = 0; y < plan.down.target; ++y) {
        const std::vector<double> down = WeightsOf(plan.down, plan.filter, y);
        for (int32 x = 0; x < plan.across.target; ++x) {
            const auto meant = Meant(pixels, across[static_cast<size_t>(x)], down);
            const uint32 pixel = scaled[static_cast<size_t>(y * plan.across.target + x)];
            for (size_t k = 0; k < 4; ++k) {
                ASSERT_NEAR(pixel >> (8 * k) & 255, meant[k], kWithin)
                    << x << ',' << y << " component " << k;
            }
        }
    }
}

Pixels AnyPixels(ChoiceSource& choices, int32 count) {
    Pixels pixels(static_cast<size_t>(count));
    for (uint32& pixel : pixels) {
        pixel = choices.Below(1u << 24) | 0xFF000000;
        if (choices.OneIn(4)) pixel = choices.Below(1u << 31) * 2;
        if (choices.OneIn(8)) pixel &= 0xFFFFFF;
    }
    return pixels;
}

Pixels Scaled(const Picture& picture, const ScalePlan& plan) {
    const Work work;
    const auto scaled = ScalePicture(picture, plan, nullptr, work);
    EXPECT_TRUE(scaled);
    return scaled ? PixelsOf(*scaled) : Pixels();
}

TEST(ScalePicture, IsWithinRoundingOfTheDefinition) {
    SeededChoices choices(1);
    for (int32 round = 0; round < 80; ++round) {
        const int32 width = choices.Between(1, 30);
        const int32 height = choices.Between(1, 30);
        const Pixels pixels = AnyPixels(choices, width * height);
        const auto filter = choices.OneIn(2) ? ScaleFilter::kLanczos : ScaleFilter::kBilinear;
        const ScalePlan plan =
            ScaleTo(width, height, choices.Between(1, 40), choices.Between(1, 40), filter);
        ExpectNearMeant(Scaled(*FramePictureOf(width, height, pixels, B_RGBA32), plan), pixels,
                        plan);
    }
}

TEST(ScalePicture, TakesPlansThatBeginElsewhereAndReachBeyondThePicture) {
    SeededChoices choices(2);
    for (int32 round = 0; round < 60; ++round) {
        const int32 width = choices.Between(1, 12);
        const int32 height = choices.Between(1, 12);
        const Pixels pixels = AnyPixels(choices, width * height);
        ScalePlan plan;
        plan.filter = choices.OneIn(2) ? ScaleFilter::kLanczos : ScaleFilter::kBilinear;
        plan.across = {choices.Between(-40, 40) / 10.0, choices.Between(1, 40) / 10.0, width,
                       choices.Between(1, 30)};
        plan.down = {choices.Between(-40, 40) / 10.0, choices.Between(1, 40) / 10.0, height,
                     choices.Between(1, 30)};
        ExpectNearMeant(Scaled(*FramePictureOf(width, height, pixels, B_RGBA32), plan), pixels,
                        plan);
    }
}

TEST(ScalePicture, LeavesAPictureOfTheSameSizeAsItIs) {
    SeededChoices choices(3);
    Pixels pixels = AnyPixels(choices, 17 * 9);
    for (uint32& pixel : pixels)
        if (pixel >> 24 == 0) pixel = 0;
    for (const ScaleFilter filter :
         {ScaleFilter::kNearest, ScaleFilter::kBilinear, ScaleFilter::kLanczos}) {
        EXPECT_EQ(Scaled(*FramePictureOf(17, 9, pixels, B_RGBA32), ScaleTo(17, 9, 17, 9, filter)),
                  pixels);
    }
}

TEST(ScalePicture, MixesLightNotComponents) {
    const auto picture = FramePictureOf(2, 1, {0xFF000000, 0xFFFFFFFF});
    EXPECT_EQ(Scaled(*picture, ScaleTo(2, 1, 1, 1, ScaleFilter::kBilinear)), Pixels{0xFFBCBCBC});
}

TEST(ScalePicture, TakesNoColorFromTransparentPixels) {
    const auto picture = FramePictureOf(2, 1, {0x0000FF00, 0xFF204060}, B_RGBA32);
    EXPECT_EQ(Scaled(*picture, ScaleTo(2, 1, 1, 1, ScaleFilter::kBilinear)), Pixels{0x80204060});
}

TEST(ScalePicture, TakesTheNearestPixelWithItsIndex) {
    const auto picture = FramePictureOf(3, 2, {1, 2, 3, 4, 5, 6});
    const auto scaled =
        ScalePicture(*picture, ScaleTo(3, 2, 6, 1, ScaleFilter::kNearest), nullptr, Work());
    EXPECT_EQ(PixelsOf(*scaled), (Pixels{4, 4, 5, 5, 6, 6}));
    EXPECT_NE(scaled->AllStrips().front()->Indices(), nullptr);
    EXPECT_EQ(Scaled(*picture, ScaleTo(3, 2, 1, 2, ScaleFilter::kNearest)), (Pixels{2, 5}));
}

TEST(ScalePicture, GivesEverySpaceTheOrderOfALittleEndianOne) {
    const Pixels pixels = {0xFF102030, 0xFF405060};
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        const auto picture = FramePictureOf(2, 1, pixels, space);
        const Work work;
        const auto scaled =
            ScalePicture(*picture, ScaleTo(2, 1, 2, 1, ScaleFilter::kLanczos), nullptr, work);
        EXPECT_TRUE(IsLittleEndian(scaled->ColorSpace()));
        EXPECT_EQ(PixelsOf(*scaled), pixels);
    }
}

TEST(ScalePicture, GivesNothingWhenMemoryIsShort) {
    SeededChoices choices(4);
    const auto picture = FramePictureOf(20, 20, AnyPixels(choices, 400), B_RGBA32);
    const Work work;
    for (const ScaleFilter filter : {ScaleFilter::kNearest, ScaleFilter::kLanczos}) {
        const ScalePlan plan = ScaleTo(20, 20, 30, 30, filter);
        const auto budget = std::make_shared<PixelBudget>(1000);
        EXPECT_EQ(ScalePicture(*picture, plan, budget, work), nullptr);
        EXPECT_EQ(budget->Used(), 0u);
        int64 failing = 1;
        for (bool done = false; !done; ++failing) {
            const AllocationFault fault(failing);
            done = ScalePicture(*picture, plan, nullptr, work) != nullptr;
        }
        EXPECT_GT(failing, 2);
    }
}

TEST(ScalePicture, GivesNothingWhenTheWorkIsStopped) {
    Work work;
    work.StopAll();
    const auto picture = FramePictureOf(1, 1, {1});
    for (const ScaleFilter filter : {ScaleFilter::kNearest, ScaleFilter::kLanczos})
        EXPECT_EQ(ScalePicture(*picture, ScaleTo(1, 1, 9, 9, filter), nullptr, work), nullptr);
}

}  // namespace

}  // namespace kirto::test
