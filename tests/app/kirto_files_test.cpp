#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>

#include "app/kirto_fixture.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

constexpr int32 kSalvage = 0;
constexpr const char* kDamaged =
    "WARNING [] The animation can't be opened because it was corrupted or unreadable. | Salvage | "
    "OK";
constexpr const char* kPaletteUnreadable =
    "The palette can't be loaded because the file was corrupted or unreadable.";
constexpr const char* kNotCreated =
    "The animation can't be saved because the file could not be created at this location.";
constexpr const char* kInvalidTranslator =
    "The animation can't be saved because the selected translator is not valid.";
constexpr const char* kNoPreview =
    "The animation can't be previewed because a temporary file could not be created.";

// Lets no file of the process grow while it lives.
class FullDisk {
  public:
    FullDisk() : previous_handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &previous_);
        const rlimit nothing{0, previous_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &nothing);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previous_handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit previous_{};
    void (*previous_handler_)(int);
};

// The names in a folder, sorted.
Lines NamesIn(const std::string& folder) {
    Lines names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

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

    EXPECT_EQ(app_->file_name, "anim.gif");
    EXPECT_EQ(app_->file_directory, folder_.Path());
    EXPECT_EQ(app_->global_width, 2);
    EXPECT_FALSE(app_->modified);
    EXPECT_TRUE(app_->open_panel_delivered);
}

TEST_F(KirtoOpen, OpensFlcFilesAsEndlessLoops) {
    Write("anim.flc", SmallFlc());
    prefs_.global_useloop = false;
    prefs_.global_loopcount = 7;
    Start();

    EXPECT_EQ(Do(Files(kOpenFile, {"anim.flc"})),
              "svup(Status: loading frame 1 of 1...) tvff auns tvff auda");

    EXPECT_EQ(app_->file_name, "anim.flc");
    EXPECT_TRUE(app_->use_loop);
    EXPECT_EQ(app_->loop_count, 0);
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
        EXPECT_EQ(app_->file_name, "untitled");
        EXPECT_EQ(app_->file_directory, "");
        EXPECT_TRUE(app_->modified);
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
    EXPECT_EQ(app_->file_name, "untitled");
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
    EXPECT_EQ(app_->file_name, "one");
    Do(Files(kOpenFile, {"two"}));

    EXPECT_EQ(app_->file_name, "two");
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
    EXPECT_EQ(app_->file_name, "untitled");
    EXPECT_FALSE(app_->modified);
}

TEST_F(KirtoOpen, ThrowsADamagedGifAwayOnOk) {
    WriteDamagedGif();
    Start();

    Do(Files(kOpenFile, {"broken.gif"}));

    EXPECT_EQ(TakeLines(), Lines{kDamaged});
    EXPECT_EQ(app_->FrameCount(), 0);
    EXPECT_EQ(app_->global_width, 320);
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

    EXPECT_EQ(app_->pause_length_global, 10);
    EXPECT_TRUE(app_->use_pause_global);
    EXPECT_FALSE(app_->FrameAt(0)->use_pause);
    EXPECT_EQ(app_->FrameAt(2)->pause_length, 20);
    EXPECT_TRUE(app_->FrameAt(2)->use_pause);
}

TEST_F(KirtoOpen, LoadsThePaletteThatTheAnimationWaitsFor) {
    WritePaletteGif();
    Start();
    Append({"old"});
    app_->global_palette->Set(kPaletteAwaitingFile);
    app_->CurrentFrame()->palette->Set(kPaletteAwaitingFile);

    EXPECT_EQ(Do(Files(kOpenFile, {"colors.gif"})), "tvff auda");

    EXPECT_EQ(app_->global_palette->mode, kPaletteFromFile);
    EXPECT_EQ(app_->global_palette->ColorForIndex(0), (rgb_color{255, 255, 255, 255}));
    EXPECT_EQ(app_->CurrentFrame()->palette->mode, kPaletteAwaitingFile);
    EXPECT_EQ(Names(), Lines{"[old]"});
    EXPECT_EQ(app_->file_name, "untitled");
    EXPECT_TRUE(app_->modified);
    EXPECT_TRUE(app_->open_panel_delivered);
}

TEST_F(KirtoOpen, LoadsThePaletteThatTheCurrentFrameWaitsFor) {
    WritePaletteGif();
    Start();
    Append({"old"});
    app_->CurrentFrame()->palette->Set(kPaletteAwaitingFile);

    Do(Files(kOpenFile, {"colors.gif"}));

    EXPECT_EQ(app_->CurrentFrame()->palette->mode, kPaletteFromFile);
    EXPECT_EQ(app_->global_palette->mode, kPaletteWebSafe);
    EXPECT_EQ(Names(), Lines{"[old]"});
    EXPECT_TRUE(app_->modified);
}

TEST_F(KirtoOpen, PutsAPaletteBackThatCantBeLoaded) {
    Write("notes.txt", {'n'});
    Start();
    Append({"old"});
    for (Palette* palette : {app_->global_palette.get(), app_->CurrentFrame()->palette.get()}) {
        app_->modified = false;
        palette->Set(kPaletteAwaitingFile);

        EXPECT_EQ(Do(Files(kOpenFile, {"notes.txt"})), "tvff auda");

        EXPECT_EQ(palette->mode, kPaletteWebSafe);
        EXPECT_TRUE(app_->modified);
        EXPECT_EQ(TakeLines(), Lines{WarningLine(kPaletteUnreadable)});
    }
    EXPECT_EQ(Names(), Lines{"[old]"});
}

TEST_F(KirtoOpen, AskedToStopKeepsWhatIsDoneAndAsksNothing) {
    Write("anim.gif", GifOf({10}));
    Start();
    app_->RequestStop();

    EXPECT_EQ(Do(Files(kOpenFile, {"anim.gif"})), "svup(Status: loading frame 1...) tvff auda");

    EXPECT_EQ(TakeLines(), Lines{});
    EXPECT_EQ(app_->file_name, "untitled");
}

class KirtoSave : public KirtoFixture {};

TEST_F(KirtoSave, WritesAGifAndTellsTheWindowToGoOn) {
    Start();
    Append({"one", "two"});
    app_->modified = true;

    EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")),
              "svup(Status: writing frame 1 of 2...) svup(Status: writing frame 2 of 2...) arsm "
              "auda");

    EXPECT_FALSE(app_->modified);
    EXPECT_EQ(ReadBytes(File("out.gif")).at(0), 'G');
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{"out.gif"});
    EXPECT_EQ(TakeLines(), Lines{});
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
    EXPECT_EQ(NamesIn(folder_.Path()), (Lines{"minus.gif", "none.gif", "ones.gif", "zero.gif"}));
}

TEST_F(KirtoSave, WithoutADirectoryOrANameSavesNothing) {
    Start();
    Append({"one"});
    app_->modified = true;
    BMessage without_name(kSaveFile);
    without_name.AddInt64("translator_id", 0);
    without_name.AddRef("directory", entry_ref(folder_.Path()));
    BMessage without_directory(kSaveFile);
    without_directory.AddInt64("translator_id", 0);
    without_directory.AddString("name", "out.gif");

    EXPECT_EQ(Do(without_name), "auda");
    EXPECT_EQ(Do(without_directory), "auda");

    EXPECT_TRUE(app_->modified);
    EXPECT_EQ(app_->file_name, "untitled");
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
}

TEST_F(KirtoSave, CutsTheNameAtAWholeCharacter) {
    Start();
    const std::string name = std::string(254, 'n') + "\xC3\xA4.gif";

    // A sequence keeps its name even where its files can't be made.
    Do(SaveTo(folder_.Path(), name, FakeRoster::kRaw));

    EXPECT_EQ(app_->file_name, std::string(254, 'n'));
}

TEST_F(KirtoSave, LetsThePaletteFollowItsFrameFirst) {
    Start();
    Append({"one"});
    app_->global_palette->Set(kPaletteFirstFrame);

    Do(SaveTo(folder_.Path(), "out.gif"));

    EXPECT_EQ(app_->global_palette->mode, kPaletteFirstFrame);
    EXPECT_EQ(app_->global_palette->ColorForIndex(0), (rgb_color{0x64, 0x64, 0x64, 255}));
}

TEST_F(KirtoSave, RefusesFramesLargerThanTheAnimation) {
    Start();
    Append({"one"});
    for (const bool too_wide : {true, false}) {
        app_->global_width = too_wide ? 0 : 5;
        app_->global_height = too_wide ? 5 : 0;
        app_->modified = true;

        EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")), "auda");

        EXPECT_EQ(TakeLines(), Lines{WarningLine("The animation can't be saved because one of the "
                                                 "frames has a larger size than the animation.")});
        EXPECT_EQ(app_->file_name, "untitled");
        EXPECT_EQ(app_->file_directory, "");
        EXPECT_TRUE(app_->modified);
    }
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
}

TEST_F(KirtoSave, ForgetsANameThatCantBeCreated) {
    Start();
    Append({"one"});
    app_->modified = true;

    EXPECT_EQ(Do(SaveTo(File("missing"), "out.gif")), "auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNotCreated)});
    EXPECT_EQ(app_->file_name, "untitled");
    EXPECT_EQ(app_->file_directory, "");
    EXPECT_TRUE(app_->modified);
}

TEST_F(KirtoSave, KeepsTheOldFileWhenTheNewOneCantBeWritten) {
    Write("out.gif", {'o', 'l', 'd'});
    Start();
    Append({"one"});
    app_->modified = true;
    std::string transcript;
    {
        const FullDisk disk;
        transcript = Do(SaveTo(folder_.Path(), "out.gif"));
    }

    EXPECT_EQ(transcript, "svup(Status: writing frame 1 of 1...) auda");
    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNotCreated)});
    EXPECT_EQ(ReadBytes(File("out.gif")), (std::vector<uint8>{'o', 'l', 'd'}));
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{"out.gif"});
    EXPECT_EQ(app_->file_name, "untitled");
    EXPECT_TRUE(app_->modified);
}

TEST_F(KirtoSave, AskedToStopKeepsTheOldFileAndTheNameAndSaysNothing) {
    Write("out.gif", {'o', 'l', 'd'});
    Start();
    Append({"one"});
    app_->modified = true;
    app_->RequestStop();

    const std::string transcript = Do(SaveTo(folder_.Path(), "out.gif"));

    EXPECT_EQ(transcript.find("arsm"), std::string::npos);
    EXPECT_EQ(TakeLines(), Lines{});
    EXPECT_EQ(ReadBytes(File("out.gif")), (std::vector<uint8>{'o', 'l', 'd'}));
    EXPECT_EQ(app_->file_name, "out.gif");
    EXPECT_TRUE(app_->modified);
}

class KirtoSaveSequence : public KirtoFixture {
  protected:
    BMessage SequenceTo(const std::string& name, int64 translator = FakeRoster::kRaw) const {
        return SaveTo(folder_.Path(), name, translator);
    }
};

TEST_F(KirtoSaveSequence, NumbersTheFilesBeforeTheEnding) {
    Start();
    Append({"one", "two", "three"});
    app_->modified = true;

    EXPECT_EQ(Do(SequenceTo("movie.tiff")), "arsm auda");

    EXPECT_EQ(NamesIn(folder_.Path()),
              (Lines{"movie0000.tiff", "movie0001.tiff", "movie0002.tiff"}));
    EXPECT_EQ(ReadBytes(File("movie0002.tiff")), RawPicture(*app_->FrameAt(2)->bitmap));
    EXPECT_FALSE(app_->modified);
    EXPECT_EQ(app_->file_name, "movie.tiff");
    EXPECT_TRUE(app_->FrameAt(2)->bitmap->Bits());
}

TEST_F(KirtoSaveSequence, SplitsTheNameAtItsFirstDot) {
    Start();
    Append({"one"});

    for (const std::string name : {"a.b.png", "plain", ".hidden", "100%d.png"})
        Do(SequenceTo(name));

    EXPECT_EQ(NamesIn(folder_.Path()),
              (Lines{"0000.hidden", "100%d0000.png", "a0000.b.png", "plain0000"}));
}

TEST_F(KirtoSaveSequence, OfNoFramesSucceedsWithoutAFile) {
    Start();

    EXPECT_EQ(Do(SequenceTo("movie.raw")), "arsm auda");

    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
}

TEST_F(KirtoSaveSequence, HandsTheTranslatorItsSettings) {
    Start();
    Append({"one"});
    BMessage settings;
    settings.AddInt32("quality", 7);
    app_->translator_settings[FakeRoster::kRaw] = settings;

    Do(SequenceTo("movie.raw"));

    EXPECT_EQ(roster_.written_settings, settings);
}

TEST_F(KirtoSaveSequence, RefusesAnUnknownTranslator) {
    Start();
    Append({"one"});
    app_->modified = true;

    EXPECT_EQ(Do(SequenceTo("movie.raw", 99)), "arsm auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kInvalidTranslator)});
    EXPECT_TRUE(app_->modified);
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
}

TEST_F(KirtoSaveSequence, GoesOnWithoutAFileFormat) {
    Start();
    Append({"one"});
    app_->modified = true;
    DebugRecorder debug;

    EXPECT_EQ(Do(SequenceTo("movie.raw", FakeRoster::kReadOnly)), "arsm auda");

    EXPECT_EQ(debug.Text(), "Kirto::SaveSequence() - Desired format is 0, this is not good\n");
    EXPECT_EQ(TakeLines(), Lines{WarningLine(kInvalidTranslator)});
    EXPECT_TRUE(app_->modified);
}

TEST_F(KirtoSaveSequence, StopsAtAFrameThatCantBeTranslated) {
    Start();
    Append({"one", "two"});
    app_->modified = true;
    roster_.write_status = B_NO_TRANSLATOR;

    EXPECT_EQ(Do(SequenceTo("movie.raw")), "arsm auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kInvalidTranslator)});
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
    EXPECT_TRUE(app_->modified);
    EXPECT_EQ(app_->file_name, "movie.raw");
}

TEST_F(KirtoSaveSequence, StopsAtAFileThatCantBeCreated) {
    fs::create_directory(File("movie0001.raw"));
    Start();
    Append({"one", "two", "three"});
    app_->modified = true;

    EXPECT_EQ(Do(SequenceTo("movie.raw")), "arsm auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNotCreated)});
    EXPECT_EQ(NamesIn(folder_.Path()), (Lines{"movie0000.raw", "movie0001.raw"}));
    EXPECT_TRUE(app_->modified);
}

TEST_F(KirtoSaveSequence, KeepsTheOldFileWhenTheNewOneCantBeWritten) {
    Write("movie0000.raw", {'o', 'l', 'd'});
    Start();
    Append({"one"});
    app_->modified = true;
    {
        const FullDisk disk;
        Do(SequenceTo("movie.raw"));
    }

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNotCreated)});
    EXPECT_EQ(ReadBytes(File("movie0000.raw")), (std::vector<uint8>{'o', 'l', 'd'}));
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{"movie0000.raw"});
    EXPECT_TRUE(app_->modified);
}

TEST_F(KirtoSaveSequence, EndsBeforeTheNextFrameWhenAskedToStop) {
    Start();
    Append({"one"});
    app_->modified = true;
    app_->RequestStop();

    Do(SequenceTo("movie.raw"));

    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
    EXPECT_TRUE(app_->modified);
}

class KirtoPreview : public KirtoFixture {};

TEST_F(KirtoPreview, WritesAFileThatOnlyTheUserCanRead) {
    Start();
    Append({"one"});
    app_->modified = true;

    EXPECT_EQ(Do(kPreview), "svup(Status: writing frame 1 of 1...) auda");

    struct stat info {};
    ASSERT_EQ(stat(File("kirtotemp.gif").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0600u);
    EXPECT_EQ(ReadBytes(File("kirtotemp.gif")).at(0), 'G');
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{"kirtotemp.gif"});
    EXPECT_EQ(app_->file_name, "untitled");
    EXPECT_TRUE(app_->modified);
}

TEST_F(KirtoPreview, ReplacesALinkInItsPlaceAndLeavesTheTargetAlone) {
    Write("precious.gif", {'o', 'l', 'd'});
    fs::create_symlink(File("precious.gif"), File("kirtotemp.gif"));
    Start();
    Append({"one"});

    Do(kPreview);

    EXPECT_FALSE(fs::is_symlink(File("kirtotemp.gif")));
    EXPECT_EQ(ReadBytes(File("kirtotemp.gif")).at(0), 'G');
    EXPECT_EQ(ReadBytes(File("precious.gif")), (std::vector<uint8>{'o', 'l', 'd'}));
}

TEST_F(KirtoPreview, ReplacesThePreviewBefore) {
    Write("kirtotemp.gif", {'o', 'l', 'd'});
    Start();
    Append({"one"});

    Do(kPreview);

    EXPECT_EQ(ReadBytes(File("kirtotemp.gif")).at(0), 'G');
}

TEST_F(KirtoPreview, FallsBackToTheHomeFolderAndTheSettingSaysSo) {
    prefs_.misc_tempfilelocation = File("missing");
    Start();
    Append({"one"});

    Do(kPreview);

    EXPECT_EQ(prefs_.misc_tempfilelocation, folder_.Path());
    EXPECT_EQ(TakeLines(), Lines{"browser " + File("kirtotemp.gif")});
}

TEST_F(KirtoPreview, RefusesFramesLargerThanTheAnimation) {
    prefs_.misc_tempfilelocation = File("missing");
    Start();
    Append({"one"});
    app_->global_width = 0;
    app_->file_name = "kept.gif";
    app_->file_directory = folder_.Path();

    EXPECT_EQ(Do(kPreview), "auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine("The animation can't be previewed because one of the "
                                             "frames has a larger size than the animation.")});
    EXPECT_EQ(app_->file_name, "kept.gif");
    EXPECT_EQ(app_->file_directory, folder_.Path());
    EXPECT_EQ(prefs_.misc_tempfilelocation, File("missing"));
}

TEST_F(KirtoPreview, TellsWhenItCantBeWritten) {
    Start();
    Append({"one"});
    {
        const FullDisk disk;
        Do(kPreview);
    }

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNoPreview)});
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
}

TEST_F(KirtoPreview, TellsWhenItsFolderRefusesIt) {
    fs::create_directory(File("kirtotemp.gif"));
    Write("kirtotemp.gif/full", {1});
    Start();
    Append({"one"});

    Do(kPreview);

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNoPreview)});
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{"kirtotemp.gif"});
}

TEST_F(KirtoPreview, LetsThePaletteFollowItsFrameFirst) {
    Start();
    Append({"one"});
    app_->global_palette->Set(kPaletteCurrentFrame);

    Do(kPreview);

    EXPECT_EQ(app_->global_palette->ColorForIndex(0), (rgb_color{0x64, 0x64, 0x64, 255}));
}

TEST_F(KirtoPreview, AskedToStopShowsNothing) {
    Start();
    Append({"one"});
    app_->RequestStop();

    Do(kPreview);

    EXPECT_EQ(TakeLines(), Lines{});
    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
}

TEST_F(KirtoPreview, IsRemovedAtTheEnd) {
    Start();
    Append({"one"});
    Do(kPreview);

    app_.reset();

    EXPECT_EQ(NamesIn(folder_.Path()), Lines{});
}

}  // namespace

}  // namespace kirto::test
