#include "effects/pictures/scale_picture.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "effects/pictures/linear_light.h"
#include "effects/pictures/pixel_order.h"
#include "effects/pictures/weigh_pixels.h"
#include "picture/picture_builder.h"
#include "picture/pixel_storage.h"

namespace kirto {

namespace {

// Rows of a picture in light, scaled across: the last so many of them.
class LightRows {
  public:
    LightRows(const Picture& picture, const FilterAxis& across, int32 kept,
              const std::shared_ptr<PixelBudget>& budget)
        : picture_(picture),
          across_(across),
          kept_(kept),
          row_numbers_(static_cast<size_t>(across.Target()) * kNumbersAPixel),
          pixels_(static_cast<size_t>(picture.Width()) * 4),
          light_(static_cast<size_t>(picture.Width()) * kNumbersAPixel),
          ring_(PixelStorage::Make(row_numbers_ * static_cast<size_t>(kept) * sizeof(float),
                                   budget)) {}

    bool Ready() const { return ring_ != nullptr; }
    // Row y, one of those that were made last.
    const float* Row(int32 y) const { return Place(y); }
    // Makes the rows up to that one, which is past the last.
    void MakeUpTo(int32 end) {
        for (; made_ < end; ++made_) {
            picture_.ReadRow(made_, pixels_.data());
            ToLight(pixels_.data(), picture_.Width(), IsBigEndian(picture_.ColorSpace()),
                    light_.data());
            FastestPixelSums().across(light_.data(), across_, Place(made_));
        }
    }

  private:
    float* Place(int32 y) const {
        auto* const numbers = reinterpret_cast<float*>(ring_->Bytes());
        return numbers + static_cast<size_t>(y % kept_) * row_numbers_;
    }

    const Picture& picture_;
    const FilterAxis& across_;
    const int32 kept_;
    const size_t row_numbers_;
    std::vector<uint8> pixels_;
    std::vector<float> light_;
    const std::shared_ptr<PixelStorage> ring_;
    int32 made_ = 0;
};

std::shared_ptr<const Picture> Filtered(const Picture& picture, const ScalePlan& plan,
                                        const std::shared_ptr<PixelBudget>& budget,
                                        const Work& work) {
    const FilterAxis across(plan.across, plan.filter);
    const FilterAxis down(plan.down, plan.filter);
    LightRows rows(picture, across, down.Taps(), budget);
    if (!rows.Ready()) return nullptr;
    const int32 width = plan.across.target;
    PictureBuilder builder(width, plan.down.target, LittleEndian(picture.ColorSpace()), budget);
    std::vector<float> light(static_cast<size_t>(width) * kNumbersAPixel);
    std::vector<uint8> pixels(static_cast<size_t>(width) * 4);
    std::vector<const float*> taps;
    for (int32 y = 0; y < plan.down.target; ++y) {
        if (work.StopRequested()) return nullptr;
        rows.MakeUpTo(down.End(y));
        taps.clear();
        for (int32 source = down.First(y); source < down.End(y); ++source)
            taps.push_back(rows.Row(source));
        FastestPixelSums().rows(taps, down.Weights(y), light);
        FromLight(light.data(), width, pixels.data());
        if (!builder.AddRow(pixels.data())) return nullptr;
    }
    return builder.Take();
}

std::shared_ptr<const Picture> Nearest(const Picture& picture, const ScalePlan& plan,
                                       const std::shared_ptr<PixelBudget>& budget,
                                       const Work& work) {
    const int32 width = plan.across.target;
    std::vector<size_t> sources;  // a byte of the row
    sources.reserve(static_cast<size_t>(width));
    for (int32 x = 0; x < width; ++x)
        sources.push_back(static_cast<size_t>(NearestSource(plan.across, x)) * 4);
    PictureBuilder builder(width, plan.down.target, picture.ColorSpace(), budget);
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    std::vector<uint8> pixels(static_cast<size_t>(width) * 4);
    int32 source = -1;
    for (int32 y = 0; y < plan.down.target; ++y) {
        if (work.StopRequested()) return nullptr;
        if (const int32 wanted = NearestSource(plan.down, y); wanted != source) {
            source = wanted;
            picture.ReadRow(source, row.data());
            for (size_t x = 0; x < sources.size(); ++x)
                std::memcpy(&pixels[x * 4], &row[sources[x]], 4);
        }
        if (!builder.AddRow(pixels.data())) return nullptr;
    }
    return builder.Take();
}

AxisPlan WholeAxis(int32 source, int32 target) {
    return {0, static_cast<double>(source) / target, source, target};
}

}  // namespace

ScalePlan ScaleTo(int32 source_width, int32 source_height, int32 width, int32 height,
                  ScaleFilter filter) {
    return {WholeAxis(source_width, width), WholeAxis(source_height, height), filter};
}

std::shared_ptr<const Picture> ScalePicture(const Picture& picture, const ScalePlan& plan,
                                            const std::shared_ptr<PixelBudget>& budget,
                                            const Work& work) {
    if (!picture.HasRows()) return nullptr;
    if (plan.filter == ScaleFilter::kNearest) return Nearest(picture, plan, budget, work);
    return Filtered(picture, plan, budget, work);
}

}  // namespace kirto
