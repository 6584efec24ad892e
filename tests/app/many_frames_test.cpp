// Every command for several frames, on an animation of very many of them.
#include <gtest/gtest.h>
#include <string>

#include "app/kirto_fixture.h"
#include "document/command_codes.h"

namespace kirto::test {

namespace {

constexpr int32 kCount = 3000;

struct NamedValue {
    const char* name;
    int32 number;
};

BMessage With(uint32 code, const std::vector<NamedValue>& numbers) {
    BMessage message(code);
    for (const NamedValue& each : numbers)
        message.AddInt32(each.name, each.number);
    return message;
}

// Frames of 2 x 2 pixels, each with its own color and every third smaller, all selected.
class ManyFrames : public KirtoFixture {
  protected:
    ManyFrames() {
        Make();
        for (int32 i = 0; i < kCount; ++i) {
            const uint32 color = 0xFF000000 | static_cast<uint32>(i * 5);
            const auto picture = i % 3 == 0 ? PictureOf(1, 1, {color})
                                            : PictureOf(2, 2, {color, color, 0xFF808080, 0});
            AppendFrame(*app_, picture, "frame" + std::to_string(i));
        }
        EditOf(*app_)->width = 2;
        EditOf(*app_)->height = 2;
        Select("all");
        app_->StartHistory();
    }

    void Carry(BMessage message) { app_->MessageReceived(&message); }
    void Select(const std::string& frames) {
        BMessage message(kSelectFrames);
        message.AddString("frames", frames);
        Carry(message);
    }
    // The command is one step, which can be undone to the last pixel and made again.
    void ExpectOneStep(const BMessage& message, const std::string& name) {
        SCOPED_TRACE(name);
        const auto before = app_->Current();
        const int32 steps = app_->CurrentState()->undo_steps;
        Carry(message);
        const auto after = app_->Current();
        EXPECT_FALSE(*after == *before);
        EXPECT_EQ(app_->CurrentState()->undo_name, name);
        EXPECT_EQ(app_->CurrentState()->undo_steps, steps + 1);
        ASSERT_TRUE(app_->Undo());
        EXPECT_EQ(*app_->Current(), *before);
        EXPECT_EQ(app_->Current()->Selection(), before->Selection());
        ASSERT_TRUE(app_->Redo());
        EXPECT_EQ(*app_->Current(), *after);
        ASSERT_TRUE(app_->Undo());
    }
};

}  // namespace

TEST_F(ManyFrames, AreArrangedInOneStep) {
    BMessage pauses(kSetPauses);
    pauses.AddString("pause", "40ms");
    ExpectOneStep(pauses, "Set Pause");
    ExpectOneStep(BMessage(kRemoveFrame), "Remove Frame");
    ExpectOneStep(BMessage(kReverseFrames), "Reverse All");
    ExpectOneStep(BMessage(kDuplicateFrames), "Duplicate");
    ExpectOneStep(BMessage(kForwardAndBack), "Forward and Back");
    ExpectOneStep(With(kDropEveryNth, {{"number", 2}}), "Drop Every Nth");
    ExpectOneStep(With(kRemoveDuplicates, {{"tolerance", 255}}), "Remove Duplicates");
    ExpectOneStep(With(kCopyFramesTo, {{"position", 0}}), "Copy Frames");
    Select("1000-2999/2");
    ExpectOneStep(With(kMoveFramesTo, {{"position", 3}}), "Move Frames");
    ExpectOneStep(BMessage(kMoveFrameUp), "Move Frame Up");
    Select("0-1999/2");
    ExpectOneStep(BMessage(kMoveFrameDown), "Move Frame Down");
    Select("1500");
    ExpectOneStep(BMessage(kStartAtCurrent), "Shift Start");
}

TEST_F(ManyFrames, GetOtherSizesInOneStep) {
    ExpectOneStep(With(kResizeAnimation, {{"width", 4}, {"height", 3}, {"filter", 2}}),
                  "Resize Animation");
    ExpectOneStep(With(kCropAnimation, {{"left", 0}, {"top", 0}, {"width", 1}, {"height", 2}}),
                  "Crop");
    ExpectOneStep(With(kSetCanvasSize, {{"width", 3}, {"height", 3}, {"anchor", 8}}),
                  "Canvas Size");
    ExpectOneStep(With(kRotateAnimation, {{"quarters", 1}}), "Rotate");
    BMessage flip(kFlipAnimation);
    flip.AddBool("across", true);
    ExpectOneStep(flip, "Flip");
    ExpectOneStep(With(kFitFrames, {{"fit", 0}, {"filter", 0}}), "Fit Frames");
}

TEST_F(ManyFrames, GetOtherPixelsInOneStep) {
    const std::vector<uint8> dot = RawPicture(*PictureOf(1, 1, {0xFF102030}));
    Write("dot.raw", dot);
    BMessage overlay = Files(kOverlayImage, {"dot.raw"});
    for (const NamedValue each : {NamedValue{"x", 1}, {"y", 0}, {"percent", 50}})
        overlay.AddInt32(each.name, each.number);
    BMessage text =
        With(kDrawText, {{"x", 1}, {"y", 0}, {"fade_in", kCount / 2}, {"fade_out", kCount / 2}});
    text.AddData("image", B_RAW_TYPE, dot.data(), dot.size());

    ExpectOneStep(With(kAdjustColors, {{"brightness", 20}}), "Adjust Colors");
    ExpectOneStep(With(kSetOpacity, {{"percent", 40}}), "Opacity");
    ExpectOneStep(overlay, "Overlay Image");
    ExpectOneStep(text, "Text");
    const auto grey = static_cast<int32>(0x80808000);
    ExpectOneStep(With(kMakeTransparent, {{"color", grey}, {"tolerance", 3}}), "Make Transparent");
}

}  // namespace kirto::test
