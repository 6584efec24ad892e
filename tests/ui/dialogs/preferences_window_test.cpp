#include "ui/dialogs/preferences_window.h"

#include <QTabWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/window_archive.h"
#include "ui/dialogs/preferences_fixture.h"

namespace kirto::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// A change of one control, and what it does to the settings.
struct Change {
    const char* control;
    const char* typed;  // null for a box or radio button, which is clicked
    const char* key;
    const char* value;  // as SetFromText takes it
};

const Change kChanges[] = {
    {"global_width", "641", "global_width", "641"},
    {"global_height", "481", "global_height", "481"},
    {"global_usepause", nullptr, "global_usepause", "false"},
    {"global_pauselength", "2.5", "global_pauselength", "2.5"},
    {"global_useloop", nullptr, "global_useloop", "false"},
    {"global_loopcount", "7", "global_loopcount", "7"},
    {"global_setdimensions", nullptr, "global_setdimensions", "false"},
    {"global_seconds", nullptr, "global_pauseinseconds", "true"},
    {"palette_websafe", nullptr, "palette_mapping", "0"},
    {"palette_be", nullptr, "palette_mapping", "1"},
    {"palette_greyscale", nullptr, "palette_mapping", "2"},
    {"palette_filename", kPreferencesLayout.c_str(), "palette_filename",
     kPreferencesLayout.c_str()},
    {"palette_dither", nullptr, "palette_dither", "true"},
    {"palette_backgroundindex", "255", "palette_backgroundindex", "255"},
    {"palette_usetransparent", nullptr, "palette_usetransparent", "false"},
    {"palette_transparentindex", "12", "palette_transparentindex", "12"},
    {"thumbnail_fullsize", nullptr, "thumbnail_height", "0"},
    {"thumbnail_halfsize", nullptr, "thumbnail_height", "1"},
    {"thumbnail_nochange", nullptr, "thumbnail_height", "3"},
    {"thumbnail_presetvalue", "99", "thumbnail_heightvalue", "99"},
    {"thumbnail_maxheight", "500", "thumbnail_maxheight", "500"},
    {"thumbnail_minheight", "20", "thumbnail_minheight", "20"},
    {"thumbnail_drawtransparent", nullptr, "thumbnail_drawtransparent", "false"},
    {"animation_gifleave", nullptr, "animation_gifdisposal", "1"},
    {"animation_gifbackground", nullptr, "animation_gifdisposal", "2"},
    {"animation_gifprevious", nullptr, "animation_gifdisposal", "3"},
    {"animation_gifinterlaced", nullptr, "animation_gifinterlaced", "true"},
    {"animation_gifcomment", nullptr, "animation_gifcomment", "false"},
    {"animation_gifloadfullframe", nullptr, "animation_gifloadfullframe", "false"},
    {"misc_framelistview", nullptr, "misc_preferredmode", "1"},
    {"misc_dimensions", nullptr, "misc_savewindowdimensions", "false"},
    {"misc_filelocation", "/", "misc_tempfilelocation", "/"},
    {"animation_faithful", nullptr, "animation_faithful", "true"},
    {"animation_nodithering", nullptr, "animation_dithering", "0"},
    {"animation_pattern", nullptr, "animation_dithering", "2"},
    {"animation_jointcolors", nullptr, "animation_jointcolors", "true"},
    {"animation_exactcolors", "#ff0000, #00FF7f", "animation_exactcolors", "#ff0000, #00FF7f"},
    {"animation_matte", "#0000fF", "animation_matte", "255"},
    {"animation_threshold", "1", "animation_threshold", "1"},
};

// A value of each setting that is not the built-in one.
constexpr std::pair<const char*, const char*> kOtherValues[] = {
    {"global_width", "1"},
    {"global_height", "2"},
    {"global_usepause", "false"},
    {"global_useloop", "false"},
    {"global_pauselength", "0.25"},
    {"global_loopcount", "3"},
    {"global_setdimensions", "false"},
    {"global_pauseinseconds", "true"},
    {"palette_mapping", "7"},
    {"palette_filename", "/some/palette.gif"},
    {"palette_usetransparent", "true"},
    {"palette_transparentindex", "4"},
    {"palette_backgroundindex", "5"},
    {"palette_dither", "true"},
    {"thumbnail_height", "2"},
    {"thumbnail_heightvalue", "66"},
    {"thumbnail_maxheight", "777"},
    {"thumbnail_minheight", "11"},
    {"thumbnail_drawtransparent", "false"},
    {"animation_gifdisposal", "2"},
    {"animation_gifinterlaced", "true"},
    {"animation_gifcomment", "false"},
    {"animation_gifloadfullframe", "false"},
    {"misc_savewindowdimensions", "false"},
    {"misc_tempfilelocation", "/some/folder"},
    {"misc_preferredmode", "1"},
    {"animation_faithful", "true"},
    {"animation_dithering", "7"},
    {"animation_jointcolors", "true"},
    {"animation_matte", "255"},
    {"animation_threshold", "7"},
    {"animation_exactcolors", "#123456"},
};

void Set(Prefs* prefs, const char* key, const char* value) {
    std::string reason;
    EXPECT_TRUE(prefs->SetFromText(key, value, &reason)) << reason;
}

class PreferencesWindowTest : public PreferencesFixture {};

}  // namespace

TEST_F(PreferencesWindowTest, EachControlChangesItsSettingAndNoOther) {
    // Everything that a field depends on is on.
    prefs.palette_mapping = 7;
    prefs.palette_usetransparent = true;
    prefs.thumbnail_height = 2;
    for (const Change& change : kChanges) {
        SCOPED_TRACE(change.control);
        Open();

        if (change.typed) {
            Enter(change.control, change.typed);
        } else {
            Click(change.control);
        }
        Click("SaveButton");

        Prefs expected = prefs;
        Set(&expected, change.key, change.value);
        EXPECT_EQ(Fields(Saved()), Fields(expected));
    }
    EXPECT_THAT(alerts.Lines(), IsEmpty());
}

TEST_F(PreferencesWindowTest, ShowsEachSettingAndSavesItAsItWas) {
    const BMessage built_in = Fields(prefs);
    for (const auto& [key, value] : kOtherValues) {
        SCOPED_TRACE(key);
        prefs = Prefs(Prefs::BuiltIn{});
        Set(&prefs, key, value);
        EXPECT_NE(Fields(prefs), built_in);

        Open();
        Click("SaveButton");

        EXPECT_EQ(Fields(Saved()), Fields(prefs));
    }
    EXPECT_EQ(std::size(kOtherValues) + 1, static_cast<size_t>(built_in.CountNames()));
}

TEST_F(PreferencesWindowTest, ShowsNumbersAsTheyAreAndThePauseWithTwoDecimals) {
    prefs.global_width = -5;
    prefs.global_pauselength = 0.125;

    Open();

    EXPECT_EQ(TextOf("global_width"), "-5");
    EXPECT_EQ(TextOf("global_pauselength"), "0.12");
}

TEST_F(PreferencesWindowTest, SavingSendsTheSettingsAndTheMainWindowsFrameAndCloses) {
    Open();

    Click("SaveButton");

    const std::vector<BMessage> messages = application->Messages();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].what, kStoreSettings);
    BRect frame;
    EXPECT_EQ(messages[0].FindRect("window_frame", &frame), B_OK);
    EXPECT_EQ(frame, BRect(1, 2, 30, 40));
    EXPECT_TRUE(window.isNull());
}

TEST_F(PreferencesWindowTest, CancelDiscardsAllEditsAlsoThoseThatWereFoundValid) {
    Open();
    Enter("global_width", "641");
    Click("global_usepause");
    Type("global_height", "-3");

    Click("CancelButton");

    EXPECT_THAT(application->Messages(), IsEmpty());
    EXPECT_THAT(alerts.Lines(), IsEmpty());
    EXPECT_TRUE(window.isNull());
}

TEST_F(PreferencesWindowTest, EscapeCancelsAndEnterSaves) {
    Open();
    Type("global_width", "641");
    QTest::keyClick(Field("global_width"), Qt::Key_Escape);
    HandleEvents();
    EXPECT_THAT(application->Messages(), IsEmpty());
    EXPECT_TRUE(window.isNull());

    Open();
    Type("global_width", "642");
    QTest::keyClick(Field("global_width"), Qt::Key_Return);
    HandleEvents();
    EXPECT_EQ(Saved().global_width, 642);
    EXPECT_TRUE(window.isNull());
}

TEST_F(PreferencesWindowTest, AnEditThatWasNotCheckedYetIsCheckedBeforeItIsSaved) {
    Open();
    Type("global_width", "-3");

    Click("SaveButton");

    EXPECT_THAT(alerts.Lines(), ElementsAre("WARNING [] This value can't be less than 0. | OK"));
    EXPECT_EQ(Saved().global_width, 0);
    EXPECT_TRUE(window.isNull());
}

TEST_F(PreferencesWindowTest, WhatIsNoColorIsRefused) {
    prefs.animation_matte = 0x00FF80;
    prefs.animation_exactcolors = "#010203";
    Open();
    EXPECT_EQ(TextOf("animation_matte"), "#00ff80");

    Enter("animation_matte", "red");
    Enter("animation_exactcolors", "#010203 #12");

    EXPECT_THAT(alerts.Lines(),
                ElementsAre("WARNING [] You must enter a color as #rrggbb. | OK",
                            "WARNING [] You must enter colors as #rrggbb, with blanks between "
                            "them. | OK"));
    EXPECT_EQ(TextOf("animation_matte"), "#00ff80");
    EXPECT_EQ(TextOf("animation_exactcolors"), "#010203");
}

TEST_F(PreferencesWindowTest, ASwatchShowsTheColorThatIsTyped) {
    prefs.animation_faithful = true;
    Open();
    window->ShowTab("Compatibility");
    Type("animation_matte", "#3060c0");
    HandleEvents();
    auto* swatch = window->findChild<QWidget*>("animation_matteswatch");
    ASSERT_NE(swatch, nullptr);
    const QImage image = swatch->grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 2), QColor(0x30, 0x60, 0xC0));
}

TEST_F(PreferencesWindowTest, FieldsDependOnTheirBoxOrRadioButton) {
    struct Dependence {
        const char* field;
        const char* on;
        const char* off;
    };
    constexpr Dependence kDependences[] = {
        {"palette_filename", "palette_file", "palette_websafe"},
        {"palette_filename", "palette_file", "palette_be"},
        {"palette_filename", "palette_file", "palette_greyscale"},
        {"palette_transparentindex", "palette_usetransparent", "palette_usetransparent"},
        {"thumbnail_presetvalue", "thumbnail_preset", "thumbnail_fullsize"},
        {"thumbnail_presetvalue", "thumbnail_preset", "thumbnail_halfsize"},
        {"thumbnail_presetvalue", "thumbnail_preset", "thumbnail_nochange"},
        {"global_pauselength", "global_usepause", "global_usepause"},
        {"global_loopcount", "global_useloop", "global_useloop"},
    };
    prefs.global_usepause = false;
    prefs.global_useloop = false;
    Open();
    for (const Dependence& dependence : kDependences) {
        SCOPED_TRACE(dependence.off);
        EXPECT_FALSE(Field(dependence.field)->isEnabled());
        Click(dependence.on);
        EXPECT_TRUE(Field(dependence.field)->isEnabled());
        Click(dependence.off);
        EXPECT_FALSE(Field(dependence.field)->isEnabled());
    }
}

TEST_F(PreferencesWindowTest, FieldsCanBeUsedFromTheStartWhereWhatTheyDependOnIsOn) {
    prefs.palette_mapping = 7;
    prefs.palette_usetransparent = true;
    prefs.thumbnail_height = 2;
    Open();
    for (const char* name : {"global_pauselength", "global_loopcount", "palette_filename",
                             "palette_transparentindex", "thumbnail_presetvalue"}) {
        EXPECT_TRUE(Field(name)->isEnabled()) << name;
    }
}

TEST_F(PreferencesWindowTest, OneRadioButtonOfAGroupIsOn) {
    Open();
    Click("global_seconds");
    Click("animation_gifprevious");
    Click("animation_gifleave");

    EXPECT_FALSE(Find<QRadioButton>("global_hundredths")->isChecked());
    EXPECT_FALSE(Find<QRadioButton>("animation_gifprevious")->isChecked());
    EXPECT_TRUE(Find<QRadioButton>("animation_gifleave")->isChecked());
    EXPECT_TRUE(Find<QRadioButton>("palette_websafe")->isChecked());
}

TEST_F(PreferencesWindowTest, UnknownChoicesCountAsTheLastOneWhereTheyHaveAMeaning) {
    prefs.thumbnail_height = 9;
    prefs.animation_gifdisposal = -1;
    Open();
    EXPECT_TRUE(Find<QRadioButton>("thumbnail_nochange")->isChecked());
    EXPECT_TRUE(Find<QRadioButton>("animation_gifprevious")->isChecked());
}

TEST_F(PreferencesWindowTest, UnknownChoicesWithoutMeaningStayAsTheyAre) {
    prefs.palette_mapping = 4;
    prefs.misc_preferredmode = 5;
    Open();
    EXPECT_FALSE(Find<QRadioButton>("palette_websafe")->isChecked());

    Click("SaveButton");

    EXPECT_EQ(Saved().palette_mapping, 4);
    EXPECT_EQ(Saved().misc_preferredmode, 5);
}

TEST_F(PreferencesWindowTest, TextsAreCutAtAWholeCharacterWhereTheSettingsHaveNoRoom) {
    prefs.palette_mapping = 7;
    const TemporaryFolder folder;
    std::string path = folder.Path();
    while (path.size() < 253)
        path += "/";
    path += "\xC3\xA9\xC3\xA9";  // two bytes each
    WriteBytes(path, {0});
    Open();

    Enter("palette_filename", path);
    Click("SaveButton");

    EXPECT_THAT(alerts.Lines(), IsEmpty());
    EXPECT_EQ(Saved().palette_filename, path.substr(0, 255));
}

TEST_F(PreferencesWindowTest, BytesThatAreNoTextStayAsTheyAre) {
    prefs.misc_tempfilelocation = "/caf\xE9";
    Open();

    Click("SaveButton");

    EXPECT_EQ(Saved().misc_tempfilelocation, "/caf\xE9");
}

TEST_F(PreferencesWindowTest, OpensAtTheTabThatIsAskedFor) {
    Open();
    auto* tabs = Find<QTabWidget>("tabview");
    EXPECT_EQ(tabs->currentWidget(), Find<QWidget>("Global"));

    window->ShowTab("Animation");
    EXPECT_EQ(tabs->currentWidget(), Find<QWidget>("Animation"));

    window->ShowTab("Nowhere");
    window->ShowTab("SaveButton");
    EXPECT_EQ(tabs->currentWidget(), Find<QWidget>("Animation"));
}

TEST_F(PreferencesWindowTest, ALayoutWithoutAnyControlKeepsAllSettings) {
    for (const auto& [key, value] : kOtherValues) {
        Set(&prefs, key, value);
    }
    BMessage layout = ArchiveOfLayout(kPreferencesLayout);
    layout.RemoveName(kArchiveViews);
    Open(layout);

    window->ShowTab("Animation");
    window->Messenger().SendMessage(FourCharCode("pwmf"));
    window->Messenger().SendMessage(FourCharCode("pwsa"));
    HandleEvents();

    // The folder doesn't exist, and what says so can't be seen, but the check is made all the same.
    EXPECT_EQ(alerts.Lines().size(), 1u);
    Prefs expected = prefs;
    expected.misc_tempfilelocation = Saved().misc_tempfilelocation;
    EXPECT_EQ(Fields(Saved()), Fields(expected));
}

TEST_F(PreferencesWindowTest, AControlOfAnotherClassIsNoneAtAll) {
    BMessage layout = ArchiveOfLayout(kPreferencesLayout);
    BMessage strange;
    strange.AddString(kArchiveClass, "BButton");
    strange.AddString(kArchiveName, "global_width");
    layout.RemoveName(kArchiveViews);
    layout.AddMessage(kArchiveViews, strange);
    prefs.global_width = 77;
    Open(layout);

    window->Messenger().SendMessage(FourCharCode("pwgw"));
    window->Messenger().SendMessage(FourCharCode("pwsa"));
    HandleEvents();

    EXPECT_EQ(Saved().global_width, 77);
}

TEST_F(PreferencesWindowTest, AMissingLayoutGivesAPlaceholderThatCanBeClosed) {
    const auto other = std::make_unique<WindowResources>(std::vector<WindowResources::Window>{});
    const Editor editor{document.document, BMessenger(application), panels, roster,
                        &other->Handler()};
    window = new PreferencesWindow(editor, prefs, nullptr, [] { return BRect(); });

    EXPECT_EQ(window->windowTitle(), "Window \"PreferencesWindow\" not found in resources!");
    window->Messenger().SendMessage(FourCharCode("pwca"));
    HandleEvents();
    EXPECT_TRUE(window.isNull());
}

TEST_F(PreferencesWindowTest, CommandsOfNobodyAreIgnored) {
    Open();
    window->Messenger().SendMessage(FourCharCode("none"));
    HandleEvents();
    EXPECT_FALSE(window.isNull());
    EXPECT_THAT(application->Messages(), IsEmpty());
}

}  // namespace kirto::test
