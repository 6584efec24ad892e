#include "kit/picture_files.h"

#include <atomic>
#include <functional>
#include <utility>

#include "base/abandonable.h"

namespace kirto {

namespace {

struct Reading {
    status_t status = B_OK;
    std::shared_ptr<BBitmap> picture;
    std::atomic<bool> given_up = false;

    void Read(BFile& file, BTranslatorRoster& roster, std::shared_ptr<PixelBudget> budget) {
        status = roster.TranslateUnless([this] { return given_up.load(); }, file, std::move(budget),
                                        &picture);
        if (status != B_OK && file.RanOutOfMemory()) status = B_NO_MEMORY;
    }
};

// False when the work was stopped before the task was done.
bool Finish(Work& work, std::function<void()> task) {
    return !work.StopRequested() && FinishOrAbandon(work, std::move(task));
}

bool FinishQuietly(const std::function<bool()>& given_up, std::function<void()> task) {
    return !given_up() && FinishOrAbandon(given_up, std::move(task));
}

auto Opener(const std::string& path) {
    return [path] { return std::make_unique<BFile>(path, B_READ_ONLY); };
}

// As Finish, also where nobody can stop the work.
bool FinishIfWatched(Work* work, const std::function<void()>& task) {
    if (work) return Finish(*work, task);
    task();
    return true;
}

// The task is given to finish, which returns false when it was not to be finished. open: gives the
// file, as part of the task.
template <typename FinishTask, typename OpenFile>
status_t ReadBy(const FinishTask& finish, const OpenFile& open, BTranslatorRoster& roster,
                const std::shared_ptr<PixelBudget>& budget, std::shared_ptr<BBitmap>* result) {
    const auto reading = std::make_shared<Reading>();
    if (!finish([=, &roster] { reading->Read(*open(), roster, budget); })) {
        reading->given_up = true;
        return B_CANCELED;
    }
    *result = std::move(reading->picture);
    return reading->status;
}

template <typename FinishTask>
status_t WriteBy(const FinishTask& finish, const std::shared_ptr<const BBitmap>& picture,
                 BTranslatorRoster& roster, translator_id translator, uint32 format,
                 const BMessage& settings, const std::shared_ptr<BFile>& file) {
    const auto status = std::make_shared<status_t>(B_OK);
    const auto write = [=, &roster] {
        *status = roster.Translate(*picture, translator, format, settings, *file);
    };
    return finish(write) ? *status : B_CANCELED;
}

}  // namespace

status_t ReadPicture(const std::string& path, BTranslatorRoster& roster,
                     const std::shared_ptr<PixelBudget>& budget, Work* work,
                     std::shared_ptr<BBitmap>* result) {
    const auto finish = [work](const auto& task) { return FinishIfWatched(work, task); };
    return ReadBy(finish, Opener(path), roster, budget, result);
}

status_t ReadPicture(const std::shared_ptr<BFile>& file, BTranslatorRoster& roster,
                     const std::shared_ptr<PixelBudget>& budget, Work* work,
                     std::shared_ptr<BBitmap>* result) {
    const auto finish = [work](const auto& task) { return FinishIfWatched(work, task); };
    return ReadBy(
        finish, [file] { return file; }, roster, budget, result);
}

status_t ReadPictureQuietly(const std::string& path, BTranslatorRoster& roster,
                            const std::shared_ptr<PixelBudget>& budget,
                            const std::function<bool()>& given_up,
                            std::shared_ptr<BBitmap>* result) {
    const auto finish = [&](const std::function<void()>& task) {
        return FinishQuietly(given_up, task);
    };
    return ReadBy(finish, Opener(path), roster, budget, result);
}

status_t WritePicture(const std::shared_ptr<const BBitmap>& picture, BTranslatorRoster& roster,
                      translator_id translator, uint32 format, const BMessage& settings,
                      const std::shared_ptr<BFile>& file, Work& work) {
    const auto finish = [&](const std::function<void()>& task) { return Finish(work, task); };
    return WriteBy(finish, picture, roster, translator, format, settings, file);
}

status_t WritePictureQuietly(const std::shared_ptr<const BBitmap>& picture,
                             BTranslatorRoster& roster, translator_id translator, uint32 format,
                             const BMessage& settings, const std::shared_ptr<BFile>& file,
                             const std::function<bool()>& given_up) {
    const auto finish = [&](const std::function<void()>& task) {
        return FinishQuietly(given_up, task);
    };
    return WriteBy(finish, picture, roster, translator, format, settings, file);
}

}  // namespace kirto
