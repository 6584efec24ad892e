#include "effects/make_pictures.h"

#include <utility>

#include "base/run_in_order.h"

namespace kirto {

namespace {

std::optional<MadePicture> WithPalette(std::shared_ptr<const Picture> bitmap, const Work& work) {
    if (!bitmap) return std::nullopt;
    MadePicture made;
    made.palette_status = made.palette.SetOptimal(bitmap.get(), &work);
    made.bitmap = std::move(bitmap);
    return made;
}

}  // namespace

int32 MakePictures(int32 count, const PictureSteps& steps, Work& work) {
    int32 next = 0;
    int32 taken = 0;
    OrderedSteps<int32, MadePicture> ordered;
    ordered.next = [&] { return next < count ? std::optional(next++) : std::nullopt; };
    ordered.begin = steps.begin;
    ordered.work = [&](int32 i, int32) { return WithPalette(steps.make(i), work); };
    ordered.waiting = [&] { work.ReportAgain(); };
    ordered.take = [&](int32 i, std::optional<MadePicture> made) {
        if (!steps.take(i, std::move(made))) return false;
        ++taken;
        return true;
    };
    RunInOrder(ordered);
    return taken;
}

}  // namespace kirto
