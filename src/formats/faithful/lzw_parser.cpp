#include "formats/faithful/lzw_parser.h"

#include <algorithm>
#include <cstring>

namespace kirto {

namespace {

// Whether as many bytes as a leap has steps have that value.
inline bool LeapOf(const uint8* bytes, uint8 value) {
    static_assert(LzwStrings::kLeap == 2 * sizeof(uint64));
    uint64 halves[2];
    std::memcpy(halves, bytes, sizeof(halves));
    const uint64 all = uint64{0x0101010101010101} * value;
    return halves[0] == all && halves[1] == all;
}

}  // namespace

void LzwParser::Start(const ChoiceImage& image, size_t shorter, size_t from) {
    image_ = image;
    shorter_ = shorter;
    at_ = from;
    bits_ = 0;
    code_size_ = static_cast<uint32>(image.min_code_size) + 1;
    last_code_size_ = code_size_;
    pending_ = kNoCode;
    ahead_ = {};
    strings_.Clear(image.min_code_size);
}

LzwParser::Code LzwParser::Take() {
    const Match match = Next();
    const size_t shorter = shorter_ > 0 ? Shortening(match) : 0;
    uint32 code = match.code;
    for (size_t i = 0; i < shorter; ++i)
        code = strings_.Shorter(code);
    pending_ = code;
    pending_length_ = match.length - shorter;
    at_ += pending_length_;
    const Code taken{static_cast<uint16>(code), static_cast<uint16>(code_size_)};
    bits_ += code_size_;
    last_code_size_ = code_size_;
    if (!Full() && strings_.NextFree() >> code_size_ != 0) ++code_size_;
    return taken;
}

LzwParser::Match LzwParser::Next() {
    Match match;
    if (pending_ == kNoCode || Full()) {
        match = ahead_.length > 0 ? ahead_ : Longest(at_);
        ahead_ = {};
        return match;
    }
    if (Fits(ahead_)) {
        match = ahead_;
        strings_.Add(pending_, match.first);
    } else if (HasChoice(at_)) {
        match = Offered(at_, image_.indices[at_]);
        const Match other = Offered(at_, image_.transparent);
        if (other.length >= match.length) match = other;
        strings_.Add(pending_, match.first);
    } else {
        strings_.Add(pending_, image_.indices[at_]);
        match = Longest(at_);
    }
    ahead_ = {};
    return match;
}

// Whether the string that has got its code since could not have made it longer.
bool LzwParser::Fits(const Match& ahead) const {
    return ahead.length > 0 && ahead.length != pending_length_;
}

// Of two indices that the first pixel may have, each makes another string of the last one, which
// this match may be already.
LzwParser::Match LzwParser::Offered(size_t from, uint32 first) {
    const bool offered = strings_.Offer(pending_, first);
    const Match match = LongestWith(from, first);
    if (offered) strings_.Withdraw(pending_, first);
    return match;
}

LzwParser::Match LzwParser::Longest(size_t from) const {
    if (image_.skippable.empty()) return Fixed(from);
    const Match match = LongestWith(from, image_.indices[from]);
    if (!HasChoice(from)) return match;
    const Match other = LongestWith(from, image_.transparent);
    return other.length >= match.length ? other : match;
}

LzwParser::Match LzwParser::LongestWith(size_t from, uint32 first) const {
    std::array<States, 2> states;
    states[0].codes[0] = first;
    states[0].count = 1;
    const size_t end = image_.indices.size();
    size_t at = from + 1;
    size_t now = 0;
    for (; at < end; now ^= 1) {
        States& next = states[now ^ 1];
        if (Leap(at, states[now], &next)) {
            at += LzwStrings::kLeap;
            continue;
        }
        if (states[now].count == 1 && image_.skippable[at] == 0) {
            next.codes[0] = strings_.Longer(states[now].codes[0], image_.indices[at]);
            next.count = next.codes[0] == LzwStrings::kNone ? 0 : 1;
        } else {
            Step(at, states[now], &next);
        }
        if (next.count == 0) break;
        ++at;
    }
    return {at - from, first, states[now].codes[0]};
}

// The same where there is nothing to choose.
LzwParser::Match LzwParser::Fixed(size_t from) const {
    const uint8* const indices = image_.indices.data();
    const size_t end = image_.indices.size();
    const uint32 first = indices[from];
    uint32 code = first;
    size_t at = from + 1;
    while (at < end) {
        const uint32 leap = strings_.Leap(code);
        if (leap != LzwStrings::kNone && end - at >= LzwStrings::kLeap &&
            LeapOf(indices + at, indices[at - 1])) {
            code = leap;
            at += LzwStrings::kLeap;
            continue;
        }
        const uint32 next = strings_.Longer(code, indices[at]);
        if (next == LzwStrings::kNone) break;
        code = next;
        ++at;
    }
    return {at - from, first, code};
}

// Through many pixels that may all be skipped, or that are all the same.
inline bool LzwParser::Leap(size_t at, const States& states, States* next) const {
    const uint32 leap = strings_.Leap(states.codes[0]);
    if (leap == LzwStrings::kNone || image_.indices.size() - at < LzwStrings::kLeap) return false;
    const uint8 last = strings_.LastIndex(leap);
    const bool skips = last == image_.transparent && LeapOf(&image_.skippable[at], 1);
    if (!skips && !LeapOf(&image_.indices[at], last)) return false;
    next->codes[0] = leap;
    next->count = 1;
    return true;
}

inline void LzwParser::Step(size_t at, const States& states, States* next) const {
    const uint32 index = image_.indices[at];
    const uint32 other = image_.skippable[at] != 0 ? image_.transparent : index;
    size_t count = 0;
    for (size_t i = 0; i < states.count; ++i) {
        const uint32 skipped = strings_.Longer(states.codes[i], other);
        if (skipped != LzwStrings::kNone) next->codes[count++] = skipped;
        if (other == index) continue;
        const uint32 drawn = strings_.Longer(states.codes[i], index);
        if (drawn != LzwStrings::kNone) next->codes[count++] = drawn;
    }
    next->count = std::min(count, kMostStates);
}

size_t LzwParser::Shortening(const Match& match) {
    const size_t end = at_ + match.length;
    if (end == image_.indices.size()) return 0;
    size_t best = 0;
    size_t reached = 0;
    for (size_t i = 0; i <= shorter_ && i < match.length; ++i) {
        const Match next = Longest(end - i);
        if (end - i + next.length <= reached) continue;
        reached = end - i + next.length;
        ahead_ = next;
        best = i;
    }
    return best;
}

}  // namespace kirto
