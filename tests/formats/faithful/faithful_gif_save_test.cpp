// What is saved faithfully, as browsers show it.
#include "formats/faithful/faithful_gif_save.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "formats/gif/gif_load.h"
#include "support/gif_builder.h"
#include "support/random_gif.h"
#include "support/shown_animation.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

// That are made, and files that are read; sanitized builds take as long for fewer.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr uint32 kAnimations = 60;
constexpr uint32 kFiles = 60;
#else
constexpr uint32 kAnimations = 1300;
constexpr uint32 kFiles = 700;
#endif

// A document that is read and saved faithfully.
struct FaithfulDocument : DocumentFixture {
    FaithfulDocument() {
        prefs.animation_faithful = true;
        prefs.animation_gifcomment = false;
    }

    Bytes Save() {
        const std::shared_ptr<BFile> file = BFile::OnMemory();
        FaithfulGifSave(file, document);
        return file->Memory();
    }
    bool Load(const Bytes& bytes) {
        const DebugRecorder comments;
        const auto file = BFile::OnMemory(bytes);
        return !GifLoad(file.get(), 0, document).failed;
    }
    std::vector<ShownFrame> Shown() const { return ShownFrames(*document.Current()); }
};

std::vector<ShownFrame> ShownInFile(const Bytes& bytes) {
    FaithfulDocument loaded;
    EXPECT_TRUE(loaded.Load(bytes));
    return loaded.Shown();
}

// Where the promise is not kept.
testing::AssertionResult ShowsTheSame(const std::vector<ShownFrame>& meant,
                                      const std::vector<ShownFrame>& saved) {
    if (meant.size() != saved.size()) {
        return testing::AssertionFailure() << meant.size() << " frames became " << saved.size();
    }
    for (size_t i = 0; i < meant.size(); ++i) {
        if (meant[i].delay != saved[i].delay)
            return testing::AssertionFailure() << "frame " << i << " has another pause";
        if (meant[i].promised && meant[i].pixels != saved[i].pixels)
            return testing::AssertionFailure() << "frame " << i << " has other pixels";
    }
    return testing::AssertionSuccess();
}

TEST(FaithfulGifSave, ShowsWhatRandomAnimationsShow) {
    // Starting threads takes longer than what they do here.
    const ScopedThreads alone(1);
    for (uint32 seed = 1; seed <= kAnimations; ++seed) {
        SeededChoices choices(seed);
        FaithfulDocument made;
        FillWithScenes(choices, 30, made.document);
        const Bytes bytes = made.Save();
        const std::vector<ShownFrame> meant = made.Shown();
        const std::vector<ShownFrame> saved = ShownInFile(bytes);
        // Frames that are only nearly as they were may be alike now.
        const bool exact = std::all_of(meant.begin(), meant.end(),
                                       [](const ShownFrame& frame) { return frame.promised; });
        if (!exact && saved.size() < meant.size()) continue;
        ASSERT_TRUE(ShowsTheSame(meant, saved)) << "seed " << seed;
    }
}

TEST(FaithfulGifSave, ShowsWhatRandomFilesShow) {
    // Starting threads takes longer than what they do here.
    const ScopedThreads alone(1);
    for (uint32 seed = 1; seed <= kFiles; ++seed) {
        FaithfulDocument opened;
        if (!opened.Load(RandomGif(seed))) continue;
        ASSERT_TRUE(ShowsTheSame(opened.Shown(), ShownInFile(opened.Save()))) << "seed " << seed;
        // Some of the frames can't be written with the bytes that they were read from.
        SeededChoices choices(seed);
        opened.document.Change([&](Animation& animation) {
            for (int32 edits = choices.Between(1, 4); edits > 0; --edits) {
                const int32 last = animation.frames.Size() - 1;
                const int32 at = choices.Between(0, last);
                if (choices.OneIn(2) && last > 0) {
                    animation.frames.Remove(at);
                } else {
                    animation.frames.Swap(at, choices.Between(0, last));
                }
            }
            animation.selected = 0;
        });
        ASSERT_TRUE(ShowsTheSame(opened.Shown(), ShownInFile(opened.Save()))) << "seed " << seed;
    }
}

TEST(FaithfulGifSave, WritesTheSameBytesWithAnyNumberOfThreads) {
    for (uint32 seed = 1; seed <= 30; ++seed) {
        SeededChoices choices(seed);
        FaithfulDocument made;
        made.prefs.animation_dithering = choices.Between(0, 2);
        made.prefs.animation_jointcolors = choices.OneIn(2);
        made.prefs.animation_gifinterlaced = choices.OneIn(2);
        FillWithScenes(choices, 40, made.document);
        std::vector<Bytes> saved;
        for (const int32 count : kThreadCounts) {
            const ScopedThreads threads(count);
            saved.push_back(made.Save());
            ASSERT_EQ(saved.back(), saved.front()) << "seed " << seed << ", " << count;
        }
    }
}

TEST(FaithfulGifSave, KeepsThePicturesOfInterlacedFiles) {
    for (uint32 seed = 1; seed <= 30; ++seed) {
        SeededChoices choices(seed);
        FaithfulDocument made;
        made.prefs.animation_gifinterlaced = true;
        FillWithScenes(choices, 20, made.document);
        const std::vector<ShownFrame> meant = made.Shown();
        const std::vector<ShownFrame> saved = ShownInFile(made.Save());
        if (saved.size() == meant.size()) {
            EXPECT_TRUE(ShowsTheSame(meant, saved)) << "seed " << seed;
        }
    }
}

// Two rows of four images, each drawn over the one before.
Bytes SmallFile() {
    GifBuilder gif(4, 2, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
    for (uint8 i = 0; i < 4; ++i) {
        GifBuilder::Image image;
        image.x = i;
        image.width = 1;
        image.height = 2;
        image.indices = {i, static_cast<uint8>(3 - i)};
        gif.Control(1, 10 + i, -1).Add(image);
    }
    return gif.Trailer();
}

// But for what the screen descriptor says of the depth and order of colors.
Bytes WithoutColorFlags(Bytes bytes) {
    bytes[10] &= 0x87;
    return bytes;
}

bool Contains(const Bytes& bytes, const Bytes& part) {
    return std::search(bytes.begin(), bytes.end(), part.begin(), part.end()) != bytes.end();
}

TEST(FaithfulGifSave, WritesAnUntouchedFileAsItWas) {
    FaithfulDocument opened;
    ASSERT_TRUE(opened.Load(SmallFile()));
    EXPECT_EQ(WithoutColorFlags(opened.Save()), SmallFile());
}

TEST(FaithfulGifSave, KeepsTheBytesOfFramesInFrontOfARemovedOne) {
    GifBuilder gif(2, 1, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
    for (int32 i = 0; i < 3; ++i) {
        GifBuilder::Image image;
        image.width = 2;
        image.height = 1;
        image.indices = {static_cast<uint8>(i), 3};
        gif.Control(1, 10, -1).Add(image);
    }
    FaithfulDocument opened;
    ASSERT_TRUE(opened.Load(gif.Trailer()));
    const Bytes whole = opened.Save();
    opened.document.Change([](Animation& animation) { animation.frames.Remove(2); });
    const Bytes shorter = opened.Save();
    ASSERT_LT(shorter.size(), whole.size());
    EXPECT_TRUE(std::equal(shorter.begin(), shorter.end() - 1, whole.begin()));
}

TEST(FaithfulGifSave, RetimingChangesNothingButThePause) {
    FaithfulDocument opened;
    ASSERT_TRUE(opened.Load(SmallFile()));
    opened.document.Change([](Animation& animation) {
        EditFrame(animation, 1, [](Frame& frame) { frame.pause_length = 77; });
    });
    Bytes expected = SmallFile();
    const Bytes control = {0x21, 0xF9, 4, 4, 11, 0};
    const auto place =
        std::search(expected.begin(), expected.end(), control.begin(), control.end());
    ASSERT_NE(place, expected.end());
    *(place + 4) = 77;
    EXPECT_EQ(WithoutColorFlags(opened.Save()), expected);
}

TEST(FaithfulGifSave, AClearedPixelNeedsNoNewFrame) {
    FaithfulDocument made;
    made.document.Change([](Animation& animation) { animation.width = animation.height = 2; });
    AppendFrame(made.document, PictureOf(2, 2, {0xFF0000FF, 0xFF0000FF, 0xFFFF0000, 0}), "full");
    AppendFrame(made.document, PictureOf(2, 2, {0xFF0000FF, 0, 0xFFFF0000, 0}), "hole");
    EXPECT_TRUE(ShowsTheSame(made.Shown(), ShownInFile(made.Save())));
}

TEST(FaithfulGifSave, FramesThatLookAlikeBecomeOne) {
    FaithfulDocument made;
    made.document.Change([](Animation& animation) {
        animation.width = animation.height = 1;
        animation.use_pause = true;
        animation.pause_length = 7;
    });
    for (int32 i = 0; i < 3; ++i)
        AppendFrame(made.document, PictureOf(1, 1, {0xFF123456}), "same");
    const std::vector<ShownFrame> saved = ShownInFile(made.Save());
    ASSERT_EQ(saved.size(), 1u);
    EXPECT_EQ(saved[0].delay, 21);
    EXPECT_TRUE(Contains(made.Save(), {0x21, 0xF9, 4, 4, 21, 0}));
}

TEST(FaithfulGifSave, FramesWithoutAPauseStayFrames) {
    FaithfulDocument made;
    made.document.Change([](Animation& animation) {
        animation.width = animation.height = 1;
        animation.use_pause = false;
    });
    for (int32 i = 0; i < 3; ++i)
        AppendFrame(made.document, PictureOf(1, 1, {0xFF123456}), "same");
    EXPECT_EQ(ShownInFile(made.Save()).size(), 3u);
}

TEST(FaithfulGifSave, AnEmptyAnimationIsAFileWithoutImages) {
    FaithfulDocument made;
    made.document.Change([](Animation& animation) {
        animation.width = 3;
        animation.height = 2;
        animation.use_loop = false;
    });
    EXPECT_EQ(made.Save(), (Bytes{'G', 'I', 'F', '8', '9', 'a', 3, 0, 2, 0, 0x70, 0, 0, ';'}));
}

TEST(FaithfulGifSave, RefusesAScreenThatTheBudgetHasNoRoomFor) {
    FaithfulDocument made;
    AppendFrame(made.document, PictureOf(1, 1, {0xFF123456}), "small");
    made.document.Change([](Animation& animation) {
        animation.width = animation.height = 65535;
        EditFrame(animation, 0, [](Frame& frame) { frame.x_offset = frame.y_offset = 65534; });
    });
    EXPECT_THROW(made.Save(), std::bad_alloc);
}

TEST(FaithfulGifSave, AThresholdSaysWhatIsTransparent) {
    for (const auto& [threshold, seen] :
         {std::pair(-5, 3), {0, 3}, {100, 2}, {128, 1}, {255, 1}, {300, 1}}) {
        FaithfulDocument made;
        made.prefs.animation_threshold = threshold;
        made.document.Change([](Animation& animation) {
            animation.width = 3;
            animation.height = 1;
        });
        AppendFrame(made.document, PictureOf(3, 1, {0xFF102030, 0x7F000000, 0x01000000}), "soft");
        const std::vector<ShownFrame> saved = ShownInFile(made.Save());
        ASSERT_EQ(saved.size(), 1u);
        const ShownPixels& pixels = saved[0].pixels;
        EXPECT_EQ(3 - std::count(pixels.begin(), pixels.end(), 0U), seen) << threshold;
    }
}

TEST(FaithfulGifSave, AMatteLiesBelowSoftEdges) {
    FaithfulDocument made;
    made.prefs.animation_matte = 0x0000FF;
    made.document.Change([](Animation& animation) { animation.width = animation.height = 1; });
    AppendFrame(made.document, PictureOf(1, 1, {0x80FF0000}), "soft");
    EXPECT_EQ(ShownInFile(made.Save())[0].pixels, (ShownPixels{0xFF80007F}));
}

TEST(FaithfulGifSave, ExactColorsStayWhatTheyAre) {
    constexpr uint32 kRare = 0xFF20807F;
    for (const bool joint : {false, true}) {
        FaithfulDocument made;
        made.prefs.animation_jointcolors = joint;
        made.document.Change([](Animation& animation) { animation.width = animation.height = 64; });
        std::vector<uint32> argb;
        for (uint32 i = 0; i < 4096; ++i)
            argb.push_back(0xFF000000 | i << 10 | (i * 7919 & 0xFF));
        argb[2000] = kRare;
        AppendFrame(made.document, PictureOf(64, 64, argb), "many");
        const auto saved = [&] { return ShownInFile(made.Save())[0].pixels[2000]; };
        EXPECT_NE(saved(), kRare);
        made.prefs.animation_exactcolors = "#ffffff nonsense #20807f";
        EXPECT_EQ(saved(), kRare);
    }
}

TEST(FaithfulGifSave, TellsHowNearFramesOfManyColorsAre) {
    FaithfulDocument made;
    std::vector<uint32> argb;
    for (uint32 i = 0; i < 1024; ++i)
        argb.push_back(0xFF000000 | i << 8);
    made.document.Change([](Animation& animation) { animation.width = animation.height = 32; });
    AppendFrame(made.document, PictureOf(32, 32, argb), "many");
    const FaithfulGifSave save(BFile::OnMemory(), made.document);
    EXPECT_EQ(save.HowNear().pixels, 1024);
    EXPECT_GT(save.HowNear().changed, 500);
    EXPECT_LE(save.HowNear().changed, 1024);
    EXPECT_LT(save.HowNear().distance, 1024 * 24);
}

}  // namespace

}  // namespace kirto::test
