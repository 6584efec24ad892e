#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "base/types.h"
#include "base/work.h"
#include "formats/faithful/lzw_pace.h"
#include "formats/faithful/lzw_parser.h"

namespace kirto {

// Finds where an image's table of strings is best cleared. A full table may go on to serve for as
// long again as it took to fill; what follows a clearing depends on its place alone, so that places
// are the nodes of a graph, through which the shortest way in bits is sought. Only the most
// promising places are gone on from. The same for the same image. Used by one thread; throws
// std::bad_alloc.
class TableClearings {
  public:
    // work: outlives this; what is found while it is stopped is of no use.
    explicit TableClearings(const Work& work) : work_(work) {}

    // The pixels, by their positions, before which the table is to be cleared, all strings being as
    // long as can be. pace: of an encoding of the image.
    std::vector<size_t> Find(const ChoiceImage& image, const LzwPace& pace);

  private:
    // Strings between two places that a table may be cleared at.
    static constexpr size_t kGrid = 256;
    // Places that are kept to be gone on from.
    static constexpr size_t kMostOpen = 4;
    static constexpr size_t kNowhere = ~size_t{0};

    struct Place {
        size_t at = 0;             // pixels before it
        uint64 bits = 0;           // for these
        size_t before = kNowhere;  // the clearing before it
        double behind = 0;         // the encoding that is the measure, in bits
    };

    void GoOnFrom(size_t place);
    void Open(const Place& place);

    const Work& work_;
    ChoiceImage image_;
    const LzwPace* pace_ = nullptr;
    std::unique_ptr<LzwParser> parser_;
    std::vector<Place> places_;
    std::vector<Place> open_;  // by their positions
    // The best way to the end so far.
    size_t last_ = kNowhere;
    uint64 least_ = 0;
};

}  // namespace kirto
