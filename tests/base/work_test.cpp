#include "base/work.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace kirto::test {

namespace {

TEST(Work, StopsThePieceThatRuns) {
    Work work;
    work.Begin();
    EXPECT_FALSE(work.StopRequested());

    work.Stop(work.Running());

    EXPECT_TRUE(work.StopRequested());
}

TEST(Work, AStopForAPieceThatIsOverStopsNothing) {
    Work work;
    work.Begin();
    const uint64 first = work.Running();
    work.End();

    work.Begin();
    work.Stop(first);

    EXPECT_FALSE(work.StopRequested());
}

TEST(Work, AStopStopsOnePieceOnly) {
    Work work;
    work.Begin();
    work.Stop(work.Running());
    work.End();
    EXPECT_FALSE(work.StopRequested());

    work.Begin();
    EXPECT_FALSE(work.StopRequested());
}

TEST(Work, StopsAllPiecesUntilTheyAreAllowedAgain) {
    Work work;
    work.StopAll();
    EXPECT_TRUE(work.StopRequested());
    work.Begin();
    EXPECT_TRUE(work.StopRequested());

    work.AllowAll();

    EXPECT_FALSE(work.StopRequested());
}

TEST(Work, NothingRunsBetweenTwoPieces) {
    Work work;
    EXPECT_EQ(work.Running(), 0u);
    work.Begin();
    EXPECT_NE(work.Running(), 0u);
    work.End();
    EXPECT_EQ(work.Running(), 0u);

    work.Stop(0);
    EXPECT_FALSE(work.StopRequested());
    work.Begin();
    EXPECT_FALSE(work.StopRequested());
}

struct Told {
    uint64 piece;
    int64 done;
    int64 total;
    bool operator==(const Told&) const = default;
};

TEST(Work, SaysNothingOfWorkThatIsOverSoon) {
    std::vector<Told> told;
    Work work([&](uint64 piece, int64 done, int64 total) { told.push_back({piece, done, total}); });
    work.Report(1, 2);
    work.Begin();
    work.Report(1, 2);
    work.ReportAgain();
    work.End();

    EXPECT_TRUE(told.empty());
    EXPECT_FALSE(work.Reported());
}

TEST(Work, TellsHowFarItIsOnceItHasTakenAWhile) {
    std::vector<Told> told;
    Work work([&](uint64 piece, int64 done, int64 total) { told.push_back({piece, done, total}); });
    work.Begin();
    work.Report(7, 9);
    while (!work.Reported())
        work.ReportAgain();

    EXPECT_EQ(told, (std::vector<Told>{{work.Running(), 7, 9}}));

    work.Begin();
    EXPECT_FALSE(work.Reported());
}

TEST(Work, CanBeStoppedFromAnotherThread) {
    Work work;
    work.Begin();
    std::thread other([&work] { work.Stop(work.Running()); });
    while (!work.StopRequested())
        std::this_thread::yield();
    other.join();
}

}  // namespace

}  // namespace kirto::test
