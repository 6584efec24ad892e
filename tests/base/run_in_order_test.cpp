#include "base/run_in_order.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "base/work.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

using Steps = OrderedSteps<int32, int32>;
using Lines = std::vector<std::string>;

// Pieces 0 to count - 1, whose results are their squares, and a log of what was begun and taken.
struct Squares {
    Lines log;
    Steps steps;

    explicit Squares(int32 count) {
        steps.next = [next = 0, count]() mutable {
            return next < count ? std::optional(next++) : std::nullopt;
        };
        steps.begin = [this](int32 i) {
            log.push_back("begin " + std::to_string(i));
            return true;
        };
        steps.work = [](int32 i, int32) { return std::optional(i * i); };
        steps.take = [this](int32 i, std::optional<int32> result) {
            const std::string text = result ? std::to_string(*result) : "nothing";
            log.push_back("take " + std::to_string(i) + ": " + text);
            return true;
        };
    }

    // What is logged when the pieces before the given one have their turns.
    static Lines LogOf(int32 count) {
        Lines log;
        for (int32 i = 0; i < count; ++i) {
            log.push_back("begin " + std::to_string(i));
            log.push_back("take " + std::to_string(i) + ": " + std::to_string(i * i));
        }
        return log;
    }
    static Lines LogOf(int32 count, const std::string& last) {
        Lines log = LogOf(count);
        log.push_back(last);
        return log;
    }
};

void WaitFor(const std::atomic<bool>& flag) {
    while (!flag)
        std::this_thread::yield();
}

TEST(RunInOrder, BeginsAndTakesThePiecesInTheirOrder) {
    for (const int32 threads : kThreadCounts) {
        for (const int32 count : {0, 1, 2, 3, 40}) {
            Squares squares(count);

            RunInOrder(squares.steps, threads);

            EXPECT_EQ(squares.log, Squares::LogOf(count)) << threads << " threads";
        }
    }
}

TEST(RunInOrder, TakesAPieceThatIsDoneLateBeforeThoseAfterIt) {
    for (const int32 threads : {2, 3, 16}) {
        Squares squares(2);
        std::atomic<bool> second_done = false;
        squares.steps.work = [&](int32 i, int32) {
            if (i == 0) WaitFor(second_done);
            if (i == 1) second_done = true;
            return std::optional(i * i);
        };

        RunInOrder(squares.steps, threads);

        EXPECT_EQ(squares.log, Squares::LogOf(2));
    }
}

// How many pieces were kept at a time, of so many.
size_t MostKept(int32 count, int32 threads) {
    Squares squares(count);
    size_t kept = 0;
    size_t most_kept = 0;
    const auto next = squares.steps.next;
    const auto take = squares.steps.take;
    squares.steps.next = [&] {
        most_kept = std::max(most_kept, ++kept);
        return next();
    };
    squares.steps.take = [&](int32 i, std::optional<int32> result) {
        --kept;
        return take(i, result);
    };

    RunInOrder(squares.steps, threads);

    EXPECT_EQ(squares.log, Squares::LogOf(count));
    return most_kept;
}

TEST(RunInOrder, KeepsFewPiecesUntilTheyAreKnownToBeSmall) {
    EXPECT_EQ(MostKept(200, 1), 1u);
    EXPECT_EQ(MostKept(16, 2), PiecesInFlight(2));
    EXPECT_EQ(MostKept(16, 3), PiecesInFlight(3));
}

TEST(RunInOrder, KeepsABoundedNumberOfSmallPieces) {
    for (const int32 threads : {2, 3, 16})
        EXPECT_LE(MostKept(2000, threads), SmallPiecesInFlight(threads));
}

TEST(RunInOrder, EndsWhereAPieceIsNotBegun) {
    for (const int32 threads : kThreadCounts) {
        Squares squares(40);
        const auto begin = squares.steps.begin;
        squares.steps.begin = [&](int32 i) { return begin(i) && i < 7; };

        RunInOrder(squares.steps, threads);

        EXPECT_EQ(squares.log, Squares::LogOf(7, "begin 7"));
    }
}

TEST(RunInOrder, EndsWhereTheResultOfAPieceIsRefused) {
    for (const int32 threads : kThreadCounts) {
        Squares squares(40);
        const auto take = squares.steps.take;
        squares.steps.take = [&](int32 i, std::optional<int32> result) {
            return take(i, result) && i < 7;
        };

        RunInOrder(squares.steps, threads);

        EXPECT_EQ(squares.log, Squares::LogOf(8));
    }
}

TEST(RunInOrder, ThrowsWhatAPieceThrowsAtItsTurn) {
    for (const int32 threads : kThreadCounts) {
        Squares squares(40);
        std::atomic<bool> later_thrown = threads == 1;
        squares.steps.work = [&](int32 i, int32) -> std::optional<int32> {
            if (i == 7) {
                WaitFor(later_thrown);
                throw std::runtime_error("7");
            }
            if (i == 8) {
                later_thrown = true;
                throw std::runtime_error("8");
            }
            return i * i;
        };

        std::string thrown;
        try {
            RunInOrder(squares.steps, threads);
        } catch (const std::runtime_error& error) {
            thrown = error.what();
        }

        EXPECT_EQ(thrown, "7");
        EXPECT_EQ(squares.log, Squares::LogOf(7, "begin 7"));
    }
}

TEST(RunInOrder, ThrowsAtAPiecesTurnWhatKeptItFromBeingMade) {
    for (const int32 threads : kThreadCounts) {
        Squares squares(40);
        const auto next = squares.steps.next;
        squares.steps.next = [&, made = 0]() mutable {
            if (made++ == 5) throw std::runtime_error("no piece");
            return next();
        };

        EXPECT_THROW(RunInOrder(squares.steps, threads), std::runtime_error);

        EXPECT_EQ(squares.log, Squares::LogOf(5));
    }
}

TEST(RunInOrder, WorksAloneAgainOnAPieceForWhichAThreadLackedMemory) {
    const std::thread::id caller = std::this_thread::get_id();
    for (const int32 threads : kThreadCounts) {
        for (const bool throws : {false, true}) {
            Squares squares(40);
            squares.steps.work = [&](int32 i, int32) -> std::optional<int32> {
                if (i < 7 || std::this_thread::get_id() == caller) return i * i;
                if (throws) throw std::bad_alloc();
                return std::nullopt;
            };

            RunInOrder(squares.steps, threads);

            EXPECT_EQ(squares.log, Squares::LogOf(40));
        }
    }
}

TEST(RunInOrder, SaysSoWhereMemoryIsTooShortForOneThreadAlone) {
    for (const int32 threads : kThreadCounts) {
        Squares squares(40);
        squares.steps.work = [](int32 i, int32) {
            return i == 7 ? std::nullopt : std::optional(i * i);
        };
        const auto take = squares.steps.take;
        squares.steps.take = [&](int32 i, std::optional<int32> result) {
            return take(i, result) && result;
        };

        RunInOrder(squares.steps, threads);

        Lines expected = Squares::LogOf(7, "begin 7");
        expected.push_back("take 7: nothing");
        EXPECT_EQ(squares.log, expected);
    }
}

TEST(RunInOrder, ThrowsAtItsTurnWhereMemoryIsTooShortForOneThreadAlone) {
    for (const int32 threads : kThreadCounts) {
        Squares squares(40);
        squares.steps.work = [](int32 i, int32) {
            if (i >= 7) throw std::bad_alloc();
            return std::optional(i * i);
        };

        EXPECT_THROW(RunInOrder(squares.steps, threads), std::bad_alloc);

        EXPECT_EQ(squares.log, Squares::LogOf(7, "begin 7"));
    }
}

TEST(RunInOrder, EndsSoonWhenTheWorkIsStopped) {
    for (const int32 threads : kThreadCounts) {
        Squares squares(40);
        Work work;
        work.Begin();
        squares.steps.begin = [&](int32 i) {
            if (i == 7) work.Stop(work.Running());
            return !work.StopRequested();
        };
        // From the eighth piece on they only end because the work is stopped.
        squares.steps.work = [&](int32 i, int32) {
            while (i >= 7 && !work.StopRequested())
                std::this_thread::yield();
            return std::optional(i * i);
        };

        RunInOrder(squares.steps, threads);

        EXPECT_EQ(squares.log.size(), 7u);
        EXPECT_EQ(squares.log.back(), "take 6: 36");
    }
}

TEST(RunInOrder, CallsBackWhileThereIsOnlyToWait) {
    Squares squares(3);
    std::atomic<bool> waited = false;
    squares.steps.waiting = [&] { waited = true; };
    squares.steps.work = [&](int32 i, int32) {
        WaitFor(waited);
        return std::optional(i * i);
    };

    RunInOrder(squares.steps, 2);

    EXPECT_EQ(squares.log, Squares::LogOf(3));
}

// The threads that worked on so many pieces.
std::set<std::thread::id> ThreadsThatWork(int32 pieces, int32 threads) {
    Squares squares(pieces);
    std::mutex mutex;
    std::set<std::thread::id> ids;
    squares.steps.work = [&](int32 i, int32) {
        const std::lock_guard lock(mutex);
        ids.insert(std::this_thread::get_id());
        return std::optional(i * i);
    };
    RunInOrder(squares.steps, threads);
    EXPECT_EQ(squares.log, Squares::LogOf(pieces));
    return ids;
}

TEST(RunInOrder, WithOneThreadWorksOnTheCallersThread) {
    const std::set<std::thread::id> caller{std::this_thread::get_id()};

    EXPECT_EQ(ThreadsThatWork(40, 1), caller);
    EXPECT_FALSE(ThreadsThatWork(40, 2).contains(*caller.begin()));
}

TEST(RunInOrder, StartsNoThreadForASinglePiece) {
    const std::set<std::thread::id> caller{std::this_thread::get_id()};

    EXPECT_EQ(ThreadsThatWork(1, 16), caller);
}

TEST(RunInOrder, StartsNoThreadWhileAllocationsAreCounted) {
    const std::set<std::thread::id> caller{std::this_thread::get_id()};
    const AllocationFault fault(1000);

    EXPECT_EQ(ThreadsThatWork(40, 16), caller);
}

TEST(RunInOrder, StartsNoMoreThreadsThanThereArePieces) {
    EXPECT_LE(ThreadsThatWork(3, 16).size(), 3u);
}

TEST(RunInOrder, GivesAWorkersNumberToOnePieceAtATime) {
    for (const int32 threads : {2, 3, 16}) {
        Squares squares(300);
        std::array<std::atomic<bool>, 16> busy{};
        std::atomic<int32> failures = 0;
        squares.steps.work = [&](int32 i, int32 worker) {
            if (worker < 0 || worker >= threads) {
                ++failures;
                return std::optional(i * i);
            }
            std::atomic<bool>& mine = busy[static_cast<size_t>(worker)];
            if (mine.exchange(true)) ++failures;
            std::this_thread::yield();
            mine = false;
            return std::optional(i * i);
        };

        RunInOrder(squares.steps, threads);

        EXPECT_EQ(failures, 0);
        EXPECT_EQ(squares.log, Squares::LogOf(300));
    }
}

}  // namespace

}  // namespace kirto::test
