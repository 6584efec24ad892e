#pragma once

#include <atomic>
#include <functional>
#include <mutex>

#include "base/types.h"

namespace kirto {

// The ceiling on the pixel memory of one document, in bytes. Every bitmap of the document reserves
// its bytes and kFrameCost here before it allocates them and gives them back when it is destroyed.
// Thread-safe; shared by the document and its bitmaps, so that a bitmap may outlive the document.
class PixelBudget {
  public:
    // What a frame takes beside its pixels: its record, its palette and its name. Without it, a
    // million frames of one pixel would seem to take next to nothing.
    static constexpr uint64 kFrameCost = 2048;
    // Bytes that decoding may take for a while beside what is left.
    static constexpr uint64 kWorkingRoom = uint64{64} << 20;

    explicit PixelBudget(uint64 limit = DefaultLimit()) : limit_(limit) {}

    // True and counted when used + bytes stays within the limit; otherwise nothing changes.
    bool Reserve(uint64 bytes);
    void Release(uint64 bytes);

    // Called by Reserve, on its thread, before it refuses what the limit has room for: frees
    // something and returns true, or returns false. For whoever owns what is dispensable. Null:
    // nobody; after that the one before is called no more.
    void SetReliever(std::function<bool()> reliever);

    uint64 Used() const { return used_; }
    uint64 Limit() const { return limit_; }
    // Bytes that the limit still has room for.
    uint64 Left() const;
    // Applies to later reservations only.
    void SetLimit(uint64 limit) { limit_ = limit; }

    // min(2 GiB, a quarter of the machine's physical memory).
    static uint64 DefaultLimit();

  private:
    bool TryReserve(uint64 bytes);
    bool Relieve();

    std::mutex reliever_mutex_;
    std::function<bool()> reliever_;  // guarded by it
    std::atomic<uint64> limit_;
    std::atomic<uint64> used_ = 0;
};

}  // namespace kirto
