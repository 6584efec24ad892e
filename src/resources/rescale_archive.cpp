#include "resources/rescale_archive.h"

#include "resources/window_archive.h"

namespace kirto {

namespace {

// Of layouts that don't say what font they were drawn with, in pixels.
constexpr float kUsualFontHeight = 11.9873046875f;
constexpr float kNoFactor = 0.001f;
constexpr float kExtraRoom = 1.03f;

float FactorFor(const BMessage& archive, float font_height) {
    float drawn_height = kUsualFontHeight;
    archive.FindFloat(kArchiveFontHeight, &drawn_height);
    return font_height / drawn_height;
}

void MultiplyFrames(BMessage* archive, float factor) {
    BRect frame;
    if (archive->FindRect(kArchiveFrame, &frame) == B_OK) {
        const auto grown = [factor](float coordinate) { return coordinate * factor + 0.5f; };
        archive->ReplaceRect(kArchiveFrame, BRect(grown(frame.left), grown(frame.top),
                                                  grown(frame.right), grown(frame.bottom)));
    }
    BMessage view;
    for (int32 i = 0; archive->FindMessage(kArchiveViews, &view, i) == B_OK; ++i) {
        MultiplyFrames(&view, factor);
        archive->ReplaceMessage(kArchiveViews, view, i);
    }
}

}  // namespace

BMessage RescaleArchive(BMessage archive, float factor, float font_height) {
    if (factor < kNoFactor) factor = FactorFor(archive, font_height);
    if (factor > 0.99f && factor < 1.01f) return archive;
    MultiplyFrames(&archive, factor * kExtraRoom);
    return archive;
}

}  // namespace kirto
