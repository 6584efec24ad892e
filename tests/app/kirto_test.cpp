#include "app/kirto.h"

#include <gtest/gtest.h>

#include "app/command_port.h"
#include "app/kirto_fixture.h"

namespace kirto::test {

namespace {

class KirtoCommands : public KirtoFixture {
  protected:
    static BMessage FadeCommand(uint32 code, int32 count, uint32 color) {
        BMessage message(code);
        message.AddInt32("count", count);
        message.AddInt32("color", static_cast<int32>(color));
        return message;
    }
    static BMessage SelectCommand(int32 number) {
        BMessage message(kSelectFrame);
        message.AddInt32("number", number);
        return message;
    }
};

TEST_F(KirtoCommands, ADropIsRoutedAndRefreshesEverything) {
    Write("one.raw", RawPicture(*PictureOf(1, 1, {1})));
    Start();

    EXPECT_EQ(Do(Files(B_SIMPLE_DATA, {"one.raw"})),
              "auda svup(Status: loading frame 1 of 1...) tvff auns auda");
    EXPECT_EQ(Do(B_SIMPLE_DATA), "auda");

    EXPECT_EQ(Names(), Lines{"[one.raw]"});
}

TEST_F(KirtoCommands, ACancelNoticeOfNoPanelIsIgnored) {
    Start();

    EXPECT_EQ(Do(B_CANCEL), "");
}

TEST_F(KirtoCommands, AofpOpensAFile) {
    Write("anim.gif", GifOf({10, 10}));
    Start();

    EXPECT_EQ(Do(Files(kOpenFile, {"anim.gif"})),
              "svup(Status: loading frame 1...) tvff auns "
              "svup(Status: loading frame 2...) auns tvff auda");

    EXPECT_EQ(Names(), (Lines{"[frame0000]", "frame0001"}));
}

TEST_F(KirtoCommands, AofpPostsTheThumbnailSizeOfTheSettings) {
    Start();
    for (const auto& [setting, transcript] :
         {std::pair{0, "tvff auda"}, std::pair{1, "tvfh auda"}, std::pair{2, "tvpv auda"},
          std::pair{3, "auda"}, std::pair{-1, "auda"}}) {
        prefs_.thumbnail_height = setting;
        EXPECT_EQ(Do(kOpenFile), transcript) << setting;
    }
}

TEST_F(KirtoCommands, AifpInsertsFiles) {
    Write("one.raw", RawPicture(*PictureOf(3, 2, std::vector<uint32>(6))));
    Write("two.raw", RawPicture(*PictureOf(1, 1, {1})));
    Start();
    BMessage command = Files(kInsertFiles, {"one.raw", "two.raw"});
    command.AddInt32("position", 0);

    EXPECT_EQ(Do(command),
              "svup(Status: loading frame 1 of 2...) tvff auns "
              "svup(Status: loading frame 2 of 2...) auns auda");

    EXPECT_EQ(Names(), (Lines{"one.raw", "[two.raw]"}));
    EXPECT_EQ(app_->Current()->width, 3);
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoCommands, ACommandThatRunsOutOfMemoryIsAWarningAndTheDocumentStays) {
    Write("one.raw", RawPicture(*PictureOf(1, 1, {1})));
    Start();
    Append({"before"});
    BMessage insert = Files(kInsertFiles, {"one.raw"});
    CommandPort::Count(*app_, &insert);
    roster_.out_of_memory = true;

    Do(insert);
    Do(Files(B_SIMPLE_DATA, {"one.raw"}));

    EXPECT_EQ(TakeLines(), Lines(2, "WARNING [] Out of memory. | OK"));
    EXPECT_EQ(Names(), Lines{"[before]"});
    EXPECT_EQ(app_->changes_waiting, 0);
    EXPECT_FALSE(app_->Modified());
    roster_.out_of_memory = false;
    Do(Files(kInsertFiles, {"one.raw"}));
    EXPECT_EQ(app_->FrameCount(), 2);
}

TEST_F(KirtoCommands, AitpInsertsTilesAsThePanelSays) {
    Write("sheet.raw", RawPicture(*PictureOf(2, 2, {1, 2, 3, 4})));
    desktop_.fields = {0, "2", "1", true};
    Start();

    EXPECT_EQ(Do(Files(kInsertTiledFile, {"sheet.raw"})),
              "svup(Status: loading tile 1 of 2...) tvff auns "
              "svup(Status: loading tile 2 of 2...) auns auda");

    EXPECT_EQ(Names(), (Lines{"[tiled0000]", "tiled0001"}));
    EXPECT_EQ(app_->Current()->width, 2);
    EXPECT_EQ(app_->Current()->height, 1);
    EXPECT_EQ(TakeLines(), Lines{"panel insert tiled made"});
}

TEST_F(KirtoCommands, AitpReadsTheNumberAtTheStartOfAField) {
    Write("sheet.raw", RawPicture(*PictureOf(2, 2, {1, 2, 3, 4})));
    desktop_.fields = {0, "1 row", "2x", false};
    Start();

    Do(Files(kInsertTiledFile, {"sheet.raw"}));

    EXPECT_EQ(Names(), (Lines{"[tiled0000]", "tiled0001"}));
}

TEST_F(KirtoCommands, AitpRefusesFieldsThatAreNoPositiveNumber) {
    Write("sheet.raw", RawPicture(*PictureOf(2, 2, {1, 2, 3, 4})));
    Start();
    app_->GetInsertTiledFilePanel();
    TakeLines();
    for (const std::string text : {"", "two", "0", "-1", "99999999999"}) {
        desktop_.fields = {0, text, "1", false};
        EXPECT_EQ(Do(Files(kInsertTiledFile, {"sheet.raw"})), "auda");
        EXPECT_EQ(TakeLines(),
                  Lines{WarningLine("This frame can't be inserted because the number of rows or "
                                    "columns is illegal.")})
            << '"' << text << '"';
    }
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoCommands, AitpWithoutAFileDoesNothing) {
    desktop_.fields = {0, "1", "1", false};
    Start();

    EXPECT_EQ(Do(kInsertTiledFile), "auda");
    EXPECT_EQ(TakeLines(), Lines{"panel insert tiled made"});
}

TEST_F(KirtoCommands, AsfpSavesToThePlaceChosen) {
    Start();
    Append({"one"});

    EXPECT_EQ(Do(SaveTo(folder_.Path(), "out.gif")),
              "svup(Status: writing frame 1 of 1...) arsm auda");

    EXPECT_EQ(app_->CurrentState()->file_name, "out.gif");
    EXPECT_EQ(app_->CurrentState()->file_directory, folder_.Path());
}

TEST_F(KirtoCommands, AsavSavesInTheFormatOfTheSavePanel) {
    Start();
    Append({"one"});
    app_->AnimationDocument::SetFile(folder_.Path(), "out.gif");

    EXPECT_EQ(Do(kSaveAgain), "svup(Status: writing frame 1 of 1...) arsm auda");
    desktop_.fields.output_format = FakeRoster::kRaw;
    EXPECT_EQ(Do(kSaveAgain), "arsm auda");

    EXPECT_EQ(ReadBytes(File("out0000.gif")), RawPicture(*app_->FirstFrame()->bitmap));
}

TEST_F(KirtoCommands, ArstResetsAndPostsNothing) {
    Start();
    Append({"one", "two"});

    EXPECT_EQ(Do(kResetDocument), "");

    EXPECT_EQ(app_->FrameCount(), 0);
}

TEST_F(KirtoCommands, ArstNeverOffersToUndoAnEditOfTheAnimationBefore) {
    Start();
    Append({"one", "two"});
    Do(kRemoveFrame);
    EXPECT_EQ(app_->CurrentState()->undo_name, "Remove Frame");
    Lines offered;
    app_->SetObserver([&](const auto& state) {
        if (state->animation->frames.Empty()) offered.push_back(state->undo_name);
    });

    Do(kResetDocument);

    app_->SetObserver(nullptr);
    EXPECT_EQ(offered, Lines{""});
}

TEST_F(KirtoCommands, ArstReportsAnUnreadablePaletteFile) {
    Start();
    prefs_.palette_mapping = kPaletteFromFile;
    prefs_.palette_filename = File("missing.gif");

    EXPECT_EQ(Do(kResetDocument), "auda");

    EXPECT_EQ(TakeLines(),
              Lines{WarningLine(
                  "The palette can't be loaded because the file was corrupted or unreadable.")});
    EXPECT_EQ(app_->Current()->palette->mode, kPaletteWebSafe);
    prefs_.palette_mapping = kPaletteWebSafe;
}

TEST_F(KirtoCommands, AsltSelectsAFrame) {
    Start();
    Append({"one", "two"});

    EXPECT_EQ(Do(SelectCommand(1)), "aufr");

    EXPECT_EQ(Names(), (Lines{"one", "[two]"}));
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoCommands, AsltPostsNothingWhenTheSelectionStays) {
    Start();
    Append({"one", "two"});

    EXPECT_EQ(Do(SelectCommand(0)), "");
    EXPECT_EQ(Do(SelectCommand(2)), "");
    EXPECT_EQ(Do(SelectCommand(-1)), "");
    EXPECT_EQ(Do(kSelectFrame), "");

    EXPECT_EQ(app_->Selected(), 0);
}

TEST_F(KirtoCommands, AwfrRemovesTheCurrentFrame) {
    Start();
    Append({"one", "two"});

    EXPECT_EQ(Do(kRemoveFrame), "aufr");
    EXPECT_EQ(Names(), Lines{"[two]"});
    EXPECT_TRUE(app_->Modified());
    EXPECT_EQ(Do(kRemoveFrame), "aufr");
    EXPECT_EQ(Do(kRemoveFrame), "aufr");

    EXPECT_EQ(app_->Selected(), -1);
}

TEST_F(KirtoCommands, AwfuAndAwfdMoveTheCurrentFrame) {
    Start();
    Append({"one", "two"});

    EXPECT_EQ(Do(kMoveFrameDown), "aufr");
    EXPECT_EQ(Names(), (Lines{"two", "[one]"}));
    EXPECT_EQ(Do(kMoveFrameUp), "aufr");
    EXPECT_EQ(Names(), (Lines{"[one]", "two"}));
    EXPECT_TRUE(app_->Modified());
}

TEST_F(KirtoCommands, AwfuAtTheFirstFrameRefreshesAllTheSame) {
    Start();
    Append({"one", "two"});

    EXPECT_EQ(Do(kMoveFrameUp), "aufr");

    EXPECT_EQ(Names(), (Lines{"[one]", "two"}));
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoCommands, AwfvReversesTheFrames) {
    Start();
    Append({"one", "two", "three"});

    EXPECT_EQ(Do(kReverseFrames), "aufr");

    EXPECT_EQ(Names(), (Lines{"[three]", "two", "one"}));
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoCommands, AwvpShowsThePreview) {
    Start();
    Append({"one"});

    EXPECT_EQ(Do(kPreview), "svup(Status: writing frame 1 of 1...) auda");

    EXPECT_EQ(TakeLines(), Lines{"browser " + File("kirtotemp.gif")});
}

TEST_F(KirtoCommands, TheFadeCommandsFade) {
    const std::string transcript = "svup(Status: generating frame 1 of 1...) auns aufr";
    for (const auto& [code, names] :
         {std::pair{kFadeToColor, Lines{"one", "[two]", "fade0000", "three"}},
          std::pair{kFadeFromColor, Lines{"one", "[fade0100]", "two", "three"}},
          std::pair{kFadeToNext, Lines{"one", "[two]", "fade0200", "three"}},
          std::pair{kFadeFromPrevious, Lines{"one", "[fade0300]", "two", "three"}}}) {
        // The names are numbered as long as the application runs.
        if (!app_) Start();
        Do(kResetDocument);
        Append({"one", "two", "three"});
        Do(SelectCommand(1));

        EXPECT_EQ(Do(FadeCommand(code, 1, 0)), transcript);

        EXPECT_EQ(Names(), names);
        EXPECT_TRUE(app_->Modified());
    }
}

TEST_F(KirtoCommands, AFadesColourIsRedGreenBlueFromTheTop) {
    Start();
    Append({"one"});

    Do(FadeCommand(kFadeToColor, 1, 0xC8640ADD));

    EXPECT_EQ(PixelsOf(*app_->FrameAt(1)->bitmap), std::vector<uint32>{0xFFC8640A});
}

TEST_F(KirtoCommands, AFadeWithoutItsFieldsDoesNothing) {
    Start();
    Append({"one"});
    BMessage without_color(kFadeToColor);
    without_color.AddInt32("count", 1);
    BMessage without_count(kFadeToColor);
    without_count.AddInt32("color", 0);

    EXPECT_EQ(Do(without_color), "aufr");
    EXPECT_EQ(Do(without_count), "aufr");

    EXPECT_EQ(app_->FrameCount(), 1);
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoCommands, TheFramePaletteCommandsSetTheKindAndPostNothing) {
    Start();
    Append({"one"});
    for (const auto& [code, kind] :
         {std::pair{kFrameWebSafe, kPaletteWebSafe}, std::pair{kFrameSystem, kPaletteSystem},
          std::pair{kFrameGreyscale, kPaletteGreyscale},
          std::pair{kFrameOptimal, kPaletteOptimal}}) {
        app_->SetModified(false);
        EXPECT_EQ(Do(code), "");
        EXPECT_EQ(app_->CurrentFrame()->palette->mode, kind);
        EXPECT_TRUE(app_->Modified());
    }
    EXPECT_EQ(app_->CurrentFrame()->palette->unique_colors, 1);
}

TEST_F(KirtoCommands, TheFramePaletteCommandsDoNothingWithoutAFrame) {
    Start();
    for (const uint32 code : {kFrameWebSafe, kFrameSystem, kFrameGreyscale, kFrameOptimal}) {
        EXPECT_EQ(Do(code), "");
        EXPECT_FALSE(app_->Modified());
    }
}

TEST_F(KirtoCommands, UnknownCommandsAreIgnored) {
    Start();
    Append({"one"});

    for (const uint32 code : {kUpdateAll, kResume, kStatusUpdate, uint32{0}, 0xFFFFFFFFu})
        EXPECT_EQ(Do(code), "");

    EXPECT_EQ(Names(), Lines{"[one]"});
    EXPECT_FALSE(app_->Modified());
}

TEST_F(KirtoCommands, TheAboutBoxIsTheWindows) {
    Start();

    EXPECT_EQ(Do(B_ABOUT_REQUESTED), "_ABR");
}

TEST_F(KirtoCommands, QuittingEndsTheLoop) {
    Start();
    app_->PostMessage(B_QUIT_REQUESTED);

    app_->Quit();

    EXPECT_NE(app_->PostMessage(kPreview), B_OK);
}

TEST_F(KirtoCommands, AreHandledInTheOrderOfArrival) {
    Start();
    Append({"one", "two", "three"});

    app_->PostMessage(SelectCommand(2));
    app_->PostMessage(kRemoveFrame);
    app_->PostMessage(kMoveFrameUp);

    EXPECT_EQ(Do(kReverseFrames), "aufr aufr aufr aufr");
    EXPECT_EQ(Names(), (Lines{"[one]", "two"}));
}

}  // namespace

}  // namespace kirto::test
