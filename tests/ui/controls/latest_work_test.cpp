#include "ui/controls/latest_work.h"

#include <QTest>
#include <gtest/gtest.h>
#include <vector>

namespace kirto::test {

namespace {

class LatestWorkTest : public testing::Test {
  protected:
    // Notes the number when it is done.
    LatestWork::Piece Noting(int number) {
        return [this, number](const std::atomic<bool>&) {
            return [this, number] { done_.push_back(number); };
        };
    }
    // Runs until it is told to stop.
    static LatestWork::Piece Endless(std::atomic<bool>& begun) {
        return [&begun](const std::atomic<bool>& stop) -> std::function<void()> {
            begun = true;
            while (!stop)
                std::this_thread::yield();
            return [] { FAIL(); };
        };
    }

    std::vector<int> done_;
    LatestWork work_;
};

TEST_F(LatestWorkTest, TellsOfWhatIsDoneOnTheGuiThread) {
    std::thread::id where;
    work_.Do([&](const std::atomic<bool>&) { return [&] { where = std::this_thread::get_id(); }; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return where != std::thread::id(); }));
    EXPECT_EQ(where, std::this_thread::get_id());
}

TEST_F(LatestWorkTest, StopsAPieceForTheNextOne) {
    std::atomic<bool> begun = false;
    work_.Do(Endless(begun));
    EXPECT_TRUE(QTest::qWaitFor([&] { return begun.load(); }));

    work_.Do(Noting(2));

    EXPECT_TRUE(QTest::qWaitFor([&] { return !done_.empty(); }));
    EXPECT_EQ(done_, std::vector<int>{2});
}

TEST_F(LatestWorkTest, LeavesOutPiecesThatHaveNotBegun) {
    std::atomic<bool> begun = false;
    work_.Do(Endless(begun));
    for (int number = 0; number < 50; ++number)
        work_.Do(Noting(number));

    EXPECT_TRUE(QTest::qWaitFor([&] { return !done_.empty() && done_.back() == 49; }));
}

TEST_F(LatestWorkTest, TellsNothingOfWhatWasStoppedAndEndsWithIt) {
    std::atomic<bool> begun = false;
    {
        LatestWork going;
        going.Do(Endless(begun));
        EXPECT_TRUE(QTest::qWaitFor([&] { return begun.load(); }));
    }
    work_.Do(Noting(1));
    work_.Stop();
    work_.Do(Noting(2));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !done_.empty(); }));
    EXPECT_EQ(done_, std::vector<int>{2});
}

}  // namespace

}  // namespace kirto::test
