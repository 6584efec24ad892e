#include "app/saved_picture.h"

#include <new>

#include "base/debug_line.h"
#include "document/animation_document.h"
#include "formats/faithful/faithful_gif_save.h"
#include "formats/gif/gif_load.h"
#include "formats/gif/gif_save.h"
#include "kit/file.h"

namespace kirto {

namespace {

// With the colors of the palette as a save would find them.
Animation OnlyFrame(const Animation& animation, int32 frame) {
    Animation part = animation;
    part.frames = {};
    part.several = {};
    part.use_loop = false;
    part.selected = 0;
    part.frames.Insert(0, animation.frames.At(frame));
    const auto picture_of = [](const FramePointer& each) {
        return each ? each->bitmap.get() : nullptr;
    };
    EditPalette(part, [&](Palette& palette) {
        palette.UpdateIfNeeded(picture_of(animation.FirstFrame()),
                               picture_of(animation.CurrentFrame()));
    });
    return part;
}

std::vector<uint8> Written(const DocumentState& state, int32 frame) {
    Prefs settings = *state.settings;
    // Nothing is to be read for a document that is filled at once.
    settings.palette_mapping = kPaletteWebSafe;
    AnimationDocument document(settings);
    document.Commit(OnlyFrame(*state.animation, frame));
    if (document.Current()->FrameLargerThanCanvas()) return {};
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    if (settings.animation_faithful) {
        const FaithfulGifSave save(file, document);
    } else {
        const GifSave save(file, document);
    }
    return file->WriteStatus() == B_OK ? file->Memory() : std::vector<uint8>();
}

std::shared_ptr<const Picture> Read(std::vector<uint8> bytes) {
    Prefs settings{Prefs::BuiltIn{}};
    settings.animation_faithful = true;
    AnimationDocument document(settings);
    const std::unique_ptr<BFile> file = BFile::OnMemory(std::move(bytes));
    const GifLoad load(file.get(), 0, document);
    const FramePointer frame = document.FirstFrame();
    return frame ? frame->bitmap : nullptr;
}

}  // namespace

std::shared_ptr<const Picture> SavedPicture(const DocumentState& state, int32 frame) {
    const FramePointer source = state.animation->frames.At(frame);
    if (!source || !source->bitmap) return nullptr;
    const DebugLineCapture lines;
    try {
        std::vector<uint8> bytes = Written(state, frame);
        return bytes.empty() ? nullptr : Read(std::move(bytes));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace kirto
