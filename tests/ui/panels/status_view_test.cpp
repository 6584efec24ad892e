#include "ui/panels/status_view.h"

#include <QTest>

#include "app/saved_size.h"
#include "ui/panels/view_fixture.h"

namespace kirto::test {

namespace {

class StatusViewTest : public ViewFixture {
  protected:
    void AddFrames(int32 count) {
        for (int32 i = 0; i < count; ++i)
            AppendFrame(document, PictureOf(1, 1, {0xFF000001}), "frame");
    }

    // As the line's text ends once the size of the file is known.
    QString ExactSize() {
        return QString(", file %1 bytes").arg(*SavedSize(*document.CurrentState()).Exact());
    }

    StatusView line{shown, window};
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
    EXPECT_TRUE(line.cancel->isHidden());
}

TEST_F(StatusViewTest, ShowsHowFarWorkIsAndAButtonThatStopsIt) {
    line.ShowWork(5, 20);

    EXPECT_FALSE(line.progress->isHidden());
    EXPECT_EQ(line.progress->value() * 20, 5 * line.progress->maximum());
    EXPECT_FALSE(line.cancel->isHidden());
    EXPECT_EQ(line.cancel->text(), "Cancel");
    EXPECT_EQ(CommandOf(*line.cancel), "wwst");

    line.ShowWork(20, 20);
    EXPECT_EQ(line.progress->value(), line.progress->maximum());
}

TEST_F(StatusViewTest, CountsFurtherThanTheBarDoes) {
    line.ShowWork(int64{3} << 40, int64{4} << 40);
    EXPECT_EQ(line.progress->value() * 4, 3 * line.progress->maximum());

    line.ShowWork(50, 20);
    EXPECT_EQ(line.progress->value(), line.progress->maximum());
}

TEST_F(StatusViewTest, ShowsABusyBarWhereNobodyKnowsHowMuchThereIs) {
    line.ShowWork(0, 0);
    EXPECT_EQ(line.progress->maximum(), 0);
}

TEST_F(StatusViewTest, HidesTheBarWhenTheWorkIsDone) {
    line.ShowWork(5, 20);
    line.HideWork();
    EXPECT_TRUE(line.progress->isHidden());
    EXPECT_TRUE(line.cancel->isHidden());

    line.ShowWork(5, 20);
    line.ResetDisplay();
    EXPECT_TRUE(line.progress->isHidden());
    EXPECT_TRUE(line.cancel->isHidden());
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
    line.ShowWork(5, 20);
    EXPECT_EQ(line.sizeHint().expandedTo(line.minimumSize()).height(), height);
}

TEST_F(StatusViewTest, TellsSizesOnceItIsToldTo) {
    AddFrames(3);
    EditOf(document)->width = 1;
    EditOf(document)->height = 1;
    Take();
    line.resize(2000, 30);
    line.UpdateDisplay();
    EXPECT_EQ(line.sizes->text(), "");

    line.ShowSizes(document.pixel_budget);
    EXPECT_TRUE(line.sizes->text().endsWith(" in memory")) << line.sizes->text().toStdString();
    const QString exact = ExactSize();
    EXPECT_TRUE(QTest::qWaitFor([&] { return line.sizes->text().endsWith(exact); }));
    EXPECT_TRUE(line.sizes->toolTip().contains("Saved as a GIF file, it has "));
}

TEST_F(StatusViewTest, LeavesOutSizesWhereThereIsNoRoom) {
    AddFrames(3);
    EditOf(document)->width = 1;
    EditOf(document)->height = 1;
    Take();
    line.resize(2000, 30);
    line.ShowSizes(document.pixel_budget);
    const QString exact = ExactSize();
    ASSERT_TRUE(QTest::qWaitFor([&] { return line.sizes->text().endsWith(exact); }));
    const QString all = line.sizes->text();

    const auto narrow_while = [&](auto holds) {
        for (int width = line.width(); width > 0 && holds(); width -= 10) {
            line.resize(width, 30);
            line.UpdateDisplay();
        }
    };
    narrow_while([&] { return line.sizes->text() == all; });
    EXPECT_TRUE(line.sizes->text().startsWith("file ")) << line.sizes->text().toStdString();
    narrow_while([&] { return !line.sizes->text().isEmpty(); });
    EXPECT_EQ(line.sizes->text(), "");
    EXPECT_GT(line.width(), 100);
}

}  // namespace

}  // namespace kirto::test
