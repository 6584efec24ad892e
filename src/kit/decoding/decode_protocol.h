// What a program and its decoder say to each other: a request, an answer, one after the other. Both
// are made of the same sources, so the numbers lie as they do in memory.
#pragma once

#include "base/types.h"

namespace kirto {

enum class DecodeJob : uint32 {
    kPicture,    // the file that comes along, as a picture
    kAnimation,  // the file that comes along is an animated image: its header
    kNextFrame   // of the animation asked for last
};

struct DecodeRequest {
    DecodeJob job;
    uint32 format;       // kAnimation: the AnimatedImageFormat
    uint64 pixel_bytes;  // what the picture, or the canvas, may take
};

// The pixels come along as a file in memory: rows of 4 * width bytes. Those of kAnimation are the
// canvas that each kNextFrame draws on.
struct DecodeAnswer {
    status_t status;     // of kPicture
    uint32 color_space;  // of kPicture
    int32 result;        // of the others: an AnimatedImageReader::Result
    int32 width;         // pixels
    int32 height;
    int32 frame_count;    // kAnimation, as in AnimatedImageHeader
    int32 plays;          // likewise
    uint32 reserved;      // 0
    double milliseconds;  // kNextFrame: how long the frame is shown
};

}  // namespace kirto
