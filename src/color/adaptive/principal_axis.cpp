#include "color/adaptive/principal_axis.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kirto {

namespace {

// Of power iterations: enough that the direction is as good as the best for cutting across it.
constexpr int kIterations = 16;
constexpr size_t kBins = 256;

struct Bin {
    double pixels = 0;
    double sum = 0;  // of the pixels' places on the axis
};

double RootOfWeight(size_t component) {
    return std::sqrt(static_cast<double>(kColorWeights[component]));
}

// How many bins lie on the near side of the best cut; none when all pixels are in one.
size_t BestCut(const std::array<Bin, kBins>& bins) {
    Bin all;
    for (const Bin& bin : bins)
        all = {all.pixels + bin.pixels, all.sum + bin.sum};
    Bin near;
    double best = -1;
    size_t cut = 0;
    for (size_t i = 0; i + 1 < kBins; ++i) {
        near = {near.pixels + bins[i].pixels, near.sum + bins[i].sum};
        const double far_pixels = all.pixels - near.pixels;
        if (near.pixels <= 0 || far_pixels <= 0) continue;
        const double far_sum = all.sum - near.sum;
        const double between = near.sum * near.sum / near.pixels + far_sum * far_sum / far_pixels;
        if (between <= best) continue;
        best = between;
        cut = i + 1;
    }
    return cut;
}

}  // namespace

PrincipalAxis::PrincipalAxis(std::span<const ColorPoint> points, std::span<const uint32> members) {
    for (const uint32 member : members) {
        const double pixels = static_cast<double>(points[member].pixels);
        pixels_ += pixels;
        for (size_t i = 0; i < 3; ++i)
            mean_[i] += pixels * points[member].color[i];
    }
    for (double& component : mean_)
        component /= pixels_;
    std::array<Vector, 3> covariance{};
    for (const uint32 member : members) {
        Vector from_mean;
        for (size_t i = 0; i < 3; ++i)
            from_mean[i] = (points[member].color[i] - mean_[i]) * RootOfWeight(i);
        const double pixels = static_cast<double>(points[member].pixels);
        for (size_t i = 0; i < 3; ++i) {
            for (size_t k = 0; k < 3; ++k)
                covariance[i][k] += pixels * from_mean[i] * from_mean[k];
        }
    }
    FindDirection(covariance);
}

void PrincipalAxis::FindDirection(const std::array<Vector, 3>& covariance) {
    Vector axis = {1, 1.1, 0.9};  // across none of the axes that pictures usually have
    for (int iteration = 0; iteration < kIterations; ++iteration) {
        Vector turned{};
        for (size_t i = 0; i < 3; ++i) {
            for (size_t k = 0; k < 3; ++k)
                turned[i] += covariance[i][k] * axis[k];
        }
        spread_ = std::sqrt(turned[0] * turned[0] + turned[1] * turned[1] + turned[2] * turned[2]);
        if (spread_ <= 0) break;
        for (size_t i = 0; i < 3; ++i)
            axis[i] = turned[i] / spread_;
    }
    for (size_t i = 0; i < 3; ++i)
        direction_[i] = axis[i] * RootOfWeight(i);
}

ColorComponents PrincipalAxis::Mean() const {
    ColorComponents mean;
    for (size_t i = 0; i < 3; ++i)
        mean[i] = static_cast<int32>(std::lround(mean_[i]));
    return mean;
}

size_t PrincipalAxis::Cut(std::span<const ColorPoint> points, Members members) const {
    double first = std::numeric_limits<double>::max();
    double last = std::numeric_limits<double>::lowest();
    for (const uint32 member : members) {
        first = std::min(first, PlaceOf(points[member]));
        last = std::max(last, PlaceOf(points[member]));
    }
    if (!(first < last)) return 0;
    const double scale = static_cast<double>(kBins - 1) / (last - first);
    const auto bin_of = [&](uint32 member) {
        return static_cast<size_t>((PlaceOf(points[member]) - first) * scale);
    };
    std::array<Bin, kBins> bins{};
    for (const uint32 member : members) {
        Bin& bin = bins[std::min(bin_of(member), kBins - 1)];
        const double pixels = static_cast<double>(points[member].pixels);
        bin.pixels += pixels;
        bin.sum += pixels * (PlaceOf(points[member]) - first);
    }
    const size_t cut = BestCut(bins);
    const auto middle = std::partition(members.begin(), members.end(),
                                       [&](uint32 member) { return bin_of(member) < cut; });
    return static_cast<size_t>(middle - members.begin());
}

}  // namespace kirto
