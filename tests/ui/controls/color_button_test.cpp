#include "ui/controls/color_button.h"

#include <QDialog>
#include <QSpinBox>
#include <gtest/gtest.h>

#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

struct ColorButtonTest : testing::Test {
    QWidget window;
    ColorButton button{&window};
    int chosen = 0;

    ColorButtonTest() {
        button.setAccessibleName("Matte");
        button.WhenChosen([this] { ++chosen; });
        window.show();
    }
    QDialog* Open() {
        button.click();
        return Named<QDialog>(button, "ChooseColor");
    }
};

}  // namespace

TEST_F(ColorButtonTest, NamesItsColor) {
    EXPECT_EQ(button.text(), "#ffffff");
    button.SetColor(QColor(1, 2, 255));
    EXPECT_EQ(button.text(), "#0102ff");
    EXPECT_EQ(button.icon().pixmap(button.iconSize()).toImage().pixelColor(3, 3),
              QColor(1, 2, 255));
    EXPECT_EQ(chosen, 0);
}

TEST_F(ColorButtonTest, TakesTheColorThatIsMixed) {
    QDialog* dialog = Open();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->windowTitle(), "Matte");
    EXPECT_EQ(Named<QSpinBox>(*dialog, "Green")->value(), 255);
    Named<QSpinBox>(*dialog, "Green")->setValue(16);
    EXPECT_EQ(button.Color(), QColor(Qt::white));
    dialog->accept();
    EXPECT_EQ(button.Color(), QColor(255, 16, 255));
    EXPECT_EQ(chosen, 1);
}

TEST_F(ColorButtonTest, KeepsItsColorWhenTheDialogIsCanceled) {
    QDialog* dialog = Open();
    ASSERT_TRUE(dialog);
    Named<QSpinBox>(*dialog, "Red")->setValue(0);
    dialog->reject();
    EXPECT_EQ(button.Color(), QColor(Qt::white));
    EXPECT_EQ(chosen, 0);
}

TEST_F(ColorButtonTest, TellsNothingWhereTheColorStaysTheSame) {
    QDialog* dialog = Open();
    ASSERT_TRUE(dialog);
    dialog->accept();
    EXPECT_EQ(chosen, 0);
}

}  // namespace kirto::test
