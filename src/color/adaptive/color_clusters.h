#pragma once

#include <array>
#include <span>
#include <vector>

#include "base/allocation.h"
#include "base/types.h"
#include "base/work.h"
#include "color/adaptive/color_points.h"
#include "color/adaptive/k_means.h"
#include "color/adaptive/principal_axis.h"

namespace kirto {

// Parts points into clusters whose means are a good palette. The first parts are cut across their
// principal axes, then k-means improves them; what it can't do, moving a center to where it is
// missed more, is done between its runs, as G. Patane and M. Russo describe it in "The enhanced LBG
// algorithm", 2001. Used by one thread.
class ColorClusters {
  public:
    // points: outlive this; at least one. The work, if any, may be stopped.
    explicit ColorClusters(std::span<const ColorPoint> points, const Work* work = nullptr);

    // False when memory is short; then nothing below may be called.
    bool Ready() const { return members_ && k_means_.Ready(); }
    // Adds centers to those that are there and fixed, until there are so many, or as many as points
    // have places for. False when the work was stopped.
    bool Find(ColorCenters* centers, size_t count);

  private:
    // A cluster: a part of members_, and how it lies.
    struct Cluster {
        size_t first = 0;
        size_t count = 0;
        PrincipalAxis axis;
    };
    // What it costs to give up a center when all that it stands for goes to another one.
    struct Merger {
        double cost;
        size_t given_up;
        size_t heir;
    };
    using Clusters = std::array<Cluster, ColorCenters::kMost>;

    std::span<uint32> MembersOf(const Cluster& cluster) const {
        return {members_.get() + cluster.first, cluster.count};
    }
    PrincipalAxis AxisOf(const Cluster& cluster) const;
    // Cuts the cluster; false when all of it lies in one place.
    bool Cut(Cluster* cluster, Cluster* rest) const;

    // Cuts all points into so many clusters. The means of those that fixed centers serve worst
    // become centers.
    bool CutAll(ColorCenters* centers, size_t count);
    // Those first that would cost most if fixed centers were all there is.
    static void SortByNeed(std::span<Cluster> clusters, const ColorCenters& centers);
    // Fills the clusters with what the last round of k-means put into them.
    void TakeNearest(size_t count);
    // Of each center that may move, the cheapest merger, by rising cost.
    std::vector<Merger> Mergers(const ColorCenters& centers) const;
    // The centers that may move, by falling spread of their clusters.
    std::vector<size_t> WidestFirst(const ColorCenters& centers) const;
    double PixelsOf(size_t center) const { return clusters_[center].axis.Pixels(); }
    // Gives up centers that are missed least for such as halve the clusters that cost most.
    // Returns how many.
    size_t MoveCenters(ColorCenters* centers);
    // Does so with one, for the cluster that is wide; false where it gains too little.
    bool Move(const Merger& merger, size_t wide, ColorCenters* centers);

    const std::span<const ColorPoint> points_;
    const Work* work_;
    KMeans k_means_;
    AllocatedArray<uint32> members_;  // positions in points_, cluster by cluster
    Clusters clusters_;
};

}  // namespace kirto
