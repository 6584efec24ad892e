// What the preferences window finds fault with.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/directories.h"
#include "ui/dialogs/preferences_fixture.h"

namespace kirto::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class PreferencesChecks : public PreferencesFixture {
  protected:
    PreferencesChecks() {
        // Everything that a field depends on is on.
        prefs.palette_mapping = 7;
        prefs.palette_usetransparent = true;
        prefs.thumbnail_height = 2;
        Open();
    }

    // What the field shows after the user has typed the text and left it.
    std::string After(const char* field, const std::string& text) {
        Enter(field, text);
        return TextOf(field);
    }
    // The alerts since the last call.
    std::vector<std::string> NewAlerts() {
        const std::vector<std::string> lines = alerts.Lines();
        std::vector<std::string> fresh(lines.begin() + static_cast<std::ptrdiff_t>(seen_),
                                       lines.end());
        seen_ = lines.size();
        return fresh;
    }

  private:
    size_t seen_ = 0;
};

std::string TooSmall(const std::string& bound) {
    return "WARNING [] This value can't be less than " + bound + ". | OK";
}

std::string TooLarge(const std::string& bound) {
    return "WARNING [] This value can't be greater than " + bound + ". | OK";
}

}  // namespace

TEST_F(PreferencesChecks, SizesAndTheLoopCountHaveOnlyALowerBound) {
    for (const char* field : {"global_width", "global_height", "global_loopcount"}) {
        SCOPED_TRACE(field);
        EXPECT_EQ(After(field, "-1"), "0");
        EXPECT_THAT(NewAlerts(), ElementsAre(TooSmall("0")));
        EXPECT_EQ(After(field, "2000000000"), "2000000000");
        EXPECT_EQ(After(field, "12 pixels"), "12");
        EXPECT_EQ(After(field, ""), "0");
        EXPECT_THAT(NewAlerts(), IsEmpty());
    }
}

TEST_F(PreferencesChecks, ThePauseIsARealNumberWithALowerBound) {
    EXPECT_EQ(After("global_pauselength", "-0.5"), "0.00");
    EXPECT_THAT(NewAlerts(), ElementsAre(TooSmall("0.00")));
    EXPECT_EQ(After("global_pauselength", ""), "0.00");
    EXPECT_EQ(After("global_pauselength", "1.5"), "1.50");
    EXPECT_EQ(After("global_pauselength", "100000"), "100000.00");
    EXPECT_THAT(NewAlerts(), IsEmpty());
}

TEST_F(PreferencesChecks, IndicesLieInAPalette) {
    for (const char* field : {"palette_backgroundindex", "palette_transparentindex"}) {
        SCOPED_TRACE(field);
        EXPECT_EQ(After(field, "-1"), "0");
        EXPECT_EQ(After(field, "256"), "255");
        EXPECT_THAT(NewAlerts(), ElementsAre(TooSmall("0"), TooLarge("255")));
        EXPECT_EQ(After(field, "255"), "255");
        EXPECT_THAT(NewAlerts(), IsEmpty());
    }
}

TEST_F(PreferencesChecks, ThePresetThumbnailHeightLiesBetweenTenAndAThousand) {
    EXPECT_EQ(After("thumbnail_presetvalue", "9"), "10");
    EXPECT_EQ(After("thumbnail_presetvalue", "1001"), "1000");
    EXPECT_THAT(NewAlerts(), ElementsAre(TooSmall("10"), TooLarge("1000")));
}

TEST_F(PreferencesChecks, AMaximumBelowTheMinimumFieldsValueIsRaisedToIt) {
    Enter("thumbnail_minheight", "44");
    EXPECT_EQ(After("thumbnail_maxheight", "43"), "44");
    EXPECT_THAT(NewAlerts(), ElementsAre(TooSmall("44")));
    EXPECT_EQ(After("thumbnail_maxheight", "1001"), "1000");
    EXPECT_THAT(NewAlerts(), ElementsAre(TooLarge("1000")));
}

TEST_F(PreferencesChecks, AMinimumAboveTheMaximumFieldsValueIsLoweredToIt) {
    Enter("thumbnail_maxheight", "300");
    EXPECT_EQ(After("thumbnail_minheight", "301"), "300");
    EXPECT_THAT(NewAlerts(), ElementsAre(TooLarge("300")));
    EXPECT_EQ(After("thumbnail_minheight", "9"), "10");
    EXPECT_THAT(NewAlerts(), ElementsAre(TooSmall("10")));
}

TEST_F(PreferencesChecks, APaletteFileThatDoesNotExistIsRefused) {
    EXPECT_EQ(After("palette_filename", "/nonexistent/palette.gif"), "");
    EXPECT_THAT(
        NewAlerts(),
        ElementsAre("WARNING [] You must enter a valid, absolute path and file name. | OK"));
}

TEST_F(PreferencesChecks, AFolderIsNoPaletteFile) {
    const TemporaryFolder folder;
    EXPECT_EQ(After("palette_filename", folder.Path()), "");
    EXPECT_THAT(
        NewAlerts(),
        ElementsAre("WARNING [] You must enter a valid, absolute path and file name. | OK"));
}

TEST_F(PreferencesChecks, APaletteFileThatExistsStays) {
    const TemporaryFolder folder;
    const std::string path = folder.File("a palette");
    WriteBytes(path, {1});
    EXPECT_EQ(After("palette_filename", path), path);
    EXPECT_THAT(NewAlerts(), IsEmpty());
}

TEST_F(PreferencesChecks, ATemporaryFolderThatDoesNotExistIsReplacedByTheHomeFolder) {
    EXPECT_EQ(After("misc_filelocation", "/nonexistent"), HomeDirectory());
    EXPECT_THAT(NewAlerts(), ElementsAre("WARNING [] You must enter a valid absolute path. | OK"));
}

TEST_F(PreferencesChecks, AFileIsNoTemporaryFolder) {
    const TemporaryFolder folder;
    WriteBytes(folder.File("file"), {1});
    EXPECT_EQ(After("misc_filelocation", folder.File("file")), HomeDirectory());
    EXPECT_THAT(NewAlerts(), ElementsAre("WARNING [] You must enter a valid absolute path. | OK"));
}

TEST_F(PreferencesChecks, ATemporaryFolderThatExistsStays) {
    const TemporaryFolder folder;
    EXPECT_EQ(After("misc_filelocation", folder.Path()), folder.Path());
    EXPECT_THAT(NewAlerts(), IsEmpty());
}

TEST_F(PreferencesChecks, AFieldThatWasNotChangedIsNotChecked) {
    TextControl* field = Field("misc_filelocation");
    field->SetText("/nonexistent");
    ShowTabOf(field);
    field->setFocus();
    field->clearFocus();
    HandleEvents();
    EXPECT_THAT(NewAlerts(), IsEmpty());
}

}  // namespace kirto::test
