#include "formats/faithful/tolerant_strings.h"

#include <algorithm>

#include "formats/faithful/pixel_tolerance.h"

namespace kirto {

TolerantStrings::TolerantStrings(std::span<const uint32> keys, int32 transparent, int64 tolerance,
                                 const Work& work)
    : work_(work) {
    const auto is_color = [transparent](size_t index) {
        return static_cast<int32>(index) != transparent;
    };
    for (size_t i = 0; i < keys.size(); ++i) {
        for (size_t j = 0; is_color(i) && j < keys.size(); ++j) {
            if (!is_color(j)) continue;
            const int64 distance = SquareDistance(keys[i], keys[j]);
            if (distance <= tolerance) near_[i].push_back({static_cast<uint8>(j), distance});
        }
        std::stable_sort(near_[i].begin(), near_[i].end(), [i](const Near& a, const Near& b) {
            const auto order = [i](const Near& near) {
                return std::pair(near.distance, near.index == i ? 0 : 1);
            };
            return order(a) < order(b);
        });
    }
}

std::vector<uint8> TolerantStrings::Find(const ChoiceImage& image) {
    image_ = image;
    found_.assign(image.indices.begin(), image.indices.end());
    strings_.Clear(image.min_code_size);
    last_ = kNoCode;
    size_t at = 0;
    for (size_t strings = 0; at < found_.size(); ++strings) {
        if (strings % kStringsAtOnce == 0 && work_.StopRequested()) break;
        if (strings_.Full()) {
            strings_.Clear(image.min_code_size);
            last_ = kNoCode;
        }
        const Match match = Take(at);
        Write(at, match);
        last_ = match.code;
        at += match.length;
    }
    return std::move(found_);
}

std::span<const TolerantStrings::Near> TolerantStrings::Choices(size_t pixel) {
    const uint8 index = image_.indices[pixel];
    const bool skippable = !image_.skippable.empty() && image_.skippable[pixel] != 0;
    // A transparent pixel is near no color.
    const bool transparent = index == image_.transparent && near_[index].empty();
    if (!skippable && !transparent) return near_[index];
    with_transparent_ = {{image_.transparent, 0}};
    if (!transparent)
        with_transparent_.insert(with_transparent_.end(), near_[index].begin(), near_[index].end());
    return with_transparent_;
}

// Each first index makes another string of the one before, which may be the one that is found.
TolerantStrings::Match TolerantStrings::Take(size_t from) {
    const std::span<const Near> choices = Choices(from);
    const std::vector<Near> first(
        choices.begin(),
        choices.begin() + static_cast<ptrdiff_t>(std::min(choices.size(), kMostFirst)));
    Match best;
    uint8 chosen = 0;
    for (const Near& near : first) {
        const bool offered = last_ != kNoCode && strings_.Offer(last_, near.index);
        const Match match = Longest(from, near);
        if (offered) strings_.Withdraw(last_, near.index);
        if (best.length > 0 && !match.IsBetterThan(best)) continue;
        best = match;
        chosen = near.index;
    }
    if (last_ != kNoCode) strings_.Add(last_, chosen);
    return best;
}

TolerantStrings::Match TolerantStrings::Longest(size_t from, const Near& first) {
    states_ = {{1, first.distance, first.index}};
    Match best = states_.front();
    for (size_t pixel = from + 1; pixel < image_.indices.size(); ++pixel) {
        Step(pixel);
        if (next_.empty()) break;
        states_.swap(next_);
        best = *std::min_element(
            states_.begin(), states_.end(),
            [](const Match& a, const Match& b) { return a.distance < b.distance; });
    }
    return best;
}

// Of too many strings those stay that are nearest.
void TolerantStrings::Step(size_t pixel) {
    next_.clear();
    const std::span<const Near> choices = Choices(pixel);
    for (const Match& state : states_) {
        for (const Near& near : choices) {
            const uint32 longer = strings_.Longer(state.code, near.index);
            if (longer == LzwStrings::kNone) continue;
            next_.push_back({state.length + 1, state.distance + near.distance, longer});
        }
    }
    if (next_.size() <= kMostStates) return;
    std::nth_element(next_.begin(), next_.begin() + kMostStates, next_.end(),
                     [](const Match& a, const Match& b) {
                         return std::pair(a.distance, a.code) < std::pair(b.distance, b.code);
                     });
    next_.resize(kMostStates);
}

// Where the index does as well as the transparent one, the encoder may have either.
void TolerantStrings::Write(size_t from, const Match& match) {
    uint32 code = match.code;
    for (size_t i = match.length; i > 0; --i) {
        const uint8 index = strings_.LastIndex(code);
        if (i > 1) code = strings_.Shorter(code);
        const size_t pixel = from + i - 1;
        const bool skippable = !image_.skippable.empty() && image_.skippable[pixel] != 0;
        if (!skippable || index != image_.transparent) found_[pixel] = index;
    }
}

}  // namespace kirto
