// Showing the animation in the browser, by way of a temporary file.
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

#include "app/kirto.h"
#include "app/save_animation.h"
#include "base/core_text.h"
#include "base/directories.h"
#include "kit/alert.h"

namespace {

constexpr const char* kPreviewName = "kirtotemp.gif";

bool CanBeOpened(const std::string& directory) {
    const int descriptor = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return false;
    close(descriptor);
    return true;
}

// Absolute, so that no program takes a name that begins with a dash for an option.
std::string PreviewPath(const std::string& directory) {
    const std::filesystem::path path = std::filesystem::path(directory) / kPreviewName;
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? "./" + path.string() : absolute.string();
}

}  // namespace

void Kirto::Preview() {
    if (Current()->FrameLargerThanCanvas()) {
        kirto::Warn(CoreText::Later(
            "The animation can't be previewed because one of the frames has a larger size than the "
            "animation."));
        return;
    }
    if (const std::string field = kirto::SizeOutOfRange(*Current()); !field.empty()) {
        kirto::Warn(CoreText::With(
            CoreText::tr("The animation can't be previewed because %1 is not between 0 and 65535."),
            {field}));
        return;
    }
    UpdateGlobalPalette();
    if (!CanBeOpened(prefs.misc_tempfilelocation)) {
        prefs.misc_tempfilelocation = kirto::HomeDirectory();
        PublishSettings();
    }
    const std::string path = PreviewPath(prefs.misc_tempfilelocation);
    const kirto::SaveResult result = kirto::SavePreviewGif(*this, path);
    if (result == kirto::SaveResult::kStopped) {
        last_word_ = CoreText::tr("the preview was canceled");
        return;
    }
    if (result != kirto::SaveResult::kSaved) {
        kirto::Warn(CoreText::Later(
            "The animation can't be previewed because a temporary file could not be created."));
        return;
    }
    previews_[path] = kirto::FileStamp::Of(path);
    desktop_.OpenInBrowser(path);
}

void Kirto::RemovePreviews() {
    for (const auto& [path, stamp] : previews_) {
        // What somebody else has put there since is none of ours.
        if (stamp && kirto::FileStamp::Of(path) == stamp) unlink(path.c_str());
    }
    previews_.clear();
}
