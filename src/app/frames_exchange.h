// Frames as bytes, for the clipboard and for drags between two editors.
#pragma once

#include <vector>

#include "base/types.h"
#include "document/animation_document.h"
#include "kit/message.h"
#include "kit/translator_roster.h"

namespace kirto {

// The type under which editors exchange frames with everything that belongs to them. The bytes are
// those of a recovery file.
inline constexpr const char* kFramesType = "application/x-kirto-frames";
inline constexpr const char* kGifType = "image/gif";

// These may be called on any thread.

// The selected frames of the state, with all that belongs to them. Empty without frames, and when
// memory is short.
std::vector<uint8> PackFrames(const DocumentState& state);
// The selected frames as an animated GIF that browsers show as the window does. Empty as above.
std::vector<uint8> PackAsGif(const DocumentState& state);

// Carries out kPasteFrames: tells the user when the bytes are nothing that can be read, or memory
// runs out. On the application's thread. False when the document's work was stopped; what was
// complete stays.
bool PasteFrames(AnimationDocument& document, const BMessage& message, BTranslatorRoster& roster);

}  // namespace kirto
