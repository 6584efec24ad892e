#include "kit/picture_files.h"

#include <functional>
#include <utility>

#include "base/abandonable.h"

namespace kirto {

namespace {

struct Reading {
    status_t status = B_OK;
    std::shared_ptr<BBitmap> picture;
};

Reading Read(const std::string& path, BTranslatorRoster& roster,
             std::shared_ptr<PixelBudget> budget) {
    BFile file(path, B_READ_ONLY);
    Reading reading;
    reading.status = roster.Translate(file, std::move(budget), &reading.picture);
    return reading;
}

// False when the work was stopped before the task was done.
bool Finish(Work& work, std::function<void()> task) {
    return !work.StopRequested() && FinishOrAbandon(work, std::move(task));
}

}  // namespace

status_t ReadPicture(const std::string& path, BTranslatorRoster& roster,
                     std::shared_ptr<PixelBudget> budget, Work* work,
                     std::shared_ptr<BBitmap>* result) {
    const auto reading = std::make_shared<Reading>();
    const auto read = [=, &roster] { *reading = Read(path, roster, budget); };
    if (!work) {
        read();
    } else if (!Finish(*work, read)) {
        return B_CANCELED;
    }
    *result = std::move(reading->picture);
    return reading->status;
}

status_t WritePicture(std::shared_ptr<const BBitmap> picture, BTranslatorRoster& roster,
                      translator_id translator, uint32 format, const BMessage& settings,
                      std::shared_ptr<BFile> file, Work& work) {
    const auto status = std::make_shared<status_t>(B_OK);
    const bool finished = Finish(work, [=, &roster] {
        *status = roster.Translate(*picture, translator, format, settings, *file);
    });
    return finished ? *status : B_CANCELED;
}

}  // namespace kirto
