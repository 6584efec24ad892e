#pragma once

#include <array>
#include <span>
#include <vector>

#include "base/types.h"
#include "base/work.h"

namespace kirto {

// Compresses palette indices to the codes of GIF image data where some pixels may have either of
// two indices: for each string that index is taken which lets the string go on. A string may end
// earlier than it could where the next one gains more by that: A. Hartman and M. Rodeh, "Optimal
// parsing of strings", 1985, one string ahead. The table is cleared when it is full and no longer
// pays. The same codes for the same indices. Used by one thread; throws std::bad_alloc.
class ChoiceLzwEncoder {
  public:
    struct Image {
        std::span<const uint8> indices;
        // As many: above 0 where the transparent index does as well. Empty: nowhere.
        std::span<const uint8> skippable;
        uint8 transparent = 0;
        int32 min_code_size = 2;  // 2 to 8; every index is below 2^min_code_size
    };

    // How strings are found, and when the table is cleared.
    struct Effort {
        size_t shorter = 1;  // indices that a string may give to the next one, up to kMostShorter
        // A full table is cleared after so many windows in a row in which it did not pay; 0: at
        // once.
        uint32 patience = 1;
    };
    static constexpr size_t kMostShorter = 3;

    // work: outlives this; codes that are made while it is stopped are of no use.
    explicit ChoiceLzwEncoder(const Work& work) : work_(work) {}

    // Encodes an image. The codes, first to last, as they go into sub-blocks; good until the next
    // call. Breaks off, with more bytes than that, once there are more than `most`.
    std::span<const uint8> Encode(const Image& image, const Effort& effort, size_t most);

  private:
    static constexpr uint32 kMaxCodeSize = 12;
    static constexpr uint32 kMaxCodes = 1U << kMaxCodeSize;
    static constexpr uint32 kHashBits = 14;
    static constexpr uint32 kNoCode = ~uint32{0};
    // Strings of a length that a search goes on from.
    static constexpr size_t kMostStates = 6;
    // Codes that tell how well a full table does.
    static constexpr uint32 kWindow = 128;
    // Strings between two looks at the work.
    static constexpr uint64 kStringsAtOnce = 1024;

    // A string of the table that the indices from somewhere on may be.
    struct Match {
        size_t length = 0;
        uint32 first = 0;  // its first index
        // Its code, and those of the strings that are 1, 2, ... shorter.
        std::array<uint32, kMostShorter + 1> codes{};
    };

    // The codes of the last strings that a search has come by, each at its end.
    struct Trail {
        std::array<uint32, kMostShorter + 1> codes;
    };
    // Each may become two.
    struct States {
        std::array<uint32, 2 * kMostStates> codes;
        size_t count = 0;
    };

    void ResetTable();
    size_t Slot(uint32 string) const;
    uint32 Find(uint32 prefix, uint32 index) const;
    void Insert(uint32 prefix, uint32 index, uint32 code);
    Match Longest(size_t from) const;
    Match LongestWith(size_t from, uint32 first) const;
    Match Fixed(size_t from, uint32 first) const;
    static Match MatchOf(size_t from, size_t at, uint32 first, const Trail& trail);
    bool Grows(const States& states, size_t at, uint32 first) const;
    void Step(size_t at, const States& states, States* next) const;
    // By how much it pays to end the match earlier.
    size_t Shortening(size_t from, const Match& match) const;
    void Emit(uint32 code, size_t length);
    void Put(uint32 code);
    void TakeWindow();

    const Work& work_;
    Image image_;
    Effort effort_;
    uint32 clear_code_ = 0;
    uint32 next_free_ = 0;
    uint32 code_size_ = 0;
    uint32 pending_ = kNoCode;  // the last string's code, which the next index makes a new string
    // Since the table was cleared, and within the last window.
    uint64 codes_ = 0;
    uint64 taken_ = 0;
    uint64 bits_ = 0;
    uint32 window_codes_ = 0;
    uint64 window_taken_ = 0;
    uint32 bad_windows_ = 0;  // in a row

    // A slot is a string's prefix code (12 bits), its last index (8) and its own code (12). No
    // string begins with the clear code, so that marks an empty slot.
    std::array<uint32, size_t{1} << kHashBits> slots_;
    uint32 empty_slot_ = 0;
    std::vector<uint8> bytes_;
    uint64 bit_buffer_ = 0;
    uint32 bit_count_ = 0;
};

}  // namespace kirto
