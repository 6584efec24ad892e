// What is exported, read back.
#include "app/export/export_animation.h"

#include <limits>
#include <set>

#include "app/export/export_fixture.h"
#include "formats/faithful/pixel_tolerance.h"
#include "support/random_document.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

constexpr ExportFormat kExactFormats[] = {ExportFormat::kWebp, ExportFormat::kApng};

ExportSettings SettingsFor(ExportFormat format) {
    ExportSettings settings;
    settings.format = format;
    return settings;
}

// Frames of many colors that change from one to the next; opaque.
void AddSlopes(ExportFixture* fixture, int32 side, int32 frames) {
    fixture->animation.width = side;
    fixture->animation.height = side;
    for (int32 i = 0; i < frames; ++i) {
        std::vector<uint32> pixels;
        for (int32 y = 0; y < side; ++y) {
            for (int32 x = 0; x < side; ++x) {
                const auto red = static_cast<uint32>((x * 255 / side + 5 * i) % 256);
                const auto green = static_cast<uint32>(y * 255 / side);
                pixels.push_back(0xFF000040U | red << 16 | green << 8);
            }
        }
        fixture->Add(pixels, 4);
    }
}

// Frames of 216 colors in no order, half of whose pixels stay the same.
void AddNoise(ExportFixture* fixture, int32 side, int32 frames) {
    fixture->animation.width = side;
    fixture->animation.height = side;
    SeededChoices choices(1);
    std::vector<uint32> pixels(static_cast<size_t>(side) * static_cast<size_t>(side));
    for (int32 i = 0; i < frames; ++i) {
        for (uint32& pixel : pixels) {
            if (i > 0 && choices.OneIn(2)) continue;
            pixel = 0xFF000000;
            for (uint32 j = 0; j < 3; ++j)
                pixel |= 12 * choices.Below(6) << (8 * j);
        }
        fixture->Add(pixels, 4);
    }
}

size_t ColorsOf(const std::vector<uint32>& pixels) {
    return std::set<uint32>(pixels.begin(), pixels.end()).size();
}

}  // namespace

TEST(ExportAnimation, LosslessFormatsKeepEveryPixelAndPause) {
    for (uint32 seed = 1; seed <= 60; ++seed) {
        const AnimatedImageFile file = RandomAnimatedImageFile(seed, seed % 2 == 0);
        for (const ExportFormat format : kExactFormats) {
            ExportFixture fixture;
            fixture.Take(file);
            const ShownCanvases meant = ShownOf(file);
            // A WebP of one picture does not move, and is read as an image.
            if (format == ExportFormat::kWebp && meant.size() == 1) continue;
            ASSERT_EQ(fixture.Export(SettingsFor(format)), ExportResult::kDone);
            ASSERT_EQ(fixture.Shown(format), meant) << NameOf(format) << " of seed " << seed;
        }
    }
}

TEST(ExportAnimation, PicturesOfManyColorsComeBackAsTheyWere) {
    for (const bool opaque : {true, false}) {
        for (const ExportFormat format : kExactFormats) {
            ExportFixture fixture;
            AddSlopes(&fixture, 40, 3);
            ShownCanvases meant;
            if (!opaque) fixture.Add(std::vector<uint32>(1600, 0x40102030), 4);
            for (const FramePointer& frame : fixture.animation.frames)
                meant.push_back({PixelsOf(*frame->bitmap), 40.0});
            ASSERT_EQ(fixture.Export(SettingsFor(format)), ExportResult::kDone);
            EXPECT_EQ(fixture.Shown(format), meant) << NameOf(format) << opaque;
        }
    }
}

TEST(ExportAnimation, TellsHowOftenItIsPlayed) {
    struct Case {
        bool use_loop;
        int32 loop_count;
        int32 plays;
    };
    for (const Case& it : {Case{true, 0, 0}, {true, 3, 4}, {false, 3, 1}}) {
        for (const ExportFormat format : kExactFormats) {
            ExportFixture fixture;
            AddSlopes(&fixture, 4, 2);
            fixture.animation.use_loop = it.use_loop;
            fixture.animation.loop_count = it.loop_count;
            ASSERT_EQ(fixture.Export(SettingsFor(format)), ExportResult::kDone);
            AnimatedImageHeader header;
            fixture.Shown(format, &header);
            EXPECT_EQ(header.plays, it.plays) << NameOf(format);
        }
    }
}

TEST(ExportAnimation, PausesOfPartsOfAMillisecondAddUp) {
    ExportFixture fixture;
    fixture.in_seconds = true;
    AddSlopes(&fixture, 4, 30);
    for (int32 i = 0; i < 30; ++i)
        EditFrame(fixture.animation, i, [](Frame& frame) { frame.pause_length = 1 / 30.0; });
    for (const ExportFormat format : kExactFormats) {
        ASSERT_EQ(fixture.Export(SettingsFor(format)), ExportResult::kDone);
        double sum = 0;
        for (const ShownCanvas& canvas : fixture.Shown(format))
            sum += canvas.milliseconds;
        EXPECT_EQ(sum, 1000) << NameOf(format);
    }
}

TEST(ExportAnimation, APauseLongerThanAMinuteIsKept) {
    ExportFixture fixture;
    AddSlopes(&fixture, 4, 2);
    EditFrame(fixture.animation, 0, [](Frame& frame) { frame.pause_length = 10000; });
    for (const ExportFormat format : kExactFormats) {
        ASSERT_EQ(fixture.Export(SettingsFor(format)), ExportResult::kDone);
        EXPECT_EQ(fixture.Shown(format)[0].milliseconds, 100000) << NameOf(format);
    }
}

TEST(ExportAnimation, FramesOffTheCanvasAreCutAtItsEdge) {
    ExportFixture fixture;
    AddSlopes(&fixture, 3, 2);
    const uint32 below = PixelsOf(*fixture.animation.frames.At(0)->bitmap)[8];
    EditFrame(fixture.animation, 0, [](Frame& frame) { frame.x_offset = frame.y_offset = -2; });
    EditFrame(fixture.animation, 1, [](Frame& frame) { frame.x_offset = 9; });
    ASSERT_EQ(fixture.Export(SettingsFor(ExportFormat::kApng)), ExportResult::kDone);
    const ShownCanvases shown = fixture.Shown(ExportFormat::kApng);
    EXPECT_EQ(shown[0].pixels, (std::vector<uint32>{below, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(shown[1].pixels, std::vector<uint32>(9));
}

TEST(ExportAnimation, AGifHasNoMoreColorsThanAllowed) {
    for (const int32 colors : {2, 3, 16, 255}) {
        ExportFixture fixture;
        AddSlopes(&fixture, 40, 1);
        ExportSettings settings;
        settings.colors = colors;
        ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
        const size_t found = ColorsOf(ReadGif(fixture.bytes).Frames()[0]);
        EXPECT_LE(found, static_cast<size_t>(colors));
        EXPECT_GT(found, static_cast<size_t>(colors) / 2);
    }
}

// Frames of few enough colors to be written as they are.
TEST(ExportAnimation, LossKeepsPixelsNearAndMakesTheFileSmaller) {
    ExportFixture fixture;
    AddNoise(&fixture, 48, 4);
    size_t last = std::numeric_limits<size_t>::max();
    for (const int32 loss : {0, 40, 100, 200}) {
        ExportSettings settings;
        settings.loss = loss;
        ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
        const auto shown = ReadGif(fixture.bytes).Frames();
        ASSERT_EQ(shown.size(), 4u);
        for (size_t i = 0; i < shown.size(); ++i) {
            const auto meant =
                PixelsOf(*fixture.animation.frames.At(static_cast<int32>(i))->bitmap);
            for (size_t pixel = 0; pixel < meant.size(); ++pixel)
                ASSERT_LE(SquareDistance(meant[pixel], shown[i][pixel]), FarthestOf(loss));
        }
        EXPECT_LT(fixture.bytes.size(), last) << loss;
        last = fixture.bytes.size();
    }
}

TEST(ExportAnimation, MixesColorsAsStronglyAsIsAskedFor) {
    ExportFixture fixture;
    AddSlopes(&fixture, 40, 2);
    for (const AdaptiveDither dither :
         {AdaptiveDither::kErrorDiffusion, AdaptiveDither::kOrdered}) {
        ExportSettings settings;
        settings.colors = 8;
        std::vector<std::vector<uint8>> files;
        ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
        files.push_back(fixture.bytes);
        settings.dither = dither;
        for (const int32 strength : {0, 50, 100}) {
            settings.strength = strength;
            ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
            files.push_back(fixture.bytes);
        }
        EXPECT_EQ(files[0], files[1]);
        EXPECT_NE(files[1], files[2]);
        EXPECT_NE(files[2], files[3]);
    }
}

TEST(ExportAnimation, OneTableIsSharedByAllFrames) {
    ExportFixture fixture;
    AddSlopes(&fixture, 40, 4);
    ExportSettings settings;
    settings.colors = 32;
    settings.one_table = true;
    ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
    std::vector<uint32> all;
    for (const auto& frame : ReadGif(fixture.bytes).Frames())
        all.insert(all.end(), frame.begin(), frame.end());
    EXPECT_LE(ColorsOf(all), 32u);
}

TEST(ExportAnimation, TheMatteLiesBelowSoftEdgesOfAGif) {
    ExportFixture fixture;
    fixture.animation.width = fixture.animation.height = 1;
    fixture.Add({0x80FF0000}, 4);
    ExportSettings settings;
    settings.matte = {0, 0, 255, 255};
    ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
    EXPECT_EQ(ReadGif(fixture.bytes).Frames()[0][0], 0xFF80007F);
}

TEST(ExportAnimation, LowerQualityMakesASmallerWebp) {
    ExportFixture fixture;
    AddSlopes(&fixture, 60, 3);
    ExportSettings settings = SettingsFor(ExportFormat::kWebp);
    std::vector<size_t> sizes;
    for (const int32 quality : {90, 50, 5}) {
        settings.quality = quality;
        ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
        sizes.push_back(fixture.bytes.size());
        double shown = 0;
        for (const ShownCanvas& canvas : fixture.Shown(settings.format))
            shown += canvas.milliseconds;
        EXPECT_EQ(shown, 120);
    }
    EXPECT_GT(sizes[0], sizes[1]);
    EXPECT_GT(sizes[1], sizes[2]);
}

TEST(ExportAnimation, EveryNthFrameKeepsTheTimeOfThoseLeftOut) {
    ExportFixture fixture;
    AddSlopes(&fixture, 8, 7);
    ExportSettings settings = SettingsFor(ExportFormat::kApng);
    settings.every = 3;
    ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
    const ShownCanvases shown = fixture.Shown(settings.format);
    ASSERT_EQ(shown.size(), 3u);
    for (const int32 i : {0, 1, 2}) {
        const auto at = static_cast<size_t>(i);
        EXPECT_EQ(shown[at].pixels, PixelsOf(*fixture.animation.frames.At(3 * i)->bitmap));
        EXPECT_EQ(shown[at].milliseconds, i < 2 ? 120 : 40);
    }
}

TEST(ExportAnimation, ScalesTheCanvasAndItsFrames) {
    ExportFixture fixture;
    AddSlopes(&fixture, 40, 2);
    for (const ExportFormat format : kExactFormats) {
        ExportSettings settings = SettingsFor(format);
        settings.scale = 50;
        ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
        AnimatedImageHeader header;
        EXPECT_EQ(fixture.Shown(format, &header).size(), 2u);
        EXPECT_EQ(header.width, 20);
        EXPECT_EQ(header.height, 20);
    }
}

TEST(ExportAnimation, MakesTheSameBytesWithAnyNumberOfThreads) {
    for (const ExportFormat format :
         {ExportFormat::kGif, ExportFormat::kWebp, ExportFormat::kApng}) {
        ExportFixture fixture;
        AddSlopes(&fixture, 30, 8);
        ExportSettings settings = SettingsFor(format);
        settings.scale = 70;
        settings.colors = 50;
        settings.loss = 30;
        std::vector<uint8> first;
        for (const int32 count : kThreadCounts) {
            const ScopedThreads threads(count);
            ASSERT_EQ(fixture.Export(settings), ExportResult::kDone);
            if (first.empty()) first = fixture.bytes;
            EXPECT_EQ(fixture.bytes, first) << NameOf(format) << ", " << count;
        }
    }
}

TEST(ExportAnimation, StopsWhenItIsAskedTo) {
    for (const ExportFormat format :
         {ExportFormat::kGif, ExportFormat::kWebp, ExportFormat::kApng}) {
        ExportFixture fixture;
        AddSlopes(&fixture, 8, 3);
        fixture.work.StopAll();
        EXPECT_EQ(fixture.Export(SettingsFor(format)), ExportResult::kStopped) << NameOf(format);
        EXPECT_TRUE(fixture.bytes.empty());
    }
}

TEST(ExportAnimation, NamesWhatCanNotBeExported) {
    ExportFixture empty;
    EXPECT_EQ(empty.Export(SettingsFor(ExportFormat::kApng)), ExportResult::kNoFrames);

    ExportFixture large;
    AddSlopes(&large, 2, 1);
    large.animation.width = 16384;
    EXPECT_EQ(large.Export(SettingsFor(ExportFormat::kWebp)), ExportResult::kTooLarge);
    EXPECT_EQ(SentenceOf(ExportResult::kTooLarge, ExportFormat::kWebp),
              "The animation is too large for a WebP file.");
}

}  // namespace kirto::test
