// Frames for list tests, and what a sound list looks like.
#pragma once

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

// A frame of one black pixel.
inline Frame MakeFrame(const std::string& name) {
    Frame frame(name, 1, 1);
    frame.bitmap = FramePictureOf(1, 1, {0xFF000000});
    return frame;
}

// Inserts a frame of the name at the index; the result of InsertFrame.
inline bool Insert(AnimationDocument& document, const std::string& name, int32 index) {
    return document.InsertFrame(index, MakeFrame(name));
}

using NameList = std::vector<std::string>;

// The frames' names in order.
inline NameList Names(const AnimationDocument& document) {
    NameList names;
    for (const FramePointer& frame : document.Current()->frames)
        names.push_back(frame->name);
    return names;
}

// What always holds.
inline void ExpectConsistent(const AnimationDocument& document) {
    int32 visited = 0;
    for (const FramePointer& frame : document.Current()->frames) {
        ASSERT_EQ(document.FrameAt(visited), frame);
        ++visited;
    }
    ASSERT_EQ(document.FrameCount(), visited);
    ASSERT_EQ(document.FrameAt(visited), nullptr);
    ASSERT_EQ(document.FrameAt(-1), nullptr);
    ASSERT_EQ(document.CurrentFrame(), document.FrameAt(document.Selected()));
    if (visited == 0) {
        ASSERT_EQ(document.Selected(), -1);
    } else {
        ASSERT_GE(document.Selected(), 0);
        ASSERT_LT(document.Selected(), visited);
    }
}

}  // namespace kirto::test
