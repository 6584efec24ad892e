// Opening animations with the setting "animation_faithful".
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/open_animation.h"
#include "support/fli_builder.h"
#include "support/gif_builder.h"
#include "support/test_support.h"

namespace kirto::test {

using testing::IsEmpty;

namespace {

class OpenFaithfully : public testing::Test {
  protected:
    OpenFaithfully() { fixture_.prefs.animation_faithful = true; }

    std::shared_ptr<const Animation> OpenGifBytes(const std::vector<uint8>& bytes) {
        EXPECT_TRUE(OpenGif(BFile::OnMemory(bytes).get(), 0, fixture_.document));
        return fixture_.document.Current();
    }
    // A GIF of one-pixel images with these delays, without a trailer.
    static GifBuilder GifWithPauses(const std::vector<int32>& pauses) {
        GifBuilder gif(1, 1, {0x000000, 0xFFFFFF});
        GifBuilder::Image image;
        image.indices = {1};
        image.min_code_size = 2;
        for (const int32 pause : pauses)
            gif.Control(0, pause).Add(image);
        return gif;
    }

    DocumentFixture fixture_;
    const DebugRecorder debug_;
    const AlertRecorder alerts_;
};

}  // namespace

TEST_F(OpenFaithfully, AFrameWithoutAPauseDoesNotFollowTheAnimations) {
    const auto animation = OpenGifBytes(GifWithPauses({10, 0, 10}).Trailer());

    EXPECT_EQ(animation->pause_length, 10);
    EXPECT_FALSE(animation->frames.At(0)->use_pause);
    EXPECT_TRUE(animation->frames.At(1)->use_pause);
    EXPECT_EQ(animation->frames.At(1)->pause_length, 0);
}

TEST_F(OpenFaithfully, WithoutAnyPauseTheAnimationHasNoneEither) {
    const auto animation = OpenGifBytes(GifWithPauses({0, 0}).Trailer());

    EXPECT_FALSE(animation->use_pause);
    EXPECT_FALSE(animation->frames.At(0)->use_pause);
}

TEST_F(OpenFaithfully, AMissingTrailerIsNotWorthAQuestion) {
    EXPECT_EQ(OpenGifBytes(GifWithPauses({1, 2}))->frames.Size(), 2);
    EXPECT_THAT(alerts_.Lines(), IsEmpty());
}

TEST_F(OpenFaithfully, PlayersPausesAreInTheUnitOfTheSettings) {
    fixture_.prefs.global_pauseinseconds = true;
    const FliBuilder file = FliBuilder(1, 1, FliBuilder::kFli, 7).Record().Black();

    EXPECT_TRUE(OpenFli(BFile::OnMemory(file).get(), 0, fixture_.document));
    EXPECT_TRUE(fixture_.document.Current()->use_pause);
    EXPECT_EQ(fixture_.document.Current()->pause_length, 0.1);
}

}  // namespace kirto::test
