#pragma once

#include <atomic>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "animation/frame_image.h"
#include "base/pixel_budget.h"
#include "base/work.h"
#include "base/worker_threads.h"
#include "kit/translator_roster.h"

namespace kirto {

// Reads image files one after the other, and meanwhile those that come next, on other threads. What
// comes of a file is what reading it at its turn gives: where there might be less memory than then,
// or more than it would leave, it is read again at its turn, alone. With one thread nothing is read
// ahead.
//
// Used by the thread that works; it is its turn that counts.
class ImagesAhead {
  public:
    // Pictures of more pixels, or of a number that their file's first bytes do not tell, are not
    // read before their turn: the decoders of several at a time might need any amount of memory.
    static constexpr uint64 kMostPixelsAhead = uint64{1} << 24;

    // The roster and the work outlive this. The budget counts the pixels.
    ImagesAhead(BTranslatorRoster& roster, std::shared_ptr<PixelBudget> budget, Work& work);
    ~ImagesAhead();
    ImagesAhead(const ImagesAhead&) = delete;
    ImagesAhead& operator=(const ImagesAhead&) = delete;

    // How many of the files that follow are worth being told.
    static size_t MostFollowing();
    // What is in the first of the files. The others are those that will be read next, in that order
    // as far as is known: of another order, nothing comes but lost work.
    FrameImage Read(const std::vector<std::string>& files);
    // Lets go of all that was read ahead, without waiting for decoders that are still at it.
    void Forget();

  private:
    struct Piece;

    // The same, but waits for them: they have memory until they are done.
    void Drop();
    // Makes the pieces those of the files, as far as these can be read ahead.
    void Announce(const std::vector<std::string>& files);
    bool Begin(const std::string& file);
    // Nothing where the file is to be read at its turn.
    std::optional<FrameImage> TakeFirst();
    // Whether reading it now would give the same.
    bool Holds(const FrameImage& image) const;

    BTranslatorRoster& roster_;
    const std::shared_ptr<PixelBudget> budget_;
    Work& work_;
    bool alone_ = false;  // until the last of the files that were announced
    std::atomic<bool> given_up_ = false;
    std::deque<std::unique_ptr<Piece>> pieces_;  // outlive the threads
    std::unique_ptr<WorkerThreads> workers_;     // null: nothing is read ahead
};

}  // namespace kirto
