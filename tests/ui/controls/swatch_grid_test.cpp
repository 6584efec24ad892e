#include "ui/controls/swatch_grid.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QTest>
#include <gtest/gtest.h>

namespace kirto::test {

namespace {

class SwatchGridTest : public testing::Test {
  protected:
    SwatchGridTest() {
        grid_.resize(400, 400);
        grid_.SetSwatches({{QColor(Qt::red), 5},
                           {QColor(Qt::blue), 0},
                           {QColor(Qt::white), 9},
                           {QColor(Qt::black), 7}},
                          {.background = 1, .transparent = 2});
        grid_.WhenChosen([this](int index) { chosen_.push_back(index); });
    }
    // The colors as they stand.
    std::vector<int> Order() const {
        std::vector<int> order;
        for (int place = 0; place < grid_.Count(); ++place)
            order.push_back(grid_.IndexOf(place));
        return order;
    }
    void Fill(int count) {
        grid_.SetSwatches(std::vector<SwatchGrid::Swatch>(static_cast<size_t>(count)), {});
    }

    SwatchGrid grid_;
    std::vector<int> chosen_;
};

TEST_F(SwatchGridTest, NamesColorsWithTheirPixelsAndMarks) {
    EXPECT_EQ(grid_.NameOf(0), "Color 0, #ff0000, 5 pixels");
    EXPECT_EQ(grid_.NameOf(1), "Color 1, #0000ff, 0 pixels, background");
    EXPECT_EQ(grid_.NameOf(2), "Color 2, #ffffff, 9 pixels, transparent");
    EXPECT_EQ(grid_.NameOf(4), "");
    EXPECT_EQ(grid_.NameOf(-1), "");
}

TEST_F(SwatchGridTest, SortsByIndexHueAndUse) {
    EXPECT_EQ(Order(), (std::vector<int>{0, 1, 2, 3}));
    grid_.SetOrder(SwatchGrid::Order::kHue);
    EXPECT_EQ(Order(), (std::vector<int>{3, 2, 0, 1}));
    grid_.SetOrder(SwatchGrid::Order::kUse);
    EXPECT_EQ(Order(), (std::vector<int>{2, 3, 0, 1}));
    EXPECT_EQ(grid_.IndexAt(grid_.AreaOf(2).center()), 2);
    EXPECT_EQ(grid_.PlaceOf(2), 0);
}

TEST_F(SwatchGridTest, PaintsEachColorWhereItIs) {
    const QImage image = grid_.grab().toImage();
    for (int index = 0; index < grid_.Count(); ++index) {
        const QPoint corner = grid_.AreaOf(index).bottomRight() - QPoint(2, 2);
        EXPECT_EQ(image.pixelColor(corner * image.devicePixelRatio()).name(),
                  grid_.NameOf(index).section(", ", 1, 1));
    }
}

TEST_F(SwatchGridTest, ChoosesTheColorThatIsClicked) {
    QTest::mouseClick(&grid_, Qt::LeftButton, {}, grid_.AreaOf(2).center());
    EXPECT_EQ(chosen_, std::vector<int>{2});
    EXPECT_EQ(grid_.Current(), 2);
    QTest::mouseClick(&grid_, Qt::LeftButton, {}, {390, 390});
    EXPECT_EQ(chosen_.size(), 1U);
}

TEST_F(SwatchGridTest, MovesByTheArrowKeysAndChoosesByEnter) {
    Fill(40);
    QTest::keyClick(&grid_, Qt::Key_Right);
    QTest::keyClick(&grid_, Qt::Key_Down);
    EXPECT_EQ(grid_.Current(), 17);
    QTest::keyClick(&grid_, Qt::Key_Left);
    QTest::keyClick(&grid_, Qt::Key_Up);
    QTest::keyClick(&grid_, Qt::Key_Up);
    EXPECT_EQ(grid_.Current(), 0);
    QTest::keyClick(&grid_, Qt::Key_End);
    EXPECT_EQ(grid_.Current(), 39);
    QTest::keyClick(&grid_, Qt::Key_Down);
    EXPECT_EQ(grid_.Current(), 39);
    EXPECT_TRUE(chosen_.empty());
    QTest::keyClick(&grid_, Qt::Key_Return);
    EXPECT_EQ(chosen_, std::vector<int>{39});
}

TEST_F(SwatchGridTest, MovesInTheOrderInWhichTheColorsStand) {
    grid_.SetOrder(SwatchGrid::Order::kUse);
    QTest::keyClick(&grid_, Qt::Key_Home);
    EXPECT_EQ(grid_.Current(), 2);
    QTest::keyClick(&grid_, Qt::Key_Right);
    EXPECT_EQ(grid_.Current(), 3);
}

TEST_F(SwatchGridTest, TellsOfTheColorBelowThePointer) {
    int told = 0;
    grid_.WhenTold([&] { ++told; });
    const auto move_to = [this](QPoint point) {
        QMouseEvent event(QEvent::MouseMove, point, grid_.mapToGlobal(point), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&grid_, &event);
    };
    move_to(grid_.AreaOf(3).center());
    move_to(grid_.AreaOf(3).center() + QPoint(1, 1));
    EXPECT_EQ(grid_.Told(), 3);
    EXPECT_EQ(told, 1);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&grid_, &leave);
    EXPECT_EQ(grid_.Told(), grid_.Current());
}

TEST_F(SwatchGridTest, KeepsACurrentColorThatThePaletteHas) {
    Fill(40);
    grid_.SetCurrent(30);
    Fill(16);
    EXPECT_EQ(grid_.Current(), 15);
    Fill(0);
    EXPECT_EQ(grid_.Current(), -1);
    QTest::keyClick(&grid_, Qt::Key_Return);
    EXPECT_TRUE(chosen_.empty());
}

TEST_F(SwatchGridTest, TellsScreenReadersOfEachColor) {
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&grid_);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 4);
    grid_.SetOrder(SwatchGrid::Order::kUse);
    QAccessibleInterface* first = list->child(0);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->text(QAccessible::Name), grid_.NameOf(2));
    EXPECT_EQ(first->parent(), list);
    EXPECT_EQ(list->indexOfChild(first), 0);
    EXPECT_EQ(list->child(4), nullptr);

    first->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(chosen_, std::vector<int>{2});
    EXPECT_TRUE(first->state().selected);
    Fill(1);
    EXPECT_FALSE(first->isValid());
}

}  // namespace

}  // namespace kirto::test
