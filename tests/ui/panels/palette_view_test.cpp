#include "ui/panels/palette_view.h"

#include <QAbstractItemView>

#include "app/document_edits.h"
#include "ui/panels/view_fixture.h"

namespace kirto::test {

using Lines = std::vector<std::string>;

namespace {

class PaletteViewTest : public ViewFixture {
  protected:
    void ShowMode(int32 mode) {
        PaletteEditOf(document)->Set(mode);
        Take();
        panel.UpdateDisplay();
    }

    // Changes the document as the application does on the command, and shows it.
    void Edit(uint32 code) {
        ASSERT_TRUE(ApplyEdit(document, BMessage(code)));
        Take();
        panel.UpdateDisplay();
    }

    PaletteView panel{shown, window};
};

TEST_F(PaletteViewTest, IsTitledPalette) {
    EXPECT_EQ(panel.title(), "Palette:");
    EXPECT_EQ(panel.objectName(), "PaletteView");
}

TEST_F(PaletteViewTest, NamesAndLabelsItsControls) {
    EXPECT_EQ(panel.menu->objectName(), "PaletteMenuField");
    EXPECT_EQ(panel.menu->view()->objectName(), "WhichPalette");
    EXPECT_EQ(panel.menu->accessibleName(), "Mapping:");
    EXPECT_EQ(panel.dither->objectName(), "Dither");
    EXPECT_EQ(panel.dither->text(), "Dither");
    EXPECT_EQ(panel.background_index->objectName(), "Background index");
    EXPECT_EQ(panel.background_index->accessibleName(), "Background index:");
    EXPECT_EQ(panel.transparent->objectName(), "Transparent");
    EXPECT_EQ(panel.transparent->text(), "Transparent index:");
    EXPECT_EQ(panel.transparent_index->objectName(), "Transparent index");
}

TEST_F(PaletteViewTest, BeginsWithEverythingOff) {
    EXPECT_FALSE(panel.dither->isChecked());
    EXPECT_FALSE(panel.transparent->isChecked());
    EXPECT_EQ(panel.background_index->text(), "0");
    EXPECT_EQ(panel.transparent_index->text(), "0");
}

TEST_F(PaletteViewTest, OffersTheKindsOfPalette) {
    EXPECT_EQ(ItemsOf(*panel.menu),
              (Lines{"BeOS system pvbp", "web safe pvwp", "greyscale pvgp", "first frame pvfp",
                     "current frame pvcp", "from a file pvfi"}));
}

TEST_F(PaletteViewTest, SendsACommandForEachControl) {
    EXPECT_EQ(CommandOf(*panel.dither), "pvdi");
    EXPECT_EQ(CommandOf(*panel.background_index), "pvbk");
    EXPECT_EQ(CommandOf(*panel.transparent), "pvtp");
    EXPECT_EQ(CommandOf(*panel.transparent_index), "pvti");
}

TEST_F(PaletteViewTest, MarksThePalettesKind) {
    const std::pair<int32, const char*> kinds[] = {
        {kPaletteSystem, "BeOS system"},         {kPaletteWebSafe, "web safe"},
        {kPaletteGreyscale, "greyscale"},        {kPaletteFirstFrame, "first frame"},
        {kPaletteCurrentFrame, "current frame"}, {kPaletteFromFile, "from a file"},
        {kPaletteAwaitingFile, "from a file"},
    };
    for (const auto& [mode, label] : kinds) {
        ShowMode(mode);
        EXPECT_EQ(panel.menu->currentText(), label) << mode;
    }
    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(PaletteViewTest, ShowsTheGlobalPalette) {
    PaletteEditOf(document)->dither = true;
    PaletteEditOf(document)->background_index = 5;
    PaletteEditOf(document)->use_transparent = true;
    PaletteEditOf(document)->transparent_index = 6;
    Take();

    panel.UpdateDisplay();

    EXPECT_TRUE(panel.dither->isChecked());
    EXPECT_EQ(panel.background_index->text(), "5");
    EXPECT_TRUE(panel.transparent->isChecked());
    EXPECT_TRUE(panel.transparent_index->isEnabled());
    EXPECT_EQ(panel.transparent_index->text(), "6");
    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(PaletteViewTest, DisablesTheTransparentIndexWhileTransparencyIsOff) {
    Take();

    panel.UpdateDisplay();

    EXPECT_FALSE(panel.transparent_index->isEnabled());
}

TEST_F(PaletteViewTest, UnticksAndDisablesDitherForGreyscaleAndOnlyEnablesItForOtherKinds) {
    PaletteEditOf(document)->dither = true;

    Edit(kPaletteToGreyscale);
    EXPECT_FALSE(panel.dither->isEnabled());
    EXPECT_FALSE(panel.dither->isChecked());

    Edit(kPaletteToWebSafe);
    EXPECT_TRUE(panel.dither->isEnabled());
    EXPECT_FALSE(panel.dither->isChecked());
    EXPECT_FALSE(document.Current()->palette->dither) << "The box shows what holds.";
}

TEST_F(PaletteViewTest, LeavesTheTickWhenDitherIsEnabled) {
    panel.dither->setChecked(true);

    panel.AllowDither(true);

    EXPECT_TRUE(panel.dither->isEnabled());
    EXPECT_TRUE(panel.dither->isChecked());
}

TEST_F(PaletteViewTest, LeavesAFieldAloneWhileTheUserTypesInIt) {
    panel.background_index->setText("12");
    panel.background_index->setModified(true);
    Take();

    panel.UpdateDisplay();

    EXPECT_EQ(panel.background_index->text(), "12");
}

TEST_F(PaletteViewTest, ResetsToTheSettingsDefaults) {
    Prefs& prefs = fixture.prefs;
    prefs.palette_mapping = kPaletteSystem;
    prefs.palette_dither = true;
    prefs.palette_backgroundindex = 7;
    prefs.palette_usetransparent = true;
    prefs.palette_transparentindex = 8;
    document.PublishSettings();
    Take();

    panel.ResetDisplay();

    EXPECT_EQ(panel.menu->currentText(), "BeOS system");
    EXPECT_TRUE(panel.dither->isChecked());
    EXPECT_TRUE(panel.dither->isEnabled());
    EXPECT_EQ(panel.background_index->text(), "7");
    EXPECT_TRUE(panel.transparent->isChecked());
    EXPECT_TRUE(panel.transparent_index->isEnabled());
    EXPECT_EQ(panel.transparent_index->text(), "8");
}

TEST_F(PaletteViewTest, ResetsToGreyscaleWithoutDither) {
    fixture.prefs.palette_mapping = kPaletteGreyscale;
    fixture.prefs.palette_dither = true;
    document.PublishSettings();
    Take();

    panel.ResetDisplay();

    EXPECT_EQ(panel.menu->currentText(), "greyscale");
    EXPECT_FALSE(panel.dither->isEnabled());
    EXPECT_FALSE(panel.dither->isChecked());
}

}  // namespace

}  // namespace kirto::test
