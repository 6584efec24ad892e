#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "app/kirto_fixture.h"
#include "support/full_disk.h"
#include "support/port_watcher.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kFileNotCreated =
    "The animation can't be saved because the file could not be created at this location.";
constexpr const char* kAbandoned = "pending command abandoned";

class KirtoSave : public KirtoFixture {};

TEST_F(KirtoSave, WritesAGifAndTellsTheWindowToGoOn) {
    Start();
    Append({"one", "two"});
    app_->SetModified(true);

    EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")),
              "svup(Status: writing frame 1 of 2...) svup(Status: writing frame 2 of 2...) arsm "
              "auda");

    EXPECT_FALSE(app_->Modified());
    EXPECT_EQ(ReadBytes(File("out.gif")).at(0), 'G');
    EXPECT_EQ(FolderContent(), Lines{"out.gif"});
    EXPECT_EQ(TakeLines(), Lines{});
}

TEST_F(KirtoSave, TellsTheWindowToGoOnOnlyOnceNothingIsUnsaved) {
    Start();
    Append({"one"});
    int32 resumed = 0;
    app_->window = BMessenger(std::make_shared<PortWatcher>([&](uint32 code) {
        if (code != kResume) return;
        EXPECT_FALSE(app_->HasUnsavedChanges());
        ++resumed;
    }));
    for (const int64 format : {int64{0}, int64{FakeRoster::kRaw}}) {
        app_->SetModified(true);
        Do(SaveTo(folder_.Path(), "out.gif", format));
    }

    EXPECT_EQ(resumed, 2);
    app_->Quit();
}

TEST_F(KirtoSave, TakesBothNumbersOfTheAnimatedGifAndNoNumberForIt) {
    Start();
    Append({"one"});
    DebugRecorder debug;
    BMessage without_number(kSaveFile);
    without_number.AddRef("directory", entry_ref(folder_.Path()));
    without_number.AddString("name", "none.gif");

    Do(SaveTo(folder_.Path(), "zero.gif", 0));
    Do(SaveTo(folder_.Path(), "ones.gif", 0xFFFFFFFF));
    Do(SaveTo(folder_.Path(), "minus.gif", -1));
    EXPECT_EQ(debug.Text(), "");
    Do(without_number);

    EXPECT_EQ(debug.Text(),
              "Kirto::Save() - Could not recover translator_id from message, using animated GIF\n");
    EXPECT_EQ(FolderContent(), (Lines{"minus.gif", "none.gif", "ones.gif", "zero.gif"}));
}

TEST_F(KirtoSave, WithoutADirectoryOrANameSavesNothing) {
    Start();
    Append({"one"});
    app_->SetModified(true);
    BMessage without_name(kSaveFile);
    without_name.AddInt64("translator_id", 0);
    without_name.AddRef("directory", entry_ref(folder_.Path()));
    BMessage without_directory(kSaveFile);
    without_directory.AddInt64("translator_id", 0);
    without_directory.AddString("name", "out.gif");

    EXPECT_EQ(Do(without_name), "auda");
    EXPECT_EQ(Do(without_directory), "auda");

    EXPECT_TRUE(app_->Modified());
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoSave, CutsTheNameAtAWholeCharacter) {
    Start();
    const std::string name = std::string(254, 'n') + "\xC3\xA4.gif";

    // A sequence keeps its name even where its files can't be made.
    Do(SaveTo(folder_.Path(), name, FakeRoster::kRaw));

    EXPECT_EQ(app_->CurrentState()->file_name, std::string(254, 'n'));
}

TEST_F(KirtoSave, LetsThePaletteFollowItsFrameFirst) {
    Start();
    Append({"one"});
    PaletteEditOf(*app_)->Set(kPaletteFirstFrame);

    Do(SaveTo(folder_.Path(), "out.gif"));

    EXPECT_EQ(app_->Current()->palette->mode, kPaletteFirstFrame);
    EXPECT_EQ(app_->Current()->palette->ColorForIndex(0), (rgb_color{0x64, 0x64, 0x64, 255}));
}

TEST_F(KirtoSave, RefusesFramesLargerThanTheAnimation) {
    Start();
    Append({"one"});
    for (const bool too_wide : {true, false}) {
        EditOf(*app_)->width = too_wide ? 0 : 5;
        EditOf(*app_)->height = too_wide ? 5 : 0;
        app_->SetModified(true);

        EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")), "auda");

        EXPECT_EQ(TakeLines(), (Lines{WarningLine("The animation can't be saved because one of the "
                                                  "frames has a larger size than the animation."),
                                      kAbandoned}));
        EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
        EXPECT_EQ(app_->CurrentState()->file_directory, "");
        EXPECT_TRUE(app_->Modified());
    }
    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoSave, ForgetsANameThatCantBeCreated) {
    Start();
    Append({"one"});
    app_->SetModified(true);

    EXPECT_EQ(Do(SaveTo(File("missing"), "out.gif")), "auda");

    EXPECT_EQ(TakeLines(), (Lines{WarningLine(kFileNotCreated), kAbandoned}));
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_EQ(app_->CurrentState()->file_directory, "");
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoSave, AgainWithoutADirectoryWritesNothing) {
    fs::create_directory(File("gone"));
    Start();
    Append({"one"});
    Do(SaveTo(File("gone"), "out.gif"));
    fs::remove_all(File("gone"));
    app_->SetModified(true);
    const fs::path before = fs::current_path();
    fs::current_path(folder_.Path());

    for (const uint32 format : {uint32{0}, uint32{FakeRoster::kRaw}, uint32{0}}) {
        desktop_.fields.output_format = format;
        Do(kSaveAgain);
    }

    fs::current_path(before);
    Lines lines = TakeLines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), WarningLine(kFileNotCreated)), 3);
    EXPECT_TRUE(app_->Modified());
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoSave, KeepsTheOldFileWhenTheNewOneCantBeWritten) {
    Write("out.gif", {'o', 'l', 'd'});
    Start();
    Append({"one"});
    app_->SetModified(true);
    std::string transcript;
    {
        const FullDisk disk;
        transcript = Do(SaveTo(folder_.Path(), "out.gif"));
    }

    EXPECT_EQ(transcript, "svup(Status: writing frame 1 of 1...) auda");
    EXPECT_EQ(TakeLines(), (Lines{WarningLine(kFileNotCreated), kAbandoned}));
    EXPECT_EQ(ReadBytes(File("out.gif")), (std::vector<uint8>{'o', 'l', 'd'}));
    EXPECT_EQ(FolderContent(), Lines{"out.gif"});
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoSave, AskedToStopKeepsTheOldFileAndTheOldNameAndAsksNothing) {
    Write("out.gif", {'o', 'l', 'd'});
    Start();
    Append({"one"});
    app_->SetModified(true);
    app_->RequestStop();

    const std::string transcript = Do(SaveTo(folder_.Path(), "out.gif"));

    EXPECT_EQ(transcript.find("arsm"), std::string::npos);
    EXPECT_EQ(TakeLines(), Lines{kAbandoned});
    EXPECT_EQ(ReadBytes(File("out.gif")), (std::vector<uint8>{'o', 'l', 'd'}));
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_TRUE(app_->Modified());
}

// A document that is saved as "out.gif", which somebody else then writes to.
class KirtoSaveAgain : public KirtoFixture {
  protected:
    static constexpr int32 kOverwriteButton = 0;
    static constexpr int32 kSaveAsButton = 1;
    static constexpr int32 kCancelButton = 2;

    void StartAndSave() {
        Start();
        Append({"one"});
        Do(SaveTo(folder_.Path(), "out.gif"));
        app_->SetModified(true);
    }
    const Lines kQuestion{
        "panel save made",
        "WARNING [] Another program has changed the file \"out.gif\" since it was opened or saved. "
        "Do you want to overwrite it? | Overwrite | Save As... | Cancel"};
    const std::vector<uint8> kTheirs{'n', 'e', 'w'};
};

TEST_F(KirtoSaveAgain, OverwritesItsOwnFileWithoutAsking) {
    StartAndSave();

    EXPECT_EQ(Do(kSaveAgain), "svup(Status: writing frame 1 of 1...) arsm auda");
    EXPECT_EQ(Do(kSaveAgain), "svup(Status: writing frame 1 of 1...) arsm auda");

    EXPECT_EQ(TakeLines(), Lines{"panel save made"});
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoSaveAgain, AsksBeforeItOverwritesWhatAnotherProgramHasWritten) {
    StartAndSave();
    Write("out.gif", kTheirs);
    desktop_.Answer({kOverwriteButton});

    EXPECT_EQ(Do(kSaveAgain), "svup(Status: writing frame 1 of 1...) arsm auda");

    EXPECT_EQ(TakeLines(), kQuestion);
    EXPECT_EQ(ReadBytes(File("out.gif")).at(0), 'G');
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoSaveAgain, LeavesWhatAnotherProgramHasWrittenOnCancel) {
    StartAndSave();
    Write("out.gif", kTheirs);
    desktop_.Answer({kCancelButton});

    EXPECT_EQ(Do(kSaveAgain), "auda");

    Lines expected = kQuestion;
    expected.push_back("pending command abandoned");
    EXPECT_EQ(TakeLines(), expected);
    EXPECT_EQ(ReadBytes(File("out.gif")), kTheirs);
    EXPECT_EQ(app_->CurrentState()->file_name, "out.gif");
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoSaveAgain, AsksTheWindowForAnotherNameWhenTheUserWantsOne) {
    StartAndSave();
    Write("out.gif", kTheirs);
    desktop_.Answer({kSaveAsButton});

    EXPECT_EQ(Do(kSaveAgain), "awfa auda");

    EXPECT_EQ(TakeLines(), kQuestion);
    EXPECT_EQ(ReadBytes(File("out.gif")), kTheirs);
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoSaveAgain, AsksAboutAFileThatChangedSinceItWasOpened) {
    Write("out.gif", GifOf({10}));
    Start();
    Do(Files(kOpenFile, {"out.gif"}));
    app_->SetModified(true);
    Write("out.gif", kTheirs);
    desktop_.Answer({kCancelButton});

    Do(kSaveAgain);

    EXPECT_EQ(ReadBytes(File("out.gif")), kTheirs);
}

TEST_F(KirtoSaveAgain, OverwritesAFileThatIsAsItWasOpenedWithoutAsking) {
    Write("out.gif", GifOf({10, 20}));
    Start();
    Do(Files(kOpenFile, {"out.gif"}));
    app_->SetModified(true);

    Do(kSaveAgain);

    EXPECT_EQ(TakeLines(), Lines{"panel save made"});
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoSaveAgain, WritesAFileThatHasVanishedWithoutAsking) {
    StartAndSave();
    fs::remove(File("out.gif"));

    Do(kSaveAgain);

    EXPECT_EQ(FolderContent(), Lines{"out.gif"});
    EXPECT_EQ(TakeLines(), Lines{"panel save made"});
}

TEST_F(KirtoSave, RefusesSizesThatAGifHasNoRoomFor) {
    Start();
    Append({"one"});
    const auto expect_refused = [&](const std::string& field) {
        EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")), "auda");
        EXPECT_EQ(TakeLines(), (Lines{WarningLine("The animation can't be saved because " + field +
                                                  " is not between 0 and 65535."),
                                      kAbandoned}));
        EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
        EXPECT_EQ(FolderContent(), Lines{});
    };
    EditOf(*app_)->width = 65536;
    expect_refused("Width");
    EditOf(*app_)->width = 65535;
    EditOf(*app_)->height = 65536;
    expect_refused("Height");
    EditOf(*app_)->height = 65535;
    FrameEditOf(*app_, 0)->x_offset = 65536;
    expect_refused("XOffset of one");
    FrameEditOf(*app_, 0)->x_offset = 65535;
    FrameEditOf(*app_, 0)->y_offset = 65536;
    expect_refused("YOffset of one");
    FrameEditOf(*app_, 0)->y_offset = 65535;

    Do(SaveTo(folder_.Path(), "out.gif"));

    EXPECT_EQ(FolderContent(), Lines{"out.gif"});
}

TEST_F(KirtoSave, TellsOfNumbersThatAGifCutsShort) {
    Start();
    Append({"one", "two"});
    EditOf(*app_)->use_loop = true;
    EditOf(*app_)->loop_count = 65537;
    FrameEditOf(*app_, 0)->use_pause = true;
    FrameEditOf(*app_, 0)->pause_length = 65536;

    EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")),
              "svup(Status: writing frame 1 of 2...) svup(Status: writing frame 2 of 2...) arsm "
              "auda svup(Status: saved, but loop count 65537 was saved as 1, 1 pause(s) above "
              "655.35 seconds were saved shorter)");
    EXPECT_FALSE(app_->Modified());
    EditOf(*app_)->loop_count = 65535;
    FrameEditOf(*app_, 0)->pause_length = 65535;
    EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")),
              "svup(Status: writing frame 1 of 2...) svup(Status: writing frame 2 of 2...) arsm "
              "auda");
}

TEST_F(KirtoSave, TellsWhatBrowsersShowOtherwiseThoughItIsSavedFaithfully) {
    prefs_.animation_faithful = true;
    Start();
    Append({"one"});
    FrameEditOf(*app_, 0)->use_pause = true;
    FrameEditOf(*app_, 0)->pause_length = 1;

    EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")),
              "svup(Status: writing frame 1 of 1...) arsm auda svup(Status: saved, but browsers "
              "will play 1 frame slower: its pause is below 0.02 seconds)");
    FrameEditOf(*app_, 0)->pause_length = 2;
    EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")),
              "svup(Status: writing frame 1 of 1...) arsm auda");
}

}  // namespace

}  // namespace kirto::test
