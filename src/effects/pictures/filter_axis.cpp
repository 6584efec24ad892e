#include "effects/pictures/filter_axis.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace kirto {

namespace {

constexpr double kLobes = 3;

double Sinc(double x) {
    if (x == 0) return 1;
    const double angle = x * std::numbers::pi;
    return std::sin(angle) / angle;
}

double Weight(ScaleFilter filter, double x) {
    const double distance = std::abs(x);
    if (filter == ScaleFilter::kBilinear) return std::max(1 - distance, 0.0);
    return distance < kLobes ? Sinc(distance) * Sinc(distance / kLobes) : 0;
}

// Within the row: beside it, a filter would have little but its negative lobes there.
double MiddleOf(const AxisPlan& plan, int32 i) {
    return std::clamp(plan.start + (i + 0.5) * plan.step, 0.0, static_cast<double>(plan.source));
}

int32 Bounded(double position, int32 end) {
    return static_cast<int32>(std::clamp(std::floor(position), 0.0, static_cast<double>(end)));
}

}  // namespace

FilterAxis::FilterAxis(const AxisPlan& plan, ScaleFilter filter) {
    const double spread = std::max(plan.step, 1.0);
    const double support = spread * (filter == ScaleFilter::kBilinear ? 1 : kLobes);
    for (int32 i = 0; i < plan.target; ++i) {
        // The pixels whose middles lie within the support.
        const double middle = MiddleOf(plan, i);
        first_.push_back(Bounded(middle - support + 0.5, plan.source - 1));
        end_.push_back(std::max(Bounded(middle + support + 0.5, plan.source), first_.back() + 1));
        taps_ = std::max(taps_, end_.back() - first_.back());
    }
    weights_.resize(first_.size() * static_cast<size_t>(taps_));
    for (int32 i = 0; i < plan.target; ++i)
        SetWeights(i, MiddleOf(plan, i), spread, filter);
}

void FilterAxis::SetWeights(int32 i, double middle, double spread, ScaleFilter filter) {
    float* const weights = &weights_[static_cast<size_t>(i) * static_cast<size_t>(taps_)];
    std::vector<double> exact;
    for (int32 at = First(i); at < End(i); ++at)
        exact.push_back(Weight(filter, (at + 0.5 - middle) / spread));
    const double sum = std::accumulate(exact.begin(), exact.end(), 0.0);
    std::transform(exact.begin(), exact.end(), weights,
                   [sum](double weight) { return static_cast<float>(weight / sum); });
}

int32 NearestSource(const AxisPlan& plan, int32 i) {
    return Bounded(plan.start + (i + 0.5) * plan.step, plan.source - 1);
}

}  // namespace kirto
