#include "ui/file_panels/kirto_filter.h"

#include "app/open_animation.h"

bool KirtoFilter::Filter(const entry_ref& ref, const TypeSource& type) const {
    using kirto::AnimationType;
    if (kirto::ClassifyAnimation(ref.Leaf(), {}) != AnimationType::kNone) return true;
    const std::string entry_type = type();
    // Of these some move; a PNG that does has the type of all others, and would be one of very
    // many.
    const bool may_move = entry_type == "image/webp" || entry_type == "image/apng";
    return kirto::LeadsToFiles(entry_type) || may_move || entry_type == "image/x-gif" ||
           kirto::ClassifyAnimation({}, entry_type) != AnimationType::kNone;
}
