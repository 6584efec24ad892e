// Image files as frames have them: pictures with the palettes of their colors.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/types.h"
#include "base/work.h"
#include "color/palette.h"
#include "kit/translator_roster.h"
#include "picture/picture.h"

namespace kirto {

struct FrameImage {
    // B_OK, or why there is no picture: B_NO_MEMORY when not even the palette could be made; the
    // roster's error when no translator reads the file, which includes pictures beyond the budget;
    // B_CANCELED when the work was stopped.
    status_t status = B_OK;
    int32 width = 0;  // pixels
    int32 height = 0;
    std::shared_ptr<const Picture> picture;
    std::shared_ptr<const Palette> palette;
    status_t palette_status = B_OK;  // for Palette::TellOfFailure
};

// Reads the file on the thread that works, which tells that the work goes on. The pixels are
// counted by the budget. work: null when nobody can stop it.
FrameImage ReadFrameImage(const std::string& path, BTranslatorRoster& roster,
                          const std::shared_ptr<PixelBudget>& budget, Work* work);

// The same from a file that is open.
FrameImage ReadFrameImage(const std::shared_ptr<BFile>& file, BTranslatorRoster& roster,
                          const std::shared_ptr<PixelBudget>& budget, Work* work);

// Reads it on another thread while there may be less memory than at its turn: B_NO_MEMORY also
// where that has kept the picture from being packed. given_up: asked every now and then, on this
// thread, whether to end early.
FrameImage ReadFrameImageAhead(const std::string& path, BTranslatorRoster& roster,
                               const std::shared_ptr<PixelBudget>& budget, const Work& work,
                               const std::function<bool()>& given_up);

}  // namespace kirto
