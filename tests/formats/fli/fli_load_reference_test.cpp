// Holds FliLoad against the plain decoder on random animations.
#include "formats/fli/fli_load_fixture.h"
#include "formats/fli/random_flic.h"
#include "formats/fli/reference_flic.h"

namespace kirto::test {
namespace {

FlicPalette EntriesOf(const Palette& palette) {
    FlicPalette entries{};
    for (size_t i = 0; i < entries.size(); ++i) {
        const rgb_color& color = palette.colors[i];
        entries[i] = static_cast<uint32>(color.red << 16 | color.green << 8 | color.blue);
    }
    return entries;
}

TEST_F(FliLoadTest, DrawsRandomAnimationsLikeThePlainDecoder) {
    for (uint32 seed = 0; seed < 400; ++seed) {
        document_.Reset();
        const FlicPalette palette = EntriesOf(*document_.Current()->palette);
        const FliBuilder fli = RandomFlic(seed).Make();

        const Load load = LoadFile(fli);

        const std::vector<FlicFrame> expected = DecodeFlic(fli.Data(), kKirtoDialect, palette);
        ASSERT_FALSE(load.failed) << "seed " << seed;
        ASSERT_EQ(static_cast<size_t>(document_.FrameCount()), expected.size()) << "seed " << seed;
        for (size_t i = 0; i < expected.size(); ++i) {
            Pixels pixels = PixelsAt(static_cast<int32>(i));
            for (uint32& pixel : pixels) {
                ASSERT_EQ(pixel >> 24, 255u) << "seed " << seed << " frame " << i;
                pixel &= 0xFFFFFF;
            }
            ASSERT_EQ(pixels, expected[i].colors) << "seed " << seed << " frame " << i;
        }
    }
}

}  // namespace
}  // namespace kirto::test
