// Opening and saving as browsers do where the defined rules hurt.
#include <atomic>
#include <thread>

#include "app/kirto_fixture.h"

namespace kirto::test {

namespace {

constexpr int32 kAsBrowsers = 0;
constexpr uint32 kOffPalette = 0xFF123456;

class KirtoFaithful : public KirtoFixture {
  protected:
    // Browsers open it: it lacks its last byte.
    void WriteRefused() {
        std::vector<uint8> bytes = GifOf({10, 20, 10});
        bytes.pop_back();
        Write("refused.gif", bytes);
    }
    // As Do, but the window's messages are kept.
    void Send(const BMessage& command) {
        app_->PostMessage(command);
        WaitUntilIdle();
    }
    void Send(uint32 what) { Send(BMessage(what)); }
    void OpenRefused(bool reset = true) {
        WriteRefused();
        desktop_.Answer({kAsBrowsers});
        BMessage open = Files(kOpenFile, {"refused.gif"});
        open.AddBool("reset", reset);
        open.AddInt32("position", 1);
        Send(open);
    }
    // The last notice that the window was told to show, as "text | button | ..."; "hidden" after a
    // kHideNotice, empty before any.
    std::string Notice() {
        std::string notice;
        for (const BMessage& message : desktop_.window->Messages()) {
            if (message.what == kHideNotice) notice = "hidden";
            if (message.what != kShowNotice) continue;
            message.FindString("text", &notice);
            std::string button;
            for (int32 i = 0; message.FindString("button", &button, i) == B_OK; ++i)
                notice += " | " + button;
        }
        return notice;
    }
    std::string WaitForNotice() {
        while (Notice().empty() || Notice() == "hidden")
            std::this_thread::yield();
        return Notice();
    }
    bool StoresTheSwitch() const { return Prefs().animation_faithful; }
    // An animation of one pixel that the web-safe palette does not have.
    void StartWithOneColor() {
        Make();
        app_->CheckSaves();
        AppendFrame(*app_, PictureOf(1, 1, {kOffPalette}), "frame");
        EditOf(*app_)->width = 1;
        EditOf(*app_)->height = 1;
        Run();
    }
};

constexpr const char* kOpenedNotice =
    "Opened as browsers do. Animations are read and saved that way from now on. | Undo | Close";
constexpr const char* kSavedNotice =
    "In browsers 100 % of the pixels lost their color, by 11.7 of 255 on average: 216 colors. | "
    "Save Faithfully | Show | "
    "Close";

}  // namespace

TEST_F(KirtoFaithful, OpensAsBrowsersDoWhatWasRefused) {
    Start();

    OpenRefused();

    EXPECT_EQ(app_->FrameCount(), 3);
    EXPECT_EQ(app_->CurrentState()->file_name, "refused.gif");
    EXPECT_FALSE(app_->Modified());
    EXPECT_TRUE(app_->CurrentState()->settings->animation_faithful);
    EXPECT_TRUE(StoresTheSwitch());
    EXPECT_EQ(app_->Refusal(), HarmlessCause::kMissingTrailer);
    EXPECT_EQ(Notice(), kOpenedNotice);
}

TEST_F(KirtoFaithful, UndoTakesTheAnimationAwayAndTurnsTheSwitchBack) {
    Start();
    OpenRefused();

    Send(kUndoOpening);

    EXPECT_EQ(app_->FrameCount(), 0);
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_FALSE(app_->CurrentState()->settings->animation_faithful);
    EXPECT_FALSE(StoresTheSwitch());
    // There is nothing more to undo.
    Append({"new"});
    Send(kUndoOpening);
    EXPECT_EQ(Names(), (Lines{"[new]"}));
}

TEST_F(KirtoFaithful, UndoOfAnInsertionLeavesTheFramesThatWereThere) {
    Make();
    Append({"one", "two"});
    Run();
    OpenRefused(false);
    EXPECT_EQ(app_->FrameCount(), 5);
    EXPECT_EQ(Notice(), kOpenedNotice);

    Send(kUndoOpening);

    EXPECT_EQ(app_->FrameCount(), 2);
    EXPECT_FALSE(app_->CurrentState()->settings->animation_faithful);
}

TEST_F(KirtoFaithful, AnEditMakesTheOpeningFinal) {
    Start();
    OpenRefused();

    Send(kReverseFrames);
    EXPECT_EQ(Notice(), "hidden");
    Send(kUndoOpening);

    EXPECT_EQ(app_->FrameCount(), 3);
    EXPECT_TRUE(app_->CurrentState()->settings->animation_faithful);
}

TEST_F(KirtoFaithful, TheSwitchStaysOffWhereBrowsersShowNothingEither) {
    // Refused for its image, and without memory for the screen that browsers would draw it on.
    GifBuilder gif(1, 1, {0x000000, 0xFFFFFF});
    GifBuilder::Image image;
    image.width = 65535;
    image.height = 65535;
    image.indices = {1};
    gif.Add(image).Trailer();
    Write("huge.gif", gif);
    Make();
    app_->pixel_budget->SetLimit(uint64{1} << 20);
    Run();
    desktop_.Answer({kAsBrowsers});

    Send(Files(kOpenFile, {"huge.gif"}));

    EXPECT_EQ(app_->FrameCount(), 0);
    EXPECT_FALSE(StoresTheSwitch());
    EXPECT_EQ(Notice(), "");
}

TEST_F(KirtoFaithful, OrdinaryFilesAreRefusedForNothing) {
    WriteRefused();
    Write("sound.gif", GifOf({10}));
    Start();
    Send(Files(kOpenFile, {"refused.gif"}));
    EXPECT_EQ(app_->Refusal(), HarmlessCause::kMissingTrailer);

    Send(Files(kOpenFile, {"sound.gif"}));

    EXPECT_EQ(app_->Refusal(), HarmlessCause::kNone);
    EXPECT_EQ(Notice(), "");
}

TEST_F(KirtoFaithful, TellsOfASaveThatShowsSomethingElse) {
    StartWithOneColor();

    Send(SaveTo(folder_.Path(), "other.gif"));

    EXPECT_EQ(WaitForNotice(), kSavedNotice);
    ASSERT_TRUE(app_->LastFinding());
    EXPECT_EQ(app_->LastFinding()->path, File("other.gif"));
}

TEST_F(KirtoFaithful, SavesAgainWithTheSwitchTurnedOn) {
    StartWithOneColor();
    Send(SaveTo(folder_.Path(), "other.gif"));
    WaitForNotice();

    Send(kSaveFaithfully);

    EXPECT_EQ(Notice(), "hidden");
    EXPECT_TRUE(StoresTheSwitch());
    EXPECT_FALSE(app_->Modified());
    EXPECT_FALSE(app_->LastFinding());
    EXPECT_EQ(app_->CurrentState()->file_name, "other.gif");
}

TEST_F(KirtoFaithful, ANoticeThatIsClosedSavesNothing) {
    StartWithOneColor();
    Send(SaveTo(folder_.Path(), "other.gif"));
    WaitForNotice();

    Send(kCloseNotice);
    EXPECT_FALSE(app_->LastFinding());
    Send(kSaveFaithfully);

    EXPECT_FALSE(app_->CurrentState()->settings->animation_faithful);
}

TEST_F(KirtoFaithful, ANewAnimationTakesTheNoticeAway) {
    StartWithOneColor();
    Send(SaveTo(folder_.Path(), "other.gif"));
    WaitForNotice();

    Send(kResetDocument);

    EXPECT_EQ(Notice(), "hidden");
    EXPECT_FALSE(app_->LastFinding());
}

TEST_F(KirtoFaithful, ComparesNothingThatIsSavedAsBrowsersShowIt) {
    prefs_.animation_faithful = true;
    StartWithOneColor();

    Send(SaveTo(folder_.Path(), "faithful.gif"));
    Send(kSaveChecked);

    EXPECT_EQ(Notice(), "");
}

}  // namespace kirto::test
