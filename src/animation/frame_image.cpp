#include "animation/frame_image.h"

#include <utility>

#include "color/shared_palette.h"
#include "kit/picture_files.h"

namespace kirto {

namespace {

// read: takes a pointer to the bitmap that it makes.
template <typename Read>
FrameImage Make(const Read& read, const std::shared_ptr<PixelBudget>& budget, const Work* work) {
    FrameImage image;
    const std::shared_ptr<Palette> palette = SharePalette();
    std::shared_ptr<BBitmap> bitmap;
    image.status = palette ? read(&bitmap) : B_NO_MEMORY;
    if (image.status < B_OK) return image;
    image.width = bitmap->Bounds().PixelWidth();
    image.height = bitmap->Bounds().PixelHeight();
    image.picture = Picture::Of(std::move(bitmap), budget);
    image.palette_status = palette->SetOptimal(image.picture.get(), work);
    image.palette = palette;
    image.status = IsStopped(work) ? B_CANCELED : B_OK;
    return image;
}

// Whether the bitmap was kept although its pixels are such that they can be packed.
bool LacksPacking(const Picture& picture) {
    const std::shared_ptr<const BBitmap>& kept = picture.KeptBitmap();
    return kept && picture.HasRows() && !Picture::Of(kept)->KeptBitmap();
}

}  // namespace

FrameImage ReadFrameImage(const std::string& path, BTranslatorRoster& roster,
                          const std::shared_ptr<PixelBudget>& budget, Work* work) {
    const auto read = [&](std::shared_ptr<BBitmap>* bitmap) {
        return ReadPicture(path, roster, budget, work, bitmap);
    };
    return Make(read, budget, work);
}

FrameImage ReadFrameImage(const std::shared_ptr<BFile>& file, BTranslatorRoster& roster,
                          const std::shared_ptr<PixelBudget>& budget, Work* work) {
    const auto read = [&](std::shared_ptr<BBitmap>* bitmap) {
        return ReadPicture(file, roster, budget, work, bitmap);
    };
    return Make(read, budget, work);
}

FrameImage ReadFrameImageAhead(const std::string& path, BTranslatorRoster& roster,
                               const std::shared_ptr<PixelBudget>& budget, const Work& work,
                               const std::function<bool()>& given_up) {
    const auto read = [&](std::shared_ptr<BBitmap>* bitmap) {
        return ReadPictureQuietly(path, roster, budget, given_up, bitmap);
    };
    FrameImage image = Make(read, budget, &work);
    if (image.picture && LacksPacking(*image.picture)) image.status = B_NO_MEMORY;
    return image;
}

}  // namespace kirto
