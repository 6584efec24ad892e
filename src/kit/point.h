#pragma once

// A point in floating-point coordinates, x to the right and y downward.
struct BPoint {
    float x = 0;
    float y = 0;

    BPoint() = default;
    BPoint(float x_position, float y_position) : x(x_position), y(y_position) {}

    friend bool operator==(const BPoint&, const BPoint&) = default;
};
