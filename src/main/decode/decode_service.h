#pragma once

#include <memory>
#include <span>

#include "base/allocation.h"
#include "kit/decoding/decode_channel.h"
#include "kit/decoding/decode_protocol.h"
#include "kit/translator_roster.h"

namespace kirto {

// Answers the requests that come through a channel, until its other end is closed.
class DecodeService {
  public:
    // roster: reads the files; outlives this.
    DecodeService(DecodeChannel& channel, BTranslatorRoster& roster)
        : channel_(channel), roster_(roster) {}

    void Run();

  private:
    void DecodePicture(const DecodeRequest& request, FileDescriptor file);
    void OpenAnimation(const DecodeRequest& request, FileDescriptor file);
    void DrawNextFrame();
    bool ReadFile(FileDescriptor descriptor);
    AnimatedImageReader::Result ReadHeader(const DecodeRequest& request, FileDescriptor file,
                                           DecodeAnswer* answer);
    bool Share(std::span<const uint8> bytes);
    // file: goes along; -1 for none.
    void Answer(const DecodeAnswer& answer, int file);

    static constexpr size_t kSmallSize = size_t{1} << 20;

    DecodeChannel& channel_;
    BTranslatorRoster& roster_;
    FileDescriptor pixels_;  // of the picture before
    size_t shared_size_ = 0;
    AllocatedArray<uint8> bytes_;  // of the animation
    size_t size_ = 0;
    std::unique_ptr<AnimatedImageReader> animation_;
    int32 width_ = 0;  // of its canvas
    int32 height_ = 0;
    FileDescriptor canvas_;
    bool going_on_ = true;
};

}  // namespace kirto
