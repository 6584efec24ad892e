#include "formats/faithful/choice_lzw_encoder.h"

#include <algorithm>
#include <utility>

namespace kirto {

std::span<const uint8> ChoiceLzwEncoder::Encode(const Image& image, const Effort& effort,
                                                size_t most) {
    image_ = image;
    effort_ = effort;
    clear_code_ = 1U << image.min_code_size;
    empty_slot_ = clear_code_ << 20;
    bytes_.clear();
    bit_buffer_ = 0;
    bit_count_ = 0;
    code_size_ = static_cast<uint32>(image.min_code_size) + 1;
    Put(clear_code_);
    ResetTable();
    for (size_t at = 0; at < image.indices.size() && bytes_.size() <= most;) {
        if (codes_ % kStringsAtOnce == 0 && work_.StopRequested()) break;
        const Match match = Longest(at);
        if (pending_ != kNoCode && next_free_ < kMaxCodes) {
            Insert(pending_, match.first, next_free_);
            ++next_free_;
        }
        pending_ = kNoCode;
        const size_t shorter = Shortening(at, match);
        Emit(match.codes[shorter], match.length - shorter);
        at += match.length - shorter;
    }
    Put(clear_code_ + 1);
    for (; bit_count_ > 0; bit_count_ -= std::min(bit_count_, 8U), bit_buffer_ >>= 8)
        bytes_.push_back(static_cast<uint8>(bit_buffer_));
    return bytes_;
}

void ChoiceLzwEncoder::ResetTable() {
    slots_.fill(empty_slot_);
    next_free_ = clear_code_ + 2;
    code_size_ = static_cast<uint32>(image_.min_code_size) + 1;
    pending_ = kNoCode;
    codes_ = taken_ = bits_ = 0;
    window_codes_ = 0;
    window_taken_ = 0;
    worn_ = false;
}

inline size_t ChoiceLzwEncoder::Slot(uint32 string) const {
    size_t slot = (string * 0x9E3779B1U) >> (32 - kHashBits);
    while (slots_[slot] >> 12 != string && slots_[slot] != empty_slot_)
        slot = (slot + 1) % slots_.size();
    return slot;
}

// The code of the prefix with the index behind it, or kNoCode.
inline uint32 ChoiceLzwEncoder::Find(uint32 prefix, uint32 index) const {
    const uint32 found = slots_[Slot(prefix << 8 | index)];
    return found == empty_slot_ ? kNoCode : found & 0xFFF;
}

void ChoiceLzwEncoder::Insert(uint32 prefix, uint32 index, uint32 code) {
    uint32& slot = slots_[Slot(prefix << 8 | index)];
    // A string that ended early may be there already.
    if (slot == empty_slot_) slot = prefix << 20 | index << 12 | code;
}

// Of two indices that the first pixel may have, each makes another string of the last one, which
// this match may be already.
ChoiceLzwEncoder::Match ChoiceLzwEncoder::Longest(size_t from) const {
    const uint32 index = image_.indices[from];
    const Match match = LongestWith(from, index);
    if (image_.skippable.empty() || image_.skippable[from] == 0 || index == image_.transparent)
        return match;
    const Match other = LongestWith(from, image_.transparent);
    return other.length >= match.length ? other : match;
}

ChoiceLzwEncoder::Match ChoiceLzwEncoder::LongestWith(size_t from, uint32 first) const {
    if (image_.skippable.empty()) return Fixed(from, first);
    std::array<States, 2> states;
    states[0].codes[0] = first;
    states[0].count = 1;
    Trail trail;
    const size_t end = image_.indices.size();
    size_t at = from + 1;
    for (size_t now = 0;; now ^= 1, ++at) {
        trail.codes[at % trail.codes.size()] = states[now].codes[0];
        if (at == end) break;
        States& next = states[now ^ 1];
        if (states[now].count == 1 && image_.skippable[at] == 0) {
            next.codes[0] = Find(states[now].codes[0], image_.indices[at]);
            next.count = next.codes[0] == kNoCode ? 0 : 1;
        } else {
            Step(at, states[now], &next);
        }
        if (next.count > 0) continue;
        if (!Grows(states[now], at, first)) break;
        next.codes[0] = next_free_;
        next.count = 1;
    }
    return MatchOf(from, at, first, trail);
}

ChoiceLzwEncoder::Match ChoiceLzwEncoder::MatchOf(size_t from, size_t at, uint32 first,
                                                  const Trail& trail) {
    Match match;
    match.length = at - from;
    match.first = first;
    for (size_t i = 0; i < match.codes.size() && i < match.length; ++i)
        match.codes[i] = trail.codes[(at - i) % trail.codes.size()];
    return match;
}

// Whether the last string, with the first index of this one behind it, goes on there.
bool ChoiceLzwEncoder::Grows(const States& states, size_t at, uint32 first) const {
    if (pending_ == kNoCode || next_free_ == kMaxCodes) return false;
    const bool skips = image_.skippable[at] != 0 && first == image_.transparent;
    if (image_.indices[at] != first && !skips) return false;
    return std::find(states.codes.begin(), states.codes.begin() + states.count, pending_) !=
           states.codes.begin() + states.count;
}

// The same where there is nothing to choose.
ChoiceLzwEncoder::Match ChoiceLzwEncoder::Fixed(size_t from, uint32 first) const {
    const uint8* const indices = image_.indices.data();
    const size_t end = image_.indices.size();
    Trail trail;
    uint32 code = first;
    size_t at = from + 1;
    for (;; ++at) {
        trail.codes[at % trail.codes.size()] = code;
        if (at == end) break;
        uint32 next = Find(code, indices[at]);
        const bool grows = code == pending_ && next_free_ < kMaxCodes;
        if (next == kNoCode && grows && indices[at] == first) next = next_free_;
        if (next == kNoCode) break;
        code = next;
    }
    return MatchOf(from, at, first, trail);
}

inline void ChoiceLzwEncoder::Step(size_t at, const States& states, States* next) const {
    const uint32 index = image_.indices[at];
    const uint32 other = image_.skippable[at] != 0 ? image_.transparent : index;
    size_t count = 0;
    for (size_t i = 0; i < states.count; ++i) {
        const uint32 skipped = Find(states.codes[i], other);
        if (skipped != kNoCode) next->codes[count++] = skipped;
        if (other == index) continue;
        const uint32 drawn = Find(states.codes[i], index);
        if (drawn != kNoCode) next->codes[count++] = drawn;
    }
    next->count = std::min(count, kMostStates);
}

size_t ChoiceLzwEncoder::Shortening(size_t from, const Match& match) const {
    const size_t end = image_.indices.size();
    size_t best = 0;
    if (from + match.length == end || effort_.shorter == 0) return best;
    size_t reached = 0;
    for (size_t i = 0; i <= effort_.shorter && i < match.length; ++i) {
        const size_t next = from + match.length - i;
        const size_t here = next + Longest(next).length;
        if (here <= reached) continue;
        reached = here;
        best = i;
    }
    return best;
}

void ChoiceLzwEncoder::Emit(uint32 code, size_t length) {
    Put(code);
    ++codes_;
    taken_ += length;
    ++window_codes_;
    window_taken_ += length;
    pending_ = code;
    if (window_codes_ == kWindow) TakeWindow();
    if (next_free_ < kMaxCodes) {
        if (next_free_ >> code_size_ != 0) ++code_size_;
        return;
    }
    if (effort_.keeps_full_table && !worn_) return;
    Put(clear_code_);
    ResetTable();
}

// Whether the strings that the table finds now are worse than those since it was empty.
void ChoiceLzwEncoder::TakeWindow() {
    worn_ = uint64{kMaxCodeSize} * kWindow * taken_ > bits_ * window_taken_;
    window_codes_ = 0;
    window_taken_ = 0;
}

// Least significant bit first.
inline void ChoiceLzwEncoder::Put(uint32 code) {
    bit_buffer_ |= uint64{code} << bit_count_;
    bit_count_ += code_size_;
    bits_ += code_size_;
    for (; bit_count_ >= 8; bit_count_ -= 8, bit_buffer_ >>= 8)
        bytes_.push_back(static_cast<uint8>(bit_buffer_));
}

}  // namespace kirto
