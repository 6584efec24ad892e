#include "ui/file_panels/translator_settings_window.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

// A setting of each kind, and one of a kind that has no control.
BMessage AllKinds() {
    BMessage settings;
    settings.AddInt32("quality", 90);
    settings.AddBool("lossless", true);
    settings.AddFloat("gamma", 2.5f);
    settings.AddDouble("scale", 0.125);
    settings.AddString("comment", "none");
    settings.AddInt64("number", 5);
    return settings;
}

struct TranslatorSettingsWindowTest : testing::Test {
    BMessage changed;
    int changes = 0;
    QPointer<TranslatorSettingsWindow> window = Open(AllKinds());

    ~TranslatorSettingsWindowTest() override { delete window; }
    TranslatorSettingsWindow* Open(const BMessage& settings) {
        auto* opened = new TranslatorSettingsWindow(
            settings,
            [this](const BMessage& now) {
                changed = now;
                ++changes;
            },
            nullptr);
        opened->show();
        return opened;
    }
};

}  // namespace

TEST_F(TranslatorSettingsWindowTest, ShowsEachSettingInAFittingControl) {
    EXPECT_EQ(window->windowTitle(), "Translator Settings");
    EXPECT_EQ(Named<QSpinBox>(*window, "quality")->value(), 90);
    EXPECT_TRUE(Named<QCheckBox>(*window, "lossless")->isChecked());
    EXPECT_EQ(Named<QDoubleSpinBox>(*window, "gamma")->value(), 2.5);
    EXPECT_EQ(Named<QDoubleSpinBox>(*window, "scale")->value(), 0.125);
    EXPECT_EQ(Named<QLineEdit>(*window, "comment")->text(), "none");
    EXPECT_EQ(window->findChild<QWidget*>("number"), nullptr);
    EXPECT_EQ(changes, 0);
}

TEST_F(TranslatorSettingsWindowTest, NamesItsControlsToThoseWhoDoNotSeeThem) {
    EXPECT_EQ(Named<QWidget>(*window, "quality")->accessibleName(), "Quality");
    EXPECT_EQ(Named<QCheckBox>(*window, "lossless")->text(), "Lossless");
    EXPECT_EQ(Named<QWidget>(*window, "gamma")->accessibleName(), "gamma");
}

TEST_F(TranslatorSettingsWindowTest, KeepsKnownNumbersWithinTheirRange) {
    EXPECT_EQ(Named<QSpinBox>(*window, "quality")->minimum(), 0);
    EXPECT_EQ(Named<QSpinBox>(*window, "quality")->maximum(), 100);
}

TEST_F(TranslatorSettingsWindowTest, TakesAnyValueOfAnUnknownNumber) {
    BMessage settings;
    settings.AddInt32("depth", -2000000000);
    const std::unique_ptr<TranslatorSettingsWindow> other(Open(settings));
    EXPECT_EQ(Named<QSpinBox>(*other, "depth")->value(), -2000000000);
}

TEST_F(TranslatorSettingsWindowTest, ReportsAllSettingsAfterEachChange) {
    Named<QSpinBox>(*window, "quality")->setValue(50);
    Named<QCheckBox>(*window, "lossless")->click();
    Named<QDoubleSpinBox>(*window, "gamma")->setValue(1.5);
    Named<QDoubleSpinBox>(*window, "scale")->setValue(4);
    Named<QLineEdit>(*window, "comment")->setText("new");

    EXPECT_EQ(changes, 5);
    BMessage expected;
    expected.AddInt64("number", 5);
    expected.AddInt32("quality", 50);
    expected.AddBool("lossless", false);
    expected.AddFloat("gamma", 1.5f);
    expected.AddDouble("scale", 4);
    expected.AddString("comment", "new");
    EXPECT_EQ(changed, expected);
}

TEST_F(TranslatorSettingsWindowTest, EndsWhenItIsClosed) {
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_TRUE(WaitFor([this] { return window.isNull(); }));
    EXPECT_EQ(changes, 0);
}

}  // namespace kirto::test
