#include "effects/pictures/share_strips.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kirto {

namespace {

bool SameKind(const Strip& a, const Strip& b) {
    return !a.Pixels() == !b.Pixels() && !a.Indices() == !b.Indices();
}

bool SameRows(const Strip& a, const Strip& b, int32 width) {
    if (a.Rows() != b.Rows() || !SameKind(a, b)) return false;
    const size_t size = static_cast<size_t>(width) * static_cast<size_t>(a.Rows());
    if (a.Pixels()) return std::memcmp(a.Pixels(), b.Pixels(), size * 4) == 0;
    if (!a.Indices()) return a.Row(0).solid == b.Row(0).solid;
    return (a.Table() == b.Table() || *a.Table() == *b.Table()) &&
           std::memcmp(a.Indices(), b.Indices(), size) == 0;
}

}  // namespace

std::shared_ptr<const Picture> ShareStrips(std::shared_ptr<const Picture> picture,
                                           const Picture& other,
                                           const std::shared_ptr<PixelBudget>& budget) {
    if (picture->Width() != other.Width() || picture->ColorSpace() != other.ColorSpace())
        return picture;
    Picture::Strips strips = picture->AllStrips();
    bool shared = false;
    for (size_t i = 0; i < strips.size(); ++i) {
        const int32 row = picture->FirstRows()[i];
        if (row >= other.Height()) break;
        const size_t place = other.StripAt(row);
        const std::shared_ptr<const Strip>& candidate = other.AllStrips()[place];
        if (other.FirstRows()[place] != row || candidate == strips[i]) continue;
        if (!SameRows(*strips[i], *candidate, picture->Width())) continue;
        strips[i] = candidate;
        shared = true;
    }
    if (!shared) return picture;
    return Picture::Of(std::move(strips), picture->Width(), picture->ColorSpace(), budget);
}

}  // namespace kirto
