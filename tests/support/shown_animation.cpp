#include "support/shown_animation.h"

#include <algorithm>

namespace kirto::test {

namespace {

constexpr size_t kMostColors = 256;

uint32 SeenPixel(const uint8* pixel, bool big_endian, const ShownAlpha& how) {
    const size_t alpha_at = big_endian ? 0 : 3;
    const int32 alpha = pixel[alpha_at];
    if (alpha < how.threshold) return 0;
    uint32 seen = 0xFF;
    for (size_t i = 0; i < 3; ++i) {
        const int32 part = pixel[big_endian ? i + 1 : 2 - i];
        const auto below = static_cast<int32>(how.matte >> (16 - 8 * i) & 0xFF);
        seen = seen << 8 | static_cast<uint32>((part * alpha + below * (255 - alpha) + 127) / 255);
    }
    return seen;
}

ShownPixels Shown(const Animation& animation, const Frame& frame, const ShownAlpha& how) {
    ShownPixels pixels(static_cast<size_t>(animation.width * animation.height), 0);
    if (!frame.bitmap || !frame.bitmap->HasRows()) return pixels;
    const bool big_endian = IsBigEndian(frame.bitmap->ColorSpace());
    const int32 columns = std::min(frame.width, animation.width - frame.x_offset);
    std::vector<uint8> row(static_cast<size_t>(frame.bitmap->Width()) * 4);
    for (int32 y = 0; y < frame.height && y + frame.y_offset < animation.height; ++y) {
        frame.bitmap->ReadRow(y, row.data());
        const int32 start = (y + frame.y_offset) * animation.width + frame.x_offset;
        for (int32 x = 0; x < columns; ++x) {
            pixels[static_cast<size_t>(start + x)] =
                SeenPixel(row.data() + size_t{4} * static_cast<size_t>(x), big_endian, how);
        }
    }
    return pixels;
}

size_t CountDifferent(std::vector<uint32> pixels) {
    std::sort(pixels.begin(), pixels.end());
    return static_cast<size_t>(std::unique(pixels.begin(), pixels.end()) - pixels.begin());
}

bool IsPromised(const ShownPixels& pixels, const ShownFrame* before) {
    if (CountDifferent(pixels) <= kMostColors) return true;
    if (before && !before->promised) return false;
    std::vector<uint32> drawn;
    for (size_t i = 0; i < pixels.size(); ++i) {
        const uint32 below = before ? before->pixels[i] : 0;
        if (pixels[i] == below) continue;
        if (pixels[i] == 0) return false;
        drawn.push_back(pixels[i]);
    }
    return CountDifferent(drawn) < kMostColors;
}

int32 PauseOf(const Animation& animation, const Frame& frame) {
    if (frame.use_pause) return static_cast<int32>(frame.pause_length);
    return animation.use_pause ? static_cast<int32>(animation.pause_length) : 0;
}

// Makes the screens of a document, one from the other.
class SceneMaker {
  public:
    SceneMaker(ChoiceSource& choices, int32 max_side)
        : choices_(choices),
          width_(choices.Between(1, max_side)),
          height_(choices.Between(1, max_side)),
          has_holes_(choices.OneIn(2)) {
        static constexpr int32 kFew[] = {1, 2, 5, 16, 60, 200, 255, 256};
        static constexpr int32 kMany[] = {257, 300, 1000, 5000};
        const int32 count = choices.OneIn(8) ? kMany[choices.Below(4)] : kFew[choices.Below(8)];
        for (int32 left = count; left > 0; --left)
            colors_.push_back(choices.Below(1 << 24) | 0xFF000000);
        screen_.assign(static_cast<size_t>(width_ * height_), has_holes_ ? 0 : colors_[0]);
    }

    void Fill(AnimationDocument& document) {
        document.Change([&](Animation& animation) {
            animation.width = width_;
            animation.height = height_;
            animation.use_loop = choices_.OneIn(2);
            animation.loop_count = choices_.Between(0, 9);
            animation.use_pause = choices_.OneIn(2);
            animation.pause_length = choices_.Between(0, 9);
        });
        const int32 count = choices_.Between(1, 8);
        for (int32 i = 0; i < count; ++i) {
            for (int32 changes = choices_.Between(0, 3); changes > 0; --changes)
                Change();
            document.InsertFrame(i, MakeFrame());
        }
    }

  private:
    uint32 AnyPixel() {
        if (has_holes_ && choices_.OneIn(6)) return choices_.Below(256) << 24;
        const uint32 color = colors_[choices_.Below(static_cast<uint32>(colors_.size()))];
        return has_holes_ && choices_.OneIn(40) ? color & 0xC0FFFFFF : color;
    }

    void Change() {
        const int32 left = choices_.Between(0, width_ - 1);
        const int32 top = choices_.Between(0, height_ - 1);
        const bool whole = choices_.OneIn(4);
        const int32 right = whole ? width_ : choices_.Between(left + 1, width_);
        const int32 bottom = whole ? height_ : choices_.Between(top + 1, height_);
        const bool noise = choices_.OneIn(2);
        uint32 pixel = AnyPixel();
        for (int32 y = whole ? 0 : top; y < bottom; ++y) {
            for (int32 x = whole ? 0 : left; x < right; ++x) {
                if (noise) pixel = AnyPixel();
                screen_[static_cast<size_t>(y * width_ + x)] = pixel;
            }
        }
    }

    // All of the screen, or a part of it.
    Frame MakeFrame() {
        const bool part = choices_.OneIn(5);
        const int32 left = part ? choices_.Between(0, width_ - 1) : 0;
        const int32 top = part ? choices_.Between(0, height_ - 1) : 0;
        const int32 width = part ? choices_.Between(1, width_ - left) : width_;
        const int32 height = part ? choices_.Between(1, height_ - top) : height_;
        std::vector<uint32> argb;
        for (int32 y = top; y < top + height; ++y) {
            for (int32 x = left; x < left + width; ++x)
                argb.push_back(screen_[static_cast<size_t>(y * width_ + x)]);
        }
        Frame frame("scene", width, height);
        static constexpr color_space kSpaces[] = {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG};
        frame.bitmap = FramePictureOf(width, height, argb, kSpaces[choices_.Below(4)]);
        frame.x_offset = left;
        frame.y_offset = top;
        frame.use_pause = choices_.OneIn(2);
        frame.pause_length = choices_.OneIn(9) ? 40000 : choices_.Between(0, 12);
        return frame;
    }

    ChoiceSource& choices_;
    const int32 width_;
    const int32 height_;
    const bool has_holes_;
    std::vector<uint32> colors_;
    ShownPixels screen_;
};

}  // namespace

std::vector<ShownFrame> ShownFrames(const Animation& animation, const ShownAlpha& how) {
    std::vector<ShownFrame> frames;
    for (const FramePointer& frame : animation.frames) {
        ShownFrame shown;
        shown.pixels = Shown(animation, *frame, how);
        shown.delay = PauseOf(animation, *frame);
        ShownFrame* const last = frames.empty() ? nullptr : &frames.back();
        shown.promised = IsPromised(shown.pixels, last);
        if (last && last->pixels == shown.pixels && std::min(last->delay, shown.delay) >= 2 &&
            last->delay + shown.delay <= 65535) {
            last->delay += shown.delay;
        } else {
            frames.push_back(std::move(shown));
        }
    }
    return frames;
}

void FillWithScenes(ChoiceSource& choices, int32 max_side, AnimationDocument& document) {
    SceneMaker(choices, max_side).Fill(document);
}

}  // namespace kirto::test
