#include "ui/panels/global_view.h"

#include "ui/panels/view_fixture.h"

namespace kirto::test {

namespace {

class GlobalViewTest : public ViewFixture {
  protected:
    GlobalView panel{shown, window};
};

TEST_F(GlobalViewTest, IsTitledGlobal) {
    EXPECT_EQ(panel.title(), "Global");
    EXPECT_EQ(panel.objectName(), "GlobalView");
}

TEST_F(GlobalViewTest, NamesItsControls) {
    EXPECT_EQ(panel.width->objectName(), "Width");
    EXPECT_EQ(panel.height->objectName(), "Height");
    EXPECT_EQ(panel.pause->objectName(), "Pause");
    EXPECT_EQ(panel.pause_length->objectName(), "Pause length");
    EXPECT_EQ(panel.loop->objectName(), "Loop");
    EXPECT_EQ(panel.loop_count->objectName(), "Loop count");
}

TEST_F(GlobalViewTest, LabelsItsControls) {
    std::vector<std::string> labels;
    for (const QLabel* label : panel.findChildren<QLabel*>())
        labels.push_back(label->text().toStdString());

    EXPECT_EQ(labels,
              (std::vector<std::string>{"px", "Width:", "px", "Height:", "1/100 s", "0 ms"}));
    EXPECT_EQ(panel.pause->text(), "Use pause:");
    EXPECT_EQ(panel.loop->text(), "Use loop:");
    for (const TextControl* field : panel.findChildren<TextControl*>())
        EXPECT_FALSE(field->accessibleName().isEmpty());
}

TEST_F(GlobalViewTest, BeginsWithItsInitialTexts) {
    EXPECT_EQ(panel.width->text(), "0");
    EXPECT_EQ(panel.height->text(), "0");
    EXPECT_EQ(panel.pause_length->text(), "100");
    EXPECT_EQ(panel.loop_count->text(), "0");
    EXPECT_FALSE(panel.pause->isChecked());
    EXPECT_FALSE(panel.loop->isChecked());
}

TEST_F(GlobalViewTest, SendsACommandForEachControl) {
    EXPECT_EQ(CommandOf(*panel.width), "gvwd");
    EXPECT_EQ(CommandOf(*panel.height), "gvht");
    EXPECT_EQ(CommandOf(*panel.pause), "gvpa");
    EXPECT_EQ(CommandOf(*panel.pause_length), "gvpl");
    EXPECT_EQ(CommandOf(*panel.loop), "gvlp");
    EXPECT_EQ(CommandOf(*panel.loop_count), "gvlc");
}

TEST_F(GlobalViewTest, ShowsTheDocument) {
    EditOf(document)->width = 320;
    EditOf(document)->height = 200;
    EditOf(document)->use_pause = true;
    EditOf(document)->pause_length = 2.5;
    EditOf(document)->use_loop = true;
    EditOf(document)->loop_count = 7;
    Take();

    panel.UpdateDisplay();

    EXPECT_EQ(panel.width->text(), "320");
    EXPECT_EQ(panel.height->text(), "200");
    EXPECT_TRUE(panel.pause->isChecked());
    EXPECT_TRUE(panel.pause_length->isEnabled());
    EXPECT_EQ(panel.pause_length->text(), "2.50");
    EXPECT_TRUE(panel.loop->isChecked());
    EXPECT_TRUE(panel.loop_count->isEnabled());
    EXPECT_EQ(panel.loop_count->text(), "7");
    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(GlobalViewTest, DisablesTheFieldsOfBoxesThatAreOff) {
    EditOf(document)->use_pause = false;
    EditOf(document)->use_loop = false;
    Take();

    panel.UpdateDisplay();

    EXPECT_FALSE(panel.pause->isChecked());
    EXPECT_FALSE(panel.pause_length->isEnabled());
    EXPECT_FALSE(panel.loop->isChecked());
    EXPECT_FALSE(panel.loop_count->isEnabled());
}

TEST_F(GlobalViewTest, HoldsTheLongestNumbers) {
    EditOf(document)->width = 2147483647;
    EditOf(document)->pause_length = 2147483647.0;
    Take();

    panel.UpdateDisplay();

    EXPECT_EQ(panel.width->text(), "2147483647");
    EXPECT_EQ(panel.pause_length->text(), "2147483647.00");
}

TEST_F(GlobalViewTest, LeavesAFieldAloneWhileTheUserTypesInIt) {
    panel.width->setText("12");
    panel.width->setModified(true);
    EditOf(document)->width = 320;
    EditOf(document)->height = 200;
    Take();

    panel.UpdateDisplay();

    EXPECT_EQ(panel.width->text(), "12");
    EXPECT_EQ(panel.height->text(), "200");
}

TEST_F(GlobalViewTest, ResetsToTheSettingsDefaults) {
    Prefs& prefs = fixture.prefs;
    prefs.global_width = 21;
    prefs.global_height = 22;
    prefs.global_usepause = true;
    prefs.global_pauselength = 3.25;
    prefs.global_useloop = false;
    prefs.global_loopcount = 23;
    document.PublishSettings();
    EditOf(document)->width = 320;
    Take();
    panel.UpdateDisplay();
    panel.height->setText("99");
    panel.height->setModified(true);

    panel.ResetDisplay();

    EXPECT_EQ(panel.width->text(), "21");
    EXPECT_EQ(panel.height->text(), "22") << "A new animation ends the edit.";
    EXPECT_TRUE(panel.pause->isChecked());
    EXPECT_TRUE(panel.pause_length->isEnabled());
    EXPECT_EQ(panel.pause_length->text(), "3.25");
    EXPECT_FALSE(panel.loop->isChecked());
    EXPECT_FALSE(panel.loop_count->isEnabled());
    EXPECT_EQ(panel.loop_count->text(), "23");
    EXPECT_EQ(port->Transcript(), "");
}

}  // namespace

}  // namespace kirto::test
