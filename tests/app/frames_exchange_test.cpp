#include "app/frames_exchange.h"

#include <gtest/gtest.h>

#include "app/kirto_fixture.h"
#include "app/open_animation.h"
#include "document/command_codes.h"

namespace kirto::test {

namespace {

class FramesExchange : public KirtoFixture {
  protected:
    FramesExchange() {
        Make();
        Append({"a", "b", "c", "d"});
        BMessage select(kSelectFrames);
        select.AddString("frames", "1-2");
        app_->MessageReceived(&select);
        app_->StartHistory();
    }

    void Paste(const char* type, const std::vector<uint8>& bytes, int32 position = -1) {
        BMessage message(kPasteFrames);
        message.AddString("type", type);
        message.AddData("bytes", B_RAW_TYPE, bytes.data(), bytes.size());
        if (position >= 0) message.AddInt32("position", position);
        app_->MessageReceived(&message);
    }

    std::string Names() const {
        std::string names;
        for (const FramePointer& frame : app_->Current()->frames)
            names += frame->name;
        return names;
    }
};

TEST_F(FramesExchange, BringsTheSelectedFramesBackAsTheyWere) {
    Paste(kFramesType, PackFrames(*app_->CurrentState()), 0);

    EXPECT_EQ(Names(), "bcabcd");
    const auto animation = app_->Current();
    EXPECT_EQ(animation->Selection(), FrameSet::Of(0, 1));
    EXPECT_NE(animation->frames.At(0)->id, animation->frames.At(3)->id);
    EXPECT_EQ(PixelsOf(*animation->frames.At(0)->bitmap),
              PixelsOf(*animation->frames.At(3)->bitmap));
    EXPECT_EQ(*animation->frames.At(0)->palette, *animation->frames.At(3)->palette);
    EXPECT_EQ(app_->CurrentState()->undo_name, "Paste");
    EXPECT_TRUE(app_->Modified());
}

TEST_F(FramesExchange, InsertsBehindTheCurrentFrame) {
    const std::vector<uint8> frames = PackFrames(*app_->CurrentState());
    Paste(kFramesType, frames);

    EXPECT_EQ(Names(), "abbccd");
}

TEST_F(FramesExchange, KeepsPausesThatWereTheAnimations) {
    EditOf(*app_)->use_pause = true;
    EditOf(*app_)->pause_length = 9;
    const std::vector<uint8> frames = PackFrames(*app_->CurrentState());
    EditOf(*app_)->pause_length = 3;
    Paste(kFramesType, frames, 0);

    EXPECT_EQ(app_->Current()->PauseOf(*app_->FrameAt(0)), 9);
    EXPECT_EQ(app_->Current()->PauseOf(*app_->FrameAt(3)), 3);
}

TEST_F(FramesExchange, GivesAGifOfTheSelectedFrames) {
    const std::vector<uint8> gif = PackAsGif(*app_->CurrentState());
    ASSERT_GT(gif.size(), 6u);
    EXPECT_EQ(std::string(gif.begin(), gif.begin() + 6), "GIF89a");

    Paste(kGifType, gif, 4);
    EXPECT_GT(app_->FrameCount(), 4);
}

TEST_F(FramesExchange, PastesAnImageAsAFrame) {
    Paste("image/png", RawPicture(*PictureOf(2, 1, {0xFF0000FF, 0x00FF0000})), 1);

    EXPECT_EQ(app_->FrameCount(), 5);
    EXPECT_EQ(app_->FrameAt(1)->width, 2);
    EXPECT_EQ(app_->Selected(), 1);
}

TEST_F(FramesExchange, TellsOfWhatIsDamagedAndChangesNothing) {
    std::vector<uint8> frames = PackFrames(*app_->CurrentState());
    frames[frames.size() / 2] ^= 0x55;
    TakeLines();
    Paste(kFramesType, frames);
    EXPECT_NE(TakeLines(), Lines());
    Paste("image/png", {1, 2, 3});
    EXPECT_NE(TakeLines(), Lines());

    EXPECT_EQ(Names(), "abcd");
    EXPECT_EQ(app_->CurrentState()->undo_steps, 0);
}

TEST_F(FramesExchange, HasNothingToGiveWithoutFrames) {
    app_->Reset();

    EXPECT_TRUE(PackFrames(*app_->CurrentState()).empty());
    EXPECT_TRUE(PackAsGif(*app_->CurrentState()).empty());
}

TEST_F(FramesExchange, GivesAnEmptyDocumentTheSizeOfWhatIsPasted) {
    EditOf(*app_)->width = 321;
    const std::vector<uint8> frames = PackFrames(*app_->CurrentState());
    app_->prefs.global_setdimensions = true;
    app_->Reset();
    Paste(kFramesType, frames);

    EXPECT_EQ(app_->FrameCount(), 2);
    EXPECT_EQ(app_->Current()->width, 321);
}

}  // namespace

}  // namespace kirto::test
