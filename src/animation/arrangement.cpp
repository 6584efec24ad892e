#include "animation/arrangement.h"

#include <algorithm>
#include <utility>

#include "animation/frame_comparison.h"

namespace kirto {

namespace {

using FrameList = std::vector<FramePointer>;

FrameList ListOf(const FrameSequence& frames) {
    return {frames.begin(), frames.end()};
}

FramePointer CopyOf(const FramePointer& frame) {
    auto copy = std::make_shared<Frame>(*frame);
    copy->id = Frame().id;
    return copy;
}

FrameList SelectedFrames(const Animation& animation) {
    FrameList frames;
    for (const int32 i : animation.Selection().Positions())
        frames.push_back(animation.frames.At(i));
    return frames;
}

// The selected frames, or all where that is the current one alone.
FrameSet SelectionOrAll(const Animation& animation) {
    return animation.several.Empty() ? FrameSet::AllOf(animation.frames.Size()) : animation.several;
}

void Select(Animation& animation, FrameSet frames, int32 current) {
    animation.selected = frames.NearestTo(current);
    animation.several = frames.Count() > 1 ? std::move(frames) : FrameSet();
}

// Takes the frames out of the list. Returns what is left.
FrameList Without(const FrameSequence& frames, const FrameSet& removed) {
    FrameList left;
    int32 position = 0;
    for (const FramePointer& frame : frames) {
        if (!removed.Contains(position++)) left.push_back(frame);
    }
    return left;
}

int32 CountBefore(const FrameSet& frames, int32 position) {
    return frames.Within(position).Count();
}

void Put(Animation& animation, FrameList list, int32 position, const FrameList& frames,
         int32 current) {
    list.insert(list.begin() + position, frames.begin(), frames.end());
    animation.frames = FrameSequence(list);
    const auto count = static_cast<int32>(frames.size());
    Select(animation, FrameSet::Of(position, position + count - 1), position + current);
}

// Removes the frames, whose first is not that of the list, and gives their time to those before.
void Merge(Animation& animation, const FrameSet& removed) {
    FrameList left;
    int32 position = 0;
    for (const FramePointer& frame : animation.frames) {
        if (!removed.Contains(position++)) {
            left.push_back(frame);
            continue;
        }
        const double pause = animation.PauseOf(*frame);
        if (!(pause > 0)) continue;
        auto longer = std::make_shared<Frame>(*left.back());
        longer->pause_length = animation.PauseOf(*longer) + pause;
        longer->use_pause = true;
        left.back() = std::move(longer);
    }
    // The last that is left up to the current one.
    const int32 current = animation.selected - CountBefore(removed, animation.selected + 1);
    animation.frames = FrameSequence(left);
    animation.selected = std::max(current, 0);
    animation.several = {};
}

}  // namespace

bool RemoveSelected(Animation& animation) {
    const FrameSet removed = animation.Selection();
    if (removed.Empty()) return false;
    const int32 current = animation.selected - CountBefore(removed, animation.selected);
    animation.frames = FrameSequence(Without(animation.frames, removed));
    animation.selected = std::min(current, animation.frames.Size() - 1);
    animation.several = {};
    return true;
}

bool MoveSelected(Animation& animation, bool up) {
    const int32 step = up ? -1 : 1;
    FrameSet moved;
    FrameList list = ListOf(animation.frames);
    std::vector<int32> positions = animation.Selection().Positions();
    if (!up) std::reverse(positions.begin(), positions.end());
    int32 current = animation.selected;
    bool changed = false;
    for (const int32 from : positions) {
        const int32 to = from + step;
        const bool free = to >= 0 && to < animation.frames.Size() && !moved.Contains(to);
        moved.Add(free ? FrameSet::Range{to, to} : FrameSet::Range{from, from});
        if (!free) continue;
        std::swap(list[static_cast<size_t>(from)], list[static_cast<size_t>(to)]);
        if (from == animation.selected) current = to;
        changed = true;
    }
    if (!changed) return false;
    animation.frames = FrameSequence(list);
    Select(animation, std::move(moved), current);
    return true;
}

bool MoveSelectedTo(Animation& animation, int32 position) {
    const FrameSet moved = animation.Selection();
    if (moved.Empty() || position < 0 || position > animation.frames.Size()) return false;
    const int32 target = position - CountBefore(moved, position);
    const bool in_place = moved.Ranges().size() == 1 && moved.First() == target;
    if (in_place) return false;
    Put(animation, Without(animation.frames, moved), target, SelectedFrames(animation),
        CountBefore(moved, animation.selected));
    return true;
}

bool CopySelectedTo(Animation& animation, int32 position) {
    if (animation.frames.Empty() || position < 0 || position > animation.frames.Size())
        return false;
    FrameList copies = SelectedFrames(animation);
    std::transform(copies.begin(), copies.end(), copies.begin(), CopyOf);
    Put(animation, ListOf(animation.frames), position, copies,
        CountBefore(animation.Selection(), animation.selected));
    return true;
}

bool InsertCopies(Animation& animation, int32 position, const std::vector<FramePointer>& frames) {
    if (frames.empty()) return false;
    FrameList copies = frames;
    std::transform(copies.begin(), copies.end(), copies.begin(), CopyOf);
    Put(animation, ListOf(animation.frames), std::clamp(position, 0, animation.frames.Size()),
        copies, 0);
    return true;
}

bool ReverseSelected(Animation& animation) {
    const std::vector<int32> positions = SelectionOrAll(animation).Positions();
    if (positions.size() < 2) return false;
    FrameList list = ListOf(animation.frames);
    for (size_t i = 0, j = positions.size() - 1; i < j; ++i, --j)
        std::swap(list[static_cast<size_t>(positions[i])], list[static_cast<size_t>(positions[j])]);
    animation.frames = FrameSequence(list);
    return true;
}

bool PlayForwardAndBack(Animation& animation) {
    const std::vector<int32> positions = SelectionOrAll(animation).Positions();
    if (positions.size() < 3) return false;
    FrameList list = ListOf(animation.frames);
    FrameList back;
    for (size_t i = positions.size() - 2; i > 0; --i)
        back.push_back(CopyOf(list[static_cast<size_t>(positions[i])]));
    const int32 after = positions.back() + 1;
    list.insert(list.begin() + after, back.begin(), back.end());
    FrameSet played = SelectionOrAll(animation);
    played.Add({after, after + static_cast<int32>(back.size()) - 1});
    animation.frames = FrameSequence(list);
    Select(animation, std::move(played), animation.selected);
    return true;
}

bool StartAtCurrent(Animation& animation) {
    if (animation.selected < 1) return false;
    FrameList list = ListOf(animation.frames);
    std::rotate(list.begin(), list.begin() + animation.selected, list.end());
    animation.frames = FrameSequence(list);
    animation.selected = 0;
    animation.several = {};
    return true;
}

bool DropEveryNth(Animation& animation, int32 n) {
    if (n < 2) return false;
    const std::vector<int32> positions = SelectionOrAll(animation).Positions();
    FrameSet dropped;
    for (size_t i = static_cast<size_t>(n) - 1; i < positions.size(); i += static_cast<size_t>(n))
        dropped.Add({positions[i], positions[i]});
    if (dropped.Empty()) return false;
    Merge(animation, dropped);
    return true;
}

bool RemoveDuplicates(Animation& animation, int32 tolerance, const Work* work) {
    FrameSet duplicates;
    FramePointer last;
    int32 before = -2;
    for (const int32 i : SelectionOrAll(animation).Positions()) {
        if (IsStopped(work)) return false;
        const FramePointer frame = animation.frames.At(i);
        // Only neighbors are shown one after the other.
        const bool follows = i == std::exchange(before, i) + 1;
        if (follows && ShowNearlyTheSame(*last, *frame, tolerance)) {
            duplicates.Add({i, i});
        } else {
            last = frame;
        }
    }
    if (duplicates.Empty()) return false;
    Merge(animation, duplicates);
    return true;
}

}  // namespace kirto
