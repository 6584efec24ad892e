#include "ui/status_view.h"

#include "ui/view_fixture.h"

namespace kirto::test {

namespace {

class StatusViewTest : public ViewFixture {
  protected:
    void AddFrames(int32 count) {
        for (int32 i = 0; i < count; ++i)
            AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "frame");
    }

    StatusView line{shown};
};

TEST_F(StatusViewTest, BeginsWithAnUnmodifiedAnimationOfNoFrames) {
    EXPECT_EQ(line.objectName(), "StatusView");
    EXPECT_EQ(line.status->objectName(), "Status");
    EXPECT_EQ(line.status->text(), "Status: 0 frame(s), unmodified");
    EXPECT_TRUE(line.progress->isHidden());
}

TEST_F(StatusViewTest, CountsTheFramesAndSaysWhetherTheyAreModified) {
    AddFrames(3);
    document.SetModified(true);
    Take();

    line.UpdateDisplay();
    EXPECT_EQ(line.status->text(), "Status: 3 frame(s), modified");

    document.SetModified(false);
    Take();
    line.UpdateDisplay(nullptr);
    EXPECT_EQ(line.status->text(), "Status: 3 frame(s), unmodified");
}

TEST_F(StatusViewTest, ShowsATextAsItIs) {
    line.UpdateDisplay("Status: loading frame 5...");

    EXPECT_EQ(line.status->text(), "Status: loading frame 5...");
    EXPECT_TRUE(line.progress->isHidden());
}

TEST_F(StatusViewTest, ShowsHowFarSomethingIsWhereTheTextSaysSo) {
    line.UpdateDisplay("Status: saving frame 5 of 20...");

    EXPECT_EQ(line.status->text(), "Status: saving frame 5 of 20...");
    EXPECT_FALSE(line.progress->isHidden());
    EXPECT_EQ(line.progress->value(), 5);
    EXPECT_EQ(line.progress->maximum(), 20);

    line.UpdateDisplay("Status: saving frame 6 of 20...");
    EXPECT_EQ(line.progress->value(), 6);
}

TEST_F(StatusViewTest, StartsTheBarAnewForAShorterTask) {
    line.UpdateDisplay("Status: saving frame 20 of 20...");
    line.UpdateDisplay("Status: saving frame 1 of 3...");

    EXPECT_EQ(line.progress->value(), 1);
    EXPECT_EQ(line.progress->maximum(), 3);
}

TEST_F(StatusViewTest, HidesTheBarWhenTheTaskIsDone) {
    line.UpdateDisplay("Status: saving frame 5 of 20...");
    line.UpdateDisplay();
    EXPECT_TRUE(line.progress->isHidden());

    line.UpdateDisplay("Status: saving frame 5 of 20...");
    line.ResetDisplay();
    EXPECT_TRUE(line.progress->isHidden());

    line.UpdateDisplay("Status: saving frame 5 of 20...");
    line.UpdateDisplay("Status: loading frame 1...");
    EXPECT_TRUE(line.progress->isHidden());
}

TEST_F(StatusViewTest, ResetsToNoFrames) {
    AddFrames(1);
    document.SetModified(true);
    Take();
    line.UpdateDisplay();

    line.ResetDisplay();

    EXPECT_EQ(line.status->text(), "Status: 0 frame(s), unmodified");
}

TEST_F(StatusViewTest, KeepsItsHeightWhenTheBarComesAndItsWidthWithLongTexts) {
    const int height = line.sizeHint().expandedTo(line.minimumSize()).height();
    const int width = line.minimumSizeHint().width();
    const std::string text(1000, 'w');

    line.UpdateDisplay(text.c_str());
    EXPECT_EQ(line.minimumSizeHint().width(), width);
    line.UpdateDisplay("Status: saving frame 5 of 20...");
    EXPECT_EQ(line.sizeHint().expandedTo(line.minimumSize()).height(), height);
}

}  // namespace

}  // namespace kirto::test
