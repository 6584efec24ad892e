#include "ui/panels/field_panel.h"

#include "ui/panels/view_fixture.h"

namespace kirto::test {

namespace {

// One field of each kind.
class SomePanel : public FieldPanel {
  public:
    SomePanel(const ShownDocument& shown, const BMessenger& window)
        : FieldPanel("SomeView", "Some", shown, window, nullptr) {}

    TextControl* width = AddNumber(kSetWidth, Unit::kPixels, "the width");
    QCheckBox* pause = MakeSwitch(kUsePause, "the pause");
    TextControl* pause_length = AddNumber(kSetPauseLength, Unit::kPause, "its length", pause);
    TextControl* index = AddNumber(kSetBackgroundIndex, Unit::kNone, "the index", "Index:");
    TextControl* x_offset = AddNumber(kFrameSetXOffset, Unit::kPixels, "the offset");
    QCheckBox* frame_pause = MakeSwitch(kFrameUsePause, "the frame's pause", "Use pause");
    TextControl* frame_pause_length =
        AddNumber(kFrameSetPauseLength, Unit::kNone, "its length", "Length:", frame_pause);
};

class FieldPanelTest : public ViewFixture {
  protected:
    template <typename Value>
    Value Posted(uint32 code) {
        EXPECT_TRUE(panel.PostEdit(code, application));
        EXPECT_EQ(edits->Messages().size(), ++posted_);
        const BMessage edit = edits->Messages().back();
        EXPECT_EQ(edit.what, code);
        Value value{};
        if constexpr (std::is_same_v<Value, bool>) {
            EXPECT_EQ(edit.FindBool("value", &value), B_OK);
        } else if constexpr (std::is_same_v<Value, double>) {
            EXPECT_EQ(edit.FindDouble("value", &value), B_OK);
        } else {
            EXPECT_EQ(edit.FindInt32("value", &value), B_OK);
        }
        return value;
    }
    void ShowAFrame() {
        AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "frame0000");
        Take();
        panel.UpdateDisplay();
    }

    AlertRecorder alerts;
    std::shared_ptr<PortRecorder> edits = std::make_shared<PortRecorder>();
    BMessenger application{edits};
    SomePanel panel{shown, window};

  private:
    size_t posted_ = 0;
};

TEST_F(FieldPanelTest, ShowsUnitsBehindNumbersAsTheSettingsHaveThem) {
    const auto units = [this] {
        QStringList texts;
        for (const QLabel* label : panel.findChildren<QLabel*>("Unit"))
            texts.append(label->text());
        return texts;
    };
    panel.UpdateDisplay();
    EXPECT_EQ(units(), (QStringList{"px", "1/100 s", "px"}));

    document.prefs.global_pauseinseconds = true;
    document.PublishSettings();
    Take();
    panel.UpdateDisplay();
    EXPECT_EQ(units(), (QStringList{"px", "s", "px"}));
}

TEST_F(FieldPanelTest, NamesAndLabelsControlsByTheFieldTableUnlessToldOtherwise) {
    EXPECT_EQ(panel.width->objectName(), "Width");
    EXPECT_EQ(panel.width->accessibleName(), "Width:");
    EXPECT_EQ(panel.pause->text(), "Pause");
    EXPECT_EQ(panel.pause_length->accessibleName(), "Pause length");
    EXPECT_EQ(panel.index->objectName(), "Background index");
    EXPECT_EQ(panel.index->accessibleName(), "Index:");
    EXPECT_EQ(panel.frame_pause->text(), "Use pause");
}

TEST_F(FieldPanelTest, PostsTheValueWithTheTypeOfTheField) {
    ShowAFrame();
    panel.width->setText("12");
    panel.pause->setChecked(true);
    panel.pause_length->setText("2.5");
    panel.x_offset->setText("3");

    EXPECT_EQ(Posted<int32>(kSetWidth), 12);
    EXPECT_TRUE(Posted<bool>(kUsePause));
    EXPECT_EQ(Posted<double>(kSetPauseLength), 2.5);
    EXPECT_EQ(Posted<int32>(kFrameSetXOffset), 3);
    EXPECT_EQ(port->Transcript(), "") << "Edits go to the application, not to the window.";
}

TEST_F(FieldPanelTest, PostsAndShowsTheCorrectedValue) {
    panel.width->setText("-12");
    panel.index->setText("256");

    EXPECT_EQ(Posted<int32>(kSetWidth), 0);
    EXPECT_EQ(Posted<int32>(kSetBackgroundIndex), 255);

    EXPECT_EQ(panel.width->text(), "0");
    EXPECT_EQ(panel.index->text(), "255");
    EXPECT_EQ(alerts.Lines(), (std::vector<std::string>{
                                  "WARNING [] Width can't be less than 0. | OK",
                                  "WARNING [] Background index can't be greater than 255. | OK",
                              }));
}

TEST_F(FieldPanelTest, CorrectsWhatWasTypedForAFrameThatIsGoneAndPostsNothing) {
    panel.x_offset->setText("12 pixels");

    EXPECT_FALSE(panel.PostEdit(kFrameSetXOffset, application));
    EXPECT_FALSE(panel.PostEdit(kFrameUsePause, application));

    EXPECT_EQ(panel.x_offset->text(), "12");
    EXPECT_EQ(edits->Transcript(), "");
}

TEST_F(FieldPanelTest, PostsNothingForACommandThatIsNotOfItsControls) {
    EXPECT_FALSE(panel.PostEdit(kSetHeight, application));
    EXPECT_FALSE(panel.PostEdit(kPaletteToSystem, application));
    EXPECT_EQ(edits->Transcript(), "");
}

TEST_F(FieldPanelTest, EnablesTheFieldsOfAFrameWhileThereIsOne) {
    panel.UpdateDisplay();
    EXPECT_TRUE(panel.width->isEnabled());
    EXPECT_FALSE(panel.x_offset->isEnabled());
    EXPECT_FALSE(panel.frame_pause->isEnabled());

    ShowAFrame();
    EXPECT_TRUE(panel.x_offset->isEnabled());
    EXPECT_TRUE(panel.frame_pause->isEnabled());
    EXPECT_FALSE(panel.frame_pause_length->isEnabled()) << "Its box is off.";
}

}  // namespace

}  // namespace kirto::test
