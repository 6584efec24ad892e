#include <gtest/gtest.h>
#include <optional>

#include "app/kirto_fixture.h"
#include "support/fake_video_programs.h"

namespace kirto::test {

namespace {

constexpr int32 kSalvage = 0;
constexpr const char* kDamaged =
    "WARNING [] The animation can't be opened because it was corrupted or unreadable. | Salvage | "
    "OK";
constexpr const char* kNoPalette =
    "The palette can't be loaded because the file was corrupted or unreadable.";

class KirtoOpen : public KirtoFixture {
  protected:
    BMessage InsertAt(std::optional<int32> position) const {
        BMessage message = Files(kOpenFile, {"anim.gif"});
        message.AddBool("reset", false);
        if (position) message.AddInt32("position", *position);
        return message;
    }
    // A GIF whose third image is cut.
    void WriteDamagedGif() const {
        std::vector<uint8> bytes = GifOf({10, 10, 10});
        bytes.resize(bytes.size() - 5);
        Write("broken.gif", bytes);
    }
    // A GIF of one image and 256 greys, none of them where a ramp has it.
    void WritePaletteGif() const {
        std::vector<uint32> table;
        for (uint32 i = 0; i < 256; ++i)
            table.push_back((255 - i) * 0x010101);
        GifBuilder::Image image;
        image.indices = {0};
        Write("colors.gif", GifBuilder(1, 1, table).Add(image).Trailer());
    }
};

TEST_F(KirtoOpen, NamesTheDocumentAfterTheFile) {
    Write("anim.gif", GifOf({10}));
    Start();

    Do(Files(kOpenFile, {"anim.gif"}));

    EXPECT_EQ(app_->CurrentState()->file_name, "anim.gif");
    EXPECT_EQ(app_->CurrentState()->file_directory, folder_.Path());
    EXPECT_EQ(app_->Current()->width, 2);
    EXPECT_FALSE(app_->Modified());
    EXPECT_TRUE(app_->open_panel_delivered);
}

TEST_F(KirtoOpen, OpensFlcFilesAsEndlessLoops) {
    Write("anim.flc", SmallFlc());
    prefs_.global_useloop = false;
    prefs_.global_loopcount = 7;
    Start();

    EXPECT_EQ(Do(Files(kOpenFile, {"anim.flc"})),
              "svup(Status: loading frame 1 of 1...) tvff auns tvff auda");

    EXPECT_EQ(app_->CurrentState()->file_name, "anim.flc");
    EXPECT_TRUE(app_->Current()->use_loop);
    EXPECT_EQ(app_->Current()->loop_count, 0);
}

TEST_F(KirtoOpen, ReplacesTheDocumentUnlessToldToInsert) {
    Write("anim.gif", GifOf({10}));
    Start();
    for (const bool says_reset : {false, true}) {
        Append({"old"});
        BMessage message = Files(kOpenFile, {"anim.gif"});
        if (says_reset) message.AddBool("reset", true);
        message.AddInt32("position", 1);

        Do(message);

        EXPECT_EQ(Names(), Lines{"[frame0000]"});
    }
}

TEST_F(KirtoOpen, InsertsAtThePositionAsked) {
    Write("anim.gif", GifOf({10}));
    for (const auto& [position, names] :
         {std::pair{std::optional<int32>(1), Lines{"[one]", "frame0001", "two"}},
          std::pair{std::optional<int32>(0), Lines{"[frame0000]", "one", "two"}},
          std::pair{std::optional<int32>(-1), Lines{"[frame0000]", "one", "two"}},
          std::pair{std::optional<int32>(-9), Lines{"[frame0000]", "one", "two"}},
          std::pair{std::optional<int32>(99), Lines{"[one]", "two", "frame0002"}},
          std::pair{std::optional<int32>(), Lines{"[frame0000]", "one", "two"}}}) {
        if (!app_) Start();
        Do(kResetDocument);
        Append({"one", "two"});

        Do(InsertAt(position));

        EXPECT_EQ(Names(), names);
        EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
        EXPECT_EQ(app_->CurrentState()->file_directory, "");
        EXPECT_TRUE(app_->Modified());
    }
}

TEST_F(KirtoOpen, WithoutAFileDoesNothing) {
    Start();
    Append({"old"});

    EXPECT_EQ(Do(kOpenFile), "tvff auda");

    EXPECT_EQ(Names(), Lines{"[old]"});
    EXPECT_FALSE(app_->open_panel_delivered);
}

TEST_F(KirtoOpen, OfAnotherKindOfFileLeavesTheDocumentReset) {
    Write("notes.txt", {'n'});
    Start();
    Append({"old"});

    EXPECT_EQ(Do(Files(kOpenFile, {"notes.txt"})), "tvff auda");

    EXPECT_EQ(app_->FrameCount(), 0);
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_EQ(
        TakeLines(),
        Lines{WarningLine("The animation can't be opened because this file type is unsupported.")});
}

TEST_F(KirtoOpen, KnowsFilesWithoutAnEndingByTheirMimeType) {
    Write("one", GifOf({10}));
    Write("two", SmallFlc());
    desktop_.mime_types = {{"one", "image/gif"}, {"two", "video/x-fli"}};
    Start();

    Do(Files(kOpenFile, {"one"}));
    EXPECT_EQ(app_->CurrentState()->file_name, "one");
    Do(Files(kOpenFile, {"two"}));

    EXPECT_EQ(app_->CurrentState()->file_name, "two");
    EXPECT_EQ(TakeLines(), Lines{});
}

TEST_F(KirtoOpen, SalvagesADamagedGif) {
    WriteDamagedGif();
    Start();
    desktop_.Answer({kSalvage});

    EXPECT_EQ(Do(Files(kOpenFile, {"broken.gif"})),
              "svup(Status: loading frame 1...) tvff auns svup(Status: loading frame 2...) auns "
              "svup(Status: loading frame 3...) tvff auda");

    EXPECT_EQ(TakeLines(), Lines{kDamaged});
    EXPECT_EQ(Names(), (Lines{"[frame0000]", "frame0001"}));
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoOpen, ThrowsADamagedGifAwayOnOk) {
    WriteDamagedGif();
    Start();

    Do(Files(kOpenFile, {"broken.gif"}));

    EXPECT_EQ(TakeLines(), Lines{kDamaged});
    EXPECT_EQ(app_->FrameCount(), 0);
    EXPECT_EQ(app_->Current()->width, 320);
}

TEST_F(KirtoOpen, TakesAMissingFileForADamagedOne) {
    Start();

    Do(Files(kOpenFile, {"missing.gif"}));
    Do(Files(kOpenFile, {"missing.fli"}));

    EXPECT_EQ(TakeLines(), (Lines{kDamaged, kDamaged}));
}

TEST_F(KirtoOpen, SharesOutThePausesOfAGif) {
    Write("anim.gif", GifOf({10, 10, 20}));
    Start();

    Do(Files(kOpenFile, {"anim.gif"}));

    EXPECT_EQ(app_->Current()->pause_length, 10);
    EXPECT_TRUE(app_->Current()->use_pause);
    EXPECT_FALSE(app_->FrameAt(0)->use_pause);
    EXPECT_EQ(app_->FrameAt(2)->pause_length, 20);
    EXPECT_TRUE(app_->FrameAt(2)->use_pause);
}

TEST_F(KirtoOpen, LoadsThePaletteThatTheAnimationWaitsFor) {
    WritePaletteGif();
    Start();
    Append({"old"});
    PaletteEditOf(*app_)->Set(kPaletteAwaitingFile);
    FramePaletteEditOf(*app_, app_->Selected())->Set(kPaletteAwaitingFile);

    EXPECT_EQ(Do(Files(kOpenFile, {"colors.gif"})), "tvff auda");

    EXPECT_EQ(app_->Current()->palette->mode, kPaletteFromFile);
    EXPECT_EQ(app_->Current()->palette->ColorForIndex(0), (rgb_color{255, 255, 255, 255}));
    EXPECT_EQ(app_->CurrentFrame()->palette->mode, kPaletteAwaitingFile);
    EXPECT_EQ(Names(), Lines{"[old]"});
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_TRUE(app_->Modified());
    EXPECT_TRUE(app_->open_panel_delivered);
}

TEST_F(KirtoOpen, LoadsThePaletteThatTheCurrentFrameWaitsFor) {
    WritePaletteGif();
    Start();
    Append({"old"});
    FramePaletteEditOf(*app_, app_->Selected())->Set(kPaletteAwaitingFile);

    Do(Files(kOpenFile, {"colors.gif"}));

    EXPECT_EQ(app_->CurrentFrame()->palette->mode, kPaletteFromFile);
    EXPECT_EQ(app_->Current()->palette->mode, kPaletteWebSafe);
    EXPECT_EQ(Names(), Lines{"[old]"});
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoOpen, PutsAPaletteBackThatCantBeLoaded) {
    Write("notes.txt", {'n'});
    Start();
    Append({"old"});
    for (const bool global : {true, false}) {
        app_->SetModified(false);
        if (global) {
            PaletteEditOf(*app_)->Set(kPaletteAwaitingFile);
        } else {
            FramePaletteEditOf(*app_, 0)->Set(kPaletteAwaitingFile);
        }

        EXPECT_EQ(Do(Files(kOpenFile, {"notes.txt"})), "tvff auda");

        const auto palette = global ? app_->Current()->palette : app_->FirstFrame()->palette;
        EXPECT_EQ(palette->mode, kPaletteWebSafe);
        EXPECT_TRUE(app_->Modified());
        EXPECT_EQ(TakeLines(), Lines{WarningLine(kNoPalette)});
    }
    EXPECT_EQ(Names(), Lines{"[old]"});
}

TEST_F(KirtoOpen, AskedToStopKeepsWhatIsDoneAndAsksNothing) {
    Write("anim.gif", GifOf({10}));
    Start();
    app_->RequestStop();

    EXPECT_EQ(Do(Files(kOpenFile, {"anim.gif"})),
              "tvff auda svup(Status: canceled, 0 new frame(s) kept)");

    EXPECT_EQ(TakeLines(), Lines{});
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
}

class KirtoOpenVideo : public KirtoOpen {
  protected:
    KirtoOpenVideo() { Write("clip.mp4", {1, 2, 3}); }
    BMessage OpenPart(const std::string& part) const {
        BMessage message = Files(kOpenFile, {"clip.mp4"});
        message.AddString("video", part);
        return message;
    }

    // What the window is asked after the command.
    BMessage QuestionAfter(const BMessage& command) {
        app_->PostMessage(command);
        WaitUntilIdle();
        for (const BMessage& message : desktop_.window->Messages()) {
            if (message.what == kAskAboutVideo) return message;
        }
        return {};
    }

    const FakeVideoPrograms programs_;
};

TEST_F(KirtoOpenVideo, AsksWhichPartIsWanted) {
    Start();
    Append({"old"});

    const BMessage question = QuestionAfter(Files(kOpenFile, {"clip.mp4"}));

    bool panel = true;
    EXPECT_EQ(question.FindBool("panel", &panel), B_OK);
    EXPECT_FALSE(panel);
    EXPECT_EQ(app_->FrameCount(), 1);
}

TEST_F(KirtoOpenVideo, OpensThePartThatIsWanted) {
    Start();

    Do(OpenPart(FakeVideoPrograms::kPart));

    EXPECT_EQ(app_->FrameCount(), 4);
    EXPECT_EQ(app_->Current()->width, 2);
    EXPECT_EQ(app_->CurrentState()->file_name, "clip.gif");
    EXPECT_FALSE(app_->Modified());
    EXPECT_EQ(TakeLines(), Lines());
}

TEST_F(KirtoOpenVideo, SaysThatAPartIsNotInTheVideo) {
    Start();

    Do(OpenPart("2-3"));

    EXPECT_EQ(
        TakeLines(),
        Lines{WarningLine("The video can't be opened because the chosen part is not in it.")});
    EXPECT_EQ(app_->FrameCount(), 0);
}

TEST_F(KirtoOpenVideo, InsertsItWhereItWasAskedFor) {
    Start();
    Append({"first", "last"});
    app_->Select(0);

    BMessage question = QuestionAfter(Files(kInsertAnimations, {"clip.mp4"}));
    question.what = kOpenFile;
    question.AddString("video", "");
    Do(question);

    EXPECT_EQ(app_->FrameCount(), 22);
    EXPECT_EQ(app_->Current()->frames.At(21)->name, "last");
    EXPECT_TRUE(app_->Modified());
}

}  // namespace

}  // namespace kirto::test
