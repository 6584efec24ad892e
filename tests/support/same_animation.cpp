#include "support/same_animation.h"

#include <algorithm>
#include <cstring>

namespace kirto::test {

bool SamePicture(const Picture& a, const Picture& b) {
    if (a.Width() != b.Width() || a.Height() != b.Height() || a.ColorSpace() != b.ColorSpace())
        return false;
    const auto one = a.ToBitmap();
    const auto other = b.ToBitmap();
    return std::equal(one->Bits(), one->Bits() + one->BitsLength(), other->Bits());
}

namespace {

// Also for numbers that are none.
bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof(a)) == 0;
}

bool SameFields(const Frame& a, const Frame& b) {
    return a.name == b.name && a.width == b.width && a.height == b.height &&
           a.x_offset == b.x_offset && a.y_offset == b.y_offset &&
           SameBits(a.pause_length, b.pause_length) && a.use_pause == b.use_pause &&
           a.local_palette == b.local_palette;
}

bool SameFields(const Animation& a, const Animation& b) {
    return a.width == b.width && a.height == b.height && a.loop_count == b.loop_count &&
           a.use_loop == b.use_loop && a.use_pause == b.use_pause &&
           SameBits(a.pause_length, b.pause_length) && a.selected == b.selected &&
           a.frames.Size() == b.frames.Size();
}

}  // namespace

testing::AssertionResult SameAnimation(const Animation& a, const Animation& b) {
    if (!SameFields(a, b)) return testing::AssertionFailure() << "the fields differ";
    if (*a.palette != *b.palette) return testing::AssertionFailure() << "the palettes differ";
    for (int32 i = 0; i < a.frames.Size(); ++i) {
        const Frame& one = *a.frames.At(i);
        const Frame& other = *b.frames.At(i);
        const char* difference = nullptr;
        if (!SameFields(one, other)) difference = "fields";
        if (*one.palette != *other.palette) difference = "palettes";
        if (!SamePicture(*one.bitmap, *other.bitmap)) difference = "pictures";
        if (difference) {
            return testing::AssertionFailure()
                   << "frame " << i << ": the " << difference << " differ";
        }
    }
    return testing::AssertionSuccess();
}

}  // namespace kirto::test
