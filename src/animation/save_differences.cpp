#include "animation/save_differences.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace kirto {

namespace {

// "28 of 56 frames", "the frame" where there is one.
std::string FramesOf(int32 count, int32 all) {
    if (all == 1) return "the frame";
    if (count == 2 && all == 2) return "both frames";
    return count == all ? Format("all %d frames", all) : Format("%d of %d frames", count, all);
}

std::string TimesOf(int64 plays) {
    if (plays == 0) return "for ever";
    return plays == 1 ? "once" : Format("%lld times", static_cast<long long>(plays));
}

// Neither none nor all where it is not so.
std::string PercentOf(int64 part, int64 whole) {
    const double percent =
        100.0 * static_cast<double>(part) / static_cast<double>(std::max<int64>(whole, 1));
    if (percent < 1) return "less than 1 %";
    if (part < whole && percent > 99) return "more than 99 %";
    return Format("%d %%", static_cast<int>(std::lround(percent)));
}

std::string PixelsOf(int64 count) {
    return count == 1 ? "1 pixel" : Format("%lld pixels", static_cast<long long>(count));
}

// By how much their components differ.
std::string ErrorOf(int64 distance, int64 pixels) {
    constexpr double kComponents = 3;
    if (distance == 0) return {};
    return Format(", by %.1f of 255 on average",
                  static_cast<double>(distance) / kComponents / static_cast<double>(pixels));
}

}  // namespace

std::string SlowFramesSentence(int32 frames) {
    return frames == 1 ? "browsers will play 1 frame slower: its pause is below 0.02 seconds"
                       : Format(
                             "browsers will play %d frames slower: their pauses are below 0.02 "
                             "seconds",
                             frames);
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
        sentences.push_back(Format("the animation will have %d x %d pixels", other_size->width,
                                   other_size->height));
    }
    if (other_frames == 0) {
        sentences.emplace_back("no frame will be shown");
    } else if (other_frames) {
        sentences.push_back(
            Format("%d frame(s) will be shown instead of %d", *other_frames, frames));
    }
    if (trailing != 0) {
        sentences.push_back(FramesOf(trailing, frames) + " will show trails" +
                            (most_left > 0 ? ", of up to " + PixelsOf(most_left) : ""));
    }
    if (specked != 0) {
        sentences.push_back(FramesOf(specked, frames) +
                            " will show pixels of others, too few to be seen" +
                            (trailing == 0 ? ": up to " + PixelsOf(most_left) : ""));
    }
    if (filled != 0) {
        sentences.push_back(FramesOf(filled, frames) +
                            " will not be transparent: no color stands for that");
    }
    if (holed != 0) sentences.push_back(FramesOf(holed, frames) + " will lack pixels");
    if (recolored != 0) {
        sentences.push_back(PercentOf(recolored, pixels) + " of the pixels lost their color" +
                            ErrorOf(distance, recolored) + Format(": %d colors", most_colors));
    }
    if (repaused != 0) {
        sentences.push_back(FramesOf(repaused, frames) + " will be shown for another time");
    }
    if (other_plays) {
        sentences.push_back("the animation will play " + TimesOf(other_plays->read) +
                            " instead of " + TimesOf(other_plays->saved));
    }
    return sentences;
}

}  // namespace kirto
