#include "effects/pictures/weigh_pixels.h"

#include <gtest/gtest.h>

#include "support/random_document.h"

namespace kirto::test {

namespace {

using Floats = std::vector<float>;

Floats AnyNumbers(ChoiceSource& choices, int32 pixels) {
    Floats numbers;
    for (int32 i = 0; i < pixels * 4; ++i)
        numbers.push_back(static_cast<float>(choices.Between(-1000, 60000)) / 65535);
    return numbers;
}

TEST(PixelSums, AreTheSameWithWhateverInstructions) {
    SeededChoices choices(1);
    for (int32 round = 0; round < 300; ++round) {
        const int32 source = choices.Between(1, 50);
        const int32 target = choices.Between(1, 50);
        const auto filter = choices.OneIn(2) ? ScaleFilter::kLanczos : ScaleFilter::kBilinear;
        const FilterAxis axis({0, static_cast<double>(source) / target, source, target}, filter);
        const Floats row = AnyNumbers(choices, source);
        const size_t size = static_cast<size_t>(target) * 4;
        Floats plain(size);
        Floats fastest(size);
        PlainPixelSums().across(row.data(), axis, plain.data());
        FastestPixelSums().across(row.data(), axis, fastest.data());
        ASSERT_EQ(plain, fastest);

        std::vector<Floats> rows;
        std::vector<const float*> places;
        for (int32 i = choices.Between(1, 12); i > 0; --i)
            rows.push_back(AnyNumbers(choices, target));
        for (const Floats& each : rows)
            places.push_back(each.data());
        const Floats weights = AnyNumbers(choices, 3);
        PlainPixelSums().rows(places, weights.data(), plain);
        FastestPixelSums().rows(places, weights.data(), fastest);
        ASSERT_EQ(plain, fastest);
    }
}

}  // namespace

}  // namespace kirto::test
