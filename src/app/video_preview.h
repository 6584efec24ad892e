// What a video shows, small, for choosing a part of it before that is opened.
#pragma once

#include <functional>
#include <string>

#include "formats/video/video_cut.h"

namespace kirto {

// A video and the small pictures that show it.
struct PreviewedVideo {
    VideoProperties video;
    VideoFrames frames;
};

// Who is told of what is read, on the thread that reads.
struct VideoViewer {
    // First.
    std::function<void(const PreviewedVideo& video)> begin;
    // Each picture, in order: the rows from the top, blue, green, red and alpha of each pixel.
    std::function<void(const uint8* pixels)> show;
    // Asked every few milliseconds, whether nobody wants it anymore.
    std::function<bool()> given_up;
};

// Reads pictures from all of the video: no more than a few hundred, with sides of at most a few
// hundred pixels. Any thread; takes as long as the video takes to decode. Returns why it shows
// nothing, as a sentence; empty where it showed something, or was given up.
std::string ReadVideoToShow(const std::string& path, const VideoViewer& viewer);

// "75 frames of 480 × 270 pixels, at most 37 MB"
std::string DescribeFrames(const VideoFrames& frames);

}  // namespace kirto
