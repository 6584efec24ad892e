// Frames to show, and the views that show them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/fake_roster.h"
#include "support/test_support.h"
#include "ui/controls/editor.h"
#include "ui/controls/shown_document.h"
#include "ui/thumbnails/thumb_drawing_view.h"
#include "ui/thumbnails/thumbnail_view.h"

namespace kirto::test {

// A frame in one colour, 0xAARRGGBB.
FramePointer FrameOf(int32 width, int32 height, uint32 argb = 0xFF336699,
                     const std::string& name = "frame", color_space space = B_RGB32);

// count frames of that size, all with one picture.
std::vector<FramePointer> SameFrames(int32 count, int32 width, int32 height);

FrameSequence SequenceOf(const std::vector<FramePointer>& frames);

// Makes the frames the document's, the one selected current, and shows them.
void ShowFrames(ShownDocument& shown, AnimationDocument& document,
                const std::vector<FramePointer>& frames, int32 selected);

// No file panels at all.
class NoPanels : public FilePanelSource {
  public:
    FilePanel* GetPanel(FilePanelKind) override { return nullptr; }
};

// FakeRoster's pictures as Targa files too.
class TargaRoster : public FakeRoster {
  public:
    static constexpr translator_id kTargaId = 3;
    static constexpr uint32 kTargaFormat = FourCharCode("TGA ");

    bool has_targa = true;

    std::vector<translator_id> Translators() const override;
    std::vector<translation_format> OutputFormats(translator_id translator) const override;
    using FakeRoster::Translate;
    status_t Translate(const BBitmap& source, translator_id translator, uint32 format,
                       const BMessage& settings, BFile& destination) override;
};

// The frame area in thumbnail mode, with its messages recorded.
struct ThumbnailFixture {
    DocumentFixture fixture;
    NoPanels panels;
    TargaRoster roster;
    std::shared_ptr<PortRecorder> application = std::make_shared<PortRecorder>();
    std::shared_ptr<PortRecorder> window = std::make_shared<PortRecorder>();
    Editor editor{fixture.document, BMessenger(application), panels, roster, nullptr};
    ShownDocument shown;
    std::unique_ptr<ThumbnailView> view;

    // Shows the frames in a view of that size, the one selected current; on the screen unless
    // hidden.
    explicit ThumbnailFixture(const std::vector<FramePointer>& frames, int32 selected = 0,
                              QSize size = {400, 400});
    ThumbDrawingView& Grid() { return *view->DrawingView(); }
    ThumbScrollView& Scroll();
    // The middle of a thumbnail, in the grid's coordinates.
    QPoint MiddleOf(int32 index);
    // The numbers of the frames that the application was asked to select, which are forgotten.
    std::vector<int32> TakeSelected();
    // Shows other frames.
    void Show(const std::vector<FramePointer>& frames, int32 selected = 0);
    // Shows another frame as the current one.
    void Select(int32 index);
};

// Handles all events that wait.
void HandleEvents();

}  // namespace kirto::test
