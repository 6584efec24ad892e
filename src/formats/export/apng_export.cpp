#include "formats/export/apng_export.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/run_in_order.h"
#include "formats/export/apng_planner.h"
#include "formats/export/export_canvas.h"
#include "formats/export/png_data.h"
#include "formats/export/png_file.h"
#include "formats/export/png_pixels.h"

namespace kirto {

namespace {

// The data of a frame, and how it is drawn.
struct ApngImage {
    std::vector<uint8> data;
    bool over = false;
};

class ApngEncoding {
  public:
    ApngEncoding(const Animation& animation, bool in_seconds, FrameAreas areas, Work& work)
        : animation_(animation),
          work_(work),
          pauses_(SpreadMilliseconds(animation, in_seconds)),
          planner_(animation.width, animation.height, areas) {}

    std::vector<uint8> Run() {
        if (!CountPixels() || !MakeImages()) return {};
        return File();
    }

  private:
    CanvasPixels CanvasAt(int32 frame) const {
        return CanvasOf(animation_, *animation_.frames.At(frame));
    }
    bool CountPixels();
    bool MakeImages();
    std::optional<ApngPlan> NextPlan();
    ApngImage Make(const ApngPlan& plan) const;
    std::vector<uint8> File() const;
    std::vector<uint8> ControlOf(size_t frame, uint32 sequence) const;

    const Animation& animation_;
    Work& work_;
    const std::vector<int32> pauses_;
    PngPixels pixels_;
    ApngPlanner planner_;
    int32 next_ = 0;
    std::vector<ApngImage> images_;
};

bool ApngEncoding::CountPixels() {
    for (int32 i = 0; i < animation_.frames.Size(); ++i) {
        if (work_.StopRequested()) return false;
        pixels_.Count(CanvasAt(i));
    }
    pixels_.Settle(true);
    return true;
}

std::optional<ApngPlan> ApngEncoding::NextPlan() {
    while (next_ < animation_.frames.Size() && !work_.StopRequested()) {
        const int32 frame = next_++;
        auto canvas = std::make_shared<const CanvasPixels>(CanvasAt(frame));
        auto plan = planner_.Add(std::move(canvas), pauses_[static_cast<size_t>(frame)]);
        if (plan) return plan;
    }
    return std::nullopt;
}

bool ApngEncoding::MakeImages() {
    OrderedSteps<ApngPlan, ApngImage> steps;
    steps.next = [this] { return NextPlan(); };
    steps.begin = [this](const ApngPlan&) {
        work_.Report(static_cast<int64>(images_.size()), animation_.frames.Size());
        return !work_.StopRequested();
    };
    steps.work = [this](const ApngPlan& plan, int32) { return std::optional(Make(plan)); };
    steps.waiting = [this] { work_.ReportAgain(); };
    steps.take = [this](const ApngPlan&, std::optional<ApngImage> image) {
        if (!image) throw std::bad_alloc();
        images_.push_back(std::move(*image));
        return true;
    };
    RunInOrder(steps);
    return !work_.StopRequested();
}

ApngImage ApngEncoding::Make(const ApngPlan& plan) const {
    const auto compressed = [&](const CanvasPixels* below) {
        return CompressPngRows(pixels_.Rows(*plan.shown, animation_.width, plan.rect, below),
                               pixels_.RowBytes(plan.rect.width), pixels_.PixelBytes(), work_);
    };
    ApngImage image{compressed(nullptr), false};
    if (!plan.below || !pixels_.HasTransparent()) return image;
    ApngImage over{compressed(plan.below.get()), true};
    return over.data.size() < image.data.size() ? over : image;
}

std::vector<uint8> ApngEncoding::ControlOf(size_t frame, uint32 sequence) const {
    const ApngPlanner::Control& control = planner_.Controls()[frame];
    // Longer pauses than thousandths of a second have room for.
    int64 delay = control.milliseconds;
    uint32 parts = 1000;
    for (; delay > 65535 && parts > 1; parts /= 10)
        delay = (delay + 5) / 10;
    std::vector<uint8> content;
    AppendBig32(sequence, &content);
    for (const int32 number :
         {control.rect.width, control.rect.height, control.rect.left, control.rect.top})
        AppendBig32(static_cast<uint32>(number), &content);
    AppendBig16(static_cast<uint32>(std::min<int64>(delay, 65535)), &content);
    AppendBig16(parts, &content);
    content.push_back(static_cast<uint8>(control.dispose));
    content.push_back(images_[frame].over ? 1 : 0);
    return content;
}

std::vector<uint8> ApngEncoding::File() const {
    std::vector<uint8> file = PngStart(animation_.width, animation_.height, pixels_);
    std::vector<uint8> sequence;
    AppendBig32(static_cast<uint32>(images_.size()), &sequence);
    AppendBig32(static_cast<uint32>(PlaysOf(animation_)), &sequence);
    AppendPngChunk("acTL", sequence, &file);
    AppendPngColors(pixels_, &file);
    uint32 number = 0;
    for (size_t i = 0; i < images_.size(); ++i) {
        AppendPngChunk("fcTL", ControlOf(i, number++), &file);
        if (i == 0) {
            AppendPngChunk("IDAT", images_[i].data, &file);
            continue;
        }
        std::vector<uint8> content;
        AppendBig32(number++, &content);
        content.insert(content.end(), images_[i].data.begin(), images_[i].data.end());
        AppendPngChunk("fdAT", content, &file);
    }
    AppendPngChunk("IEND", {}, &file);
    return file;
}

}  // namespace

std::vector<uint8> EncodeApng(const Animation& animation, bool in_seconds, FrameAreas areas,
                              Work& work) {
    return ApngEncoding(animation, in_seconds, areas, work).Run();
}

}  // namespace kirto
