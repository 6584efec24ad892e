#pragma once

namespace kirto {

// Why a file is refused by the defined rules though browsers and players show all of it.
enum class HarmlessCause {
    kNone,               // it is damaged, or not refused
    kShortCodes,         // an image has codes for fewer colors than its palette has
    kImageBeyondScreen,  // an image is larger than the screen
    kMissingTrailer,     // the file ends behind an image
    kUnknownRecord       // a FLI or FLC file has a record of a type that nobody knows
};

}  // namespace kirto
