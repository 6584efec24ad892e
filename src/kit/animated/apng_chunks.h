#pragma once

#include <optional>
#include <span>
#include <vector>

#include "base/types.h"

namespace kirto {

// What an APNG says of a frame: chunk fcTL.
struct ApngControl {
    enum class Dispose : uint8 { kNone, kBackground, kPrevious };

    int32 width = 0;  // pixels; never 0
    int32 height = 0;
    int32 x = 0;  // on the canvas, within which all of it lies
    int32 y = 0;
    double milliseconds = 0.0;
    Dispose dispose = Dispose::kNone;
    bool over = false;  // drawn over what is there; else in its place
};

// What stands in front of the frames of an APNG: chunks IHDR and acTL.
struct ApngStart {
    int32 width = 0;  // pixels
    int32 height = 0;
    int32 frame_count = 0;
    int32 plays = 0;  // 0: for ever
};

// Takes an APNG apart into the images of its frames, each as a PNG of its own. Chunks whose
// checksums are wrong count as damage. Used by one thread.
// Format: PNG specification, third edition, "5 Datastream structure" and "11.3.6 APNG: animated
// PNG".
class ApngChunks {
  public:
    // file: all of its bytes, which outlive this.
    explicit ApngChunks(std::span<const uint8> file) : left_(file) {}

    // Nothing when this is no APNG. Called once, first.
    std::optional<ApngStart> ReadStart();
    // Reads on to the end of the next frame's image. Nothing at the end of the file, or where it is
    // damaged.
    std::optional<ApngControl> NextImage();
    // The image of that frame as a PNG file.
    std::span<const uint8> Image() const { return image_; }
    // True at the end of a whole file.
    bool AtEnd() const { return at_end_; }

  private:
    struct Chunk {
        uint32 type = 0;
        std::span<const uint8> content;
    };

    std::optional<Chunk> Read();
    // What the images have in common.
    void KeepForAll(const Chunk& chunk);
    bool TakeSequence(std::span<const uint8> content);
    std::optional<ApngControl> TakeControl(std::span<const uint8> content);
    void BeginImage(const ApngControl& control);
    // first: of the image's data.
    void AppendData(std::span<const uint8> content, bool first);

    std::span<const uint8> left_;
    ApngStart start_;
    std::vector<uint8> header_;         // content of IHDR
    std::vector<uint8> common_chunks_;  // whole chunks that each image needs
    std::optional<Chunk> pending_;      // was read, and belongs to what follows
    uint32 next_sequence_ = 0;
    bool at_end_ = false;
    std::vector<uint8> image_;
};

}  // namespace kirto
