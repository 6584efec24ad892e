// Files as giflib reads them. Only where KIRTO_HAVE_GIFLIB is defined.
#pragma once

#ifdef KIRTO_HAVE_GIFLIB

#include <gif_lib.h>
#include <vector>

#include "support/meant_picture.h"

namespace kirto::test {

// A file as giflib has read it, with interlaced rows in their places.
class Slurped {
  public:
    // The bytes must outlive the object.
    explicit Slurped(const std::vector<uint8>& bytes);
    ~Slurped();
    Slurped(const Slurped&) = delete;
    Slurped& operator=(const Slurped&) = delete;

    // Read without an error, and up to the last byte. Nothing else may be asked for otherwise.
    bool Complete() const { return complete_; }
    GifFileType& Gif() const { return *gif_; }
    const SavedImage& Image(int32 i) const { return gif_->SavedImages[i]; }
    // Of the graphic control block before the image; all 0 without one.
    GraphicsControlBlock Control(int32 i) const;
    Pixels ImagePixels(int32 i) const;

  private:
    static int Read(GifFileType* gif, GifByteType* buffer, int size);

    const std::vector<uint8>& bytes_;
    size_t position_ = 0;
    GifFileType* gif_ = nullptr;
    bool complete_ = false;
};

}  // namespace kirto::test

#endif
