#include "ui/controls/screen_color_button.h"

#include <QTest>
#include <gtest/gtest.h>
#include <vector>

namespace kirto::test {

namespace {

class ScreenColorButtonTest : public ::testing::Test {
  protected:
    ScreenColorButtonTest() {
        window.resize(200, 100);
        window.show();
        button.WhenPicked([this](const QColor& color) { picked.push_back(color); });
    }
    ~ScreenColorButtonTest() override { EXPECT_EQ(QWidget::mouseGrabber(), nullptr); }

    void ClickSomewhere(Qt::MouseButton mouse_button = Qt::LeftButton) {
        QTest::mouseClick(&button, mouse_button, {}, QPoint(150, 90));
    }

    QWidget window;
    QColor shown = Qt::red;
    ScreenColorButton button{&window,
                             [this](const QPoint& place) {
                                 seen = place;
                                 return shown;
                             },
                             std::nullopt};
    QPoint seen;
    std::vector<QColor> picked;
};

TEST_F(ScreenColorButtonTest, PicksTheColorThatIsClickedAfterIt) {
    button.click();
    EXPECT_EQ(QWidget::mouseGrabber(), &button);

    ClickSomewhere();

    EXPECT_EQ(picked, std::vector<QColor>{Qt::red});
    EXPECT_EQ(seen, button.mapToGlobal(QPoint(150, 90)));
}

TEST_F(ScreenColorButtonTest, PicksOnlyOnce) {
    button.click();
    ClickSomewhere();
    ClickSomewhere();

    EXPECT_EQ(picked.size(), 1u);
}

TEST_F(ScreenColorButtonTest, GivesUpWithAKeyOrAnotherMouseButton) {
    button.click();
    QTest::keyClick(&button, Qt::Key_Escape);
    EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
    button.click();
    ClickSomewhere(Qt::RightButton);

    EXPECT_TRUE(picked.empty());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ScreenColorButtonTest, TellsNoColorWhereNoneIsSeen) {
    shown = QColor();
    button.click();
    ClickSomewhere();

    EXPECT_TRUE(picked.empty());
}

TEST_F(ScreenColorButtonTest, IsDisabledAndSaysWhyWhereTheDesktopForbidsIt) {
    const ScreenColorButton blind(&window, nullptr, std::nullopt);

    EXPECT_FALSE(blind.isEnabled());
    EXPECT_EQ(blind.toolTip(), "This desktop lets no program see the screen");
    EXPECT_TRUE(button.isEnabled());
}

}  // namespace

}  // namespace kirto::test
