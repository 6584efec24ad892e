// The X Window System's way for a drop target to say where it wants a file: in a property of the
// drag's source window. Everything here does nothing on other platforms. GUI thread.
#pragma once

#include <optional>
#include <string>

namespace kirto {

// What a source answers the target with.
inline constexpr char kDirectSaveType[] = "XdndDirectSave0";
inline constexpr char kDirectSaveDone[] = "S";
inline constexpr char kDirectSaveFailed[] = "E";

// True where windows speak X.
bool IsDirectSavePossible();

// Offers the file name to targets. Called when the drag has begun. The offer stands until the next
// one, as targets take it up after the drop.
void OfferDirectSave(const std::string& file_name);

// The path of the file that the target asks for; nothing when it names none on this machine.
std::optional<std::string> DirectSavePath();

}  // namespace kirto
