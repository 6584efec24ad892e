// Reading and writing image files as work that can be stopped at any moment, though the decoders
// and encoders can't: what is stopped may go on for a while with the roster and the budget, but
// nobody hears of it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/pixel_budget.h"
#include "base/work.h"
#include "kit/translator_roster.h"

namespace kirto {

// Reads the image file at the path as the roster does. B_CANCELED when the work was stopped; null
// for work that nobody can stop.
status_t ReadPicture(const std::string& path, BTranslatorRoster& roster,
                     const std::shared_ptr<PixelBudget>& budget, Work* work,
                     std::shared_ptr<BBitmap>* result);

// The same from a file that is open.
status_t ReadPicture(const std::shared_ptr<BFile>& file, BTranslatorRoster& roster,
                     const std::shared_ptr<PixelBudget>& budget, Work* work,
                     std::shared_ptr<BBitmap>* result);

// The same for a thread that is not to tell how far the work is. given_up: asked every now and
// then, on this thread, whether to end early with B_CANCELED.
status_t ReadPictureQuietly(const std::string& path, BTranslatorRoster& roster,
                            const std::shared_ptr<PixelBudget>& budget,
                            const std::function<bool()>& given_up,
                            std::shared_ptr<BBitmap>* result);

// Writes the picture into the file as the roster does. B_CANCELED when the work was stopped; the
// file is not to be used then.
status_t WritePicture(const std::shared_ptr<const BBitmap>& picture, BTranslatorRoster& roster,
                      translator_id translator, uint32 format, const BMessage& settings,
                      const std::shared_ptr<BFile>& file, Work& work);

// The same for such a thread.
status_t WritePictureQuietly(const std::shared_ptr<const BBitmap>& picture,
                             BTranslatorRoster& roster, translator_id translator, uint32 format,
                             const BMessage& settings, const std::shared_ptr<BFile>& file,
                             const std::function<bool()>& given_up);

}  // namespace kirto
