// The files that fuzzing starts from. Their first byte tells the harness how to load: 1 at full
// size, 0 at the images' own size.
#include <filesystem>
#include <gmock/gmock.h>
#include <map>

#include "formats/gif/gif_load_fixture.h"
#include "support/source_folder.h"

namespace kirto::test {
namespace {

using Seeds = std::map<std::string, std::vector<uint8>>;

constexpr int32 kEnd = 5;  // of the code size 2; clear is 4

std::vector<uint8> FullSize(const GifBuilder& gif) {
    std::vector<uint8> seed = gif;
    seed.insert(seed.begin(), 1);
    return seed;
}

std::vector<uint8> OwnSize(const GifBuilder& gif) {
    std::vector<uint8> seed = gif;
    seed.insert(seed.begin(), 0);
    return seed;
}

// Every kind of block, and images of every kind.
GifBuilder Everything() {
    GifBuilder::Image local = ImageAt(2, 1, 3, 2, {0, 1, 2, 3, 2, 1});
    local.local_table = kFourColorsReversed;
    local.interlaced = true;
    GifBuilder::Image wide = ImageOf(2, 2, {3, 2, 1, 200});
    wide.min_code_size = 8;
    return FourColorGif(4, 3, 2)
        .Loop(3)
        .Comment("a comment")
        .Control(2, 10, 1)
        .Add(ImageOf(4, 3, {0, 1, 2, 3, 3, 2, 1, 0, 0, 1, 2, 3}))
        .Bytes({0x21, 0x01, 2, 0xAA, 0xBB, 0})
        .Control(1, 0)
        .Add(local)
        .Bytes({0, 0x42, 1, 0xCC, 0})
        .Add(wide)
        .Trailer();
}

GifBuilder Disposals() {
    GifBuilder gif = FourColorGif(3, 2, 3);
    for (int32 disposal = 0; disposal < 8; ++disposal)
        gif.Control(disposal, disposal * 5).Add(ImageAt(disposal % 3, 0, 1, 2, {1, 2}));
    return gif.Trailer();
}

GifBuilder InterlacedHeights() {
    GifBuilder gif = FourColorGif(2, 9);
    for (int32 height = 1; height <= 9; ++height) {
        GifBuilder::Image image = ImageOf(2, height, std::vector<uint8>(18, 1));
        image.interlaced = true;
        gif.Add(image);
    }
    return gif.Trailer();
}

// Codes of every size up to 12 bits, and some with the full table.
GifBuilder GrowingCodes() {
    std::vector<int32> codes = {4};
    for (int32 i = 0; i < 4200; ++i)
        codes.push_back(i * 7 % 4);
    codes.push_back(4095);
    codes.push_back(kEnd);
    return FourColorGif(64, 64).AddCodes(ImageOf(64, 64, {}), codes).Trailer();
}

GifBuilder OfCodes(const std::vector<int32>& codes) {
    return FourColorGif(4, 4).AddCodes(ImageOf(4, 4, {}), codes).Trailer();
}

GifBuilder OfCodeSize(int32 size) {
    GifBuilder::Image image = ImageOf(4, 1, {});
    image.min_code_size = size;
    const int32 clear = 1 << size;
    return FourColorGif(4, 1)
        .AddCodes(image, {clear, 1, 2, clear - 1, clear + 2, clear + 1})
        .Trailer();
}

Seeds AllSeeds() {
    const std::vector<uint8> everything = OwnSize(Everything());
    return {
        {"full_size_every_kind_of_block", FullSize(Everything())},
        {"own_size_every_kind_of_block", everything},
        {"own_size_cut_in_the_last_image", {everything.begin(), everything.end() - 8}},
        {"full_size_every_disposal", FullSize(Disposals())},
        {"full_size_interlaced_heights_1_to_9", FullSize(InterlacedHeights())},
        {"own_size_codes_of_up_to_12_bits", OwnSize(GrowingCodes())},
        {"own_size_codes_that_complete_themselves", OwnSize(OfCodes({4, 0, 6, 7, 8, 9, kEnd}))},
        {"own_size_code_beyond_the_table", OwnSize(OfCodes({4, 1, 7, 7, kEnd}))},
        {"own_size_clear_codes_in_a_row", OwnSize(OfCodes({4, 4, 4, 1, 4, 2, kEnd}))},
        {"own_size_clear_code_and_end", OwnSize(OfCodes({4, 1, 4, kEnd}))},
        {"own_size_code_size_9", OwnSize(OfCodeSize(9))},
        {"own_size_code_size_11", OwnSize(OfCodeSize(11))},
        {"full_size_overhanging_image",
         FullSize(FourColorGif(3, 3).Add(ImageAt(2, 2, 2, 2, {1, 2, 3, 0})).Trailer())},
        {"full_size_screen_of_65535",
         FullSize(FourColorGif(65535, 65535).Add(ImageOf(1, 1, {1})).Trailer())},
        {"own_size_no_table", OwnSize(GifBuilder(1, 1).Add(GifBuilder::Image()).Trailer())},
    };
}

std::filesystem::path SeedPath(const std::string& name) {
    return SourceFolder() / "fuzz/seeds/gif_load" / name;
}

TEST(GifLoadSeeds, AreTheFilesOfTheSeedFolder) {
    for (const auto& [name, bytes] : AllSeeds())
        EXPECT_EQ(ReadBytes(SeedPath(name)), bytes) << name;
}

// Writes them anew after a change above: --gtest_also_run_disabled_tests.
TEST(GifLoadSeeds, DISABLED_AreWritten) {
    for (const auto& [name, bytes] : AllSeeds())
        WriteBytes(SeedPath(name), bytes);
}

}  // namespace
}  // namespace kirto::test
