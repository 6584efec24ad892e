#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "app/kirto_fixture.h"
#include "resources/resources_writer.h"

namespace kirto::test {

namespace {

namespace fs = std::filesystem;

constexpr const char* kSettingsUnusable =
    "Unable to open or create a settings file. Default values will be used instead, but may not be "
    "saved.";
constexpr const char* kPaletteUnreadable =
    "The palette can't be loaded because the file was corrupted or unreadable.";

class KirtoConstruction : public KirtoFixture {
  protected:
    void Make() { app_ = std::make_unique<Kirto>(prefs_, desktop_, roster_); }
};

TEST_F(KirtoConstruction, CentresTheWindowOnTheScreen) {
    prefs_.misc_savewindowdimensions = false;

    Make();

    EXPECT_EQ(TakeLines(), Lines{"window 237 184 786 583 Kirto - untitled"});
}

TEST_F(KirtoConstruction, HalvesWhatTheScreenLeavesTowardsZero) {
    prefs_.misc_savewindowdimensions = false;
    desktop_.screen = {0, 0, 639.5f, 99};

    Make();

    // (640 - 548) / 2 and (99 - 398) / 2.
    EXPECT_EQ(TakeLines(), Lines{"window 46 -149 595 250 Kirto - untitled"});
}

TEST_F(KirtoConstruction, UsesTheStoredWindowFrameWhereTheSettingsSaySo) {
    prefs_.misc_savewindowdimensions = true;
    prefs_.misc_windowdimensions = {1, 2, 301, 402};

    Make();

    EXPECT_EQ(TakeLines(), Lines{"window 1 2 301 402 Kirto - untitled"});
}

TEST_F(KirtoConstruction, RefreshesTheNewWindow) {
    Make();

    EXPECT_EQ(desktop_.window->TakeTranscript(), "auda");
}

TEST_F(KirtoConstruction, StartsEmptyWithTheSettingsProperties) {
    prefs_.global_width = 12;
    prefs_.global_height = 34;
    prefs_.global_useloop = false;
    prefs_.palette_mapping = kPaletteGreyscale;
    prefs_.palette_dither = true;

    Make();

    EXPECT_EQ(app_->Signature(), "application/x-vnd.Tavon-Kirto");
    EXPECT_EQ(app_->FrameCount(), 0);
    EXPECT_EQ(app_->Selected(), -1);
    EXPECT_EQ(app_->Current()->width, 12);
    EXPECT_EQ(app_->Current()->height, 34);
    EXPECT_FALSE(app_->Current()->use_loop);
    EXPECT_FALSE(app_->Modified());
    EXPECT_FALSE(app_->open_panel_delivered);
    EXPECT_EQ(app_->reader_count, 0);
    EXPECT_EQ(app_->CurrentState()->file_name, "untitled");
    EXPECT_EQ(app_->Current()->palette->mode, kPaletteGreyscale);
    EXPECT_FALSE(app_->Current()->palette->dither) << "Greys are never dithered.";
}

TEST_F(KirtoConstruction, TellsOfUnusableSettingsBeforeItUsesThem) {
    prefs_.failed = true;
    prefs_.palette_mapping = kPaletteFromFile;
    prefs_.palette_filename = File("missing.gif");

    Make();

    const Lines lines = TakeLines();
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], WarningLine(kSettingsUnusable));
    EXPECT_EQ(lines[1], WarningLine(kPaletteUnreadable));
    EXPECT_EQ(lines[2].substr(0, 7), "window ");
    EXPECT_EQ(app_->Current()->palette->mode, kPaletteWebSafe);
}

TEST_F(KirtoConstruction, TellsOfADamagedSettingsFile) {
    prefs_.damaged_copy = "/home/ann/Kirto_settings.damaged";

    Make();

    const Lines lines = TakeLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0],
              "told The settings file was damaged. It has been put aside as "
              "\"/home/ann/Kirto_settings.damaged\", and default values will be used instead.");
}

TEST_F(KirtoConstruction, GoesOnWithoutASemaphore) {
    DebugRecorder debug;
    {
        const AllocationFault fault(1);
        Make();
    }

    EXPECT_EQ(debug.Text(), "Kirto::Kirto() - Create sem died\n");
    EXPECT_EQ(desktop_.window->TakeTranscript(), "auda");
    EXPECT_EQ(app_->Current()->width, 320);
}

TEST_F(KirtoConstruction, LeavesAPreviewFileThatItDidNotWrite) {
    Write("kirtotemp.gif", {1});
    Make();

    app_.reset();

    EXPECT_TRUE(fs::exists(File("kirtotemp.gif")));
}

TEST_F(KirtoConstruction, DeletesItsPanelsAndFramesAtTheEnd) {
    Make();
    app_->GetOpenFilePanel();
    app_->GetSaveFilePanel();
    app_->GetInsertFilePanel();
    app_->GetInsertTiledFilePanel();
    Append({"one", "two"});
    const std::weak_ptr<const Picture> picture = app_->FirstFrame()->bitmap;
    TakeLines();

    app_.reset();

    EXPECT_TRUE(picture.expired());
    Lines lines = TakeLines();
    std::sort(lines.begin(), lines.end());
    EXPECT_EQ(lines, (Lines{"panel insert deleted", "panel insert tiled deleted",
                            "panel open deleted", "panel save deleted"}));
}

TEST_F(KirtoConstruction, MakesEachPanelOnFirstUseAndKeepsIt) {
    Make();
    TakeLines();

    FilePanel* open = app_->GetOpenFilePanel();
    EXPECT_EQ(TakeLines(), Lines{"panel open made"});
    EXPECT_EQ(app_->GetOpenFilePanel(), open);
    EXPECT_EQ(TakeLines(), Lines{});
    app_->GetSaveFilePanel();
    app_->GetInsertFilePanel();
    app_->GetInsertTiledFilePanel();

    EXPECT_EQ(TakeLines(),
              (Lines{"panel save made", "panel insert made", "panel insert tiled made"}));
}

TEST_F(KirtoConstruction, NeedsNoResourceFile) {
    Make();

    EXPECT_EQ(app_->Error(), 0);
    EXPECT_EQ(app_->Resources(), nullptr);
}

TEST_F(KirtoConstruction, OpensTheResourceFileItIsGiven) {
    Write("kirto.rsrc", ResourcesWriter().Container());

    app_ = std::make_unique<Kirto>(prefs_, desktop_, roster_, entry_ref(File("kirto.rsrc")));

    EXPECT_EQ(app_->Error(), 0);
    EXPECT_NE(app_->Resources(), nullptr);
}

TEST_F(KirtoConstruction, EndsAsSoonAsItRunsWithoutTheResourceFileItIsGiven) {
    const AlertRecorder alerts;

    app_ = std::make_unique<Kirto>(prefs_, desktop_, roster_, entry_ref(File("absent.rsrc")));
    app_->Loop();

    EXPECT_EQ(app_->Error(), -1);
    EXPECT_EQ(alerts.Lines(), Lines{"STOP [] Resource file open error!\n | Cancel"});
}

}  // namespace

}  // namespace kirto::test
