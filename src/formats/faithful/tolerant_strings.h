#pragma once

#include <array>
#include <span>
#include <vector>

#include "base/types.h"
#include "base/work.h"
#include "formats/faithful/lzw_parser.h"
#include "formats/faithful/lzw_strings.h"

namespace kirto {

// Gives pixels other indices, of colors that are near, so that the strings of an image are longer
// and its codes fewer. The same indices for the same image. Used by one thread; throws
// std::bad_alloc.
class TolerantStrings {
  public:
    // keys: of the colors of the indices that there are, at most 256. transparent: the index that
    // is no color, whatever its key; -1: none. tolerance: the largest square distance that is near.
    // work: outlives this; what is found while it is stopped is of no use.
    TolerantStrings(std::span<const uint32> keys, int32 transparent, int64 tolerance,
                    const Work& work);

    // The indices that are to be encoded in place of the image's. Skippable pixels stay so. Indices
    // are below the number of keys, or transparent.
    std::vector<uint8> Find(const ChoiceImage& image);

  private:
    // Indices that are near one another, the nearest first, and how far they are.
    struct Near {
        uint8 index = 0;
        int64 distance = 0;
    };
    // A string that the pixels from somewhere on may be.
    struct Match {
        size_t length = 0;
        int64 distance = 0;  // of all of it
        uint32 code = 0;
        bool IsBetterThan(const Match& other) const {
            return length != other.length ? length > other.length : distance < other.distance;
        }
    };

    static constexpr uint32 kNoCode = ~uint32{0};
    // Strings of a length that a search goes on from, and first indices that it is begun with.
    static constexpr size_t kMostStates = 12;
    static constexpr size_t kMostFirst = 6;
    // Strings between two looks at the work.
    static constexpr size_t kStringsAtOnce = 256;

    // What the pixel may be.
    std::span<const Near> Choices(size_t pixel);
    Match Longest(size_t from, const Near& first);
    void Step(size_t pixel);
    // Takes the best string from there on into the table and returns it.
    Match Take(size_t from);
    void Write(size_t from, const Match& match);

    const Work& work_;
    std::array<std::vector<Near>, 256> near_;
    std::vector<Near> with_transparent_;
    ChoiceImage image_;
    LzwStrings strings_;
    uint32 last_ = kNoCode;  // the string before
    std::vector<Match> states_;
    std::vector<Match> next_;
    std::vector<uint8> found_;
};

}  // namespace kirto
