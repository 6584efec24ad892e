// Work on the pieces of a sequence by several threads at a time, as if one thread had worked on one
// piece after the other.
#pragma once

#include <chrono>
#include <deque>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <utility>

#include "base/allocation.h"
#include "base/ordered_steps.h"
#include "base/thread_count.h"
#include "base/worker_threads.h"

namespace kirto {

// So many pieces may be kept at once, worked on or not yet taken.
constexpr size_t PiecesInFlight(int32 threads) {
    return static_cast<size_t>(threads) * 2;
}

// The same for pieces that are small, which the first 16 show.
constexpr size_t SmallPiecesInFlight(int32 threads) {
    return 8 * PiecesInFlight(threads);
}

// Carries out the steps; see RunInOrder.
template <typename Input, typename Output>
class OrderedRun {
  public:
    OrderedRun(const OrderedSteps<Input, Output>& steps, int32 threads)
        : steps_(steps), threads_(threads) {}

    void Run() {
        if (threads_ > 1 && RunTogether()) return;
        RunAlone();
    }

  private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kLook{20};
    // Pieces that take less are small, once there were enough of them to tell.
    static constexpr std::chrono::microseconds kSmall{100};
    static constexpr int64 kEnough = 16;

    struct Piece : WorkerThreads::Task {
        Piece(const OrderedSteps<Input, Output>& all_steps, Input piece_input)
            : steps(all_steps), input(std::move(piece_input)) {}

        void Run(int32 worker) noexcept override {
            try {
                output = steps.work(input, worker);
            } catch (const std::bad_alloc&) {
                output.reset();
            } catch (...) {
                thrown = std::current_exception();
            }
        }

        const OrderedSteps<Input, Output>& steps;
        const Input input;
        std::optional<Output> output;
        std::exception_ptr thrown;
    };

    // False after the last piece. What next() throws has its turn then.
    bool Fetch() {
        if (over_) return false;
        try {
            if (std::optional<Input> input = steps_.next()) {
                pieces_.push_back(std::make_unique<Piece>(steps_, std::move(*input)));
                return true;
            }
        } catch (...) {
            thrown_by_next_ = std::current_exception();
        }
        over_ = true;
        return false;
    }

    // False when there is no piece anymore.
    bool HasPiece() {
        if (!pieces_.empty() || Fetch()) return true;
        if (thrown_by_next_) std::rethrow_exception(thrown_by_next_);
        return false;
    }

    bool Begin(const Piece& piece) {
        if (begun_) return true;
        begun_ = true;
        return !steps_.begin || steps_.begin(piece.input);
    }

    bool Take(std::optional<Output> output) {
        const std::unique_ptr<Piece> piece = std::move(pieces_.front());
        pieces_.pop_front();
        begun_ = false;
        ++taken_;
        return steps_.take(piece->input, std::move(output));
    }

    bool ArePiecesSmall() const {
        return taken_ >= kEnough && Clock::now() - start_ < taken_ * kSmall;
    }

    // Until the first piece is done. Being woken for each small one would take as long as the work
    // on it: then later ones are waited for, too, so that the next ones are there without waiting.
    void WaitForFirst(WorkerThreads& workers, bool small) {
        const Piece& first = *pieces_.front();
        if (small && !workers.WaitFor(first, {})) {
            workers.WaitFor(*pieces_[pieces_.size() / 2], kLook);
        }
        while (!workers.WaitFor(first, kLook)) {
            if (steps_.waiting) steps_.waiting();
        }
    }

    // False when the calling thread is to do the rest alone.
    bool RunTogether() {
        // A single piece is not worth a thread.
        while (pieces_.size() < 2) {
            if (!Fetch()) return false;
        }
        WorkerThreads workers(threads_);
        for (const auto& piece : pieces_) {
            if (!workers.Add(*piece)) return false;
        }
        for (;;) {
            const bool small = ArePiecesSmall();
            const size_t kept = small ? SmallPiecesInFlight(threads_) : PiecesInFlight(threads_);
            while (pieces_.size() < kept && Fetch())
                workers.Add(*pieces_.back());
            if (!HasPiece()) return true;
            Piece& piece = *pieces_.front();
            if (!Begin(piece)) return true;
            WaitForFirst(workers, small);
            if (piece.thrown) std::rethrow_exception(piece.thrown);
            // Alone, with the results of later pieces out of the way, there may be memory enough.
            if (!piece.output) return false;
            if (!Take(std::move(piece.output))) return true;
        }
    }

    void RunAlone() {
        for (const auto& piece : pieces_)
            piece->output.reset();
        while (HasPiece()) {
            const Piece& piece = *pieces_.front();
            if (!Begin(piece) || !Take(steps_.work(piece.input, 0))) return;
        }
    }

    const OrderedSteps<Input, Output>& steps_;
    const int32 threads_;
    const Clock::time_point start_ = Clock::now();
    int64 taken_ = 0;
    std::deque<std::unique_ptr<Piece>> pieces_;  // in their order
    bool begun_ = false;                         // the first of them
    bool over_ = false;                          // next() has no more
    std::exception_ptr thrown_by_next_;
};

// Takes the pieces through the steps, with so many threads at most; with 1, or with a single piece,
// no thread is started. Whatever the number, the same is begun and taken in the same order, up to
// the same end: what fails or throws in a piece does so at its turn. Where memory was too short
// for a thread, the calling thread works on that piece again, and on the rest, alone; only what it
// lacks then is lacking. Returns when no thread works anymore.
template <typename Input, typename Output>
void RunInOrder(const OrderedSteps<Input, Output>& steps, int32 threads = ThreadCount()) {
    // The n-th allocation is a particular one only as long as one thread allocates.
    if (LentAllocationFault()) threads = 1;
    OrderedRun<Input, Output>(steps, threads).Run();
}

}  // namespace kirto
