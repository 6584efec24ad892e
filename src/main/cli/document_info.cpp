#include "main/cli/document_info.h"

#include <nlohmann/json.hpp>

#include "base/md5.h"
#include "base/terminal_text.h"
#include "base/text.h"

namespace kirto {

namespace {

using Json = nlohmann::ordered_json;

const char* KindName(int32 mode) {
    switch (mode) {
        case kPaletteWebSafe:
            return "web safe";
        case kPaletteSystem:
            return "system";
        case kPaletteGreyscale:
            return "greyscale";
        case kPaletteFirstFrame:
            return "first frame";
        case kPaletteCurrentFrame:
            return "current frame";
        case kPaletteOptimal:
            return "optimal";
        case kPaletteFromFile:
            return "from a file";
        default:
            return "awaiting a file";
    }
}

std::string PauseText(bool used, double pause, bool in_seconds) {
    if (!used) return "off";
    return Format("%01.2f %s", pause, in_seconds ? "s" : "hundredths");
}

Json PaletteJson(const Palette& palette) {
    Json colors = Json::array();
    for (int32 i = 0; i < palette.size; ++i) {
        const rgb_color color = palette.ColorForIndex(i);
        colors.push_back(Format("%02x%02x%02x", color.red, color.green, color.blue));
    }
    return {{"mode", palette.mode},
            {"size", palette.size},
            {"bits", palette.bits},
            {"unique_colors", palette.unique_colors},
            {"background_index", palette.background_index},
            {"transparent_index", palette.transparent_index},
            {"use_transparent", palette.use_transparent},
            {"dither", palette.dither},
            {"colors", colors}};
}

std::string PictureDigest(const Picture& picture) {
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    Md5 digest;
    for (int32 y = 0; picture.HasRows() && y < picture.Height(); ++y) {
        picture.ReadRow(y, row.data());
        digest.Add(row.data(), row.size());
    }
    return digest.Finish();
}

Json FrameJson(const Frame& frame, int32 index) {
    return {{"index", index},
            {"name", frame.name},
            {"width", frame.width},
            {"height", frame.height},
            {"x_offset", frame.x_offset},
            {"y_offset", frame.y_offset},
            {"pause_length", frame.pause_length},
            {"use_pause", frame.use_pause},
            {"local_palette", frame.local_palette},
            {"palette", PaletteJson(*frame.palette)},
            {"md5", PictureDigest(*frame.bitmap)}};
}

}  // namespace

std::string DescribeDocument(const DocumentState& document, bool in_seconds, bool for_terminal) {
    const auto shown = [for_terminal](const std::string& name) {
        return for_terminal ? TerminalText(name) : name;
    };
    const Animation& animation = *document.animation;
    const Palette& palette = *animation.palette;
    std::string text = Format("%s: %d x %d, %d frame(s), %s\n", shown(document.file_name).c_str(),
                              animation.width, animation.height, animation.frames.Size(),
                              document.modified ? "modified" : "unmodified");
    text += "loop: " + (animation.use_loop ? std::to_string(animation.loop_count) : "off") +
            (animation.use_loop && animation.loop_count == 0 ? " (forever)\n" : "\n");
    text += "pause: " + PauseText(animation.use_pause, animation.pause_length, in_seconds) + "\n";
    text +=
        Format("palette: %s, %d colors, background %d, transparent %s%s\n", KindName(palette.mode),
               palette.size, palette.background_index,
               palette.use_transparent ? std::to_string(palette.transparent_index).c_str() : "off",
               palette.dither ? ", dithered" : "");
    int32 index = 0;
    for (const FramePointer& frame : animation.frames) {
        const std::string pause = PauseText(frame->use_pause, frame->pause_length, in_seconds);
        text += Format("%c %4d  %-24s %d x %d at %d,%d  pause %s  %s\n",
                       index == animation.selected ? '*' : ' ', index, shown(frame->name).c_str(),
                       frame->width, frame->height, frame->x_offset, frame->y_offset, pause.c_str(),
                       frame->local_palette ? KindName(frame->palette->mode) : "global palette");
        ++index;
    }
    return text;
}

std::string DescribeDocumentAsJson(const DocumentState& document, bool for_terminal) {
    const Animation& animation = *document.animation;
    Json frames = Json::array();
    int32 index = 0;
    for (const FramePointer& frame : animation.frames)
        frames.push_back(FrameJson(*frame, index++));
    const Json json = {{"file_name", document.file_name},
                       {"global_width", animation.width},
                       {"global_height", animation.height},
                       {"use_loop", animation.use_loop},
                       {"loop_count", animation.loop_count},
                       {"use_pause_global", animation.use_pause},
                       {"pause_length_global", animation.pause_length},
                       {"modified", document.modified},
                       {"selected", animation.selected},
                       {"frame_count", animation.frames.Size()},
                       {"global_palette", PaletteJson(*animation.palette)},
                       {"frames", frames}};
    return json.dump(2, ' ', for_terminal, Json::error_handler_t::replace) + "\n";
}

}  // namespace kirto
