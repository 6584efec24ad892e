// What a recovery file holds, and the numbers that its reader and its writer share. The layout is
// described in docs/formats/recovery.md.
#pragma once

#include <string>
#include <string_view>

#include "animation/animation.h"
#include "base/types.h"

namespace kirto {

// What is told of a document before it is recovered.
struct RecoveryHead {
    int64 written = 0;           // seconds since 1970, when the file was written
    bool modified = false;       // since the document's last reset, open or save
    std::string file_name;       // as in DocumentState
    std::string file_directory;  // as in DocumentState
    int32 frame_count = 0;

    friend bool operator==(const RecoveryHead&, const RecoveryHead&) = default;
};

// A document as it was written.
struct RecoveryDocument {
    RecoveryHead head;
    Animation animation;
};

// What the writer writes and the reader accepts.
bool IsRecoverable(const Palette& palette);
// Without its palette.
bool IsRecoverable(const Frame& frame);

inline constexpr std::string_view kRecoveryMagic = "KirtoRcv";
inline constexpr uint32 kRecoveryVersion = 1;

// The kinds of blocks.
inline constexpr uint32 kRecoveryHead = 1;
inline constexpr uint32 kRecoveryPalette = 2;
inline constexpr uint32 kRecoveryPicture = 3;
inline constexpr uint32 kRecoveryFrame = 4;

// The ceilings on what a file may ask memory for, besides the pixels, which the budget counts.
inline constexpr int32 kMaxRecoveryFrames = int32{1} << 18;
inline constexpr size_t kMaxRecoveryName = 255;
inline constexpr size_t kMaxRecoveryDirectory = 65535;
// The largest block but for pictures: room for a head with the longest directory.
inline constexpr size_t kMaxRecoveryBlock = size_t{1} << 17;
// Bytes of packed data that reader and writer hold at a time.
inline constexpr size_t kRecoveryBuffer = size_t{1} << 17;
// Bytes of a block in front of what it holds.
inline constexpr size_t kRecoveryBlockHeader = 20;
// Bytes of a picture's block in front of its pixels.
inline constexpr size_t kRecoveryPictureHeader = 20;

// Blocks are packed with windows of up to 2^kRecoveryWindow bytes, the memory an unpacker needs.
inline constexpr int kRecoveryWindow = 20;

}  // namespace kirto
