// Arbitrary bytes as the requests of a program, with files that come along: a decoder answers each
// with one message, or ends. The first byte of a request says which file comes along.
#include <cstdlib>
#include <cstring>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include "kit/bitmap.h"
#include "main/decode/decode_service.h"

namespace {

using kirto::DecodeAnswer;
using kirto::DecodeRequest;

constexpr int kMostRequests = 16;

void Check(bool holds) {
    if (!holds) std::abort();
}

// An animation of as many frames as its file has bytes.
class Stripes : public kirto::AnimatedImageReader {
  public:
    explicit Stripes(size_t frames) : left_(frames) {}
    Result ReadHeader(kirto::AnimatedImageHeader* header) override {
        if (left_ == 0) return Result::kBroken;
        *header = {kSide, kSide, static_cast<int32>(left_), 0};
        return Result::kFrame;
    }
    Result Next() override { return left_-- > 0 ? Result::kFrame : Result::kEnd; }
    const uint8* Row(int32) const override { return row_; }
    double Milliseconds() const override { return 40; }

  private:
    static constexpr int32 kSide = 8;
    size_t left_;
    uint8 row_[4 * kSide] = {};
};

// Reads every file as a picture whose sides its first two bytes are.
class Roster : public BTranslatorRoster {
  public:
    status_t Translate(BFile& source, std::shared_ptr<kirto::PixelBudget> budget,
                       std::shared_ptr<BBitmap>* result) override {
        uint8 sides[2];
        if (!source.ReadExactly(sides, sizeof(sides))) return B_NO_TRANSLATOR;
        if (sides[0] == 0 || sides[1] == 0) return B_NO_TRANSLATOR;
        auto bitmap =
            std::make_shared<BBitmap>(BRect::OfSize(sides[0], sides[1]), B_RGBA32, budget);
        if (bitmap->InitCheck() != B_OK) return B_NO_MEMORY;
        *result = std::move(bitmap);
        return B_OK;
    }
    std::unique_ptr<kirto::AnimatedImageReader> ReadAnimatedImage(kirto::AnimatedImageFormat,
                                                                  std::span<const uint8> file,
                                                                  uint64) const override {
        return std::make_unique<Stripes>(file.size());
    }
    status_t Translate(const BBitmap&, translator_id, uint32, const BMessage&, BFile&) override {
        return B_ERROR;
    }
    std::vector<translator_id> Translators() const override { return {}; }
    bool GetTranslatorInfo(translator_id, std::string*) const override { return false; }
    std::vector<translation_format> InputFormats(translator_id) const override { return {}; }
    std::vector<translation_format> OutputFormats(translator_id) const override { return {}; }
    BMessage DefaultSettings(translator_id) const override { return BMessage(); }
};

kirto::FileDescriptor FileOf(uint8 how) {
    if (how % 8 == 7) return {};
    kirto::FileDescriptor file(memfd_create("file", MFD_CLOEXEC));
    const uint8 bytes[7] = {how, static_cast<uint8>(how / 8), 1, 2, 3, 4, 5};
    Check(write(file.Get(), bytes, how % 8) == how % 8);
    return file;
}

// Answers make sense whatever was asked.
void CheckAnswers(kirto::DecodeChannel& program) {
    for (;;) {
        DecodeAnswer answer{};
        kirto::FileDescriptor pixels;
        if (program.Receive(std::as_writable_bytes(std::span(&answer, 1)), &pixels,
                            std::chrono::milliseconds(0)) !=
            kirto::DecodeChannel::Received::kMessage) {
            return;
        }
        Check(answer.width >= 0 && answer.height >= 0 && answer.reserved == 0);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    auto ends = kirto::DecodeChannel::MakePair();
    Check(ends.has_value());
    const int sending = ends->first.Get();
    kirto::DecodeChannel program(std::move(ends->first));
    // Requests are of their size, but for one of what is left.
    for (int i = 0; i < kMostRequests && size > 1; ++i) {
        const size_t bytes = std::min(size - 1, sizeof(DecodeRequest));
        const kirto::FileDescriptor file = FileOf(data[0]);
        Check(program.Send({reinterpret_cast<const std::byte*>(data + 1), bytes}, file.Get()));
        data += bytes + 1;
        size -= bytes + 1;
    }
    Check(shutdown(sending, SHUT_WR) == 0);
    kirto::DecodeChannel channel(std::move(ends->second));
    Roster roster;
    kirto::DecodeService(channel, roster).Run();
    CheckAnswers(program);
    return 0;
}
