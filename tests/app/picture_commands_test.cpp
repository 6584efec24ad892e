#include "app/picture_commands.h"

#include <gtest/gtest.h>
#include <string>

#include "app/kirto_fixture.h"
#include "document/command_codes.h"
#include "support/stopping_recorder.h"

namespace kirto::test {

namespace {

using Pixels = std::vector<uint32>;

struct NamedNumber {
    const char* name;
    int32 number;
};

// Two frames of 2 x 1 pixels on a canvas of that size, of which the first is selected.
class PictureCommands : public KirtoFixture {
  protected:
    PictureCommands() {
        Make();
        AppendFrame(*app_, PictureOf(2, 1, {0xFF000000, 0xFF808080}), "a");
        AppendFrame(*app_, PictureOf(2, 1, {0xFF000000, 0xFFFFFFFF}), "b");
        EditOf(*app_)->width = 2;
        EditOf(*app_)->height = 1;
        app_->StartHistory();
        app_->SetModified(false);
    }

    static BMessage With(uint32 code, const std::vector<NamedNumber>& numbers) {
        BMessage message(code);
        for (const NamedNumber& each : numbers)
            message.AddInt32(each.name, each.number);
        return message;
    }
    void Carry(BMessage message) { app_->MessageReceived(&message); }
    Pixels PixelsOfFrame(int32 i) const { return PixelsOf(*app_->FrameAt(i)->bitmap); }
    // The step is there, can be undone and redone, and there is none but it.
    void ExpectOneStep(const char* name) {
        const auto after = app_->Current();
        EXPECT_EQ(app_->CurrentState()->undo_steps, 1);
        EXPECT_EQ(app_->CurrentState()->undo_name, name);
        EXPECT_TRUE(app_->Modified());
        ASSERT_TRUE(app_->Undo());
        EXPECT_FALSE(app_->Modified());
        EXPECT_EQ(app_->Current()->width, 2);
        ASSERT_TRUE(app_->Redo());
        EXPECT_EQ(*app_->Current(), *after);
    }
};

TEST_F(PictureCommands, ResizeAllFramesAndTheCanvas) {
    Carry(With(kResizeAnimation, {{"width", 4}, {"height", 2}, {"filter", 0}}));

    EXPECT_EQ(app_->Current()->width, 4);
    EXPECT_EQ(app_->FrameAt(0)->width, 4);
    EXPECT_EQ(app_->FrameAt(1)->height, 2);
    ExpectOneStep("Resize Animation");
}

TEST_F(PictureCommands, CropToARectangle) {
    Carry(With(kCropAnimation, {{"left", 1}, {"top", 0}, {"width", 1}, {"height", 1}}));

    EXPECT_EQ(PixelsOfFrame(0), Pixels{0xFF808080});
    EXPECT_EQ(PixelsOfFrame(1), Pixels{0xFFFFFFFF});
    ExpectOneStep("Crop");
}

TEST_F(PictureCommands, CropToWhatChanges) {
    Carry(With(kCropAnimation, {{"trim", 1}}));

    EXPECT_EQ(PixelsOfFrame(1), Pixels{0xFFFFFFFF});
    ExpectOneStep("Crop");
}

TEST_F(PictureCommands, SayWhereThereIsNothingToTrim) {
    EditOf(*app_)->frames.Replace(1, app_->FrameAt(0));
    const auto before = app_->Current();

    EXPECT_EQ(ApplyPictureEdit(*app_, With(kCropAnimation, {{"trim", 1}}), roster_),
              "no frame shows anything else than another");

    EXPECT_EQ(app_->Current(), before);
}

TEST_F(PictureCommands, SetTheCanvasAroundWhatThereIs) {
    Carry(With(kSetCanvasSize, {{"width", 4}, {"height", 3}, {"anchor", 8}}));

    EXPECT_EQ(app_->FrameAt(0)->x_offset, 2);
    EXPECT_EQ(app_->FrameAt(0)->y_offset, 2);
    EXPECT_EQ(app_->FrameAt(0)->width, 2);
    ExpectOneStep("Canvas Size");
}

TEST_F(PictureCommands, RotateAndFlip) {
    Carry(With(kRotateAnimation, {{"quarters", 1}}));
    EXPECT_EQ(app_->Current()->height, 2);
    EXPECT_EQ(PixelsOfFrame(0), (Pixels{0xFF000000, 0xFF808080}));
    ExpectOneStep("Rotate");

    BMessage flip(kFlipAnimation);
    flip.AddBool("across", false);
    Carry(flip);
    EXPECT_EQ(PixelsOfFrame(0), (Pixels{0xFF808080, 0xFF000000}));
    EXPECT_EQ(app_->CurrentState()->undo_name, "Flip");
}

TEST_F(PictureCommands, OfSelectedFramesLeaveTheOthersAlone) {
    const auto other = app_->FrameAt(1);
    Carry(With(kSetOpacity, {{"percent", 50}}));
    EXPECT_EQ(PixelsOfFrame(0), (Pixels{0x80000000, 0x80808080}));
    ExpectOneStep("Opacity");

    Carry(With(kAdjustColors, {{"brightness", 100}}));
    EXPECT_EQ(PixelsOfFrame(0), (Pixels{0x80FFFFFF, 0x80FFFFFF}));
    Carry(With(kMakeTransparent, {{"color", -256}, {"tolerance", 0}}));
    EXPECT_EQ(PixelsOfFrame(0), (Pixels{0, 0}));
    EXPECT_EQ(app_->CurrentState()->undo_name, "Make Transparent");
    EXPECT_EQ(app_->FrameAt(1), other);

    BMessage all(kSelectFrames);
    all.AddString("frames", "all");
    Carry(all);
    Carry(With(kSetOpacity, {{"percent", 0}}));
    EXPECT_EQ(PixelsOfFrame(1), (Pixels{0x00000000, 0x00FFFFFF}));
}

TEST_F(PictureCommands, FitFramesToTheCanvas) {
    EditOf(*app_)->width = 1;
    Carry(With(kFitFrames, {{"fit", 2}, {"filter", 0}}));

    EXPECT_EQ(PixelsOfFrame(0), Pixels{0xFF000000});
    EXPECT_EQ(app_->FrameAt(1)->width, 2);
    EXPECT_EQ(app_->CurrentState()->undo_name, "Fit Frames");
}

TEST_F(PictureCommands, DrawAnImageOver) {
    Write("dot.raw", RawPicture(*PictureOf(1, 1, {0xFF102030})));
    BMessage overlay = Files(kOverlayImage, {"dot.raw"});
    for (const NamedNumber each : {NamedNumber{"x", 1}, {"y", 0}, {"percent", 100}})
        overlay.AddInt32(each.name, each.number);
    Carry(overlay);

    EXPECT_EQ(PixelsOfFrame(0), (Pixels{0xFF000000, 0xFF102030}));
    ExpectOneStep("Overlay Image");
}

TEST_F(PictureCommands, DrawText) {
    const std::vector<uint8> image = RawPicture(*PictureOf(1, 1, {0xFF102030}));
    BMessage text = With(kDrawText, {{"x", 1}, {"y", 0}, {"fade_in", 0}, {"fade_out", 0}});
    Carry(text);
    EXPECT_EQ(app_->CurrentState()->undo_steps, 0) << "There is no image.";
    text.AddData("image", B_RAW_TYPE, image.data(), image.size());
    Carry(text);

    EXPECT_EQ(PixelsOfFrame(0), (Pixels{0xFF000000, 0xFF102030}));
    ExpectOneStep("Text");
}

TEST_F(PictureCommands, TellOfAnImageThatCanNotBeRead) {
    Write("notes.txt", {'n', 'o'});
    BMessage overlay = Files(kOverlayImage, {"notes.txt"});
    for (const char* field : {"x", "y", "percent"})
        overlay.AddInt32(field, 0);
    Carry(overlay);

    EXPECT_EQ(TakeLines(),
              Lines{"told This file can't be drawn because this file type is unsupported: "
                    "notes.txt"});
    EXPECT_EQ(app_->CurrentState()->undo_steps, 0);
}

TEST_F(PictureCommands, ChangeNothingWithoutTheirFieldsOrBeyondTheirBounds) {
    const auto before = app_->Current();
    for (const BMessage& message :
         {BMessage(kResizeAnimation),
          BMessage(kCropAnimation),
          BMessage(kSetCanvasSize),
          BMessage(kRotateAnimation),
          BMessage(kFlipAnimation),
          BMessage(kFitFrames),
          BMessage(kAdjustColors),
          BMessage(kSetOpacity),
          BMessage(kOverlayImage),
          BMessage(kMakeTransparent),
          With(kResizeAnimation, {{"width", 0}, {"height", 1}, {"filter", 0}}),
          With(kResizeAnimation, {{"width", 65536}, {"height", 1}, {"filter", 0}}),
          With(kResizeAnimation, {{"width", 4}, {"height", 1}, {"filter", 3}}),
          With(kSetCanvasSize, {{"width", 4}, {"height", 1}, {"anchor", 9}}),
          With(kRotateAnimation, {{"quarters", 4}}),
          With(kAdjustColors, {{"contrast", 101}}),
          With(kFitFrames, {{"fit", 3}, {"filter", 0}}),
          With(kSetOpacity, {{"percent", 101}}),
          With(kMakeTransparent, {{"color", 0}, {"tolerance", 256}}),
          With(kCropAnimation, {{"left", 0}, {"top", 0}, {"width", 1}, {"height", 0}})})
        Carry(message);
    EXPECT_EQ(*app_->Current(), *before);
    EXPECT_EQ(app_->CurrentState()->undo_steps, 0);
    EXPECT_FALSE(app_->Modified());
}

TEST_F(PictureCommands, SayThatNothingHasChangedWhenStopped) {
    const auto recorder = std::make_shared<StoppingRecorder>();
    recorder->StopAt(*app_, "Status: turning frame 2 of 2...");
    app_->window = BMessenger(recorder);
    const auto before = app_->Current();
    app_->work.Begin();

    EXPECT_EQ(ApplyPictureEdit(*app_, With(kRotateAnimation, {{"quarters", 2}}), roster_),
              "canceled, nothing changed");

    app_->work.End();
    EXPECT_EQ(app_->Current(), before);
}

TEST_F(PictureCommands, AreChangesThatWindowsCount) {
    for (const uint32 code :
         {kResizeAnimation, kCropAnimation, kSetCanvasSize, kRotateAnimation, kFlipAnimation,
          kFitFrames, kAdjustColors, kSetOpacity, kOverlayImage, kDrawText, kMakeTransparent}) {
        EXPECT_EQ(Kirto::ChangeBy(code), Kirto::Change::kEdit);
    }
    EXPECT_EQ(PictureEditName(kReverseFrames), nullptr);
}

}  // namespace

}  // namespace kirto::test
