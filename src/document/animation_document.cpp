#include "document/animation_document.h"

#include <algorithm>
#include <thread>

#include "document/command_codes.h"
#include "document/document_scope.h"
#include "platform/alert.h"
#include "platform/debug_line.h"

namespace {

constexpr bigtime_t kWriterPollInterval = 1000;  // microseconds

const BBitmap* PictureOf(const Frame* frame) {
    return frame ? frame->bitmap.get() : nullptr;
}

}  // namespace

AnimationDocument::AnimationDocument(Prefs& settings, BMessenger window_messenger)
    : frame_sem(create_sem(1, "sem")),
      prefs(settings),
      window(std::move(window_messenger)),
      pixel_budget(std::make_shared<kirto::PixelBudget>()) {
    if (frame_sem < 0) kirto::DebugLine("Kirto::Kirto() - Create sem died\n");
    global_palette = std::make_unique<Palette>();
    Reset();
}

AnimationDocument::~AnimationDocument() {
    delete_sem(frame_sem);
}

void AnimationDocument::Reset() {
    std::vector<std::unique_ptr<Frame>> removed;
    {
        const kirto::WriterScope writer(*this);
        removed.swap(frames_);
        Relink();
        global_height = prefs.global_height;
        global_width = prefs.global_width;
        use_pause_global = prefs.global_usepause;
        use_loop = prefs.global_useloop;
        pause_length_global = prefs.global_pauselength;
        loop_count = prefs.global_loopcount;
        modified = false;
        selected = -1;
        file_name = "untitled";
        file_directory.clear();
        ResetPalette();
    }
}

void AnimationDocument::ResetPalette() {
    // Before the kind, which may clear it.
    global_palette->dither = prefs.palette_dither;
    if (prefs.palette_mapping != kirto::kPaletteFromFile) {
        global_palette->Set(prefs.palette_mapping);
    } else if (!global_palette->Set(prefs.palette_filename.c_str())) {
        kirto::Warn("The palette can't be loaded because the file was corrupted or unreadable.");
        global_palette->Set(kirto::kPaletteWebSafe);
        PostToWindow(kirto::kUpdateAll);
    }
    global_palette->use_transparent = prefs.palette_usetransparent;
    global_palette->transparent_index = prefs.palette_transparentindex;
    global_palette->background_index = prefs.palette_backgroundindex;
}

Frame* AnimationDocument::FrameAt(int32 i) const {
    if (i < 0 || static_cast<size_t>(i) >= frames_.size()) return nullptr;
    return frames_[static_cast<size_t>(i)].get();
}

const Frame* AnimationDocument::FrameLargerThanCanvas() const {
    for (const Frame* frame = first_frame; frame; frame = frame->next) {
        if (frame->width > global_width || frame->height > global_height) return frame;
    }
    return nullptr;
}

bool AnimationDocument::HasUnsavedChanges() const {
    // In this order: a change that ends in between has set modified by then.
    return changes_waiting > 0 || modified;
}

bool AnimationDocument::InsertFrame(Frame* frame) {
    if (frame->index < 0 || frame->index > frame_count) return false;
    {
        const kirto::WriterScope writer(*this);
        if (frame_count == 0) {
            PostThumbnailSize();
            selected = 0;
        }
        Link(frame);
    }
    PostToWindow(kirto::kUpdateFramesNoStatus);
    return true;
}

void AnimationDocument::InsertFrameAsCurrent(Frame* frame) {
    {
        const kirto::WriterScope writer(*this);
        frame->index = std::clamp(frame->index, 0, frame_count);
        if (frame_count == 0) {
            if (prefs.global_setdimensions) {
                global_width = frame->width;
                global_height = frame->height;
            }
            PostThumbnailSize();
        }
        selected = frame->index;
        modified = true;
        Link(frame);
    }
    PostToWindow(kirto::kUpdateFramesNoStatus);
}

void AnimationDocument::Link(Frame* frame) {
    const size_t position = static_cast<size_t>(frame->index);
    frames_.insert(frames_.begin() + frame->index, std::unique_ptr<Frame>(frame));
    if (position > 0) frames_[position - 1]->next = frame;
    frame->next = position + 1 < frames_.size() ? frames_[position + 1].get() : nullptr;
    for (Frame* later = frame->next; later; later = later->next)
        ++later->index;
    first_frame = frames_.front().get();
    ++frame_count;
}

void AnimationDocument::RemoveFrame() {
    std::unique_ptr<Frame> removed;
    {
        const kirto::WriterScope writer(*this);
        if (selected == -1 || frame_count == 0) return;
        const auto position = frames_.begin() + selected;
        removed = std::move(*position);
        frames_.erase(position);
        Relink();
        modified = true;
        if (frame_count == 0) selected = -1;
        if (selected == frame_count) --selected;
    }
}

void AnimationDocument::MoveFrame(bool up) {
    const kirto::WriterScope writer(*this);
    if (selected == -1 || frame_count == 0) return;
    const int32 target = up ? selected - 1 : selected + 1;
    if (target < 0 || target > frame_count - 1) return;
    std::swap(frames_[static_cast<size_t>(selected)], frames_[static_cast<size_t>(target)]);
    Relink();
    selected = target;
    modified = true;
}

void AnimationDocument::ReverseFrames() {
    const kirto::WriterScope writer(*this);
    if (frame_count <= 1) return;
    std::reverse(frames_.begin(), frames_.end());
    Relink();
}

bool AnimationDocument::Select(int32 i) {
    const kirto::WriterScope writer(*this);
    if (i > frame_count - 1 || i < 0 || i == selected) return false;
    selected = i;
    return true;
}

void AnimationDocument::SetModified(bool changed) {
    const kirto::WriterScope writer(*this);
    modified = changed;
}

void AnimationDocument::UpdateGlobalPalette() {
    const kirto::WriterScope writer(*this);
    global_palette->UpdateIfNeeded(PictureOf(first_frame), PictureOf(CurrentFrame()));
}

void AnimationDocument::Relink() {
    first_frame = nullptr;
    frame_count = static_cast<int32>(frames_.size());
    for (int32 i = frame_count - 1; i >= 0; --i) {
        Frame* frame = frames_[static_cast<size_t>(i)].get();
        frame->index = i;
        frame->next = first_frame;
        first_frame = frame;
    }
}

void AnimationDocument::ReaderEnter() {
    if (acquire_sem(frame_sem) != B_OK) return;
    ++reader_count;
    release_sem(frame_sem);
}

void AnimationDocument::ReaderExit() {
    if (acquire_sem(frame_sem) != B_OK) return;
    reader_count = std::max(reader_count - 1, 0);
    release_sem(frame_sem);
}

void AnimationDocument::WriterEnter() {
    status_t status = acquire_sem(frame_sem);
    while (status == B_OK && reader_count != 0) {
        release_sem(frame_sem);
        snooze(kWriterPollInterval);
        status = acquire_sem(frame_sem);
    }
    writer_inside_ = status == B_OK;
}

void AnimationDocument::WriterExit() {
    writer_inside_ = false;
    release_sem(frame_sem);
}

bool AnimationDocument::TryReaderEnter() {
    status_t status = try_acquire_sem(frame_sem);
    // Only a writer keeps the semaphore; others have it for the moment that counting takes.
    while (status == B_WOULD_BLOCK && !writer_inside_) {
        std::this_thread::yield();
        status = try_acquire_sem(frame_sem);
    }
    if (status != B_OK) return false;
    ++reader_count;
    release_sem(frame_sem);
    return true;
}

void AnimationDocument::PostStatus(const std::string& text) const {
    BMessage message(kirto::kStatusUpdate);
    message.AddString("text", text);
    window.SendMessage(message);
}

void AnimationDocument::PostThumbnailSize() const {
    static constexpr uint32 kCommands[] = {kirto::kThumbnailFirstFull, kirto::kThumbnailFirstHalf,
                                           kirto::kThumbnailPreset};
    const int32 choice = prefs.thumbnail_height;
    if (choice >= 0 && choice <= 2) PostToWindow(kCommands[choice]);
}
