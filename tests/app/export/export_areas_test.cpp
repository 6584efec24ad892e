// Exports in which each frame is written as a whole.
#include "app/export/export_fixture.h"
#include "document/animation_document.h"
#include "support/random_document.h"
#include "support/reference_gif_decoder.h"

namespace kirto::test {

namespace {

constexpr int32 kCanvasSide = 12;

// Frames of a few colors and of holes, of which a quarter changes from one to the next.
void AddHoles(ExportFixture* fixture, uint32 seed, int32 frames) {
    fixture->animation.width = kCanvasSide;
    fixture->animation.height = kCanvasSide;
    SeededChoices choices(seed);
    std::vector<uint32> pixels(kCanvasSide * kCanvasSide, 0xFF204060);
    for (int32 i = 0; i < frames; ++i) {
        for (int32 j = 0; j < 9; ++j)
            pixels[choices.Below(3 * kCanvasSide)] =
                choices.OneIn(3) ? 0 : 0xFF000000 | choices.Below(5) * 0x301020;
        fixture->Add(pixels, 4);
    }
}

std::vector<uint32> PixelsOfImage(const ReferenceImage& image) {
    std::vector<uint32> pixels;
    for (const int32 index : image.indices) {
        const bool visible = index != image.transparent;
        pixels.push_back(visible ? 0xFF000000 | image.table[static_cast<size_t>(index)] : 0);
    }
    return pixels;
}

void ExpectWholeFrames(const ExportFixture& fixture, uint32 seed) {
    const ReferenceGif gif = DecodeReferenceGif(fixture.bytes);
    ASSERT_TRUE(gif.complete);
    ASSERT_EQ(static_cast<int32>(gif.images.size()), fixture.animation.frames.Size());
    for (size_t i = 0; i < gif.images.size(); ++i) {
        const ReferenceImage& image = gif.images[i];
        EXPECT_EQ(std::tuple(image.x, image.y, image.width, image.height),
                  std::tuple(0, 0, kCanvasSide, kCanvasSide));
        const FramePointer frame = fixture.animation.frames.At(static_cast<int32>(i));
        EXPECT_EQ(PixelsOfImage(image), PixelsOf(*frame->bitmap)) << i << " of seed " << seed;
    }
}

// Of each frame of an animated PNG, its rectangle: width, height, left and top.
std::vector<std::array<uint32, 4>> RectsOf(const std::vector<uint8>& png) {
    const auto number = [&](size_t at) {
        return uint32{png[at]} << 24 | uint32{png[at + 1]} << 16 | uint32{png[at + 2]} << 8 |
               uint32{png[at + 3]};
    };
    std::vector<std::array<uint32, 4>> rects;
    for (size_t at = 8; at + 12 <= png.size(); at += 12 + number(at)) {
        if (std::string(png.begin() + static_cast<ptrdiff_t>(at) + 4,
                        png.begin() + static_cast<ptrdiff_t>(at) + 8) == "fcTL")
            rects.push_back({number(at + 12), number(at + 16), number(at + 20), number(at + 24)});
    }
    return rects;
}

ExportSettings WholeSettings(ExportFormat format) {
    ExportSettings settings;
    settings.format = format;
    settings.areas = FrameAreas::kWhole;
    return settings;
}

}  // namespace

TEST(ExportAreas, EachWholeImageOfAGifIsItsFrame) {
    for (uint32 seed = 1; seed <= 20; ++seed) {
        ExportFixture fixture;
        AddHoles(&fixture, seed, 6);
        ASSERT_EQ(fixture.Export(WholeSettings(ExportFormat::kGif)), ExportResult::kDone);
        ExpectWholeFrames(fixture, seed);
    }
}

TEST(ExportAreas, WholeImagesShowTheSameAsChangedOnes) {
    int32 larger = 0;
    for (uint32 seed = 1; seed <= 20; ++seed) {
        ExportFixture fixture;
        AddHoles(&fixture, seed, 6);
        ASSERT_EQ(fixture.Export({}), ExportResult::kDone);
        const size_t changed = fixture.bytes.size();
        const auto shown = ReadGif(fixture.bytes).Frames();
        ASSERT_EQ(fixture.Export(WholeSettings(ExportFormat::kGif)), ExportResult::kDone);
        EXPECT_EQ(ReadGif(fixture.bytes).Frames(), shown);
        EXPECT_GE(fixture.bytes.size(), changed);
        larger += fixture.bytes.size() > changed ? 1 : 0;
    }
    EXPECT_GT(larger, 0);
}

TEST(ExportAreas, ImagesThatWereReadAreMadeWholeAsWell) {
    ExportFixture fixture;
    AddHoles(&fixture, 1, 6);
    ASSERT_EQ(fixture.Export({}), ExportResult::kDone);
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_faithful = true;
    AnimationDocument read(prefs);
    GifLoad(BFile::OnMemory(fixture.bytes).get(), 0, read);
    fixture.animation = *read.Current();
    ASSERT_TRUE(fixture.animation.frames.At(0)->source);
    ASSERT_EQ(fixture.Export(WholeSettings(ExportFormat::kGif)), ExportResult::kDone);
    ExpectWholeFrames(fixture, 1);
}

TEST(ExportAreas, AWholeImageIsAsLargeAsTheCanvas) {
    ExportFixture fixture;
    AddHoles(&fixture, 1, 2);
    fixture.animation.width = 2 * kCanvasSide;
    ASSERT_EQ(fixture.Export(WholeSettings(ExportFormat::kGif)), ExportResult::kDone);
    for (const ReferenceImage& image : DecodeReferenceGif(fixture.bytes).images)
        EXPECT_EQ(image.width, 2 * kCanvasSide);
}

TEST(ExportAreas, WholeImagesOfManyColorsAreReducedEachByItself) {
    for (const bool one_table : {false, true}) {
        ExportFixture fixture;
        fixture.animation.width = fixture.animation.height = 30;
        SeededChoices choices(1);
        for (int32 i = 0; i < 3; ++i) {
            std::vector<uint32> pixels(900);
            for (uint32& pixel : pixels)
                pixel = choices.OneIn(20) ? 0 : 0xFF000000 | choices.Below(0x1000000);
            fixture.Add(pixels, 4);
        }
        ExportSettings settings = WholeSettings(ExportFormat::kGif);
        settings.one_table = one_table;
        settings.loss = 30;
        ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
        const ReferenceGif gif = DecodeReferenceGif(fixture.bytes);
        ASSERT_EQ(gif.images.size(), 3u);
        for (size_t i = 0; i < 3; ++i) {
            const auto meant =
                PixelsOf(*fixture.animation.frames.At(static_cast<int32>(i))->bitmap);
            const auto shown = PixelsOfImage(gif.images[i]);
            for (size_t pixel = 0; pixel < meant.size(); ++pixel)
                ASSERT_EQ(shown[pixel] == 0, meant[pixel] == 0) << i << ", " << pixel;
        }
    }
}

TEST(ExportAreas, WholeFramesOfAnAnimatedPngCoverTheCanvas) {
    for (uint32 seed = 1; seed <= 10; ++seed) {
        ExportFixture fixture;
        AddHoles(&fixture, seed, 6);
        ExportSettings settings = WholeSettings(ExportFormat::kApng);
        ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
        const auto rects = RectsOf(fixture.bytes);
        EXPECT_EQ(rects, (std::vector<std::array<uint32, 4>>(6, {kCanvasSide, kCanvasSide, 0, 0})));
        const ShownCanvases whole = fixture.Shown(ExportFormat::kApng);
        settings.areas = FrameAreas::kChanged;
        ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
        EXPECT_NE(RectsOf(fixture.bytes), rects);
        EXPECT_EQ(fixture.Shown(ExportFormat::kApng), whole);
    }
}

}  // namespace kirto::test
