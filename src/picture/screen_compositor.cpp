#include "picture/screen_compositor.h"

namespace kirto {

namespace {

constexpr uint32 kTransparent = 0;

}  // namespace

ScreenCompositor::ScreenCompositor(int32 width, int32 height, std::shared_ptr<PixelBudget> budget)
    : painter_(std::move(budget)),
      // It lasts until it is painted over.
      base_(Picture::Solid(kTransparent, width, height, B_RGB32, nullptr)),
      shown_(base_) {}

std::shared_ptr<const Picture> ScreenCompositor::Draw(const IndexImage& image, Disposal disposal) {
    std::shared_ptr<const Picture> base = Disposed();
    if (!base) return nullptr;
    std::shared_ptr<const Picture> shown = painter_.Paint(base, image);
    if (!shown) return nullptr;
    base_ = std::move(base);
    shown_ = std::move(shown);
    last_ = {image.left, image.top, image.width, image.height};
    disposal_ = disposal;
    return shown_;
}

// What is left of the screen for the next image.
std::shared_ptr<const Picture> ScreenCompositor::Disposed() {
    switch (disposal_) {
        case Disposal::kBackground:
            return painter_.Fill(shown_, last_, kTransparent);
        case Disposal::kPrevious:
            return base_;
        case Disposal::kNone:
        case Disposal::kKeep:
            break;
    }
    return shown_;
}

}  // namespace kirto
