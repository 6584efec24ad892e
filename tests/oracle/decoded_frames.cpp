// Prints what our own reader makes of animations when it reads as browsers do, for scripts to
// compare.
//
//   decoded_frames FILE...          one JSON object a line: {"repetitions", "frames": [[width,
//                                   height, microseconds, MD5 of the pixels], ...], "failed"}
//   decoded_frames --make N FOLDER  writes N animations made at random, 0.gif, 1.gif, ...
//                                   and a quarter as many animated PNG and WebP files each
//   decoded_frames --save N FOLDER  saves N animations faithfully, saved0.gif, saved1.gif, ...
//                                   and exports a quarter as many in each format
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/export/export_animation.h"
#include "app/open_animation.h"
#include "base/md5.h"
#include "base/text.h"
#include "formats/faithful/faithful_gif_save.h"
#include "kit/qt/qt_translator_roster.h"
#include "support/animated_image_file.h"
#include "support/random_gif.h"
#include "support/shown_animation.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

std::string DigestOf(const Picture& picture) {
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    Md5 digest;
    for (int32 y = 0; y < picture.Height(); ++y) {
        picture.ReadRow(y, row.data());
        digest.Add(row.data(), row.size());
    }
    return digest.Finish();
}

// As browsers say it: how often the animation is played after the first time.
std::string RepetitionsOf(const Animation& animation) {
    if (!animation.use_loop) return "0";
    return animation.loop_count == 0 ? "Infinity" : std::to_string(animation.loop_count);
}

int64 MicrosecondsOf(const Animation& animation, const Frame& frame) {
    const double shared = animation.use_pause ? animation.pause_length : 0;
    const double hundredths = frame.use_pause ? frame.pause_length : shared;
    return std::llround(hundredths * 10000);
}

bool Open(BFile* file, AnimationDocument& document) {
    const AnimationType type = ClassifyContent(file);
    if (!IsAnimatedImage(type)) return OpenGif(file, 0, document);
    return OpenAnimatedImage(type, file, 0, document, QtTranslatorRoster());
}

void PrintFrames(const std::string& path) {
    const DebugRecorder debug;
    const AlertRecorder salvages({0});
    DocumentFixture fixture;
    fixture.prefs.animation_faithful = true;
    BFile file(path, B_READ_ONLY);
    const bool opened = Open(&file, fixture.document);
    const auto animation = fixture.document.Current();
    std::string frames;
    for (const FramePointer& frame : animation->frames) {
        if (!frames.empty()) frames += ", ";
        frames += Format("[%d, %d, %lld, \"%s\"]", frame->width, frame->height,
                         static_cast<long long>(MicrosecondsOf(*animation, *frame)),
                         DigestOf(*frame->bitmap).c_str());
    }
    std::printf("{\"repetitions\": \"%s\", \"frames\": [%s], \"failed\": %s}\n",
                RepetitionsOf(*animation).c_str(), frames.c_str(), opened ? "false" : "true");
}

void MakeAnimatedImages(uint32 seed, const std::string& path) {
    WriteBytes(path + ".png", RandomAnimatedImageFile(seed, false).Apng());
    WriteBytes(path + ".webp", RandomAnimatedImageFile(seed, true).Webp());
}

void SaveScenes(uint32 seed, const std::string& path) {
    SeededChoices choices(seed);
    DocumentFixture fixture;
    fixture.prefs.animation_faithful = true;
    fixture.prefs.animation_gifinterlaced = choices.OneIn(4);
    FillWithScenes(choices, 40, fixture.document);
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    const FaithfulGifSave save(file, fixture.document);
    WriteBytes(path, file->Memory());
}

// To a reader or to the browser a single picture is no animation.
bool Moves(const std::vector<uint8>& bytes, ExportFormat format) {
    static constexpr std::string_view kSecondPicture = "fdAT";
    const auto file = BFile::OnMemory(bytes);
    switch (AnimatedImageFormatOf(*file)) {
        case AnimatedImageFormat::kNone:
            return format == ExportFormat::kGif;
        case AnimatedImageFormat::kWebp:
            return true;
        case AnimatedImageFormat::kApng:
            break;
    }
    return std::search(bytes.begin(), bytes.end(), kSecondPicture.begin(), kSecondPicture.end()) !=
           bytes.end();
}

void ExportScenes(uint32 seed, const std::string& path) {
    SeededChoices choices(seed);
    DocumentFixture fixture;
    FillWithScenes(choices, 40, fixture.document);
    ExportSettings settings;
    settings.loss = choices.Between(0, 200);
    settings.colors = choices.Between(2, 256);
    QtTranslatorRoster roster;
    Work work;
    const ExportTask task = {fixture.document.Current(), false, fixture.document.pixel_budget,
                             roster, work};
    for (const auto& [format, ending] :
         {std::pair(ExportFormat::kGif, ".gif"), std::pair(ExportFormat::kApng, ".png"),
          std::pair(ExportFormat::kWebp, ".webp")}) {
        settings.format = format;
        ExportFiles files;
        ExportAnimation(task, settings, &files);
        const std::vector<uint8>& bytes = files.contents.at(0);
        if (Moves(bytes, format)) WriteBytes(path + ending, bytes);
    }
}

}  // namespace

}  // namespace kirto::test

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 3 && arguments[0] == "--make") {
        for (uint32 i = 0; i < std::stoul(arguments[1]); ++i) {
            kirto::test::WriteBytes(arguments[2] + "/" + std::to_string(i) + ".gif",
                                    kirto::test::RandomGif(i));
            if (i % 4 == 0)
                kirto::test::MakeAnimatedImages(i, arguments[2] + "/" + std::to_string(i));
        }
        return 0;
    }
    if (arguments.size() == 3 && arguments[0] == "--save") {
        for (uint32 i = 0; i < std::stoul(arguments[1]); ++i) {
            kirto::test::SaveScenes(i, arguments[2] + "/saved" + std::to_string(i) + ".gif");
            if (i % 4 == 0)
                kirto::test::ExportScenes(i, arguments[2] + "/exported" + std::to_string(i));
        }
        return 0;
    }
    for (const std::string& path : arguments)
        kirto::test::PrintFrames(path);
}
