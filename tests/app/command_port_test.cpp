#include "app/command_port.h"

#include <gtest/gtest.h>

#include "app/kirto_fixture.h"
#include "support/port_watcher.h"

namespace kirto::test {

namespace {

constexpr int32 kInsertButton = 2;

// What windows and panels post counts as a change until it is carried out.
class CommandPortTest : public KirtoFixture {
  protected:
    void Post(const BMessage& command) { EXPECT_EQ(app_->Commands().SendMessage(command), B_OK); }
    // Runs what was posted. Returns the posts to the window with the number of changes that waited
    // at each: "auda:1 aued:0".
    std::string Watch() {
        std::string posts;
        app_->window = BMessenger(std::make_shared<PortWatcher>([&](uint32 code) {
            if (!posts.empty()) posts += ' ';
            posts += CodeText(code) + ':' + std::to_string(app_->changes_waiting);
        }));
        Run();
        WaitUntilIdle();
        app_->Quit();
        return posts;
    }
    static BMessage SetWidth(int32 width) {
        BMessage edit(kSetWidth);
        edit.AddInt32("value", width);
        return edit;
    }
};

TEST_F(CommandPortTest, CountsEveryCommandThatChangesTheDocument) {
    const uint32 changes[] = {
        kOpenFile,           kInsertFiles,      kInsertTiledFile, B_SIMPLE_DATA,
        B_REFS_RECEIVED,     kResetDocument,    kRemoveFrame,     kMoveFrameUp,
        kMoveFrameDown,      kReverseFrames,    kFadeToColor,     kFadeFromColor,
        kFadeToNext,         kFadeFromPrevious, kFrameWebSafe,    kFrameSystem,
        kFrameGreyscale,     kFrameOptimal,     kSetWidth,        kPaletteToSystem,
        kFramePaletteToFile, kFrameSetXOffset,
    };
    Make();
    int32 number = 0;
    for (const uint32 code : changes) {
        Post(BMessage(code));
        EXPECT_EQ(app_->changes_waiting, ++number) << CodeText(code);
        EXPECT_TRUE(app_->HasUnsavedChanges());
    }

    Run();
    WaitUntilIdle();

    EXPECT_EQ(app_->changes_waiting, 0);
    EXPECT_EQ(app_->insertions_waiting, 0);
}

TEST_F(CommandPortTest, CountsNothingElse) {
    Make();
    for (const uint32 code : {kSelectFrame, kSaveFile, kSaveAgain, kPreview, kStoreSettings,
                              kTranslatorSettings, uint32{B_CANCEL}, FourCharCode("what")}) {
        Post(BMessage(code));
        EXPECT_EQ(app_->changes_waiting, 0) << CodeText(code);
    }
    EXPECT_FALSE(app_->HasUnsavedChanges());
}

TEST_F(CommandPortTest, CountsTheCommandsThatMayBringFramesBesides) {
    Make();
    int32 number = 0;
    for (const uint32 code : {kOpenFile, kInsertFiles, kInsertTiledFile, uint32{B_SIMPLE_DATA},
                              uint32{B_REFS_RECEIVED}}) {
        Post(BMessage(code));
        EXPECT_EQ(app_->insertions_waiting, ++number) << CodeText(code);
    }
    Post(BMessage(kFadeToColor));
    EXPECT_EQ(app_->insertions_waiting, number);
}

TEST_F(CommandPortTest, IsWhereFilePanelsPost) {
    Make();
    for (const FilePanelKind kind : {FilePanelKind::kOpen, FilePanelKind::kInsert,
                                     FilePanelKind::kInsertTiled, FilePanelKind::kSave}) {
        app_->GetPanel(kind);
        EXPECT_EQ(desktop_.panel_target, app_->Commands());
    }
}

TEST_F(CommandPortTest, CountsAChangeUntilItIsCarriedOutAndThenTellsTheWindow) {
    Make();
    Post(SetWidth(12));

    EXPECT_EQ(Watch(), "aued:0");

    EXPECT_EQ(app_->Current()->width, 12);
    EXPECT_TRUE(app_->Modified());
}

TEST_F(CommandPortTest, CountsAnInsertionWhileItRuns) {
    Write("one.raw", RawPicture(*PictureOf(1, 1, {1})));
    Make();
    Post(Files(kInsertFiles, {"one.raw"}));

    EXPECT_EQ(Watch(), "svup:1 tvff:1 auns:1 auda:1 aued:0");
}

TEST_F(CommandPortTest, CountsADropUntilItsFilesAreInserted) {
    Write("one.raw", RawPicture(*PictureOf(1, 1, {1})));
    Make();
    Post(Files(B_SIMPLE_DATA, {"one.raw"}));

    EXPECT_EQ(Watch(), "auda:2 aued:1 svup:1 tvff:1 auns:1 auda:1 aued:0");
    EXPECT_EQ(app_->insertions_waiting, 0);
}

TEST_F(CommandPortTest, CountsFilesOfTheCommandLineUntilTheyAreOpened) {
    Write("anim.gif", GifOf({10}));
    Make();
    Post(Files(B_REFS_RECEIVED, {"anim.gif"}));

    EXPECT_EQ(Watch(), "aued:1 svup:1 tvff:1 auns:1 tvff:1 auda:1 aued:0");
}

TEST_F(CommandPortTest, LeavesASavedDocumentUnchangedWhereAnEditOvertookADrop) {
    Write("anim.gif", GifOf({10}));
    desktop_.Answer({kInsertButton});
    Make();
    Post(Files(B_SIMPLE_DATA, {"anim.gif"}));
    Post(SetWidth(12));
    Run();
    WaitUntilIdle();
    EXPECT_EQ(app_->FrameCount(), 1);
    EXPECT_TRUE(app_->HasUnsavedChanges());

    Do(SaveTo(folder_.Path(), "out.gif"));

    EXPECT_FALSE(app_->HasUnsavedChanges());
}

TEST_F(CommandPortTest, CountsAForwardedCommandOnce) {
    Make();
    BMessage edit = SetWidth(12);
    CommandPort::Count(*app_, &edit);
    CommandPort::Uncount(*app_, edit);
    Post(edit);
    EXPECT_EQ(app_->changes_waiting, 1);

    EXPECT_EQ(Watch(), "aued:0");
}

TEST_F(CommandPortTest, CountsNothingOnceTheApplicationHasEnded) {
    Start();
    app_->Quit();

    EXPECT_EQ(app_->Commands().SendMessage(SetWidth(12)), B_NOT_ALLOWED);

    EXPECT_EQ(app_->changes_waiting, 0);
    EXPECT_FALSE(app_->Commands().IsValid());
}

TEST_F(CommandPortTest, LeavesCommandsThatCameAnotherWayUnanswered) {
    Start();

    EXPECT_EQ(Do(SetWidth(12)), "");

    EXPECT_EQ(app_->changes_waiting, 0);
    EXPECT_EQ(app_->Current()->width, 12);
}

}  // namespace

}  // namespace kirto::test
