#pragma once

#include <memory>

#include "animation/frame_sequence.h"
#include "document/document_state.h"

namespace kirto {

// The animation's canvas as browsers show it with nothing but that frame on it, once a GIF file has
// been saved by the settings: through the palette and the dithering that the save uses. The frame
// is written and read as it would be, in memory, so it takes as long as that does. Null where it
// can't be written or memory is short. frame: within the animation's. Says nothing to anybody; any
// thread may call it.
std::shared_ptr<const Picture> SavedPicture(const DocumentState& state, int32 frame);

}  // namespace kirto
