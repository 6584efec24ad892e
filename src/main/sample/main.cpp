// kirto-sample: draws a small animation, or pictures to make one of, with the program's own
// classes, so that there is something to open when no file is at hand.
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "app/save_animation.h"
#include "base/text.h"
#include "document/animation_document.h"
#include "kit/targa.h"
#include "main/sample/sample_pictures.h"

namespace {

using kirto::SamplePicture;

// A frame with the picture and a palette of its own; false when memory is short.
bool MakeFrame(const SamplePicture& picture, int32 index, const AnimationDocument& document,
               Frame* frame) {
    const auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(picture.width, picture.height),
                                                  B_RGB32, document.pixel_budget);
    if (bitmap->InitCheck() != B_OK) return false;
    const uint8* source = picture.rgba.data();
    uint8* target = bitmap->Bits();
    for (size_t i = 0; i < bitmap->BitsLength(); i += 4) {
        target[i] = source[i + 2];
        target[i + 1] = source[i + 1];
        target[i + 2] = source[i];
        target[i + 3] = source[i + 3];
    }
    *frame = Frame(kirto::Format("ball%04d", index), picture.width, picture.height);
    frame->bitmap = kirto::Picture::Of(bitmap, document.pixel_budget);
    frame->palette = kirto::SharePalette(Palette(frame->bitmap.get()));
    frame->local_palette = true;
    return frame->palette != nullptr;
}

bool WriteAnimation(const std::string& path) {
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document(prefs);
    document.Change([](kirto::Animation& animation) { animation.pause_length = 5; });
    for (int32 step = 0; step < kirto::kBallSteps; ++step) {
        Frame frame;
        if (!MakeFrame(kirto::DrawBall(step), step, document, &frame)) return false;
        document.InsertFrameAsCurrent(step, std::move(frame));
    }
    return kirto::SaveAnimatedGif(document, path) == kirto::SaveResult::kSaved;
}

bool WritePicture(const SamplePicture& picture, const std::string& path) {
    const std::unique_ptr<BFile> file = BFile::CreateReplacing(path);
    if (file->InitCheck() != B_OK) return false;
    return kirto::WriteTarga(picture.rgba.data(), picture.width, picture.height, false, true,
                             *file) == B_OK &&
           file->Commit() == B_OK;
}

bool WritePictures(const std::string& folder) {
    return WritePicture(kirto::DrawSky(0), folder + "/dawn.tga") &&
           WritePicture(kirto::DrawSky(1), folder + "/noon.tga") &&
           WritePicture(kirto::DrawSheet(), folder + "/wheel-4x3.tga");
}

}  // namespace

int main(int argc, char** argv) {
    const bool pictures = argc == 3 && std::strcmp(argv[1], "--pictures") == 0;
    if (argc != 2 && !pictures) {
        std::fputs("usage: kirto-sample FILE.gif\n       kirto-sample --pictures FOLDER\n", stderr);
        return 2;
    }
    const char* target = argv[argc - 1];
    if (pictures ? WritePictures(target) : WriteAnimation(target)) return 0;
    std::fprintf(stderr, "kirto-sample: %s can't be written.\n", target);
    return 1;
}
