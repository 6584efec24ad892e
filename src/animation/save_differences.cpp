#include "animation/save_differences.h"

#include <algorithm>
#include <cmath>

#include "base/core_text.h"
#include "base/text.h"

namespace kirto {

namespace {

// "28 of 56 frames", "the frame" where there is one.
std::string FramesOf(int32 count, int32 all) {
    if (all == 1) return CoreText::tr("the frame");
    if (count == 2 && all == 2) return CoreText::tr("both frames");
    return count == all ? CoreText::With(CoreText::tr("all %1 frames"), {std::to_string(all)})
                        : CoreText::With(CoreText::tr("%1 of %2 frames"),
                                         {std::to_string(count), std::to_string(all)});
}

std::string TimesOf(int64 plays) {
    if (plays == 0) return CoreText::tr("for ever");
    return plays == 1 ? CoreText::tr("once")
                      : CoreText::With(CoreText::tr("%1 times"), {std::to_string(plays)});
}

// Neither none nor all where it is not so.
std::string PercentOf(int64 part, int64 whole) {
    const double percent =
        100.0 * static_cast<double>(part) / static_cast<double>(std::max<int64>(whole, 1));
    if (percent < 1) return CoreText::tr("less than 1 %");
    if (part < whole && percent > 99) return CoreText::tr("more than 99 %");
    return CoreText::With(CoreText::tr("%1 %"), {std::to_string(std::lround(percent))});
}

std::string PixelsOf(int64 count) {
    return count == 1 ? CoreText::tr("1 pixel")
                      : CoreText::With(CoreText::tr("%1 pixels"), {std::to_string(count)});
}

// By how much their components differ.
std::string ErrorOf(int64 distance, int64 pixels) {
    constexpr double kComponents = 3;
    if (distance == 0) return {};
    const double error = static_cast<double>(distance) / kComponents / static_cast<double>(pixels);
    return CoreText::With(CoreText::tr(", by %1 of 255 on average"), {Format("%.1f", error)});
}

}  // namespace

std::string SlowFramesSentence(int32 frames) {
    if (frames == 1)
        return CoreText::tr("browsers will play 1 frame slower: its pause is below 0.02 seconds");
    return CoreText::With(
        CoreText::tr("browsers will play %1 frames slower: their pauses are below 0.02 seconds"),
        {std::to_string(frames)});
}

std::string SaveDifferences::Warning() const {
    if (short_pauses == 0) return {};
    return SlowFramesSentence(short_pauses);
}

bool SaveDifferences::Any() const {
    return trailing != 0 || specked != 0 || filled != 0 || holed != 0 || repaused != 0 ||
           recolored != 0 || other_frames || other_size || other_plays;
}

std::vector<std::string> SaveDifferences::Sentences() const {
    std::vector<std::string> sentences;
    if (other_size) {
        sentences.push_back(CoreText::With(
            CoreText::tr("the animation will have %1 x %2 pixels"),
            {std::to_string(other_size->width), std::to_string(other_size->height)}));
    }
    if (other_frames == 0) {
        sentences.push_back(CoreText::tr("no frame will be shown"));
    } else if (other_frames) {
        sentences.push_back(
            CoreText::With(CoreText::tr("%1 frame(s) will be shown instead of %2"),
                           {std::to_string(*other_frames), std::to_string(frames)}));
    }
    if (trailing != 0) {
        const std::string which = FramesOf(trailing, frames);
        sentences.push_back(most_left > 0
                                ? CoreText::With(CoreText::tr("%1 will show trails, of up to %2"),
                                                 {which, PixelsOf(most_left)})
                                : CoreText::With(CoreText::tr("%1 will show trails"), {which}));
    }
    if (specked != 0) {
        const std::string which = FramesOf(specked, frames);
        sentences.push_back(
            trailing == 0
                ? CoreText::With(
                      CoreText::tr("%1 will show pixels of others, too few to be seen: up to %2"),
                      {which, PixelsOf(most_left)})
                : CoreText::With(CoreText::tr("%1 will show pixels of others, too few to be seen"),
                                 {which}));
    }
    if (filled != 0) {
        sentences.push_back(
            CoreText::With(CoreText::tr("%1 will not be transparent: no color stands for that"),
                           {FramesOf(filled, frames)}));
    }
    if (holed != 0)
        sentences.push_back(
            CoreText::With(CoreText::tr("%1 will lack pixels"), {FramesOf(holed, frames)}));
    if (recolored != 0) {
        sentences.push_back(
            CoreText::With(CoreText::tr("%1 of the pixels lost their color%2: %3 colors"),
                           {PercentOf(recolored, pixels), ErrorOf(distance, recolored),
                            std::to_string(most_colors)}));
    }
    if (repaused != 0) {
        sentences.push_back(CoreText::With(CoreText::tr("%1 will be shown for another time"),
                                           {FramesOf(repaused, frames)}));
    }
    if (other_plays) {
        sentences.push_back(
            CoreText::With(CoreText::tr("the animation will play %1 instead of %2"),
                           {TimesOf(other_plays->read), TimesOf(other_plays->saved)}));
    }
    return sentences;
}

}  // namespace kirto
