// Exports of animations, and what is read back of them.
#pragma once

#include <cstring>
#include <gtest/gtest.h>

#include "app/export/export_animation.h"
#include "formats/export/export_canvas.h"
#include "formats/gif/gif_load.h"
#include "kit/animated/apng_reader.h"
#include "kit/animated/webp_reader.h"
#include "kit/animated/webp_writer.h"
#include "support/animated_image_file.h"
#include "support/fake_roster.h"
#include "support/test_support.h"

namespace kirto::test {

struct ExportRoster : FakeRoster {
    std::unique_ptr<AnimatedImageWriter> WriteAnimatedImage(
        AnimatedImageFormat format, const AnimatedImageHeader& header,
        const AnimatedImageQuality& quality) const override {
        if (format != AnimatedImageFormat::kWebp) return nullptr;
        return std::make_unique<WebpWriter>(header, quality);
    }
};

// What a canvas shows, 0xAARRGGBB row by row, and for how long.
struct ShownCanvas {
    std::vector<uint32> pixels;
    double milliseconds = 0;

    bool operator==(const ShownCanvas&) const = default;
};
using ShownCanvases = std::vector<ShownCanvas>;

// As long as it looks the same.
inline void Append(ShownCanvas canvas, ShownCanvases* all) {
    if (!all->empty() && all->back().pixels == canvas.pixels) {
        all->back().milliseconds += canvas.milliseconds;
    } else {
        all->push_back(std::move(canvas));
    }
}

inline ShownCanvases ShownOf(const AnimatedImageFile& file) {
    ShownCanvases all;
    const auto shown = file.Shown();
    for (size_t i = 0; i < shown.size(); ++i)
        Append({shown[i], static_cast<double>(file.frames[i].milliseconds)}, &all);
    return all;
}

inline ShownCanvases ReadBack(AnimatedImageReader&& reader, AnimatedImageHeader* header) {
    using Result = AnimatedImageReader::Result;
    ShownCanvases all;
    EXPECT_EQ(reader.ReadHeader(header), Result::kFrame);
    const auto width = static_cast<size_t>(header->width);
    Result result = Result::kFrame;
    while ((result = reader.Next()) == Result::kFrame) {
        ShownCanvas canvas{std::vector<uint32>(width * static_cast<size_t>(header->height)),
                           reader.Milliseconds()};
        for (int32 y = 0; y < header->height; ++y)
            std::memcpy(&canvas.pixels[width * static_cast<size_t>(y)], reader.Row(y), width * 4);
        for (uint32& pixel : canvas.pixels)
            pixel = pixel >> 24 == 0 ? 0 : pixel;
        Append(std::move(canvas), &all);
    }
    EXPECT_EQ(result, Result::kEnd);
    return all;
}

// An animation, and its exports.
struct ExportFixture {
    static constexpr uint64 kRoom = uint64{64} << 20;

    Animation animation;
    bool in_seconds = false;
    ExportRoster roster;
    Work work;
    ExportFiles files;         // of the last export
    std::vector<uint8> bytes;  // of the first of them
    std::shared_ptr<PixelBudget> budget = std::make_shared<PixelBudget>();

    // Of one frame for each picture of the file.
    void Take(const AnimatedImageFile& file) {
        animation.width = file.width;
        animation.height = file.height;
        animation.use_loop = file.plays != 1;
        animation.loop_count = std::max(file.plays - 1, 0);
        const auto shown = file.Shown();
        for (size_t i = 0; i < shown.size(); ++i)
            Add(shown[i], file.frames[i].milliseconds / 10.0);
    }
    // A frame as large as the canvas; its pause is in hundredths.
    void Add(const std::vector<uint32>& pixels, double pause) {
        Frame frame("frame", animation.width, animation.height);
        frame.bitmap = FramePictureOf(animation.width, animation.height, pixels, B_RGBA32);
        frame.use_pause = true;
        frame.pause_length = pause;
        animation.frames.Insert(animation.frames.Size(),
                                std::make_shared<const Frame>(std::move(frame)));
        animation.selected = 0;
    }
    ExportTask Task() {
        return {std::make_shared<const Animation>(animation), in_seconds, budget, roster, work};
    }
    ExportResult Export(const ExportSettings& settings) {
        const ExportResult result = ExportAnimation(Task(), settings, &files);
        bytes = files.Empty() ? std::vector<uint8>() : files.contents.front();
        return result;
    }
    // What the last export shows.
    ShownCanvases Shown(ExportFormat format, AnimatedImageHeader* header) const {
        if (format == ExportFormat::kWebp) return ReadBack(WebpReader(bytes, kRoom), header);
        return ReadBack(ApngReader(bytes, kRoom), header);
    }
    ShownCanvases Shown(ExportFormat format) const {
        AnimatedImageHeader header;
        return Shown(format, &header);
    }
};

// A GIF as browsers show it.
struct ReadGif : DocumentFixture {
    explicit ReadGif(const std::vector<uint8>& bytes) {
        prefs.animation_faithful = true;
        const DebugRecorder comments;
        const auto file = BFile::OnMemory(bytes);
        EXPECT_FALSE(GifLoad(file.get(), 0, document).failed);
    }
    // Of each frame, 0xAARRGGBB row by row.
    std::vector<std::vector<uint32>> Frames() const {
        std::vector<std::vector<uint32>> frames;
        for (const FramePointer& frame : document.Current()->frames) {
            const CanvasPixels canvas = CanvasOf(*document.Current(), *frame);
            std::vector<uint32> pixels(canvas.size() / 4);
            std::memcpy(pixels.data(), canvas.data(), canvas.size());
            frames.push_back(std::move(pixels));
        }
        return frames;
    }
};

}  // namespace kirto::test
