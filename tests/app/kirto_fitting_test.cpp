#include <gtest/gtest.h>

#include "app/kirto_fixture.h"
#include "document/command_codes.h"

namespace kirto::test {

namespace {

class KirtoFitting : public KirtoFixture {
  protected:
    KirtoFitting() {
        Start();
        AppendFrame(*app_, PictureOf(2, 1, {0xFF0000FF, 0xFFFF0000}), "small");
        AppendFrame(*app_, PictureOf(4, 2, std::vector<uint32>(8, 0xFF0000FF)), "large");
        SetSide(kSetWidth, 4);
        SetSide(kSetHeight, 2);
    }

    // What the window is sent.
    std::string SetSide(uint32 code, int32 value) {
        BMessage message(code);
        message.AddInt32("value", value);
        return Do(message);
    }
    static bool Says(const std::string& lines, uint32 code) {
        return lines.find(CodeText(code)) != std::string::npos;
    }
};

TEST_F(KirtoFitting, OffersToFitFramesThatTheCanvasHasNoRoomForAnyMore) {
    EXPECT_TRUE(Says(SetSide(kSetWidth, 3), kShowNotice));
    EXPECT_TRUE(Says(SetSide(kSetWidth, 4), kHideNotice));
    EXPECT_FALSE(Says(SetSide(kSetWidth, 9), kShowNotice));
}

TEST_F(KirtoFitting, ScalesThoseFramesAndNoOthers) {
    SetSide(kSetWidth, 2);
    Do(kScaleLargerFrames);

    EXPECT_EQ(app_->FrameAt(1)->width, 2);
    EXPECT_EQ(app_->FrameAt(1)->height, 1);
    EXPECT_EQ(app_->FrameAt(0)->width, 2);
    EXPECT_EQ(app_->CurrentState()->undo_name, "Fit Frames");
    EXPECT_TRUE(app_->Current()->several.Empty());
}

TEST_F(KirtoFitting, CropsThoseFrames) {
    SetSide(kSetWidth, 3);
    Do(kCropLargerFrames);

    EXPECT_EQ(app_->FrameAt(1)->width, 3);
    EXPECT_EQ(app_->FrameAt(1)->height, 2);
    Do(kUndo);
    EXPECT_EQ(app_->FrameAt(1)->width, 4);
}

}  // namespace

}  // namespace kirto::test
