// Recorders and small helpers shared by the tests.
#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "base/byte_order.h"
#include "base/debug_line.h"
#include "document/animation_document.h"
#include "kit/alert.h"
#include "kit/bitmap.h"
#include "kit/message_port.h"
#include "picture/picture.h"
#include "support/document_edits.h"

namespace kirto::test {

// Collects the debug lines of its lifetime, in order, as one text.
class DebugRecorder {
  public:
    DebugRecorder();
    ~DebugRecorder();
    std::string Text() const;

  private:
    mutable std::mutex mutex_;
    std::string text_;
    DebugSink previous_;
};

// An alert as "TYPE [title] text | button | button".
std::string AlertLine(const BAlert& alert);

// Answers alerts from a script and records their lines.
class AlertRecorder : public AlertPresenter {
  public:
    // answers: button indices in order; the last button once they are used up.
    explicit AlertRecorder(std::vector<int32> answers = {});
    ~AlertRecorder() override;
    int32 Present(const BAlert& alert) override;
    std::vector<std::string> Lines() const;

  private:
    mutable std::mutex mutex_;
    std::vector<int32> answers_;
    std::vector<std::string> lines_;
    AlertPresenter* previous_;
};

// Records posted messages as text: "auns", or "svup text=..." for a status text.
class PortRecorder : public MessagePort {
  public:
    status_t Post(BMessage message, handler_token handler) override;
    bool IsOpen() const override { return true; }
    // The messages so far, joined by single spaces; status texts as svup(TEXT).
    std::string Transcript() const;
    // The same, and forgets them.
    std::string TakeTranscript();
    std::vector<BMessage> Messages() const;

  private:
    mutable std::mutex mutex_;
    std::vector<BMessage> messages_;
};

// A document with built-in settings and a recorded window.
struct DocumentFixture {
    Prefs prefs{Prefs::BuiltIn{}};
    std::shared_ptr<PortRecorder> port = std::make_shared<PortRecorder>();
    AnimationDocument document{prefs, BMessenger(port)};
};

// A 32-bit picture of width x height pixels whose rows are given as 0xAARRGGBB values, row by row.
std::shared_ptr<BBitmap> PictureOf(int32 width, int32 height, const std::vector<uint32>& argb,
                                   color_space space = B_RGB32);
// The same as frames have it.
std::shared_ptr<const Picture> FramePictureOf(int32 width, int32 height,
                                              const std::vector<uint32>& argb,
                                              color_space space = B_RGB32);
// The pixels of a B_RGB32 or B_RGBA32 picture as 0xAARRGGBB values.
std::vector<uint32> PixelsOf(const BBitmap& bitmap);
std::vector<uint32> PixelsOf(const Picture& picture);
// The picture's pixel as a color; black with alpha 0 outside the picture and where it has no rows.
rgb_color PixelColor(const Picture* picture, int32 x, int32 y);

// Appends a frame with the picture, an optimal palette for it and the given name.
FrameHandle AppendFrame(AnimationDocument& document, std::shared_ptr<BBitmap> bitmap,
                        const std::string& name);

// A fresh folder below the system's temporary folder, removed with all its content.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    const std::string& Path() const { return path_; }
    // path/name
    std::string File(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

std::vector<uint8> ReadBytes(const std::string& path);
void WriteBytes(const std::string& path, const std::vector<uint8>& bytes);

// The four characters of a code.
std::string CodeText(uint32 code);

}  // namespace kirto::test
