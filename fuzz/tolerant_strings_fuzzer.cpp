// Palettes, indices and tolerances spelled by arbitrary bytes: pixels get indices of colors that
// are near enough, transparent ones stay so, and what is found can be encoded.
#include <algorithm>
#include <cstdlib>

#include "formats/faithful/choice_lzw_encoder.h"
#include "formats/faithful/pixel_tolerance.h"
#include "formats/faithful/tolerant_strings.h"
#include "support/random_document.h"

using kirto::test::ByteChoices;

namespace {

constexpr int32 kMostPixels = 3000;

struct Input {
    explicit Input(ByteChoices& choices) {
        bits = choices.Between(2, 8);
        const int32 colors = choices.Between(1, 1 << bits);
        for (int32 i = 0; i < colors; ++i)
            keys.push_back(choices.Below(1 << 24));
        transparent = choices.OneIn(2) ? choices.Between(0, (1 << bits) - 1) : -1;
        tolerance = choices.Below(choices.OneIn(4) ? 200000 : 2000);
        while (static_cast<int32>(indices.size()) < kMostPixels && !choices.UsedUp()) {
            const auto index = static_cast<uint8>(choices.Below(static_cast<uint32>(colors)));
            const int32 run = choices.OneIn(4) ? choices.Between(1, 40) : 1;
            const uint8 skips = transparent >= 0 && choices.OneIn(3) ? 1 : 0;
            indices.insert(indices.end(), static_cast<size_t>(run), index);
            skippable.insert(skippable.end(), static_cast<size_t>(run), skips);
        }
    }

    int32 bits = 2;
    std::vector<uint32> keys;
    int32 transparent = -1;
    int64 tolerance = 0;
    std::vector<uint8> indices;
    std::vector<uint8> skippable;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ByteChoices choices(data, size);
    const Input input(choices);
    const kirto::Work work;
    kirto::ChoiceImage image;
    image.indices = input.indices;
    if (input.transparent >= 0) image.skippable = input.skippable;
    image.transparent = static_cast<uint8>(std::max(input.transparent, 0));
    image.min_code_size = input.bits;
    kirto::TolerantStrings strings(input.keys, input.transparent, input.tolerance, work);
    const std::vector<uint8> found = strings.Find(image);
    if (found.size() != input.indices.size()) std::abort();
    for (size_t i = 0; i < found.size(); ++i) {
        if (found[i] == input.indices[i]) continue;
        if (found[i] >= input.keys.size() || found[i] == input.transparent) std::abort();
        if (input.indices[i] == input.transparent) std::abort();
        const int64 distance =
            kirto::SquareDistance(input.keys[found[i]], input.keys[input.indices[i]]);
        if (distance > input.tolerance) std::abort();
    }
    image.indices = found;
    kirto::ChoiceLzwEncoder encoder(work);
    encoder.Encode(image, 0, {});
    if (!encoder.Complete()) std::abort();
    return 0;
}
