#include "ui/thumbnails/range_entry.h"

#include <QTest>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/frame_area_fixture.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

struct TypedRange : ::testing::Test {
    ThumbnailFixture fixture{SameFrames(10, 40, 30)};

    TypedRange() {
        EXPECT_TRUE(QTest::qWaitForWindowActive(fixture.view.get()));
        fixture.Grid().setFocus();
        fixture.application->TakeTranscript();
    }
    RangeEntry& Entry() { return *Named<RangeEntry>(*fixture.view, "RangeEntry"); }
    // Types wherever the keyboard is.
    void Type(const char* keys) {
        for (const char* key = keys; *key != 0; ++key)
            QTest::keyClick(fixture.view->focusWidget(), *key);
    }
    void Press(Qt::Key key) { QTest::keyClick(fixture.view->focusWidget(), key); }
    // The frames of the last message, which there is one of.
    std::string Asked() {
        const std::vector<BMessage> messages = fixture.application->Messages();
        std::string frames;
        if (messages.size() == 1 && messages[0].what == kSelectFrames)
            messages[0].FindString("frames", &frames);
        return frames;
    }
};

}  // namespace

TEST_F(TypedRange, SelectsFramesAndGivesTheKeyboardBack) {
    EXPECT_FALSE(Entry().isVisible());
    Type("3-7");
    EXPECT_TRUE(Entry().isVisible());
    EXPECT_EQ(Entry().text(), "3-7");
    Press(Qt::Key_Return);

    EXPECT_EQ(Asked(), "3-7");
    EXPECT_FALSE(Entry().isVisible());
    EXPECT_TRUE(fixture.Grid().hasFocus());
}

TEST_F(TypedRange, StaysWhileItNamesNoFrames) {
    Type("3-70");
    Press(Qt::Key_Enter);
    EXPECT_TRUE(Entry().isVisible());
    Type("0,2");
    Press(Qt::Key_Enter);
    EXPECT_EQ(Asked(), "0,2");
}

TEST_F(TypedRange, IsForgottenByEscapeAndWhenTheKeyboardLeaves) {
    Type("3");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Entry().isVisible());
    EXPECT_TRUE(fixture.Grid().hasFocus());
    Type("4");
    EXPECT_EQ(Entry().text(), "4");
    fixture.Grid().setFocus();
    EXPECT_FALSE(Entry().isVisible());
    EXPECT_TRUE(fixture.application->Messages().empty());
}

TEST_F(TypedRange, BeginsWithADigitAndNothingElse) {
    Type("a-/");
    EXPECT_FALSE(Entry().isVisible());
    fixture.Show({});
    Type("3");
    EXPECT_FALSE(Entry().isVisible());
}

}  // namespace kirto::test
