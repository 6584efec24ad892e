#include "app/saved_size.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>
#include <vector>

#include "app/save_animation.h"
#include "base/debug_line.h"
#include "formats/faithful/faithful_gif_save.h"
#include "formats/gif/gif_save.h"
#include "kit/file.h"

namespace kirto {

namespace {

// Long enough that the frame before each run, which is encoded for nothing, does not cost too much.
constexpr int32 kRun = 3;
// Nothing is to be read for a document that is filled at once.
Prefs WithoutPaletteFile(const Prefs& settings) {
    Prefs copy = settings;
    copy.palette_mapping = kPaletteWebSafe;
    return copy;
}

// All numbers below the count: the middle, the quarters, the eighths and so on. However many of
// them are taken, they are spread over all.
std::vector<int32> SpreadOver(int32 count) {
    std::vector<int32> numbers;
    std::vector<bool> known(static_cast<size_t>(count));
    for (int64 parts = 2; static_cast<int32>(numbers.size()) < count; parts *= 2) {
        for (int64 part = 1; part <= parts; part += 2) {
            const int64 number = part * count / parts;
            if (known[static_cast<size_t>(number)]) continue;
            known[static_cast<size_t>(number)] = true;
            numbers.push_back(static_cast<int32>(number));
        }
    }
    return numbers;
}

// What all of them come to where those that are known lie on a line from one to the next.
double SumOf(const std::vector<std::optional<double>>& values) {
    double sum = 0;
    std::optional<size_t> before;
    for (size_t i = 0; i < values.size(); ++i) {
        if (!values[i]) continue;
        const double value = *values[i];
        const auto between = static_cast<double>(before ? i - *before - 1 : i);
        sum += value + between * (before ? (value + *values[*before]) / 2 : value);
        before = i;
    }
    return before ? sum + static_cast<double>(values.size() - 1 - *before) * *values[*before] : 0;
}

}  // namespace

SavedSize::SavedSize(const DocumentState& state)
    : settings_(WithoutPaletteFile(*state.settings)), document_(settings_) {
    const Animation& animation = *state.animation;
    can_be_saved_ = !animation.frames.Empty() && !animation.FrameLargerThanCanvas() &&
                    SizeOutOfRange(animation).empty();
    animation_ = animation;
}

void SavedSize::FindPalette() {
    if (has_palette_) return;
    document_.Commit(animation_);
    document_.UpdateGlobalPalette();
    animation_.palette = document_.Current()->palette;
    has_palette_ = true;
}

std::optional<int64> SavedSize::SizeOf(Run run) {
    Animation part = animation_;
    if (run.begin > 0 || run.end < animation_.frames.Size()) {
        part.frames = {};
        part.several = {};
        for (int32 i = run.begin; i < run.end; ++i)
            part.frames.Insert(i - run.begin, animation_.frames.At(i));
        part.selected = part.frames.Empty() ? -1 : 0;
    }
    document_.Commit(std::move(part));
    const std::shared_ptr<BFile> file = BFile::ThatCounts();
    if (settings_.animation_faithful) {
        const FaithfulGifSave save(file, document_);
    } else {
        const GifSave save(file, document_);
    }
    if (document_.StopRequested() || file->WriteStatus() != B_OK) return std::nullopt;
    return file->Size();
}

// By the defined rules a frame is encoded by itself; else it depends on what the one before leaves.
std::optional<int64> SavedSize::Added(Run run) {
    const int32 before = settings_.animation_faithful ? run.begin - 1 : run.begin;
    const auto without = SizeOf({before, run.begin});
    if (!without) return std::nullopt;
    const auto with = SizeOf({before, run.end});
    if (!with) return std::nullopt;
    return *with - *without;
}

// Of all frames but the first.
std::optional<int64> SavedSize::AddedByOthers(int32 others, const Enough& enough) {
    const int32 runs = (others + kRun - 1) / kRun;
    std::vector<std::optional<double>> bytes(static_cast<size_t>(others));  // of each frame
    int32 done = 0;
    for (const int32 number : SpreadOver(runs)) {
        const Run run{1 + number * kRun, 1 + std::min((number + 1) * kRun, others)};
        const auto size = Added(run);
        if (!size) return std::nullopt;
        for (int32 frame = run.begin; frame < run.end; ++frame)
            bytes[static_cast<size_t>(frame) - 1] =
                static_cast<double>(*size) / (run.end - run.begin);
        if (enough(++done)) break;
    }
    return std::llround(SumOf(bytes));
}

std::optional<int64> SavedSize::Estimate(const Enough& enough) {
    if (!can_be_saved_) return std::nullopt;
    const DebugLineCapture lines;
    try {
        FindPalette();
        const auto first = SizeOf({0, 1});
        const int32 others = animation_.frames.Size() - 1;
        if (!first || others == 0) return first;
        const auto added = AddedByOthers(others, enough);
        return added ? std::optional(*first + *added) : std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::optional<int64> SavedSize::Exact() {
    if (!can_be_saved_) return std::nullopt;
    const DebugLineCapture lines;
    try {
        FindPalette();
        return SizeOf({0, animation_.frames.Size()});
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

bool SavedSize::IsSame(const DocumentState& a, const DocumentState& b) {
    if (a.settings != b.settings) return false;
    if (a.animation == b.animation) return true;
    // Which frames are selected is not written.
    Animation first = *a.animation;
    Animation second = *b.animation;
    const bool follows = first.palette->mode == kPaletteCurrentFrame;
    if (follows && first.selected != second.selected) return false;
    first.several = second.several = {};
    first.selected = second.selected = -1;
    return first == second;
}

}  // namespace kirto
