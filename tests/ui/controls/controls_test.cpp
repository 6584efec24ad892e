#include "ui/controls/controls.h"

#include <gtest/gtest.h>
#include <memory>

#include "color/palette.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr uint32 kFirst = FourCharCode("frst");
constexpr uint32 kSecond = FourCharCode("scnd");

class Controls : public ::testing::Test {
  protected:
    QComboBox* MakeMenu() {
        return MakePopUpMenu("Menu", {{"first", kFirst, 1}, {"second", kSecond, 2}}, target,
                             &parent);
    }

    std::shared_ptr<PortRecorder> port = std::make_shared<PortRecorder>();
    BMessenger target{port};
    QWidget parent;
};

TEST_F(Controls, ButtonsCarryTheirNameAndLabelAndBelongToTheParent) {
    for (QAbstractButton* button : std::initializer_list<QAbstractButton*>{
             MakeCheckBox("Name", "Label", kFirst, target, &parent),
             MakeRadioButton("Name", "Label", kFirst, target, &parent),
             MakeButton("Name", "Label", kFirst, target, &parent)}) {
        EXPECT_EQ(button->objectName(), "Name");
        EXPECT_EQ(button->text(), "Label");
        EXPECT_EQ(button->accessibleName(), "Label");
        EXPECT_EQ(button->parent(), &parent);
    }
}

TEST_F(Controls, ButtonsSendTheirCommandWhenTheUserClicks) {
    MakeCheckBox("Box", "Box", kFirst, target, &parent)->click();
    MakeRadioButton("Radio", "Radio", kSecond, target, &parent)->click();
    MakeButton("Button", "Button", kFirst, target, &parent)->click();

    EXPECT_EQ(port->Transcript(), "frst scnd frst");
}

TEST_F(Controls, BoxesSendNothingWhenTheProgramTicksThem) {
    QCheckBox* box = MakeCheckBox("Box", "Box", kFirst, target, &parent);

    box->setChecked(true);
    box->setChecked(false);

    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(Controls, BoxesHoldTheUsersChoiceWhenTheirCommandIsSent) {
    QCheckBox* box = MakeCheckBox("Box", "Box", kFirst, target, &parent);

    box->click();

    EXPECT_TRUE(box->isChecked());
}

TEST_F(Controls, FieldsSendTheirCommand) {
    TextControl* field = MakeField("Field", kFirst, target, &parent);
    field->setModified(true);

    field->Commit();

    EXPECT_EQ(field->objectName(), "Field");
    EXPECT_EQ(port->Transcript(), "frst");
}

TEST_F(Controls, LabelsShowTextThatLooksLikeMarkupAsItIs) {
    const QLabel* label = MakeLabel("Label", "<b>name</b>", &parent);

    EXPECT_EQ(label->text(), "<b>name</b>");
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(Controls, LabelsShowNewText) {
    QLabel* label = MakeLabel("Label", "old", &parent);

    ShowText(*label, "new");
    ShowText(*label, "new");

    EXPECT_EQ(label->text(), "new");
}

TEST_F(Controls, MenusSendTheChosenItemsCommandAlsoWhenItWasChosenAlready) {
    QComboBox* menu = MakeMenu();
    MarkChoice(*menu, 1);
    EXPECT_EQ(port->Transcript(), "");

    emit menu->activated(1);
    emit menu->activated(0);
    emit menu->activated(0);

    EXPECT_EQ(port->Transcript(), "scnd frst frst");
}

TEST_F(Controls, MenusMarkTheItemOfAValueAndNoneWithoutOne) {
    QComboBox* menu = MakeMenu();

    MarkChoice(*menu, 2);
    EXPECT_EQ(menu->currentText(), "second");
    MarkChoice(*menu, 1);
    EXPECT_EQ(menu->currentText(), "first");
    MarkChoice(*menu, 5);
    EXPECT_EQ(menu->currentIndex(), -1);
    EXPECT_EQ(port->Transcript(), "");
}

TEST_F(Controls, MenusKnowTheCommandsOfTheirItems) {
    const QComboBox& menu = *MakeMenu();

    EXPECT_TRUE(HasChoice(menu, kFirst));
    EXPECT_TRUE(HasChoice(menu, kSecond));
    EXPECT_FALSE(HasChoice(menu, FourCharCode("thrd")));
}

TEST_F(Controls, CanBeUsedWhileTheBoxThatSwitchesThemIsTicked) {
    QCheckBox* box = MakeCheckBox("Box", "Box", kFirst, target, &parent);
    TextControl* field = MakeField("Field", kSecond, target, &parent);

    SwitchBy(*box, *field);
    EXPECT_FALSE(field->isEnabled());
    box->setChecked(true);
    EXPECT_TRUE(field->isEnabled());
    box->click();
    EXPECT_FALSE(field->isEnabled());
}

TEST_F(Controls, PaletteMenusMarkAFileThatIsAwaitedLikeOneThatIsThere) {
    QComboBox* menu = MakePopUpMenu(
        "Menu", {{"web safe", kFirst, kPaletteWebSafe}, {"from a file", kSecond, kPaletteFromFile}},
        target, &parent);

    for (const int32 mode : {kPaletteFromFile, kPaletteWebSafe, kPaletteAwaitingFile}) {
        MarkPalette(*menu, mode);
        EXPECT_EQ(menu->currentText(), mode == kPaletteWebSafe ? "web safe" : "from a file");
    }
    MarkPalette(*menu, kPaletteOptimal);
    EXPECT_EQ(menu->currentIndex(), -1);
}

}  // namespace

}  // namespace kirto::test
