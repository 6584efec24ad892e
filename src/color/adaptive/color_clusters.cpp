#include "color/adaptive/color_clusters.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>

namespace kirto {

namespace {

constexpr int kFirstRounds = 8;
constexpr int kNextRounds = 3;
// Of moving centers elsewhere. The first few bring most of what can be had.
constexpr int kMoves = 4;
// Moving is tried where it is expected to gain clearly more than it costs.
constexpr double kWorthwhile = 1.5;
constexpr double kLeastGain = 1.0 / 1024;

// By how much the squared distances grow when two clusters become one (J. Ward, 1963).
double MergingCost(double pixels_a, double pixels_b, int32 distance) {
    const double pixels = pixels_a + pixels_b;
    return pixels > 0 ? pixels_a * pixels_b / pixels * distance : 0;
}

// The mean of two centers and their pixels.
ColorComponents MeanOf(const ColorComponents& a, double pixels_a, const ColorComponents& b,
                       double pixels_b) {
    if (pixels_a + pixels_b <= 0) return b;
    ColorComponents mean;
    for (size_t i = 0; i < 3; ++i) {
        const double sum = pixels_a * a[i] + pixels_b * b[i];
        mean[i] = static_cast<int32>(std::lround(sum / (pixels_a + pixels_b)));
    }
    return mean;
}

}  // namespace

ColorClusters::ColorClusters(std::span<const ColorPoint> points, const Work* work)
    : points_(points),
      work_(work),
      k_means_(points, work),
      members_(AllocateArray<uint32>(points.size())) {}

bool ColorClusters::Find(ColorCenters* centers, size_t count) {
    if (!CutAll(centers, count)) return false;
    if (!k_means_.Settle(centers, kFirstRounds)) return false;
    double error = k_means_.Error();
    for (int move = 0; move < kMoves; ++move) {
        TakeNearest(centers->count);
        ColorCenters moved = *centers;
        if (MoveCenters(&moved) == 0) break;
        if (!k_means_.Settle(&moved, kNextRounds)) return false;
        if (k_means_.Error() > error * (1 - kLeastGain)) break;
        error = k_means_.Error();
        *centers = moved;
    }
    return true;
}

PrincipalAxis ColorClusters::AxisOf(const Cluster& cluster) const {
    return {points_, MembersOf(cluster)};
}

bool ColorClusters::Cut(Cluster* cluster, Cluster* rest) const {
    const size_t near = cluster->axis.Cut(points_, MembersOf(*cluster));
    if (near == 0) return false;
    rest->first = cluster->first + near;
    rest->count = cluster->count - near;
    cluster->count = near;
    cluster->axis = AxisOf(*cluster);
    rest->axis = AxisOf(*rest);
    return true;
}

bool ColorClusters::CutAll(ColorCenters* centers, size_t count) {
    std::iota(members_.get(), members_.get() + points_.size(), 0U);
    clusters_[0] = {0, points_.size(), {}};
    clusters_[0].axis = AxisOf(clusters_[0]);
    size_t made = 1;
    while (made < count) {
        if (IsStopped(work_)) return false;
        Cluster* const widest = std::max_element(
            clusters_.begin(), clusters_.begin() + made,
            [](const Cluster& a, const Cluster& b) { return a.axis.Spread() < b.axis.Spread(); });
        if (!Cut(widest, &clusters_[made])) break;
        ++made;
    }
    const std::span<Cluster> clusters(clusters_.data(), made);
    if (centers->fixed != 0) SortByNeed(clusters, *centers);
    for (const Cluster& cluster : clusters.first(std::min(made, count - centers->fixed))) {
        for (const uint32 member : MembersOf(cluster))
            k_means_.Place(member, centers->count);
        centers->colors[centers->count++] = cluster.axis.Mean();
    }
    return true;
}

void ColorClusters::SortByNeed(std::span<Cluster> clusters, const ColorCenters& centers) {
    const std::span<const ColorComponents> fixed(centers.colors.data(), centers.fixed);
    const auto need = [&](const Cluster& cluster) {
        int32 least = std::numeric_limits<int32>::max();
        for (const ColorComponents& color : fixed)
            least = std::min(least, ColorDistance(color, cluster.axis.Mean()));
        return cluster.axis.Pixels() * least;
    };
    std::ranges::stable_sort(clusters, std::greater(), need);
}

void ColorClusters::TakeNearest(size_t count) {
    const std::span<const uint8> nearest = k_means_.Nearest();
    for (Cluster& cluster : clusters_)
        cluster = {};
    for (const uint8 center : nearest)
        ++clusters_[center].count;
    size_t first = 0;
    for (Cluster& cluster : clusters_) {
        cluster.first = first;
        first += cluster.count;
        cluster.count = 0;
    }
    for (size_t i = 0; i < nearest.size(); ++i) {
        Cluster& cluster = clusters_[nearest[i]];
        members_[cluster.first + cluster.count++] = static_cast<uint32>(i);
    }
    for (size_t i = 0; i < count; ++i) {
        if (clusters_[i].count != 0) clusters_[i].axis = AxisOf(clusters_[i]);
    }
}

std::vector<ColorClusters::Merger> ColorClusters::Mergers(const ColorCenters& centers) const {
    std::vector<Merger> mergers;
    for (size_t i = centers.fixed; i < centers.count; ++i) {
        Merger best{std::numeric_limits<double>::max(), i, i};
        for (size_t k = 0; k < centers.count; ++k) {
            if (k == i) continue;
            const int32 distance = ColorDistance(centers.colors[i], centers.colors[k]);
            const double cost = MergingCost(PixelsOf(i), PixelsOf(k), distance);
            if (cost < best.cost) best = {cost, i, k};
        }
        mergers.push_back(best);
    }
    std::ranges::stable_sort(mergers, {}, &Merger::cost);
    return mergers;
}

std::vector<size_t> ColorClusters::WidestFirst(const ColorCenters& centers) const {
    std::vector<size_t> widest(centers.count - centers.fixed);
    std::iota(widest.begin(), widest.end(), centers.fixed);
    std::ranges::stable_sort(widest, std::greater(), [&](size_t i) {  //
        return clusters_[i].axis.Spread();
    });
    return widest;
}

bool ColorClusters::Move(const Merger& merger, size_t wide, ColorCenters* centers) {
    Cluster rest;
    if (!Cut(&clusters_[wide], &rest)) return false;
    const PrincipalAxis& near = clusters_[wide].axis;
    const double gain = MergingCost(near.Pixels(), rest.axis.Pixels(),
                                    ColorDistance(near.Mean(), rest.axis.Mean()));
    if (gain < merger.cost * kWorthwhile) return false;
    std::array<ColorComponents, ColorCenters::kMost>& colors = centers->colors;
    if (merger.heir >= centers->fixed) {
        colors[merger.heir] = MeanOf(colors[merger.given_up], PixelsOf(merger.given_up),
                                     colors[merger.heir], PixelsOf(merger.heir));
    }
    colors[wide] = near.Mean();
    colors[merger.given_up] = rest.axis.Mean();
    return true;
}

size_t ColorClusters::MoveCenters(ColorCenters* centers) {
    const std::vector<size_t> widest = WidestFirst(*centers);
    std::array<bool, ColorCenters::kMost> touched{};
    size_t moved = 0;
    auto wide = widest.begin();
    for (const Merger& merger : Mergers(*centers)) {
        if (touched[merger.given_up] || touched[merger.heir]) continue;
        wide = std::find_if(wide, widest.end(), [&](size_t i) {  //
            return !touched[i] && i != merger.given_up && i != merger.heir;
        });
        if (wide == widest.end() || !Move(merger, *wide, centers)) break;
        touched[merger.given_up] = touched[merger.heir] = touched[*wide] = true;
        ++moved;
    }
    return moved;
}

}  // namespace kirto
