// Opening animation files into a document: the decoders, and what is worked out once they are done.
#pragma once

#include <string>

#include "base/core_text.h"
#include "document/animation_document.h"
#include "formats/gif/harmless_cause.h"
#include "formats/video/video_cut.h"
#include "kit/file.h"
#include "kit/translator_roster.h"

namespace kirto {

inline constexpr const char* kUnreadableAnimationText =
    CoreText::Later("The animation can't be opened because it was corrupted or unreadable.");
inline constexpr const char* kNoVideoProgramsText = CoreText::Later(
    "The video can't be opened because the program ffmpeg was not found. Install the package "
    "\"ffmpeg\".");

enum class AnimationType { kNone, kGif, kFli, kWebp, kApng, kVideo };

// Whether it is a WebP or PNG.
bool IsAnimatedImage(AnimationType type);

// What kind of animation the name or the MIME type says a file is. The name parts match anywhere in
// the leaf name, case-sensitively; GIF is tested first.
AnimationType ClassifyAnimation(const std::string& leaf_name, const std::string& mime_type);
// Looks at the file's first bytes only, and sets the position back to the start. A WebP or PNG
// counts when it is animated.
AnimationType ClassifyContent(BFile* file);
// By name and type, or, where these tell nothing, as an animated WebP or PNG by its first bytes:
// those have the names of still images.
AnimationType ClassifyFile(const std::string& path, const std::string& mime_type);

// The cause as a clause: "an image is larger than the screen"; null for kNone.
const char* TextOf(HarmlessCause cause);

// A file that was refused though browsers open it.
struct BrowsersOffer {
    HarmlessCause cause = HarmlessCause::kNone;  // kNone: there is no such file
    bool accepted = false;  // the user wants it as browsers show it; what was decoded is left
};

// Decodes the file into the document from the position on. On failure tells the user if memory ran
// out, asks whether to keep what was decoded ("Salvage", the default if the document had other
// frames before) or not ("OK", which resets the document), and returns false either way. When the
// document's work is stopped, keeps what was decoded and returns false. After a GIF, palettes are
// recognized and the commonest pause becomes the animation's; a FLI animation loops forever. offer:
// where it is not null, the user may also want the file as browsers show it, if they do.
bool OpenGif(BFile* file, int32 position, AnimationDocument& document,
             BrowsersOffer* offer = nullptr);
bool OpenFli(BFile* file, int32 position, AnimationDocument& document,
             BrowsersOffer* offer = nullptr);

// An animated WebP or PNG, as above, read by the roster.
bool OpenAnimatedImage(AnimationType type, BFile* file, int32 position, AnimationDocument& document,
                       const BTranslatorRoster& roster);

// What the cut takes of a video, as above, read by the programs ffprobe and ffmpeg; where they are
// missing the user is told which package has them.
bool OpenVideo(const std::string& path, const VideoCut& cut, int32 position,
               AnimationDocument& document);

// A GIF, FLI or FLC.
bool OpenAnimation(AnimationType type, BFile* file, int32 position, AnimationDocument& document,
                   BrowsersOffer* offer);

}  // namespace kirto
