// kirto_kernels: runs the loops that most time is spent in, once each and on small pictures, under
// callgrind, which counts their instructions and writes a file for each.
#include <functional>
#include <memory>
#include <valgrind/callgrind.h>
#include <vector>

#include "color/color_cube.h"
#include "color/nearest_color.h"
#include "color/palette.h"
#include "effects/fade_kernels.h"
#include "effects/pictures/scale_picture.h"
#include "formats/faithful/choice_lzw_encoder.h"
#include "formats/gif/gif_image_data.h"
#include "formats/gif/gif_index_writer.h"
#include "formats/gif/gif_lzw_decoder.h"
#include "formats/gif/gif_lzw_encoder.h"
#include "formats/gif/pixel_mapper.h"
#include "pixels.h"
#include "workloads.h"

// What __builtin_cpu_supports looks at; libgcc fills it in before main.
extern "C" {
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the compiler's.
extern struct {
    unsigned int vendor;
    unsigned int type;
    unsigned int subtype;
    unsigned int features;
} __cpu_model;
}

namespace kirto::bench {

namespace {

constexpr int32 kWidth = 320;
constexpr int32 kHeight = 240;

// Counts must not depend on the machine: the code is to choose what runs on every processor.
void HideProcessorFeatures() {
    __cpu_model.features = 0;
}

void Count(const char* name, const std::function<void()>& kernel) {
    CALLGRIND_TOGGLE_COLLECT;
    kernel();
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS_AT(name);
}

std::vector<uint8> IndicesOf(Painter painter, Reduction reduction) {
    const Workload workload{"", kWidth, kHeight, 1, 1, painter, reduction};
    return Draw(workload, 1).images[0].indices;
}

std::vector<uint8> Encode(const std::vector<uint8>& indices) {
    ByteWriter output;
    GifLzwEncoder encoder(output, 8);
    for (size_t row = 0; row < indices.size(); row += kWidth)
        encoder.Add({indices.data() + row, kWidth});
    encoder.Finish();
    return {output.Written().begin(), output.Written().end()};
}

GifImageData DataOf(const std::vector<uint8>& encoded) {
    const std::unique_ptr<BFile> file = BFile::OnMemory(encoded);
    file->Seek(1, SEEK_FROM_START);  // behind the code size
    Work work;
    WatchedInput input(*file, work);
    GifImageData data;
    data.Read(input, encoded.size());
    return data;
}

void CountLzw() {
    const std::vector<uint8> photo = IndicesOf(PaintPhoto, Reduction::kDithered);
    const std::vector<uint8> flat = IndicesOf(PaintFlat, Reduction::kExact);
    Count("lzw_encode_flat", [&] { Encode(flat); });
    Count("lzw_encode_photo", [&] { Encode(photo); });

    const GifImageData data = DataOf(Encode(photo));
    std::vector<uint8> decoded(photo.size());
    GifIndexWriter writer(decoded.data(), kWidth, kHeight, false);
    Work work;
    GifLzwDecoder decoder(data, 8);
    Count("lzw_decode", [&] { decoder.Decode(writer, work, 0); });
}

// Strings that are found with care, and the places where it pays to clear the table.
void CountChoices() {
    const std::vector<uint8> indices = IndicesOf(PaintPhoto, Reduction::kDithered);
    const ChoiceImage image{indices, {}, 0, 8};
    constexpr size_t kShorter = 1;
    const Work work;
    ChoiceLzwEncoder encoder(work);
    Count("lzw_choose", [&] { encoder.Encode(image, kShorter, {}); });
    const LzwPace pace = encoder.Pace();
    Count("lzw_clear", [&] { encoder.FindClearings(image, pace); });
}

std::vector<uint8> FirstRow(const Frame& frame) {
    std::vector<uint8> row(size_t{kWidth} * 4);
    ReadPixels(frame, 0, row.data());
    return row;
}

void CountColors(const Frame& photo) {
    const Palette palette(PictureOf(photo));
    Count("color_count", [&] { palette.CountUniqueColors(PictureOf(photo)); });

    std::vector<uint8> pixels(size_t{kWidth} * kHeight * 4);
    for (int32 y = 0; y < kHeight; ++y)
        ReadPixels(photo, y, pixels.data() + size_t{kWidth} * 4 * static_cast<size_t>(y));
    ColorCube cube(false, nullptr);
    Count("color_cube", [&] { cube.Count({}, {pixels}); });

    const std::vector<uint8> row = FirstRow(photo);
    NearestColor nearest;
    nearest.SetTable(palette.colors, palette.size);
    Count("nearest", [&] {
        for (size_t i = 0; i < row.size(); i += 4)
            nearest.IndexOf(row[i + 2], row[i + 1], row[i]);
    });

    PixelMapper mapper(0, true, kWidth);
    mapper.StartPicture(palette, false);
    Count("dithering", [&] {
        for (int32 y = 0; y < kHeight; ++y)
            mapper.MapRow(PictureOf(photo), y, kWidth);
    });
}

void CountFade(const Frame& photo) {
    const std::vector<uint8> first = FirstRow(photo);
    const std::vector<uint8> second(first.size(), 100);
    std::vector<uint8> target(first.size());
    const FadeShare share(0.25);
    Count("fade", [&] {
        FadeToFrame(first.data(), B_RGB32, second.data(), B_RGB32, target.data(), kWidth, 1, share);
    });
}

void CountScaling(const Frame& photo) {
    const ScalePlan plan =
        ScaleTo(kWidth, kHeight, kWidth * 2 / 3, kHeight * 2 / 3, ScaleFilter::kLanczos);
    const auto budget = std::make_shared<PixelBudget>(PixelBudget::DefaultLimit());
    const Work work;
    Count("scale", [&] { ScalePicture(*PictureOf(photo), plan, budget, work); });
}

}  // namespace

}  // namespace kirto::bench

int main() {
    using namespace kirto::bench;
    HideProcessorFeatures();
    const Frame photo = PaintedFrame(PaintPhoto, kWidth, kHeight, 0);
    CountLzw();
    CountChoices();
    CountColors(photo);
    CountFade(photo);
    CountScaling(photo);
    return 0;
}
