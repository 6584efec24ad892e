#pragma once

#include "base/types.h"
#include "kit/point.h"

// A rectangle whose four edges are inclusive coordinates: (0, 0, 99, 49) covers 100 x 50 pixels.
struct BRect {
    float left = 0;
    float top = 0;
    float right = -1;
    float bottom = -1;

    BRect() = default;
    BRect(float left_edge, float top_edge, float right_edge, float bottom_edge)
        : left(left_edge), top(top_edge), right(right_edge), bottom(bottom_edge) {}

    // False for a rectangle that covers nothing.
    bool IsValid() const { return left <= right && top <= bottom; }
    // Distances between the edges; one less than the pixels covered.
    float Width() const { return right - left; }
    float Height() const { return bottom - top; }
    // Whole pixels covered: ceil(distance) + 1, at least 0. Edges too far apart for int32, and
    // edges that are not numbers, give 0.
    int32 PixelWidth() const;
    int32 PixelHeight() const;
    void OffsetBy(float dx, float dy);
    void OffsetTo(float x, float y) { OffsetBy(x - left, y - top); }

    // The rectangle of a picture of width x height pixels at the origin. Exact up to 2^24 pixels.
    static BRect OfSize(int32 width, int32 height);

    friend bool operator==(const BRect&, const BRect&) = default;
};
