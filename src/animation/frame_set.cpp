#include "animation/frame_set.h"

#include <algorithm>

#include "base/number.h"

namespace kirto {

namespace {

std::string_view Trimmed(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::optional<int32> ParsePosition(std::string_view text, int32 frames) {
    int32 number = 0;
    if (!ParseNumber(Trimmed(text), &number)) return std::nullopt;
    if (number < 0) number += frames;
    if (number < 0 || number >= frames) return std::nullopt;
    return number;
}

// A number, "first-last" or "first-last/step".
bool AddPart(std::string_view part, int32 frames, FrameSet* set) {
    int32 step = 1;
    const size_t slash = part.find('/');
    if (slash != std::string_view::npos) {
        if (!ParseNumber(Trimmed(part.substr(slash + 1)), &step) || step < 1) return false;
        part = part.substr(0, slash);
    }
    // A sign is no dash between two numbers.
    const size_t dash = part.empty() ? std::string_view::npos : part.find('-', 1);
    const auto first = ParsePosition(part.substr(0, dash), frames);
    if (!first) return false;
    if (dash == std::string_view::npos) {
        set->Add({*first, *first});
        return slash == std::string_view::npos;
    }
    const auto last = ParsePosition(part.substr(dash + 1), frames);
    if (!last) return false;
    const auto [low, high] = std::minmax(*first, *last);
    const FrameSet positions = FrameSet::Of(low, high, step);
    for (const FrameSet::Range range : positions.Ranges())
        set->Add(range);
    return true;
}

}  // namespace

FrameSet FrameSet::Of(int32 first, int32 last, int32 step) {
    FrameSet set;
    if (last < first) return set;
    if (step == 1) {
        set.ranges_.push_back({first, last});
        return set;
    }
    for (int64 i = first; i <= last; i += step)
        set.ranges_.push_back({static_cast<int32>(i), static_cast<int32>(i)});
    return set;
}

int32 FrameSet::Count() const {
    int32 count = 0;
    for (const Range& range : ranges_)
        count += range.last - range.first + 1;
    return count;
}

bool FrameSet::Contains(int32 position) const {
    const auto after =
        std::upper_bound(ranges_.begin(), ranges_.end(), position,
                         [](int32 wanted, const Range& range) { return wanted < range.first; });
    return after != ranges_.begin() && position <= std::prev(after)->last;
}

int32 FrameSet::NearestTo(int32 position) const {
    if (Contains(position)) return position;
    const auto after =
        std::upper_bound(ranges_.begin(), ranges_.end(), position,
                         [](int32 wanted, const Range& range) { return wanted < range.first; });
    if (after == ranges_.end()) return Last();
    if (after == ranges_.begin()) return First();
    const int32 before = std::prev(after)->last;
    return after->first - position <= position - before ? after->first : before;
}

std::vector<int32> FrameSet::Positions() const {
    std::vector<int32> positions;
    positions.reserve(static_cast<size_t>(Count()));
    for (const Range& range : ranges_) {
        for (int32 i = range.first; i <= range.last; ++i)
            positions.push_back(i);
    }
    return positions;
}

void FrameSet::Add(Range range) {
    // Those that it touches become part of it.
    const auto begin = std::lower_bound(
        ranges_.begin(), ranges_.end(), range.first,
        [](const Range& each, int32 first) { return int64{each.last} + 1 < first; });
    auto end = begin;
    while (end != ranges_.end() && end->first <= int64{range.last} + 1) {
        range.first = std::min(range.first, end->first);
        range.last = std::max(range.last, end->last);
        ++end;
    }
    ranges_.insert(ranges_.erase(begin, end), range);
}

void FrameSet::Remove(Range range) {
    std::vector<Range> left;
    left.reserve(ranges_.size() + 1);
    for (const Range& each : ranges_) {
        if (each.first < range.first)
            left.push_back({each.first, std::min(each.last, range.first - 1)});
        if (each.last > range.last)
            left.push_back({std::max(each.first, range.last + 1), each.last});
    }
    ranges_ = std::move(left);
}

void FrameSet::Toggle(int32 position) {
    if (Contains(position)) {
        Remove({position, position});
    } else {
        Add({position, position});
    }
}

FrameSet FrameSet::Inverted(int32 frames) const {
    FrameSet others = AllOf(frames);
    for (const Range& range : ranges_)
        others.Remove(range);
    return others;
}

FrameSet FrameSet::Within(int32 frames) const {
    FrameSet within = *this;
    if (Last() >= frames) within.Remove({frames, Last()});
    return within;
}

std::optional<FrameSet> ParseFrameSet(std::string_view text, int32 frames) {
    text = Trimmed(text);
    if (text == "all") return FrameSet::AllOf(frames);
    FrameSet set;
    if (text == "none") return set;
    for (size_t begin = 0; begin <= text.size();) {
        const size_t comma = std::min(text.find(',', begin), text.size());
        if (!AddPart(Trimmed(text.substr(begin, comma - begin)), frames, &set)) return std::nullopt;
        begin = comma + 1;
    }
    return set;
}

std::string TextOf(const FrameSet& frames) {
    if (frames.Empty()) return "none";
    std::string text;
    for (const FrameSet::Range& range : frames.Ranges()) {
        if (!text.empty()) text += ',';
        text += std::to_string(range.first);
        if (range.last != range.first) text += '-' + std::to_string(range.last);
    }
    return text;
}

}  // namespace kirto
