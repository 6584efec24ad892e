#include "ui/controls/rt_color_control.h"

#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

#include "ui/controls/color_swatch.h"
#include "ui/controls/screen_color_button.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

// A control and the preview of its colour.
struct RTColorControlTest : testing::Test {
    QWidget window;
    RTColorControl control{"ColorControl", &window};
    int painted = 0;
    ColorSwatch preview{"Preview",
                        [this] {
                            ++painted;
                            return control.Color();
                        },
                        &window};
};

}  // namespace

TEST_F(RTColorControlTest, StartsBlackAndEnabled) {
    EXPECT_EQ(control.Value(), 0);
    EXPECT_EQ(control.Color(), QColor(0, 0, 0));
    EXPECT_TRUE(control.isEnabled());
}

TEST_F(RTColorControlTest, ShowsAColorInItsThreeChannels) {
    control.SetValue(static_cast<int32>(0xFF8001AA));

    EXPECT_EQ(static_cast<uint32>(control.Value()), 0xFF800100);
    EXPECT_EQ(control.Color(), QColor(255, 128, 1));
    EXPECT_EQ(Named<QSlider>(control, "RedSlider")->value(), 255);
    EXPECT_EQ(Named<QSlider>(control, "GreenSlider")->value(), 128);
    EXPECT_EQ(Named<QSlider>(control, "BlueSlider")->value(), 1);
    EXPECT_EQ(Named<QSpinBox>(control, "Red")->value(), 255);
    EXPECT_EQ(Named<QSpinBox>(control, "Green")->value(), 128);
    EXPECT_EQ(Named<QSpinBox>(control, "Blue")->value(), 1);
}

TEST_F(RTColorControlTest, MixesTheColorFromItsSlidersAndFields) {
    Named<QSlider>(control, "RedSlider")->setValue(200);
    Named<QSpinBox>(control, "Green")->setValue(100);
    Named<QSlider>(control, "BlueSlider")->setValue(50);

    EXPECT_EQ(static_cast<uint32>(control.Value()), 0xC8643200);
    EXPECT_EQ(Named<QSpinBox>(control, "Red")->value(), 200);
    EXPECT_EQ(Named<QSlider>(control, "GreenSlider")->value(), 100);
    EXPECT_EQ(Named<QSpinBox>(control, "Blue")->value(), 50);
}

TEST_F(RTColorControlTest, IsMovedByTheKeyboard) {
    window.show();
    auto* slider = Named<QSlider>(control, "RedSlider");
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(control.Color(), QColor(1, 0, 0));
    QTest::keyClick(slider, Qt::Key_PageUp);
    EXPECT_EQ(control.Color(), QColor(17, 0, 0));
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(control.Color(), QColor(255, 0, 0));
}

TEST_F(RTColorControlTest, KeepsLevelsWithinAByte) {
    for (const char* name : {"Red", "Green", "Blue"}) {
        EXPECT_EQ(Named<QSpinBox>(control, name)->minimum(), 0);
        EXPECT_EQ(Named<QSpinBox>(control, name)->maximum(), 255);
    }
}

TEST_F(RTColorControlTest, HasThePreviewFollowEveryChange) {
    preview.setGeometry(0, 0, 20, 20);
    window.show();
    ASSERT_TRUE(WaitFor([this] { return painted > 0; }));
    painted = 0;

    Named<QSlider>(control, "RedSlider")->setValue(255);

    EXPECT_TRUE(WaitFor([this] { return painted > 0; }));
    EXPECT_EQ(preview.grab().toImage().pixelColor(10, 10), QColor(255, 0, 0));
}

TEST_F(RTColorControlTest, TakesAColorFromTheScreenWhereTheDesktopAllowsIt) {
    const auto* pick = Named<ScreenColorButton>(control, "PickFromScreen");
    EXPECT_EQ(pick->isEnabled(), ScreenColorButton::EyeOfDesktop() != nullptr);
}

TEST_F(RTColorControlTest, DoesWithoutAPreview) {
    QWidget other;
    RTColorControl alone("ColorControl", &other);
    alone.SetValue(0x01020300);
    EXPECT_EQ(alone.Value(), 0x01020300);
}

TEST_F(RTColorControlTest, NamesItsChannelsToThoseWhoDoNotSeeThem) {
    EXPECT_EQ(Named<QSlider>(control, "GreenSlider")->accessibleName(), "Green:");
    EXPECT_EQ(Named<QSpinBox>(control, "Green")->accessibleName(), "Green:");
}

}  // namespace kirto::test
