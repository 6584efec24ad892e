// Pictures become files, in memory.
#include "base/byte_order.h"
#include "base/byte_writer.h"
#include "formats/gif/gif_lzw_encoder.h"
#include "formats/gif/gif_save.h"
#include "jobs.h"
#include "peers.h"
#include "pixels.h"

namespace kirto::bench {

namespace {

std::shared_ptr<const BFile> SaveToMemory(AnimationDocument& document) {
    std::shared_ptr<BFile> file = BFile::OnMemory();
    GifSave(file, document);
    return file;
}

// An opened animation is saved: GifSave with what comes before and after it in a program.
bool Save(const Arguments& arguments, Measurement& measurement) {
    OwnDocument own;
    if (!LoadAnimation(arguments[0], *FileInMemory(arguments[0]), 0, own.document)) return false;
    std::shared_ptr<const BFile> gif;
    const bool done = measurement.Run([&] {
        gif = SaveToMemory(own.document);
        return gif->Size() > 0;
    });
    measurement.SetFrames(own.document.FrameCount());
    return done && WriteFile(arguments[1], gif->Memory());
}

void AddHeader(const IndexedAnimation& animation, ByteWriter& output) {
    uint8 header[13] = {'G', 'I', 'F', '8', '9', 'a', 0, 0, 0, 0, 0xF7, 0, 0};
    WriteLittle16(header + 6, animation.width);
    WriteLittle16(header + 8, animation.height);
    output.Bytes(header);
    for (const rgb_color& color : animation.colors) {
        for (const uint8 component : {color.red, color.green, color.blue})
            output.U8(component);
    }
}

// GifLzwEncoder alone, with as much around it as makes a file.
std::vector<uint8> Compress(const IndexedAnimation& animation) {
    ByteWriter output;
    AddHeader(animation, output);
    for (const IndexedImage& image : animation.images) {
        uint8 header[10] = {','};
        WriteLittle16(header + 5, image.width);
        WriteLittle16(header + 7, image.height);
        output.Bytes(header);
        GifLzwEncoder encoder(output, 8);
        const size_t width = static_cast<size_t>(image.width);
        for (size_t row = 0; row < image.indices.size(); row += width)
            encoder.Add({image.indices.data() + row, width});
        encoder.Finish();
    }
    output.U8(';');
    return output.Written();
}

bool Encode(const Arguments& arguments, Measurement& measurement) {
    IndexedAnimation animation;
    if (!ReadWithGiflib(ReadFile(arguments[0]), &animation)) return false;
    std::vector<uint8> gif;
    const bool done = measurement.Run([&] {
        gif = Compress(animation);
        return true;
    });
    return done && WriteFile(arguments[1], gif);
}

bool EncodeByPeer(const Arguments& arguments, Measurement& measurement) {
    IndexedAnimation animation;
    if (!ReadWithGiflib(ReadFile(arguments[0]), &animation)) return false;
    std::vector<uint8> gif;
    const bool done = measurement.Run([&] {
        gif.clear();
        return EncodeWithCgif(animation, &gif);
    });
    return done && WriteFile(arguments[1], gif);
}

void Dither(Animation& animation, const Palette& palette) {
    animation.palette = std::make_shared<const Palette>(palette);
    EditPalette(animation, [](Palette& changed) { changed.dither = true; });
}

// Frames of a camera get one palette, that of the first, and are dithered.
bool Reduce(const Arguments& arguments, Measurement& measurement) {
    const int32 width = std::stoi(arguments[1]);
    const int32 height = std::stoi(arguments[2]);
    const size_t size = static_cast<size_t>(width) * static_cast<size_t>(height) * 4;
    std::shared_ptr<const BFile> gif;
    const bool done = measurement.Run([&] {
        const std::vector<uint8> clip = ReadFile(arguments[0]);
        OwnDocument own;
        for (size_t at = 0; at + size <= clip.size(); at += size)
            own.document.InsertFrameAsCurrent(own.document.FrameCount(),
                                              FrameOfPixels(clip.data() + at, width, height));
        if (own.document.FrameCount() == 0) return false;
        Palette palette;
        palette.Set(PictureOf(*own.document.FirstFrame()));
        own.document.Change([&](Animation& animation) { Dither(animation, palette); });
        measurement.SetFrames(own.document.FrameCount());
        gif = SaveToMemory(own.document);
        return true;
    });
    return done && WriteFile(arguments[3], gif->Memory());
}

// One square photograph is saved.
bool SavePicture(const Arguments& arguments, Measurement& measurement) {
    const int32 side = std::stoi(arguments[0]);
    OwnDocument own;
    own.document.InsertFrameAsCurrent(0, PaintedFrame(PaintPhoto, side, side, 0));
    return measurement.Run([&] { return SaveToMemory(own.document)->Size() > 0; });
}

constexpr Job kJobs[] = {
    {"save", "FILE OUT.gif", Save},
    {"encode", "FILE.gif OUT.gif", Encode},
    {"cgif", "FILE.gif OUT.gif", EncodeByPeer},
    {"reduce", "CLIP.raw WIDTH HEIGHT OUT.gif", Reduce},
    {"save-picture", "SIDE", SavePicture},
};

}  // namespace

std::span<const Job> WritingJobs() {
    return kJobs;
}

}  // namespace kirto::bench
