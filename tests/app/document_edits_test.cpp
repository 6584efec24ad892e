#include "app/document_edits.h"

#include <gtest/gtest.h>
#include <string>

#include "document/command_codes.h"
#include "document/document_scope.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

BMessage Number(uint32 code, int32 value) {
    BMessage message(code);
    message.AddInt32("value", value);
    return message;
}

BMessage Length(uint32 code, double value) {
    BMessage message(code);
    message.AddDouble("value", value);
    return message;
}

BMessage Switch(uint32 code, bool value) {
    BMessage message(code);
    message.AddBool("value", value);
    return message;
}

// A document of one frame, unmodified.
class DocumentEdits : public ::testing::Test {
  protected:
    DocumentEdits() {
        document.SetModified(false);
        PaletteEditOf(document)->dither = true;
    }

    // Carries the edit out; true when it is known and has modified the document.
    bool Modifies(const BMessage& message) {
        document.SetModified(false);
        EXPECT_TRUE(ApplyEdit(document, message)) << CodeText(message.what);
        return document.Modified();
    }

    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    const FrameHandle frame =
        AppendFrame(document, PictureOf(2, 1, {0xFF000001, 0xFF000002}), "frame");
};

TEST_F(DocumentEdits, SetTheCanvas) {
    EXPECT_TRUE(Modifies(Number(kSetWidth, 12)));
    EXPECT_TRUE(Modifies(Number(kSetHeight, 13)));

    EXPECT_EQ(document.Current()->width, 12);
    EXPECT_EQ(document.Current()->height, 13);
}

TEST_F(DocumentEdits, SetPauseAndLoop) {
    for (const bool on : {true, false}) {
        EXPECT_TRUE(Modifies(Switch(kUsePause, on)));
        EXPECT_TRUE(Modifies(Switch(kUseLoop, !on)));
        EXPECT_EQ(document.Current()->use_pause, on);
        EXPECT_EQ(document.Current()->use_loop, !on);
    }
    EXPECT_TRUE(Modifies(Length(kSetPauseLength, 1.5)));
    EXPECT_TRUE(Modifies(Number(kSetLoopCount, 14)));

    EXPECT_EQ(document.Current()->pause_length, 1.5);
    EXPECT_EQ(document.Current()->loop_count, 14);
}

TEST_F(DocumentEdits, SetTheGlobalPalettesKind) {
    const std::pair<uint32, int32> kinds[] = {
        {kPaletteToSystem, kPaletteSystem},         {kPaletteToWebSafe, kPaletteWebSafe},
        {kPaletteToFirstFrame, kPaletteFirstFrame}, {kPaletteToCurrentFrame, kPaletteCurrentFrame},
        {kPaletteToFile, kPaletteAwaitingFile},
    };
    for (const auto& [code, mode] : kinds) {
        EXPECT_TRUE(Modifies(BMessage(code)));
        EXPECT_EQ(document.Current()->palette->mode, mode);
        EXPECT_TRUE(document.Current()->palette->dither) << "Only greys end dithering.";
    }
}

TEST_F(DocumentEdits, EndDitheringWithGreyscale) {
    EXPECT_TRUE(Modifies(BMessage(kPaletteToGreyscale)));

    EXPECT_EQ(document.Current()->palette->mode, kPaletteGreyscale);
    EXPECT_FALSE(document.Current()->palette->dither);
}

TEST_F(DocumentEdits, DontTakeDitheringUpAgainAfterGreyscale) {
    Modifies(BMessage(kPaletteToGreyscale));

    EXPECT_TRUE(Modifies(BMessage(kPaletteToWebSafe)));

    EXPECT_FALSE(document.Current()->palette->dither);
}

TEST_F(DocumentEdits, SetTheGlobalPalettesSpecialIndicesAndDither) {
    EXPECT_TRUE(Modifies(Number(kSetBackgroundIndex, 5)));
    EXPECT_TRUE(Modifies(Number(kSetTransparentIndex, 6)));
    EXPECT_TRUE(Modifies(Switch(kUseTransparent, true)));
    EXPECT_TRUE(Modifies(Switch(kSetDither, false)));

    EXPECT_EQ(document.Current()->palette->background_index, 5);
    EXPECT_EQ(document.Current()->palette->transparent_index, 6);
    EXPECT_TRUE(document.Current()->palette->use_transparent);
    EXPECT_FALSE(document.Current()->palette->dither);

    EXPECT_TRUE(Modifies(Switch(kUseTransparent, false)));
    EXPECT_TRUE(Modifies(Switch(kSetDither, true)));
    EXPECT_FALSE(document.Current()->palette->use_transparent);
    EXPECT_TRUE(document.Current()->palette->dither);
}

TEST_F(DocumentEdits, SetTheCurrentFramesFields) {
    EXPECT_TRUE(Modifies(Number(kFrameSetXOffset, 3)));
    EXPECT_TRUE(Modifies(Number(kFrameSetYOffset, 4)));
    EXPECT_TRUE(Modifies(Switch(kFrameUsePause, true)));
    EXPECT_TRUE(Modifies(Length(kFrameSetPauseLength, 0.25)));
    EXPECT_TRUE(Modifies(Switch(kFrameUsePalette, true)));
    EXPECT_TRUE(Modifies(BMessage(kFramePaletteToFile)));

    EXPECT_EQ(frame->x_offset, 3);
    EXPECT_EQ(frame->y_offset, 4);
    EXPECT_TRUE(frame->use_pause);
    EXPECT_EQ(frame->pause_length, 0.25);
    EXPECT_TRUE(frame->local_palette);
    EXPECT_EQ(frame->palette->mode, kPaletteAwaitingFile);
}

TEST_F(DocumentEdits, SwitchTheCurrentFramesFieldsOff) {
    frame->use_pause = true;
    frame->local_palette = true;

    EXPECT_TRUE(Modifies(Switch(kFrameUsePause, false)));
    EXPECT_TRUE(Modifies(Switch(kFrameUsePalette, false)));

    EXPECT_FALSE(frame->use_pause);
    EXPECT_FALSE(frame->local_palette);
}

TEST_F(DocumentEdits, ChangeTheCurrentFrameAlone) {
    const FrameHandle other = AppendFrame(document, PictureOf(1, 1, {0xFF000003}), "other");
    document.Select(1);

    Modifies(Number(kFrameSetXOffset, 3));

    EXPECT_EQ(other->x_offset, 3);
    EXPECT_EQ(frame->x_offset, 0);
}

TEST_F(DocumentEdits, DoNothingWithoutACurrentFrame) {
    DocumentFixture empty;
    for (const BMessage& message :
         {Number(kFrameSetXOffset, 1), Number(kFrameSetYOffset, 1), Switch(kFrameUsePause, true),
          Length(kFrameSetPauseLength, 1.0), Switch(kFrameUsePalette, true),
          BMessage(kFramePaletteToFile)}) {
        EXPECT_TRUE(ApplyEdit(empty.document, message)) << CodeText(message.what);
        EXPECT_FALSE(empty.document.Modified()) << CodeText(message.what);
    }
}

TEST_F(DocumentEdits, DoNothingWithoutAValue) {
    EditOf(document)->width = 9;
    for (const uint32 code :
         {kSetWidth, kSetHeight, kUsePause, kSetPauseLength, kUseLoop, kSetLoopCount,
          kSetBackgroundIndex, kUseTransparent, kSetTransparentIndex, kSetDither, kFrameSetXOffset,
          kFrameSetYOffset, kFrameUsePause, kFrameSetPauseLength, kFrameUsePalette}) {
        EXPECT_FALSE(Modifies(BMessage(code))) << CodeText(code);
    }
    EXPECT_EQ(document.Current()->width, 9);
    EXPECT_TRUE(document.Current()->palette->dither);
}

TEST_F(DocumentEdits, DoNothingWithAValueOfAnotherType) {
    EditOf(document)->width = 9;

    EXPECT_FALSE(Modifies(Length(kSetWidth, 3.0)));
    EXPECT_FALSE(Modifies(Number(kSetPauseLength, 3)));
    EXPECT_FALSE(Modifies(Number(kUsePause, 1)));

    EXPECT_EQ(document.Current()->width, 9);
}

TEST_F(DocumentEdits, LeaveOtherCommandsToOthers) {
    for (const uint32 code : {kUpdateAll, kSaveAgain, kRemoveFrame, kUndo, uint32{0}}) {
        EXPECT_FALSE(ApplyEdit(document, Number(code, 1))) << CodeText(code);
    }
    EXPECT_FALSE(document.Modified());
}

TEST_F(DocumentEdits, PostNothing) {
    fixture.port->TakeTranscript();

    Modifies(Number(kSetWidth, 1));

    EXPECT_EQ(fixture.port->Transcript(), "");
}

#ifndef NDEBUG
TEST_F(DocumentEdits, WaitForTheReadersInside) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const ReaderScope reader(document);

    // On one thread, so that waiting for the reader is the mistake that is looked for.
    EXPECT_DEATH(ApplyEdit(document, Number(kSetWidth, 12)), "t_scopes_held == 0");
}
#endif

}  // namespace

}  // namespace kirto::test
