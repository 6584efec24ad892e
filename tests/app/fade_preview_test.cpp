#include "app/fade_preview.h"

#include <atomic>
#include <cstring>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr int32 kSide = 4;
constexpr uint32 kTarget = 0x20406000;

// Three frames of one color each, the middle one current.
struct ThreeFrames {
    ThreeFrames() {
        for (const uint32 color : {kRed, kGreen, kBlue})
            AppendFrame(fixture.document, PictureOf(2, 1, {color, color}), "frame");
        fixture.document.Select(1);
    }

    DocumentFixture fixture;
};

uint32 FirstPixel(const Picture& picture) {
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    picture.ReadRow(0, row.data());
    uint32 pixel = 0;
    std::memcpy(&pixel, row.data(), sizeof(pixel));
    return pixel;
}

class FadePreviewTest : public testing::Test {
  protected:
    Animation Preview(uint32 command, int32 count) {
        const std::atomic<bool> stop = stopped_;
        return FadePreview(*frames_.fixture.document.Current(), {command, count, kTarget}, kSide,
                           stop);
    }
    std::vector<uint32> Colors(uint32 command, int32 count) {
        std::vector<uint32> colors;
        for (const FramePointer& frame : Preview(command, count).frames)
            colors.push_back(FirstPixel(*frame->bitmap));
        return colors;
    }
    void Select(int32 frame) { frames_.fixture.document.Select(frame); }

    ThreeFrames frames_;
    bool stopped_ = false;
};

// The frames of the same fade in the document itself, the current one and the neighbor.
TEST_F(FadePreviewTest, ShowsWhatTheFadeMakes) {
    const struct {
        uint32 command;
        FadeMode mode;
        int32 first;
    } kFades[] = {{kFadeToColor, FadeMode::kToColor, 1},
                  {kFadeFromColor, FadeMode::kFromColor, 1},
                  {kFadeToNext, FadeMode::kToNext, 1},
                  {kFadeFromPrevious, FadeMode::kFromPrevious, 0}};
    for (const auto& fade : kFades) {
        ThreeFrames other;
        AnimationDocument& document = other.fixture.document;
        int32 name = 0;
        ASSERT_TRUE(Fade(document, fade.mode, 3, {0x20, 0x40, 0x60, 255}, &name));
        const std::vector<uint32> shown = Colors(fade.command, 3);
        const bool two = fade.mode == FadeMode::kToNext || fade.mode == FadeMode::kFromPrevious;
        ASSERT_EQ(shown.size(), two ? 5U : 4U);
        for (size_t i = 0; i < shown.size(); ++i) {
            const FramePointer frame = document.FrameAt(fade.first + static_cast<int32>(i));
            EXPECT_EQ(shown[i], FirstPixel(*frame->bitmap)) << CodeText(fade.command) << " " << i;
        }
    }
}

TEST_F(FadePreviewTest, IsEmptyWhereThereIsNothingToFade) {
    Select(2);
    EXPECT_TRUE(Colors(kFadeToNext, 3).empty());
    Select(0);
    EXPECT_TRUE(Colors(kFadeFromPrevious, 3).empty());
    frames_.fixture.document.Reset();
    EXPECT_TRUE(Colors(kFadeToColor, 3).empty());
}

TEST_F(FadePreviewTest, IsEmptyOnceItIsToStop) {
    stopped_ = true;
    EXPECT_TRUE(Colors(kFadeToColor, 3).empty());
}

TEST_F(FadePreviewTest, HasThePausesThatTheFadeWillHave) {
    frames_.fixture.document.Change([](Animation& animation) {
        animation.use_pause = true;
        animation.pause_length = 7;
        EditFrame(animation, 1, [](Frame& frame) {
            frame.use_pause = true;
            frame.pause_length = 30;
        });
        return true;
    });
    const Animation preview = Preview(kFadeToNext, 1);
    ASSERT_EQ(preview.frames.Size(), 3);
    EXPECT_EQ(preview.PauseOf(*preview.frames.At(0)), 30);
    EXPECT_EQ(preview.PauseOf(*preview.frames.At(1)), 7);
    EXPECT_EQ(preview.PauseOf(*preview.frames.At(2)), 7);
}

}  // namespace

}  // namespace kirto::test
