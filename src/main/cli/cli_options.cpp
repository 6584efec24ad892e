#include "main/cli/cli_options.h"

namespace kirto {

namespace {

constexpr OptionText kOperations[] = {
    {"--set", "KEY=VALUE", "Change a setting for the rest of this run"},
    {"--faithful", nullptr, "From here on, read and save animations as browsers do"},
    {"--open", "FILE",
     "Open a GIF, FLI, FLC, WebP or APNG animation, or a video, in place of the current one"},
    {"--insert-animation", "FILE@N", "Insert an animation's frames before frame N"},
    {"--video", "PART",
     "Take a part of the video named right before this: [START][-END] in seconds, [@N] frames a "
     "second, [:WxH], [:Wx] or [:xH] pixels large, [,crop=WxH+X+Y] of its pictures"},
    {"--insert", "FILE[@N]", "Insert an image as frame N, or after the current frame"},
    {"--insert-tiled", "FILE,ROWS,COLUMNS[,by-column]",
     "Cut an image into frames; [,margin=N] around and [,spacing=N] between them, [,skip-empty] "
     "without those that are transparent; FILE,tile=WxH by their size, FILE.json as it says"},
    {"--fade", "MODE:COUNT[:RRGGBB]",
     "Fade the current frame: to-color, from-color, to-next or from-previous"},
    {"--select", "FRAMES",
     "Select frames: 3, 0-9, 0-20/2, 0,4,7, -1 or all (the first is 0, the last -1)"},
    {"--remove", nullptr, "Remove the selected frames"},
    {"--move-up", nullptr, "Move the selected frames one place toward the start"},
    {"--move-down", nullptr, "Move the selected frames one place toward the end"},
    {"--reverse", nullptr, "Reverse the order of all frames, or of several that are selected"},
    {"--move-to", "N", "Move the selected frames before frame N"},
    {"--copy-to", "N", "Copy the selected frames before frame N"},
    {"--duplicate", nullptr, "Copy the selected frames behind the last of them"},
    {"--ping-pong", nullptr, "Play forward and back again*"},
    {"--shift-start", nullptr, "Begin with the current frame"},
    {"--every", "N", "Drop every N-th frame and keep the duration*"},
    {"--remove-duplicates", "[TOLERANCE]",
     "Merge frames that show the same, or channels no more than 0 to 255 apart*"},
    {"--delay", "[FRAMES:]PAUSE", "Set the pause: 4, 40ms, 25fps or 150%*"},
    {"--fps", "X", "Show so many frames a second*"},
    {"--speed", "X%", "Play so much faster or slower*"},
    {"--width", "N", "Set the animation's width in pixels"},
    {"--height", "N", "Set the animation's height in pixels"},
    {"--loop", "N|off", "Play N times (0 = forever, off = play once)"},
    {"--pause", "X|off", "Set the pause of frames that have none of their own"},
    {"--palette", "web-safe|system|greyscale|first-frame|current-frame|FILE",
     "Choose the animation's palette"},
    {"--dither", "on|off", "Approximate missing colors by dithering"},
    {"--transparent", "N|off", "Set the palette index of the transparent color"},
    {"--background", "N", "Set the palette index of the background color"},
    {"--frame-offset", "X,Y", "Set the current frame's offset in pixels"},
    {"--frame-pause", "X|off", "Give the current frame its own pause"},
    {"--frame-palette", "off|web-safe|system|greyscale|optimal|FILE",
     "Give the current frame its own palette"},
    {"--resize", "WxH|Wx|xH|N%[:FILTER]",
     "Scale the animation: nearest, bilinear or lanczos (the rule)"},
    {"--crop", "WxH+X+Y|transparent|changes",
     "Cut the animation to a rectangle, to what is not transparent, or to what changes"},
    {"--canvas", "WxH[:ANCHOR]",
     "Change the canvas around the animation: top-left, top, top-right, left, center (the rule), "
     "right, bottom-left, bottom or bottom-right"},
    {"--rotate", "90|180|270", "Turn the animation clockwise"},
    {"--flip", "h|v", "Mirror the animation"},
    {"--fit", "scale|pad|crop|SIZE",
     "Make the selected frames fit the canvas; with a SIZE such as 500KB or 8MiB, what is exported "
     "from here on is no larger"},
    {"--adjust", "NAME=N[,...]",
     "Change the selected frames' brightness, contrast or saturation by -100 to 100"},
    {"--greyscale", nullptr, "Make the selected frames grey"},
    {"--opacity", "N%", "Make the selected frames translucent"},
    {"--overlay", "FILE[@X,Y[:N%]]", "Draw an image over the selected frames"},
    {"--text", "TEXT[,NAME=VALUE...]",
     "Draw a text on the selected frames: [,font=NAME] [,size=N] [,color=RRGGBB] "
     "[,outline=N:RRGGBB] [,at=ANCHOR] or [,x=N] [,y=N], [,fade-in=N] [,fade-out=N] in frames"},
    {"--make-transparent", "RRGGBB[:TOLERANCE]",
     "Make a color, and those near it, transparent in the selected frames"},
    {"--undo", "[N]", "Undo the last change, or the last N"},
    {"--redo", "[N]", "Redo the last undone change, or the last N"},
    {"--save", "FILE.gif", "Save as an animated GIF"},
    {"--save-sequence", "NAME.EXT", "Save each frame as an image NAME0000.EXT, NAME0001.EXT, ..."},
    {"--save-frame", "FILE.EXT", "Save the current frame as an image"},
    {"--save-sheet", "FILE.png[,columns=N][,padding=N][,pot]",
     "Save frames side by side in one image, and FILE.json, which says where they are*"},
    {"--export", "FILE",
     "Write the animation as .gif, .webp, .png (animated), .mp4 or .webm, whatever the file's "
     "name ends in"},
    {"--export-set", "NAME=VALUE",
     "From here on, export with colors (2-256), loss (0-200), table (one, each), dither (none, "
     "diffusion, ordered), strength (percent), areas (changed, whole), quality (0-100, lossless), "
     "matte (RRGGBB), scale (percent), every (n-th frame), format (sheet, images, file), columns, "
     "padding"},
    {"--list-formats", nullptr, "List the image formats that can be read and written"},
    {"--preview", nullptr, "Show the animation in the web browser"},
    {"--info", nullptr, "Describe the animation"},
    {"--info-json", nullptr, "Describe the animation as one JSON object"},
};

constexpr OptionText kSettings[] = {
    {"--help", nullptr, "Print this help"},
    {"--version", nullptr, "Print the version"},
    {"--salvage", nullptr, "Keep the frames before the damage when an animation is damaged"},
    {"--verify", nullptr, "After each --save, tell how browsers will show the animation otherwise"},
    {"--if-newer", nullptr,
     "Do nothing where all saved files are newer than all that would be read"},
    {"--json-errors", nullptr, "Say what fails as JSON objects, a line each; as --quiet otherwise"},
    {"--retry-status", "N",
     "End with this status where another try may succeed: stopped, memory or disk full"},
    {"--quiet", nullptr, "Show no progress and no debug lines"},
    {"--format", "NAME", "Write images in this format, whatever their extension"},
    {"--memory-limit", "MIB", "Limit the memory of the frames"},
    {"--threads", "N", "Work with so many threads at a time"},
};

}  // namespace

std::span<const OptionText> CliOperations() {
    return kOperations;
}

std::span<const OptionText> CliSettings() {
    return kSettings;
}

}  // namespace kirto
