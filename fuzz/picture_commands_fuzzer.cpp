// Arbitrary bytes as frames at any place of a canvas of any size, and as a few commands that change
// their pictures: whatever numbers they have, what comes of them are sound frames or nothing, and
// undoing gives back what was before.
#include <cstdlib>
#include <limits>

#include "app/picture_commands.h"
#include "base/debug_line.h"
#include "document/command_codes.h"
#include "support/fake_roster.h"
#include "support/random_document.h"
#include "support/test_support.h"

using namespace kirto::test;

namespace {

constexpr uint64 kMemoryLimit = uint64{1} << 20;
constexpr int32 kFarthest = std::numeric_limits<int32>::max();
constexpr int32 kMostFrames = 4;
constexpr int32 kMostCommands = 4;
constexpr uint32 kCommands[] = {
    kirto::kResizeAnimation, kirto::kCropAnimation,  kirto::kSetCanvasSize, kirto::kRotateAnimation,
    kirto::kFlipAnimation,   kirto::kFitFrames,      kirto::kAdjustColors,  kirto::kSetOpacity,
    kirto::kDrawText,        kirto::kMakeTransparent};
constexpr const char* kPlaces[] = {"left", "top", "x", "y"};
constexpr const char* kChoices[] = {"filter",     "anchor",   "quarters",   "fit",
                                    "brightness", "contrast", "percent",    "color",
                                    "fade_in",    "fade_out", "saturation", "tolerance"};

void Check(bool holds) {
    if (!holds) std::abort();
}

// Mostly small.
int32 Number(ChoiceSource& choices, int32 least) {
    static constexpr int32 kEdges[] = {kFarthest, kFarthest - 1, 65536, 65535, 1000, 100, 9, 0};
    if (!choices.OneIn(4)) return choices.Between(least, 12);
    return std::max(kEdges[choices.Below(8)], least);
}

// A length of nothing, of little, or too large for a picture; the largest that there may be only
// beside a short one, as their pixels would take seconds to go through.
void Sides(ChoiceSource& choices, int32* width, int32* height) {
    *width = Number(choices, 0);
    *height = Number(choices, 0);
    if (*width == 65535 && *height == 65535) *height = 3;
}

std::shared_ptr<BBitmap> PictureSpelledBy(ChoiceSource& choices) {
    static constexpr color_space kSpaces[] = {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG};
    const int32 width = choices.Between(1, 9);
    const int32 height = choices.Between(1, 9);
    const color_space space = kSpaces[choices.Below(4)];
    std::vector<uint32> pixels;
    for (int32 i = 0; i < width * height; ++i)
        pixels.push_back(choices.Below(4) * 0x55000000 + choices.Below(4) * 0x00515335);
    return PictureOf(width, height, pixels, space);
}

void Fill(ChoiceSource& choices, AnimationDocument& document) {
    const int32 count = choices.Between(1, kMostFrames);
    for (int32 i = 0; i < count; ++i) {
        const FrameHandle frame = AppendFrame(document, PictureSpelledBy(choices), "frame");
        frame->x_offset = Number(choices, 0);
        frame->y_offset = Number(choices, 0);
    }
    int32 width = 0;
    int32 height = 0;
    Sides(choices, &width, &height);
    EditOf(document)->width = width;
    EditOf(document)->height = height;
    document.Select(choices.Between(0, count - 1));
    document.StartHistory();
}

BMessage Command(ChoiceSource& choices) {
    BMessage message(kCommands[choices.Below(std::size(kCommands))]);
    int32 width = 0;
    int32 height = 0;
    Sides(choices, &width, &height);
    message.AddInt32("width", width);
    message.AddInt32("height", height);
    for (const char* field : kPlaces)
        message.AddInt32(field, choices.OneIn(2) ? Number(choices, 0) : -Number(choices, 0));
    for (const char* field : kChoices)
        message.AddInt32(field, Number(choices, -1));
    if (choices.OneIn(3)) message.AddInt32("trim", choices.Between(0, 1));
    message.AddBool("across", choices.OneIn(2));
    message.AddBool("greyscale", choices.OneIn(2));
    const std::vector<uint8> image = RawPicture(*PictureSpelledBy(choices));
    message.AddData("image", B_RAW_TYPE, image.data(), image.size());
    return message;
}

void CheckFrames(const kirto::Animation& animation) {
    for (const kirto::FramePointer& frame : animation.frames) {
        Check(frame->bitmap && frame->bitmap->HasRows());
        Check(frame->width == frame->bitmap->Width() && frame->height == frame->bitmap->Height());
        Check(frame->x_offset >= 0 && frame->y_offset >= 0);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    kirto::InstallDebugSink([](const std::string&) {});
    ByteChoices choices(data, size);
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    Fill(choices, document);
    document.pixel_budget->SetLimit(kMemoryLimit);
    FakeRoster roster;
    for (int32 left = choices.Between(1, kMostCommands); left > 0; --left) {
        const kirto::Animation before = *document.Current();
        document.BeginStep();
        kirto::ApplyPictureEdit(document, Command(choices), roster);
        document.EndStep("Edit");
        const kirto::Animation after = *document.Current();
        CheckFrames(after);
        if (before == after) continue;
        Check(document.Undo() && *document.Current() == before);
        Check(document.Redo() && *document.Current() == after);
    }
    return 0;
}
