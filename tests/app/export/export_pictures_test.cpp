// Exports of several pictures, and what is read back of them.
#include "app/export/export_pictures.h"

#include "app/export/export_fixture.h"
#include "app/export/export_trial.h"
#include "app/export/fit_under.h"
#include "app/export/image_encoder.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

// Three frames of 3 x 2 pixels; the second one is smaller and stands at the right.
struct PicturesFixture : ExportFixture {
    ExportSettings settings;

    explicit PicturesFixture(ExportFormat format) {
        settings.format = format;
        settings.image = "raw";
        animation.width = 3;
        animation.height = 2;
        for (uint32 i = 0; i < 3; ++i)
            Add(std::vector<uint32>(6, 0xFF102030 * (i + 1)), 4 + i);
        EditFrame(animation, 1, [](Frame& frame) {
            frame.bitmap = FramePictureOf(1, 1, {0xFF00FF00}, B_RGBA32);
            frame.width = frame.height = 1;
            frame.x_offset = 2;
        });
    }
    ExportTrial::Outcome Try() {
        return ExportTrial({std::make_shared<const Animation>(animation),
                            in_seconds,
                            budget,
                            roster,
                            settings,
                            {},
                            "walk.raw"})
            .Run();
    }
};

std::vector<uint32> PixelsIn(const std::vector<uint8>& raw) {
    FakeRoster roster;
    std::shared_ptr<BBitmap> picture;
    EXPECT_EQ(roster.Translate(*BFile::OnMemory(raw), nullptr, &picture), B_OK);
    return picture ? PixelsOf(*picture) : std::vector<uint32>();
}

std::string TextIn(const std::string& path) {
    const std::vector<uint8> bytes = ReadBytes(path);
    return {bytes.begin(), bytes.end()};
}

}  // namespace

TEST(ExportPictures, ASheetHasTheFramesSideBySideAndTellsWhereTheyAre) {
    PicturesFixture fixture(ExportFormat::kSheet);
    fixture.settings.columns = 2;
    fixture.settings.padding = 1;
    ASSERT_EQ(fixture.Export(fixture.settings), ExportResult::kDone);
    ASSERT_TRUE(fixture.files.sheet);
    EXPECT_EQ(fixture.files.sheet->width, 7);
    EXPECT_EQ(fixture.files.sheet->height, 5);
    ASSERT_EQ(fixture.files.sheet->frames.size(), 3u);
    EXPECT_EQ(fixture.files.sheet->frames[1].left, 4);
    EXPECT_EQ(fixture.files.sheet->frames[2].milliseconds, 60);
    const auto pixels = PixelsIn(fixture.bytes);
    EXPECT_EQ(pixels[0], 0xFF102030);
    EXPECT_EQ(pixels[3], 0u);
    EXPECT_EQ(pixels[4], 0xFF00FF00);
}

TEST(ExportPictures, EachNumberedImageIsTheCanvasWithItsFrame) {
    PicturesFixture fixture(ExportFormat::kImages);
    ASSERT_EQ(fixture.Export(fixture.settings), ExportResult::kDone);
    ASSERT_EQ(fixture.files.contents.size(), 3u);
    EXPECT_EQ(PixelsIn(fixture.files.contents[1]),
              (std::vector<uint32>{0, 0, 0xFF00FF00, 0, 0, 0}));
}

TEST(ExportPictures, ScaleAndEveryNthFrameHold) {
    for (const ExportFormat format : {ExportFormat::kSheet, ExportFormat::kImages}) {
        PicturesFixture fixture(format);
        fixture.settings.scale = 200;
        fixture.settings.every = 2;
        const ExportTrial::Outcome outcome = fixture.Try();
        ASSERT_EQ(outcome.result, ExportResult::kDone);
        ASSERT_TRUE(outcome.shown);
        EXPECT_EQ(outcome.shown->frames.Size(), 2);
        EXPECT_EQ(outcome.shown->width, 6);
        EXPECT_EQ(outcome.shown->height, 4);
        EXPECT_EQ(outcome.shown->PauseOf(*outcome.shown->frames.At(0)), 9);
    }
}

TEST(ExportPictures, WhatIsShownIsWhatIsInTheFiles) {
    for (const ExportFormat format : {ExportFormat::kSheet, ExportFormat::kImages}) {
        PicturesFixture fixture(format);
        const ExportTrial::Outcome outcome = fixture.Try();
        ASSERT_TRUE(outcome.shown) << NameOf(format);
        for (int32 i = 0; i < 3; ++i) {
            EXPECT_EQ(CanvasOf(*outcome.shown, *outcome.shown->frames.At(i)),
                      CanvasOf(fixture.animation, *fixture.animation.frames.At(i)));
            EXPECT_EQ(outcome.shown->PauseOf(*outcome.shown->frames.At(i)), 4 + i);
        }
    }
}

TEST(ExportPictures, WhatCanNotBeReadIsNotShown) {
    for (const ExportFormat format : {ExportFormat::kSheet, ExportFormat::kImages}) {
        PicturesFixture fixture(format);
        fixture.settings.image = "png";  // which the roster does not read
        const ExportTrial::Outcome outcome = fixture.Try();
        EXPECT_EQ(outcome.result, ExportResult::kDone);
        EXPECT_FALSE(outcome.shown);
    }
}

TEST(ExportPictures, AreTheSameBytesWithAnyNumberOfThreads) {
    for (const ExportFormat format : {ExportFormat::kSheet, ExportFormat::kImages}) {
        PicturesFixture fixture(format);
        fixture.settings.image = "png";
        std::vector<std::vector<uint8>> first;
        for (const int32 count : kThreadCounts) {
            const ScopedThreads threads(count);
            ASSERT_EQ(fixture.Export(fixture.settings), ExportResult::kDone);
            if (first.empty()) first = fixture.files.contents;
            EXPECT_EQ(fixture.files.contents, first);
        }
    }
}

TEST(ExportPictures, SayWhyTheyCanNotBeMade) {
    for (const ExportFormat format : {ExportFormat::kSheet, ExportFormat::kImages}) {
        PicturesFixture fixture(format);
        fixture.roster.write_status = B_IO_ERROR;
        EXPECT_EQ(fixture.Export(fixture.settings), ExportResult::kFailed);
        EXPECT_EQ(SentenceOf(ExportResult::kFailed, format),
                  "The image can't be written in this format.");
        fixture.settings.image = "none";
        EXPECT_EQ(fixture.Export(fixture.settings), ExportResult::kNoWriter);
        EXPECT_EQ(SentenceOf(ExportResult::kNoWriter, format),
                  "There is nothing here that writes this image format.");
        fixture.settings.image = "png";
        fixture.work.StopAll();
        EXPECT_EQ(fixture.Export(fixture.settings), ExportResult::kStopped);
        EXPECT_TRUE(fixture.files.Empty());
    }
    PicturesFixture wide(ExportFormat::kSheet);
    wide.settings.columns = 3;
    wide.animation.width = 20000;
    wide.Add(std::vector<uint32>(40000), 1);
    wide.Add(std::vector<uint32>(40000), 1);
    EXPECT_EQ(wide.Export(wide.settings), ExportResult::kTooLarge);
    EXPECT_EQ(SentenceOf(ExportResult::kTooLarge, ExportFormat::kSheet),
              "The sheet would be too large.");
}

TEST(ExportPictures, OnlyScaleAndFramesAreGivenUpForASize) {
    for (const ExportFormat format : {ExportFormat::kSheet, ExportFormat::kImages}) {
        PicturesFixture fixture(format);
        for (const ExportSettings& step : StepsToSmaller(fixture.settings)) {
            ExportSettings rest = step;
            rest.scale = fixture.settings.scale;
            rest.every = fixture.settings.every;
            EXPECT_TRUE(rest == fixture.settings);
        }
        ASSERT_EQ(fixture.Export(fixture.settings), ExportResult::kDone);
        const uint64 size = fixture.files.Size("");
        FittedExport fitted;
        ASSERT_EQ(FitUnder(size, fixture.Task(), fixture.settings, &fitted), ExportResult::kDone);
        EXPECT_EQ(GivenUp(fixture.settings, fitted.settings), "");
        ASSERT_EQ(FitUnder(size - 1, fixture.Task(), fixture.settings, &fitted),
                  ExportResult::kDone);
        EXPECT_NE(GivenUp(fixture.settings, fitted.settings), "");
        EXPECT_LT(fitted.files.Size(""), size);
    }
}

TEST(ExportFiles, TheTextOfASheetNamesThePictureThatIsChosen) {
    const TemporaryFolder folder;
    PicturesFixture fixture(ExportFormat::kSheet);
    ASSERT_EQ(fixture.Export(fixture.settings), ExportResult::kDone);
    const WrittenExport written = WriteExport(fixture.files, folder.File("run.raw"));
    EXPECT_TRUE(written.IsComplete());
    EXPECT_EQ(written.count, 2u);
    EXPECT_EQ(ReadBytes(folder.File("run.raw")), fixture.bytes);
    const auto read = ReadSheetDescription(TextIn(folder.File("run.json")));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->image, "run.raw");
    EXPECT_EQ(fixture.files.Size("run.raw"),
              fixture.bytes.size() + TextIn(folder.File("run.json")).size());
}

TEST(ExportFiles, ImagesAreNumberedFromZeroOn) {
    const TemporaryFolder folder;
    PicturesFixture fixture(ExportFormat::kImages);
    ASSERT_EQ(fixture.Export(fixture.settings), ExportResult::kDone);
    EXPECT_TRUE(WriteExport(fixture.files, folder.File("run.raw")).IsComplete());
    for (size_t i = 0; i < 3; ++i)
        EXPECT_EQ(ReadBytes(folder.File("run000" + std::to_string(i) + ".raw")),
                  fixture.files.contents[i]);
}

TEST(ExportFiles, SayHowManyAreThereWhereOneCanNotBeWritten) {
    const TemporaryFolder folder;
    PicturesFixture fixture(ExportFormat::kImages);
    while (fixture.animation.frames.Size() < 70)
        fixture.Add(std::vector<uint32>(6, 0xFF000000), 1);
    ASSERT_EQ(fixture.Export(fixture.settings), ExportResult::kDone);
    std::filesystem::create_directory(folder.File("run0066.raw"));
    const WrittenExport written = WriteExport(fixture.files, folder.File("run.raw"));
    EXPECT_EQ(written.written, 64u);
    EXPECT_EQ(written.Remark(), " 64 of 70 files were written.");
    EXPECT_FALSE(std::filesystem::exists(folder.File("run0064.raw")));
}

TEST(ExportFiles, NoneOfASheetTakesItsPlaceWhereTheTextCanNot) {
    const TemporaryFolder folder;
    PicturesFixture fixture(ExportFormat::kSheet);
    ASSERT_EQ(fixture.Export(fixture.settings), ExportResult::kDone);
    std::filesystem::create_directory(folder.File("run.json"));
    const WrittenExport written = WriteExport(fixture.files, folder.File("run.raw"));
    EXPECT_EQ(written.written, 0u);
    EXPECT_EQ(written.Remark(), " 0 of 2 files were written.");
    EXPECT_FALSE(std::filesystem::exists(folder.File("run.raw")));
    EXPECT_EQ(WriteExport(fixture.files, folder.File("same.json")).written, 0u);
    EXPECT_FALSE(std::filesystem::exists(folder.File("same.json")));
}

TEST(ExportFiles, OneFileHasNothingToRemark) {
    const TemporaryFolder folder;
    const ExportFiles files{{{1, 2}}, {}, false};
    const WrittenExport written = WriteExport(files, folder.File("missing/a.gif"));
    EXPECT_FALSE(written.IsComplete());
    EXPECT_EQ(written.Remark(), "");
}

TEST(ImageEncoder, KnowsPngAndWhatTheRosterWrites) {
    const FakeRoster roster;
    const std::vector<ImageKind> kinds = ImageKindsOf(roster);
    ASSERT_EQ(kinds.size(), 2u);
    EXPECT_EQ(kinds[0].extension, "png");
    EXPECT_EQ(kinds[1].extension, "raw");
    EXPECT_EQ(kinds[1].name, "Raw picture");
}

}  // namespace kirto::test
