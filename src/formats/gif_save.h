#pragma once

#include <memory>
#include <vector>

#include "color/palette.h"
#include "color/sf_hash.h"
#include "document/animation_document.h"
#include "document/frame.h"
#include "formats/error_diffusion.h"
#include "formats/gif_lzw_encoder.h"
#include "platform/file.h"
#include "platform/types.h"

// Writes a document as an animated GIF89a. The construction does all the work; the caller holds the
// reader lock meanwhile. Write results are not checked here: the file remembers its first error.
class GifSave {
  public:
    // file: empty and writable; shared with the caller, who commits it. The loader's share ends with
    // this object.
    GifSave(std::shared_ptr<BFile> file, AnimationDocument& document);

  private:
    void WriteGifHeader();
    void WriteGifControlBlock(Frame* frame);
    void WriteGifImageHeader(Frame* frame);
    void WriteGifImageData(Frame* frame);

    std::shared_ptr<BFile> file_;
    AnimationDocument& document_;
};
