#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>

#include "ui/shell/kirto_window_fixture.h"

namespace kirto::test {

namespace {

constexpr bool kOn = true;
constexpr bool kOff = false;

// Edits in the panels: what is checked, what the application is posted, what is enabled.
class KirtoWindowEdits : public KirtoWindowFixture {
  protected:
    TextControl& Field(const char* panel, const char* name) {
        return Find<TextControl>(panel, name);
    }
    QCheckBox& Box(const char* panel, const char* name) { return Find<QCheckBox>(panel, name); }
    // Switches the box with a click.
    void Switch(QCheckBox& box, bool on) {
        ASSERT_TRUE(box.isEnabled());
        ASSERT_NE(box.isChecked(), on);
        box.click();
        HandleEvents();
    }
    void Choose(const char* panel, const QString& label) {
        auto& menu = Find<QComboBox>(panel, "PaletteMenuField");
        const int item = menu.findText(label);
        ASSERT_GE(item, 0);
        menu.setCurrentIndex(item);
        emit menu.activated(item);
        HandleEvents();
    }
    // The value of the last posted message, which has to be of that code and counted as a change.
    int32 PostedNumber(uint32 code) {
        int32 value = -1;
        EXPECT_EQ(PostedEdit(code).FindInt32("value", &value), B_OK);
        return value;
    }
    double PostedLength(uint32 code) {
        double value = -1;
        EXPECT_EQ(PostedEdit(code).FindDouble("value", &value), B_OK);
        return value;
    }
    bool PostedSwitch(uint32 code) {
        bool value = false;
        EXPECT_EQ(PostedEdit(code).FindBool("value", &value), B_OK);
        return value;
    }
    BMessage PostedEdit(uint32 code) {
        const BMessage message = LastPosted();
        EXPECT_EQ(CodeText(message.what), CodeText(code));
        EXPECT_EQ(document.changes_waiting, ++edits_);
        return message;
    }

    AlertRecorder alerts;

  private:
    int32 edits_ = 0;
};

TEST_F(KirtoWindowEdits, PostTheCanvas) {
    Open();

    Enter(Field("GlobalView", "Width"), "12");
    EXPECT_EQ(PostedNumber(kSetWidth), 12);
    Enter(Field("GlobalView", "Height"), "13");
    EXPECT_EQ(PostedNumber(kSetHeight), 13);

    EXPECT_EQ(Posted(), "gvwd gvht");
    EXPECT_EQ(alerts.Lines(), Lines{});
}

TEST_F(KirtoWindowEdits, LeaveTwelveForTwelveAndAHalf) {
    Open();

    Enter(Field("GlobalView", "Width"), "12.5");

    EXPECT_EQ(Field("GlobalView", "Width").text(), "12");
    EXPECT_EQ(PostedNumber(kSetWidth), 12);
}

TEST_F(KirtoWindowEdits, TellThatAWidthCanNotBeLessThanZero) {
    Open();

    Enter(Field("GlobalView", "Width"), "-3");

    EXPECT_EQ(alerts.Lines(), Lines{"WARNING [] Width can't be less than 0. | OK"});
    EXPECT_EQ(Field("GlobalView", "Width").text(), "0");
    EXPECT_EQ(PostedNumber(kSetWidth), 0);
}

TEST_F(KirtoWindowEdits, NameEveryFieldThatIsTooLow) {
    AddFrame()->use_pause = true;
    EditOf(document)->use_pause = true;
    EditOf(document)->use_loop = true;
    PaletteEditOf(document)->use_transparent = true;
    Open();

    for (const auto& [panel, name] :
         {std::pair{"GlobalView", "Width"}, std::pair{"GlobalView", "Height"},
          std::pair{"GlobalView", "Pause length"}, std::pair{"GlobalView", "Loop count"},
          std::pair{"PaletteView", "Background index"},
          std::pair{"PaletteView", "Transparent index"}, std::pair{"LocalView", "XOffset"},
          std::pair{"LocalView", "YOffset"}, std::pair{"LocalView", "Pause length"}}) {
        Enter(Field(panel, name), "-1");
    }

    EXPECT_EQ(alerts.Lines(), (Lines{
                                  "WARNING [] Width can't be less than 0. | OK",
                                  "WARNING [] Height can't be less than 0. | OK",
                                  "WARNING [] Pause length can't be less than 0.00. | OK",
                                  "WARNING [] Loop count can't be less than 0. | OK",
                                  "WARNING [] Background index can't be less than 0. | OK",
                                  "WARNING [] Transparent index can't be less than 0. | OK",
                                  "WARNING [] XOffset can't be less than 0. | OK",
                                  "WARNING [] YOffset can't be less than 0. | OK",
                                  "WARNING [] Pause length can't be less than 0.00. | OK",
                              }));
    EXPECT_EQ(Posted(), "gvwd gvht gvpl gvlc pvbk pvti lvxo lvyo lvpl");
}

TEST_F(KirtoWindowEdits, SwitchTheGlobalPauseWithItsField) {
    EditOf(document)->use_pause = false;
    Open();
    TextControl& length = Field("GlobalView", "Pause length");
    QCheckBox& box = Box("GlobalView", "Pause");

    Switch(box, kOn);
    EXPECT_TRUE(length.isEnabled());
    EXPECT_TRUE(PostedSwitch(kUsePause));
    Switch(box, kOff);
    EXPECT_FALSE(length.isEnabled());
    EXPECT_FALSE(PostedSwitch(kUsePause));
}

TEST_F(KirtoWindowEdits, SwitchTheLoopWithItsField) {
    EditOf(document)->use_loop = false;
    Open();
    TextControl& count = Field("GlobalView", "Loop count");
    QCheckBox& box = Box("GlobalView", "Loop");

    Switch(box, kOn);
    EXPECT_TRUE(count.isEnabled());
    EXPECT_TRUE(PostedSwitch(kUseLoop));
    Switch(box, kOff);
    EXPECT_FALSE(count.isEnabled());
    EXPECT_FALSE(PostedSwitch(kUseLoop));
}

TEST_F(KirtoWindowEdits, PostPauseLengthAndLoopCount) {
    EditOf(document)->use_pause = true;
    EditOf(document)->use_loop = true;
    Open();

    Enter(Field("GlobalView", "Pause length"), "2.5");
    EXPECT_EQ(PostedLength(kSetPauseLength), 2.5);
    EXPECT_EQ(Field("GlobalView", "Pause length").text(), "2.50");
    Enter(Field("GlobalView", "Loop count"), "4");
    EXPECT_EQ(PostedNumber(kSetLoopCount), 4);
}

TEST_F(KirtoWindowEdits, PostTheGlobalPalettesKind) {
    Open();
    for (const auto& [label, code] :
         {std::pair{"BeOS system", kPaletteToSystem}, std::pair{"web safe", kPaletteToWebSafe},
          std::pair{"greyscale", kPaletteToGreyscale},
          std::pair{"first frame", kPaletteToFirstFrame},
          std::pair{"current frame", kPaletteToCurrentFrame}}) {
        Choose("PaletteView", label);
        PostedEdit(code);
    }
    EXPECT_EQ(Posted(), "pvbp pvwp pvgp pvfp pvcp");
    EXPECT_EQ(panels.TakeLines(), Lines{});
}

TEST_F(KirtoWindowEdits, UntickAndDisableDitherForGreyscaleAndOnlyEnableItForOtherKinds) {
    PaletteEditOf(document)->dither = true;
    Open();
    QCheckBox& dither = Box("PaletteView", "Dither");
    EXPECT_TRUE(dither.isChecked());

    Choose("PaletteView", "greyscale");
    EXPECT_FALSE(dither.isChecked());
    EXPECT_FALSE(dither.isEnabled());
    CarryOutEdits();
    EXPECT_FALSE(document.Current()->palette->dither);

    for (const char* label :
         {"BeOS system", "web safe", "first frame", "current frame", "from a file"}) {
        Choose("PaletteView", "greyscale");
        Choose("PaletteView", label);
        EXPECT_TRUE(dither.isEnabled()) << label;
        CarryOutEdits();
        EXPECT_TRUE(dither.isEnabled()) << label;
        EXPECT_FALSE(dither.isChecked()) << label;
    }
}

TEST_F(KirtoWindowEdits, ShowPausesOfManyDigitsWithTwoDecimals) {
    EditOf(document)->use_pause = true;
    Open();
    TextControl& length = Field("GlobalView", "Pause length");

    Enter(length, "12345678901");

    EXPECT_EQ(length.text(), "12345678901.00");
    CarryOutEdits();
    EXPECT_EQ(length.text(), "12345678901.00");
    EXPECT_EQ(document.Current()->pause_length, 12345678901.0);
}

TEST_F(KirtoWindowEdits, AskForAPalettesFile) {
    Open();

    Choose("PaletteView", "from a file");

    PostedEdit(kPaletteToFile);
    EXPECT_EQ(Posted(), "pvfi");
    EXPECT_EQ(panels.TakeLines(), (Lines{"open title=Open Paletted File", "open shown"}));
    EXPECT_TRUE(Box("PaletteView", "Dither").isEnabled());
}

TEST_F(KirtoWindowEdits, PostThePalettesIndices) {
    PaletteEditOf(document)->use_transparent = true;
    Open();

    Enter(Field("PaletteView", "Background index"), "255");
    EXPECT_EQ(PostedNumber(kSetBackgroundIndex), 255);
    Enter(Field("PaletteView", "Transparent index"), "254");
    EXPECT_EQ(PostedNumber(kSetTransparentIndex), 254);

    EXPECT_EQ(alerts.Lines(), Lines{});
}

TEST_F(KirtoWindowEdits, TellThatAnIndexIsBeyondThePalette) {
    PaletteEditOf(document)->use_transparent = true;
    PaletteEditOf(document)->bits = 4;
    Open();

    Enter(Field("PaletteView", "Background index"), "16");
    EXPECT_EQ(PostedNumber(kSetBackgroundIndex), 15);
    EXPECT_EQ(Field("PaletteView", "Background index").text(), "15");
    Enter(Field("PaletteView", "Transparent index"), "300");
    EXPECT_EQ(PostedNumber(kSetTransparentIndex), 15);

    EXPECT_EQ(alerts.Lines(),
              (Lines{"WARNING [] Background index can't be greater than 15. | OK",
                     "WARNING [] Transparent index can't be greater than 15. | OK"}));
}

TEST_F(KirtoWindowEdits, SwitchTransparencyWithItsField) {
    Open();
    TextControl& index = Field("PaletteView", "Transparent index");
    QCheckBox& box = Box("PaletteView", "Transparent");

    Switch(box, kOn);
    EXPECT_TRUE(index.isEnabled());
    EXPECT_TRUE(PostedSwitch(kUseTransparent));
    Switch(box, kOff);
    EXPECT_FALSE(index.isEnabled());
    EXPECT_FALSE(PostedSwitch(kUseTransparent));
}

TEST_F(KirtoWindowEdits, SwitchDither) {
    Open();

    Switch(Box("PaletteView", "Dither"), kOn);
    EXPECT_TRUE(PostedSwitch(kSetDither));
    Switch(Box("PaletteView", "Dither"), kOff);
    EXPECT_FALSE(PostedSwitch(kSetDither));
}

TEST_F(KirtoWindowEdits, PostTheCurrentFramesOffset) {
    AddFrame();
    Open();

    Enter(Field("LocalView", "XOffset"), "3");
    EXPECT_EQ(PostedNumber(kFrameSetXOffset), 3);
    Enter(Field("LocalView", "YOffset"), "4");
    EXPECT_EQ(PostedNumber(kFrameSetYOffset), 4);
}

TEST_F(KirtoWindowEdits, SwitchTheCurrentFramesPauseWithItsField) {
    AddFrame();
    Open();
    TextControl& length = Field("LocalView", "Pause length");

    Switch(Box("LocalView", "Pause"), kOn);
    EXPECT_TRUE(length.isEnabled());
    EXPECT_TRUE(PostedSwitch(kFrameUsePause));
    Enter(length, "0.25");
    EXPECT_EQ(PostedLength(kFrameSetPauseLength), 0.25);
    Switch(Box("LocalView", "Pause"), kOff);
    EXPECT_FALSE(length.isEnabled());
    EXPECT_FALSE(PostedSwitch(kFrameUsePause));
}

TEST_F(KirtoWindowEdits, SwitchTheLocalPaletteWithItsMenu) {
    AddFrame();
    Open();
    auto& menu = Find<QComboBox>("LocalView", "PaletteMenuField");

    Switch(Box("LocalView", "Palette"), kOn);
    EXPECT_TRUE(menu.isEnabled());
    EXPECT_TRUE(PostedSwitch(kFrameUsePalette));
    Switch(Box("LocalView", "Palette"), kOff);
    EXPECT_FALSE(menu.isEnabled());
    EXPECT_FALSE(PostedSwitch(kFrameUsePalette));
}

TEST_F(KirtoWindowEdits, ForwardTheLocalPalettesKind) {
    AddFrame()->local_palette = true;
    Open();
    for (const auto& [label, code] :
         {std::pair{"BeOS system", kFrameSystem}, std::pair{"web safe", kFrameWebSafe},
          std::pair{"greyscale", kFrameGreyscale}, std::pair{"optimal", kFrameOptimal}}) {
        Choose("LocalView", label);
        PostedEdit(code);
    }
    EXPECT_EQ(Posted(), "lvbp lvwp lvgp lvop");
}

TEST_F(KirtoWindowEdits, AskForALocalPalettesFile) {
    AddFrame()->local_palette = true;
    Open();

    Choose("LocalView", "from a file");

    PostedEdit(kFramePaletteToFile);
    EXPECT_EQ(panels.TakeLines(), (Lines{"open title=Open Paletted File", "open shown"}));
}

TEST_F(KirtoWindowEdits, OfTheCurrentFrameDoNothingWithoutOne) {
    Open();

    for (const uint32 code : {kFrameSetXOffset, kFrameSetYOffset, kFrameUsePause,
                              kFrameSetPauseLength, kFrameUsePalette, kFramePaletteToFile}) {
        Do(code);
    }

    EXPECT_EQ(Posted(), "");
    EXPECT_EQ(panels.TakeLines(), Lines{});
    EXPECT_FALSE(Field("LocalView", "Pause length").isEnabled());
}

TEST_F(KirtoWindowEdits, ShowThemselvesInTheStatusLineOnceTheyAreDone) {
    for (int32 i = 0; i < 3; ++i)
        AddFrame();
    Open();
    EXPECT_EQ(StatusText(), "Status: 3 frame(s), unmodified");

    Enter(Field("GlobalView", "Width"), "12");
    CarryOutEdits();

    EXPECT_EQ(StatusText(), "Status: 3 frame(s), modified");
    EXPECT_EQ(Field("GlobalView", "Width").text(), "12");
}

TEST_F(KirtoWindowEdits, AreReadBeforeARefreshThatWaitedLonger) {
    EditOf(document)->use_loop = false;
    EditOf(document)->width = 320;
    Open();

    window->Messenger().SendMessage(kUpdateAll);
    Type(Field("GlobalView", "Width"), "12");
    QTest::keyClick(&Field("GlobalView", "Width"), Qt::Key_Return);
    Box("GlobalView", "Loop").click();
    HandleEvents();

    const std::vector<BMessage> messages = application->Messages();
    ASSERT_EQ(Posted(), "gvwd gvlp");
    int32 width = 0;
    bool loop = false;
    EXPECT_EQ(messages[0].FindInt32("value", &width), B_OK);
    EXPECT_EQ(messages[1].FindBool("value", &loop), B_OK);
    EXPECT_EQ(width, 12);
    EXPECT_TRUE(loop);
}

TEST_F(KirtoWindowEdits, SurviveARefreshWhileTheUserTypes) {
    Open();
    Type(Field("GlobalView", "Width"), "12");

    Do(kUpdateAll);
    EXPECT_EQ(Field("GlobalView", "Width").text(), "12");
    QTest::keyClick(&Field("GlobalView", "Width"), Qt::Key_Return);
    HandleEvents();

    EXPECT_EQ(PostedNumber(kSetWidth), 12);
}

TEST_F(KirtoWindowEdits, GoBeforeTheMenuCommandThatTheyAreInterruptedBy) {
    AddFrame();
    Open();
    Type(Field("GlobalView", "Width"), "12");

    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    HandleEvents();

    EXPECT_EQ(Posted(), "gvwd awvp");
}

TEST_F(KirtoWindowEdits, OfTheCurrentFrameGoBeforeTheSelectionOfAnother) {
    AddFrame();
    AddFrame();
    Open();
    Type(Field("LocalView", "XOffset"), "12");
    auto& grid = Find<QWidget>("ThumbDrawingView");

    // Beside the first thumbnail lies the second one; the first is hit in any layout.
    QTest::mouseClick(&grid, Qt::LeftButton, Qt::NoModifier, QPoint(12, 12));
    HandleEvents();

    EXPECT_EQ(Posted(), "lvxo aslt");
}

}  // namespace

}  // namespace kirto::test
