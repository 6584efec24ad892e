// Frames as Targa files.
#pragma once

#include <string>

#include "kit/bitmap.h"
#include "kit/translator_roster.h"

namespace kirto {

// The name of the file for a frame: the frame's, with the ending ".tga" if it has none, without
// slashes, and short enough for a file.
std::string TargaFileName(const std::string& frame_name);

// Writes the picture through the roster, with the file's MIME type "image/x-targa". False when no
// translator writes Targa or something fails; an existing file at path is then left alone.
bool WriteTargaFile(const BBitmap& picture, const std::string& path, BTranslatorRoster& roster);

}  // namespace kirto
