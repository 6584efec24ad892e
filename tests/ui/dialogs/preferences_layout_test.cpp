// The preferences window as its layout has it.
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/window_archive.h"
#include "ui/dialogs/preferences_fixture.h"

namespace kirto::test {

using ::testing::ElementsAreArray;

namespace {

class PreferencesLayout : public PreferencesFixture {
  protected:
    PreferencesLayout() : font_(QApplication::font()) {}
    ~PreferencesLayout() override {
        delete window;
        QApplication::setFont(font_);
    }

    void ScaleFont(double factor) {
        QFont font = font_;
        font.setPointSizeF(font.pointSizeF() * factor);
        QApplication::setFont(font);
    }
    // Everything in the window that has a text, with the room that it has and needs.
    void ExpectNothingIsCut() {
        for (QWidget* widget : window->findChildren<QWidget*>()) {
            const bool has_text = qobject_cast<QLabel*>(widget) != nullptr ||
                                  qobject_cast<QAbstractButton*>(widget) != nullptr ||
                                  qobject_cast<QGroupBox*>(widget) != nullptr ||
                                  qobject_cast<QTabBar*>(widget) != nullptr;
            if (!has_text || widget->isHidden()) continue;
            ShowTabOf(widget);
            HandleEvents();
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height())
                << widget->objectName().toStdString();
        }
    }

  private:
    QFont font_;
};

std::string StringIn(const BMessage& archive, const char* field) {
    std::string text;
    archive.FindString(field, &text);
    return text;
}

// The views below the archive, depth first: "CLASS NAME [LABEL] CODE".
void AddViewLines(const BMessage& archive, std::vector<std::string>* lines) {
    for (const char* field : {kArchiveViews, kArchiveTabViews}) {
        BMessage view;
        for (int32 i = 0; archive.FindMessage(field, &view, i) == B_OK; ++i) {
            std::string line = StringIn(view, kArchiveClass) + " " + StringIn(view, kArchiveName);
            if (view.HasField(kArchiveLabel)) line += " [" + StringIn(view, kArchiveLabel) + "]";
            BMessage command;
            if (view.FindMessage(kArchiveMessage, &command) == B_OK) {
                line += " " + CodeText(command.what);
            }
            lines->push_back(line);
            AddViewLines(view, lines);
        }
    }
}

const std::vector<std::string> kViews = {
    "BView topview",
    "BTabView tabview",
    "BView container",
    "BView Global",
    "BBox global_defaults [Control Defaults]",
    "BTextControl global_width [Width in pixels:] pwgw",
    "BTextControl global_height [Height in pixels:] pwgh",
    "BCheckBox global_usepause [Pause this long between frames:] pwgp",
    "BTextControl global_pauselength pwgP",
    "BCheckBox global_useloop [Loop this many times (0 is infinitely):] pwgl",
    "BTextControl global_loopcount pwgL",
    "BBox global_settings [Other Settings]",
    "BCheckBox global_setdimensions [Set size of animation from first frame inserted] pwgs",
    "BStringView global_pausestring [Pause length should be measured in:]",
    "BRadioButton global_hundredths [Hundredths of a second (GIF standard)] pwgd",
    "BRadioButton global_seconds [Seconds] pwgn",
    "BView Palette",
    "BBox palette_mapping [Mapping Defaults]",
    "BStringView palette_string [The global palette should use:]",
    "BRadioButton palette_websafe [The web safe palette (standard 216 colors)] pwpw",
    "BRadioButton palette_be [The BeOS system palette (256 colors)] pwpb",
    "BRadioButton palette_greyscale [A greyscale palette (256 levels of grey)] pwpg",
    "BRadioButton palette_file [A palette from:] pwpf",
    "BTextControl palette_filename pwpn",
    "BBox palette_defaults [Other Defaults]",
    "BCheckBox palette_dither [Use dithering] pwpd",
    "BTextControl palette_backgroundindex [Background index:] pwpa",
    "BCheckBox palette_usetransparent [Transparent index from global palette:] pwpt",
    "BTextControl palette_transparentindex pwpT",
    "BView Thumbnail",
    "BBox thumbnail_settings [Settings]",
    "BStringView thumbnail_string [When a frame is inserted, the thumbnail height:]",
    "BRadioButton thumbnail_fullsize [Should be set to the full size of the first frame] pwtf",
    "BRadioButton thumbnail_halfsize [Should be set to half the size of the first frame] pwth",
    "BRadioButton thumbnail_preset [Should be set to this value:] pwtp",
    "BTextControl thumbnail_presetvalue pwtP",
    "BRadioButton thumbnail_nochange [Should not change] pwtn",
    "BTextControl thumbnail_maxheight [Maximum thumbnail height:] pwta",
    "BTextControl thumbnail_minheight [Minimum thumbnail height:] pwti",
    "BCheckBox thumbnail_drawtransparent [Draw frames with transparency] pwtt",
    "BView Animation",
    "BBox animation_settings [Advanced GIF Settings]",
    "BStringView animation_gifstring [After each frame, the GIF decoder should:]",
    "BRadioButton animation_gifnone [Take no action (default)] pwan",
    "BRadioButton animation_gifleave [Leave the current frame] pwal",
    "BRadioButton animation_gifbackground [Restore the background color] pwab",
    "BRadioButton animation_gifprevious [Restore the previous frame (rarely supported)] pwap",
    "BCheckBox animation_gifinterlaced [Write interlaced frames] pwai",
    "BCheckBox animation_gifcomment [Write \"Made with Kirto on BeOS\" comment] pwac",
    "BCheckBox animation_gifloadfullframe "
    "[If the animation uses delta compression, assemble each frame] pwaa",
    "BView Miscellaneous",
    "BBox misc_settings [Settings]",
    "BStringView misc_string [On startup, use:]",
    "BRadioButton misc_thumbnailview [Thumbnail mode] pwmt",
    "BRadioButton misc_framelistview [Frame list mode] pwml",
    "BCheckBox misc_dimensions [Save and restore main window size and position] pwmd",
    "BTextControl misc_filelocation [Write temporary files to:] pwmf",
    "BView Compatibility",
    "BBox compatibility_settings [Browsers]",
    "BCheckBox animation_faithful [Read and save as browsers show it] pwcf",
    "BStringView animation_colors [Frames of more than 256 colors are saved then]",
    "BRadioButton animation_nodithering [Without dithering] pwcn",
    "BRadioButton animation_diffusion "
    "[Dithered as best suits each frame (Floyd-Steinberg)] pwcd",
    "BRadioButton animation_pattern "
    "[Dithered so that what stands still does not flicker] pwcp",
    "BCheckBox animation_jointcolors [In the same colors for all frames] pwcj",
    "BTextControl animation_exactcolors [Keep these colors:] pwce",
    "BTextControl animation_matte [Lay soft edges on:] pwcm",
    "BTextControl animation_threshold [Transparent below alpha:] pwct",
    "BottomView BottomView",
    "BButton SaveButton [Save] pwsa",
    "BButton CancelButton [Cancel] pwca",
};

}  // namespace

TEST_F(PreferencesLayout, HasAllViewsWithTheirLabelsAndCommands) {
    std::vector<std::string> lines;
    AddViewLines(ArchiveOfLayout(kPreferencesLayout), &lines);
    EXPECT_THAT(lines, ElementsAreArray(kViews));
}

TEST_F(PreferencesLayout, IsAWindowOfFixedSizeCalledPreferences) {
    Open();
    EXPECT_EQ(window->windowTitle(), "Preferences");
    EXPECT_EQ(window->minimumSize(), window->maximumSize());
    EXPECT_GE(window->width(), 401);
    EXPECT_GE(window->height(), 314);
}

TEST_F(PreferencesLayout, NothingIsCutWhateverTheFontsSize) {
    for (const double factor : {0.8, 1.0, 1.25, 1.5, 2.0}) {
        SCOPED_TRACE(factor);
        ScaleFont(factor);
        Open();
        ExpectNothingIsCut();
    }
}

TEST_F(PreferencesLayout, NothingIsCutInAFixedWidthFont) {
    QApplication::setFont(QFont("monospace", 12, QFont::Bold));
    Open();
    ExpectNothingIsCut();
}

TEST_F(PreferencesLayout, TheTabKeyFollowsTheControls) {
    Open();
    std::vector<std::string> names;
    for (QWidget* widget = window->nextInFocusChain(); widget != window;
         widget = widget->nextInFocusChain()) {
        const bool is_control = dynamic_cast<TextControl*>(widget) != nullptr ||
                                qobject_cast<QAbstractButton*>(widget) != nullptr;
        if (is_control && !widget->isHidden()) {
            names.push_back(widget->objectName().toStdString());
        }
    }
    std::vector<std::string> expected;
    for (const std::string& line : kViews) {
        if (!line.starts_with("BTextC") && !line.starts_with("BCheck") &&
            !line.starts_with("BRadio") && !line.starts_with("BButton")) {
            continue;
        }
        const size_t start = line.find(' ') + 1;
        expected.push_back(line.substr(start, line.find(' ', start) - start));
    }
    EXPECT_THAT(names, ElementsAreArray(expected));
}

TEST_F(PreferencesLayout, EveryControlTellsReadersWhatItIs) {
    Open();
    EXPECT_EQ(Field("global_width")->accessibleName(), "Width in pixels:");
    EXPECT_EQ(Field("global_loopcount")->accessibleName(),
              "Loop this many times (0 is infinitely):");
    EXPECT_EQ(Field("palette_filename")->accessibleName(), "A palette from:");
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->isHidden()) continue;
        if (!dynamic_cast<TextControl*>(widget) && !qobject_cast<QAbstractButton*>(widget))
            continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
        EXPECT_NE(widget->accessibleName(), widget->objectName());
    }
}

}  // namespace kirto::test
