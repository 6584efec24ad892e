#include "app/open_animation.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "support/animated_image_file.h"
#include "support/fli_builder.h"
#include "support/gif_builder.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr const char* kOutOfMemoryLine = "WARNING [] Out of memory. | OK";
constexpr const char* kDamaged =
    "WARNING [] The animation can't be opened because it was corrupted or unreadable. | Salvage | "
    "OK";
constexpr int32 kSalvage = 0;
constexpr int32 kOk = 1;

const std::vector<uint32> kBlackAndWhite = {0x000000, 0xFFFFFF};

GifBuilder::Image Pixel(const std::vector<uint32>& local_table = {}) {
    GifBuilder::Image image;
    image.indices = {1};
    image.local_table = local_table;
    image.min_code_size = 2;
    return image;
}

// A GIF of one-pixel images with these delays.
GifBuilder GifWithPauses(const std::vector<int32>& pauses) {
    GifBuilder gif(1, 1, kBlackAndWhite);
    for (const int32 pause : pauses)
        gif.Control(0, pause).Add(Pixel());
    return gif.Trailer();
}

bool OpenGifBytes(const std::vector<uint8>& bytes, AnimationDocument& document,
                  int32 position = 0) {
    return OpenGif(BFile::OnMemory(bytes).get(), position, document);
}

bool OpenFliBytes(const std::vector<uint8>& bytes, AnimationDocument& document,
                  int32 position = 0) {
    return OpenFli(BFile::OnMemory(bytes).get(), position, document);
}

// Answers every alert as Enter does.
class DefaultButtonPresser : public AlertPresenter {
  public:
    ~DefaultButtonPresser() override { InstallAlertPresenter(previous_); }
    int32 Present(const BAlert& alert) override { return alert.DefaultButton(); }

  private:
    AlertPresenter* previous_ = InstallAlertPresenter(this);
};

std::string Pause(bool used, double length) {
    return Format("%s%g", used ? "" : "off ", length);
}

// The animation's pause and those of its frames: "10: off 0, off 0, 20".
std::string Pauses(const AnimationDocument& document) {
    std::string text = Pause(document.Current()->use_pause, document.Current()->pause_length) + ":";
    const char* separator = " ";
    for (const FramePointer& frame : document.Current()->frames) {
        text += separator + Pause(frame->use_pause, frame->pause_length);
        separator = ", ";
    }
    return text;
}

// What opening a GIF of these pauses makes of them.
std::string PausesOf(const std::vector<int32>& pauses, bool in_seconds = false) {
    DocumentFixture fixture;
    fixture.prefs.global_pauseinseconds = in_seconds;
    EXPECT_TRUE(OpenGifBytes(GifWithPauses(pauses), fixture.document));
    return Pauses(fixture.document);
}

std::vector<uint32> TableOf(const ColorTable& colors, size_t count = 256) {
    std::vector<uint32> table;
    for (size_t i = 0; i < count; ++i) {
        table.push_back(ColorKey(colors[i].red, colors[i].green, colors[i].blue));
    }
    return table;
}

// A one-pixel image with a full local table.
GifBuilder::Image PixelOf(const ColorTable& colors) {
    GifBuilder::Image image = Pixel(TableOf(colors));
    image.min_code_size = 8;
    return image;
}

int32 KindOfGlobalTable(const ColorTable& colors) {
    DocumentFixture fixture;
    GifBuilder gif(1, 1, TableOf(colors));
    EXPECT_TRUE(OpenGifBytes(gif.Trailer(), fixture.document));
    EXPECT_EQ(fixture.document.Current()->palette->size, 256);
    return fixture.document.Current()->palette->mode;
}

}  // namespace

TEST(ClassifyAnimation, KnowsTheThreeMimeTypes) {
    EXPECT_EQ(ClassifyAnimation("clip", "image/gif"), AnimationType::kGif);
    EXPECT_EQ(ClassifyAnimation("clip", "video/x-fli"), AnimationType::kFli);
    EXPECT_EQ(ClassifyAnimation("clip", "video/x-flc"), AnimationType::kFli);
    EXPECT_EQ(ClassifyAnimation("clip", "image/gif2"), AnimationType::kNone);
    EXPECT_EQ(ClassifyAnimation("clip", "IMAGE/GIF"), AnimationType::kNone);
    EXPECT_EQ(ClassifyAnimation("clip", ""), AnimationType::kNone);
}

TEST(ClassifyAnimation, FindsTheNamePartsAnywhereInTheName) {
    for (const char* name : {"a.gif", "a.GIF", "clip.gif.png", ".gift"}) {
        EXPECT_EQ(ClassifyAnimation(name, ""), AnimationType::kGif) << name;
    }
    for (const char* name : {"a.fli", "a.FLI", "a.flc", "a.FLC", "a.flick.png"}) {
        EXPECT_EQ(ClassifyAnimation(name, ""), AnimationType::kFli) << name;
    }
}

TEST(ClassifyAnimation, TellsLettersOfMixedCaseApart) {
    for (const char* name : {"a.Gif", "a.gIF", "a.Fli", "a.Flc", "gif", "agif", "notes.txt", ""}) {
        EXPECT_EQ(ClassifyAnimation(name, ""), AnimationType::kNone) << name;
    }
}

TEST(ClassifyAnimation, AsksForGifFirst) {
    EXPECT_EQ(ClassifyAnimation("a.flc.gif", ""), AnimationType::kGif);
    EXPECT_EQ(ClassifyAnimation("a.flc", "image/gif"), AnimationType::kGif);
    EXPECT_EQ(ClassifyAnimation("a.gif", "video/x-flc"), AnimationType::kGif);
}

TEST(ClassifyAnimation, TellsVideosByTheEndOfTheirNames) {
    for (const std::string name : {"a.mp4", "a.MOV", "a.webm", "a.mkv", "a.avi", "a.m4v"})
        EXPECT_EQ(ClassifyAnimation(name, ""), AnimationType::kVideo) << name;
    EXPECT_EQ(ClassifyAnimation("a.mp4.txt", ""), AnimationType::kNone);
    EXPECT_EQ(ClassifyAnimation("a.gif.mp4", ""), AnimationType::kGif);
}

TEST(ClassifyContent, KnowsAnimationsByTheirFirstBytes) {
    const auto classify = [](std::vector<uint8> bytes) {
        return ClassifyContent(BFile::OnMemory(std::move(bytes)).get());
    };
    EXPECT_EQ(classify(GifWithPauses({})), AnimationType::kGif);
    EXPECT_EQ(classify({'G', 'I', 'F'}), AnimationType::kGif);
    EXPECT_EQ(classify(FliBuilder(1, 1, FliBuilder::kFli)), AnimationType::kFli);
    EXPECT_EQ(classify(FliBuilder(1, 1, FliBuilder::kFlc)), AnimationType::kFli);
    AnimatedImageFile file;
    file.frames = {{0, 0, 1, 1, {0xFFFFFFFF}}, {0, 0, 1, 1, {0xFF000000}}};
    EXPECT_EQ(classify(file.Webp()), AnimationType::kWebp);
    EXPECT_EQ(classify(file.Apng()), AnimationType::kApng);
    EXPECT_EQ(classify({0, 0, 0, 0, 0x13, 0xAF}), AnimationType::kNone);
    EXPECT_EQ(classify({0, 0, 0, 0, 0x11}), AnimationType::kNone);
    EXPECT_EQ(classify({'G', 'I'}), AnimationType::kNone);
    EXPECT_EQ(classify({}), AnimationType::kNone);
}

TEST(ClassifyContent, GoesBackToTheStart) {
    const auto file = BFile::OnMemory(GifWithPauses({}));
    file->Seek(4, SEEK_FROM_START);

    EXPECT_EQ(ClassifyContent(file.get()), AnimationType::kGif);

    EXPECT_EQ(file->Position(), 0);
}

TEST(OpenGif, MakesTheCommonestPauseTheAnimations) {
    EXPECT_EQ(PausesOf({10, 10, 20}), "10: off 0, off 0, 20");
    EXPECT_EQ(PausesOf({20, 10, 10}), "10: 20, off 0, off 0");
    EXPECT_EQ(PausesOf({65535}), "65535: off 0");
}

TEST(OpenGif, TurnsPausesIntoSecondsWhereTheSettingsSaySo) {
    EXPECT_EQ(PausesOf({10, 10, 20}, true), "0.1: off 0, off 0, 0.2");
    EXPECT_EQ(PausesOf({7}, true), "0.07: off 0");
}

TEST(OpenGif, LeavesNoPauseWhenAllPausesAreZero) {
    EXPECT_EQ(PausesOf({0, 0}), "off 0: off 0, off 0");
    EXPECT_EQ(PausesOf({0, 0}, true), "off 0: off 0, off 0");
}

TEST(OpenGif, LeavesNoPauseForAnAnimationWithoutFrames) {
    EXPECT_EQ(PausesOf({}), "off 0:");
}

TEST(OpenGif, LeavesThePauseToFewFramesWhenMostHaveNone) {
    EXPECT_EQ(PausesOf({0, 0, 20}), "off 0: off 0, off 0, 20");
    EXPECT_EQ(PausesOf({0, 0, 20}, true), "off 0: off 0, off 0, 0.2");
}

TEST(OpenGif, LetsFramesWithoutAPauseFollowTheAnimations) {
    EXPECT_EQ(PausesOf({10, 0, 10}), "10: off 0, off 0, off 0");
}

TEST(OpenGif, TakesTheFirstPauseInTheTablesOrderAmongEquallyCommonOnes) {
    EXPECT_EQ(PausesOf({20, 10}), "10: 20, off 0");
    EXPECT_EQ(PausesOf({99, 5, 99, 5}), "5: 99, off 0, 99, off 0");
    // 110 and 10 share a bucket of the hundred, and 110 is the first in it.
    EXPECT_EQ(PausesOf({20, 110, 10}), "110: 20, off 0, 10");
    EXPECT_EQ(PausesOf({99, 100}), "100: 99, off 0");
}

TEST(OpenGif, LeavesThePausesWhenThereIsNoMemoryToCountThem) {
    DocumentFixture fixture;
    const std::vector<uint8> bytes = GifWithPauses({10, 10});
    int64 calls = 0;
    {
        const AllocationFault counter(1 << 30);
        OpenGifBytes(bytes, fixture.document);
        calls = counter.Calls();
    }
    fixture.document.Reset();
    const AllocationFault fault(calls);

    EXPECT_TRUE(OpenGifBytes(bytes, fixture.document));

    EXPECT_EQ(Pauses(fixture.document), "off 0: 10, 10");
}

TEST(OpenGif, LeavesFramesThatWereThereBeforeAsTheyAre) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    fixture.prefs.global_pauseinseconds = true;
    for (const double pause : {10.0, 0.5}) {
        const FrameHandle frame = AppendFrame(document, PictureOf(1, 1, {0}), "old");
        frame->pause_length = pause;
        frame->use_pause = true;
        frame->local_palette = true;
        frame.Palette()->Set(kPaletteGreyscale);
        frame.Palette()->mode = kPaletteFromFile;
    }

    EXPECT_TRUE(OpenGifBytes(GifWithPauses({10, 10, 20}), document, 1));

    EXPECT_EQ(Pauses(document), "0.1: 10, off 0, off 0, 0.2, 0.5");
    EXPECT_EQ(document.FrameAt(0)->palette->mode, kPaletteFromFile);
    EXPECT_EQ(document.FrameAt(4)->palette->mode, kPaletteFromFile);
    EXPECT_EQ(document.FrameAt(0)->name, "old");
    EXPECT_EQ(document.FrameAt(1)->name, "frame0001");
    EXPECT_EQ(document.FrameAt(3)->name, "frame0003");
    EXPECT_EQ(document.FrameAt(4)->name, "old");
}

TEST(OpenGif, RecognisesTheBuiltInPalettes) {
    EXPECT_EQ(KindOfGlobalTable(kWebSafeColors), kPaletteWebSafe);
    EXPECT_EQ(KindOfGlobalTable(kSystemColors), kPaletteSystem);
    EXPECT_EQ(KindOfGlobalTable(Palette(kPaletteGreyscale).colors), kPaletteGreyscale);
}

TEST(OpenGif, EndsDitheringWithARecognisedGreyscalePalette) {
    DocumentFixture fixture;
    PaletteEditOf(fixture.document)->dither = true;
    GifBuilder gif(1, 1, TableOf(Palette(kPaletteGreyscale).colors, 256));

    EXPECT_TRUE(OpenGifBytes(gif.Trailer(), fixture.document));

    EXPECT_EQ(fixture.document.Current()->palette->mode, kPaletteGreyscale);
    EXPECT_FALSE(fixture.document.Current()->palette->dither);
}

TEST(OpenGif, KeepsThePaletteOfTheFileWhereOneOfTheColoursDiffers) {
    for (const int32 kind : {kPaletteWebSafe, kPaletteSystem, kPaletteGreyscale}) {
        ColorTable colors = Palette(kind).colors;
        colors[255].blue ^= 1;
        EXPECT_EQ(KindOfGlobalTable(colors), kPaletteFromFile);
    }
}

TEST(OpenGif, ComparesTheEntriesBehindTheTableToo) {
    DocumentFixture fixture;
    GifBuilder gif(1, 1, TableOf(kWebSafeColors, 128));

    EXPECT_TRUE(OpenGifBytes(gif.Trailer(), fixture.document));

    // They are web safe since the reset; size and bits stay those of the file.
    EXPECT_EQ(fixture.document.Current()->palette->mode, kPaletteWebSafe);
    EXPECT_EQ(fixture.document.Current()->palette->size, 128);
    EXPECT_EQ(fixture.document.Current()->palette->bits, 7);
}

TEST(OpenGif, RecognisesThePalettesOfFramesThatHaveTheirOwn) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    GifBuilder gif(1, 1, kBlackAndWhite);
    gif.Add(PixelOf(kSystemColors)).Add(Pixel({0x123456, 0x654321})).Add(Pixel());

    EXPECT_TRUE(OpenGifBytes(gif.Trailer(), document));

    EXPECT_EQ(document.FrameAt(0)->palette->mode, kPaletteSystem);
    EXPECT_EQ(document.FrameAt(1)->palette->mode, kPaletteFromFile);
    EXPECT_EQ(document.FrameAt(2)->palette->mode, kPaletteOptimal);
}

TEST(OpenGif, AsksWhetherToKeepWhatIsBeforeTheDamage) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    const AlertRecorder alerts({kSalvage});
    GifBuilder gif(1, 1, TableOf(kSystemColors));
    gif.Control(0, 10).Add(PixelOf(kWebSafeColors)).Control(0, 20);

    EXPECT_FALSE(OpenGifBytes(gif, document));

    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kDamaged});
    EXPECT_EQ(document.FrameCount(), 1);
    EXPECT_EQ(Pauses(document), "off 0: 10");
    EXPECT_EQ(document.Current()->palette->mode, kPaletteFromFile);
    EXPECT_EQ(document.FrameAt(0)->palette->mode, kPaletteFromFile);
    EXPECT_EQ(document.CurrentState()->file_name, "untitled");
    EXPECT_FALSE(document.Modified());
}

TEST(OpenGif, ResetsTheDocumentWhenADamagedAnimationIsNotWanted) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    AppendFrame(document, PictureOf(1, 1, {0}), "old");
    const AlertRecorder alerts({kOk});
    GifBuilder gif(7, 7, kBlackAndWhite);
    gif.Add(Pixel());

    EXPECT_FALSE(OpenGifBytes(gif, document, 1));

    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kDamaged});
    EXPECT_EQ(document.FrameCount(), 0);
    EXPECT_EQ(document.Current()->width, 320);
    EXPECT_EQ(document.Current()->palette->mode, kPaletteWebSafe);
}

TEST(OpenGif, ProposesToSalvageWhereOtherFramesWouldBeLost) {
    for (const bool others : {true, false}) {
        DocumentFixture fixture;
        if (others) AppendFrame(fixture.document, PictureOf(1, 1, {0}), "old");
        DefaultButtonPresser user;
        GifBuilder gif(1, 1, kBlackAndWhite);

        EXPECT_FALSE(OpenGifBytes(gif.Add(Pixel()), fixture.document, others ? 1 : 0));

        EXPECT_EQ(fixture.document.FrameCount(), others ? 2 : 0);
    }
}

TEST(OpenGif, NamesLackOfMemoryBeforeItAsks) {
    DocumentFixture fixture;
    const AlertRecorder alerts({kOk, kSalvage});
    fixture.document.pixel_budget->SetLimit(2 * PixelBudget::kFrameCost - 1);

    EXPECT_FALSE(OpenGifBytes(GifWithPauses({10, 10}), fixture.document));

    EXPECT_EQ(alerts.Lines(), (std::vector<std::string>{kOutOfMemoryLine, kDamaged}));
    EXPECT_EQ(fixture.document.FrameCount(), 1);
}

TEST(OpenGif, DoesNotTakeAPictureOfNoPixelsForLackOfMemory) {
    DocumentFixture fixture;
    const AlertRecorder alerts({kOk});

    EXPECT_FALSE(OpenGifBytes(GifBuilder(0, 1, kBlackAndWhite).Add({}), fixture.document));

    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kDamaged});
}

TEST(OpenGif, SaysNothingAboutDamageWhenItWasToldToStop) {
    DocumentFixture fixture;
    const AlertRecorder alerts;
    fixture.document.RequestStop();

    EXPECT_FALSE(OpenGifBytes(GifWithPauses({10, 10}), fixture.document));

    EXPECT_TRUE(alerts.Lines().empty());
}

TEST(OpenFli, LoopsForEver) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    EditOf(document)->use_loop = false;
    EditOf(document)->loop_count = 3;
    FliBuilder fli(2, 1);
    fli.Record().Color256({{0, {0x000000, 0xFF0000}}}).Copy({0, 1});
    fli.Record().Copy({1, 0});

    EXPECT_TRUE(OpenFliBytes(fli, document));

    EXPECT_GE(document.FrameCount(), 1);
    EXPECT_TRUE(document.Current()->use_loop);
    EXPECT_EQ(document.Current()->loop_count, 0);
}

TEST(OpenFli, NamesLackOfMemoryBeforeItAsks) {
    DocumentFixture fixture;
    const AlertRecorder alerts({kOk, kSalvage});
    fixture.document.pixel_budget->SetLimit(2 * PixelBudget::kFrameCost - 1);
    FliBuilder fli(2, 1);
    fli.Record().Color256({{0, {0x000000, 0xFF0000}}}).Copy({0, 1});
    fli.Record().Copy({1, 0});
    fli.Record().Copy({1, 0});

    EXPECT_FALSE(OpenFliBytes(fli, fixture.document));

    EXPECT_EQ(alerts.Lines(), (std::vector<std::string>{kOutOfMemoryLine, kDamaged}));
    EXPECT_EQ(fixture.document.FrameCount(), 1);
}

TEST(OpenFli, AsksWhetherToKeepWhatIsBeforeTheDamage) {
    for (const int32 answer : {kSalvage, kOk}) {
        DocumentFixture fixture;
        AnimationDocument& document = fixture.document;
        fixture.prefs.global_useloop = false;
        document.Reset();
        const AlertRecorder alerts({answer});
        FliBuilder fli(2, 1);
        fli.Record().Color256({{0, {0x000000, 0xFF0000}}}).Copy({0, 1});
        fli.Record().Copy({1, 0});
        std::vector<uint8> bytes = fli;
        bytes.pop_back();

        EXPECT_FALSE(OpenFliBytes(bytes, document));

        EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kDamaged});
        EXPECT_EQ(document.FrameCount(), answer == kSalvage ? 1 : 0);
        EXPECT_FALSE(document.Current()->use_loop);
    }
}

}  // namespace kirto::test
