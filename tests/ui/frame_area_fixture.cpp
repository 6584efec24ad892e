#include "ui/frame_area_fixture.h"

#include <QApplication>

#include "document/command_codes.h"

namespace kirto::test {

FrameSnapshot FrameOf(int32 width, int32 height, uint32 argb, const std::string& name,
                      color_space space) {
    const std::vector<uint32> pixels(static_cast<size_t>(width) * static_cast<size_t>(height),
                                     argb);
    return {PictureOf(width, height, pixels, space), name, width, height};
}

std::vector<FrameSnapshot> SameFrames(int32 count, int32 width, int32 height) {
    return std::vector<FrameSnapshot>(static_cast<size_t>(count), FrameOf(width, height));
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

ThumbnailFixture::ThumbnailFixture(std::vector<FrameSnapshot> frames, int32 selected, QSize size) {
    shown.frames = std::move(frames);
    shown.selected = shown.frames.empty() ? -1 : selected;
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

void ThumbnailFixture::Select(int32 index) {
    shown.selected = index;
    view->UpdateDisplay();
}

void HandleEvents() {
    QApplication::processEvents();
    QApplication::processEvents();
}

}  // namespace kirto::test
