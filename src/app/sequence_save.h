#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/core_text.h"
#include "document/animation_document.h"
#include "kit/file.h"
#include "kit/message.h"
#include "kit/translator_roster.h"

namespace kirto {

// The alert when there is no such translator, or it can't write a frame.
inline constexpr const char* kInvalidTranslatorText =
    CoreText::Later("The animation can't be saved because the selected translator is not valid.");

// Saves a document as one image file per frame, several of which are encoded at a time. They are
// created, written and told of in the order of the frames, so that none is there unless all before
// it are. Used once, by the application's thread.
class SequenceSave {
  public:
    // How the files are written.
    struct Encoding {
        translator_id translator = 0;
        uint32 format = 0;
        BMessage settings;
    };

    // The document and the roster outlive this. The files are named as SequenceFileName does, of
    // the document's file.
    SequenceSave(AnimationDocument& document, BTranslatorRoster& roster, Encoding encoding);

    // B_CANCELED when the work was stopped; any other failure is told to the user. Nothing is left
    // of the file that was not complete then.
    status_t Save();
    // Files that are there.
    int32 Written() const { return written_; }

  private:
    // Pictures of more pixels are encoded at their turn, straight into their file.
    static constexpr uint64 kMostPixelsAhead = uint64{1} << 23;

    // A file's bytes, or null where it is to be encoded at its turn.
    using Ahead = std::shared_ptr<BFile>;

    // On a thread of several; nothing when memory is short.
    std::optional<Ahead> EncodeAhead(const Frame& frame) const;
    status_t Write(int32 index, const Ahead& ahead);
    // Encodes the frame into the file.
    status_t Encode(const Frame& frame, const std::shared_ptr<BFile>& file);

    AnimationDocument& document_;
    BTranslatorRoster& roster_;
    const Encoding encoding_;
    const std::shared_ptr<const DocumentState> state_;
    int32 written_ = 0;
};

}  // namespace kirto
