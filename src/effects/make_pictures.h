// Making the pictures of new frames, several at a time.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "base/work.h"
#include "color/palette.h"
#include "picture/picture.h"

namespace kirto {

// A picture with the optimal palette of its colors.
struct MadePicture {
    std::shared_ptr<const Picture> bitmap;
    Palette palette;
    status_t palette_status = B_OK;  // for Palette::TellOfFailure
};

// How an effect makes its pictures: all but the making happens on the application's thread, in the
// order of the pictures.
struct PictureSteps {
    // The turn of picture i comes. False ends everything.
    std::function<bool(int32 i)> begin;
    // The picture, on any thread; null when memory is short.
    std::function<std::shared_ptr<const Picture>(int32 i)> make;
    // Nothing when memory was short. Not complete when the work was stopped. False ends everything.
    std::function<bool(int32 i, std::optional<MadePicture> made)> take;
};

// Makes pictures 0 to count - 1 and returns how many were taken.
int32 MakePictures(int32 count, const PictureSteps& steps, Work& work);

}  // namespace kirto
