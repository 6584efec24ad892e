#include <gtest/gtest.h>

#include "app/kirto_fixture.h"
#include "support/animated_image_file.h"

namespace kirto::test {

namespace {

constexpr const char* kQuestion =
    "INFO [] Do you wish to insert this image into the current animation or open it as a new "
    "animation? | Cancel | Open | Insert";
constexpr const char* kSaveQuestion =
    "WARNING [] Do you want to save your changes? | Cancel | Discard | Save";
constexpr int32 kCancelButton = 0;
constexpr int32 kOpenButton = 1;
constexpr int32 kInsert = 2;
constexpr int32 kDiscardButton = 1;
constexpr int32 kSaveButton = 2;

AnimatedImageFile TwoFrames() {
    AnimatedImageFile file;
    file.frames = {{0, 0, 1, 1, {0xFFFFFFFF}}, {0, 0, 1, 1, {0xFF000000}}};
    return file;
}

class KirtoRefs : public KirtoFixture {
  protected:
    static constexpr const char* kOpened = "svup(Status: loading frame 1...) tvff auns tvff auda";
};

TEST_F(KirtoRefs, OpensAnAnimationFromTheDesktopWithoutAsking) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});

    EXPECT_EQ(Do(Files(B_REFS_RECEIVED, {"anim.gif"})), kOpened);

    EXPECT_EQ(Names(), Lines{"[frame0000]"});
    EXPECT_EQ(TakeLines(), Lines{});
}

TEST_F(KirtoRefs, InsertsAllImagesOfAMessage) {
    Write("one.raw", RawPicture(*PictureOf(1, 1, {1})));
    Write("two.raw", RawPicture(*PictureOf(1, 1, {2})));
    Start();

    EXPECT_EQ(Do(Files(B_REFS_RECEIVED, {"one.raw", "two.raw"})),
              "svup(Status: loading frame 1 of 2...) tvff auns "
              "svup(Status: loading frame 2 of 2...) auns auda");

    EXPECT_EQ(Names(), (Lines{"one.raw", "[two.raw]"}));
}

TEST_F(KirtoRefs, KeepsThePositionOfADrop) {
    Write("one.raw", RawPicture(*PictureOf(1, 1, {1})));
    Start();
    Append({"first", "second"});
    BMessage drop = Files(B_SIMPLE_DATA, {"one.raw"});
    drop.AddInt32("position", 1);

    Do(drop);

    EXPECT_EQ(Names(), (Lines{"first", "[one.raw]", "second"}));
    EXPECT_EQ(TakeLines(), Lines{});
}

TEST_F(KirtoRefs, IgnoresMessagesWithoutReferences) {
    Start();
    BMessage wrong_type(B_REFS_RECEIVED);
    wrong_type.AddString("refs", File("anim.gif"));

    EXPECT_EQ(Do(B_REFS_RECEIVED), "");
    EXPECT_EQ(Do(wrong_type), "");
    EXPECT_EQ(Do(B_SIMPLE_DATA), "auda");
}

TEST_F(KirtoRefs, DoesNothingWithADroppedAnimationWhenTheUserCancels) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});
    desktop_.Answer({kCancelButton});

    EXPECT_EQ(Do(Files(B_SIMPLE_DATA, {"anim.gif"})), "auda");

    EXPECT_EQ(Names(), Lines{"[old]"});
    EXPECT_EQ(TakeLines(), Lines{kQuestion});
}

TEST_F(KirtoRefs, OpensADroppedAnimationAsANewOne) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});
    desktop_.Answer({kOpenButton});

    EXPECT_EQ(Do(Files(B_SIMPLE_DATA, {"anim.gif"})), std::string("auda ") + kOpened);

    EXPECT_EQ(Names(), Lines{"[frame0000]"});
    EXPECT_EQ(app_->CurrentState()->file_name, "anim.gif");
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoRefs, KeepsChangesWhenTheUserThinksBetterOfADrop) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});
    app_->SetModified(true);
    desktop_.Answer({kOpenButton, kCancelButton});

    Do(Files(B_SIMPLE_DATA, {"anim.gif"}));

    EXPECT_EQ(Names(), Lines{"[old]"});
    EXPECT_TRUE(app_->Modified());
    EXPECT_EQ(TakeLines(), (Lines{kQuestion, kSaveQuestion}));
}

TEST_F(KirtoRefs, DiscardsChangesForADroppedAnimationWhenTheUserSaysSo) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});
    app_->SetModified(true);
    desktop_.Answer({kOpenButton, kDiscardButton});

    Do(Files(B_SIMPLE_DATA, {"anim.gif"}));

    EXPECT_EQ(Names(), Lines{"[frame0000]"});
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoRefs, OpensADroppedAnimationAfterTheChangesAreSaved) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});
    app_->SetModified(true);
    desktop_.Answer({kOpenButton, kSaveButton});

    EXPECT_EQ(Do(Files(B_SIMPLE_DATA, {"anim.gif"})), "auda awfs tvff auda");
    EXPECT_EQ(Names(), Lines{"[old]"});
    Do(SaveTo(folder_.Path(), "old.gif"));

    EXPECT_EQ(FolderContent(), (Lines{"anim.gif", "old.gif"}));
    EXPECT_EQ(Names(), Lines{"[frame0000]"});
    EXPECT_EQ(app_->CurrentState()->file_name, "anim.gif");
}

TEST_F(KirtoRefs, ForgetsADroppedAnimationWhenTheSaveFails) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});
    app_->SetModified(true);
    desktop_.Answer({kOpenButton, kSaveButton});

    Do(Files(B_SIMPLE_DATA, {"anim.gif"}));
    Do(SaveTo(File("missing"), "old.gif"));
    Do(SaveTo(folder_.Path(), "old.gif"));

    EXPECT_EQ(Names(), Lines{"[old]"});
}

TEST_F(KirtoRefs, ForgetsADroppedAnimationWhenTheSavePanelIsCancelled) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});
    app_->SetModified(true);
    desktop_.Answer({kOpenButton, kSaveButton});

    Do(Files(B_SIMPLE_DATA, {"anim.gif"}));
    Do(CancelOf(app_->GetSaveFilePanel()));
    Do(SaveTo(folder_.Path(), "old.gif"));

    EXPECT_EQ(Names(), Lines{"[old]"});
}

TEST_F(KirtoRefs, KeepsTheDocumentWhenADroppedAnimationCantBeRead) {
    Start();
    Append({"old"});
    desktop_.Answer({kOpenButton});

    Do(Files(B_SIMPLE_DATA, {"vanished.gif"}));

    EXPECT_EQ(Names(), Lines{"[old]"});
    EXPECT_EQ(TakeLines(), (Lines{kQuestion, WarningLine("The animation can't be opened because it "
                                                         "was corrupted or unreadable.")}));
}

TEST_F(KirtoRefs, InsertsADroppedAnimationIntoTheCurrentOne) {
    Write("anim.gif", GifOf({10, 20}));
    Start();
    Append({"first", "second"});
    desktop_.Answer({kInsert});
    BMessage drop = Files(B_SIMPLE_DATA, {"anim.gif"});
    drop.AddInt32("position", 1);

    EXPECT_EQ(Do(drop),
              "auda svup(Status: loading frame 2...) auns "
              "svup(Status: loading frame 3...) auns tvff auda");

    EXPECT_EQ(Names(), (Lines{"[first]", "frame0001", "frame0002", "second"}));
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoRefs, AsksAnewForAMessageThatSaysResetAlready) {
    Write("anim.gif", GifOf({10}));
    Start();
    Append({"old"});
    desktop_.Answer({kInsert});
    BMessage drop = Files(B_SIMPLE_DATA, {"anim.gif"});
    drop.AddBool("reset", true);

    Do(drop);

    EXPECT_EQ(Names(), (Lines{"[frame0000]", "old"}));
}

TEST_F(KirtoRefs, TakesAnyNameWithAnAnimationsEndingInItForAnAnimation) {
    Start();
    for (const std::string name :
         {"clip.gif.png", "CLIP.GIF", "a.fli", "a.FLI", "a.flc2", "b.FLC"}) {
        desktop_.Answer({kCancelButton});
        EXPECT_EQ(Do(Files(B_SIMPLE_DATA, {name})), "auda") << name;
        EXPECT_EQ(TakeLines(), Lines{kQuestion}) << name;
    }
}

TEST_F(KirtoRefs, TakesMixedCaseEndingsForImages) {
    Start();
    for (const std::string name : {"clip.Gif", "clip.Fli", "clip.fLC", "gif"}) {
        EXPECT_EQ(Do(Files(B_SIMPLE_DATA, {name})),
                  "auda svup(Status: loading frame 1 of 1...) auda");
        EXPECT_EQ(TakeLines(),
                  Lines{WarningLine("This file can't be inserted because this file type is "
                                    "unsupported: " +
                                    name)});
    }
}

TEST_F(KirtoRefs, TakesAWebpOrPngForAnAnimationOnlyWhereItMoves) {
    Write("walk.png", TwoFrames().Apng());
    Write("walk.webp", TwoFrames().Webp());
    Write("still.png", {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'});
    Start();
    for (const std::string name : {"walk.png", "walk.webp"}) {
        desktop_.Answer({kCancelButton});
        EXPECT_EQ(Do(Files(B_SIMPLE_DATA, {name})), "auda") << name;
        EXPECT_EQ(TakeLines(), Lines{kQuestion}) << name;
    }
    EXPECT_EQ(Do(Files(B_SIMPLE_DATA, {"still.png"})),
              "auda svup(Status: loading frame 1 of 1...) auda");
}

TEST_F(KirtoRefs, LooksForTheEndingInTheLeafNameOnly) {
    Write("one.raw", RawPicture(*PictureOf(1, 1, {1})));
    Start();

    Do(Files(B_SIMPLE_DATA, {"one.raw"}));
    Do(Files(B_SIMPLE_DATA, {"folder.gif/missing.raw"}));

    EXPECT_EQ(TakeLines(), Lines{WarningLine("This file can't be inserted because this file type "
                                             "is unsupported: missing.raw")});
}

TEST_F(KirtoRefs, KnowsAnimationsByTheirMimeType) {
    desktop_.mime_types = {{"one", "image/gif"},  {"two", "video/x-fli"}, {"three", "video/x-flc"},
                           {"four", "image/png"}, {"five", "image/gif2"}, {"six", "video/x-flic"}};
    Start();
    for (const auto& [name, is_animation] :
         {std::pair{"one", true}, std::pair{"two", true}, std::pair{"three", true},
          std::pair{"four", false}, std::pair{"five", false}, std::pair{"six", false}}) {
        desktop_.Answer({kCancelButton});
        Do(Files(B_SIMPLE_DATA, {name}));
        EXPECT_EQ(TakeLines().front() == kQuestion, is_animation) << name;
    }
}

TEST_F(KirtoRefs, OpensAnAnimationWithoutAnEndingFromTheDesktopWithoutAsking) {
    Write("clip", GifOf({10}));
    desktop_.mime_types = {{"clip", "image/gif"}};
    Start();

    EXPECT_EQ(Do(Files(B_REFS_RECEIVED, {"clip"})), kOpened);

    EXPECT_EQ(app_->CurrentState()->file_name, "clip");
    EXPECT_EQ(TakeLines(), Lines{});
}

TEST_F(KirtoRefs, RoutesByTheFirstReference) {
    Write("one.raw", RawPicture(*PictureOf(1, 1, {1})));
    Write("anim.gif", GifOf({10}));
    Start();

    Do(Files(B_REFS_RECEIVED, {"anim.gif", "one.raw"}));
    EXPECT_EQ(Names(), Lines{"[frame0000]"});
    Do(Files(B_REFS_RECEIVED, {"one.raw", "anim.gif"}));

    EXPECT_EQ(Names(), (Lines{"frame0000", "[one.raw]"}));
    EXPECT_EQ(TakeLines(), Lines{WarningLine("This file can't be inserted because this file type "
                                             "is unsupported: anim.gif")});
}

class KirtoCancel : public KirtoFixture {};

TEST_F(KirtoCancel, OfTheOpenPanelAfterItDeliveredAFileOnlyClearsTheFlag) {
    Write("anim.gif", GifOf({10}));
    Start();
    FilePanel* panel = app_->GetOpenFilePanel();
    Do(Files(kOpenFile, {"anim.gif"}));
    EXPECT_TRUE(app_->open_panel_delivered);
    PaletteEditOf(*app_)->Set(kPaletteAwaitingFile);

    EXPECT_EQ(Do(CancelOf(panel)), "");
    EXPECT_FALSE(app_->open_panel_delivered);
    EXPECT_EQ(app_->Current()->palette->mode, kPaletteAwaitingFile);
    EXPECT_EQ(Do(CancelOf(panel)), "auda");

    EXPECT_EQ(app_->Current()->palette->mode, kPaletteWebSafe);
}

TEST_F(KirtoCancel, OfTheOpenPanelIsARealOneAfterADropAndAfterFilesFromTheDesktop) {
    Write("anim.gif", GifOf({10}));
    Start();
    FilePanel* panel = app_->GetOpenFilePanel();
    for (const uint32 code : {uint32{B_SIMPLE_DATA}, uint32{B_REFS_RECEIVED}}) {
        desktop_.Answer({kOpenButton});
        BMessage refs = Files(code, {"anim.gif"});
        refs.AddBool("panel", true);
        Do(refs);
        EXPECT_FALSE(app_->open_panel_delivered);
        PaletteEditOf(*app_)->Set(kPaletteAwaitingFile);

        EXPECT_EQ(Do(CancelOf(panel)), "auda");

        EXPECT_EQ(app_->Current()->palette->mode, kPaletteWebSafe);
    }
}

TEST_F(KirtoCancel, OfTheOpenPanelPutsTheFramesPaletteBack) {
    Start();
    Append({"one", "two"});
    FilePanel* panel = app_->GetOpenFilePanel();
    FramePaletteEditOf(*app_, app_->Selected())->Set(kPaletteAwaitingFile);
    FramePaletteEditOf(*app_, 1)->Set(kPaletteAwaitingFile);

    EXPECT_EQ(Do(CancelOf(panel)), "auda");

    EXPECT_EQ(app_->FrameAt(0)->palette->mode, kPaletteWebSafe);
    EXPECT_EQ(app_->FrameAt(1)->palette->mode, kPaletteAwaitingFile);
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoCancel, OfTheOpenPanelPutsTheGlobalPaletteBackFirst) {
    Start();
    Append({"one"});
    FilePanel* panel = app_->GetOpenFilePanel();
    PaletteEditOf(*app_)->Set(kPaletteAwaitingFile);
    FramePaletteEditOf(*app_, app_->Selected())->Set(kPaletteAwaitingFile);

    Do(CancelOf(panel));

    EXPECT_EQ(app_->Current()->palette->mode, kPaletteWebSafe);
    EXPECT_EQ(app_->CurrentFrame()->palette->mode, kPaletteAwaitingFile);
}

TEST_F(KirtoCancel, OfTheOpenPanelRefreshesEvenWithNothingToPutBack) {
    Start();
    FilePanel* panel = app_->GetOpenFilePanel();
    EXPECT_EQ(Do(CancelOf(panel)), "auda");
    Append({"one"});

    EXPECT_EQ(Do(CancelOf(panel)), "auda");

    EXPECT_EQ(app_->CurrentFrame()->palette->mode, kPaletteOptimal);
}

TEST_F(KirtoCancel, OfTheSavePanelAbandonsWhatWaitsForTheSave) {
    Start();
    FilePanel* panel = app_->GetSaveFilePanel();
    TakeLines();

    EXPECT_EQ(Do(CancelOf(panel)), "");

    EXPECT_EQ(TakeLines(), Lines{"pending command abandoned"});
}

TEST_F(KirtoCancel, OfOtherPanelsDoesNothing) {
    Start();
    app_->GetOpenFilePanel();
    app_->GetSaveFilePanel();
    const FilePanel* insert = app_->GetInsertFilePanel();
    const FilePanel* tiled = app_->GetInsertTiledFilePanel();
    const FilePanel stranger;
    TakeLines();

    for (const FilePanel* panel : {insert, tiled, &stranger})
        EXPECT_EQ(Do(CancelOf(panel)), "");

    EXPECT_EQ(TakeLines(), Lines{});
}

TEST_F(KirtoCancel, WithoutAPanelDoesNothingBeforeAnyPanelIsMade) {
    Start();

    EXPECT_EQ(Do(CancelOf(nullptr)), "");
    EXPECT_EQ(Do(B_CANCEL), "");

    EXPECT_EQ(TakeLines(), Lines{});
}

}  // namespace

}  // namespace kirto::test
