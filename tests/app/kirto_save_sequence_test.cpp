// Saving as a sequence of images, and which format a save again has.
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>

#include "app/kirto_fixture.h"
#include "support/full_disk.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kNotCreated =
    "The animation can't be saved because the file could not be created at this location.";
constexpr const char* kInvalidTranslator =
    "The animation can't be saved because the selected translator is not valid.";

// Whether a save again writes a GIF, after each way in which the document may have changed.
class KirtoSaveFormat : public KirtoFixture {
  protected:
    // Saves a sequence of images with the save panel.
    void SaveSequence() {
        app_->GetSaveFilePanel();
        desktop_.fields.output_format = FakeRoster::kRaw;
        Do(SaveTo(folder_.Path(), "movie.raw", FakeRoster::kRaw));
    }
};

TEST_F(KirtoSaveFormat, WritesASequenceAgain) {
    Start();
    Append({"one"});
    SaveSequence();
    Append({"two"});

    EXPECT_EQ(Do(kSaveAgain), "arsm auda");

    EXPECT_EQ(FolderContent(), (Lines{"movie0000.raw", "movie0001.raw"}));
}

TEST_F(KirtoSaveFormat, ForgetsTheFormatWithTheDocument) {
    Write("anim.gif", GifOf({10}));
    Start();
    for (const BMessage& command : {BMessage(kResetDocument), Files(kOpenFile, {"anim.gif"})}) {
        SaveSequence();

        Do(command);

        EXPECT_EQ(desktop_.fields.output_format, 0u) << CodeText(command.what);
    }
}

TEST_F(KirtoSaveFormat, KeepsTheFormatWhenAnAnimationIsInserted) {
    Write("anim.gif", GifOf({10}));
    Start();
    SaveSequence();
    BMessage insert = Files(kOpenFile, {"anim.gif"});
    insert.AddBool("reset", false);

    Do(insert);

    EXPECT_EQ(desktop_.fields.output_format, FakeRoster::kRaw);
}

TEST_F(KirtoSaveFormat, MakesNoSavePanelOnlyToForgetItsFormat) {
    Start();

    Do(kResetDocument);

    EXPECT_EQ(TakeLines(), Lines{});
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
    app_->SetModified(true);

    EXPECT_EQ(Do(SequenceTo("movie.tiff")), "arsm auda");

    EXPECT_EQ(FolderContent(), (Lines{"movie0000.tiff", "movie0001.tiff", "movie0002.tiff"}));
    EXPECT_EQ(ReadBytes(File("movie0002.tiff")), RawPicture(*app_->FrameAt(2)->bitmap));
    EXPECT_FALSE(app_->Modified());
    EXPECT_EQ(app_->CurrentState()->file_name, "movie.tiff");
    EXPECT_TRUE(app_->FrameAt(2)->bitmap->HasRows());
}

TEST_F(KirtoSaveSequence, SplitsTheNameAtItsFirstDot) {
    Start();
    Append({"one"});

    for (const std::string name : {"a.b.png", "plain", ".hidden", "100%d.png"})
        Do(SequenceTo(name));

    EXPECT_EQ(FolderContent(), (Lines{"0000.hidden", "100%d0000.png", "a0000.b.png", "plain0000"}));
}

TEST_F(KirtoSaveSequence, OfNoFramesSucceedsWithoutAFile) {
    Start();

    EXPECT_EQ(Do(SequenceTo("movie.raw")), "arsm auda");

    EXPECT_EQ(FolderContent(), Lines{});
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
    app_->SetModified(true);

    EXPECT_EQ(Do(SequenceTo("movie.raw", 99)), "arsm auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kInvalidTranslator)});
    EXPECT_TRUE(app_->Modified());
    EXPECT_EQ(FolderContent(), Lines{});
}

TEST_F(KirtoSaveSequence, GoesOnWithoutAFileFormat) {
    Start();
    Append({"one"});
    app_->SetModified(true);
    DebugRecorder debug;

    EXPECT_EQ(Do(SequenceTo("movie.raw", FakeRoster::kReadOnly)), "arsm auda");

    EXPECT_EQ(debug.Text(), "Kirto::SaveSequence() - Desired format is 0, this is not good\n");
    EXPECT_EQ(TakeLines(), Lines{WarningLine(kInvalidTranslator)});
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoSaveSequence, StopsAtAFrameThatCantBeTranslated) {
    Start();
    Append({"one", "two"});
    app_->SetModified(true);
    roster_.write_status = B_NO_TRANSLATOR;

    EXPECT_EQ(Do(SequenceTo("movie.raw")), "arsm auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kInvalidTranslator)});
    EXPECT_EQ(FolderContent(), Lines{});
    EXPECT_TRUE(app_->Modified());
    EXPECT_EQ(app_->CurrentState()->file_name, "movie.raw");
}

TEST_F(KirtoSaveSequence, StopsAtAFileThatCantBeCreated) {
    fs::create_directory(File("movie0001.raw"));
    Start();
    Append({"one", "two", "three"});
    app_->SetModified(true);

    EXPECT_EQ(Do(SequenceTo("movie.raw")), "arsm auda");

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNotCreated)});
    EXPECT_EQ(FolderContent(), (Lines{"movie0000.raw", "movie0001.raw"}));
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoSaveSequence, KeepsTheOldFileWhenTheNewOneCantBeWritten) {
    Write("movie0000.raw", {'o', 'l', 'd'});
    Start();
    Append({"one"});
    app_->SetModified(true);
    {
        const FullDisk disk;
        Do(SequenceTo("movie.raw"));
    }

    EXPECT_EQ(TakeLines(), Lines{WarningLine(kNotCreated)});
    EXPECT_EQ(ReadBytes(File("movie0000.raw")), (std::vector<uint8>{'o', 'l', 'd'}));
    EXPECT_EQ(FolderContent(), Lines{"movie0000.raw"});
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoSaveSequence, RemovesWhatAKilledSaveHasLeft) {
    Write(".kirto-0123456789abcdef", {1});
    fs::last_write_time(File(".kirto-0123456789abcdef"),
                        fs::file_time_type::clock::now() - std::chrono::hours(2));
    Start();
    Append({"one", "two"});

    Do(SequenceTo("movie.raw"));

    EXPECT_EQ(FolderContent(), (Lines{"movie0000.raw", "movie0001.raw"}));
}

TEST_F(KirtoSaveSequence, EndsBeforeTheNextFrameWhenAskedToStop) {
    Start();
    Append({"one"});
    app_->SetModified(true);
    app_->RequestStop();

    Do(SequenceTo("movie.raw"));

    EXPECT_EQ(FolderContent(), Lines{});
    EXPECT_TRUE(app_->Modified());
}

}  // namespace

}  // namespace kirto::test
