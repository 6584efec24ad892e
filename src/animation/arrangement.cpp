#include "animation/arrangement.h"

#include <algorithm>
#include <utility>

#include "animation/frame_comparison.h"

namespace kirto {

namespace {

using FrameList = std::vector<FramePointer>;

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

FrameList SelectedCopies(const Animation& animation) {
    FrameList copies = SelectedFrames(animation);
    std::transform(copies.begin(), copies.end(), copies.begin(), CopyOf);
    return copies;
}

// The selected frames, or all where that is the current one alone.
FrameSet SelectionOrAll(const Animation& animation) {
    return animation.several.Empty() ? FrameSet::AllOf(animation.frames.Size()) : animation.several;
}

int32 CountBefore(const FrameSet& frames, int32 position) {
    return frames.Within(position).Count();
}

void Select(Animation& animation, FrameSet frames, int32 current) {
    animation.selected = frames.NearestTo(current);
    animation.several = frames.Count() > 1 ? std::move(frames) : FrameSet();
}

void Remove(FrameSequence& frames, const FrameSet& removed) {
    const std::vector<int32> positions = removed.Positions();
    std::for_each(positions.rbegin(), positions.rend(), [&](int32 i) { frames.Remove(i); });
}

// Inserts the frames, one or more, and selects them; current: the number of the current one among
// them.
void Put(Animation& animation, int32 position, const FrameList& frames, int32 current) {
    int32 next = position;
    for (const FramePointer& frame : frames)
        animation.frames.Insert(next++, frame);
    Select(animation, FrameSet::Of(position, next - 1), position + current);
}

// Removes the frames, whose first is not that of the list, and gives their time to those before.
void Merge(Animation& animation, const FrameSet& removed) {
    int32 left = 0;
    double longer = 0;
    for (const int32 i : removed.Positions()) {
        // What several frames in a row have goes to the one before all of them.
        if (!removed.Contains(i - 1)) {
            left = i - 1;
            longer = animation.PauseOf(*animation.frames.At(left));
        }
        longer += animation.PauseOf(*animation.frames.At(i));
        if (removed.Contains(i + 1) || longer == animation.PauseOf(*animation.frames.At(left)))
            continue;
        EditFrame(animation, left, [longer](Frame& frame) {
            frame.use_pause = true;
            frame.pause_length = longer;
        });
    }
    // The last that is left up to the current one.
    animation.selected -= CountBefore(removed, animation.selected + 1);
    animation.several = {};
    Remove(animation.frames, removed);
}

}  // namespace

bool RemoveSelected(Animation& animation) {
    const FrameSet removed = animation.Selection();
    if (removed.Empty()) return false;
    Remove(animation.frames, removed);
    const int32 current = animation.selected - CountBefore(removed, animation.selected);
    animation.selected = std::min(current, animation.frames.Size() - 1);
    animation.several = {};
    return true;
}

bool MoveSelected(Animation& animation, bool up) {
    FrameSet moved;
    std::vector<int32> positions = animation.Selection().Positions();
    if (!up) std::reverse(positions.begin(), positions.end());
    int32 current = animation.selected;
    bool changed = false;
    for (const int32 from : positions) {
        const int32 to = from + (up ? -1 : 1);
        const bool free = to >= 0 && to < animation.frames.Size() && !moved.Contains(to);
        moved.Add(free ? FrameSet::Range{to, to} : FrameSet::Range{from, from});
        if (!free) continue;
        animation.frames.Swap(from, to);
        if (from == animation.selected) current = to;
        changed = true;
    }
    if (changed) Select(animation, std::move(moved), current);
    return changed;
}

bool MoveSelectedTo(Animation& animation, int32 position) {
    const FrameSet moved = animation.Selection();
    if (moved.Empty() || position < 0 || position > animation.frames.Size()) return false;
    const int32 target = position - CountBefore(moved, position);
    const bool in_place = moved.Ranges().size() == 1 && moved.First() == target;
    if (in_place) return false;
    const FrameList frames = SelectedFrames(animation);
    Remove(animation.frames, moved);
    Put(animation, target, frames, CountBefore(moved, animation.selected));
    return true;
}

bool CopySelectedTo(Animation& animation, int32 position) {
    if (animation.frames.Empty() || position < 0 || position > animation.frames.Size())
        return false;
    Put(animation, position, SelectedCopies(animation),
        CountBefore(animation.Selection(), animation.selected));
    return true;
}

bool InsertCopies(Animation& animation, int32 position, const std::vector<FramePointer>& frames) {
    if (frames.empty()) return false;
    FrameList copies = frames;
    std::transform(copies.begin(), copies.end(), copies.begin(), CopyOf);
    Put(animation, std::clamp(position, 0, animation.frames.Size()), copies, 0);
    return true;
}

bool ReverseSelected(Animation& animation) {
    if (animation.frames.Size() <= 1) return false;
    if (animation.several.Empty()) {
        animation.frames.Reverse();
        return true;
    }
    const std::vector<int32> positions = animation.several.Positions();
    for (size_t i = 0, j = positions.size() - 1; i < j; ++i, --j)
        animation.frames.Swap(positions[i], positions[j]);
    return true;
}

bool PlayForwardAndBack(Animation& animation) {
    FrameSet played = SelectionOrAll(animation);
    const std::vector<int32> positions = played.Positions();
    if (positions.size() < 3) return false;
    const int32 after = positions.back() + 1;
    int32 next = after;
    for (size_t i = positions.size() - 2; i > 0; --i)
        animation.frames.Insert(next++, CopyOf(animation.frames.At(positions[i])));
    played.Add({after, next - 1});
    Select(animation, std::move(played), animation.selected);
    return true;
}

bool StartAtCurrent(Animation& animation) {
    if (animation.selected < 1) return false;
    for (int32 i = 0; i < animation.selected; ++i) {
        animation.frames.Insert(animation.frames.Size(), animation.frames.At(0));
        animation.frames.Remove(0);
    }
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
