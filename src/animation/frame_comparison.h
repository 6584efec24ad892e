#pragma once

#include <compare>
#include <map>
#include <vector>

#include "animation/frame.h"
#include "base/types.h"
#include "base/work.h"

namespace kirto {

// How many pixels of a screen are not as they should be.
struct PixelDifferences {
    int64 compared = 0;
    int64 filled = 0;     // have a color where the frame is transparent
    int64 outside = 0;    // have a color where the frame is not
    int64 holes = 0;      // are transparent where the frame has a color
    int64 recolored = 0;  // have another color
    int64 distance = 0;   // of these, the sum of the differences in red, green and blue

    bool operator==(const PixelDifferences&) const = default;
    PixelDifferences& operator+=(const PixelDifferences& other);
    bool Any() const { return filled != 0 || outside != 0 || holes != 0 || recolored != 0; }
};

// Compares frames with what a screen shows of them. A frame's pixels are transparent below an
// alpha, 128 as a rule, and have a color above it; a file has nothing between the two, and may have
// either at that alpha and any color at what is not quite opaque. Rows that both sides share with a
// frame before are not looked at again: pictures that were compared have to outlive this. Used by
// one thread.
class FrameComparison {
  public:
    static constexpr int32 kHalf = 128;

    // The screen's size in pixels. parts: only the frame's rectangle counts, else the screen is to
    // be transparent around it. threshold: that alpha, 0 to 255. work: may be stopped within a
    // frame; null for nobody.
    FrameComparison(int32 width, int32 height, bool parts, const Work* work,
                    int32 threshold = kHalf);

    // shown: pixels of B_RGB32, of any size; what it lacks of the screen is transparent.
    PixelDifferences Compare(const Frame& frame, const Picture& shown);

  private:
    // Rows that lie in one strip of both pictures; null where there is none.
    struct Rows {
        const Strip* frame_strip = nullptr;
        int32 frame_row = 0;  // in it
        const Strip* shown_strip = nullptr;
        int32 shown_row = 0;
        int32 count = 0;
        int32 left = 0;  // of the frame
        int32 width = 0;

        // NOLINTNEXTLINE(modernize-use-nullptr): no 0 is written here.
        auto operator<=>(const Rows&) const = default;
    };

    Rows RowsAt(const Frame& frame, const Picture& shown, int32 y) const;
    PixelDifferences CompareRows(const Rows& rows, const Picture* picture, const Picture& shown);
    // left, right: of the frame.
    void CompareRow(int32 left, int32 right, PixelDifferences* result) const;

    const int32 width_;
    const int32 height_;
    const bool parts_;
    const Work* const work_;
    const int32 threshold_;
    std::vector<uint8> frame_row_;  // all pixels of the screen
    std::vector<uint8> shown_row_;
    std::map<Rows, PixelDifferences> known_;
};

// Whether both frames show the same pixels at the same place.
bool ShowTheSame(const Frame& a, const Frame& b);
// The same where each channel of a pixel, alpha too, may differ by so much, 0..255.
bool ShowNearlyTheSame(const Frame& a, const Frame& b, int32 tolerance);

}  // namespace kirto
