#include "painters.h"

#include <algorithm>

namespace kirto::bench {

namespace {

// Scatters a number: neighbors get unrelated results.
uint32 Scatter(uint32 value) {
    value ^= value >> 16;
    value *= 0x7FEB352DU;
    value ^= value >> 15;
    value *= 0x846CA68BU;
    return value ^ (value >> 16);
}

uint32 Scatter(int32 x, int32 y, uint32 seed) {
    return Scatter(static_cast<uint32>(x) * 0x9E3779B1U + static_cast<uint32>(y) * 0x85EBCA77U +
                   seed * 0xC2B2AE3DU);
}

rgb_color Color(int32 red, int32 green, int32 blue) {
    const auto component = [](int32 value) {
        return static_cast<uint8>(std::clamp(value, 0, 255));
    };
    return {component(red), component(green), component(blue), 255};
}

// A step from a to b, of 256.
int32 Between(int32 a, int32 b, int32 part) {
    return a + (b - a) * part / 256;
}

bool Inside(int32 x, int32 y, int32 left, int32 top, int32 right, int32 bottom) {
    return x >= left && x < right && y >= top && y < bottom;
}

// Up and down between 0 and range.
int32 Bounce(int32 step, int32 range) {
    const int32 position = step % (2 * range);
    return position < range ? position : 2 * range - position;
}

// The light on a ball from the upper left in 16 levels, or -1 outside the ball.
int32 LightOnBall(int32 dx, int32 dy, int32 radius) {
    const int32 square = radius * radius;
    if (dx * dx + dy * dy > square) return -1;
    const int32 lit_x = dx + radius / 3;
    const int32 lit_y = dy + radius / 3;
    return std::clamp(15 - (lit_x * lit_x + lit_y * lit_y) * 8 / square, 0, 15);
}

// Smooth noise from 0 to 255 with features of 2^shift pixels.
int32 Noise(int32 x, int32 y, int32 shift, uint32 seed) {
    const auto corner = [&](int32 column, int32 row) {
        return static_cast<int32>(Scatter(column, row, seed) & 255);
    };
    const auto eased = [](int32 part) { return part * part * (768 - 2 * part) / 65536; };
    const int32 column = x >> shift;
    const int32 row = y >> shift;
    const int32 across = eased(((x << 8) >> shift) & 255);
    const int32 down = eased(((y << 8) >> shift) & 255);
    const int32 above = Between(corner(column, row), corner(column + 1, row), across);
    const int32 below = Between(corner(column, row + 1), corner(column + 1, row + 1), across);
    return Between(above, below, down);
}

// A line of text on white: letters of noise with soft edges, in one of five colors.
rgb_color PaintText(int32 x, int32 y, int32 line) {
    constexpr int32 kLetterWidth = 8;
    constexpr rgb_color kInks[5] = {{32, 32, 32, 255},
                                    {0, 0, 160, 255},
                                    {0, 110, 40, 255},
                                    {150, 30, 30, 255},
                                    {0, 90, 130, 255}};
    const rgb_color paper = Color(252, 252, 252);
    const int32 letter = x / kLetterWidth;
    const uint32 shape = Scatter(letter, line, 11);
    const bool behind_end = letter >= static_cast<int32>(Scatter(line, 0, 12) % 52);
    const bool space = shape % 6 == 0 || x % kLetterWidth >= 6 || y < 3 || y > 11;
    if (behind_end || space) return paper;
    const uint32 level = Scatter(x % kLetterWidth / 2, y / 2, shape) % 4;
    const rgb_color ink = kInks[Scatter(line, 0, 13) % 5];
    const int32 part = static_cast<int32>(level) * 85;
    return Color(Between(paper.red, ink.red, part), Between(paper.green, ink.green, part),
                 Between(paper.blue, ink.blue, part));
}

rgb_color PaintTextWindow(int32 x, int32 y, int32 step) {
    constexpr int32 kLineHeight = 14;
    if (y < 22) return Color(60, 90, 150);
    if (x < 6) return Color(225, 225, 230);
    const int32 text_y = y - 22;
    return PaintText(x - 6, text_y % kLineHeight, text_y / kLineHeight + step);
}

rgb_color PaintDialog(int32 x, int32 y, int32 step) {
    if (y < 22) return Color(120, 120, 130);
    if (Inside(x, y, 20, 200, 290, 220)) {
        return x < 20 + (step + 1) * 22 ? Color(50, 150, 70) : Color(205, 205, 205);
    }
    if (Inside(x, y, 180, 235, 290, 262)) return Color(215, 220, 230);
    if (Inside(x, y, 20, 40, 290, 180)) return PaintText(x - 20, y % 14, 1000 + y / 14);
    return Color(238, 238, 240);
}

}  // namespace

rgb_color PaintSprites(int32 x, int32 y, int32 step) {
    for (int32 ball = 0; ball < 3; ++ball) {
        const int32 center_x = 20 + Bounce(step * (ball + 1) + ball * 40, 88);
        const int32 center_y = 20 + Bounce(step * (3 - ball) + ball * 25, 88);
        const int32 light = LightOnBall(x - center_x, y - center_y, 12 + ball * 4);
        if (light < 0) continue;
        return Color(ball == 0 ? 240 - light : 30 + light * 9,
                     ball == 1 ? 40 + light * 13 : light * 6, ball == 2 ? 60 + light * 12 : 30);
    }
    const bool light_tile = (x / 16 + y / 16) % 2 == 0;
    const int32 speckle = static_cast<int32>(Scatter(x % 16, y % 16, 21) % 4) * 6;
    return light_tile ? Color(150 + speckle, 160 + speckle, 140) : Color(110, 120 + speckle, 110);
}

rgb_color PaintScreen(int32 x, int32 y, int32 step) {
    if (Inside(x, y, 300 + step * 20, 60 + step * 30, 310 + step * 20, 74 + step * 30)) {
        return Color(0, 0, 0);
    }
    if (Inside(x, y, 430, 150, 740, 430)) return PaintDialog(x - 430, y - 150, step);
    if (Inside(x, y, 60, 50, 500, 520)) return PaintTextWindow(x - 60, y - 50, step);
    if (y >= 572) return x % 120 < 110 ? Color(90, 95, 105) : Color(60, 62, 70);
    return Color(40, 70, 110);
}

rgb_color PaintPhoto(int32 x, int32 y, int32 step) {
    const int32 u = x + 2 * step;
    const int32 v = y + step;
    const int32 light = (Noise(u, v, 7, 1) * 4 + Noise(u, v, 5, 2) * 2 + Noise(u, v, 3, 3)) / 7;
    const int32 warmth = Noise(u, v, 8, 4);
    const int32 grain = static_cast<int32>(Scatter(u, v, 5 + static_cast<uint32>(step)) % 9) - 4;
    return Color(light * (160 + warmth) / 256 + grain, light * 220 / 256 + 20 + grain,
                 light * (415 - warmth) / 256 + grain);
}

rgb_color PaintNoise(int32 x, int32 y, int32 step) {
    const uint32 shade = Scatter(Scatter(x, y, static_cast<uint32>(step)) % 256 + 1);
    return Color(static_cast<int32>(shade & 255), static_cast<int32>(shade >> 8 & 255),
                 static_cast<int32>(shade >> 16 & 255));
}

rgb_color PaintFlat(int32 x, int32 y, int32 step) {
    constexpr int32 kTiles = 6;
    for (int32 tile = 0; tile < kTiles; ++tile) {
        const int32 left = Bounce(step * (3 + tile) * 2 + tile * 211, 1200);
        const int32 top = Bounce(step * (8 - tile) + tile * 97, 600);
        if (!Inside(x, y, left, top, left + 500 - tile * 50, top + 340 - tile * 30)) continue;
        return Color(40 + tile * 36, 220 - tile * 30, tile % 2 == 0 ? 60 : 200);
    }
    return y < 700 ? Color(150, 190, 235) : Color(90, 130, 80);
}

rgb_color PaintScene(int32 x, int32 y, int32 step) {
    for (int32 ball = 0; ball < 3; ++ball) {
        const int32 center_x = 80 + Bounce(step * (2 + ball) + ball * 150, 480);
        const int32 center_y = 100 + Bounce(step * (4 - ball) + ball * 90, 280);
        const int32 light = LightOnBall(x - center_x, y - center_y, 40 + ball * 15);
        if (light < 0) continue;
        return Color(ball == 0 ? 60 + light * 13 : 30 + light * 4,
                     ball == 1 ? 60 + light * 13 : 30 + light * 4,
                     ball == 2 ? 60 + light * 13 : 30 + light * 4);
    }
    const int32 haze = y / 8 + static_cast<int32>(Scatter(x, y, 31) % 2);
    return Color(40 + haze, 60 + haze, 120 + haze);
}

rgb_color PaintColors(int32 x, int32 y, int32 count) {
    const uint32 number = static_cast<uint32>(y * kColorsWidth + x) % static_cast<uint32>(count);
    const uint32 color = number * 0x9E3779B1U;  // odd: no two numbers share their low 24 bits
    return Color(static_cast<int32>(color & 255), static_cast<int32>(color >> 8 & 255),
                 static_cast<int32>(color >> 16 & 255));
}

}  // namespace kirto::bench
