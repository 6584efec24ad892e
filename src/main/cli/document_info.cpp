#include "main/cli/document_info.h"

#include <nlohmann/json.hpp>

#include "platform/md5.h"
#include "platform/terminal_text.h"
#include "platform/text.h"

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

Json FrameJson(const Frame& frame) {
    return {{"index", frame.index},
            {"name", frame.name},
            {"width", frame.width},
            {"height", frame.height},
            {"x_offset", frame.x_offset},
            {"y_offset", frame.y_offset},
            {"pause_length", frame.pause_length},
            {"use_pause", frame.use_pause},
            {"local_palette", frame.local_palette},
            {"palette", PaletteJson(*frame.palette)},
            {"md5", Md5Hex(frame.bitmap->Bits(), frame.bitmap->BitsLength())}};
}

}  // namespace

std::string DescribeDocument(const AnimationDocument& document, bool for_terminal) {
    const auto shown = [for_terminal](const std::string& name) {
        return for_terminal ? TerminalText(name) : name;
    };
    const Palette& palette = *document.global_palette;
    const bool in_seconds = document.prefs.global_pauseinseconds;
    std::string text = Format("%s: %d x %d, %d frame(s), %s\n", shown(document.file_name).c_str(),
                              document.global_width, document.global_height, document.frame_count,
                              document.modified ? "modified" : "unmodified");
    text += "loop: " + (document.use_loop ? std::to_string(document.loop_count) : "off") +
            (document.use_loop && document.loop_count == 0 ? " (for ever)\n" : "\n");
    text +=
        "pause: " + PauseText(document.use_pause_global, document.pause_length_global, in_seconds) +
        "\n";
    text +=
        Format("palette: %s, %d colours, background %d, transparent %s%s\n", KindName(palette.mode),
               palette.size, palette.background_index,
               palette.use_transparent ? std::to_string(palette.transparent_index).c_str() : "off",
               palette.dither ? ", dithered" : "");
    for (const Frame* frame = document.first_frame; frame; frame = frame->next) {
        const std::string pause = PauseText(frame->use_pause, frame->pause_length, in_seconds);
        text += Format("%c %4d  %-24s %d x %d at %d,%d  pause %s  %s\n",
                       frame->index == document.selected ? '*' : ' ', frame->index,
                       shown(frame->name).c_str(), frame->width, frame->height, frame->x_offset,
                       frame->y_offset, pause.c_str(),
                       frame->local_palette ? KindName(frame->palette->mode) : "global palette");
    }
    return text;
}

std::string DescribeDocumentAsJson(const AnimationDocument& document, bool for_terminal) {
    Json frames = Json::array();
    for (const Frame* frame = document.first_frame; frame; frame = frame->next) {
        frames.push_back(FrameJson(*frame));
    }
    const Json json = {{"file_name", document.file_name},
                       {"global_width", document.global_width},
                       {"global_height", document.global_height},
                       {"use_loop", document.use_loop},
                       {"loop_count", document.loop_count},
                       {"use_pause_global", document.use_pause_global},
                       {"pause_length_global", document.pause_length_global},
                       {"modified", document.modified.load()},
                       {"selected", document.selected},
                       {"frame_count", document.frame_count},
                       {"global_palette", PaletteJson(*document.global_palette)},
                       {"frames", frames}};
    return json.dump(2, ' ', for_terminal, Json::error_handler_t::replace) + "\n";
}

}  // namespace kirto
