#include "ui/thumbnails/frame_area_fixture.h"

#include <QApplication>

#include "document/command_codes.h"

namespace kirto::test {

FramePointer FrameOf(int32 width, int32 height, uint32 argb, const std::string& name,
                     color_space space) {
    const std::vector<uint32> pixels(static_cast<size_t>(width) * static_cast<size_t>(height),
                                     argb);
    auto frame = std::make_shared<Frame>(name, width, height);
    frame->bitmap = FramePictureOf(width, height, pixels, space);
    return frame;
}

std::vector<FramePointer> SameFrames(int32 count, int32 width, int32 height) {
    const FramePointer first = FrameOf(width, height);
    std::vector<FramePointer> frames;
    for (int32 i = 0; i < count; ++i) {
        auto frame = std::make_shared<Frame>(first->name, width, height);
        frame->bitmap = first->bitmap;
        frames.push_back(frame);
    }
    return frames;
}

FrameSequence SequenceOf(const std::vector<FramePointer>& frames) {
    FrameSequence sequence;
    for (const FramePointer& frame : frames)
        sequence.Insert(sequence.Size(), frame);
    return sequence;
}

void ShowFrames(ShownDocument& shown, AnimationDocument& document,
                const std::vector<FramePointer>& frames, int32 selected) {
    document.Change([&](Animation& animation) {
        animation.frames = SequenceOf(frames);
        animation.selected = frames.empty() ? -1 : selected;
    });
    shown.Take(document);
}

std::vector<translator_id> TargaRoster::Translators() const {
    std::vector<translator_id> ids = FakeRoster::Translators();
    if (has_targa) ids.push_back(kTargaId);
    return ids;
}

std::vector<translation_format> TargaRoster::OutputFormats(translator_id translator) const {
    if (translator != kTargaId) return FakeRoster::OutputFormats(translator);
    return {{kTargaFormat, "image/x-targa", "Targa image", {"tga"}}};
}

status_t TargaRoster::Translate(const BBitmap& source, translator_id translator, uint32 format,
                                const BMessage& settings, BFile& destination) {
    if (translator != kTargaId || format != kTargaFormat) return B_NO_TRANSLATOR;
    return FakeRoster::Translate(source, kRaw, kRawFormat, settings, destination);
}

ThumbnailFixture::ThumbnailFixture(const std::vector<FramePointer>& frames, int32 selected,
                                   QSize size) {
    ShowFrames(shown, fixture.document, frames, selected);
    view = std::make_unique<ThumbnailView>(shown, editor, BMessenger(window));
    view->resize(size);
    view->show();
    HandleEvents();
}

ThumbScrollView& ThumbnailFixture::Scroll() {
    return *dynamic_cast<ThumbScrollView*>(Grid().parentWidget()->parentWidget());
}

QPoint ThumbnailFixture::MiddleOf(int32 index) {
    const BRect area = Grid().Layout().At(index);
    return {static_cast<int>((area.left + area.right) / 2),
            static_cast<int>((area.top + area.bottom) / 2)};
}

std::vector<int32> ThumbnailFixture::TakeSelected() {
    std::vector<int32> numbers;
    for (const BMessage& message : application->Messages()) {
        int32 number = -2;
        if (message.what == kSelectFrame && message.FindInt32("number", &number) == B_OK) {
            numbers.push_back(number);
        }
    }
    application->TakeTranscript();
    return numbers;
}

void ThumbnailFixture::Show(const std::vector<FramePointer>& frames, int32 selected) {
    ShowFrames(shown, fixture.document, frames, selected);
    view->UpdateDisplay();
}

void ThumbnailFixture::Select(int32 index) {
    fixture.document.Select(index);
    shown.Take(fixture.document);
    view->UpdateDisplay();
}

void HandleEvents() {
    QApplication::processEvents();
    QApplication::processEvents();
}

}  // namespace kirto::test
