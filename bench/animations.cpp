#include "animations.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "base/text.h"
#include "formats/gif/gif_load.h"
#include "formats/gif/gif_save.h"
#include "formats/gif/pixel_mapper.h"

namespace kirto::bench {

namespace {

constexpr AnimationPlan kPlans[] = {
    {.name = "small",
     .width = 32,
     .height = 32,
     .frames = 20,
     .painter = PaintBall,
     .local_palettes = true},
    {.name = "sprites", .width = 128, .height = 128, .frames = 300, .painter = PaintSprites},
    {.name = "screen", .width = 800, .height = 600, .frames = 12, .painter = PaintScreen},
    {.name = "changes",
     .width = 800,
     .height = 600,
     .frames = 12,
     .painter = PaintScreen,
     .differences = true},
    {.name = "photo",
     .width = 640,
     .height = 480,
     .frames = 10,
     .painter = PaintPhoto,
     .dithered_file = true},
    {.name = "large",
     .width = 1920,
     .height = 1080,
     .frames = 3,
     .painter = PaintPhoto,
     .dithered_file = true},
};

// Benchmarks have nobody to report to: without memory for their pictures there are none.
std::shared_ptr<BBitmap> NewBitmap(int32 width, int32 height, color_space space) {
    auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(width, height), space);
    if (bitmap->InitCheck() != B_OK) std::abort();
    return bitmap;
}

struct Area {
    int32 left = 0;
    int32 top = 0;
    int32 right = 1;  // just behind the last column
    int32 bottom = 1;
};

const uint8* PixelAt(const BBitmap& bitmap, int32 x, int32 y) {
    return bitmap.Row(y) + static_cast<size_t>(x) * 4;
}

bool SamePixel(const BBitmap& a, const BBitmap& b, int32 x, int32 y) {
    return std::memcmp(PixelAt(a, x, y), PixelAt(b, x, y), 4) == 0;
}

// The smallest area around all changes; a single pixel where there are none.
Area ChangedArea(const BBitmap& before, const BBitmap& after) {
    Area area{after.Width(), after.Height(), 0, 0};
    for (int32 y = 0; y < after.Height(); ++y) {
        for (int32 x = 0; x < after.Width(); ++x) {
            if (SamePixel(before, after, x, y)) continue;
            area = {std::min(area.left, x), std::min(area.top, y), std::max(area.right, x + 1),
                    std::max(area.bottom, y + 1)};
        }
    }
    return area.right > 0 ? area : Area{};
}

// The area of the picture after, with alpha 0 where nothing changed.
std::shared_ptr<BBitmap> Changes(const BBitmap& before, const BBitmap& after, const Area& area) {
    auto changes = NewBitmap(area.right - area.left, area.bottom - area.top, B_RGBA32);
    for (int32 y = area.top; y < area.bottom; ++y) {
        uint8* target = changes->Row(y - area.top);
        for (int32 x = area.left; x < area.right; ++x, target += 4) {
            if (!SamePixel(before, after, x, y)) std::memcpy(target, PixelAt(after, x, y), 4);
        }
    }
    return changes;
}

// The palette indices of a frame, row after row.
std::vector<uint8> IndicesOf(const Frame& frame, const Palette& palette, int32 transparent) {
    PixelMapper mapper(static_cast<uint8>(transparent), false, frame.width);
    mapper.StartPicture(palette, false);
    std::vector<uint8> indices;
    std::vector<uint8> row;
    for (int32 y = 0; y < frame.height; ++y) {
        mapper.MapRow(frame.bitmap.get(), y, frame.width, &row);
        indices.insert(indices.end(), row.begin(), row.end());
    }
    return indices;
}

}  // namespace

BenchAnimation::BenchAnimation(const AnimationPlan& plan) : plan_(plan), name_(plan.name) {}

int64 BenchAnimation::CanvasPixels() const {
    return int64{plan_.width} * plan_.height * plan_.frames;
}

int64 BenchAnimation::ImagePixels() {
    int64 pixels = 0;
    for (const FramePointer& frame : Document().Current()->frames)
        pixels += int64{frame->width} * frame->height;
    return pixels;
}

AnimationDocument& BenchAnimation::Document() {
    if (!document_) Draw();
    return *document_;
}

void BenchAnimation::Draw() {
    document_ = std::make_unique<AnimationDocument>(prefs_);
    document_->Change([this](Animation& animation) {
        animation.width = plan_.width;
        animation.height = plan_.height;
        animation.pause_length = 5;
    });
    std::shared_ptr<BBitmap> before;
    for (int32 step = 0; step < plan_.frames; ++step) {
        const std::shared_ptr<BBitmap> picture = PaintStep(step);
        if (before && plan_.differences) {
            const Area area = ChangedArea(*before, *picture);
            AddFrame(Changes(*before, *picture, area), area.left, area.top);
        } else {
            AddFrame(picture, 0, 0);
        }
        before = picture;
    }
    Palette palette = *document_->Current()->palette;
    palette.Set(document_->FirstFrame()->bitmap.get());
    if (plan_.differences) {
        // The first picture has fewer colours than entries: the last one is free.
        if (palette.unique_colors >= palette.size) std::abort();
        palette.use_transparent = true;
        palette.transparent_index = palette.size - 1;
    }
    document_->Change([&palette](Animation& animation) {
        animation.palette = std::make_shared<const Palette>(palette);
    });
}

std::shared_ptr<BBitmap> BenchAnimation::PaintStep(int32 step) const {
    auto bitmap = NewBitmap(plan_.width, plan_.height, B_RGB32);
    for (int32 y = 0; y < plan_.height; ++y) {
        uint8* pixel = bitmap->Row(y);
        for (int32 x = 0; x < plan_.width; ++x, pixel += 4) {
            const rgb_color color = plan_.painter(x, y, step);
            pixel[0] = color.blue;
            pixel[1] = color.green;
            pixel[2] = color.red;
            pixel[3] = color.alpha;
        }
    }
    return bitmap;
}

void BenchAnimation::AddFrame(std::shared_ptr<BBitmap> bitmap, int32 left, int32 top) {
    const int32 index = document_->FrameCount();
    Frame frame(Format("frame%04d", index), bitmap->Width(), bitmap->Height());
    frame.x_offset = left;
    frame.y_offset = top;
    if (plan_.local_palettes) {
        const BBitmap* picture = bitmap.get();
        frame.palette = std::make_shared<const Palette>(picture);
        frame.local_palette = true;
    }
    frame.bitmap = std::move(bitmap);
    if (!document_->InsertFrame(index, std::move(frame))) std::abort();
}

const std::vector<uint8>& BenchAnimation::File() {
    if (!file_) file_ = SaveToMemory(Document(), plan_.dithered_file);
    return *file_;
}

int32 BenchAnimation::TransparentIndex() {
    const Palette& palette = *Document().Current()->palette;
    return palette.use_transparent ? palette.transparent_index : -1;
}

// Reads the file back: its pixels have exactly the palette's colours, so that each finds its index.
const std::vector<IndexedImage>& BenchAnimation::Images() {
    if (images_) return *images_;
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_gifloadfullframe = false;
    AnimationDocument loaded(prefs);
    if (GifLoad(BFile::OnMemory(File()).get(), 0, loaded).failed) std::abort();
    const AnimationDocument& document = Document();
    images_.emplace();
    for (const FramePointer& frame : loaded.Current()->frames) {
        const int32 index = static_cast<int32>(images_->size());
        const std::shared_ptr<const Palette> palette =
            frame->local_palette ? document.FrameAt(index)->palette : document.Current()->palette;
        images_->push_back({frame->x_offset, frame->y_offset, frame->width, frame->height, palette,
                            frame->local_palette, IndicesOf(*frame, *palette, TransparentIndex())});
    }
    return *images_;
}

std::vector<std::unique_ptr<BenchAnimation>> AllAnimations() {
    std::vector<std::unique_ptr<BenchAnimation>> animations;
    for (const AnimationPlan& plan : kPlans)
        animations.push_back(std::make_unique<BenchAnimation>(plan));
    return animations;
}

std::vector<uint8> SaveToMemory(AnimationDocument& document, bool dither) {
    document.Change([dither](Animation& animation) {
        EditPalette(animation, [dither](Palette& palette) { palette.dither = dither; });
    });
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    GifSave(file, document);
    return file->Memory();
}

}  // namespace kirto::bench
