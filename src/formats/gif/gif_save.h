#pragma once

#include <memory>

#include "document/animation_document.h"
#include "formats/gif/gif_frame_encoder.h"
#include "kit/file.h"

// Writes a document's animation, as it is at the start, as an animated GIF89a. The constructor does
// all the work; the document's work tells how far it is, and when that is stopped the file is not
// complete. Several threads encode the frames; the bytes do not depend on their number. Write
// results are not checked here: the file remembers its first error. The layout is described in
// docs/formats/gif.md.
class GifSave {
  public:
    // file: empty and writable; this object shares it with the caller, who commits it afterward.
    GifSave(std::shared_ptr<BFile> file, AnimationDocument& document);

  private:
    void WriteGifHeader();
    void WriteFrames(AnimationDocument& document);
    void Write(const kirto::ByteWriter& bytes);

    const std::shared_ptr<BFile> file_;
    const std::shared_ptr<const kirto::Animation> animation_;
    const kirto::GifSaveOptions options_;
};
