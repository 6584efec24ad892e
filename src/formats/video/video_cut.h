// Which part of a video becomes frames, and what size they have.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/types.h"
#include "formats/video/video_probe.h"

namespace kirto {

// A rectangle of a video's pictures, in their pixels.
struct VideoArea {
    int32 left = 0;
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;

    bool operator==(const VideoArea&) const = default;
};

// What is taken of a video; all of it where nothing is set.
struct VideoCut {
    // Browsers show no GIF faster.
    static constexpr double kMostFramesPerSecond = 50;
    static constexpr double kFewestFramesPerSecond = 0.001;

    double start = 0;            // seconds
    std::optional<double> end;   // seconds, above start; nothing: the end of the video
    std::optional<double> rate;  // frames a second; nothing: the video's, or the most there can be
    int32 width = 0;             // of the frames, pixels; 0: as the height asks for
    int32 height = 0;            // the same; both 0: the size of the part that is taken
    std::optional<VideoArea> area;  // nothing: all of the pictures

    bool operator==(const VideoCut&) const = default;

    // As ParseVideoCut reads it. Times and rates in thousandths.
    std::string Text() const;
};

// "[START][-[END]][@RATE][:WIDTHxHEIGHT][,crop=WIDTHxHEIGHT+LEFT+TOP]", where one side of the size
// may be missing: "3.2-7.5@15:480x". Nothing for other texts and for numbers out of their bounds.
std::optional<VideoCut> ParseVideoCut(std::string_view text);

// The frames that a cut makes of a video.
struct VideoFrames {
    int32 width = 0;  // pixels
    int32 height = 0;
    int64 rate_numerator = 0;  // frames a second, both above 0
    int64 rate_denominator = 1;
    int32 count = 0;  // about; 0: unknown

    // What they take at most.
    uint64 Bytes() const;
};

// Nothing where the cut begins behind the end of the video or where its area is not on the
// pictures.
std::optional<VideoFrames> FramesOf(const VideoProperties& video, const VideoCut& cut);

}  // namespace kirto
