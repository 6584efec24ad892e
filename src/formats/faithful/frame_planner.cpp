#include "formats/faithful/frame_planner.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace kirto {

namespace {

constexpr int32 kLongestDelay = 0xFFFF;
// No pixel has it.
constexpr uint32 kUnlike = ~uint32{0};

int64 AreaOf(const PixelRect& rect) {
    return int64{rect.width} * rect.height;
}

// Where nothing is new, an image is a pixel that changes nothing.
PixelRect OrOnePixel(const PixelRect& rect) {
    return AreaOf(rect) == 0 ? PixelRect{0, 0, 1, 1} : rect;
}

// Whether all that is shown there has one of the colors.
bool HoldsAll(const std::vector<ColorValues::Item>& colors, const Screen& screen,
              const ScreenPixels& shown, const PixelRect& rect) {
    std::vector<uint32> keys;
    keys.reserve(colors.size());
    for (const ColorValues::Item& item : colors)
        keys.push_back(item.key);
    std::sort(keys.begin(), keys.end());
    for (int32 y = rect.top; y < rect.top + rect.height; ++y) {
        const uint32* const row = shown.data() + screen.At(rect.left, y);
        if (!std::all_of(row, row + rect.width, [&](uint32 key) {
                return std::binary_search(keys.begin(), keys.end(), key);
            }))
            return false;
    }
    return true;
}

int64 Distance(uint32 a, uint32 b) {
    const ColorComponents left = ComponentsOf(a);
    const ColorComponents right = ComponentsOf(b);
    int64 sum = 0;
    for (size_t i = 0; i < left.size(); ++i)
        sum += std::abs(left[i] - right[i]);
    return sum;
}

}  // namespace

// Where little speaks for it, what is on the screen stays: the next image then repeats more of it.
int64 FramePlanner::CostOf(const Way& way) {
    return way.difference.runs * (way.disposal == Disposal::kKeep ? 3 : 4);
}

void FramePlanner::Add(const FrameToPlan& frame) {
    nearness_.pixels += static_cast<int64>(screen_.At(0, screen_.Height()));
    nearness_.short_pauses += frame.delay < kLeastReliablePause ? 1 : 0;
    if (frame.source) return AddSource(frame);
    if (LengthensLast(frame)) return;
    std::vector<Way> ways = WaysTo(*frame.shown);
    if (!plans_.empty() && plans_.back().source && ways.front().rect != plans_.back().rect) {
        RemakeLast();
        ways = WaysTo(*frame.shown);
    }
    if (!HasRoomFor(ways.front())) {
        ReduceLast();
        ways = WaysTo(*frame.shown);
    }
    for (const Way& way : ways) {
        if (HasRoomFor(way) && PlanExactly(way, frame)) return;
    }
    PlanNearly(ways.front(), frame);
}

void FramePlanner::AddSource(const FrameToPlan& frame) {
    FramePlan plan;
    plan.shown = frame.image;
    if (!plans_.empty()) plan.below = BackdropAfter(plans_, static_cast<int32>(plans_.size()) - 1);
    plan.rect = Clipped(frame.source->rect, screen_.Width(), screen_.Height());
    plan.disposal = frame.source->disposal;
    plan.delay = frame.delay;
    plan.source = frame.source;
    plans_.push_back(std::move(plan));
    below_ = nullptr;
    shown_ = frame.shown;
    wanted_ = frame.shown;
}

bool FramePlanner::LengthensLast(const FrameToPlan& frame) {
    if (plans_.empty() || *wanted_ != *frame.shown) return false;
    FramePlan& last = plans_.back();
    if (std::min(last.delay, frame.delay) < kLeastReliablePause) return false;
    if (last.delay + frame.delay > kLongestDelay) return false;
    last.delay += frame.delay;
    return true;
}

std::vector<FramePlanner::Way> FramePlanner::WaysTo(const ScreenPixels& shown) const {
    if (DrawsWhole()) return {WholeWay(shown)};
    const auto way_over = [&](Disposal disposal, const Pixels& below) {
        const PixelRect rect = plans_.empty() ? PixelRect{} : plans_.back().rect;
        return Way{disposal, rect, below, ScreenDifference::Between(screen_, *below, shown)};
    };
    if (plans_.empty())
        return {way_over(Disposal::kKeep, std::make_shared<const ScreenPixels>(screen_.Empty()))};
    std::vector<Way> ways = {way_over(Disposal::kKeep, shown_)};
    const ScreenDifference kept = ways.front().difference;
    if (kept.transparent) ways.push_back(ClearingWay(shown, kept.lost));
    if (below_) ways.push_back(way_over(Disposal::kPrevious, below_));
    std::erase_if(ways, [](const Way& way) { return !way.difference.Possible(); });
    std::stable_sort(ways.begin(), ways.end(),
                     [](const Way& a, const Way& b) { return CostOf(a) < CostOf(b); });
    return ways;
}

// What was there is cleared where it would show through.
FramePlanner::Way FramePlanner::WholeWay(const ScreenPixels& shown) const {
    auto nothing = std::make_shared<const ScreenPixels>(screen_.Empty());
    const bool hides =
        plans_.empty() || ScreenDifference::Between(screen_, *shown_, shown).Possible();
    const Disposal disposal = hides ? Disposal::kKeep : Disposal::kBackground;
    Way way{disposal, screen_.Whole(), nothing,
            ScreenDifference::Between(screen_, *nothing, shown)};
    way.difference.changed = screen_.Whole();
    return way;
}

FramePlanner::Way FramePlanner::ClearingWay(const ScreenPixels& shown,
                                            const PixelRect& lost) const {
    const PixelRect rect = Around(plans_.back().rect, lost);
    ScreenPixels below = *shown_;
    screen_.Clear(rect, &below);
    Way way{Disposal::kBackground, rect, nullptr, ScreenDifference::Between(screen_, below, shown)};
    // Rows that are only there to be cleared are a run each.
    if (rect != plans_.back().rect) way.difference.runs += rect.height;
    way.below = std::make_shared<const ScreenPixels>(std::move(below));
    return way;
}

// Pixels that an image is only there to clear take an index of their own, or their colors do.
bool FramePlanner::HasRoomFor(const Way& way) const {
    if (plans_.empty()) return true;
    const FramePlan& last = plans_.back();
    if (way.rect == last.rect) return true;
    if (last.source) return false;
    return last.colors.size() < kMostColors || HoldsAll(last.colors, screen_, *shown_, way.rect);
}

void FramePlanner::ReduceLast() {
    FramePlan& last = plans_.back();
    const ScreenPixels reduced = reducer_.Reduce(*below_, *shown_);
    ScreenPixels shown = *shown_;
    for (size_t i = 0; i < shown.size(); ++i) {
        if (shown[i] != (*below_)[i]) shown[i] = reduced[i];
    }
    CountDifference(*shown_, shown);
    shown_ = std::make_shared<const ScreenPixels>(std::move(shown));
    last.shown = {screen_.PictureOf(*shown_), 0, 0, screen_.Width(), screen_.Height()};
    last.colors = ColorsOfReduced(last.rect, *below_, *shown_);
    last.skips = true;
}

// None where the work was stopped before all was reduced; nothing is written then.
std::vector<ColorValues::Item> FramePlanner::ColorsOfReduced(const PixelRect& rect,
                                                             const ScreenPixels& below,
                                                             const ScreenPixels& shown) const {
    return ColorsToDraw(screen_, rect, below, shown, kMostColors)
        .value_or(std::vector<ColorValues::Item>());
}

bool FramePlanner::PlanExactly(const Way& way, const FrameToPlan& frame) {
    auto colors = ColorsToDraw(screen_, way.difference.changed, *way.below, *frame.shown,
                               reducer_.MostExact());
    if (!colors) return false;
    const PixelRect& rect = way.difference.changed;
    const bool skips = way.difference.pixels < AreaOf(rect);
    if (skips && colors->size() == kMostColors && !HoldsAll(*colors, screen_, *frame.shown, rect))
        return false;
    shown_ = frame.shown;
    Append(way, frame, std::move(*colors));
    return true;
}

void FramePlanner::PlanNearly(const Way& way, const FrameToPlan& frame) {
    shown_ = std::make_shared<const ScreenPixels>(Nearly(way, frame));
    CountDifference(*frame.shown, *shown_);
    Way nearly = way;
    nearly.difference = ScreenDifference::Between(screen_, *way.below, *shown_);
    if (DrawsWhole()) nearly.difference.changed = screen_.Whole();
    FrameToPlan reduced = frame;
    reduced.image = {screen_.PictureOf(*shown_), 0, 0, screen_.Width(), screen_.Height()};
    Append(nearly, reduced, ColorsOfReduced(nearly.difference.changed, *way.below, *shown_));
}

// Only what is new is reduced: what stands still keeps the colors that it has been given.
ScreenPixels FramePlanner::Nearly(const Way& way, const FrameToPlan& frame) const {
    const ScreenPixels& wanted = *frame.shown;
    const bool has_before = wanted_ && !DrawsWhole();
    ScreenPixels before = has_before ? *wanted_ : *way.below;
    for (size_t i = 0; has_before && i < before.size(); ++i) {
        if ((*way.below)[i] != (*shown_)[i]) before[i] = kUnlike;
    }
    const bool foreseen = frame.reduced && (DrawsWhole() || way.disposal == Disposal::kKeep);
    ScreenPixels nearly = foreseen ? *frame.reduced : reducer_.Reduce(before, wanted);
    for (size_t i = 0; i < nearly.size(); ++i) {
        if (before[i] == wanted[i] || (*way.below)[i] == wanted[i]) nearly[i] = (*way.below)[i];
    }
    return nearly;
}

void FramePlanner::Append(const Way& way, const FrameToPlan& frame,
                          std::vector<ColorValues::Item> colors) {
    if (!plans_.empty()) SetDisposal(way);
    FramePlan plan;
    plan.shown = frame.image;
    if (!plans_.empty() && !DrawsWhole())
        plan.below = BackdropAfter(plans_, static_cast<int32>(plans_.size()) - 1);
    plan.rect = OrOnePixel(way.difference.changed);
    plan.delay = frame.delay;
    plan.skips = way.difference.pixels < AreaOf(plan.rect) && colors.size() < kMostColors;
    plan.colors = std::move(colors);
    plans_.push_back(std::move(plan));
    below_ = way.below;
    wanted_ = frame.shown;
}

void FramePlanner::SetDisposal(const Way& way) {
    FramePlan& last = plans_.back();
    last.disposal = way.disposal;
    if (way.rect == last.rect) return;
    last.rect = way.rect;
    last.skips = last.colors.size() < kMostColors;
}

void FramePlanner::RemakeLast() {
    FramePlan& last = plans_.back();
    below_ = std::make_shared<const ScreenPixels>(
        ShowBackdrop(screen_, plans_, last.below, screen_.Whole()));
    const auto difference = ScreenDifference::Between(screen_, *below_, *shown_);
    last.source = nullptr;
    last.rect = OrOnePixel(difference.changed);
    last.skips = difference.pixels < AreaOf(last.rect);
    // It was drawn with one table.
    last.colors = *ColorsToDraw(screen_, last.rect, *below_, *shown_, kMostColors);
}

void FramePlanner::CountDifference(const ScreenPixels& wanted, const ScreenPixels& shown) {
    for (size_t i = 0; i < wanted.size(); ++i) {
        if (wanted[i] == shown[i]) continue;
        ++nearness_.changed;
        nearness_.distance += Distance(wanted[i], shown[i]);
    }
}

}  // namespace kirto
