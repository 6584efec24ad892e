#include "support/test_support.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "document/command_codes.h"

namespace kirto::test {

DebugRecorder::DebugRecorder() {
    previous_ = InstallDebugSink([this](const std::string& text) {
        const std::lock_guard lock(mutex_);
        text_ += text;
    });
}

DebugRecorder::~DebugRecorder() {
    InstallDebugSink(previous_);
}

std::string DebugRecorder::Text() const {
    const std::lock_guard lock(mutex_);
    return text_;
}

std::string AlertLine(const BAlert& alert) {
    static constexpr const char* kTypes[] = {"INFO", "IDEA", "WARNING", "STOP"};
    std::string line = std::string(kTypes[alert.Type() - B_INFO_ALERT]) + " [" + alert.Title() +
                       "] " + alert.Text();
    for (const std::string& button : alert.Buttons())
        line += " | " + button;
    return line;
}

AlertRecorder::AlertRecorder(std::vector<int32> answers)
    : answers_(std::move(answers)), previous_(InstallAlertPresenter(this)) {}

AlertRecorder::~AlertRecorder() {
    InstallAlertPresenter(previous_);
}

int32 AlertRecorder::Present(const BAlert& alert) {
    const std::lock_guard lock(mutex_);
    lines_.push_back(AlertLine(alert));
    const size_t asked = lines_.size() - 1;
    return asked < answers_.size() ? answers_[asked]
                                   : static_cast<int32>(alert.Buttons().size()) - 1;
}

std::vector<std::string> AlertRecorder::Lines() const {
    const std::lock_guard lock(mutex_);
    return lines_;
}

status_t PortRecorder::Post(BMessage message, handler_token) {
    const std::lock_guard lock(mutex_);
    messages_.push_back(std::move(message));
    return B_OK;
}

namespace {

std::string TranscriptOf(const std::vector<BMessage>& messages) {
    std::string transcript;
    for (const BMessage& message : messages) {
        if (!transcript.empty()) transcript += ' ';
        transcript += CodeText(message.what);
        std::string text;
        if (message.what == kStatusUpdate && message.FindString("text", &text) == B_OK) {
            transcript += "(" + text + ")";
        }
    }
    return transcript;
}

}  // namespace

std::string PortRecorder::Transcript() const {
    return TranscriptOf(Messages());
}

std::string PortRecorder::TakeTranscript() {
    const std::lock_guard lock(mutex_);
    return TranscriptOf(std::exchange(messages_, {}));
}

std::vector<BMessage> PortRecorder::Messages() const {
    const std::lock_guard lock(mutex_);
    return messages_;
}

std::shared_ptr<BBitmap> PictureOf(int32 width, int32 height, const std::vector<uint32>& argb,
                                   color_space space) {
    auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(width, height), space);
    for (size_t i = 0; i < argb.size(); ++i) {
        uint8* pixel = bitmap->Bits() + i * 4;
        for (size_t byte = 0; byte < 4; ++byte) {
            const size_t shift = IsBigEndian(space) ? 24 - byte * 8 : byte * 8;
            pixel[byte] = static_cast<uint8>(argb[i] >> shift);
        }
    }
    return bitmap;
}

std::shared_ptr<const Picture> FramePictureOf(int32 width, int32 height,
                                              const std::vector<uint32>& argb, color_space space) {
    return Picture::Of(PictureOf(width, height, argb, space));
}

std::vector<uint32> PixelsOf(const BBitmap& bitmap) {
    std::vector<uint32> pixels;
    for (size_t i = 0; i + 4 <= bitmap.BitsLength(); i += 4) {
        pixels.push_back(ReadLittle32(bitmap.Bits() + i));
    }
    return pixels;
}

std::vector<uint32> PixelsOf(const Picture& picture) {
    std::vector<uint32> pixels;
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    for (int32 y = 0; picture.HasRows() && y < picture.Height(); ++y) {
        picture.ReadRow(y, row.data());
        for (size_t i = 0; i < row.size(); i += 4)
            pixels.push_back(ReadLittle32(row.data() + i));
    }
    return pixels;
}

rgb_color PixelColor(const Picture* picture, int32 x, int32 y) {
    if (!picture || !picture->HasRows() || x >= picture->Width() || y >= picture->Height())
        return {};
    std::vector<uint8> row(static_cast<size_t>(picture->Width()) * 4);
    picture->ReadRow(y, row.data());
    const uint8* pixel = row.data() + static_cast<size_t>(x) * 4;
    if (IsBigEndian(picture->ColorSpace())) return {pixel[1], pixel[2], pixel[3], pixel[0]};
    return {pixel[2], pixel[1], pixel[0], pixel[3]};
}

FrameHandle AppendFrame(AnimationDocument& document, std::shared_ptr<BBitmap> bitmap,
                        const std::string& name) {
    Frame frame(name, bitmap->Width(), bitmap->Height());
    frame.bitmap = Picture::Of(std::move(bitmap));
    frame.palette = SharePalette(Palette(frame.bitmap.get()));
    const FrameId id = frame.id;
    document.InsertFrame(document.FrameCount(), std::move(frame));
    return {document, id};
}

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kirto-test-XXXXXX").string();
    if (mkdtemp(pattern.data())) path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
}

std::vector<uint8> ReadBytes(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    const std::vector<char> chars{std::istreambuf_iterator<char>(stream), {}};
    return {chars.begin(), chars.end()};
}

void WriteBytes(const std::string& path, const std::vector<uint8>& bytes) {
    std::ofstream stream(path, std::ios::binary);
    for (const uint8 byte : bytes)
        stream.put(static_cast<char>(byte));
}

std::string CodeText(uint32 code) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(code >> shift);
    return text;
}

}  // namespace kirto::test
