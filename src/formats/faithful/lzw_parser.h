#pragma once

#include <array>
#include <span>
#include <vector>

#include "base/types.h"
#include "formats/faithful/lzw_strings.h"

namespace kirto {

// Palette indices that are to be compressed, where some pixels may have either of two.
struct ChoiceImage {
    std::span<const uint8> indices;
    // As many: 1 where the transparent index does as well, else 0. Empty: nowhere.
    std::span<const uint8> skippable;
    uint8 transparent = 0;
    int32 min_code_size = 2;  // 2 to 8; every index is below 2^min_code_size
};

// Finds the strings of an image from one clearing of the table on: of the two indices that a pixel
// may have, always the one which lets the string go on. A string may end earlier than it could
// where the next one gains more by that: A. Hartman and M. Rodeh, "Optimal parsing of strings",
// 1985, one string ahead. The same strings for the same indices. Used by one thread; throws
// std::bad_alloc.
class LzwParser {
  public:
    // Indices that a string may give to the next one.
    static constexpr size_t kMostShorter = 3;

    struct Code {
        uint16 code = 0;
        uint16 size = 0;  // bits
    };

    // Clears the table. shorter: up to kMostShorter. The image outlives the parsing.
    void Start(const ChoiceImage& image, size_t shorter, size_t from);

    // Takes the next string; there is one.
    Code Take();
    bool AtEnd() const { return at_ == image_.indices.size(); }
    // The pixels that have been taken, those before the start among them.
    size_t At() const { return at_; }
    // Of all codes since the start.
    uint64 Bits() const { return bits_; }
    bool Full() const { return strings_.Full(); }
    // Of the next code.
    uint32 CodeSize() const { return code_size_; }
    // Of the last code; before the first one, of that.
    uint32 LastCodeSize() const { return last_code_size_; }

  private:
    static constexpr uint32 kNoCode = ~uint32{0};
    // Strings of a length that a search goes on from.
    static constexpr size_t kMostStates = 3;

    // The longest string that the indices from somewhere on may be.
    struct Match {
        size_t length = 0;
        uint32 first = 0;  // its first index
        uint32 code = 0;
    };
    // Each may become two.
    struct States {
        std::array<uint32, 2 * kMostStates> codes;
        size_t count = 0;
    };

    // The next string, the last one with its first index behind it having got a code.
    Match Next();
    bool Fits(const Match& ahead) const;
    Match Longest(size_t from) const;
    Match LongestWith(size_t from, uint32 first) const;
    Match Fixed(size_t from) const;
    Match Offered(size_t from, uint32 first);
    bool Leap(size_t at, const States& states, States* next) const;
    void Step(size_t at, const States& states, States* next) const;
    bool HasChoice(size_t at) const {
        return !image_.skippable.empty() && image_.skippable[at] != 0 &&
               image_.indices[at] != image_.transparent;
    }
    // By how much it pays to end the match earlier; keeps the match that follows.
    size_t Shortening(const Match& match);

    LzwStrings strings_;
    ChoiceImage image_;
    size_t shorter_ = 0;
    size_t at_ = 0;
    uint32 code_size_ = 0;
    uint32 last_code_size_ = 0;
    uint64 bits_ = 0;
    // The last string's code, which the next index makes a new string, and its length.
    uint32 pending_ = kNoCode;
    size_t pending_length_ = 0;
    Match ahead_;  // what follows, found before the last string had its code; no length: not known
};

}  // namespace kirto
